// The operations of lanes.hpp on registers of 32 bytes, for AVX2 and what has more.
#pragma once

#include <immintrin.h>

#include "simd/x86/lanes128.hpp"

namespace {

TESSARO_INLINE __m128i load16(const uint8_t* in) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(in));
}
template <>
TESSARO_INLINE Whole read_whole<1>(const uint8_t* in) {
  return reinterpret_cast<Whole>(_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(in))));
}
template <>
TESSARO_INLINE Whole read_whole<2>(const uint8_t* in) {
  return reinterpret_cast<Whole>(_mm256_cvtepi16_epi32(load16(in)));
}
template <>
TESSARO_INLINE Whole read_whole<3>(const uint8_t* in) {
  // Two loads that overlap, four samples in each; those of the second begin behind the overlap.
  const __m256i both = _mm256_inserti128_si256(_mm256_castsi128_si256(load16(in)), load16(in + 8), 1);
  // aaabbbcccddd.... ....eeefffggghhh -> 0aaa0bbb0ccc0ddd 0eee0fff0ggg0hhh
  const __m256i up = _mm256_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11,  //
                                      -1, 4, 5, 6, -1, 7, 8, 9, -1, 10, 11, 12, -1, 13, 14, 15);
  return reinterpret_cast<Whole>(_mm256_srai_epi32(_mm256_shuffle_epi8(both, up), 8));
}
template <>
TESSARO_INLINE Whole read_whole<4>(const uint8_t* in) {
  return get<Whole>(in);
}
template <>
TESSARO_INLINE void write_whole<1>(uint8_t* out, const Whole& v) {
  // a...b...c...d... e...f...g...h... -> abcd, efgh -> abcdefgh
  const __m256i low = _mm256_setr_epi8(0, 4, 8, 12, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,  //
                                       0, 4, 8, 12, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1);
  const __m256i fours = _mm256_shuffle_epi8(reinterpret_cast<__m256i>(v), low);
  const __m128i bytes = _mm_unpacklo_epi32(_mm256_castsi256_si128(fours), _mm256_extracti128_si256(fours, 1));
  _mm_storel_epi64(reinterpret_cast<__m128i*>(out), bytes);
}
TESSARO_INLINE void put_low16(uint8_t* out, __m256i v) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm256_castsi256_si128(v));
}
template <>
TESSARO_INLINE void write_whole<2>(uint8_t* out, const Whole& v) {
  // aa..bb..cc..dd.. ee..ff..gg..hh.. -> aabbccdd........ eeffgghh........ -> aabbccddeeffgghh
  const __m256i low = _mm256_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, -1, -1, -1, -1, -1, -1, -1, -1,  //
                                       0, 1, 4, 5, 8, 9, 12, 13, -1, -1, -1, -1, -1, -1, -1, -1);
  put_low16(out, _mm256_permute4x64_epi64(_mm256_shuffle_epi8(reinterpret_cast<__m256i>(v), low), 0x08));
}
template <>
TESSARO_INLINE void write_whole<3>(uint8_t* out, const Whole& v) {
  // aaa.bbb.ccc.ddd. -> aaabbbcccddd.... in each half, then both halves together: stores of 16 and 8 bytes,
  // because those under a mask are slow on some processors.
  const __m256i front = _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1,  //
                                         0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
  const __m256i all = _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(reinterpret_cast<__m256i>(v), front),
                                                  _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7));
  put_low16(out, all);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 16), _mm256_extracti128_si256(all, 1));
}
template <>
TESSARO_INLINE void write_whole<4>(uint8_t* out, const Whole& v) {
  put(out, v);
}

TESSARO_INLINE Whole to_whole(const DoublePair& v) {
  const auto low = reinterpret_cast<__m256d>(v.low), high = reinterpret_cast<__m256d>(v.high);
  return reinterpret_cast<Whole>(_mm256_inserti128_si256(_mm256_castsi128_si256(_mm256_cvttpd_epi32(low)),
                                                         _mm256_cvttpd_epi32(high), 1));
}
TESSARO_INLINE bool any_negative(const Natural& v) {
  const auto x = reinterpret_cast<__m256>(v);
  return !_mm256_testz_ps(x, x);
}
TESSARO_INLINE bool none_set(const Int4& v) {
  const auto x = reinterpret_cast<__m128i>(v);
  return _mm_testz_si128(x, x);
}
TESSARO_INLINE Byte32 byte_sums(const Byte32& v) {
  return reinterpret_cast<Byte32>(_mm256_sad_epu8(reinterpret_cast<__m256i>(v), _mm256_setzero_si256()));
}

template <int n>
TESSARO_INLINE Byte32 behind(const Byte32& v, const Byte32& before) {
  const auto x = reinterpret_cast<__m256i>(v), y = reinterpret_cast<__m256i>(before);
  return reinterpret_cast<Byte32>(_mm256_alignr_epi8(x, _mm256_permute2x128_si256(y, x, 0x21), 16 - n));
}
template <int n>
TESSARO_INLINE Byte32 lane_ends(const Byte32& v) {
  const auto x = reinterpret_cast<__m256i>(v);
  if constexpr (n == 4) return reinterpret_cast<Byte32>(_mm256_shuffle_epi32(x, 0xFF));
  return reinterpret_cast<Byte32>(_mm256_shuffle_epi8(x, _mm256_set1_epi16(n == 1 ? 0x0F0F : 0x0F0E)));
}
template <int n>
TESSARO_INLINE Byte32 last_all_over(const Byte32& v) {
  const auto x = reinterpret_cast<__m256i>(v);
  return lane_ends<n>(reinterpret_cast<Byte32>(_mm256_permute2x128_si256(x, x, 0x11)));
}
template <int n>
TESSARO_INLINE Byte32 raised(const Byte32& v) {
  return reinterpret_cast<Byte32>(_mm256_bslli_epi128(reinterpret_cast<__m256i>(v), n));
}
template <int n>
TESSARO_INLINE Byte32 lanes_raised(const Byte32& v) {
  static_assert(n == 1);
  const auto x = reinterpret_cast<__m256i>(v);
  return reinterpret_cast<Byte32>(_mm256_permute2x128_si256(x, x, 0x08));
}

TESSARO_INLINE __m256i load32(const uint8_t* p) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
}
TESSARO_INLINE void store32(uint8_t* p, __m256i v) { _mm256_storeu_si256(reinterpret_cast<__m256i*>(p), v); }
// Compilers take at least half as many shuffles more for these.
TESSARO_INLINE void unzipped(const uint8_t* p, Byte32& a, Byte32& b) {
  const __m256i low = _mm256_set1_epi16(0xFF);
  const __m256i x = load32(p), y = load32(p + 32);
  const __m256i even = _mm256_packus_epi16(_mm256_and_si256(x, low), _mm256_and_si256(y, low));
  const __m256i odd = _mm256_packus_epi16(_mm256_srli_epi16(x, 8), _mm256_srli_epi16(y, 8));
  a = reinterpret_cast<Byte32>(_mm256_permute4x64_epi64(even, 0xD8));
  b = reinterpret_cast<Byte32>(_mm256_permute4x64_epi64(odd, 0xD8));
}

// Where the bytes of 16 triples come from, 16 at a time, for each channel; above 127 from another channel.
struct Triples {
  alignas(32) uint8_t from[3][3][32];
};
constexpr Triples triples = [] {
  Triples t{};
  for (unsigned part = 0; part < 3; ++part)
    for (unsigned channel = 0; channel < 3; ++channel)
      for (unsigned i = 0; i < 32; ++i) {
        const unsigned at = 16 * part + i % 16;
        t.from[part][channel][i] = static_cast<uint8_t>(at % 3 == channel ? at / 3 : 0x80);
      }
  return t;
}();
TESSARO_INLINE void zipped(uint8_t* p, const Byte32& x, const Byte32& y, const Byte32& z) {
  const auto moved = [](const Byte32& v, const uint8_t* from) {
    return _mm256_shuffle_epi8(reinterpret_cast<__m256i>(v), load32(from));
  };
  __m256i part[3];  // of the first 16 triples in the lower half, of the others in the upper
  for (int k = 0; k < 3; ++k)
    part[k] = _mm256_or_si256(_mm256_or_si256(moved(x, triples.from[k][0]), moved(y, triples.from[k][1])),
                              moved(z, triples.from[k][2]));
  store32(p, _mm256_permute2x128_si256(part[0], part[1], 0x20));
  store32(p + 32, _mm256_permute2x128_si256(part[2], part[0], 0x30));
  store32(p + 64, _mm256_permute2x128_si256(part[1], part[2], 0x31));
}
TESSARO_INLINE void zipped(uint8_t* p, const Byte32& w, const Byte32& x, const Byte32& y, const Byte32& z) {
  const auto a = reinterpret_cast<__m256i>(w), b = reinterpret_cast<__m256i>(x);
  const auto c = reinterpret_cast<__m256i>(y), d = reinterpret_cast<__m256i>(z);
  const __m256i ab_low = _mm256_unpacklo_epi8(a, b), ab_high = _mm256_unpackhi_epi8(a, b);
  const __m256i cd_low = _mm256_unpacklo_epi8(c, d), cd_high = _mm256_unpackhi_epi8(c, d);
  const __m256i q0 = _mm256_unpacklo_epi16(ab_low, cd_low), q1 = _mm256_unpackhi_epi16(ab_low, cd_low);
  const __m256i q2 = _mm256_unpacklo_epi16(ab_high, cd_high), q3 = _mm256_unpackhi_epi16(ab_high, cd_high);
  store32(p, _mm256_permute2x128_si256(q0, q1, 0x20));
  store32(p + 32, _mm256_permute2x128_si256(q2, q3, 0x20));
  store32(p + 64, _mm256_permute2x128_si256(q0, q1, 0x31));
  store32(p + 96, _mm256_permute2x128_si256(q2, q3, 0x31));
}

}  // namespace
