/* Pixel operations: unscaled blits, pixel formats, whole-image operations, tone and levels. */
#ifndef TESSARO_PIXEL_H
#define TESSARO_PIXEL_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Unscaled blits
 * ------------------------------------------------------------------------------------------------
 *
 * Combine a cx x cy rectangle of src at (sx, sy) into dst at (dx, dy), in pixels. The rectangle is clipped
 * against both images; 1 is returned when nothing is left of it, otherwise 0. Rules work on the four bytes of
 * a pixel, alpha included, each for itself; d is the destination's byte or word, s the source's.
 *
 * dst and src may be one image. Rows go top to bottom and pixels left to right, without a copy: where the
 * areas overlap, later pixels see what earlier ones wrote. */

/* s */
TESSARO_API int32_t TESSARO_CALL BBIBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                        int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* One image: (d ^ flip) & mask | colour & ~mask, on the whole word; mask 0 fills with colour. */
TESSARO_API int32_t TESSARO_CALL BBIBltColor(ImageRecord* dst, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
                                             uint32_t mask, uint32_t flip, uint32_t colour);

/* One image: (d * (256 - k) + c * k) >> 8 with k = trunc(factor * 256); factor 1 and above fills. A factor
 * that is negative or not a number returns 1 and changes nothing. */
TESSARO_API int32_t TESSARO_CALL BBIBltColorBlend(ImageRecord* dst, int32_t dx, int32_t dy, int32_t cx,
                                                  int32_t cy, uint32_t colour, float factor);

/* Combines alphas and keeps the destination's colours. a = alpha of s; then, each if its flag is on and in
 * this order: a = alpha of d - a; a = 255 - a; a = min(a, alpha of d); a = max(a, alpha of d). The low eight
 * bits of a are stored: what lies outside 0..255 wraps. With the last two on, the alpha of d stays. */
TESSARO_API int32_t TESSARO_CALL BBIBltAlpha(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                             int32_t max_with_dest, int32_t min_with_dest, int32_t invert,
                                             int32_t subtract_from_dest);

/* min(d + s, 255) */
TESSARO_API int32_t TESSARO_CALL BBIBltAdd(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* (d * s + 255) >> 8 */
TESSARO_API int32_t TESSARO_CALL BBIBltMul(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* max(d - s, 0) */
TESSARO_API int32_t TESSARO_CALL BBIBltSub(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* |d - s|; despite the name no exclusive-or. */
TESSARO_API int32_t TESSARO_CALL BBIBltXor(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* (d - s + 128) modulo 256; BBIBltXor3 with the same source undoes it. */
TESSARO_API int32_t TESSARO_CALL BBIBltXor2(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                            int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* (d + s - 128) modulo 256 */
TESSARO_API int32_t TESSARO_CALL BBIBltXor3(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                            int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* ~s */
TESSARO_API int32_t TESSARO_CALL BBIBltNot(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* min(d, s), max(d, s) */
TESSARO_API int32_t TESSARO_CALL BBIBltMin(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);
TESSARO_API int32_t TESSARO_CALL BBIBltMax(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* s where it differs from the key, else d. The key is the word at column 0, row 0 of the source image,
 * wherever the rectangle lies, read once before the first pixel is written. */
TESSARO_API int32_t TESSARO_CALL BBIBltKeying(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* Cross-fade by level: (s * level + d * (256 - level)) >> 8 for level 1..254; 0 and below changes nothing
 * (result 0); 255 and above is BBIBlt. With keyed on, pixels that equal the key (as for BBIBltKeying) keep d.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltKeyingFX(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                                int32_t keyed, int32_t level);

/* Mixes s into d by its own alpha a. With wide off: a = 0 keeps d, a = 255 gives s, between them
 * (s * a + d * (255 - a)) >> 8, which darkens a little. With wide on: (d * (256 - w) + s * w) >> 8 with
 * w = floor(a * 256 / 255), where a byte may be greater by one. */
TESSARO_API int32_t TESSARO_CALL BBIBltBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t cx, int32_t cy, int32_t sx, int32_t sy, int32_t wide);

/* (s >> 1) + (d >> 1): two odd bytes lose one. */
TESSARO_API int32_t TESSARO_CALL BBIBltHalfBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* All four bytes become the alpha of s. */
TESSARO_API int32_t TESSARO_CALL BBIBltShiftAlpha(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                  int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* Marks: where s as an unsigned word is above 128, the pixel becomes (~d & 0x007FC0C0) | 0x00800000. */
TESSARO_API int32_t TESSARO_CALL BBIBltShiftBlock(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                  int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* ---- Pixel formats
 * ----------------------------------------------------------------------------------------------
 *
 * Between 32-bit words 0xAARRGGBB and packed layouts. 16-bit words are little-endian. A code names a format:
 *
 *   code  bytes  packed as                                                       back to a word
 *   8888  4      the word                                                        the word
 *    888  3      blue, green, red                                                alpha 0
 *    565  2      (R >> 3) << 11 | (G >> 2) << 5 | B >> 3                         alpha 0
 *    555  2      (R >> 3) << 10 | (G >> 3) << 5 | B >> 3                         alpha 0, bit 15 ignored
 *   1555  2      the same, and bit 15 is the top bit of alpha                    alpha 0x80 or 0
 *   4444  2      (A >> 4) << 12 | (R >> 4) << 8 | (G >> 4) << 4 | B >> 4
 *
 * Packing drops low bits without rounding; unpacking leaves them 0, so that white comes back from 565 as
 * 0x00F8FCF8.
 *
 * Buffers need no alignment, and exactly the bytes of count pixels are read and written. They may overlap:
 * results are those of one pixel after another. */

/* Fill all of an image from a bottom-up bitmap: row y (0 = top) comes from bits + (height - 1 - y) * stride;
 * stride, in bytes, may be anything, zero and negative included. An image without pixels is left alone. Always
 * 0.
 *   from1: the palette's two words for 0 and 1, eight pixels a byte, the first in the most significant bit;
 *          every row starts with a new byte
 *   from8: a palette of 256 words, a byte a pixel
 *   from24: blue, green, red; alpha becomes 0
 *   from32: whole words */
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from1(ImageRecord* image, const void* bits,
                                                 const uint32_t* palette, int32_t stride);
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from8(ImageRecord* image, const void* bits,
                                                 const uint32_t* palette, int32_t stride);
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from24(ImageRecord* image, const void* bits, int32_t stride);
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from32(ImageRecord* image, const void* bits, int32_t stride);

/* Unpacks count pixels of a format. Always 0; an unknown format or a count below 1 does nothing. */
TESSARO_API int32_t TESSARO_CALL BBIBltToBBIGet(uint32_t* dst, const void* src, int32_t count,
                                                int32_t format);

/* Pack count pixels. As444 packs 4444. Always 0; a count below 1 does nothing. */
TESSARO_API int32_t TESSARO_CALL BBIBltTo24As888(void* dst, const uint32_t* src, int32_t count);
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As444(void* dst, const uint32_t* src, int32_t count);
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As565(void* dst, const uint32_t* src, int32_t count);
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As555(void* dst, const uint32_t* src, int32_t count);
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As1555(void* dst, const uint32_t* src, int32_t count);

/* One byte a pixel: the blue byte (no luminance is formed; a grey picture gives its grey), or the alpha. */
TESSARO_API int32_t TESSARO_CALL BBIBltTo8AsGray(void* dst, const uint32_t* src, int32_t count);
TESSARO_API int32_t TESSARO_CALL BBIBltTo8AsAlpha(void* dst, const uint32_t* src, int32_t count);

/* One bit a pixel, 1 where the blue byte is at least 128; the first of eight in bit 7. The unused low bits of
 * the last byte are 0. */
TESSARO_API int32_t TESSARO_CALL BBIBltTo1(void* dst, const uint32_t* src, int32_t count);

/* Blend, then pack. k = trunc(factor * 256) with factor kept within 0..1, not a number counting as 0; each
 * byte, alpha included, becomes (p * w + q * (256 - w)) >> 8. dst has the size that the format needs.
 *   BBIBltToX    source with weight k, colour with the rest; always 0, an unknown format writes nothing
 *   BBIBltToXF   b with weight k, a with the rest; an unknown format returns 1, whatever the count
 *   BBIBltToF    the same with a saturation and lookup tables before it, in this order:
 *     saturation, unless exactly 1: kept within 0..256 (not a number counts as 0), m = trunc(saturation * 1024);
 *       each colour c becomes (c * m >> 10) + ((B + G + R) * ((1024 - m) / 3) >> 10), kept within 0..255;
 *       0 gives a grey a little below the mean
 *     tables, where use_table is not 0: 768 bytes, 256 each for blue, green and red
 *     the blend with colour as in BBIBltToX, the packing; an unknown format returns 1, whatever the count */
TESSARO_API int32_t TESSARO_CALL BBIBltToX(void* dst, const uint32_t* src, int32_t count, int32_t format,
                                           uint32_t colour, float factor);
TESSARO_API int32_t TESSARO_CALL BBIBltToXF(void* dst, const uint32_t* a, const uint32_t* b, int32_t count,
                                            int32_t format, float factor);
TESSARO_API int32_t TESSARO_CALL BBIBltToF(void* dst, const uint32_t* src, int32_t count, int32_t format,
                                           uint32_t colour, float factor, float saturation, int32_t use_table,
                                           const void* table);

/* ---- Whole-image operations
 * -------------------------------------------------------------------------------------
 *
 * Colour components are kept within 0..255. Operations that change a whole image return 0, or 1 for an image
 * whose width or height is below 1. */

/* Compares two images, or tests the first. 0: the test holds for every pixel (also where there is none); 1: it
 * fails, or the sizes differ, in every mode; 2: unknown mode, for images with rows.
 *   0  all 32 bits equal          4  alpha of a is 0
 *   1  colours equal              5  alpha of a is 255
 *   2  alphas equal               6  a is only black (0x000000) and white (0xFFFFFF), alpha aside
 *                                 7  a is only grey: blue = green = red */
TESSARO_API int32_t TESSARO_CALL BBICompare(const ImageRecord* a, const ImageRecord* b, int32_t mode);

/* Counts pixels that differ under the mask and of which at least one of the four masked bytes differs by no
 * more than the tolerance (kept within 1..255). Bytes that are equal, or masked away, count as close: equal
 * pixels are not counted, pixels that differ in every byte by more than the tolerance are not counted either.
 * -1 if the sizes differ. */
TESSARO_API int32_t TESSARO_CALL BBICompareAny(const ImageRecord* a, const ImageRecord* b, uint32_t mask,
                                               int32_t tolerance);

/* The number of different colours, alpha aside. 0 if flag is not 0, or if 2 MiB of working memory cannot be
 * had. */
TESSARO_API int32_t TESSARO_CALL BBIColorCount(const ImageRecord* image, int32_t flag);

/* Collects up to max (0..256, otherwise 0 is returned and nothing done) colours in order of appearance, with
 * alpha 0, into the palette, and replaces every pixel's alpha by its colour's index there; 0 for a colour that
 * found no room. Returns the number of colours collected plus the number of pixels whose colour found none, so
 * that a result above max tells that the palette was too small. */
TESSARO_API int32_t TESSARO_CALL BBIColorPalette(ImageRecord* image, uint32_t* palette, int32_t max);

/* The smallest rectangle around all content, that is pixels with (p & mask) != key. Without any: 0, 0, 1, 1.
 * A flag other than 0 returns 1 and writes nothing. */
TESSARO_API int32_t TESSARO_CALL BBITrim(const ImageRecord* image, int32_t flag, uint32_t mask, uint32_t key,
                                         int32_t* left, int32_t* top, int32_t* width, int32_t* height);

/* Fill an image; keep its alpha; keep the bits that the mask has set. */
TESSARO_API int32_t TESSARO_CALL BBIClear(ImageRecord* image, int32_t red, int32_t green, int32_t blue,
                                          int32_t alpha);
TESSARO_API int32_t TESSARO_CALL BBIClearRGB(ImageRecord* image, int32_t red, int32_t green, int32_t blue);
TESSARO_API int32_t TESSARO_CALL BBIClearMask(ImageRecord* image, int32_t red, int32_t green, int32_t blue,
                                              int32_t alpha, uint32_t mask);

/* Mirror in place: left to right, top to bottom. */
TESSARO_API int32_t TESSARO_CALL BBIMirror(ImageRecord* image);
TESSARO_API int32_t TESSARO_CALL BBIVMirror(ImageRecord* image);

/* Turns src into dst: mode 0 a quarter clockwise, 1 a half, 2 a quarter counter-clockwise. Returns 1 if the
 * size of dst is not that of src, with width and height exchanged for a quarter; any other mode returns 0
 * and does nothing. The images must not share pixels: what dst holds afterwards is undefined if they do. */
TESSARO_API int32_t TESSARO_CALL BBIRotation(ImageRecord* dst, const ImageRecord* src, int32_t mode);

/* Alpha becomes 0 for pixels of the key colour (alphas of key and pixel aside) and 255 for all others. */
TESSARO_API int32_t TESSARO_CALL BBIKeying(ImageRecord* image, uint32_t key);

/* Gives pixels with alpha 0 the mean colour of those of their four neighbours whose alpha is not 0, truncated;
 * alpha stays 0. Pixels without such a neighbour stay. Keeps a keyed picture's edges clean when it is scaled. */
TESSARO_API int32_t TESSARO_CALL BBIKeyingFilter(ImageRecord* image);

/* Does nothing; 0. */
TESSARO_API int32_t TESSARO_CALL BBIAntiAreas(int32_t a, int32_t b, int32_t c);

/* Flood fill: the pixel at (x, y) and all that are connected to it through their four neighbours and equal it
 * in all 32 bits take the colour. Writes the rectangle filled, both ends included. Returns 1, and touches
 * neither image nor outputs, if (x, y) lies outside, has the colour already, or working memory (at most three
 * bytes a pixel, of which only what the fill needs is touched) cannot be had. */
TESSARO_API int32_t TESSARO_CALL BBIPaint(ImageRecord* image, int32_t x, int32_t y, uint32_t colour,
                                          int32_t* left, int32_t* top, int32_t* right, int32_t* bottom);

/* ---- Tone and levels
 * --------------------------------------------------------------------------------------------
 *
 * The three blits clip and walk as the unscaled blits do, and return 1 when nothing is left. */

/* Gives s the brightness of d: delta = (B + G + R + 1) / 3 of d less that of s; each colour is s + delta, kept
 * within 0..255. Alpha stays that of d. */
TESSARO_API int32_t TESSARO_CALL BBIBltTone(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                            int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/* Mixes s into d the more, the closer the two colours are at equal brightness. With the brightness
 * (B + G + R) / 3, e = d - s + brightness of s - brightness of d for each colour and
 * distance = trunc(sqrt(the sum of their squares)), the weight is w = trunc(256 - distance * factor) in double
 * precision, kept within 0..256; every byte, alpha included, becomes (d * (256 - w) + s * w) >> 8. factor 0
 * and negative factors copy. A weight that is not a number counts as 0. */
TESSARO_API int32_t TESSARO_CALL BBIBltToneWB(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                              float factor);

/* Source-over onto a destination that may itself be partly transparent. The first of these that applies: where
 * s has alpha 0, d stays; where s has alpha 255 or d has alpha 0, s replaces it, whatever the opacity; else the
 * colours become (d * (256 - w) + s * w) >> 8 with w = trunc(alpha of s * opacity * 256 / 255) and the alpha
 * a + (255 - a) * alpha of s / 255 with a = alpha of d. opacity above 1 counts as 1; a negative one, or not a
 * number, returns 1. */
TESSARO_API int32_t TESSARO_CALL BBIBltTrueBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                                 float opacity);

/* Stretch the levels of a whole image in place, as BBIExpandChooseBlt with bounds does. The low bound of a
 * channel is the first level from 0 up at which more than threshold pixels lie at or below it (0 if there is
 * none), the high bound the same from 255 down (255 if there is none); a negative threshold gives 0 and 255.
 * Return 1 for an image without pixels, else 0. With Bl, Gl, Rl and Bh, Gh, Rh the bounds of blue, green and
 * red, the channels are stretched
 *             blue from..to                  green from..to                 red from..to
 *   RGB       Rl..Rh                         Gl..Gh                         Bl..Bh
 *   RGBRev    (Gl + Rl)/2..(Gh + Rh)/2       (Bl + Rl)/2..(Bh + Rh)/2       (Bl + Gl)/2..(Bh + Gh)/2
 *   RGBMul    (Gl + Rl)/8..Bh                (Bl + Rl)/8..Gh                (Bl + Gl)/8..Rh
 *   WB        L..H                           L..H                           L..H
 * RGB crosses blue and red; a picture whose channels have the same histogram does not show it. WB measures L
 * and H in one histogram of all three bytes of every pixel, three counts a pixel. */
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelRGB(ImageRecord* image, int32_t threshold);
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelRGBRev(ImageRecord* image, int32_t threshold);
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelRGBMul(ImageRecord* image, int32_t threshold);
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelWB(ImageRecord* image, int32_t threshold);

#ifdef __cplusplus
}
#endif

#endif
