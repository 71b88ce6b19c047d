// kernels: CubicKernels
#include "transform/cubic.hpp"

#include "simd/rules.hpp"
#include "simd/walk.hpp"

namespace {

using tessaro::CubicColumns;
using tessaro::CubicRow;

// Weighted samples of a few pixels, merged in pairs: neighbours first, then their results.
template <class P, size_t count, size_t block>
struct WeightedSamples {
  alignas(64) uint32_t samples[count][block];
  alignas(64) float weights[count][block];

  TESSARO_INLINE void merge(size_t a, size_t b, size_t pixels) {
    alignas(64) uint32_t share[block];  // of b, in both lanes of the pixel's halves
    for (size_t x = 0; x < pixels; ++x) {
      const double of_b = static_cast<double>(weights[b][x]);
      const double sum = static_cast<double>(weights[a][x]) + of_b;
      const auto part = static_cast<int32_t>(of_b / (sum > 0.0 ? sum : 1.0) * 256.0);
      share[x] = static_cast<uint32_t>(part) * 0x10001u;
      weights[a][x] = static_cast<float>(sum);
    }
    if constexpr (P::lanes == 1) {
      for (size_t x = 0; x < pixels;
           ++x) {  // sums of products stay below 65536: one product serves two channels
        const uint32_t w = share[x] & 0xFFFF, rest = 256 - w;
        const One from{samples[a][x]}, to{samples[b][x]};
        const One::Half e{even(from).v * rest + even(to).v * w}, o{odd(from).v * rest + odd(to).v * w};
        samples[a][x] = join_high(e, o).v;
      }
    } else {
      for (size_t x = 0; x < pixels; x += P::lanes)
        mix(P::load(samples[a] + x), P::load(samples[b] + x), halves(P::load(share + x)))
            .store(samples[a] + x);
    }
  }
  TESSARO_INLINE void merge_all(size_t pixels) {
    for (size_t distance = 1; distance < count; distance *= 2)
      for (size_t k = 0; k < count; k += 2 * distance) merge(k, k + distance, pixels);
  }
};

// Of the taps of an inner pixel only these have weight: the corners, by two negative lobes, and the inner
// four. A merge with a tap that weighs nothing gives the other one, so that they alone make the same pairs.
constexpr struct {
  size_t column, row;
} acting[] = {{0, 0}, {3, 0}, {1, 1}, {2, 1}, {1, 2}, {2, 2}, {0, 3}, {3, 3}};

void inner(uint8_t* dst, const CubicColumns& columns, const CubicRow& row, size_t n) {
  constexpr size_t block = 64;
  for (size_t from = 0; from < n; from += block) {
    const size_t pixels = n - from < block ? n - from : block;
    // Whole vectors: the last pixel fills the last one up.
    const size_t padded = (pixels + Px::lanes - 1) / Px::lanes * Px::lanes;
    WeightedSamples<Px, 8, block> taps;
    for (size_t k = 0; k < 8; ++k) {
      const double* column = columns.weights[acting[k].column] + from;
      const double of_row = row.weights[acting[k].row];
      float* weights = taps.weights[k];
      for (size_t x = 0; x < pixels; ++x) weights[x] = static_cast<float>(column[x] * of_row);
      for (size_t x = pixels; x < padded; ++x) weights[x] = weights[pixels - 1];
    }
    for (size_t x = 0; x < padded; ++x) {
      const size_t column = from + (x < pixels ? x : pixels - 1);
      const ptrdiff_t at = 4 * static_cast<ptrdiff_t>(columns.first[column]);
      for (size_t k = 0; k < 8; ++k)
        std::memcpy(&taps.samples[k][x], row.source[acting[k].row] + at + 4 * acting[k].column, 4);
    }
    taps.merge_all(padded);
    walk_row<Px>(dst + 4 * from, pixels, Replace<Px>{}, reinterpret_cast<const uint8_t*>(taps.samples[0]));
  }
}

uint32_t merged(const uint32_t samples[16], const float weights[16]) {
  WeightedSamples<One, 16, 1> taps;
  std::memcpy(taps.samples, samples, sizeof taps.samples);
  std::memcpy(taps.weights, weights, sizeof taps.weights);
  taps.merge_all(1);
  return taps.samples[0][0];
}

}  // namespace

TESSARO_KERNELS(CubicKernels){.inner = inner, .merged = merged};
