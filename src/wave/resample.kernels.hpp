// kernels: ResampleKernels
#include <immintrin.h>

#include "wave/resample.hpp"
#include "wave/stored.hpp"

namespace {

// Sample pairs (here, next) times their weights. The weight of a frame that is hit is 32768 and does not fit, so that
// the weights are kept negative.
TESSARO_INLINE __m128i blended(__m128i pairs, __m128i weights) {
  return _mm_srai_epi32(_mm_sub_epi32(_mm_setzero_si128(), _mm_madd_epi16(pairs, weights)), 15);
}

TESSARO_INLINE __m128i load_weights(const int32_t* weights) {
  return _mm_load_si128(reinterpret_cast<const __m128i*>(weights));
}

// Eight samples of the frames at at[0], at[1], ...
template <size_t lanes>
TESSARO_INLINE __m128i eight(const int16_t* in, const int32_t* at, const int32_t* weights);

template <>
TESSARO_INLINE __m128i eight<2>(const int16_t* in, const int32_t* at, const int32_t* weights) {
  const auto two = [=](size_t j) {
    const auto pair = [=](size_t k) {
      return *reinterpret_cast<const F64*>(in + 2 * static_cast<ptrdiff_t>(at[k]));
    };
    const __m128i both = _mm_castpd_si128(_mm_set_pd(pair(j + 1), pair(j)));
    return _mm_shufflehi_epi16(_mm_shufflelo_epi16(both, 0xD8), 0xD8);
  };
  const __m128i w = load_weights(weights);
  return _mm_packs_epi32(blended(two(0), _mm_unpacklo_epi32(w, w)),
                         blended(two(2), _mm_unpackhi_epi32(w, w)));
}

template <>
TESSARO_INLINE __m128i eight<1>(const int16_t* in, const int32_t* at, const int32_t* weights) {
  const auto four = [=](size_t j) {
    const auto pair = [=](size_t k) {
      return _mm_cvtsi32_si128(*reinterpret_cast<const I32*>(in + at[j + k]));
    };
    return blended(
        _mm_unpacklo_epi64(_mm_unpacklo_epi32(pair(0), pair(1)), _mm_unpacklo_epi32(pair(2), pair(3))),
        load_weights(weights + j));
  };
  return _mm_packs_epi32(four(0), four(4));
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
  for (; j + step <= n; j += step)
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + lanes * j), eight<lanes>(in, at + j, weights + j));
  if (const size_t rest = n - j) {
    const __m128i last = eight<lanes>(in, at + j, weights + j);
    __builtin_memcpy(out + lanes * j, &last, 2 * lanes * rest);
  }
}

}  // namespace

TESSARO_KERNELS(ResampleKernels){.blend = {blend<1>, blend<2>}};
