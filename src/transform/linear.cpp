// Bilinear interpolation.
#include "transform/linear.hpp"

#include <algorithm>
#include <iterator>

#include "core/weights.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

bool clip_linear(const ImageRecord* dst, const ImageRecord* src, ScaledBlit& rect) {
  return clip_stretch(ImageView::of(dst), ImageView::of(src), rect);
}

// Sizes that are left to the nearest sample.
bool is_for_nearest(const ScaledBlit& r) {
  return r.dw < 2 || r.dh < 2 || r.sw < 2 || r.sh < 2 || (r.dw == r.sw && r.dh == r.sh) || r.dw * 16 < r.sw ||
         r.sw * 16 < r.dw || r.dh * 16 < r.sh || r.sh * 16 < r.dh;
}

// The start differs so that the last neighbour stays within the source either way.
Positions positions(int64_t to, int64_t from) {
  if (to < from) return {2048, static_cast<int32_t>((from - 2) * 4096 / (to - 1))};
  return {static_cast<int32_t>((from - 1) * 2048 / to), static_cast<int32_t>((from - 1) * 4096 / to)};
}

// The image with rows that follow one another without a gap, whatever its pitch; false where rows up to
// `last` would leave the memory that its own rows span.
bool pack_rows(ImageView& image, int64_t last) {
  const int64_t row = 4 * static_cast<int64_t>(image.width);
  const int64_t spanned = image.pitch > 0 ? static_cast<int64_t>(image.pitch) * (image.height - 1) : 0;
  image.pitch = static_cast<ptrdiff_t>(row);
  return last * row <= spanned;
}

template <class Run>
int32_t interpolate(const ImageRecord* dst, const ImageRecord* src, const ScaledBlit& r, Run run) {
  ImageView d = ImageView::of(dst), s = ImageView::of(src);
  if (!pack_rows(d, r.dy + r.dh - 1) || !pack_rows(s, r.sy + r.sh - 1)) return status_nothing;
  const Stretch area = stretch_of(d, s, r);
  ScratchArray<uint32_t, 512> room(4 * static_cast<size_t>(r.dw));
  run(Bilinear{area, positions(r.dw, r.sw), positions(r.dh, r.sh), room.data()});
  return status_done;
}

}  // namespace

extern "C" {

void TESSARO_CALL BBIAlphaTableCreate(uint32_t* table, float opacity, int32_t by_alpha) {
  if (!usable_opacity(opacity)) opacity = 0.0f;
  const uint32_t constant = constant_weight(opacity);
  for (uint32_t alpha = 0; alpha < 256; ++alpha)
    store<uint32_t>(table + alpha, by_alpha ? alpha_weight(alpha, opacity) : constant);
}

int32_t TESSARO_CALL BBILinearBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                  int32_t dw, int32_t dh, int32_t sx, int32_t sy, int32_t sw, int32_t sh) {
  ScaledBlit r = {dx, dy, dw, dh, sx, sy, sw, sh};
  if (!clip_linear(dst, src, r)) return status_nothing;
  if (is_for_nearest(r)) return BBIExpandBlt(dst, src, dx, dy, dw, dh, sx, sy, sw, sh, 1.0f);
  return interpolate(dst, src, r, [](const Bilinear& b) { kernels<LinearKernels>().replace(b); });
}

int32_t TESSARO_CALL BBILinearRender(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                     int32_t dw, int32_t dh, int32_t sx, int32_t sy, int32_t sw, int32_t sh,
                                     const uint32_t* table, int32_t mode, int32_t smooth,
                                     uint32_t tint_colour) {
  ScaledBlit r = {dx, dy, dw, dh, sx, sy, sw, sh};
  if (!clip_linear(dst, src, r)) return status_nothing;
  uint32_t weights[256];  // the host's need not be aligned
  std::memcpy(weights, table, sizeof weights);
  // Vectors hold weights of up to 256; single pixels take any.
  const bool usual = std::all_of(weights, std::end(weights), [](uint32_t w) { return w <= 256; });
  const LinearKernels& k = kernels<LinearKernels>(usual ? active_backend : Backend::scalar);
  const Render render = {weights, mode == 1 || mode == 3, mode == 2 || mode == 3, tint_colour};
  if (!smooth || is_for_nearest(r)) {
    run_stretch(ImageView::of(dst), ImageView::of(src), r,
                [&](const Stretch& n) { k.render_nearest(n, render); });
    return status_done;
  }
  return interpolate(dst, src, r, [&](const Bilinear& b) { k.render(b, render); });
}

}  // extern "C"
