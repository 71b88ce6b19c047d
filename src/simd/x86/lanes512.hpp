// The operations of lanes.hpp on registers of 64 bytes.
#pragma once

#include "simd/x86/lanes256.hpp"

namespace {

typedef uint8_t Byte64 __attribute__((vector_size(64)));

TESSARO_INLINE void to_doubles(const Whole& v, Double8& out) {  // which the compiler would do in two halves
  out = reinterpret_cast<Double8>(_mm512_cvtepi32_pd(reinterpret_cast<__m256i>(v)));
}
TESSARO_INLINE Whole to_whole(const Double8& v) {
  return reinterpret_cast<Whole>(_mm512_cvttpd_epi32(reinterpret_cast<__m512d>(v)));
}

template <int n>
TESSARO_INLINE Byte64 behind(const Byte64& v, const Byte64& before) {
  const auto x = reinterpret_cast<__m512i>(v), y = reinterpret_cast<__m512i>(before);
  return reinterpret_cast<Byte64>(_mm512_alignr_epi8(x, _mm512_alignr_epi64(x, y, 6), 16 - n));
}
template <int n>
TESSARO_INLINE Byte64 lane_ends(const Byte64& v) {
  const auto x = reinterpret_cast<__m512i>(v);
  if constexpr (n == 4) return reinterpret_cast<Byte64>(_mm512_shuffle_epi32(x, _MM_PERM_DDDD));
  return reinterpret_cast<Byte64>(_mm512_shuffle_epi8(x, _mm512_set1_epi16(n == 1 ? 0x0F0F : 0x0F0E)));
}
template <int n>
TESSARO_INLINE Byte64 last_all_over(const Byte64& v) {
  const auto x = reinterpret_cast<__m512i>(v);
  return lane_ends<n>(reinterpret_cast<Byte64>(_mm512_shuffle_i64x2(x, x, 0xFF)));
}
template <int n>
TESSARO_INLINE Byte64 raised(const Byte64& v) {
  return reinterpret_cast<Byte64>(_mm512_bslli_epi128(reinterpret_cast<__m512i>(v), n));
}
template <int n>
TESSARO_INLINE Byte64 lanes_raised(const Byte64& v) {
  return reinterpret_cast<Byte64>(
      _mm512_alignr_epi64(reinterpret_cast<__m512i>(v), _mm512_setzero_si512(), 8 - 2 * n));
}

}  // namespace
