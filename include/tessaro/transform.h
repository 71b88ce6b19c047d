/* Resampling and geometric transforms. */
#ifndef TESSARO_TRANSFORM_H
#define TESSARO_TRANSFORM_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Depth and flip
 *
 * Combine a w x h rectangle of src at (sx, sy) with dst at (dx, dy), in pixels. The rectangle is clipped
 * against dst first and src second; 1 is returned and nothing changes when nothing is left of it, otherwise
 * 0. dst and src may be one image: rows go top to bottom and pixels left to right without a copy, so where
 * the areas overlap later pixels see what earlier ones wrote.
 *
 * The weighted mix of d and s with a weight of 0..256 is (d * (256 - weight) + s * weight) >> 8 in each of
 * the four channels, alpha included. */

/* Cross-fade: the mix of d and s with the weight trunc(opacity * 256). An opacity above 1 counts as 1; one
 * that is negative or not a number returns 1. */
TESSARO_API int32_t TESSARO_CALL BBIFlip(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                         int32_t w, int32_t h, int32_t sx, int32_t sy, float opacity);

/* The mix of d and s with a weight from the alpha a of s: trunc(a * opacity * 256 / 255), which is a at
 * opacity 1, but 256 for a = 255 (s replaces d exactly). The divisor is a hair below 255 so that 255 and an
 * opacity of 0.5 give 128. Opacity as for BBIFlip. */
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

/* Box blurs: the mean of the pixels from radius before to radius behind. At the ends of a row (column) the window is
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

#ifdef __cplusplus
}
#endif

#endif
