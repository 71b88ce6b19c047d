// Tone of whole areas, and compositing.
#include "pixel/tone.hpp"

#include "core/weights.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

extern "C" {

int32_t TESSARO_CALL BBIBltTone(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t cx,
                                int32_t cy, int32_t sx, int32_t sy) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, cx, cy, sx, sy, areas)) return status_nothing;
  kernels<ToneKernels>().tone(areas);
  return status_done;
}

int32_t TESSARO_CALL BBIBltToneWB(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                  int32_t cx, int32_t cy, int32_t sx, int32_t sy, float factor) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, cx, cy, sx, sy, areas)) return status_nothing;
  kernels<ToneKernels>().tone_mix(areas, factor);
  return status_done;
}

int32_t TESSARO_CALL BBIBltTrueBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                     int32_t cx, int32_t cy, int32_t sx, int32_t sy, float opacity) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, cx, cy, sx, sy, areas)) return status_nothing;
  if (!(opacity >= 0.0f)) return status_nothing;
  kernels<ToneKernels>().true_blend(areas, alpha_factor(opacity > 1.0f ? 1.0f : opacity));
  return status_done;
}

}  // extern "C"
