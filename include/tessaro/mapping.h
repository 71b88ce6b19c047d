/**
 * @file
 * @brief Texture mapping and stencils.
 *
 * The rectangle is clipped against `dst` first, then against each image that is read at (sx, sy): what is cut
 * at the left or top moves the position in the other images along, what is cut at the right or bottom only
 * shortens.
 *
 * Images may share memory: pixels go left to right and rows top to bottom without a copy, and where areas
 * overlap later pixels see what earlier ones wrote. d is the pixel of `dst` before it is written. mix(a, b,
 * w) with a weight w of 0..256 is `(a * (256 - w) + b * w) >> 8` in each of the four channels; trunc rounds
 * toward zero. What is told in formulas is formed in double precision unless a cast to float stands there.
 *
 * @param[in,out] dst [image] The image that is changed.
 * @param dx, dy [pixels] Where the rectangle begins in `dst`.
 * @param cx, cy [pixels] The size of the rectangle.
 * @param sx, sy [pixels] Where the rectangle begins in the images that are read.
 */
#ifndef TESSARO_MAPPING_H
#define TESSARO_MAPPING_H

#include "tessaro/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @defgroup maps Maps
 * @brief Recolour a rectangle through an image that serves as a table.
 *
 * Each channel of d becomes that channel of the pixel of `map` whose column is a channel's value, 0..255, and
 * whose row depends on the function: `trunc(quantity * factor)`. In a name, UC takes the columns from s, the
 * pixel of `src`, channel by channel; UD takes them from d. H is the height of the map; cx and cy are the
 * clipped size.
 *
 * In a pixel the quantity comes first, then blue, green, red, alpha: each byte, of the map too, is read just
 * before it serves.
 *
 * @param[in] src [image] What is recoloured, or selects the row.
 * @param[in] map [image] At least 256 pixels wide, of which the first 256 columns count, and one row high.
 * @retval 0 Done.
 * @retval 1 [untouched] Clipping left nothing, or the map is too small.
 * @{
 */

/** A tone curve for each channel: row 0 for every pixel, columns from s. */
TESSARO_API int32_t TESSARO_CALL BBIMapUC(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                          int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                          int32_t sy);

/**
 * Row by the alpha of s, with the factor `(float)((H - 1) * 0.003921569f)`; columns from s.
 *
 * The constant is a little above 1 / 255. With 256 rows the row is the alpha.
 */
TESSARO_API int32_t TESSARO_CALL BBIMapUCVA(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                            int32_t sy);

/** The row of BBIMapUCVA, columns from d: s only selects the row. */
TESSARO_API int32_t TESSARO_CALL BBIMapUDVA(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                            int32_t sy);

/**
 * As BBIMapUCVA, but the alpha of d stays.
 *
 * @param[in] map [image] At least 256 x 256 pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIMapMCUCVA(ImageRecord* dst, const ImageRecord* src,
                                              const ImageRecord* map, int32_t dx, int32_t dy, int32_t cx,
                                              int32_t cy, int32_t sx, int32_t sy);

/**
 * As BBIMapUDVA, but the alpha of d stays.
 *
 * @param[in] map [image] At least 256 x 256 pixels.
 */
TESSARO_API int32_t TESSARO_CALL BBIMapMCUDVA(ImageRecord* dst, const ImageRecord* src,
                                              const ImageRecord* map, int32_t dx, int32_t dy, int32_t cx,
                                              int32_t cy, int32_t sx, int32_t sy);

/**
 * Row by blue + green + red of s, with the factor `(float)((H - 1) * 0.0013071896f)`; columns from s.
 *
 * The constant is about 1 / 765.
 */
TESSARO_API int32_t TESSARO_CALL BBIMapUCVC(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                            int32_t sy);

/** The row of BBIMapUCVC, columns from d. */
TESSARO_API int32_t TESSARO_CALL BBIMapUDVC(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                            int32_t sy);

/**
 * Row by the column in the clipped rectangle: in column i,
 * `trunc(4 * i * (float)((H - 1) / (4.0 * (cx - 1))))`; columns from s.
 *
 * So the left edge has the first row of the map and the right edge the last, or the one before it, as the
 * rounding of the factor goes. One pixel wide, it has row 0.
 */
TESSARO_API int32_t TESSARO_CALL BBIMapUCVX(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                            int32_t sy);

/**
 * The same downward: in row i of the rectangle, `trunc(i * (float)((H - 1) / (cy - 1.0)))`; one pixel high,
 * row 0.
 */
TESSARO_API int32_t TESSARO_CALL BBIMapUCVY(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map,
                                            int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                            int32_t sy);

/** @} */

/**
 * @defgroup stencils Stencils
 * @brief Let the alpha of a stencil decide, pixel by pixel, when one picture gives way to another.
 *
 * Low values of the stencil go first. With a the alpha of the stencil, p the progress and s the softness:
 *
 * - s of 0 and below, or not a number: a hard wipe. d becomes the incoming pixel where `a < trunc(p * 256)`,
 *   else the outgoing one.
 * - s of 1000 and above: a cross-fade whatever the stencil, with the weight `trunc((1 - p) * 256)`.
 * - between: a ramp that is s wide, 1 being the whole range of the stencil, and slides from below 0 to above
 *   1. With `v = (float)(a * 0.003921569f)`, `lo = (float)((s + 1) * p - s / 2 - s / 2)` and
 *   `hi = (s + 1) * p - s / 2 + s / 2` the weight is 0 for `v <= lo`, 256 for `v >= hi`, else
 *   `min(trunc((v - lo) / s * 256), 256)`.
 *
 * Where there is a weight, d becomes mix(incoming, outgoing, weight): 256 shows the outgoing picture.
 *
 * @param[in] outgoing [image] The picture that progress 0 shows.
 * @param[in] incoming [image] The picture that progress 1 shows.
 * @param[in] stencil [image] Its alpha decides.
 * @param progress [factor, 0..1] How far the transition has gone; clamped, not a number counts as 0.
 * @param softness [factor, 0..1000] The width of the edge.
 * @retval 0 Done.
 * @retval 1 [untouched] Clipping left nothing.
 * @{
 */

/**
 * A wipe or fade in which the incoming picture's own alpha is the stencil.
 *
 * @param unused [flag] Counts for nothing.
 */
TESSARO_API int32_t TESSARO_CALL BBIStencilFlip(ImageRecord* dst, const ImageRecord* outgoing,
                                                const ImageRecord* incoming, int32_t dx, int32_t dy,
                                                int32_t cx, int32_t cy, int32_t sx, int32_t sy,
                                                float progress, float softness, int32_t unused);

/** A wipe or fade with a stencil of its own. */
TESSARO_API int32_t TESSARO_CALL BBIStencilFlipLE(ImageRecord* dst, const ImageRecord* outgoing,
                                                  const ImageRecord* incoming, const ImageRecord* stencil,
                                                  int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                                  int32_t sy, float progress, float softness);

/** As BBIStencilFlipLE, with the two pictures in the other order. */
TESSARO_API int32_t TESSARO_CALL BBIStencilFlipLEFix(ImageRecord* dst, const ImageRecord* incoming,
                                                     const ImageRecord* outgoing, const ImageRecord* stencil,
                                                     int32_t dx, int32_t dy, int32_t cx, int32_t cy,
                                                     int32_t sx, int32_t sy, float progress, float softness);

/**
 * Shifts colours up or down where the stencil, the alpha of `src`, is.
 *
 * d becomes mix(d, T, w): the colours of T are `min(max(d + 2 * c - 255, 0), 255)` with c the byte of
 * `colour`, its alpha is 0. So 128 adds 1, 127 takes 1, 255 adds 255, 0 takes 255; and the alpha of `dst`
 * falls to 0 where the stencil is opaque. w is `trunc(a * opacity * 0.003921569f * 256)` for a stencil of a,
 * products from left to right.
 *
 * @param[in] src [image] The stencil.
 * @param opacity [opacity, 0..1] Clamped; not a number counts as 0.
 * @param colour [colour] The shift; its alpha counts for nothing.
 */
TESSARO_API int32_t TESSARO_CALL BBIStencilAddsigned(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                     int32_t dy, int32_t cx, int32_t cy, int32_t sx,
                                                     int32_t sy, float opacity, uint32_t colour);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
