// Sixteen pixels in a 512-bit register; masks have registers of their own.
#pragma once

#define TESSARO_PX
#define TESSARO_LANES 16
#include <immintrin.h>

#include "simd/scalar.hpp"
#include "simd/x86_quad.hpp"

namespace {

struct Px {
  static constexpr size_t lanes = 16;
  static constexpr bool permutes = true;
  using Mask = __mmask16;
  struct Half {
    __m512i v;
    TESSARO_INLINE static Half splat(uint32_t x) { return {_mm512_set1_epi16(static_cast<short>(x))}; }
  };
  __m512i v;
  TESSARO_INLINE static __mmask16 first(size_t n) { return static_cast<__mmask16>((1u << n) - 1); }
  TESSARO_INLINE static Px load(const void* p) { return {_mm512_loadu_si512(p)}; }
  TESSARO_INLINE static Px load(const void* p, size_t n) { return {_mm512_maskz_loadu_epi32(first(n), p)}; }
  TESSARO_INLINE void store(void* p) const { _mm512_storeu_si512(p, v); }
  TESSARO_INLINE void stream(void* p) const { _mm512_stream_si512(static_cast<__m512i*>(p), v); }
  TESSARO_INLINE static void fence() { _mm_sfence(); }
  TESSARO_INLINE void store(void* p, size_t n) const { _mm512_mask_storeu_epi32(p, first(n), v); }
  TESSARO_INLINE static Px load_halfwords(const uint8_t* p) {
    return {_mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)))};
  }
  TESSARO_INLINE static Px load_triples(const uint8_t* p) {
    const __m512i spread = _mm512_setr_epi32(0, 1, 2, 2, 3, 4, 5, 5, 6, 7, 8, 8, 9, 10, 11, 11);
    const __m512i from = _mm512_set4_epi32(static_cast<int>(0x800B0A09), static_cast<int>(0x80080706),
                                           static_cast<int>(0x80050403), static_cast<int>(0x80020100));
    return {_mm512_shuffle_epi8(_mm512_permutexvar_epi32(spread, _mm512_maskz_loadu_epi32(0xFFF, p)), from)};
  }
  TESSARO_INLINE static Px splat(uint32_t x) { return {_mm512_set1_epi32(static_cast<int>(x))}; }
  TESSARO_INLINE static uint32_t bits(__mmask16 mask) { return mask; }
};

// Reads of memory that a rule uses more than once would become an operand of each use, and the processor read
// it as often.
TESSARO_INLINE Px kept(Px a) {
  __asm__("" : "+v"(a.v));
  return a;
}
TESSARO_INLINE Px add_sat(Px a, Px b) { return {_mm512_adds_epu8(a.v, b.v)}; }
TESSARO_INLINE Px sub_sat(Px a, Px b) { return {_mm512_subs_epu8(a.v, b.v)}; }
TESSARO_INLINE Px add(Px a, Px b) { return {_mm512_add_epi8(a.v, b.v)}; }
TESSARO_INLINE Px sub(Px a, Px b) { return {_mm512_sub_epi8(a.v, b.v)}; }
TESSARO_INLINE Px min(Px a, Px b) { return {_mm512_min_epu8(a.v, b.v)}; }
TESSARO_INLINE Px max(Px a, Px b) { return {_mm512_max_epu8(a.v, b.v)}; }
TESSARO_INLINE Px difference(Px a, Px b) {
  return {_mm512_or_si512(_mm512_subs_epu8(a.v, b.v), _mm512_subs_epu8(b.v, a.v))};
}
TESSARO_INLINE Px operator&(Px a, Px b) { return {_mm512_and_si512(a.v, b.v)}; }
TESSARO_INLINE Px operator|(Px a, Px b) { return {_mm512_or_si512(a.v, b.v)}; }
TESSARO_INLINE Px operator^(Px a, Px b) { return {_mm512_xor_si512(a.v, b.v)}; }
TESSARO_INLINE Px operator~(Px a) { return {_mm512_xor_si512(a.v, _mm512_set1_epi32(-1))}; }
TESSARO_INLINE Px and_not(Px a, Px b) { return {_mm512_andnot_si512(b.v, a.v)}; }
TESSARO_INLINE Px choose_bits(Px mask, Px a, Px b) {
  return {_mm512_ternarylogic_epi32(a.v, b.v, mask.v, 0xE4)};
}
template <int k>
TESSARO_INLINE Px shl(Px a) {
  return {_mm512_slli_epi32(a.v, k)};
}
template <int k>
TESSARO_INLINE Px shr(Px a) {
  return {_mm512_srli_epi32(a.v, k)};
}
TESSARO_INLINE Px shl(Px a, int k) { return {_mm512_sll_epi32(a.v, _mm_cvtsi32_si128(k))}; }
TESSARO_INLINE Px shr(Px a, int k) { return {_mm512_srl_epi32(a.v, _mm_cvtsi32_si128(k))}; }
TESSARO_INLINE Unzipped<Px> unzip(Px a, Px b) {
  const __m512i even = _mm512_set_epi32(30, 28, 26, 24, 22, 20, 18, 16, 14, 12, 10, 8, 6, 4, 2, 0);
  const __m512i odd = _mm512_add_epi32(even, _mm512_set1_epi32(1));
  return {{_mm512_permutex2var_epi32(a.v, even, b.v)}, {_mm512_permutex2var_epi32(a.v, odd, b.v)}};
}
TESSARO_INLINE Px alphas(Px a) {
  const __m512i from = _mm512_set4_epi32(0x0F0F0F0F, 0x0B0B0B0B, 0x07070707, 0x03030303);
  return {_mm512_shuffle_epi8(a.v, from)};
}
TESSARO_INLINE Px::Half alpha_halves(Px a) {
  const __m512i from = _mm512_set4_epi32(static_cast<int>(0x800F800F), static_cast<int>(0x800B800B),
                                         static_cast<int>(0x80078007), static_cast<int>(0x80038003));
  return {_mm512_shuffle_epi8(a.v, from)};
}
TESSARO_INLINE Px select(__mmask16 mask, Px yes, Px no) {
  return {_mm512_mask_blend_epi32(mask, no.v, yes.v)};
}
TESSARO_INLINE Px with_alpha(Px colour, Px a) {
  // Bitwise choice by the third operand.
  return {_mm512_ternarylogic_epi32(a.v, colour.v, _mm512_set1_epi32(static_cast<int>(0xFF000000)), 0xE4)};
}
TESSARO_INLINE __mmask16 equal(Px a, Px b) { return _mm512_cmpeq_epi32_mask(a.v, b.v); }
TESSARO_INLINE __mmask16 above(Px a, Px b) { return _mm512_cmpgt_epu32_mask(a.v, b.v); }

TESSARO_INLINE Px::Half even(Px a) { return {_mm512_and_si512(a.v, _mm512_set1_epi16(255))}; }
TESSARO_INLINE Px::Half odd(Px a) { return {_mm512_srli_epi16(a.v, 8)}; }
template <int k>
TESSARO_INLINE Px::Half even_up(Px a) {
  return {_mm512_maddubs_epi16(a.v, _mm512_set1_epi16(1 << k))};
}
template <int k>
TESSARO_INLINE Px::Half odd_up(Px a) {
  return {_mm512_maddubs_epi16(a.v, _mm512_set1_epi16(256 << k))};
}
TESSARO_INLINE Px join(Px::Half e, Px::Half o) { return {_mm512_or_si512(e.v, _mm512_slli_epi16(o.v, 8))}; }
TESSARO_INLINE Px join_sat(Px::Half e, Px::Half o) {
  const __m512i by_turns = _mm512_set4_epi32(0x0F070E06, 0x0D050C04, 0x0B030A02, 0x09010800);
  return {_mm512_shuffle_epi8(_mm512_packus_epi16(e.v, o.v), by_turns)};
}
TESSARO_INLINE Paired<Px::Half> paired(Px low, Px high) {
  return {{_mm512_unpacklo_epi8(low.v, high.v)}, {_mm512_unpackhi_epi8(low.v, high.v)}};
}
TESSARO_INLINE Px unpaired(Px::Half first, Px::Half second) {
  return {_mm512_packus_epi16(first.v, second.v)};
}
TESSARO_INLINE Px join_high(Px::Half e, Px::Half o) {
  const __m512i upper = _mm512_set4_epi32(0x0F0F0D0D, 0x0B0B0909, 0x07070505, 0x03030101);
  return {_mm512_mask_shuffle_epi8(o.v, 0x5555555555555555, e.v, upper)};
}
TESSARO_INLINE Px::Half operator+(Px::Half a, Px::Half b) { return {_mm512_add_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator-(Px::Half a, Px::Half b) { return {_mm512_sub_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator&(Px::Half a, Px::Half b) { return {_mm512_and_si512(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator|(Px::Half a, Px::Half b) { return {_mm512_or_si512(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator*(Px::Half a, Px::Half b) { return {_mm512_mullo_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half sum_in_byte(Px::Half a, Px::Half b) {
  const Px::Half room = Px::Half::splat(32767 - 255);
  return {_mm512_subs_epu16(_mm512_adds_epi16(a.v, (b + room).v), room.v)};
}
TESSARO_INLINE Px::Half plus_equal(Px::Half a, Px::Half b) {
  return {_mm512_mask_add_epi16(a.v, _mm512_cmpeq_epi16_mask(a.v, b.v), a.v, _mm512_set1_epi16(1))};
}
TESSARO_INLINE Px::Half mul_high(Px::Half a, Px::Half b) { return {_mm512_mulhi_epu16(a.v, b.v)}; }
TESSARO_INLINE Px::Half mul_high_signed(Px::Half a, Px::Half b) { return {_mm512_mulhi_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half min(Px::Half a, Px::Half b) { return {_mm512_min_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half max(Px::Half a, Px::Half b) { return {_mm512_max_epi16(a.v, b.v)}; }
template <int k>
TESSARO_INLINE Px::Half shl(Px::Half a) {
  return {_mm512_slli_epi16(a.v, k)};
}
template <int k>
TESSARO_INLINE Px::Half shr(Px::Half a) {
  return {_mm512_srli_epi16(a.v, k)};
}
TESSARO_INLINE Px::Half halves(Px a) { return {a.v}; }
TESSARO_INLINE Px whole(Px::Half a) { return {a.v}; }
template <int k>
TESSARO_INLINE Px::Half colour_sums(Px a, int m, int c) {
  const __m512i pairs = _mm512_maddubs_epi16(a.v, _mm512_set1_epi32(0x010101 << k));
  const __m512i sum = _mm512_madd_epi16(pairs, _mm512_set1_epi16(static_cast<short>(m)));
  const __m512i upper = _mm512_set4_epi32(0x0F0E0F0E, 0x0B0A0B0A, 0x07060706, 0x03020302);
  return {_mm512_shuffle_epi8(_mm512_add_epi32(sum, _mm512_set1_epi32(c)), upper)};
}
TESSARO_INLINE Px::Half lookup_alpha(Px a, const uint32_t* table) {
  const __m512i t = _mm512_i32gather_epi32(_mm512_srli_epi32(a.v, 24), table, 4);
  return {_mm512_or_si512(t, _mm512_slli_epi32(t, 16))};
}
TESSARO_INLINE Px::Half ramp_alpha(Px a, const AlphaLine& line) {
  const __m512i products = _mm512_madd_epi16(alpha_halves(a).v, _mm512_set1_epi32(rise_pair(line)));
  const __m512i sums = _mm512_add_epi32(products, _mm512_set1_epi32(line.base));
  const __m512i values = _mm512_sra_epi32(sums, _mm_cvtsi32_si128(line.shift));
  const __m512i words = _mm512_packus_epi32(values, values);
  return {_mm512_min_epu16(_mm512_unpacklo_epi16(words, words), _mm512_set1_epi16(256))};
}

TESSARO_INLINE Px::Half falling_weights(Px::Half even, Px::Half odd, const FallingLine& line) {
  const __m512i z = _mm512_maskz_mov_epi16(0x55555555, odd.v);
  const __m512i sum = _mm512_add_epi32(_mm512_madd_epi16(even.v, even.v), _mm512_madd_epi16(z, z));
  const __m512 lengths =
      _mm512_roundscale_ps(_mm512_sqrt_ps(_mm512_cvtepi32_ps(sum)), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
  // In floats, rounded once and downwards.
  const __m512 all = _mm512_fnmadd_round_ps(lengths, _mm512_set1_ps(line.slope), _mm512_set1_ps(line.start),
                                            _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC);
  const __m512i weight =
      _mm512_max_epi32(_mm512_cvttps_epi32(_mm512_min_ps(_mm512_set1_ps(256), all)), _mm512_setzero_si512());
  return {_mm512_shuffle_epi8(weight, _mm512_set4_epi32(0x0D0C0D0C, 0x09080908, 0x05040504, 0x01000100))};
}

// --- Pixels as numbers, and moved about

TESSARO_INLINE Px add32(Px a, Px b) { return {_mm512_add_epi32(a.v, b.v)}; }
TESSARO_INLINE Px sub32(Px a, Px b) { return {_mm512_sub_epi32(a.v, b.v)}; }
TESSARO_INLINE Px reversed(Px a) {
  return {
      _mm512_permutexvar_epi32(_mm512_set_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15), a.v)};
}
TESSARO_INLINE void transpose_square(Px (&r)[16]) {
  __m512i t[16];
  for (int i = 0; i < 16; i += 4) {  // squares of 4 x 4 within 128 bits
    const __m512i a = _mm512_unpacklo_epi32(r[i].v, r[i + 1].v),
                  b = _mm512_unpackhi_epi32(r[i].v, r[i + 1].v);
    const __m512i c = _mm512_unpacklo_epi32(r[i + 2].v, r[i + 3].v),
                  d = _mm512_unpackhi_epi32(r[i + 2].v, r[i + 3].v);
    t[i] = _mm512_unpacklo_epi64(a, c);
    t[i + 1] = _mm512_unpackhi_epi64(a, c);
    t[i + 2] = _mm512_unpacklo_epi64(b, d);
    t[i + 3] = _mm512_unpackhi_epi64(b, d);
  }
  for (int i = 0; i < 4; ++i) {  // and a square of those
    const __m512i a = _mm512_shuffle_i32x4(t[i], t[i + 4], 0x44),
                  b = _mm512_shuffle_i32x4(t[i], t[i + 4], 0xEE);
    const __m512i c = _mm512_shuffle_i32x4(t[i + 8], t[i + 12], 0x44),
                  d = _mm512_shuffle_i32x4(t[i + 8], t[i + 12], 0xEE);
    r[i].v = _mm512_shuffle_i32x4(a, c, 0x88);
    r[i + 4].v = _mm512_shuffle_i32x4(a, c, 0xDD);
    r[i + 8].v = _mm512_shuffle_i32x4(b, d, 0x88);
    r[i + 12].v = _mm512_shuffle_i32x4(b, d, 0xDD);
  }
}
TESSARO_INLINE Px picked(Px a, Px where) { return {_mm512_permutexvar_epi32(where.v, a.v)}; }
TESSARO_INLINE Px picked(Px a, Px b, Px where) { return {_mm512_permutex2var_epi32(a.v, where.v, b.v)}; }
TESSARO_INLINE Px gather(const uint8_t* p, Px where) { return {_mm512_i32gather_epi32(where.v, p, 4)}; }

TESSARO_INLINE Px shuffled(Px a, Px from) { return {_mm512_shuffle_epi8(a.v, from.v)}; }
TESSARO_INLINE Px pair_products(Px::Half a, Px::Half b) { return {_mm512_madd_epi16(a.v, b.v)}; }
TESSARO_INLINE Px trunc_dot(Px a, Px b, Px c, double wa, double wb, double wc) {
  const auto eight = [=](__m256i x, __m256i y, __m256i z) {
    const __m512d p = _mm512_mul_pd(_mm512_cvtepi32_pd(x), _mm512_set1_pd(wa));
    const __m512d q = _mm512_mul_pd(_mm512_cvtepi32_pd(y), _mm512_set1_pd(wb));
    const __m512d r = _mm512_mul_pd(_mm512_cvtepi32_pd(z), _mm512_set1_pd(wc));
    return _mm512_cvttpd_epi32(_mm512_add_pd(_mm512_add_pd(p, q), r));
  };
  const auto upper = [](Px x) { return _mm512_extracti64x4_epi64(x.v, 1); };
  const __m256i low =
      eight(_mm512_castsi512_si256(a.v), _mm512_castsi512_si256(b.v), _mm512_castsi512_si256(c.v));
  return {_mm512_inserti64x4(_mm512_castsi256_si512(low), eight(upper(a), upper(b), upper(c)), 1)};
}
// b0 g0 r0 a0 b1 g1 r1 a1 -> b0 b1 g0 g1 r0 r1 a0 a1, of which neighbouring bytes are added.
TESSARO_INLINE Paired<Px::Half> neighbour_sums(Px a, Px b) {
  const Px side_by_side{_mm512_set4_epi32(0x0F0B0E0A, 0x0D090C08, 0x07030602, 0x05010400)};
  const __m512i one = _mm512_set1_epi8(1);
  return {{_mm512_maddubs_epi16(shuffled(a, side_by_side).v, one)},
          {_mm512_maddubs_epi16(shuffled(b, side_by_side).v, one)}};
}
TESSARO_INLINE Px from_sums(Px::Half first, Px::Half second) {
  return {_mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7),
                                   _mm512_packus_epi16(first.v, second.v))};
}

// --- Pixels of fewer bytes

// Here the lanes are in the order of the pixels.
template <>
TESSARO_INLINE Halfwords<Px> halfwords<Px>(Px first, Px second) {
  alignas(64) static constexpr uint16_t lower[] = {0,  2,  4,  6,  8,  10, 12, 14, 16, 18, 20,
                                                   22, 24, 26, 28, 30, 32, 34, 36, 38, 40, 42,
                                                   44, 46, 48, 50, 52, 54, 56, 58, 60, 62};
  const __m512i from = Px::load(lower).v, next = _mm512_add_epi16(from, _mm512_set1_epi16(1));
  return {{_mm512_permutex2var_epi16(first.v, from, second.v)},
          {_mm512_permutex2var_epi16(first.v, next, second.v)}};
}
template <>
TESSARO_INLINE Pair<Px> pixels<Px>(Halfwords<Px> w) {
  alignas(64) static constexpr uint16_t first[] = {0,  32, 1,  33, 2,  34, 3,  35, 4,  36, 5,
                                                   37, 6,  38, 7,  39, 8,  40, 9,  41, 10, 42,
                                                   11, 43, 12, 44, 13, 45, 14, 46, 15, 47};
  const __m512i from = Px::load(first).v, next = _mm512_add_epi16(from, _mm512_set1_epi16(16));
  return {{_mm512_permutex2var_epi16(w.lower.v, from, w.upper.v)},
          {_mm512_permutex2var_epi16(w.lower.v, next, w.upper.v)}};
}
TESSARO_INLINE void store_halfwords(uint8_t* p, Px::Half a) { Px{a.v}.store(p); }
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

static_assert(PixelVector<Px> && MovingPixels<Px> && PackedPixels<Px>);

}  // namespace

#include "simd/x86/lanes512.hpp"
