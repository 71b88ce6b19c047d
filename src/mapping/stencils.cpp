// Transitions between two images through a stencil.
#include "mapping/stencils.hpp"

#include "pixel/blit.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// Clips against the destination and then against each source; all sources are read at one position.
bool clip_stencil(ImageRecord* dst, const ImageRecord* outgoing, const ImageRecord* incoming,
                  const ImageRecord* stencil, int32_t dx, int32_t dy, int32_t width, int32_t height,
                  int32_t sx, int32_t sy, StencilAreas& areas) {
  const ImageView d = ImageView::of(dst), o = ImageView::of(outgoing), i = ImageView::of(incoming),
                  s = ImageView::of(stencil);
  int64_t ax = dx, ay = dy, w = width, h = height, bx = sx, by = sy;
  if (ClipRect(d.width, d.height, ax, ay, w, h, bx, by)) return false;
  const auto empty = [&](const ImageView& source) {
    return ClipRect(source.width, source.height, bx, by, w, h, ax, ay) != 0;
  };
  if (empty(o) || empty(i) || empty(s)) return false;
  const auto at = [&](const ImageView& v) { return StencilAreas::Source{v.at(bx, by), v.pitch}; };
  areas = {d.at(ax, ay), d.pitch, at(o), at(i), at(s), static_cast<ptrdiff_t>(w), static_cast<ptrdiff_t>(h)};
  return true;
}

void copy(const StencilAreas& n, StencilAreas::Source from) {
  kernels<BlitKernels>().copy({n.dst, n.dst_pitch, from.at, from.pitch, n.width, n.height});
}

// The weights of a soft ramp of width s, which slides over the stencil's values with the progress p. Only the
// lower end is rounded to single precision.
void build_ramp(uint32_t (&weights)[256], double p, double s) {
  const double middle = (s + 1.0) * p - s / 2;
  const double low = static_cast<float>(middle - s / 2), high = middle + s / 2;
  for (int32_t i = 0; i < 256; ++i) {
    const double v = static_cast<float>(i) * 0.003921569f;
    const double weight = v <= low ? 0.0 : v >= high ? 256.0 : (v - low) / s * 256.0;
    weights[i] = weight < 256.0 ? static_cast<uint32_t>(trunc32(weight)) : 256u;
  }
}

// The line that gives these weights, which lie on one but for their rounding: much cheaper than to look them
// up. False for the rare ramp whose rounding no line follows. With a rise given, a weight above 0 bounds the
// base from below and one below 256 from above; the rise that the softness asks for is tried, and the next
// one. The shift makes it fit an AlphaLine, so that its products and the weights before the shift stay below
// 2^26.
bool fit_line(const uint32_t (&weights)[256], double s, AlphaLine& line) {
  double rise = 256.0 * static_cast<double>(0.003921569f) / s;
  if (rise > 1024.0) rise = 1024.0;  // from nothing to all in one step
  line.shift = 16;
  for (rise *= 65536.0; rise > 65533.0; rise /= 2) --line.shift;
  line.rise = trunc32(rise);
  for (const int last = line.rise + 1; line.rise <= last; ++line.rise) {
    int32_t low = INT32_MIN, high = INT32_MAX;
    for (int32_t i = 0; i < 256; ++i) {
      const auto w = static_cast<int32_t>(weights[i]);
      const int32_t least = (w << line.shift) - line.rise * i, most = least + (1 << line.shift) - 1;
      if (w > 0 && least > low) low = least;
      if (w < 256 && most < high) high = most;
    }
    if (low > high) continue;
    line.base = low != INT32_MIN ? low : high;
    return true;
  }
  return false;
}

int32_t flip(const StencilAreas& areas, float progress, float softness) {
  const StencilKernels& k = kernels<StencilKernels>();
  const float p = clamped(progress, 0.0f, 1.0f);
  if (softness >= 1000) {
    k.fade(areas, weight_of(1.0 - static_cast<double>(p)));
  } else if (softness > 0) {
    uint32_t weights[256];
    build_ramp(weights, static_cast<double>(p), static_cast<double>(softness));
    AlphaLine line;
    if (fit_line(weights, static_cast<double>(softness), line))
      k.ramp(areas, line);
    else
      k.soft(areas, weights);
  } else {
    const uint32_t limit = weight_of(p);
    if (limit == 0)
      copy(areas, areas.outgoing);
    else if (limit == 256)
      copy(areas, areas.incoming);
    else
      k.hard(areas, limit);
  }
  return status_done;
}

}  // namespace

extern "C" {

// Both ways of working give the same bytes, so `wide` chooses nothing.
int32_t TESSARO_CALL BBIStencilFlip(ImageRecord* dst, const ImageRecord* outgoing,
                                    const ImageRecord* incoming, int32_t dx, int32_t dy, int32_t w, int32_t h,
                                    int32_t sx, int32_t sy, float progress, float softness, int32_t) {
  StencilAreas areas;
  if (!clip_stencil(dst, outgoing, incoming, incoming, dx, dy, w, h, sx, sy, areas)) return status_nothing;
  return flip(areas, progress, softness);
}

int32_t TESSARO_CALL BBIStencilFlipLE(ImageRecord* dst, const ImageRecord* first, const ImageRecord* second,
                                      const ImageRecord* stencil, int32_t dx, int32_t dy, int32_t w,
                                      int32_t h, int32_t sx, int32_t sy, float progress, float softness) {
  StencilAreas areas;
  if (!clip_stencil(dst, first, second, stencil, dx, dy, w, h, sx, sy, areas)) return status_nothing;
  return flip(areas, progress, softness);
}

int32_t TESSARO_CALL BBIStencilFlipLEFix(ImageRecord* dst, const ImageRecord* first,
                                         const ImageRecord* second, const ImageRecord* stencil, int32_t dx,
                                         int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                                         float progress, float softness) {
  return BBIStencilFlipLE(dst, second, first, stencil, dx, dy, w, h, sx, sy, progress, softness);
}

int32_t TESSARO_CALL BBIStencilAddsigned(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                         int32_t w, int32_t h, int32_t sx, int32_t sy, float opacity,
                                         uint32_t colour) {
  AreaPair areas;
  if (!clip_two(dst, src, dx, dy, w, h, sx, sy, areas)) return status_nothing;
  // The offset 2 * c - 255 of each colour as two saturating steps, of which one is 0; alpha falls to 0.
  uint32_t raise = 0, lower = 0xFF000000;
  for (int k = 0; k < 24; k += 8) {
    const auto offset = static_cast<int32_t>(2 * (colour >> k & 255)) - 255;
    (offset > 0 ? raise : lower) |= static_cast<uint32_t>(offset > 0 ? offset : -offset) << k;
  }
  kernels<StencilKernels>().add_signed(areas, raise, lower, alpha_factor(clamped(opacity, 0.0f, 1.0f)));
  return status_done;
}

}  // extern "C"
