/* Texture mapping and stencils. */
#ifndef TESSARO_MAPPING_H
#define TESSARO_MAPPING_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Maps --------------------------------------------------------------------------------------------------
 *
 * Recolour the w x h rectangle of src at (sx, sy) into dst at (dx, dy) through a map image. Each channel of the
 * result is that channel of the map pixel whose column is a channel's value (0..255) and whose row depends on the
 * export: trunc(quantity * factor), with a factor in single precision. s is the source's pixel, d the destination's
 * before it is replaced, H the map's height, w and h the size of the clipped rectangle.
 *
 * The rectangle is clipped against both images; 1 is returned when nothing is left of it, or when the map is
 * narrower than 256 pixels or has too few rows (one is enough, except where stated). Otherwise 0. The images may
 * share memory: pixels go left to right and top to bottom, channels blue, green, red, alpha, and each byte is read
 * where the walk stands. */

/* The first map row, for every pixel; columns from s: a tone curve per channel. */
TESSARO_API int32_t TESSARO_CALL BBIMapUC(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                          int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                          int32_t sy);

/* Row by the alpha of s, factor (H - 1) * 0.003921569 (a little above 1 / 255); columns from s. With 256 rows the row is
 * the alpha. */
TESSARO_API int32_t TESSARO_CALL BBIMapUCVA(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                            int32_t sy);

/* The same row; columns from d: s only selects the row. */
TESSARO_API int32_t TESSARO_CALL BBIMapUDVA(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                            int32_t sy);

/* As BBIMapUCVA and BBIMapUDVA, but the alpha of d stays, and a map of fewer than 256 rows is refused with 1. */
TESSARO_API int32_t TESSARO_CALL BBIMapMCUCVA(ImageRecord* dst, const ImageRecord* src,
                                              const ImageRecord* map, int32_t dx, int32_t dy, int32_t w,
                                              int32_t h, int32_t sx, int32_t sy);
TESSARO_API int32_t TESSARO_CALL BBIMapMCUDVA(ImageRecord* dst, const ImageRecord* src,
                                              const ImageRecord* map, int32_t dx, int32_t dy, int32_t w,
                                              int32_t h, int32_t sx, int32_t sy);

/* Row by blue + green + red of s (0..765), factor (H - 1) * 0.0013071896; columns from s, and from d. */
TESSARO_API int32_t TESSARO_CALL BBIMapUCVC(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                            int32_t sy);
TESSARO_API int32_t TESSARO_CALL BBIMapUDVC(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                            int32_t sy);

/* Row by the column x of the clipped rectangle, 4 * x times the factor (H - 1) / (4 * (w - 1)), or across its rows, y
 * times (H - 1) / (h - 1): from the first map row at the left (top) edge to the last at the right (bottom), as far as
 * the single-precision factor gets there. A rectangle one pixel wide (high) uses row 0. Columns from s. */
TESSARO_API int32_t TESSARO_CALL BBIMapUCVX(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                            int32_t sy);
TESSARO_API int32_t TESSARO_CALL BBIMapUCVY(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                            int32_t sy);

/* ---- Stencils ----------------------------------------------------------------------------------------------
 *
 * Transitions between two pictures: the alpha of a stencil decides, pixel by pixel, when the outgoing picture gives
 * way to the incoming one; low values go first. All sources are read at (sx, sy), dst is written at (dx, dy); the
 * rectangle is clipped against all of them, and 1 is returned when nothing is left of it, otherwise 0.
 *
 * progress    0 shows the outgoing picture, 1 the incoming one; clamped, not a number counts as 0
 * softness    0 and below (or not a number): a hard wipe, incoming where the stencil is below
 *             trunc(progress * 256). 1000 and above: a cross-fade whatever the stencil. Between: a ramp of this
 *             width, 1 being the whole range of the stencil, which slides from below 0 to above 1.
 *
 * Soft forms mix (incoming * (256 - w) + outgoing * w) >> 8 in all four channels. dst may be one of the sources. */

/* The incoming picture's own alpha is the stencil. `wide` is accepted and changes nothing. */
TESSARO_API int32_t TESSARO_CALL BBIStencilFlip(ImageRecord* dst, const ImageRecord* outgoing,
                                                const ImageRecord* incoming, int32_t dx, int32_t dy,
                                                int32_t w, int32_t h, int32_t sx, int32_t sy, float progress,
                                                float softness, int32_t wide);

/* A stencil of its own; from first to second. */
TESSARO_API int32_t TESSARO_CALL BBIStencilFlipLE(ImageRecord* dst, const ImageRecord* first,
                                                  const ImageRecord* second, const ImageRecord* stencil,
                                                  int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                                  int32_t sy, float progress, float softness);

/* The same from second to first. */
TESSARO_API int32_t TESSARO_CALL BBIStencilFlipLEFix(ImageRecord* dst, const ImageRecord* first,
                                                     const ImageRecord* second, const ImageRecord* stencil,
                                                     int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx,
                                                     int32_t sy, float progress, float softness);

/* Shifts colours where the stencil (the alpha of src) is: with T = clamp(d + 2 * c - 255, 0, 255) for each colour byte
 * c of color and an alpha of 0, d becomes (d * (256 - a) + T * a) >> 8 in all four channels, a = trunc(alpha * opacity *
 * 0.003921569 * 256). 128 adds 1, 127 takes 1, 255 adds 255, 0 takes 255. The destination's alpha falls to 0 where the
 * stencil is opaque. opacity is clamped to 0..1, not a number counts as 0; the alpha of color is ignored. */
TESSARO_API int32_t TESSARO_CALL BBIStencilAddsigned(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                     int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                                     float opacity, uint32_t color);

#ifdef __cplusplus
}
#endif

#endif
