// Rectangles copied in mirrored order.
#include "transform/flip.hpp"

#include "core/weights.hpp"
#include "pixel/blit.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// Cuts a run that starts at `at` and goes `length` pixels to 0..limit; the number of pixels left.
int64_t cut_run(int64_t& at, int64_t length, int32_t limit) {
  if (at < 0) {
    length += at;
    at = 0;
  }
  return at + length > limit ? limit - at : length;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIFlip(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                             int32_t h, int32_t sx, int32_t sy, float opacity) {
  AreaPair areas;
  if (!usable_opacity(opacity) || !clip_two(dst, src, dx, dy, w, h, sx, sy, areas)) return status_nothing;
  kernels<BlitKernels>().mix(areas, constant_weight(opacity));
  return status_done;
}

int32_t TESSARO_CALL BBIFlipBlend(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                                  int32_t h, int32_t sx, int32_t sy, float opacity) {
  AreaPair areas;
  if (!usable_opacity(opacity) || !clip_two(dst, src, dx, dy, w, h, sx, sy, areas)) return status_nothing;
  kernels<FlipKernels>().blend(areas, alpha_factor(opacity));
  return status_done;
}

int32_t TESSARO_CALL BBIDepth(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                              int32_t h, int32_t sx, int32_t sy) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, w, h, sx, sy, areas)) return status_nothing;
  kernels<FlipKernels>().depth(areas);
  return status_done;
}

int32_t TESSARO_CALL BBIDepthMask(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                                  int32_t h, int32_t sx, int32_t sy, uint32_t keep_mask) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, w, h, sx, sy, areas)) return status_nothing;
  kernels<FlipKernels>().depth_mask(areas, keep_mask);
  return status_done;
}

int32_t TESSARO_CALL BBIFlipLineX(ImageRecord* image, int32_t x, int32_t y, int32_t length, uint32_t colour) {
  const ImageView view = ImageView::of(image);
  if (y < 0 || y >= view.height) return status_nothing;
  int64_t from = x;
  const int64_t n = cut_run(from, length, view.width);
  if (n < 1) return status_nothing;
  kernels<BlitKernels>().fill({view.at(from, y), view.pitch, static_cast<ptrdiff_t>(n), 1}, colour);
  return status_done;
}

int32_t TESSARO_CALL BBIFlipLineY(ImageRecord* image, int32_t x, int32_t y, int32_t length, uint32_t colour) {
  const ImageView view = ImageView::of(image);
  if (x < 0 || x >= view.width) return status_nothing;
  int64_t from = y;
  int64_t n = cut_run(from, length, view.height);
  if (n < 1) return status_nothing;
  // The step is counted in whole pixels. Where that makes it longer than a pitch toward lower addresses, the
  // line drifts to the left; it ends where the memory of the image does.
  const ptrdiff_t step = view.pitch & ~ptrdiff_t{3};
  uint8_t* lowest = view.pitch < 0 ? view.at(0, view.height - 1) : view.pixels;
  for (ptrdiff_t at = view.at(x, from) - lowest; n > 0 && at >= 0; --n, at += step)
    store(lowest + at, colour);
  return status_done;
}

}  // extern "C"
