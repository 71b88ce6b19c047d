// Unscaled blits of one image, of two and of three.
#include "pixel/blit.hpp"

#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

uint32_t first_pixel(const ImageRecord* image) { return ImageView::of(image).get(0, 0); }

int32_t blit(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
             int32_t sx, int32_t sy, BlitKernels::Two kernel) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, cx, cy, sx, sy, areas)) return status_nothing;
  kernel(areas);
  return status_done;
}

}  // namespace

extern "C" {

#define TESSARO_BLIT(Name, kernel)                                                                        \
  int32_t TESSARO_CALL Name(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t cx, \
                            int32_t cy, int32_t sx, int32_t sy) {                                         \
    return blit(dst, src, dx, dy, cx, cy, sx, sy, kernels<BlitKernels>().kernel);                         \
  }
TESSARO_BLIT(BBIBlt, copy)
TESSARO_BLIT(BBIBltAdd, add)
TESSARO_BLIT(BBIBltMul, mul)
TESSARO_BLIT(BBIBltSub, sub)
TESSARO_BLIT(BBIBltXor, difference)
TESSARO_BLIT(BBIBltXor2, wrap_sub)
TESSARO_BLIT(BBIBltXor3, wrap_add)
TESSARO_BLIT(BBIBltNot, invert)
TESSARO_BLIT(BBIBltMin, min)
TESSARO_BLIT(BBIBltMax, max)
TESSARO_BLIT(BBIBltHalfBlend, half)
TESSARO_BLIT(BBIBltShiftAlpha, shift_alpha)
TESSARO_BLIT(BBIBltShiftBlock, shift_block)
#undef TESSARO_BLIT

int32_t TESSARO_CALL BBIBltColor(ImageRecord* dst, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
                                 uint32_t mask, uint32_t flip, uint32_t colour) {
  Area area;
  if (!clip_one(dst, dx, dy, cx, cy, area)) return status_nothing;
  if (mask == 0)  // the old pixel is masked away, whatever is flipped in it
    kernels<BlitKernels>().fill(area, colour);
  else
    kernels<BlitKernels>().masked_fill(area, mask, flip, colour);
  return status_done;
}

int32_t TESSARO_CALL BBIBltColorBlend(ImageRecord* dst, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
                                      uint32_t colour, float factor) {
  Area area;
  if (!clip_one(dst, dx, dy, cx, cy, area)) return status_nothing;
  if (!(factor >= 0.0f)) return status_nothing;
  if (factor >= 1.0f)
    kernels<BlitKernels>().fill(area, colour);
  else
    kernels<BlitKernels>().mix_colour(area, colour, static_cast<uint32_t>(trunc32(factor * 256.0f)));
  return status_done;
}

int32_t TESSARO_CALL BBIBltAlpha(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t cx,
                                 int32_t cy, int32_t sx, int32_t sy, int32_t max_with_dest,
                                 int32_t min_with_dest, int32_t invert, int32_t subtract_from_dest) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, cx, cy, sx, sy, areas)) return status_nothing;
  kernels<BlitKernels>().alpha(
      areas, {max_with_dest != 0, min_with_dest != 0, invert != 0, subtract_from_dest != 0});
  return status_done;
}

int32_t TESSARO_CALL BBIBltKeying(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                  int32_t cx, int32_t cy, int32_t sx, int32_t sy) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, cx, cy, sx, sy, areas)) return status_nothing;
  kernels<BlitKernels>().keying(areas, first_pixel(src));
  return status_done;
}

int32_t TESSARO_CALL BBIBltKeyingFX(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                    int32_t cx, int32_t cy, int32_t sx, int32_t sy, int32_t keyed,
                                    int32_t level) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, cx, cy, sx, sy, areas)) return status_nothing;
  if (level <= 0) return status_done;
  const BlitKernels& k = kernels<BlitKernels>();
  const uint32_t key = first_pixel(src);
  if (level >= 255)
    keyed ? k.keying(areas, key) : k.copy(areas);
  else
    keyed ? k.keyed_mix(areas, key, static_cast<uint32_t>(level))
          : k.mix(areas, static_cast<uint32_t>(level));
  return status_done;
}

int32_t TESSARO_CALL BBIBltBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t cx,
                                 int32_t cy, int32_t sx, int32_t sy, int32_t wide) {
  const BlitKernels& k = kernels<BlitKernels>();
  return blit(dst, src, dx, dy, cx, cy, sx, sy, wide ? k.blend_256 : k.blend_255);
}

}  // extern "C"
