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
 * (s * a + d * (255 - a)) >> 8, which darkens a little. With wide on (and a processor level of 4 or more):
 * (d * (256 - w) + s * w) >> 8 with w = floor(a * 256 / 255). The two may differ by one or two. */
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
 * ---------------------------------------------------------------------------------------------- */

/* ---- Whole-image operations
 * ------------------------------------------------------------------------------------- */

/* ---- Tone and levels
 * -------------------------------------------------------------------------------------------- */

#ifdef __cplusplus
}
#endif

#endif
