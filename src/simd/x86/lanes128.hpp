// The operations of lanes.hpp on registers of 16 bytes, for all of x86.
#pragma once

#include <emmintrin.h>

#include "simd/lanes.hpp"

namespace {

typedef uint8_t Byte16 __attribute__((vector_size(16)));

TESSARO_INLINE int32_t converted(double x) { return _mm_cvttsd_si32(_mm_set_sd(x)); }
#if defined(__x86_64__)
TESSARO_INLINE int64_t converted64(double x) { return _mm_cvttsd_si64(_mm_set_sd(x)); }
#endif
TESSARO_INLINE Int4 dot_pairs(const Short8& a, const Short8& b) {
  return reinterpret_cast<Int4>(_mm_madd_epi16(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
}
TESSARO_INLINE Short8 narrowed(const Int4& a, const Int4& b) {
  return reinterpret_cast<Short8>(
      _mm_packs_epi32(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
}
TESSARO_INLINE Byte16 byte_sums(const Byte16& v) {
  return reinterpret_cast<Byte16>(_mm_sad_epu8(reinterpret_cast<__m128i>(v), _mm_setzero_si128()));
}

template <int n>
TESSARO_INLINE Byte16 behind(const Byte16& v, const Byte16& before) {
  return reinterpret_cast<Byte16>(_mm_or_si128(_mm_slli_si128(reinterpret_cast<__m128i>(v), n),
                                               _mm_srli_si128(reinterpret_cast<__m128i>(before), 16 - n)));
}
template <int n>
TESSARO_INLINE Byte16 last_all_over(const Byte16& v) {
  auto x = reinterpret_cast<__m128i>(v);
  if constexpr (n == 1) x = _mm_unpackhi_epi8(x, x);
  if constexpr (n <= 2) x = _mm_shufflehi_epi16(x, 0xFF);
  return reinterpret_cast<Byte16>(_mm_shuffle_epi32(x, 0xFF));
}
template <int n>
TESSARO_INLINE Byte16 raised(const Byte16& v) {
  return reinterpret_cast<Byte16>(_mm_slli_si128(reinterpret_cast<__m128i>(v), n));
}

}  // namespace
