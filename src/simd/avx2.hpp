// Eight pixels in a 256-bit register.
#pragma once

#define TESSARO_PX
#define TESSARO_LANES 8
#include <immintrin.h>

#include "simd/scalar.hpp"
#include "simd/x86_quad.hpp"

namespace {

struct Px {
  static constexpr size_t lanes = 8;
  static constexpr bool permutes = true;
  using Mask = __m256i;  // all ones in a chosen pixel
  struct Half {
    __m256i v;
    TESSARO_INLINE static Half splat(uint32_t x) { return {_mm256_set1_epi16(static_cast<short>(x))}; }
  };
  __m256i v;
  // The first n pixels: masked-off lanes neither fault nor write.
  TESSARO_INLINE static __m256i first(size_t n) {
    return _mm256_cmpgt_epi32(_mm256_set1_epi32(static_cast<int>(n)),
                              _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7));
  }
  TESSARO_INLINE static Px load(const void* p) {
    return {_mm256_loadu_si256(static_cast<const __m256i*>(p))};
  }
  TESSARO_INLINE static Px load(const void* p, size_t n) {
    return {_mm256_maskload_epi32(static_cast<const int*>(p), first(n))};
  }
  TESSARO_INLINE void store(void* p) const { _mm256_storeu_si256(static_cast<__m256i*>(p), v); }
  TESSARO_INLINE void stream(void* p) const { _mm256_stream_si256(static_cast<__m256i*>(p), v); }
  TESSARO_INLINE static void fence() { _mm_sfence(); }
  TESSARO_INLINE void store(void* p, size_t n) const {
    _mm256_maskstore_epi32(static_cast<int*>(p), first(n), v);
  }
  TESSARO_INLINE static Px load_halfwords(const uint8_t* p) {
    return {_mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)))};
  }
  TESSARO_INLINE static Px load_triples(const uint8_t* p) {
    const __m256i spread = _mm256_setr_epi32(0, 1, 2, 2, 3, 4, 5, 5);
    const __m256i from = _mm256_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1,  //
                                          0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
    return {_mm256_shuffle_epi8(_mm256_permutevar8x32_epi32(Px::load(p, 6).v, spread), from)};
  }
  TESSARO_INLINE static Px splat(uint32_t x) { return {_mm256_set1_epi32(static_cast<int>(x))}; }
  TESSARO_INLINE static uint32_t bits(__m256i mask) {
    return static_cast<uint32_t>(_mm256_movemask_ps(_mm256_castsi256_ps(mask)));
  }
};

TESSARO_INLINE Px kept(Px a) {
  __asm__("" : "+x"(a.v));
  return a;
}
TESSARO_INLINE Px add_sat(Px a, Px b) { return {_mm256_adds_epu8(a.v, b.v)}; }
TESSARO_INLINE Px sub_sat(Px a, Px b) { return {_mm256_subs_epu8(a.v, b.v)}; }
TESSARO_INLINE Px add(Px a, Px b) { return {_mm256_add_epi8(a.v, b.v)}; }
TESSARO_INLINE Px sub(Px a, Px b) { return {_mm256_sub_epi8(a.v, b.v)}; }
TESSARO_INLINE Px min(Px a, Px b) { return {_mm256_min_epu8(a.v, b.v)}; }
TESSARO_INLINE Px max(Px a, Px b) { return {_mm256_max_epu8(a.v, b.v)}; }
TESSARO_INLINE Px difference(Px a, Px b) {
  return {_mm256_or_si256(_mm256_subs_epu8(a.v, b.v), _mm256_subs_epu8(b.v, a.v))};
}
TESSARO_INLINE Px operator&(Px a, Px b) { return {_mm256_and_si256(a.v, b.v)}; }
TESSARO_INLINE Px operator|(Px a, Px b) { return {_mm256_or_si256(a.v, b.v)}; }
TESSARO_INLINE Px operator^(Px a, Px b) { return {_mm256_xor_si256(a.v, b.v)}; }
TESSARO_INLINE Px operator~(Px a) { return {_mm256_xor_si256(a.v, _mm256_set1_epi32(-1))}; }
TESSARO_INLINE Px and_not(Px a, Px b) { return {_mm256_andnot_si256(b.v, a.v)}; }
TESSARO_INLINE Px choose_bits(Px mask, Px a, Px b) { return (a & mask) | and_not(b, mask); }
template <int k>
TESSARO_INLINE Px shl(Px a) {
  return {_mm256_slli_epi32(a.v, k)};
}
template <int k>
TESSARO_INLINE Px shr(Px a) {
  return {_mm256_srli_epi32(a.v, k)};
}
TESSARO_INLINE Px shl(Px a, int k) { return {_mm256_sll_epi32(a.v, _mm_cvtsi32_si128(k))}; }
TESSARO_INLINE Px shr(Px a, int k) { return {_mm256_srl_epi32(a.v, _mm_cvtsi32_si128(k))}; }
TESSARO_INLINE Unzipped<Px> unzip(Px a, Px b) {
  // Within 128 bits first, then the four 64-bit quarters into order.
  const __m256 x = _mm256_castsi256_ps(a.v), y = _mm256_castsi256_ps(b.v);
  return {{_mm256_permute4x64_epi64(_mm256_castps_si256(_mm256_shuffle_ps(x, y, 0x88)), 0xD8)},
          {_mm256_permute4x64_epi64(_mm256_castps_si256(_mm256_shuffle_ps(x, y, 0xDD)), 0xD8)}};
}
TESSARO_INLINE Px alphas(Px a) {
  const __m256i from = _mm256_setr_epi8(3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15,  //
                                        3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15);
  return {_mm256_shuffle_epi8(a.v, from)};
}
TESSARO_INLINE Px::Half alpha_halves(Px a) {
  const __m256i from = _mm256_setr_epi8(3, -1, 3, -1, 7, -1, 7, -1, 11, -1, 11, -1, 15, -1, 15, -1,  //
                                        3, -1, 3, -1, 7, -1, 7, -1, 11, -1, 11, -1, 15, -1, 15, -1);
  return {_mm256_shuffle_epi8(a.v, from)};
}
TESSARO_INLINE Px select(__m256i mask, Px yes, Px no) { return {_mm256_blendv_epi8(no.v, yes.v, mask)}; }
TESSARO_INLINE Px with_alpha(Px colour, Px a) {
  return select(_mm256_set1_epi32(static_cast<int>(0xFF000000)), a, colour);
}
TESSARO_INLINE __m256i equal(Px a, Px b) { return _mm256_cmpeq_epi32(a.v, b.v); }
TESSARO_INLINE __m256i above(Px a, Px b) {
  const __m256i sign = _mm256_set1_epi32(INT32_MIN);
  return _mm256_cmpgt_epi32(_mm256_xor_si256(a.v, sign), _mm256_xor_si256(b.v, sign));
}

TESSARO_INLINE Px::Half even(Px a) { return {_mm256_and_si256(a.v, _mm256_set1_epi16(255))}; }
TESSARO_INLINE Px::Half odd(Px a) { return {_mm256_srli_epi16(a.v, 8)}; }
template <int k>
TESSARO_INLINE Px::Half even_up(Px a) {
  return {_mm256_maddubs_epi16(a.v, _mm256_set1_epi16(1 << k))};
}
template <int k>
TESSARO_INLINE Px::Half odd_up(Px a) {
  return {_mm256_maddubs_epi16(a.v, _mm256_set1_epi16(256 << k))};
}
TESSARO_INLINE Px join(Px::Half e, Px::Half o) { return {_mm256_or_si256(e.v, _mm256_slli_epi16(o.v, 8))}; }
TESSARO_INLINE Px join_sat(Px::Half e, Px::Half o) {
  const __m256i by_turns = _mm256_setr_epi8(0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15,  //
                                            0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15);
  return {_mm256_shuffle_epi8(_mm256_packus_epi16(e.v, o.v), by_turns)};
}
TESSARO_INLINE Paired<Px::Half> paired(Px low, Px high) {
  return {{_mm256_unpacklo_epi8(low.v, high.v)}, {_mm256_unpackhi_epi8(low.v, high.v)}};
}
TESSARO_INLINE Px unpaired(Px::Half first, Px::Half second) {
  return {_mm256_packus_epi16(first.v, second.v)};
}
TESSARO_INLINE Px join_high(Px::Half e, Px::Half o) {
  return {_mm256_or_si256(_mm256_srli_epi16(e.v, 8), _mm256_andnot_si256(_mm256_set1_epi16(255), o.v))};
}
TESSARO_INLINE Px::Half operator+(Px::Half a, Px::Half b) { return {_mm256_add_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator-(Px::Half a, Px::Half b) { return {_mm256_sub_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator&(Px::Half a, Px::Half b) { return {_mm256_and_si256(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator|(Px::Half a, Px::Half b) { return {_mm256_or_si256(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator*(Px::Half a, Px::Half b) { return {_mm256_mullo_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half sum_in_byte(Px::Half a, Px::Half b) {
  const Px::Half room = Px::Half::splat(32767 - 255);
  return {_mm256_subs_epu16(_mm256_adds_epi16(a.v, (b + room).v), room.v)};
}
TESSARO_INLINE Px::Half plus_equal(Px::Half a, Px::Half b) {
  return {_mm256_sub_epi16(a.v, _mm256_cmpeq_epi16(a.v, b.v))};
}
TESSARO_INLINE Px::Half mul_high(Px::Half a, Px::Half b) { return {_mm256_mulhi_epu16(a.v, b.v)}; }
TESSARO_INLINE Px::Half mul_high_signed(Px::Half a, Px::Half b) { return {_mm256_mulhi_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half min(Px::Half a, Px::Half b) { return {_mm256_min_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half max(Px::Half a, Px::Half b) { return {_mm256_max_epi16(a.v, b.v)}; }
template <int k>
TESSARO_INLINE Px::Half shl(Px::Half a) {
  return {_mm256_slli_epi16(a.v, k)};
}
template <int k>
TESSARO_INLINE Px::Half shr(Px::Half a) {
  return {_mm256_srli_epi16(a.v, k)};
}
TESSARO_INLINE Px::Half halves(Px a) { return {a.v}; }
TESSARO_INLINE Px whole(Px::Half a) { return {a.v}; }
template <int k>
TESSARO_INLINE Px::Half colour_sums(Px a, int m, int c) {
  const __m256i pairs = _mm256_maddubs_epi16(a.v, _mm256_set1_epi32(0x010101 << k));
  const __m256i sum = _mm256_madd_epi16(pairs, _mm256_set1_epi16(static_cast<short>(m)));
  const __m256i upper = _mm256_setr_epi8(2, 3, 2, 3, 6, 7, 6, 7, 10, 11, 10, 11, 14, 15, 14, 15,  //
                                         2, 3, 2, 3, 6, 7, 6, 7, 10, 11, 10, 11, 14, 15, 14, 15);
  return {_mm256_shuffle_epi8(_mm256_add_epi32(sum, _mm256_set1_epi32(c)), upper)};
}
TESSARO_INLINE Px::Half lookup_alpha(Px a, const uint32_t* table) {
  const __m256i t =
      _mm256_i32gather_epi32(reinterpret_cast<const int*>(table), _mm256_srli_epi32(a.v, 24), 4);
  return {_mm256_or_si256(t, _mm256_slli_epi32(t, 16))};
}
TESSARO_INLINE Px::Half ramp_alpha(Px a, const AlphaLine& line) {
  const __m256i products = _mm256_madd_epi16(alpha_halves(a).v, _mm256_set1_epi32(rise_pair(line)));
  const __m256i sums = _mm256_add_epi32(products, _mm256_set1_epi32(line.base));
  const __m256i values = _mm256_sra_epi32(sums, _mm_cvtsi32_si128(line.shift));
  const __m256i words = _mm256_packus_epi32(values, values);
  return {_mm256_min_epu16(_mm256_unpacklo_epi16(words, words), _mm256_set1_epi16(256))};
}

TESSARO_INLINE Px::Half falling_weights(Px::Half even, Px::Half odd, const FallingLine& line) {
  const __m256i z = _mm256_and_si256(odd.v, _mm256_set1_epi32(0xFFFF));
  const __m256i sum = _mm256_add_epi32(_mm256_madd_epi16(even.v, even.v), _mm256_madd_epi16(z, z));
  const __m256i lengths = _mm256_cvttps_epi32(_mm256_sqrt_ps(_mm256_cvtepi32_ps(sum)));
  const __m256d factor = _mm256_set1_pd(line.factor);
  const auto weights = [factor](__m128i four) {
    const __m256d most = _mm256_set1_pd(256);
    return _mm256_cvttpd_epi32(
        _mm256_min_pd(most, _mm256_sub_pd(most, _mm256_mul_pd(_mm256_cvtepi32_pd(four), factor))));
  };
  const __m256i weight = _mm256_set_m128i(weights(_mm256_extracti128_si256(lengths, 1)),
                                          weights(_mm256_castsi256_si128(lengths)));
  const __m256i limited = max(Px::Half{_mm256_packs_epi32(weight, weight)}, Px::Half::splat(0)).v;
  return {_mm256_unpacklo_epi16(limited, limited)};
}

// --- Pixels as numbers, and moved about

TESSARO_INLINE Px add32(Px a, Px b) { return {_mm256_add_epi32(a.v, b.v)}; }
TESSARO_INLINE Px sub32(Px a, Px b) { return {_mm256_sub_epi32(a.v, b.v)}; }
TESSARO_INLINE Px reversed(Px a) {
  return {_mm256_permutevar8x32_epi32(a.v, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0))};
}
TESSARO_INLINE void transpose_square(Px (&r)[8]) {
  __m256i t[8];
  for (int i = 0; i < 8; i += 4) {  // squares of 4 x 4 within 128 bits
    const __m256i a = _mm256_unpacklo_epi32(r[i].v, r[i + 1].v),
                  b = _mm256_unpackhi_epi32(r[i].v, r[i + 1].v);
    const __m256i c = _mm256_unpacklo_epi32(r[i + 2].v, r[i + 3].v),
                  d = _mm256_unpackhi_epi32(r[i + 2].v, r[i + 3].v);
    t[i] = _mm256_unpacklo_epi64(a, c);
    t[i + 1] = _mm256_unpackhi_epi64(a, c);
    t[i + 2] = _mm256_unpacklo_epi64(b, d);
    t[i + 3] = _mm256_unpackhi_epi64(b, d);
  }
  for (int i = 0; i < 4; ++i) {  // and a square of those
    r[i].v = _mm256_permute2x128_si256(t[i], t[i + 4], 0x20);
    r[i + 4].v = _mm256_permute2x128_si256(t[i], t[i + 4], 0x31);
  }
}
TESSARO_INLINE Px picked(Px a, Px where) { return {_mm256_permutevar8x32_epi32(a.v, where.v)}; }
TESSARO_INLINE Px picked(Px a, Px b, Px where) {
  // Bit 3 of a place chooses the second eight.
  return {_mm256_castps_si256(_mm256_blendv_ps(_mm256_castsi256_ps(picked(a, where).v),
                                               _mm256_castsi256_ps(picked(b, where).v),
                                               _mm256_castsi256_ps(_mm256_slli_epi32(where.v, 28))))};
}
TESSARO_INLINE Px gather(const uint8_t* p, Px where) {
  return {_mm256_i32gather_epi32(reinterpret_cast<const int*>(p), where.v, 4)};
}

TESSARO_INLINE Px shuffled(Px a, Px from) { return {_mm256_shuffle_epi8(a.v, from.v)}; }
TESSARO_INLINE Px pair_products(Px::Half a, Px::Half b) { return {_mm256_madd_epi16(a.v, b.v)}; }
TESSARO_INLINE Px trunc_dot(Px a, Px b, Px c, double wa, double wb, double wc) {
  const auto four = [=](__m128i x, __m128i y, __m128i z) {
    const __m256d p = _mm256_mul_pd(_mm256_cvtepi32_pd(x), _mm256_set1_pd(wa));
    const __m256d q = _mm256_mul_pd(_mm256_cvtepi32_pd(y), _mm256_set1_pd(wb));
    const __m256d r = _mm256_mul_pd(_mm256_cvtepi32_pd(z), _mm256_set1_pd(wc));
    return _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_add_pd(p, q), r));
  };
  const auto upper = [](Px x) { return _mm256_extracti128_si256(x.v, 1); };
  return {_mm256_set_m128i(
      four(upper(a), upper(b), upper(c)),
      four(_mm256_castsi256_si128(a.v), _mm256_castsi256_si128(b.v), _mm256_castsi256_si128(c.v)))};
}
// b0 g0 r0 a0 b1 g1 r1 a1 -> b0 b1 g0 g1 r0 r1 a0 a1, of which neighbouring bytes are added.
TESSARO_INLINE Paired<Px::Half> neighbour_sums(Px a, Px b) {
  const Px side_by_side{_mm256_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15,  //
                                         0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15)};
  const __m256i one = _mm256_set1_epi8(1);
  return {{_mm256_maddubs_epi16(shuffled(a, side_by_side).v, one)},
          {_mm256_maddubs_epi16(shuffled(b, side_by_side).v, one)}};
}
TESSARO_INLINE Px from_sums(Px::Half first, Px::Half second) {
  return {_mm256_permute4x64_epi64(_mm256_packus_epi16(first.v, second.v), 0xD8)};
}

// --- Pixels of fewer bytes

TESSARO_INLINE void store_halfwords(uint8_t* p, Px::Half a) {
  const __m256i lower_first = _mm256_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15,  //
                                               0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15);
  Px{_mm256_permute4x64_epi64(_mm256_shuffle_epi8(a.v, lower_first), 0xD8)}.store(p);
}
TESSARO_INLINE void store_triples(uint8_t* p, Px a, Px b, Px c, Px d) {
  // Twelve bytes at the front of each 128 bits; then each vector's six of 32 bits to where the stores want
  // them.
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

static_assert(PixelVector<Px> && MovingPixels<Px> && PackedPixels<Px>);

}  // namespace

#include "simd/x86/lanes256.hpp"
