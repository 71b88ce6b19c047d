/**
 * @file
 * @brief Drawing: lines, boxes, fills, tiles, triangles and ellipses.
 *
 * Coordinates are pixels, x to the right and y downward, and may be anything: only pixels inside the image
 * are touched, and a call costs what its visible part costs. Where the image and a second one share memory,
 * pixels are written in the order that is told, each when its turn comes.
 *
 * Colours are whole words, alpha included, unless something else is said. mix(a, b, w) with a weight w of
 * 0..256 is `(a * (256 - w) + b * w) >> 8` in each of the four channels. trunc rounds toward zero. Quotients
 * are formed in double precision, and so is what follows from them, unless a cast to float stands there.
 *
 * @param[in,out] image [image] The image that is drawn on.
 * @param mask [value] Bits that the image keeps: `(~mask & colour) | (old & mask)`. 0 stores the colour.
 * @param colour [colour] The colour.
 * @param x0, y0 [pixels] The first corner or end.
 * @param x1, y1 [pixels] The other corner or end.
 * @retval 0 Done, also when nothing lies inside the image.
 */
#ifndef TESSARO_DRAW_H
#define TESSARO_DRAW_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup lines Lines
 * @brief Draw along the way from (x0, y0) to (x1, y1), both of which may lie anywhere.
 *
 * **The walk** has `n = max(|x1 - x0|, |y1 - y0|)` steps. Each coordinate has an error term that starts at
 * `n / 2`, rounded down. In each step it grows by that coordinate's distance, |x1 - x0| or |y1 - y0|, and
 * when it has reached n it drops by n and the coordinate moves by one. The points of the walk are those after
 * each step: the end is among them, the start is not.
 *
 * Ends differ: BBIDrawLine leaves out its start, BBIDrawGradationLine goes on past its end, BBIDrawAlphaLine
 * draws both.
 *
 * @param[in] colours [image] The first two pixels of its first row are the colours of (x0, y0) and (x1, y1).
 * @{
 */

/** Draws the points of the walk; where both ends are one, that pixel. */
TESSARO_API int32_t TESSARO_CALL BBIDrawLine(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                             int32_t y1, uint32_t mask, uint32_t colour);

/**
 * Fills holes along a line: writes each point of the walk of whose neighbours three or four equal the colour.
 *
 * Neighbours are the pixels left, right, above and below, inside the image; they are compared in all 32 bits,
 * and count as they are when the walk gets there, those that it has written too. Where both ends are one
 * nothing happens.
 */
TESSARO_API int32_t TESSARO_CALL BBIDotThick(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                             int32_t y1, uint32_t mask, uint32_t colour);

/**
 * Grows strokes of the colour towards a line.
 *
 * Each point of the walk, which may lie outside the image and is not written itself, has four arms: right,
 * left, down, up, in this order. An arm is scanned inwards, at the distances d = `thickness` to 1: where the
 * pixel lies inside the image and equals the colour in all 32 bits, `found = thickness + 1 - d`; then, where
 * it lies inside and `found >= d`, it is written. found starts at 0 for each arm. So the colour at distance d
 * paints its arm from distance `min(d, thickness + 1 - d)` inwards.
 *
 * @param thickness [pixels] The length of an arm.
 * @retval 0 Done, also where both ends are one, which does nothing.
 * @retval 1 [untouched] The thickness is below 1, or the pitch of the image is not 4 * width.
 */
TESSARO_API int32_t TESSARO_CALL BBILineThick(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                              int32_t y1, uint32_t mask, uint32_t colour, int32_t thickness);

/**
 * Draws a gradient line, one step late.
 *
 * The walk here has n + 1 steps, in which an error term drops only when it exceeds n, and every step i = 0..n
 * draws the point it reaches. So from n = 2 on the line runs from one past its start to one past its end: a
 * line from (0, 0) to (4, 0) draws x = 1 to 5. For n = 1 it draws its two ends, for n = 0 its start.
 *
 * All four bytes are stored: with c0, c1 the bytes of the two colours, t = i / n (0 for n = 0) and
 * `u = (float)(1 - t)`, each is `trunc(c1 * t + c0 * u)`. Between equal colours a byte may come out one less.
 *
 * @retval 0 Done.
 * @retval 1 [untouched] `colours` is narrower than 2 or has no row.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawGradationLine(ImageRecord* image, const ImageRecord* colours,
                                                      int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/**
 * Draws an antialiased gradient line, blended by the alpha of its colours, which is part of the gradient.
 *
 * M is the greater of |x1 - x0| and |y1 - y0|, N the other; the line goes along x where |x1 - x0| is greater,
 * else along y. It begins at the end where that coordinate is less, and the colours c0 and c1 change places
 * with the ends. The other coordinate moves by s: 1 where the last end's is greater or the same, else -1.
 *
 * Two tracks share the coverage: A begins at the start, B at one pixel from it, at s. With
 * `h = (float)(N / M * 0.5)` and `q = (float)((N - h) / M)`, the coverage of A begins at 1 and falls by q a
 * step; below 0 it grows by 1 and A moves by s. That of B begins at h / 2 and grows by q a step; above 1 it
 * falls by 1 and B moves by s. These sums are exact.
 *
 * For i = 0..M, both ends included, the colour is c = mix(c0, c1, `trunc((float)(i / M) * 256)`), and a pixel
 * of coverage v becomes mix(pixel, c, `trunc(min(alpha * 0.003921569f * v, 1) * 256)`), alpha being that of
 * c: first A, then B, then, where B is two pixels ahead of A, the one between them with v = 1. Where A or B
 * lies outside the image, none of them is drawn: a horizontal line in the last row draws nothing, nor does a
 * vertical one in the last column. Where both ends are one nothing happens.
 *
 * @retval 0 Done.
 * @retval 1 [untouched] `colours` is narrower than 2 or has no row.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawAlphaLine(ImageRecord* image, const ImageRecord* colours, int32_t x0,
                                                  int32_t y0, int32_t x1, int32_t y1);

/** @} */

/**
 * @defgroup boxes Boxes by position and size
 * @brief Fill cx x cy pixels at (x, y).
 *
 * The box is clipped as the destination rectangle of a stretched blit (transform.h) whose source rectangle is
 * all of an image of this one's width W and height H. So 1 is returned not only when nothing is visible, but
 * also when the clipped source rectangle loses its width or its height: where about `visible width * W < cx`,
 * heights alike. Of the box (-1000, -1000, 2000, 2000) a 16 x 16 image shows nothing. Only 0 counts as lost:
 * a box that is cut at the top and hundreds of millions of rows high may leave a height of -1, and is drawn.
 *
 * @param x, y [pixels] The upper left corner.
 * @param cx, cy [pixels] The size.
 * @retval 0 Done.
 * @retval 1 [untouched] Clipping left nothing.
 * @{
 */

/** Fills with one colour. */
TESSARO_API int32_t TESSARO_CALL BBIDrawColorFill(ImageRecord* image, int32_t x, int32_t y, int32_t cx,
                                                  int32_t cy, uint32_t mask, uint32_t colour);

/**
 * Fills with a checkerboard of four colours: pixel (i, j) of the image has colour number
 * `(i / tile_cx & 1) + 2 * (j / tile_cy & 1)`.
 *
 * The pattern begins at the image's corner, not at the box's.
 *
 * @param tile_cx [pixels] The width of a tile; below 1 counts as 1.
 * @param tile_cy [pixels] The height of a tile; below 1 counts as 1.
 * @param colour0 [colour] Even columns of tiles in even rows.
 * @param colour1 [colour] Odd columns in even rows.
 * @param colour2 [colour] Even columns in odd rows.
 * @param colour3 [colour] Odd columns in odd rows.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawColorTile(ImageRecord* image, int32_t x, int32_t y, int32_t cx,
                                                  int32_t cy, uint32_t mask, int32_t tile_cx, int32_t tile_cy,
                                                  uint32_t colour0, uint32_t colour1, uint32_t colour2,
                                                  uint32_t colour3);

/**
 * Fills with a gradient between four corner colours, of which a clipped box shows its part.
 *
 * With (sx, sy, sw, sh) the clipped source rectangle, the visible part begins at `(float)(sx / W)` and ends
 * at `(float)((sx + sw) / W)` across, down likewise with H. Column i of n visible ones lies at
 * `u = (1 - f) * begin + f * end` with `f = i / (n - 1)`; rows likewise, but v is rounded to float. A weight
 * is `trunc(max(min(u, 1), 0) * 256)`. With the weights wu and wv the pixel is
 * `mix(mix(top_left, bottom_left, wv), mix(top_right, bottom_right, wv), wu)`.
 *
 * Where one column (row) is visible, its weight is 0: it shows the left (top) colours, wherever it lies in
 * the box.
 *
 * @param top_left [colour] The colour of the corner.
 * @param top_right [colour] The colour of the corner.
 * @param bottom_left [colour] The colour of the corner.
 * @param bottom_right [colour] The colour of the corner.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawBox(ImageRecord* image, int32_t x, int32_t y, int32_t cx, int32_t cy,
                                            uint32_t mask, uint32_t top_left, uint32_t top_right,
                                            uint32_t bottom_left, uint32_t bottom_right);

/** @} */

/**
 * @defgroup patterned Boxes by corners
 * @brief Fill the box between two corners, both included and in any order, with colours of a pattern image.
 *
 * Rows go from y0 to y1 and pixels from x0 to x1, whichever is greater. The pixel (x, y) lies at
 * `u = (x - x0) / (x1 - x0)` and `v = (y - y0) / (y1 - y0)`, 0 where the two are equal: corners in reverse
 * order mirror the pattern. All four bytes are replaced.
 *
 * @param[in] pattern [image] At least 2 x 2 pixels. It may be part of the image.
 * @retval 0 Done, also when nothing lies inside the image.
 * @retval 1 [untouched] The pattern is smaller than 2 x 2.
 * @{
 */

/**
 * Fills with a gradient between the upper left 2 x 2 pixels of the pattern, one for each corner.
 *
 * With p(column, row) a byte of the pattern, read before the first pixel is written,
 * `left = (float)(v * p(0, 1) + (1 - v) * p(0, 0))` and `right = (float)(v * p(1, 1) + (1 - v) * p(1, 0))`,
 * the byte is `trunc((1 - u) * left + u * right)`.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawGradationBox(ImageRecord* image, const ImageRecord* pattern,
                                                     int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/**
 * Multiplies a colour chosen along x with one chosen along y: `a * b / 255` rounded down, byte by byte.
 *
 * a is column `trunc(u * (pattern width - 1))` of the pattern's first row, read for each pixel; b is column
 * `trunc(v * (pattern width - 1))` of its second row, read for each row.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawMultiplyLineBox(ImageRecord* image, const ImageRecord* pattern,
                                                        int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/** As BBIDrawMultiplyLineBox, with `a + b`, above 255 folded back to `510 - (a + b)`. */
TESSARO_API int32_t TESSARO_CALL BBIDrawExclusiveLineBox(ImageRecord* image, const ImageRecord* pattern,
                                                         int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/** @} */

/**
 * @defgroup triangles Triangles
 * @brief Fill the triangle between three corners, which may be in any order.
 *
 * E(a, b) of a pixel (x, y) and two corners is `(x - xa) * (y - yb) - (x - xb) * (y - ya)`, in 32 bits that
 * wrap: corners more than some tens of thousands of pixels apart give other sets of pixels than the triangle.
 * Only pixels of the corners' bounding box are written.
 *
 * @param x2, y2 [pixels] The third corner.
 * @retval 0 Always.
 * @{
 */

/**
 * Fills the pixels strictly inside: E(0, 1), E(1, 2) and E(2, 0) are all negative or all positive.
 *
 * No pixel on an edge is drawn, and none of a triangle without area.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawTriangle(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                                 int32_t y1, int32_t x2, int32_t y2, uint32_t mask,
                                                 uint32_t colour);

/**
 * Fills the pixels inside and on the edges: where E(0, 1) is positive the other two are 0 or more, else they
 * are 0 or less.
 *
 * Of a triangle without area these are the pixels exactly on its segment. Where the corners are in clockwise
 * order as seen on the screen, as (0, 0), (4, 0), (0, 4) are, the edge from the first to the second is left
 * out.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawTriangleA(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1,
                                                  int32_t y1, int32_t x2, int32_t y2, uint32_t mask,
                                                  uint32_t colour);

/** @} */

/**
 * @defgroup ellipses Gradient ellipses
 * @brief Fill the ellipse inscribed in the box between two corners, both included, with pixels of a palette
 * image.
 *
 * Rows go from y0 to y1 and pixels from x0 to x1. The pixel (x, y) lies at `u = 2 * (x - x0) / (x1 - x0) - 1`
 * and `v = (float)(2 * (y - y0) / (y1 - y0) - 1)`, -1 where the two are equal. With
 * `r = sqrt(u * u + v * v)`, pixels of r up to 1 become a whole pixel of the palette, in column
 * `trunc((1 - r) * (palette width - 1))`: the rim takes the first, the centre the last. The palette may be
 * part of the image: it is read pixel by pixel.
 *
 * The corners themselves are never drawn, and of a box one pixel wide or high only its middle, where it has
 * one.
 *
 * @param[in] palette [image] The colours.
 * @{
 */

/**
 * Fills with rings: from the first row of the palette.
 *
 * @retval 0 Done, also when nothing lies inside the image.
 * @retval 1 [untouched] The palette is narrower than 2 or has no row.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawLineCircle(ImageRecord* image, const ImageRecord* palette, int32_t x0,
                                                   int32_t y0, int32_t x1, int32_t y1);

/**
 * Fills with rings and rays: from the row of the palette that the angle selects.
 *
 * Here `v * v` in r is rounded to float. The fraction t of a turn is `atan(u / v) * 0.159154976`, plus 0.25
 * where v is negative and 0.75 where it is positive; where v is 0 it is 0.5 for a negative u, else 0. So 0 is
 * to the right, 0.25 above, 0.5 to the left, 0.75 below, if the corners are the upper left and the lower
 * right. The row is `min(trunc(t * palette height), palette height - 1)`. The arctangent is within one unit
 * in the last place of the exact one and the same on every target.
 *
 * @retval 0 Done, also when nothing lies inside the image.
 * @retval 1 [untouched] The palette is smaller than 2 x 2.
 */
TESSARO_API int32_t TESSARO_CALL BBIDrawPolaCircle(ImageRecord* image, const ImageRecord* palette, int32_t x0,
                                                   int32_t y0, int32_t x1, int32_t y1);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
