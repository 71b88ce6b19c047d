/* Drawing: lines, boxes, fills, tiles, triangles and ellipses. */
#ifndef TESSARO_DRAW_H
#define TESSARO_DRAW_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Coordinates are pixels, x to the right and y downward, and may be anything: only pixels inside the image are
 * touched, and a call costs what its visible part costs.
 *
 * mask: bits that are set keep the image's bits, (~mask & colour) | (old & mask). 0 stores the colour. */

/* ---- Lines -------------------------------------------------------------------------------------------------
 *
 * The integer walk from (x0, y0) to (x1, y1): n = max(|x1 - x0|, |y1 - y0|) steps; both coordinates have an error
 * term that starts at n / 2 (rounded down), grows by the coordinate's distance each step, and when it reaches n
 * drops by n and moves the coordinate by one. The start is not among the points that the steps reach. */

/* A line in one colour from one step past (x0, y0) to (x1, y1). Of a line of length 0 the one pixel is drawn.
 * Always 0. */
TESSARO_API int32_t TESSARO_CALL BBIDrawLine(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                             int32_t y1, uint32_t mask, uint32_t colour);

/* Fills holes along a line: a point of the walk is written if three or four of its neighbours left, right, above
 * and below (those inside the image) equal the colour in all bits; pixels that the same walk has written count.
 * Always 0; a line of length 0 does nothing. */
TESSARO_API int32_t TESSARO_CALL BBIDotThick(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                             int32_t y1, uint32_t mask, uint32_t colour);

/* Grows strokes of the colour towards a line. From each point of the walk, which is not written itself and may
 * lie outside the image, four arms of `thickness` pixels (right, left, down, up) are scanned from the far end
 * inwards. A pixel equal to the colour at distance d paints the arm from distance thickness + 1 - d (or from d,
 * if that is nearer) inwards to distance 1. Returns 1 and does nothing when thickness is below 1 or the image's
 * pitch is not exactly 4 * width; otherwise 0, also for a line of length 0. */
TESSARO_API int32_t TESSARO_CALL BBILineThick(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                              int32_t y1, uint32_t mask, uint32_t colour, int32_t thickness);

/* A gradient line. The first two pixels of `colours` (at least 2 x 1, else 1 is returned) are the colours of the
 * two ends; all four bytes are interpolated and stored. The walk is one step late: from n = 2 on the pixels run
 * from one past the start to one past the end, so that (0, 0) to (4, 0) draws x = 1 .. 5; a line of n = 1 draws
 * its two ends, one of length 0 its start. */
TESSARO_API int32_t TESSARO_CALL BBIDrawGradationLine(ImageRecord* image, const ImageRecord* colours,
                                                      int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/* An antialiased gradient line, blended by the alpha of its colour: two tracks one pixel apart share the
 * coverage. `colours` as for BBIDrawGradationLine. Where one of the two tracks lies outside the image, neither is
 * drawn: a horizontal line on the last row draws nothing. A line of length 0 draws nothing (result 0). */
TESSARO_API int32_t TESSARO_CALL BBIDrawAlphaLine(ImageRecord* image, const ImageRecord* colours, int32_t x0,
                                                  int32_t y0, int32_t x1, int32_t y1);

/* ---- Boxes, fills and tiles --------------------------------------------------------------------------------
 *
 * The first three fill width x height pixels at (x, y), clipped to the image; 1 is returned when nothing is left.
 * The clip scales a copy of the image's own size along with the box: where a box is so much larger than the image
 * that this copy's visible part truncates to nothing, 1 is returned as well. */

/* One colour. */
TESSARO_API int32_t TESSARO_CALL BBIDrawColorFill(ImageRecord* image, int32_t x, int32_t y, int32_t width,
                                                  int32_t height, uint32_t mask, uint32_t colour);

/* A checkerboard of four colours, colour (x / tile_width & 1) + 2 * (y / tile_height & 1) at pixel (x, y) of the
 * image: the pattern is anchored at the image, not at the box. Tile sizes below 1 count as 1. */
TESSARO_API int32_t TESSARO_CALL BBIDrawColorTile(ImageRecord* image, int32_t x, int32_t y, int32_t width,
                                                  int32_t height, uint32_t mask, int32_t tile_width,
                                                  int32_t tile_height, uint32_t colour0, uint32_t colour1,
                                                  uint32_t colour2, uint32_t colour3);

/* A gradient between four corner colours, in all four bytes. A clipped box shows its part of the gradient. A box
 * of which one column is visible shows the left colours, of which one row is visible the top colours. */
TESSARO_API int32_t TESSARO_CALL BBIDrawBox(ImageRecord* image, int32_t x, int32_t y, int32_t width,
                                            int32_t height, uint32_t mask, uint32_t top_left,
                                            uint32_t top_right, uint32_t bottom_left, uint32_t bottom_right);

/* The others take two corners, both included and in any order, and a pattern image of at least 2 x 2 pixels (else
 * 1 is returned). The pattern's first column belongs to x0 and its last to x1. All four bytes are replaced. A box
 * outside the image writes nothing and returns 0. */

/* A gradient between the pattern's upper left 2 x 2 pixels: (0, 0) at (x0, y0), (1, 0) at (x1, y0), (0, 1) at
 * (x0, y1) and (1, 1) at (x1, y1). */
TESSARO_API int32_t TESSARO_CALL BBIDrawGradationBox(ImageRecord* image, const ImageRecord* pattern,
                                                     int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/* Combines a colour a from the pattern's first row, chosen along x, with a colour b from its second row, chosen
 * along y, byte by byte: a * b / 255 rounded down; a + b, from 255 on folded back to 510 - (a + b). The pattern
 * may be part of the image: each colour is then read where the walk stands. */
TESSARO_API int32_t TESSARO_CALL BBIDrawMultiplyLineBox(ImageRecord* image, const ImageRecord* pattern,
                                                        int32_t x0, int32_t y0, int32_t x1, int32_t y1);
TESSARO_API int32_t TESSARO_CALL BBIDrawExclusiveLineBox(ImageRecord* image, const ImageRecord* pattern,
                                                         int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/* ---- Triangles --------------------------------------------------------------------------------------------
 *
 * Three corners in any order; always 0. The edges' cross products are formed in 32 bits and wrap: corners more
 * than some tens of thousands of pixels apart give other sets of pixels than the triangle. */

/* The pixels strictly inside: none that lies on an edge, none of a triangle without area. */
TESSARO_API int32_t TESSARO_CALL BBIDrawTriangle(ImageRecord* image, int32_t x1, int32_t y1, int32_t x2,
                                                 int32_t y2, int32_t x3, int32_t y3, uint32_t mask,
                                                 uint32_t colour);

/* The pixels inside and on the edges; of a triangle without area the pixels exactly on its segment. If the corners
 * are in clockwise order as seen on the screen ((0, 0), (4, 0), (0, 4)), the edge from corner 1 to corner 2 is left
 * out. */
TESSARO_API int32_t TESSARO_CALL BBIDrawTriangleA(ImageRecord* image, int32_t x1, int32_t y1, int32_t x2,
                                                  int32_t y2, int32_t x3, int32_t y3, uint32_t mask,
                                                  uint32_t colour);

/* ---- Gradient ellipses -------------------------------------------------------------------------------------
 *
 * Fill the ellipse inscribed in the rectangle of two opposite corners, both included, with whole pixels of a
 * palette image. With u and v running from -1 at the first corner to 1 at the other, r = sqrt(u^2 + v^2); pixels
 * with r <= 1 are written, from palette column trunc((1 - r) * (width - 1)): the rim takes the first column and the
 * centre the last. The palette may be part of the image. */

/* From the palette's first row. 1 if the palette is narrower than 2 or has no row. */
TESSARO_API int32_t TESSARO_CALL BBIDrawLineCircle(ImageRecord* dst, const ImageRecord* palette, int32_t x1,
                                                   int32_t y1, int32_t x2, int32_t y2);

/* From the row that the angle selects: the fraction t of the palette's height, where v < 0 has t = atan(u / v) /
 * (2 pi) + 0.25, v > 0 has + 0.75, and v = 0 has 0.5 for u < 0, else 0; a t of 1 takes the last row. 1 if the palette
 * is smaller than 2 x 2. */
TESSARO_API int32_t TESSARO_CALL BBIDrawPolaCircle(ImageRecord* dst, const ImageRecord* palette, int32_t x1,
                                                   int32_t y1, int32_t x2, int32_t y2);

#ifdef __cplusplus
}
#endif

#endif
