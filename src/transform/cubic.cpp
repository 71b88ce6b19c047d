// Resizing of whole images with a cubic kernel of 4 x 4 taps.
#include "frame/clip.hpp"
#include "frame/heap.hpp"
#include "simd/scalar.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

double kernel(double x) {
  return x < 1.0 ? 1.0 - 2.0 * x * x + x * x * x : 4.0 - 8.0 * x + 5.0 * x * x - x * x * x;
}

// The four taps around a position along one axis.
struct Taps {
  int32_t first;
  bool
      usual;  // the inner weights are positive and the outer ones are not; rounding may say otherwise at a lobe's end
  double weights[4];
};
Taps taps_at(int32_t i, double ratio) {
  const double at = static_cast<double>(i) * ratio;
  const int32_t whole = trunc32(at);
  const double t = at - static_cast<double>(whole);
  Taps taps = {whole - 1, false, {kernel(1.0 + t), kernel(t), kernel(1.0 - t), kernel(2.0 - t)}};
  const double* w = taps.weights;
  taps.usual = w[0] <= 0.0 && w[1] >= 0.0 && w[2] >= 0.0 && w[3] <= 0.0;
  return taps;
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
    const double share = static_cast<double>(b.weight) / sum;  // weights are not negative, so it is 0..1
    const auto w = static_cast<uint32_t>(static_cast<int32_t>(share * 256.0)), rest = 256 - w;
    // The weighted mix; its lanes stay below 65536, so that one product serves two.
    const One from{a.sample}, to{b.sample};
    a.sample = join_high(One::Half{even(from).v * rest + even(to).v * w},
                         One::Half{odd(from).v * rest + odd(to).v * w})
                   .v;
  }
  a.weight = static_cast<float>(sum);
}

uint32_t merged(Tap (&taps)[16]) {
  for (int32_t distance = 1; distance < 16; distance *= 2)
    for (int32_t k = 0; k < 16; k += 2 * distance) merge(taps[k], taps[k + distance]);
  return taps[0].sample;
}

// Two negative lobes make a positive weight, which acts; a single one does not.
float tap_weight(const Taps& column, const Taps& row, int32_t x, int32_t y) {
  const auto weight = static_cast<float>(column.weights[x] * row.weights[y]);
  return weight < 0.0f ? 0.0f : weight;
}

uint32_t sample_anywhere(const ImageView& s, const Taps& column, const Taps& row) {
  Tap taps[16];
  for (int32_t k = 0; k < 16; ++k) {
    const int32_t x = column.first + (k & 3), y = row.first + (k >> 2);
    taps[k] = {s.contains(x, y) ? s.get(x, y) : 0, tap_weight(column, row, k & 3, k >> 2)};
  }
  return merged(taps);
}

// Within the source and with the usual signs, the corners and the inner four are all that weighs; merges with a tap that
// weighs nothing give the other one.
uint32_t sample_within(const ImageView& s, const Taps& column, const Taps& row) {
  const uint8_t* at = s.at(column.first, row.first);
  const auto tap = [&](int32_t x, int32_t y) -> Tap {
    return {load<uint32_t>(at + y * s.pitch + 4 * x), static_cast<float>(column.weights[x] * row.weights[y])};
  };
  const auto pair = [](Tap a, const Tap& b) {
    merge(a, b);
    return a;
  };
  const Tap upper = pair(pair(tap(0, 0), tap(3, 0)), pair(tap(1, 1), tap(2, 1)));
  const Tap lower = pair(pair(tap(1, 2), tap(2, 2)), pair(tap(0, 3), tap(3, 3)));
  return pair(upper, lower).sample;
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
    const bool inner_row = row.usual && row.first >= 0 && row.first + 3 < s.height;
    for (int32_t x = 0; x < d.width; ++x) {
      const Taps column = columns ? columns[static_cast<size_t>(x)] : taps_at(x, rx);
      const bool inner = inner_row && column.usual && column.first >= 0 && column.first + 3 < s.width;
      d.set(x, y, inner ? sample_within(s, column, row) : sample_anywhere(s, column, row));
    }
  }
  return status_done;
}
