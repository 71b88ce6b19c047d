// Whole images cleared and keyed.
#include "pixel/keying.hpp"

#include "pixel/blit.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

uint32_t colour_of(int32_t red, int32_t green, int32_t blue, int32_t alpha) {
  return clamp_byte(alpha) << 24 | clamp_byte(red) << 16 | clamp_byte(green) << 8 | clamp_byte(blue);
}

int32_t clear(ImageRecord* image, uint32_t colour, uint32_t keep) {
  Area area;
  if (!clip_whole(image, area)) return status_nothing;
  if (keep == 0)
    kernels<BlitKernels>().fill(area, colour);
  else
    kernels<BlitKernels>().masked_fill(area, keep, 0, colour);
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIClear(ImageRecord* image, int32_t red, int32_t green, int32_t blue, int32_t alpha) {
  return clear(image, colour_of(red, green, blue, alpha), 0);
}

int32_t TESSARO_CALL BBIClearRGB(ImageRecord* image, int32_t red, int32_t green, int32_t blue) {
  return clear(image, colour_of(red, green, blue, 0), 0xFF000000);
}

int32_t TESSARO_CALL BBIClearMask(ImageRecord* image, int32_t red, int32_t green, int32_t blue, int32_t alpha,
                                  uint32_t mask) {
  return clear(image, colour_of(red, green, blue, alpha), mask);
}

int32_t TESSARO_CALL BBIKeying(ImageRecord* image, uint32_t key) {
  Area area;
  if (!clip_whole(image, area)) return status_nothing;
  kernels<KeyingKernels>().key_out(area, key);
  return status_done;
}

int32_t TESSARO_CALL BBIKeyingFilter(ImageRecord* image) {
  Area area;
  if (!clip_whole(image, area)) return status_nothing;
  kernels<KeyingKernels>().fill_keyed(area);
  return status_done;
}

int32_t TESSARO_CALL BBIAntiAreas(int32_t, int32_t, int32_t) { return status_done; }

}  // extern "C"
