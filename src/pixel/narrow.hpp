// Pixels that memory holds in fewer than four bytes, in the vocabulary's vectors. Each store writes exactly the
// bytes of its pixels, and each load reads no other.
//   store_words(p, words)         the lower words of all lanes, then the upper ones; not for single pixels
//   store_triples(p, a, b, c, d)  the lower three bytes
//   store_bytes(p, a, b, c, d)    the lowest byte; the upper ones must be 0
//   store_bits(p, a, b, c, d)     the top bit of the lowest byte, the first pixel in bit 7; not for single pixels
//   load_words load_triples       one vector; the upper bytes are 0
#pragma once

#include "simd/vocabulary.hpp"

namespace {

// The 2 * lanes pixels of two vectors, in their order.
template <class P>
struct Pair {
  P first, second;
  TESSARO_INLINE static Pair load(const uint8_t* at, size_t n) {
    constexpr size_t lanes = P::lanes;
    return {load_some<P>(at, n < lanes ? n : lanes),
            n > lanes ? load_some<P>(at + 4 * lanes, n - lanes) : P::splat(0)};
  }
};

// The lower and the upper words of such pixels. In this order the lower lanes hold the first vector's.
template <class P>
struct Words {
  P lower, upper;
};
template <class P>
TESSARO_INLINE Words<P> words(P first, P second) {
  const P lower = P::splat(0xFFFF);
  return {choose_bits(lower, first, shl<16>(second)), choose_bits(lower, shr<16>(first), second)};
}
template <class P>
TESSARO_INLINE Pair<P> pixels(Words<P> w) {
  const P lower = P::splat(0xFFFF);
  return {choose_bits(lower, w.lower, shl<16>(w.upper)), choose_bits(lower, shr<16>(w.lower), w.upper)};
}
template <class P>
P load_words(const uint8_t* p) = delete;
template <class P>
P load_triples(const uint8_t* p) = delete;

template <>
TESSARO_INLINE One load_words<One>(const uint8_t* p) {
  return {p[0] | static_cast<uint32_t>(p[1]) << 8};
}
template <>
TESSARO_INLINE One load_triples<One>(const uint8_t* p) {
  return {p[0] | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16};
}
template <size_t bytes>
TESSARO_INLINE void store_one(uint8_t* p, One a) {
  for (size_t i = 0; i < bytes; ++i) p[i] = static_cast<uint8_t>(a.v >> 8 * i);
}
template <size_t bytes>
TESSARO_INLINE void store_ones(uint8_t* p, One a, One b, One c, One d) {
  store_one<bytes>(p, a);
  store_one<bytes>(p + bytes, b);
  store_one<bytes>(p + 2 * bytes, c);
  store_one<bytes>(p + 3 * bytes, d);
}
TESSARO_INLINE void store_words(uint8_t* p, One::Half words) { std::memcpy(p, &words.v, 4); }
TESSARO_INLINE void store_triples(uint8_t* p, One a, One b, One c, One d) { store_ones<3>(p, a, b, c, d); }
TESSARO_INLINE void store_bytes(uint8_t* p, One a, One b, One c, One d) { store_ones<1>(p, a, b, c, d); }

#if TESSARO_LANES == 16
template <>
TESSARO_INLINE Px load_words<Px>(const uint8_t* p) {
  return {_mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)))};
}
template <>
TESSARO_INLINE Px load_triples<Px>(const uint8_t* p) {
  const __m512i spread = _mm512_setr_epi32(0, 1, 2, 2, 3, 4, 5, 5, 6, 7, 8, 8, 9, 10, 11, 11);
  const __m512i from = _mm512_set4_epi32(static_cast<int>(0x800B0A09), static_cast<int>(0x80080706),
                                         static_cast<int>(0x80050403), static_cast<int>(0x80020100));
  return {_mm512_shuffle_epi8(_mm512_permutexvar_epi32(spread, _mm512_maskz_loadu_epi32(0xFFF, p)), from)};
}
// Here the lanes are in the order of the pixels.
template <>
TESSARO_INLINE Words<Px> words<Px>(Px first, Px second) {
  alignas(64) static constexpr uint16_t lower[] = {0,  2,  4,  6,  8,  10, 12, 14, 16, 18, 20,
                                                   22, 24, 26, 28, 30, 32, 34, 36, 38, 40, 42,
                                                   44, 46, 48, 50, 52, 54, 56, 58, 60, 62};
  const __m512i from = Px::load(lower).v, next = _mm512_add_epi16(from, _mm512_set1_epi16(1));
  return {{_mm512_permutex2var_epi16(first.v, from, second.v)},
          {_mm512_permutex2var_epi16(first.v, next, second.v)}};
}
template <>
TESSARO_INLINE Pair<Px> pixels<Px>(Words<Px> w) {
  alignas(64) static constexpr uint16_t first[] = {0,  32, 1,  33, 2,  34, 3,  35, 4,  36, 5,
                                                   37, 6,  38, 7,  39, 8,  40, 9,  41, 10, 42,
                                                   11, 43, 12, 44, 13, 45, 14, 46, 15, 47};
  const __m512i from = Px::load(first).v, next = _mm512_add_epi16(from, _mm512_set1_epi16(16));
  return {{_mm512_permutex2var_epi16(w.lower.v, from, w.upper.v)},
          {_mm512_permutex2var_epi16(w.lower.v, next, w.upper.v)}};
}
TESSARO_INLINE void store_words(uint8_t* p, Px::Half words) { Px{words.v}.store(p); }
TESSARO_INLINE void store_triples(uint8_t* p, Px a, Px b, Px c, Px d) {
  // Twelve bytes at the front of each 128 bits, then those of two vectors side by side.
  const __m512i front = _mm512_set4_epi32(static_cast<int>(0x80808080), 0x0E0D0C0A, 0x09080605, 0x04020100);
  a.v = _mm512_shuffle_epi8(a.v, front);
  b.v = _mm512_shuffle_epi8(b.v, front);
  c.v = _mm512_shuffle_epi8(c.v, front);
  d.v = _mm512_shuffle_epi8(d.v, front);
  Px{_mm512_permutex2var_epi32(a.v, _mm512_setr_epi32(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 16, 17, 18, 20),
                               b.v)}
      .store(p);
  Px{_mm512_permutex2var_epi32(
         b.v, _mm512_setr_epi32(5, 6, 8, 9, 10, 12, 13, 14, 16, 17, 18, 20, 21, 22, 24, 25), c.v)}
      .store(p + 64);
  Px{_mm512_permutex2var_epi32(
         c.v, _mm512_setr_epi32(10, 12, 13, 14, 16, 17, 18, 20, 21, 22, 24, 25, 26, 28, 29, 30), d.v)}
      .store(p + 128);
}
TESSARO_INLINE __m512i packed_bytes(Px a, Px b, Px c, Px d) {
  const __m512i order = _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15);
  return _mm512_permutexvar_epi32(
      order, _mm512_packus_epi16(_mm512_packus_epi32(a.v, b.v), _mm512_packus_epi32(c.v, d.v)));
}
TESSARO_INLINE void store_bytes(uint8_t* p, Px a, Px b, Px c, Px d) { Px{packed_bytes(a, b, c, d)}.store(p); }
TESSARO_INLINE void store_bits(uint8_t* p, Px a, Px b, Px c, Px d) {
  const __m512i turn = _mm512_set4_epi32(0x08090A0B, 0x0C0D0E0F, 0x00010203, 0x04050607);
  const uint64_t bits = _mm512_movepi8_mask(_mm512_shuffle_epi8(packed_bytes(a, b, c, d), turn));
  std::memcpy(p, &bits, sizeof bits);
}
#elif TESSARO_LANES == 8
template <>
TESSARO_INLINE Px load_words<Px>(const uint8_t* p) {
  return {_mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)))};
}
template <>
TESSARO_INLINE Px load_triples<Px>(const uint8_t* p) {
  const __m256i spread = _mm256_setr_epi32(0, 1, 2, 2, 3, 4, 5, 5);
  const __m256i from = _mm256_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1,  //
                                        0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
  return {_mm256_shuffle_epi8(_mm256_permutevar8x32_epi32(Px::load(p, 6).v, spread), from)};
}
TESSARO_INLINE void store_words(uint8_t* p, Px::Half words) {
  const __m256i lower_first = _mm256_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15,  //
                                               0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15);
  Px{_mm256_permute4x64_epi64(_mm256_shuffle_epi8(words.v, lower_first), 0xD8)}.store(p);
}
TESSARO_INLINE void store_triples(uint8_t* p, Px a, Px b, Px c, Px d) {
  // Twelve bytes at the front of each 128 bits; then each vector's six words to where the stores want them.
  const __m256i front = _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1,  //
                                         0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
  const auto placed = [front](Px x, __m256i order) {
    return _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(x.v, front), order);
  };
  a.v = placed(a, _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7));
  b.v = placed(b, _mm256_setr_epi32(2, 4, 5, 6, 7, 7, 0, 1));
  c.v = placed(c, _mm256_setr_epi32(5, 6, 7, 7, 0, 1, 2, 4));
  d.v = placed(d, _mm256_setr_epi32(7, 7, 0, 1, 2, 4, 5, 6));
  Px{_mm256_blend_epi32(a.v, b.v, 0xC0)}.store(p);
  Px{_mm256_blend_epi32(b.v, c.v, 0xF0)}.store(p + 32);
  Px{_mm256_blend_epi32(c.v, d.v, 0xFC)}.store(p + 64);
}
TESSARO_INLINE __m256i packed_bytes(Px a, Px b, Px c, Px d) {
  return _mm256_permutevar8x32_epi32(
      _mm256_packus_epi16(_mm256_packus_epi32(a.v, b.v), _mm256_packus_epi32(c.v, d.v)),
      _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
}
TESSARO_INLINE void store_bytes(uint8_t* p, Px a, Px b, Px c, Px d) { Px{packed_bytes(a, b, c, d)}.store(p); }
TESSARO_INLINE void store_bits(uint8_t* p, Px a, Px b, Px c, Px d) {
  const __m256i turn = _mm256_setr_epi8(7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12, 11, 10, 9, 8,  //
                                        7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12, 11, 10, 9, 8);
  const int bits = _mm256_movemask_epi8(_mm256_shuffle_epi8(packed_bytes(a, b, c, d), turn));
  std::memcpy(p, &bits, sizeof bits);
}
#elif TESSARO_LANES == 4
template <>
TESSARO_INLINE Px load_words<Px>(const uint8_t* p) {
  return {_mm_unpacklo_epi16(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), _mm_setzero_si128())};
}
template <>
TESSARO_INLINE Px load_triples<Px>(const uint8_t* p) {
  const __m128i v = Px::load(p, 3).v;
  const auto only = [](int lane) {
    return _mm_setr_epi32(lane == 0 ? 0xFFFFFF : 0, lane == 1 ? 0xFFFFFF : 0, lane == 2 ? 0xFFFFFF : 0,
                          lane == 3 ? 0xFFFFFF : 0);
  };
  return {_mm_or_si128(_mm_or_si128(_mm_and_si128(v, only(0)), _mm_and_si128(_mm_slli_si128(v, 1), only(1))),
                       _mm_or_si128(_mm_and_si128(_mm_slli_si128(v, 2), only(2)),
                                    _mm_and_si128(_mm_slli_si128(v, 3), only(3))))};
}
TESSARO_INLINE void store_words(uint8_t* p, Px::Half words) {
  const __m128i quarters = _mm_shufflehi_epi16(_mm_shufflelo_epi16(words.v, 0xD8), 0xD8);
  Px{_mm_shuffle_epi32(quarters, 0xD8)}.store(p);
}
TESSARO_INLINE void store_triples(uint8_t* p, Px a, Px b, Px c, Px d) {
  const auto front = [](Px x) {  // six bytes in each 64 bits, then twelve in 128
    const __m128i low = _mm_set_epi32(0, 0xFFFFFF, 0, 0xFFFFFF);
    const __m128i six = _mm_or_si128(_mm_and_si128(x.v, low),
                                     _mm_slli_epi64(_mm_and_si128(_mm_srli_epi64(x.v, 32), low), 24));
    return _mm_or_si128(_mm_move_epi64(six), _mm_slli_si128(_mm_srli_si128(six, 8), 6));
  };
  a.v = front(a);
  b.v = front(b);
  c.v = front(c);
  d.v = front(d);
  Px{_mm_or_si128(a.v, _mm_slli_si128(b.v, 12))}.store(p);
  Px{_mm_or_si128(_mm_srli_si128(b.v, 4), _mm_slli_si128(c.v, 8))}.store(p + 16);
  Px{_mm_or_si128(_mm_srli_si128(c.v, 8), _mm_slli_si128(d.v, 4))}.store(p + 32);
}
TESSARO_INLINE __m128i packed_bytes(Px a, Px b, Px c, Px d) {
  return _mm_packus_epi16(_mm_packs_epi32(a.v, b.v), _mm_packs_epi32(c.v, d.v));
}
TESSARO_INLINE void store_bytes(uint8_t* p, Px a, Px b, Px c, Px d) { Px{packed_bytes(a, b, c, d)}.store(p); }
TESSARO_INLINE void store_bits(uint8_t* p, Px a, Px b, Px c, Px d) {
  auto bits = static_cast<uint32_t>(_mm_movemask_epi8(packed_bytes(a, b, c, d)));
  bits = (bits & 0x5555) << 1 | (bits >> 1 & 0x5555);
  bits = (bits & 0x3333) << 2 | (bits >> 2 & 0x3333);
  bits = (bits & 0x0F0F) << 4 | (bits >> 4 & 0x0F0F);
  std::memcpy(p, &bits, 2);
}
#endif

}  // namespace
