/**
 * @file
 * @brief Pixel operations: unscaled blits, pixel formats, whole-image operations, tone and levels.
 */
#ifndef TESSARO_PIXEL_H
#define TESSARO_PIXEL_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup blits Unscaled blits
 * @brief Combine a rectangle of one image with one of the same size in another, pixel by pixel.
 *
 * Rules work on the four bytes of a pixel, alpha included, each for itself, unless they say otherwise; `d` is
 * the destination's byte or word, `s` the source's. A mix of `d` and `s` with a weight `w` of 0 to 256 is
 * `(d * (256 - w) + s * w) >> 8`.
 *
 * **Clipping.** The rectangle is clipped against `dst` first, then against `src`. Each clip cuts left, right,
 * top and bottom: what the left or the top edge cuts off shortens the size and moves the rectangle's position
 * in the other image by as much; what the right or the bottom edge cuts off only shortens the size. So (-3,
 * 0) of `dst` for (5, 0) of `src` becomes (0, 0) for (8, 0), three columns narrower.
 *
 * `dst` and `src` may be one image, and areas may overlap: rows go top to bottom and pixels left to right
 * without a copy, so later pixels see what earlier ones wrote.
 *
 * @param[in,out] dst [image] The image that is changed.
 * @param[in] src [image] The image that is read.
 * @param dx, dy [pixels] Left column and top row of the rectangle in `dst`.
 * @param cx, cy [pixels] Width and height of the rectangle.
 * @param sx, sy [pixels] Left column and top row of the rectangle in `src`.
 * @param colour [colour] A colour.
 * @retval 0 Done.
 * @retval 1 [untouched] Clipping left nothing.
 * @{
 */

/** Copies: `s`. */
TESSARO_API int32_t TESSARO_CALL BBIBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                        int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/**
 * Fills with a colour, all bits of it or some: `((d ^ invert_bits) & mask) | (colour & ~mask)`.
 *
 * A mask of 0 fills; one of 0xFFFFFFFF only inverts.
 *
 * @param mask [value] Bits that the image keeps.
 * @param invert_bits [value] Bits that are inverted first; those that `mask` has not set do not show.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltColor(ImageRecord* dst, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
                                             uint32_t mask, uint32_t invert_bits, uint32_t colour);

/**
 * Mixes a colour into a rectangle, with the weight `trunc(factor * 256)`.
 *
 * @param factor [factor, 0..1] How much of the colour: 1 and above fill.
 * @retval 0 Done.
 * @retval 1 [untouched] Clipping left nothing, or the factor is negative or not a number.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltColorBlend(ImageRecord* dst, int32_t dx, int32_t dy, int32_t cx,
                                                  int32_t cy, uint32_t colour, float factor);

/**
 * Combines alphas and keeps the colours of `dst`.
 *
 * With `da` the alpha of `d` and `a` that of `s`, these act if their flags are on, in this order, the reverse
 * of that of the arguments:
 *
 * 1. `subtract_from_dest`: `a = da - a`
 * 2. `invert`: `a = 255 - a`
 * 3. `min_with_dest`: `a = min(a, da)`
 * 4. `max_with_dest`: `a = max(a, da)`
 *
 * The low eight bits of `a` are stored: what lies outside 0 to 255 wraps (10 - 20 gives 246). With the last
 * two on `da` stays.
 *
 * @param max_with_dest [flag] Step 4.
 * @param min_with_dest [flag] Step 3.
 * @param invert [flag] Step 2.
 * @param subtract_from_dest [flag] Step 1.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltAlpha(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                             int32_t max_with_dest, int32_t min_with_dest, int32_t invert,
                                             int32_t subtract_from_dest);

/** Adds: `min(d + s, 255)`. */
TESSARO_API int32_t TESSARO_CALL BBIBltAdd(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Multiplies: `(d * s + 255) >> 8`. */
TESSARO_API int32_t TESSARO_CALL BBIBltMul(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Subtracts: `max(d - s, 0)`. */
TESSARO_API int32_t TESSARO_CALL BBIBltSub(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Takes the difference: `abs(d - s)`, despite the name no exclusive-or. */
TESSARO_API int32_t TESSARO_CALL BBIBltXor(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Takes the signed difference: `(d - s + 128) & 255`, which `BBIBltXor3` with the same source undoes. */
TESSARO_API int32_t TESSARO_CALL BBIBltXor2(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                            int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Adds a signed difference: `(d + s - 128) & 255`. */
TESSARO_API int32_t TESSARO_CALL BBIBltXor3(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                            int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Copies inverted: `255 - s`, alpha too. */
TESSARO_API int32_t TESSARO_CALL BBIBltNot(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Takes the darker: `min(d, s)`. */
TESSARO_API int32_t TESSARO_CALL BBIBltMin(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Takes the brighter: `max(d, s)`. */
TESSARO_API int32_t TESSARO_CALL BBIBltMax(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                           int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/**
 * Copies all pixels but those that equal a key.
 *
 * The key is the word at column 0, row 0 of the source image, wherever the rectangle lies, read once before
 * the first pixel is written. Whole words are compared, alpha included.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltKeying(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/**
 * Cross-fades: a mix with the weight `level`, of all pixels or of all but those that equal a key.
 *
 * At 255 and above it is `BBIBlt`, with `keyed` on `BBIBltKeying`. At 0 and below nothing changes; the result
 * is 0, or 1 where clipping leaves nothing.
 *
 * @param keyed [flag] Whether pixels that equal the key of `BBIBltKeying` are left out.
 * @param level [level, 0..255] How much of the source.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltKeyingFX(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                                int32_t keyed, int32_t level);

/**
 * Mixes a source in by its own alpha `a`, in one of two ways.
 *
 * - `whole` off: 0 keeps `d`, 255 gives `s`, between them `(s * a + d * (255 - a)) >> 8`, which darkens a
 *   little.
 * - `whole` on: a mix with the weight `a * 256 / 255`, which does not; a byte may be greater by one or two.
 *
 * @param whole [flag] Whether weights add up to 256.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                             int32_t cx, int32_t cy, int32_t sx, int32_t sy, int32_t whole);

/** Mixes half and half: `(s >> 1) + (d >> 1)`, where two odd bytes lose one. */
TESSARO_API int32_t TESSARO_CALL BBIBltHalfBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Shows alpha as grey: all four bytes become the alpha of `s`. */
TESSARO_API int32_t TESSARO_CALL BBIBltShiftAlpha(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                  int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** Marks pixels: where the whole word `s` is above 128, `(~d & 0x007FC0C0) | 0x00800000`, elsewhere `d`. */
TESSARO_API int32_t TESSARO_CALL BBIBltShiftBlock(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                  int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/** @} */

/**
 * @defgroup formats Pixel formats
 * @brief Convert between 32-bit words and the packed layouts of bitmaps, textures and screens.
 *
 * Packing drops low bits without rounding; unpacking leaves them 0, so that white comes back from 565 as
 * 0x00F8FCF8. 16-bit words are little-endian.
 *
 * Memory needs no alignment. Exactly the bytes of `count` pixels are read and written; a count below 1 does
 * nothing. Buffers may overlap, tables too: each pixel is read before it is written, and results are those of
 * one after another.
 *
 * The functions that blend mix each byte, alpha included: `(p * k + q * (256 - k)) >> 8` with
 * `k = trunc(factor * 256)`.
 *
 * @param[in,out] image [image] The image that is filled.
 * @param[in] src [count words] The pixels.
 * @param count [pixels, trusted] How many.
 * @param format [one of TessaroFormat] How the pixels are packed.
 * @param factor [factor, 0..1] The weight of the pixel: negative, or not a number, counts as 0, above 1 as 1.
 * @param colour [colour] What is mixed in where the factor is below 1.
 * @param stride [bytes, trusted] From the start of a row to that of the row above it; may be 0 or negative.
 * @retval 0 Always.
 * @{
 */

/** Pixel formats, with A, R, G and B the bytes of a pixel. */
enum TessaroFormat {
  /** 4 bytes: the word 0xAARRGGBB. */
  TESSARO_FORMAT_8888 = 8888,
  /** 3 bytes: blue, green, red. Unpacked with alpha 0. */
  TESSARO_FORMAT_888 = 888,
  /** 2 bytes: `R >> 3 << 11 | G >> 2 << 5 | B >> 3`. Unpacked with alpha 0. */
  TESSARO_FORMAT_565 = 565,
  /** 2 bytes: `R >> 3 << 10 | G >> 3 << 5 | B >> 3`. Unpacked with alpha 0, whatever bit 15 is. */
  TESSARO_FORMAT_555 = 555,
  /** 2 bytes: `A >> 7 << 15`, the rest as in 555. Unpacked with alpha 0x80 or 0. */
  TESSARO_FORMAT_1555 = 1555,
  /**
   * 2 bytes: `A >> 4 << 12 | R >> 4 << 8 | G >> 4 << 4 | B >> 4`. Unpacked with each four bits on top of
   * their byte.
   */
  TESSARO_FORMAT_4444 = 4444
};

/**
 * Fills an image from a bottom-up bitmap of one bit a pixel.
 *
 * Row y of the image (0 is the top) comes from `bits + (height - 1 - y) * stride`, here and in the three
 * functions below. An image without pixels is left alone. Each row starts with a new byte, the first of eight
 * pixels in its highest bit; a byte is read once for its eight pixels.
 *
 * @param[in] bits [abs(stride) * (image.height - 1) + ceil_div(image.width, 8) bytes at min(0, stride *
 *   (image.height - 1)) bytes] The bottom row.
 * @param[in] palette [2 words] The colours of a 0 and a 1.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from1(ImageRecord* image, const void* bits,
                                                 const uint32_t* palette, int32_t stride);

/**
 * Fills an image from a bottom-up bitmap of one byte a pixel, the number of a colour.
 *
 * @param[in] bits [abs(stride) * (image.height - 1) + image.width bytes at min(0, stride * (image.height -
 *   1)) bytes] The bottom row.
 * @param[in] palette [256 words] The colours.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from8(ImageRecord* image, const void* bits,
                                                 const uint32_t* palette, int32_t stride);

/**
 * Fills an image from a bottom-up bitmap of blue, green and red; alpha becomes 0.
 *
 * @param[in] bits [abs(stride) * (image.height - 1) + 3 * image.width bytes at min(0, stride * (image.height
 * - 1)) bytes] The bottom row.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from24(ImageRecord* image, const void* bits, int32_t stride);

/**
 * Fills an image from a bottom-up bitmap of whole words, alpha included.
 *
 * @param[in] bits [abs(stride) * (image.height - 1) + 4 * image.width bytes at min(0, stride * (image.height
 * - 1)) bytes] The bottom row.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo32from32(ImageRecord* image, const void* bits, int32_t stride);

/**
 * Unpacks pixels of a format.
 *
 * @param[out] dst [count words] The pixels.
 * @param[in] src [count * bytes_of(format) bytes] The packed pixels.
 * @retval 0 Always; an unknown format does nothing.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltToBBIGet(uint32_t* dst, const void* src, int32_t count,
                                                int32_t format);

/**
 * Packs pixels as 888.
 * @param[out] dst [3 * count bytes] The packed pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo24As888(void* dst, const uint32_t* src, int32_t count);

/**
 * Packs pixels as 4444, alpha included.
 * @param[out] dst [count halfwords] The packed pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As444(void* dst, const uint32_t* src, int32_t count);

/**
 * Packs pixels as 565.
 * @param[out] dst [count halfwords] The packed pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As565(void* dst, const uint32_t* src, int32_t count);

/**
 * Packs pixels as 555.
 * @param[out] dst [count halfwords] The packed pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As555(void* dst, const uint32_t* src, int32_t count);

/**
 * Packs pixels as 1555.
 * @param[out] dst [count halfwords] The packed pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo16As1555(void* dst, const uint32_t* src, int32_t count);

/**
 * Takes the blue byte of each pixel: the grey of a grey picture; no luminance is formed.
 * @param[out] dst [count bytes] A byte a pixel.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo8AsGray(void* dst, const uint32_t* src, int32_t count);

/**
 * Takes the alpha of each pixel.
 * @param[out] dst [count bytes] A byte a pixel.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo8AsAlpha(void* dst, const uint32_t* src, int32_t count);

/**
 * Packs one bit a pixel, 1 where the blue byte is at least 128.
 *
 * A byte is written when its pixels have been read, the first of eight in its highest bit; bits of the last
 * byte that belong to no pixel are 0.
 *
 * @param[out] dst [ceil_div(count, 8) bytes] The bits.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTo1(void* dst, const uint32_t* src, int32_t count);

/**
 * Mixes pixels with a colour and packs them: factor 1 keeps the pixel, 0 gives the colour.
 *
 * @param[out] dst [count * bytes_of(format) bytes] The packed pixels.
 * @retval 0 Always; an unknown format does nothing.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltToX(void* dst, const uint32_t* src, int32_t count, int32_t format,
                                           uint32_t colour, float factor);

/**
 * Mixes two runs of pixels and packs the result: factor 0 gives those of `a`, 1 those of `b`.
 *
 * @param[out] dst [count * bytes_of(format) bytes] The packed pixels.
 * @param[in] a [count words] The pixels with the weight `256 - k`.
 * @param[in] b [count words] The pixels with the weight `k`.
 * @param factor [factor, 0..1] How much of `b`: negative, or not a number, counts as 0, above 1 as 1.
 * @retval 0 Done.
 * @retval 1 [untouched] The format is unknown, whatever the count.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltToXF(void* dst, const uint32_t* a, const uint32_t* b, int32_t count,
                                            int32_t format, float factor);

/**
 * Changes saturation, looks levels up, mixes with a colour and packs.
 *
 * Each pixel in this order, its alpha untouched by the first two steps:
 *
 * 1. Unless the saturation is exactly 1: with `m = trunc(saturation * 1024)` and `t = (1024 - m) / 3`,
 *   truncated toward zero, each colour byte c becomes `(c * m >> 10) + ((B + G + R) * t >> 10)`, kept within
 *   0 to 255. At 0 that is a grey a little below the mean.
 * 2. With `use_table` on: B, G and R become `table[B]`, `table[256 + G]` and `table[512 + R]`.
 * 3. The mix with the colour, and the packing, as by `BBIBltToX`.
 *
 * @param[out] dst [count * bytes_of(format) bytes] The packed pixels.
 * @param saturation [factor, 0..256] Negative, or not a number, counts as 0, above 256 as 256.
 * @param use_table [flag] Whether levels are looked up.
 * @param[in] table [768 bytes] Tables for blue, green and red, 256 bytes each; only read with `use_table` on.
 * @retval 0 Done.
 * @retval 1 [untouched] The format is unknown, whatever the count.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltToF(void* dst, const uint32_t* src, int32_t count, int32_t format,
                                           uint32_t colour, float factor, float saturation, int32_t use_table,
                                           const void* table);

/** @} */

/**
 * @defgroup images Whole images
 * @brief Compare, measure, clear, mirror, turn, key and fill an image.
 *
 * Colours that are compared without their alphas are the low 24 bits of a pixel.
 *
 * @param[in,out] image [image] The image that is changed.
 * @param[in] a, b [image] The images that are compared.
 * @param red, green, blue, alpha [level, 0..255] The bytes of a colour; below 0 counts as 0, above 255 as
 *   255.
 * @param[out] left [1 words] The first column.
 * @param[out] top [1 words] The first row.
 * @retval 0 Done.
 * @retval 1 [untouched] The image has no pixels.
 * @{
 */

/** What `BBICompare` tests. */
enum TessaroCompare {
  TESSARO_COMPARE_PIXELS = 0,      /**< All 32 bits of both are equal. */
  TESSARO_COMPARE_COLOURS = 1,     /**< The colours of both are equal. */
  TESSARO_COMPARE_ALPHAS = 2,      /**< The alphas of both are equal. */
  TESSARO_COMPARE_TRANSPARENT = 4, /**< The alpha of `a` is 0. */
  TESSARO_COMPARE_OPAQUE = 5,      /**< The alpha of `a` is 255. */
  TESSARO_COMPARE_BLACK_WHITE = 6, /**< The colour of `a` is 0x000000 or 0xFFFFFF. */
  TESSARO_COMPARE_GREY = 7         /**< Blue, green and red of `a` are equal. */
};

/**
 * Compares two images, or tests the first.
 *
 * Both have to be images in every mode: their sizes are compared first, also where only the pixels of `a` are
 * read.
 *
 * @param mode [one of TessaroCompare] What is tested.
 * @retval 0 The test holds for every pixel, or the images have no rows.
 * @retval 1 It fails for one, or the sizes differ.
 * @retval 2 The mode is unknown, and the images are of one size and have rows.
 */
TESSARO_API int32_t TESSARO_CALL BBICompare(const ImageRecord* a, const ImageRecord* b, int32_t mode);

/**
 * Counts pixels that differ, but not by much in every byte.
 *
 * With `p` and `q` the pixels of both images under the mask, a pixel counts if `p` is not `q` and at least
 * one of the four bytes differs by no more than the tolerance. Bytes that are equal or masked away differ by
 * 0: so with a byte masked away all pixels that differ count; pixels that differ by more in all four bytes do
 * not.
 *
 * @param mask [value] The bits that are compared.
 * @param tolerance [level, 1..255] Kept within these limits.
 * @return [count, 0..] The number of such pixels; 0 for images without pixels.
 * @retval -1 The sizes differ.
 */
TESSARO_API int32_t TESSARO_CALL BBICompareAny(const ImageRecord* a, const ImageRecord* b, uint32_t mask,
                                               int32_t tolerance);

/**
 * Counts the different colours of an image, alpha aside.
 *
 * @param[in] image [image] The image that is read.
 * @param reserved [flag] Has to be 0.
 * @return [count, 0..] The number of colours; 0 also if `reserved` is not 0, or if working memory (at most 2
 *   MiB) cannot be had.
 */
TESSARO_API int32_t TESSARO_CALL BBIColorCount(const ImageRecord* image, int32_t reserved);

/**
 * Collects the colours of an image into a palette, and replaces each pixel's alpha by the number of its
 * colour there.
 *
 * Colours are collected in order of appearance, with alpha 0, until the palette is full; pixels whose colour
 * found no room get an alpha of 0. Entries of the palette that no colour takes are left alone.
 *
 * @param[out] palette [max words] The colours.
 * @param max [count, 0..256, trusted] The room in the palette; otherwise nothing is done and 0 returned.
 * @return [count, 0..] The colours collected, plus the pixels whose colour found no room: above `max` the
 *   palette was too small. 0 for an image without pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIColorPalette(ImageRecord* image, uint32_t* palette, int32_t max);

/**
 * Finds the smallest rectangle around all content, that is pixels with `(pixel & mask) != key`.
 *
 * It is told by its first column and row and its size (`BBIPaint` tells last column and row); without content
 * it is 0, 0, 1, 1.
 *
 * @param[in] image [image] The image that is read.
 * @param reserved [flag] Has to be 0.
 * @param mask [value] The bits of a pixel that are compared. Bits of `key` that it has not set make every
 *   pixel content.
 * @param key [colour] What is no content.
 * @param[out] cx [1 words] The number of columns.
 * @param[out] cy [1 words] The number of rows.
 * @retval 0 Done.
 * @retval 1 [untouched] `reserved` is not 0.
 */
TESSARO_API int32_t TESSARO_CALL BBITrim(const ImageRecord* image, int32_t reserved, uint32_t mask,
                                         uint32_t key, int32_t* left, int32_t* top, int32_t* cx, int32_t* cy);

/** Fills an image. */
TESSARO_API int32_t TESSARO_CALL BBIClear(ImageRecord* image, int32_t red, int32_t green, int32_t blue,
                                          int32_t alpha);

/** Fills an image and keeps its alpha. */
TESSARO_API int32_t TESSARO_CALL BBIClearRGB(ImageRecord* image, int32_t red, int32_t green, int32_t blue);

/**
 * Fills some bits of an image: `(pixel & mask) | (colour & ~mask)`.
 *
 * @param mask [value] The bits that the image keeps.
 */
TESSARO_API int32_t TESSARO_CALL BBIClearMask(ImageRecord* image, int32_t red, int32_t green, int32_t blue,
                                              int32_t alpha, uint32_t mask);

/** Mirrors an image in place, left to right. */
TESSARO_API int32_t TESSARO_CALL BBIMirror(ImageRecord* image);

/** Mirrors an image in place, top to bottom. */
TESSARO_API int32_t TESSARO_CALL BBIVMirror(ImageRecord* image);

/** Turns of an image. */
enum TessaroTurn {
  /** A quarter clockwise: column x, row y goes to column `height - 1 - y`, row `x`. */
  TESSARO_TURN_RIGHT = 0,
  /** A half: to column `width - 1 - x`, row `height - 1 - y`. */
  TESSARO_TURN_HALF = 1,
  /** A quarter counter-clockwise: to column `y`, row `width - 1 - x`. */
  TESSARO_TURN_LEFT = 2
};

/**
 * Turns an image into another.
 *
 * The two must not share pixels: what `dst` holds afterwards is undefined if they do.
 *
 * @param[in,out] dst [image] The turned image, of the size of `src`, with width and height exchanged for a
 *   quarter.
 * @param[in] src [image] The image that is read.
 * @param mode [one of TessaroTurn] Which turn.
 * @retval 0 Done; also, without anything done, for any other mode, whatever the sizes, and for images without
 *   pixels whose sizes fit.
 * @retval 1 [untouched] The sizes do not fit.
 */
TESSARO_API int32_t TESSARO_CALL BBIRotation(ImageRecord* dst, const ImageRecord* src, int32_t mode);

/**
 * Makes a colour transparent and all others opaque.
 *
 * Alpha becomes 0 for pixels of the key's colour and 255 for all others; alphas are not compared.
 *
 * @param key [colour] The colour; its alpha does not count.
 */
TESSARO_API int32_t TESSARO_CALL BBIKeying(ImageRecord* image, uint32_t key);

/**
 * Gives transparent pixels the colour of their neighbours, so that the edges of a keyed picture stay clean
 * when it is scaled.
 *
 * A pixel with alpha 0 gets the mean of blue, of green and of red, truncated, of those of its neighbours
 * left, right, above and below whose alpha is not 0; its alpha stays 0. Without such a neighbour it stays as
 * it is.
 */
TESSARO_API int32_t TESSARO_CALL BBIKeyingFilter(ImageRecord* image);

/**
 * Does nothing.
 *
 * @param a [value] Not looked at.
 * @param b [value] Not looked at.
 * @param c [value] Not looked at.
 * @retval 0 [untouched] Always.
 */
TESSARO_API int32_t TESSARO_CALL BBIAntiAreas(int32_t a, int32_t b, int32_t c);

/**
 * Fills an area: the pixel at a place and all that are connected to it through their four neighbours and
 * equal it in all 32 bits.
 *
 * It tells the rectangle filled by its first and last column and row (`BBITrim` tells a size).
 *
 * @param x [pixels] The column of a pixel of the area.
 * @param y [pixels] Its row.
 * @param colour [colour] What the area takes.
 * @param[out] right [1 words] The last column.
 * @param[out] bottom [1 words] The last row.
 * @retval 0 Done.
 * @retval 1 [untouched] The place lies outside or has the colour already, or working memory cannot be had: at
 *   most `6 * height * ((width + 1) / 2)` bytes, of which only what the fill needs is touched.
 * @see BBIPaintChoose
 */
TESSARO_API int32_t TESSARO_CALL BBIPaint(ImageRecord* image, int32_t x, int32_t y, uint32_t colour,
                                          int32_t* left, int32_t* top, int32_t* right, int32_t* bottom);

/** @} */

/**
 * @defgroup tone Tone and true blend
 * @brief Blits that look at the brightness of pixels, or at the alphas of both.
 *
 * They clip, walk and mix as the unscaled blits do.
 *
 * @param[in,out] dst [image] The image that is changed.
 * @param[in] src [image] The image that is read.
 * @param dx, dy [pixels] Left column and top row of the rectangle in `dst`.
 * @param cx, cy [pixels] Width and height of the rectangle.
 * @param sx, sy [pixels] Left column and top row of the rectangle in `src`.
 * @retval 0 Done.
 * @retval 1 [untouched] Clipping left nothing.
 * @{
 */

/**
 * Gives a source the brightness of what it covers.
 *
 * With the brightness `(B + G + R + 1) / 3`, each colour becomes `s` plus the brightness of `d` less that of
 * `s`, kept within 0 to 255. The alpha of `d` stays.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTone(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                            int32_t cx, int32_t cy, int32_t sx, int32_t sy);

/**
 * Mixes a source in the more, the closer its colour is to what it covers, compared at equal brightness.
 *
 * With the brightness `(B + G + R) / 3`, `e = d - s` plus the brightness of `s` less that of `d` for each
 * colour, and `distance` the square root of the sum of the three squares of `e`, truncated, all four bytes
 * are mixed with the weight `trunc(256 - distance * factor)`, formed in double precision and kept within 0 to
 * 256; 0 if it is not a number.
 *
 * @param factor [factor, 0..] How fast the weight falls: at 1 it is 0 at a distance of 256. 0 and below copy.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltToneWB(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                              int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                              float factor);

/**
 * Lays a source over a destination that may itself be partly transparent.
 *
 * With `a` the alpha of `s` and `da` that of `d`, the first of these that applies:
 *
 * 1. `a` is 0: `d` stays.
 * 2. `a` is 255, or `da` is 0: `s` replaces it, whatever the opacity.
 * 3. The colours are mixed with the weight `trunc(a * opacity * 0.003921569f * 256)`, formed in double
 *   precision from the two floats (the constant is a little above 1 / 255); the alpha becomes
 *   `da + (255 - da) * a / 255`.
 *
 * @param opacity [opacity, 0..1] Weakens the partly transparent pixels of the source; above 1 counts as 1.
 * @retval 0 Done.
 * @retval 1 [untouched] Clipping left nothing, or the opacity is negative or not a number.
 */
TESSARO_API int32_t TESSARO_CALL BBIBltTrueBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                                 float opacity);

/** @} */

/**
 * @defgroup levels Automatic levels
 * @brief Stretch the levels of a whole image by bounds that are measured in it.
 *
 * They do what `BBIExpandChooseBlt` does to the whole image in place with opacity and saturation 1, a
 * `keep_mask` of 0, a `mask` of 0xFFFFFFFF, 0 for all that follows, and with these bounds. The low bound of a
 * channel is the first level from 0 up at which more than `threshold` pixels lie at or below it, or 0 if
 * there is none; the high bound the same from 255 down, or 255. With `Bl`, `Gl`, `Rl` and `Bh`, `Gh`, `Rh`
 * the bounds of blue, green and red, channels are stretched from these to those levels:
 *
 * | function | blue | green | red |
 * |---|---|---|---|
 * | `BBIAutoLevelRGB` | `Rl..Rh` | `Gl..Gh` | `Bl..Bh` |
 * | `BBIAutoLevelRGBRev` | `(Gl + Rl) / 2..(Gh + Rh) / 2` | `(Bl + Rl) / 2..(Bh + Rh) / 2` | `(Bl + Gl) / 2..(Bh + Gh) / 2` |
 * | `BBIAutoLevelRGBMul` | `(Gl + Rl) / 8..Bh` | `(Bl + Rl) / 8..Gh` | `(Bl + Gl) / 8..Rh` |
 * | `BBIAutoLevelWB` | `L..H` | `L..H` | `L..H` |
 *
 * @param[in,out] image [image] The image.
 * @param threshold [count] How many pixels at either end are given up; a negative one makes the bounds 0 and
 *   255.
 * @retval 0 Done.
 * @retval 1 [untouched] The image has no pixels.
 * @{
 */

/**
 * Stretches the levels of each channel, blue by the bounds of red and red by those of blue.
 *
 * The crossing does not show where the two have the same histogram.
 */
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelRGB(ImageRecord* image, int32_t threshold);

/**
 * Stretches the levels of each channel by the mean bounds of the two others.
 */
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelRGBRev(ImageRecord* image, int32_t threshold);

/**
 * Stretches the levels of each channel by its own high bound and a low one that is a quarter of the others'
 * mean.
 */
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelRGBMul(ImageRecord* image, int32_t threshold);

/**
 * Stretches the levels of all channels alike, which keeps their balance.
 *
 * L and H are measured in one histogram of blue, green and red of every pixel: three counts a pixel, which
 * the threshold is compared with.
 */
TESSARO_API int32_t TESSARO_CALL BBIAutoLevelWB(ImageRecord* image, int32_t threshold);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
