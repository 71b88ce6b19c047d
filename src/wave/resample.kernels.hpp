// kernels: ResampleKernels
#include "wave/resample.hpp"
#include "wave/stored.hpp"

namespace {

// Sample pairs (here, next) times their weights. The weight of a frame that is hit is 32768 and does not fit,
// so that the weights are kept negative.
TESSARO_INLINE Int4 blended(const Short8& pairs, const Int4& weights) {
  return -dot_pairs(pairs, reinterpret_cast<Short8>(weights)) >> 15;
}

// Eight samples of the frames at at[0], at[1], ...
template <size_t lanes>
TESSARO_INLINE Short8 eight(const int16_t* in, const int32_t* at, const int32_t* weights) {
  if constexpr (lanes == 2) {
    // Two frames and those behind them, l0 r0 l1 r1, to l0 l1 r0 r1.
    const auto two = [=](size_t j) {
      const auto pair = [=](size_t k) { return get<double>(in + 2 * static_cast<ptrdiff_t>(at[k])); };
      const auto both = reinterpret_cast<Short8>(Double2{pair(j), pair(j + 1)});
      return __builtin_shufflevector(both, both, 0, 2, 1, 3, 4, 6, 5, 7);
    };
    const Int4 w = get<Int4>(weights);
    return narrowed(blended(two(0), __builtin_shufflevector(w, w, 0, 0, 1, 1)),
                    blended(two(2), __builtin_shufflevector(w, w, 2, 2, 3, 3)));
  } else {
    const auto four = [=](size_t j) {
      const auto pair = [=](size_t k) { return get<int32_t>(in + at[j + k]); };
      return blended(reinterpret_cast<Short8>(Int4{pair(0), pair(1), pair(2), pair(3)}),
                     get<Int4>(weights + j));
    };
    return narrowed(four(0), four(4));
  }
}

template <size_t lanes>
void blend(int16_t* out, const int16_t* in, int32_t base, int32_t first, size_t n, double ratio,
           int32_t fine) {
  constexpr size_t step = 8 / lanes;
  alignas(64) int32_t at[tessaro::resample_frames + step], weights[tessaro::resample_frames + step];
  const auto count = static_cast<int32_t>(n);
  for (int32_t j = 0; j < count; ++j) {
    const double p = (first + j) * ratio;
    const auto frame = static_cast<int32_t>(p);
    const int32_t part = static_cast<int32_t>((p - frame) * 32768) & fine;
    at[j] = frame - base;
    weights[j] =
        static_cast<int32_t>(0x8000u + static_cast<uint32_t>(part) - (static_cast<uint32_t>(part) << 16));
  }
  for (size_t j = n; j < n + step; ++j) at[j] = weights[j] = 0;
  size_t j = 0;
  for (; j + step <= n; j += step) put(out + lanes * j, eight<lanes>(in, at + j, weights + j));
  if (const size_t rest = n - j) {
    const Short8 last = eight<lanes>(in, at + j, weights + j);
    __builtin_memcpy(out + lanes * j, &last, 2 * lanes * rest);
  }
}

}  // namespace

TESSARO_KERNELS(ResampleKernels){.blend = {blend<1>, blend<2>}};
