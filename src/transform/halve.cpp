// Images of half the size.
#include "transform/halve.hpp"

#include "core/clip.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

extern "C" int32_t TESSARO_CALL BBIBltHalfSize(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                               int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  const auto beyond = [](int32_t at, int64_t size, int32_t limit) { return at < 0 || at + size > limit; };
  if (d.width < 1 || d.height < 1 || s.width < 1 || s.height < 1 || w < 1 || h < 1 ||
      beyond(dx, w, d.width) || beyond(dy, h, d.height) || beyond(sx, 2 * int64_t{w}, s.width) ||
      beyond(sy, 2 * int64_t{h}, s.height))
    return status_nothing;
  for (int32_t y = 0; y < h; ++y)
    kernels<HalveKernels>().halve(d.at(dx, dy + y), s.at(sx, sy + 2 * y), s.at(sx, sy + 2 * y + 1),
                                  static_cast<size_t>(w));
  return status_done;
}
