// Resizing of whole images with a cubic kernel of 4 x 4 taps.
#include "transform/cubic.hpp"

#include "core/clip.hpp"
#include "core/numbers.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

constexpr int32_t strip = 256;

double kernel(double x) {
  return x < 1.0 ? 1.0 - 2.0 * x * x + x * x * x : 4.0 - 8.0 * x + 5.0 * x * x - x * x * x;
}

// The four taps around a position along one axis.
struct Taps {
  int32_t first;
  double weights[4];

  // All within the source and with the usual signs; rounding may say otherwise at a lobe's end.
  bool inner(int64_t size) const {
    const double* w = weights;
    return first >= 0 && first + 3 < size && w[0] <= 0.0 && w[1] >= 0.0 && w[2] >= 0.0 && w[3] <= 0.0;
  }
};
Taps taps_at(int32_t i, double ratio) {
  const double at = static_cast<double>(i) * ratio;
  const int32_t whole = trunc32(at);
  const double t = at - static_cast<double>(whole);
  return {whole - 1, {kernel(1.0 + t), kernel(t), kernel(1.0 - t), kernel(2.0 - t)}};
}

// A destination of one pixel samples the first column or row.
double ratio_of(int32_t from, int32_t to) {
  return to == 1 ? 0.0 : static_cast<double>(from - 1) / static_cast<double>(to - 1);
}

uint32_t sample(const ImageView& s, const Taps& column, const Taps& row) {
  uint32_t samples[16];
  float weights[16];
  for (int32_t k = 0; k < 16; ++k) {
    const int32_t x = column.first + (k & 3), y = row.first + (k >> 2);
    samples[k] = s.contains(x, y) ? s.get(x, y) : 0;
    // Two negative lobes make a positive weight, which acts; a single one does not.
    const auto weight = static_cast<float>(column.weights[k & 3] * row.weights[k >> 2]);
    weights[k] = weight < 0.0f ? 0.0f : weight;
  }
  return kernels<CubicKernels>().merged(samples, weights);
}

// Columns of the destination, so many that they stay in the nearest cache. Those within the source go
// together, in runs.
void resize_strip(const ImageView& d, const ImageView& s, int32_t left, int32_t width, double rx, double ry) {
  bool inner[strip];
  int32_t first[strip];
  double weights[4][strip];
  for (int32_t x = 0; x < width; ++x) {
    const Taps column = taps_at(left + x, rx);
    inner[x] = column.inner(s.width);
    first[x] = column.first;
    for (int32_t k = 0; k < 4; ++k) weights[k][x] = column.weights[k];
  }
  for (int32_t y = 0; y < d.height; ++y) {
    const Taps row = taps_at(y, ry);
    CubicRow source;
    const bool inner_row = row.inner(s.height);
    for (int32_t k = 0; inner_row && k < 4; ++k) {
      source.source[k] = s.at(0, row.first + k);
      source.weights[k] = row.weights[k];
    }
    for (int32_t x = 0; x < width;) {
      int32_t end = x;
      while (inner_row && end < width && inner[end]) ++end;
      if (end == x) {
        d.set(left + x, y, sample(s, taps_at(left + x, rx), row));
        ++x;
        continue;
      }
      const CubicColumns run = {first + x, {weights[0] + x, weights[1] + x, weights[2] + x, weights[3] + x}};
      kernels<CubicKernels>().inner(d.at(left + x, y), run, source, static_cast<size_t>(end - x));
      x = end;
    }
  }
}

}  // namespace

extern "C" int32_t TESSARO_CALL BBILinear(ImageRecord* dst, const ImageRecord* src) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  if (d.width < 1 || d.height < 1 || s.width < 1 || s.height < 1) return status_nothing;
  const double rx = ratio_of(s.width, d.width), ry = ratio_of(s.height, d.height);
  const Area to = {d.at(0, 0), d.pitch, d.width, d.height}, from = {s.at(0, 0), s.pitch, s.width, s.height};
  if (!rows_apart(to) || share_memory(to, from)) {
    // Pixel by pixel: what is written may be sampled or written again.
    for (int32_t y = 0; y < d.height; ++y)
      for (int32_t x = 0; x < d.width; ++x) d.set(x, y, sample(s, taps_at(x, rx), taps_at(y, ry)));
    return status_done;
  }
  for (int32_t x = 0; x < d.width; x += strip)
    resize_strip(d, s, x, d.width - x < strip ? d.width - x : strip, rx, ry);
  return status_done;
}
