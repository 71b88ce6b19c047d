/**
 * @file
 * @brief Resampling and geometric transforms: scaled blits, interpolation, blurs, colour reduction, region
 * paint.
 *
 * Pixels go left to right and rows top to bottom, without a copy. `dst` and `src` may be one image: each
 * source pixel is read when its turn comes, so that where the areas overlap later pixels see what earlier
 * ones wrote. d is the destination's pixel, s the source's. trunc rounds toward zero, and so do quotients of
 * integers.
 *
 * **Mix.** mix(a, b, w) with a weight w of 0..256 is `(a * (256 - w) + b * w) >> 8` in each of the four
 * channels, alpha included: 0 gives a, 256 gives b.
 *
 * **Weights.** The constant weight of an opacity is `trunc(opacity * 256)`. The alpha weight of a pixel with
 * alpha a is `trunc(a * opacity * 0.003921569f * 256)`, products from left to right in double precision. The
 * factor is a little above 1 / 255: at opacity 1 the weight is a, but 256 for 255, so that s replaces d
 * exactly; at opacity 0.5 it is 128 for 255.
 *
 * **Unscaled rectangles** have one size and a position in each image. They are clipped against `dst` first,
 * then against `src`: what is cut at the left or top moves the position in the other image along, what is cut
 * at the right or bottom only shortens.
 *
 * **Stretched rectangles** are clipped in the same proportion, the source rectangle against `src` first, then
 * the destination rectangle against `dst`. Either clip begins with the ratios r = other size / own size of
 * the rectangles as they are by then, across in double precision, down rounded to single, and keeps them. An
 * edge that is cut by c pixels, left before right and top before bottom, takes the other rectangle's size to
 * `trunc(size - c * r)`, at the left and top its position to `trunc(position + c * r)` as well. A size below
 * 1, given or left, returns 1; rectangles are not mirrored. So 10 columns stretched onto 30 from dx = -4
 * leave sx = 1, sw = 8; and 2 rows onto 6 of which 3 are visible return 1, since the rounded ratio leaves a
 * little less than one row, while 2 columns onto 6 leave one.
 *
 * @param[in,out] dst [image] The image that is changed.
 * @param[in] src [image] The image that is read.
 * @param[in,out] image [image] The image that is changed.
 * @param dx, dy [pixels] Where the rectangle begins in `dst`.
 * @param sx, sy [pixels] Where the rectangle begins in `src`.
 * @param cx, cy [pixels] The size of the rectangle.
 * @param dw, dh [pixels] The size of the rectangle in `dst`.
 * @param sw, sh [pixels] The size of the rectangle in `src`.
 * @param opacity [opacity, 0..1] Above 1 counts as 1; negative or not a number returns 1.
 * @param keep_mask [value] The bits of d that stay: `(d & keep_mask) | (new & ~keep_mask)`.
 * @param colour [colour] The new colour.
 * @retval 0 Done.
 * @retval 1 [untouched] An argument is unusable, or clipping left nothing.
 */
#ifndef TESSARO_TRANSFORM_H
#define TESSARO_TRANSFORM_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup scaled Scaled blits
 * @brief Stretch a rectangle of one image onto a rectangle of another by nearest sample, without filtering.
 *
 * After clipping, destination pixel (dx + j, dy + i) takes the sample s = source pixel
 * `(sx + j * sw / dw, sy + i * sh / dh)`.
 *
 * @param use_source_alpha [flag] Weight by the alpha of s; off: the constant weight for all pixels.
 * @{
 */

/** Stretches with one opacity: d = mix(d, s, constant weight), at opacity 1 a copy. */
TESSARO_API int32_t TESSARO_CALL BBIExpandBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                              int32_t sw, int32_t sh, float opacity);

/** Stretches by the alpha of the source: d = mix(d, s, alpha weight of s). */
TESSARO_API int32_t TESSARO_CALL BBIExpandBlendBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                   int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                   int32_t sw, int32_t sh, float opacity);

/**
 * Replaces bits of each sample by a gradient between four corner colours, then mixes it in.
 *
 * The gradient spans the clipped destination rectangle. With
 * `w(k, n) = trunc((float)((double)k / (n - 1)) * 256)`, 0 where n is 1, pixel (j, i) of it has
 * `G = mix(mix(top_left, bottom_left, w(i, dh)), mix(top_right, bottom_right, w(i, dh)), w(j, dw))`. The
 * sample becomes `(s & mask) | (G & ~mask)`, is mixed into d by its weight, and `keep_mask` is applied.
 *
 * Returns 1 also when there is no memory for the weights of a row.
 *
 * @param mask [value] The bits of the sample that stay.
 * @param top_left [colour] The gradient's corner.
 * @param top_right [colour] The gradient's corner.
 * @param bottom_left [colour] The gradient's corner.
 * @param bottom_right [colour] The gradient's corner.
 * @param use_source_alpha [flag] Weight by the alpha of the sample as replaced; off: the constant weight.
 */
TESSARO_API int32_t TESSARO_CALL BBIExpandColorBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                   int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                   int32_t sw, int32_t sh, float opacity, uint32_t keep_mask,
                                                   uint32_t mask, uint32_t top_left, uint32_t top_right,
                                                   uint32_t bottom_left, uint32_t bottom_right,
                                                   int32_t use_source_alpha);

/**
 * The general stretched blit. For each destination pixel d, in this order:
 *
 * 1. base = d, or with `source_is_base` the sample as read
 * 2. mask: `s = (s & mask) | (((~s & invert_bits) | colour) & ~mask)`
 * 3. saturation, in the colours: with `k = trunc(saturation * 1024)`, `m = (1024 - k) / 3` and
 *    `g = (red + green + blue) * m >> 10`, each becomes `(colour * k >> 10) + g`, clamped to 0..255
 * 4. levels, in the colours: with lo and hi, a colour's bytes of `level_low` and `level_high`, v becomes,
 *    whichever fits first, 255 - lo for v = lo = hi, 0 for `v <= lo`, 255 for `v >= hi`, else
 *    `255 * (v - lo) / (hi - lo)`
 * 5. weight: with `use_source_alpha` the alpha weight of s as it is now, else the constant weight
 * 6. mix: s = mix(base, s, weight). With `add_colour` the colours become `min(base + (s * weight >> 8), 255)`
 *    instead; with `add_alpha` the alpha does. Each works for itself.
 * 7. keep: d = `(base & keep_mask) | (s & ~keep_mask)`
 *
 * A constant weight of 0 (an opacity below 1 / 256) without `source_is_base` returns 1, even with
 * `use_source_alpha`.
 *
 * A call is simple with saturation 1, levels of 0 and 0xFFFFFF in their lower three bytes and the last three
 * flags off. Simple calls return 0, not 2, and two of them, where the clipped sizes are equal and `keep_mask`
 * is 0, do something else (the weight is the constant one, or with `use_source_alpha` that of s as read):
 *
 * | `mask` | and | does |
 * |---|---|---|
 * | 0xFFFFFFFF | `use_source_alpha`, constant weight 256 | BBIBltBlend with 0 as its last argument |
 * | 0xFF000000 | `invert_bits` 0 | d = mix(d, colour, weight), its alpha byte too |
 *
 * @param opacity [opacity, 0..1] Above 1 counts as 1; negative or not a number counts as 0.
 * @param saturation [factor, 0..256] 0 is grey, 1 as it was. Below 0 and not a number count as 0, above 256
 *     as 256.
 * @param level_low [colour] What becomes 0, for each colour; the top byte counts for nothing.
 * @param level_high [colour] What becomes 255, for each colour; the top byte counts for nothing.
 * @param keep_mask [value] The bits of the base that stay.
 * @param mask [value] The bits of the sample that stay.
 * @param colour [colour] What comes into the others.
 * @param invert_bits [value] Where the sample comes into the others inverted.
 * @param add_colour [flag] Add the colours.
 * @param add_alpha [flag] Add the alpha.
 * @param source_is_base [flag] Mix with the sample as read, not with d.
 * @retval 0 Done, by a simple call.
 * @retval 1 [untouched] Clipping left nothing, or the constant weight is 0.
 * @retval 2 Done.
 * @retval 513 Filled, by a simple call.
 */
TESSARO_API int32_t TESSARO_CALL BBIExpandChooseBlt(
    ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t dw, int32_t dh, int32_t sx,
    int32_t sy, int32_t sw, int32_t sh, float opacity, float saturation, uint32_t level_low,
    uint32_t level_high, uint32_t keep_mask, uint32_t mask, uint32_t colour, uint32_t invert_bits,
    int32_t use_source_alpha, int32_t add_colour, int32_t add_alpha, int32_t source_is_base);

/** @} */

/**
 * @defgroup interpolated Interpolated stretching
 * @brief Stretch a rectangle onto another with bilinear or cubic interpolation.
 *
 * **Bilinear.** Positions count in 1 / 4096 of a pixel from the edge of the clipped source rectangle.
 * Destination column j lies at `p = j * step + start`, and rows likewise:
 *
 * | | step | start |
 * |---|---|---|
 * | reducing, `dw < sw` | `(sw - 2) * 4096 / (dw - 1)` | 2048 |
 * | else | `(sw - 1) * 4096 / dw` | `(sw - 1) * 2048 / dw` |
 *
 * `p >> 12` is the left (upper) of two pixels, `p >> 4 & 255` the weight of the right (lower) one. The sample
 * is the mix down of the two mixes across.
 *
 * BBILinearBlt and BBILinearRender take the nearest sample instead, as the scaled blits do, when a clipped
 * size is below 2, when the two sizes are equal in both directions, and when one is more than 16 times the
 * other in either.
 *
 * Where these two interpolate, they take the rows of both images to lie 4 * width bytes apart, whatever the
 * pitch: give them images whose pitch is just that. With a larger pitch the rows meant and the rows used
 * differ. They return 1 when `4 * width * last` exceeds `max(pitch, 0) * (height - 1)` in either image, last
 * being the last row of the clipped rectangle.
 * @{
 */

/** Stretches with bilinear interpolation: the sample replaces d. */
TESSARO_API int32_t TESSARO_CALL BBILinearBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                              int32_t sw, int32_t sh);

/** What BBILinearRender does with a sample s, with the weight a = table[alpha of s]. */
enum TessaroRender {
  TESSARO_RENDER_MIX = 0,  /**< d = mix(d, s, a); any number but the others as well. */
  TESSARO_RENDER_ADD = 1,  /**< `d = min(d + (s * a >> 8), 255)` per channel, alpha included. */
  TESSARO_RENDER_TINT = 2, /**< The colours of s become mix(s, tint, table[alpha of tint]), then as mixing. */
  TESSARO_RENDER_TINT_ADD = 3, /**< The same tint, then as adding. */
};

/**
 * Brings each sample into d by a table of weights and a mode.
 *
 * @param[in] table [256 words] Weights of 0..256 by alpha, for example from BBIAlphaTableCreate. With larger
 *   ones channels run over into their neighbours: with `L = 0x00FF00FF` and sums modulo 2^32, mixing `d` and
 *   `s` gives `((d & L) * (256 - w) + (s & L) * w) >> 8 & L | ((d >> 8 & L) * (256 - w) + (s >> 8 & L) * w) &
 *   ~L`, the tint likewise, and adding the saturated sum of `d` and that with `d` and `256 - w` left out.
 *   Read once, before the first pixel is written.
 * @param mode [one of TessaroRender] What becomes of the sample.
 * @param smooth [flag] Interpolate; off: always the nearest sample.
 * @param tint [colour] The colour of the tint.
 */
TESSARO_API int32_t TESSARO_CALL BBILinearRender(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                 int32_t sw, int32_t sh, const uint32_t* table, int32_t mode,
                                                 int32_t smooth, uint32_t tint);

/**
 * Fills a table with the weights of an opacity.
 *
 * @param[out] table [256 words] The weights by alpha, 0..256. Needs no alignment.
 * @param opacity [opacity, 0..1] Below 0 and not a number count as 0, above 1 as 1.
 * @param by_alpha [flag] The alpha weights; off: the constant weight throughout.
 */
TESSARO_API void TESSARO_CALL BBIAlphaTableCreate(uint32_t* table, float opacity, int32_t by_alpha);

/**
 * Resizes all of `src` to all of `dst` with a cubic kernel.
 *
 * The corners of the images coincide: destination column x lies at x times the quotient of width - 1 of `src`
 * and of `dst`, or at 0 for a destination of one column; i is its integer part and t the rest. The four
 * columns from i - 1 on have the weights k(1 + t), k(t), k(1 - t), k(2 - t), where k(v) is
 * `1.0 - 2.0 * v * v + v * v * v` for `v < 1` and `4.0 - 8.0 * v + 5.0 * v * v - v * v * v` else; rows
 * likewise, all in double precision.
 *
 * A tap's weight is the product of its column's and its row's, rounded to single precision; below 0 it counts
 * as 0, so that negative lobes act only where two meet. Taps outside the source are 0x00000000. The 16 taps,
 * row by row from 0, are merged in pairs: (0, 1), (2, 3) .. (14, 15), then (0, 2), (4, 6), (8, 10), (12, 14),
 * then (0, 4), (8, 12), then (0, 8). To merge b into a, a becomes mix(a, b, `trunc(wb / (wa + wb) * 256)`),
 * formed in double precision and 0 where both weights are 0; the weight of a becomes wa + wb, rounded to
 * single precision.
 *
 * @retval 0 Done.
 * @retval 1 [untouched] An image has no pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBILinear(ImageRecord* dst, const ImageRecord* src);

/**
 * An experiment: the nearest sample, averaged with neighbours along a spiral.
 *
 * The sample v at source pixel (x, y) takes in its neighbours one after another, later ones weighing more:
 * `v = (v + p) >> 1` per channel for p at (x, y) plus
 *
 *     (1, 0) (0, -1) (-1, 0) (0, 1)   (1, -1) (-1, -1) (-1, 1) (1, 1)   (2, 0) (0, -2) (-2, 0) (0, 2)
 *     (2, -1) (-1, -2) (-2, 1) (1, 2)   (1, -2) (-2, -1) (-1, 2) (2, 1)
 *
 * Of these the first `min((sw / dw + sh / dh + 5) & ~3, 20)` take part, and only where they lie at `sx < x`,
 * `x < sw`, `sy < y` and `y < sh`: the clipped sizes serve as limits of coordinates. d becomes v. Rows of
 * `src` are taken to lie `pitch / 4 * 4` bytes apart.
 */
TESSARO_API int32_t TESSARO_CALL BBILinearBltTest(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                  int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                  int32_t sw, int32_t sh);

/** @} */

/**
 * @defgroup flips Depth, flips and straight runs
 * @brief Mix unscaled rectangles, let the nearer pixel win, and fill rows and columns.
 *
 * @param x, y [pixels] The first pixel of the run.
 * @param length [pixels] The length of the run, which is cut to the image.
 * @{
 */

/** Cross-fades with one opacity: d = mix(d, s, constant weight). */
TESSARO_API int32_t TESSARO_CALL BBIFlip(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                         int32_t cx, int32_t cy, int32_t sx, int32_t sy, float opacity);

/** Mixes by the alpha of the source: d = mix(d, s, alpha weight of s). */
TESSARO_API int32_t TESSARO_CALL BBIFlipBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                              float opacity);

/** Alpha as depth: s replaces d where the alpha of s is greater; on equal alpha d stays. */
TESSARO_API int32_t TESSARO_CALL BBIDepth(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                          int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** As BBIDepth, but d becomes `(d & keep_mask) | (s & ~keep_mask)`. */
TESSARO_API int32_t TESSARO_CALL BBIDepthMask(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                              uint32_t keep_mask);

/** Fills `length` pixels from (x, y) to the right. 1 when y lies outside the image or nothing is left. */
TESSARO_API int32_t TESSARO_CALL BBIFlipLineX(ImageRecord* image, int32_t x, int32_t y, int32_t length,
                                              uint32_t colour);

/**
 * Fills `length` pixels from (x, y) downward. 1 when x lies outside the image or nothing is left.
 *
 * From the first pixel drawn, rows are stepped by `pitch & ~3`: with a pitch that is no multiple of 4 the
 * line drifts to the left, by up to 3 bytes a row. It ends where it would begin below the lowest address of
 * the image.
 */
TESSARO_API int32_t TESSARO_CALL BBIFlipLineY(ImageRecord* image, int32_t x, int32_t y, int32_t length,
                                              uint32_t colour);

/** @} */

/**
 * @defgroup blurs Blur and one-axis scaling
 * @brief Filter an unscaled rectangle along its rows (U) or its columns (V).
 *
 * Nothing outside the clipped source rectangle is read. The four channels, alpha included, are filtered each
 * for itself, and means are truncated. n is the clipped length of a row (column), and pixels count from its
 * start.
 *
 * U filters finish one row after another, V filters one column after another. A source pixel is read once a
 * row (column), just before the first destination pixel that it counts for is written.
 *
 * @param radius [pixels, 1..127] How far the window reaches to either side. Lowered to `n / 2 - 1` and to
 *     127; below 1, given or lowered, the rectangle is copied as by BBIBlt.
 * @param num [count, 1..128] The numerator of the scale; above 128 counts as 128.
 * @param den [count, 1..128] The denominator, likewise.
 * @{
 */

/**
 * Box blur of rows: the mean of pixels max(i - radius, 0) to min(i + radius, n - 1).
 *
 * The window is cut at the ends, never padded. `dst` and `src` may be one image and one rectangle. The time
 * does not depend on the radius.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltUBlur(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t cx, int32_t cy, int32_t sx, int32_t sy, int32_t radius);

/** As BBIBltUBlur, along columns. */
TESSARO_API int32_t TESSARO_CALL BBIBltVBlur(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t cx, int32_t cy, int32_t sx, int32_t sy, int32_t radius);

/**
 * Box blur of rows for images that tile: the mean of pixels i - radius to i + radius, counted modulo n.
 *
 * The pixels at both ends are read a second time, in the order of the window: the last radius, all, and the
 * first radius pixels. So the destination must not overlap the source; if it does, what was written is
 * blurred again.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltUBlurLoop(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                                 int32_t radius);

/** As BBIBltUBlurLoop, along columns. */
TESSARO_API int32_t TESSARO_CALL BBIBltVBlurLoop(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                                 int32_t radius);

/**
 * Rescales rows by num / den within the same length, with a box filter.
 *
 * A source pixel counts as num units, a destination pixel is the mean of den units.
 *
 * - Shrinking (`num < den`) starts at the first pixel: destination pixel k is made of den units from k * den
 *   on, and unit u is source pixel `min(u / num, n - 1)`. The end of the row repeats the last pixel.
 * - Enlarging (and num = den) starts at the last pixel: destination pixel n - 1 - k is made of the same
 *   units, and unit u is source pixel `max(m - 1 - u / num, 0)` with `m = n * den / num`. What is left over
 *   at the start repeats pixel 0.
 *
 * So `dst` and `src` may be one image and one rectangle. `num` and `den` are lowered each for itself, and 256
 * / 512 is a copy: reduce the fraction first. Below 1, either returns 1.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltUScale(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                              int32_t num, int32_t den);

/** As BBIBltUScale, along columns. */
TESSARO_API int32_t TESSARO_CALL BBIBltVScale(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                              int32_t num, int32_t den);

/**
 * Halves a rectangle of 2 cx x 2 cy pixels of `src` to cx x cy: the mean of 2 x 2 pixels.
 *
 * Nothing is clipped: 1 unless both rectangles lie inside their images and `cx` and `cy` are at least 1.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltHalfSize(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** @} */

/**
 * @defgroup cutdown Colour reduction
 * @brief Ordered dithering, so that a later conversion to fewer bits shows no bands.
 *
 * Works on blue, green and red of a whole image in place; alpha stays. A byte c of 0 stays 0; any other meets
 * a threshold m that depends on the pixel's position in the image. Where m is 0, a byte other than 0 always
 * moves up a level.
 *
 * @retval 0 Done.
 * @retval 1 [untouched] The image has no pixels.
 * @{
 */

/**
 * Dithers for 5 bits a colour: c becomes `min((c & 248) + ((c & 7) < m ? 0 : 8), 255)`.
 *
 * m at row y % 4, column x % 4 of
 *
 *     0 4 1 5
 *     6 2 7 3
 *     1 5 0 4
 *     7 3 6 2
 */
TESSARO_API int32_t TESSARO_CALL BBIColorCutDown1555(ImageRecord* image);

/**
 * Dithers for 4 bits a colour: c becomes `min((c & 240) + ((c & 15) < m ? 0 : 16), 255)`.
 *
 * m at row y % 4, column x % 4 of
 *
 *      0  8  2 10
 *     12  4 14  6
 *      3 11  1  9
 *     15  7 13  5
 */
TESSARO_API int32_t TESSARO_CALL BBIColorCutDown4444(ImageRecord* image);

/**
 * Dithers for one bit a colour: c becomes `(c >> 2) < m ? 0 : 255`.
 *
 * m at row y % 8, column x % 8 of
 *
 *      3 11 23 31 24 12  4  0
 *     10 22 39 51 40 32 13  5
 *     21 38 50 59 52 41 33 14
 *     30 49 58 63 60 53 42 25
 *     29 48 57 62 61 54 43 26
 *     20 37 47 56 55 44 34 15
 *      9 19 36 46 45 35 16  6
 *      2  8 18 28 27 17  7  1
 */
TESSARO_API int32_t TESSARO_CALL BBIColorCutDown1111(ImageRecord* image);

/** @} */

/**
 * @defgroup choose Channel routing
 * @brief Build each pixel of an image from channels of another or of its own.
 *
 * Over the part that both images have, both anchored at (0, 0). All inputs of a pixel are read before it is
 * written.
 *
 * @param colour_from [flags of TessaroChoose] What the colours come from.
 * @param alpha_from [flags of TessaroChoose] What the alpha comes from.
 * @retval 0 Done.
 * @retval 1 [untouched] The images have no part in common.
 * @{
 */

/** What BBIChooseCA and its relatives build from; other bits count for nothing. */
enum TessaroChoose {
  TESSARO_CHOOSE_COLOUR = 0, /**< The colour: as colours, or as alpha its brightness. */
  TESSARO_CHOOSE_ALPHA = 1,  /**< The alpha: as colours a grey of it, or as alpha. */
  TESSARO_CHOOSE_DST = 2,    /**< Added: the pixel of `dst`; else that of `src`. */
};

/** Makes colours and alpha from colours or alpha; brightness is `(red + green + blue) / 3`. */
TESSARO_API int32_t TESSARO_CALL BBIChooseCA(ImageRecord* dst, const ImageRecord* src, int32_t colour_from,
                                             int32_t alpha_from);

/**
 * As BBIChooseCA; brightness is `trunc(green * 0.7154 + blue * 0.0721 + red * 0.2125)`, in double precision.
 */
TESSARO_API int32_t TESSARO_CALL BBIChooseCATR(ImageRecord* dst, const ImageRecord* src, int32_t colour_from,
                                               int32_t alpha_from);

/**
 * As BBIChooseCA; brightness is `trunc(green * green_weight + blue * blue_weight + red * red_weight)`, in
 * double precision.
 *
 * The low 8 bits of that integer are taken, so that 256 gives 0. A sum that fits no 32-bit integer, or is not
 * a number, gives 0.
 *
 * @param red_weight [factor] The share of red.
 * @param green_weight [factor] The share of green.
 * @param blue_weight [factor] The share of blue.
 */
TESSARO_API int32_t TESSARO_CALL BBIChooseCATS(ImageRecord* dst, const ImageRecord* src, int32_t colour_from,
                                               int32_t alpha_from, float red_weight, float green_weight,
                                               float blue_weight);

/** What a channel is copied from by BBIChooseRGBA; other bits count for nothing. */
enum TessaroFrom {
  TESSARO_FROM_RED = 0,   /**< The red. */
  TESSARO_FROM_GREEN = 1, /**< The green. */
  TESSARO_FROM_BLUE = 2,  /**< The blue. */
  TESSARO_FROM_ALPHA = 3, /**< The alpha. */
  TESSARO_FROM_DST = 4,   /**< Added: of the pixel of `dst`; else of that of `src`. */
};

/**
 * Copies each channel from one that is named.
 *
 * @param red_from [flags of TessaroFrom] What becomes red.
 * @param green_from [flags of TessaroFrom] What becomes green.
 * @param blue_from [flags of TessaroFrom] What becomes blue.
 * @param alpha_from [flags of TessaroFrom] What becomes alpha.
 */
TESSARO_API int32_t TESSARO_CALL BBIChooseRGBA(ImageRecord* dst, const ImageRecord* src, int32_t red_from,
                                               int32_t green_from, int32_t blue_from, int32_t alpha_from);

/** @} */

/**
 * @defgroup regions Region paint
 * @brief Clean up and colour areas of one colour.
 * @{
 */

/**
 * The operations of BBIPaintChoose. A key pixel equals `key` in all 32 bits; neighbours are the pixels left,
 * right, above and below, inside the image; grey is a pixel with equal red, green and blue, whatever its
 * alpha.
 */
enum TessaroPaint {
  TESSARO_PAINT_KEY = 0,      /**< Key pixels become `colour`. */
  TESSARO_PAINT_REST = 1,     /**< All others become `colour`. */
  TESSARO_PAINT_BORDERED = 2, /**< All others become `colour`, with a border on either side of the key. */
  TESSARO_PAINT_KEY_RIM = 3,  /**< Key pixels with a neighbour that is not key become `colour`. */
  TESSARO_PAINT_OUTLINE = 4,  /**< Others with a neighbour that is key become `colour`. */
  TESSARO_PAINT_SMALL_REGIONS = 5, /**< Connected regions of few key pixels become `colour`. */
  TESSARO_PAINT_MAJORITY = 6,      /**< Key pixels take the commonest of their neighbours' colours. */
  TESSARO_PAINT_GREY = 7,          /**< Grey pixels take the commonest of their neighbours' colours. */
  TESSARO_PAINT_COLOURED = 8,      /**< Pixels that are not grey become `colour`. */
  TESSARO_PAINT_AVERAGE = 9,       /**< Key pixels take the average of their neighbours. */
  TESSARO_PAINT_MASKED = 10,       /**< Pixels p with `(p & extra) == key` become `colour`. */
};

/**
 * Runs one of eleven operations on a whole image in place. What the arguments are depends on the operation:
 *
 * | `op` | `colour` | `key` | `extra` | `outer` | result |
 * |---|---|---|---|---|---|
 * | 0, 1 | new colour | key | | | 0 |
 * | 2 | fill colour | key | border on the others' side | border on the key's side | 0 |
 * | 3, 4 | new colour | key | | | 0 |
 * | 5 | new colour | key | most pixels of a region, signed | | regions painted |
 * | 6, 9 | colour that does not count | key | | | key pixels left |
 * | 7 | darkest grey, low byte | lightest grey, low byte | | | pixels left |
 * | 8 | new colour | | | | pixels painted |
 * | 10 | new colour | bits wanted | mask | | 0 |
 *
 * 2, 3 and 4 ask what the neighbours were before the call. In 2, others with a key neighbour become `extra`
 * instead of `colour`, key pixels with another neighbour `outer`.
 *
 * 6, 7 and 9 visit the pixels in four sweeps, row by row: even columns of even rows, odd columns of even
 * rows, even columns of odd rows, odd columns of odd rows. A pixel that was filled is a neighbour with its
 * new colour from then on. A pixel without neighbours that count stays and is counted.
 *
 * - In 6 and 9 neighbours count that are neither key nor `colour`. One pass is made.
 * - In 7 grey pixels whose blue lies from the darkest to the lightest are to be filled, and neighbours count
 *   that are not grey or were filled. Passes repeat until no pixel is left or one fills nothing.
 * - Commonest: the earlier of left, right, above, below on a tie.
 * - Average: per channel, alpha included, from the sum of those that count: of one the sum, of two
 *   `sum >> 1`, of three `(sum + 3) * 85 >> 8`, of four `(sum + 2) >> 2`.
 *
 * Any other operation, an image without pixels and a lack of working memory change nothing and return 0.
 *
 * @param op [one of TessaroPaint] The operation.
 * @param colour [colour] A colour, see the table.
 * @param key [colour] The key, see the table.
 * @param extra [value] Another colour, a number or a mask, see the table.
 * @param outer [colour] Another colour, see the table.
 * @return [count] A number of pixels or regions, see the table.
 */
TESSARO_API int32_t TESSARO_CALL BBIPaintChoose(ImageRecord* image, uint32_t op, uint32_t colour,
                                                uint32_t key, uint32_t extra, uint32_t outer);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
