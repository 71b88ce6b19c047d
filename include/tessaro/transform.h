/* Resampling and geometric transforms. */
#ifndef TESSARO_TRANSFORM_H
#define TESSARO_TRANSFORM_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Conventions of this header. Rectangles are in pixels. dst and src may be one image: rows go top to bottom and pixels left
 * to right without a copy, and each source pixel is read when its turn comes, so where the areas overlap later pixels see
 * what earlier ones wrote.
 *
 * The weighted mix of d and s with a weight of 0..256 is (d * (256 - weight) + s * weight) >> 8 in each of the four
 * channels, alpha included. The constant weight of an opacity is trunc(opacity * 256); the alpha weight of a pixel with
 * alpha a is trunc(a * opacity * 256 / 255), which is a at opacity 1, but 256 for a = 255 (s replaces d exactly). The divisor
 * is a hair below 255, so that 255 and an opacity of 0.5 give 128.
 *
 * Unless stated otherwise, exports return 0 when they ran, and 1 when an argument was unusable or clipping left nothing, in
 * which case no pixel has changed. */

/* ---- Scaled blits
 *
 * Stretch the source rectangle (sx, sy, sw, sh) onto the destination rectangle (dx, dy, dw, dh) by nearest sample: after
 * clipping, destination pixel (dx + j, dy + i) takes source pixel (sx + floor(j * sw / dw), sy + floor(i * sh / dh)), without
 * filtering. The source rectangle is clipped against src first, which shrinks the destination rectangle in proportion, then
 * the destination rectangle against dst, which shrinks the source rectangle; each product is truncated. A rectangle without
 * width or height, before or after, or of negative size, gives 1. Rectangles are not mirrored.
 *
 * An opacity above 1 counts as 1; one that is negative or not a number returns 1 (except in BBIExpandChooseBlt). */

/* The mix of d and s with the constant weight; at opacity 1 a copy. */
TESSARO_API int32_t TESSARO_CALL BBIExpandBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                              int32_t sw, int32_t sh, float opacity);

/* The mix of d and s with the alpha weight of s. */
TESSARO_API int32_t TESSARO_CALL BBIExpandBlendBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                   int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                   int32_t sw, int32_t sh, float opacity);

/* Replaces bits of each sample by a gradient between four corner colours, then mixes it into the destination.
 *   mask               the bits of the sample that stay; the others become the gradient's: s = (s & mask) | (G & ~mask)
 *   color_...          the gradient's colours at the corners of the clipped destination rectangle. Row i of it has the left
 *                      colour mix(top_left, bottom_left, w) with w = trunc(i / (dh - 1) * 256), the right one likewise, and
 *                      column j has G = mix(left, right, trunc(j / (dw - 1) * 256)). The quotients are single precision; a
 *                      single row or column counts as the first.
 *   use_source_alpha   nonzero: the weight is the alpha weight of s as replaced; 0: the constant weight
 *   keep_mask          the bits of the destination that stay: (d & keep_mask) | (mixed & ~keep_mask)
 * Returns 1 also when there is no memory for the weights of a row. */
TESSARO_API int32_t TESSARO_CALL BBIExpandColorBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                   int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                   int32_t sw, int32_t sh, float opacity, uint32_t keep_mask,
                                                   uint32_t mask, uint32_t color_top_left,
                                                   uint32_t color_top_right, uint32_t color_bottom_left,
                                                   uint32_t color_bottom_right, int32_t use_source_alpha);

/* The general stretched blit. An opacity that is negative or not a number counts as 0; opacity 0 (or below 1 / 256) with
 * source_is_base off returns 1.
 *
 * For each destination pixel d, in this order:
 *   base = d, or with source_is_base the sample as read
 *   mask               unless 0xFFFFFFFF: s = (s & mask) | (((~s & invert_bits) | color) & ~mask)
 *   saturation         unless 1: with k = trunc(saturation * 1024), m = (1024 - k) / 3 truncated and g = (r + g + b) * m >> 10,
 *                      each colour becomes (colour * k >> 10) + g, clamped to 0..255. 0 is grey. Below 0 and not a number
 *                      count as 0, above 256 as 256.
 *   level_low, level_high   unless 0 and 0x00FFFFFF (all 32 bits compared): each colour v with its bytes lo and hi of the two
 *                      words becomes 0 for v <= lo, 255 for v >= hi, between them 255 * (v - lo) / (hi - lo) truncated. Where
 *                      lo = hi, v = lo becomes 255 - lo; where lo > hi, what lies above lo becomes 255.
 *   weight             use_source_alpha: the alpha weight of s as it is now; else the constant weight
 *   mix                s = mix(base, s, weight). With add_color the colours are scaled instead, s * weight >> 8, and then
 *                      added to the base's, at most 255; with add_alpha the same for alpha. Each works for itself.
 *   keep_mask          s = (base & keep_mask) | (s & ~keep_mask)
 * and s is stored. Returns 2.
 *
 * Simpler calls, with saturation 1, levels 0 and 0xFFFFFF in their lower three bytes, and the last three flags 0, go to other
 * routines, and have their results and their arithmetic. By the clipped sizes:
 *   different, mask 0xFFFFFFFF, keep_mask 0     BBIExpandBlt; with use_source_alpha BBIExpandBlendBlt: 0
 *   equal, mask 0xFFFFFFFF, keep_mask 0         BBIFlip or BBIFlipBlend; at opacity 1 BBIBlt or BBIBltBlend without wide: 0
 *   equal, mask 0xFF000000, keep_mask 0, invert_bits 0   fills: d = mix(d, color, weight), the alpha byte of color included,
 *                                               where the weight may come from the alpha of the source pixel: 0x201
 *   otherwise                                   the mask, weight, mix and keep_mask steps above: 0 */
TESSARO_API int32_t TESSARO_CALL BBIExpandChooseBlt(
    ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t dw, int32_t dh, int32_t sx,
    int32_t sy, int32_t sw, int32_t sh, float opacity, float saturation, uint32_t level_low,
    uint32_t level_high, uint32_t keep_mask, uint32_t mask, uint32_t color, uint32_t invert_bits,
    int32_t use_source_alpha, int32_t add_color, int32_t add_alpha, int32_t source_is_base);

/* ---- Interpolated stretching
 *
 * Rectangles are clipped as for the scaled blits.
 *
 * Bilinear sampling works in 1 / 4096 of a pixel. Along each axis, destination pixel i of the clipped rectangle lies at
 * i * step + start; when reducing (dw < sw) step = (sw - 2) * 4096 / (dw - 1) and start = 2048, otherwise
 * step = (sw - 1) * 4096 / dw and start = (sw - 1) * 2048 / dw, truncated. Position >> 12 is the left (upper) source pixel,
 * position >> 4 & 255 the weight of its right (lower) neighbour. The sample is the mix of the two rows' mixes, each
 * truncated.
 *
 * BBILinearBlt and BBILinearRender take the nearest sample instead, as BBIExpandBlt does, when a clipped size is below 2, when
 * the sizes are equal, and when the scale exceeds 16 in either direction on either axis.
 *
 * Where they interpolate, they take the rows of both images to follow one another without a gap, 4 * width bytes apart,
 * whatever the pitch says: callers give images whose pitch is 4 * width. With a larger pitch the rows meant and the rows
 * used differ. With a smaller or a negative one, 1 is returned and nothing changes as soon as a row of the clipped rectangles
 * so addressed would lie outside the memory that the image's own rows span. */

/* Stretches with bilinear interpolation; the sample replaces d. */
TESSARO_API int32_t TESSARO_CALL BBILinearBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                              int32_t sw, int32_t sh);

/* Brings each sample s into d by a table of weights and a mode. a = table[alpha of s].
 *   table        256 weights of 0..256, for example from BBIAlphaTableCreate; larger ones give unspecified colours. Read
 *                once, before the first pixel is written.
 *   mode         1: d = min(d + (s * a >> 8), 255) per channel, alpha included
 *                2: tints s, then mixes it: the colours of s become mix(s, tint_color, table[alpha of tint_color]), its alpha
 *                   stays; d = mix(d, s, a)
 *                3: tints s as 2 and adds it as 1
 *                others: d = mix(d, s, a)
 *   smooth       0: always the nearest sample */
TESSARO_API int32_t TESSARO_CALL BBILinearRender(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                 int32_t sw, int32_t sh, const uint32_t* table, int32_t mode,
                                                 int32_t smooth, uint32_t tint_color);

/* Fills a table of 256 weights: with by_alpha the alpha weights of the opacity, otherwise its constant weight throughout.
 * An opacity below 0 or not a number counts as 0, above 1 as 1. The table needs no alignment. */
TESSARO_API void TESSARO_CALL BBIAlphaTableCreate(uint32_t* table, float opacity, int32_t by_alpha);

/* Resizes all of src to all of dst with a cubic kernel: k(x) = 1 - 2x^2 + x^3 for x < 1, 4 - 8x + 5x^2 - x^3 for x < 2. The
 * corners of the images coincide: destination column x lies at x * (src width - 1) / (dst width - 1), and a destination of
 * one column or row shows the first. Of the 4 x 4 taps around a position those outside the source are transparent black;
 * a tap's weight is the product of its column's and its row's, single precision, and what is negative counts as 0 - so a
 * negative lobe acts only where it meets another, at the corners. The taps are merged in pairs, neighbours first, with
 * truncated mixes. Returns 1 when an image has no pixels. */
TESSARO_API int32_t TESSARO_CALL BBILinear(ImageRecord* dst, const ImageRecord* src);

/* Experimental: the nearest sample, averaged with neighbours that follow one another along a fixed spiral of up to 20 places;
 * each is averaged in as (v + p) >> 1 per channel, so later ones weigh more. The number of neighbours grows with the
 * reduction: (sw / dw + sh / dh + 5) & ~3, integer divisions. A neighbour at (x, y) takes part only if
 * sx < x < sw and sy < y < sh: the clipped sizes serve as limits of its coordinates. Rows of src are 4 * (pitch / 4) bytes
 * apart. */
TESSARO_API int32_t TESSARO_CALL BBILinearBltTest(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                  int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                  int32_t sw, int32_t sh);

/* ---- Depth and flip
 *
 * Combine a w x h rectangle of src at (sx, sy) with dst at (dx, dy), of the same size. The rectangle is clipped against dst
 * first and src second. */

/* Cross-fade: the mix of d and s with the constant weight. An opacity above 1 counts as 1; one
 * that is negative or not a number returns 1. */
TESSARO_API int32_t TESSARO_CALL BBIFlip(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                         int32_t w, int32_t h, int32_t sx, int32_t sy, float opacity);

/* The mix of d and s with the alpha weight of s. Opacity as for BBIFlip. */
TESSARO_API int32_t TESSARO_CALL BBIFlipBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                              float opacity);

/* Alpha as depth: s replaces d where the alpha of s is greater; on equal alpha d stays. */
TESSARO_API int32_t TESSARO_CALL BBIDepth(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                          int32_t w, int32_t h, int32_t sx, int32_t sy);

/* The same, but the bits of keep_mask stay those of d: (d & keep_mask) | (s & ~keep_mask). */
TESSARO_API int32_t TESSARO_CALL BBIDepthMask(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                              uint32_t keep_mask);

/* Fills length pixels from (x, y) to the right with color; the run is cut to the image. Returns 1 when y lies
 * outside the image or nothing is left, otherwise 0. */
TESSARO_API int32_t TESSARO_CALL BBIFlipLineX(ImageRecord* image, int32_t x, int32_t y, int32_t length,
                                              uint32_t color);

/* The same downward; returns 1 when x lies outside the image. From the first pixel on, rows are stepped by
 * the pitch rounded down to a multiple of 4: with another pitch the line drifts to the left by up to 3 bytes
 * a row, and it ends where it would leave the memory of the image. */
TESSARO_API int32_t TESSARO_CALL BBIFlipLineY(ImageRecord* image, int32_t x, int32_t y, int32_t length,
                                              uint32_t color);

/* ---- Blur and one-axis scaling
 *
 * Filters along the rows (U) or the columns (V) of a w x h rectangle, in pixels, clipped against dst first and src
 * second; nothing outside the clipped source rectangle is read. Returns 1 when nothing is left, otherwise 0. The four
 * channels, alpha included, are filtered each for itself, and means are truncated. */

/* Box blurs: the mean of the pixels from radius before to radius after. At the ends of a row (column) the window is
 * cut, never padded. The radius is lowered to half the length minus 1, and to 127; below 1 the rectangle is copied as
 * by BBIBlt. dst and src may be one image and one rectangle. Cost does not depend on the radius. */
TESSARO_API int32_t TESSARO_CALL BBIBltUBlur(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t w, int32_t h, int32_t sx, int32_t sy, int32_t radius);
TESSARO_API int32_t TESSARO_CALL BBIBltVBlur(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t w, int32_t h, int32_t sx, int32_t sy, int32_t radius);

/* The same with a window that wraps round the ends, for images that tile. They read again what they began with: the
 * destination must not overlap the source. */
TESSARO_API int32_t TESSARO_CALL BBIBltUBlurLoop(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                                 int32_t radius);
TESSARO_API int32_t TESSARO_CALL BBIBltVBlurLoop(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                                 int32_t radius);

/* Box-filtered rescaling of every row (column) by num / den within the same length n. Both are lowered to 128; 1 is
 * returned when one of them is below 1. Shrinking (num < den) starts at the first pixel, and the tail beyond n * num / den
 * repeats the last source pixel. Enlarging (and num = den) starts at the last destination pixel and shows the first
 * n * den / num source pixels; what is left over at the start repeats pixel 0. dst and src may be one rectangle. */
TESSARO_API int32_t TESSARO_CALL BBIBltUScale(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                              int32_t num, int32_t den);
TESSARO_API int32_t TESSARO_CALL BBIBltVScale(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                              int32_t num, int32_t den);

/* Halves a 2w x 2h rectangle of src to w x h in dst: the truncated mean of 2 x 2 pixels. Not clipped: returns 1 and
 * changes nothing unless both rectangles lie inside their images and w and h are at least 1. */
TESSARO_API int32_t TESSARO_CALL BBIBltHalfSize(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy);

/* ---- Colour reduction and channel routing */

/* Reduces blue, green and red of a whole image in place, with ordered dithering by the pixel's position, so that a later
 * conversion to 1555, 4444 or 1-bit channels shows no bands; alpha stays. A byte of 0 stays 0. 1555 and 4444 drop the
 * low 3 or 4 bits or carry them up to the next level (at most 255); 1111 gives 0 or 255. At positions with threshold 0
 * a byte other than 0 always moves up. Returns 1 for an image without pixels, otherwise 0. */
TESSARO_API int32_t TESSARO_CALL BBIColorCutDown1555(ImageRecord* image);
TESSARO_API int32_t TESSARO_CALL BBIColorCutDown4444(ImageRecord* image);
TESSARO_API int32_t TESSARO_CALL BBIColorCutDown1111(ImageRecord* image);

/* Builds each pixel of dst from channels of src or of dst itself, over the part that both images have, both anchored at
 * (0, 0). Returns 1 when there is none, otherwise 0.
 *   colorFrom   bit value 2: from dst, else from src; value 1: a grey of that pixel's alpha, else its colour
 *   alphaFrom   bit value 2: from dst, else from src; value 1: that pixel's alpha, else the brightness of its colour:
 *     BBIChooseCA    (red + green + blue) / 3, truncated
 *     BBIChooseCATR  green * 0.7154 + blue * 0.0721 + red * 0.2125, truncated
 *     BBIChooseCATS  the same with the weights given, in double precision; the low 8 bits of the integer are taken, so
 *                    that 256 gives 0; a sum that fits no 32-bit integer, or is not a number, gives 0 */
TESSARO_API int32_t TESSARO_CALL BBIChooseCA(ImageRecord* dst, const ImageRecord* src, int32_t colorFrom,
                                             int32_t alphaFrom);
TESSARO_API int32_t TESSARO_CALL BBIChooseCATR(ImageRecord* dst, const ImageRecord* src, int32_t colorFrom,
                                               int32_t alphaFrom);
TESSARO_API int32_t TESSARO_CALL BBIChooseCATS(ImageRecord* dst, const ImageRecord* src, int32_t colorFrom,
                                               int32_t alphaFrom, float redWeight, float greenWeight,
                                               float blueWeight);

/* Each output channel is a copy of the one that its selector names: bits 0 and 1: 0 red, 1 green, 2 blue, 3 alpha; bit 2
 * (value 4): of dst, else of src. Area and result as for BBIChooseCA. */
TESSARO_API int32_t TESSARO_CALL BBIChooseRGBA(ImageRecord* dst, const ImageRecord* src, int32_t redFrom,
                                               int32_t greenFrom, int32_t blueFrom, int32_t alphaFrom);

/* ---- Region paint */

/* Runs one of eleven operations on a whole image in place. key is an exact pixel word, alpha included. Neighbours are the
 * pixels left, right, above and below inside the image.
 *    0  key pixels become color; result 0
 *    1  all others become color; result 0
 *    2  pixels that are not key become color, those of them next to a key pixel x, and key pixels next to one that is not
 *       key become y; result 0
 *    3  key pixels next to one that is not become color; result 0
 *    4  pixels next to a key pixel become color, unless they are key; result 0
 *    5  connected regions of key pixels with at most x (signed) pixels become color; result: their number
 *    6  key pixels take the colour that most of their neighbours have, not counting key and color; the earlier of left,
 *       right, above, below on a tie; result: key pixels left without a colour
 *    7  grey pixels (equal red, green, blue) with a blue of the low byte of color to the low byte of key are filled in the
 *       same way from neighbours that are not grey or were filled before, again and again until nothing changes;
 *       result: pixels left
 *    8  pixels that are not grey become color, whatever their alpha; result: their number
 *    9  as 6, with the average of the neighbours: of one or two truncated, of three or four rounded
 *   10  pixels p with (p & x) == key become color; result 0
 * 6, 7 and 9 visit even rows before odd ones and in both even columns before odd ones; a pixel counts as a neighbour with
 * its new colour as soon as it has one. Any other op, an image without pixels and a lack of working memory do nothing and
 * return 0. */
TESSARO_API int32_t TESSARO_CALL BBIPaintChoose(ImageRecord* image, uint32_t op, uint32_t color, uint32_t key,
                                                uint32_t x, uint32_t y);

#ifdef __cplusplus
}
#endif

#endif
