// kernels: ReverbKernels for scalar sse2 avx2
#include <immintrin.h>

#include "wave/reverb.hpp"
#include "wave/stored.hpp"

namespace {

// Truncated to 64 bits; what does not fit (not-a-number included) gives the smallest integer.
TESSARO_INLINE int64_t whole(double x) {
#if defined(__x86_64__)
  return _mm_cvttsd_si64(_mm_set_sd(x));
#else
  if (x > -2147483649.0 && x < 2147483648.0) return static_cast<int32_t>(x);
  return x >= -9223372036854775808.0 && x < 9223372036854775808.0 ? static_cast<int64_t>(x) : INT64_MIN;
#endif
}

TESSARO_INLINE double* frame(uint8_t* ring, int64_t at) {
  return reinterpret_cast<double*>(ring + 16 * static_cast<size_t>(at & tessaro::ring_mask));
}

TESSARO_INLINE __m128d gains(const tessaro::Taps& taps, size_t t) {
  return _mm_set_pd(*reinterpret_cast<const F64*>(taps.right + 8 * t),
                    *reinterpret_cast<const F64*>(taps.left + 8 * t));
}

TESSARO_INLINE void deposit(double* at, double weight, __m128d gain) {
  _mm_storeu_pd(at, _mm_add_pd(_mm_loadu_pd(at), _mm_mul_pd(_mm_set1_pd(weight), gain)));
}

// The frames i and i + 1, which follow each other unless i is the last of the ring.
TESSARO_INLINE void deposit_both(uint8_t* ring, int64_t i, double f, double echo, __m128d gain) {
#if defined(__AVX2__)
  if ((i & tessaro::ring_mask) != tessaro::ring_mask) {
    double* at = frame(ring, i);
    const __m256d share = _mm256_set_m128d(_mm_set1_pd(f), _mm_set1_pd(1 - f));
    const __m256d both =
        _mm256_mul_pd(_mm256_mul_pd(share, _mm256_set1_pd(echo)), _mm256_set_m128d(gain, gain));
    _mm256_storeu_pd(at, _mm256_add_pd(_mm256_loadu_pd(at), both));
    return;
  }
#endif
  deposit(frame(ring, i), (1 - f) * echo, gain);
  deposit(frame(ring, static_cast<int64_t>(static_cast<uint64_t>(i) + 1)), f * echo, gain);
}

void scatter(uint8_t* ring, double x, double echo, const tessaro::Taps& taps) {
  for (size_t t = 0; t < taps.count; ++t) {
    const int64_t i = whole(x);
    deposit_both(ring, i, x - static_cast<double>(i), echo, gains(taps, t));
    x += taps.step[t];
  }
}

}  // namespace

TESSARO_KERNELS(ReverbKernels){.scatter = scatter};
