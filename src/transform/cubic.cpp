// Resizing of whole images with a cubic kernel of 4 x 4 taps.
#include "frame/clip.hpp"
#include "frame/heap.hpp"
#include "simd/scalar.hpp"

#include "simd/rules.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

double kernel(double x) {
  return x < 1.0 ? 1.0 - 2.0 * x * x + x * x * x : 4.0 - 8.0 * x + 5.0 * x * x - x * x * x;
}

// The four taps around a position along one axis.
struct Taps {
  int32_t first;
  double weights[4];
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

struct Tap {
  uint32_t sample;
  float weight;
};

void merge(Tap& a, const Tap& b) {
  const double sum = static_cast<double>(a.weight) + static_cast<double>(b.weight);
  if (sum > 0.0) {
    double t = static_cast<double>(b.weight) / sum;
    t = t < 0.0 ? 0.0 : t > 1.0 ? 1.0 : t;
    const auto weight = One::Half::splat(static_cast<uint32_t>(trunc32(t * 256.0)));
    a.sample = mix(One{a.sample}, One{b.sample}, weight).v;
  }
  a.weight = static_cast<float>(sum);
}

}  // namespace

extern "C" int32_t TESSARO_CALL BBILinear(ImageRecord* dst, const ImageRecord* src) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  if (d.width < 1 || d.height < 1 || s.width < 1 || s.height < 1) return status_nothing;
  const double rx = ratio_of(s.width, d.width), ry = ratio_of(s.height, d.height);
  HeapArray<Taps> columns(static_cast<size_t>(d.width));
  if (columns)
    for (int32_t x = 0; x < d.width; ++x) columns[static_cast<size_t>(x)] = taps_at(x, rx);
  for (int32_t y = 0; y < d.height; ++y) {
    const Taps row = taps_at(y, ry);
    for (int32_t x = 0; x < d.width; ++x) {
      const Taps column = columns ? columns[static_cast<size_t>(x)] : taps_at(x, rx);
      Tap taps[16];
      for (int32_t k = 0; k < 16; ++k) {
        // Two negative lobes make a positive weight, which acts; a single one does not.
        const auto weight = static_cast<float>(column.weights[k & 3] * row.weights[k >> 2]);
        const int32_t at = column.first + (k & 3), from = row.first + (k >> 2);
        taps[k] = {s.contains(at, from) ? s.get(at, from) : 0, weight < 0.0f ? 0.0f : weight};
      }
      for (int32_t distance = 1; distance < 16; distance *= 2)
        for (int32_t k = 0; k < 16; k += 2 * distance) merge(taps[k], taps[k + distance]);
      d.set(x, y, taps[0].sample);
    }
  }
  return status_done;
}
