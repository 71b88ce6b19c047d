// Four pixels in a 128-bit register, SSE2 only: no byte shuffle, no blend.
#pragma once

#define TESSARO_PX
#define TESSARO_LANES 4
#include <emmintrin.h>

#include "simd/scalar.hpp"
#include "simd/x86_quad.hpp"

namespace {

struct Px {
  static constexpr size_t lanes = 4;
  static constexpr bool permutes = false;
  using Mask = __m128i;  // all ones in a chosen pixel
  struct Half {
    __m128i v;
    TESSARO_INLINE static Half splat(uint32_t x) { return {_mm_set1_epi16(static_cast<short>(x))}; }
  };
  __m128i v;
  TESSARO_INLINE static Px load(const void* p) { return {_mm_loadu_si128(static_cast<const __m128i*>(p))}; }
  TESSARO_INLINE static Px load(const void* p, size_t n) {
    const auto* at = static_cast<const char*>(p);
    __m128i a = _mm_setzero_si128();
    if (n & 1) {
      int last;
      std::memcpy(&last, at + 4 * (n & 2), 4);
      a = _mm_cvtsi32_si128(last);
    }
    if (n & 2) a = _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(at)), a);
    return {a};
  }
  TESSARO_INLINE void store(void* p) const { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
  TESSARO_INLINE void store(void* p, size_t n) const {
    auto* at = static_cast<char*>(p);
    __m128i a = v;
    if (n & 2) {
      _mm_storel_epi64(reinterpret_cast<__m128i*>(at), a);
      a = _mm_unpackhi_epi64(a, a);
    }
    if (n & 1) {
      const int last = _mm_cvtsi128_si32(a);
      std::memcpy(at + 4 * (n & 2), &last, 4);
    }
  }
  TESSARO_INLINE void stream(void* p) const { _mm_stream_si128(static_cast<__m128i*>(p), v); }
  TESSARO_INLINE static void fence() { _mm_sfence(); }
  TESSARO_INLINE static Px load_halfwords(const uint8_t* p) {
    return {_mm_unpacklo_epi16(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), _mm_setzero_si128())};
  }
  TESSARO_INLINE static Px load_triples(const uint8_t* p) {
    const __m128i v = Px::load(p, 3).v;
    const auto only = [](int lane) {
      return _mm_setr_epi32(lane == 0 ? 0xFFFFFF : 0, lane == 1 ? 0xFFFFFF : 0, lane == 2 ? 0xFFFFFF : 0,
                            lane == 3 ? 0xFFFFFF : 0);
    };
    return {
        _mm_or_si128(_mm_or_si128(_mm_and_si128(v, only(0)), _mm_and_si128(_mm_slli_si128(v, 1), only(1))),
                     _mm_or_si128(_mm_and_si128(_mm_slli_si128(v, 2), only(2)),
                                  _mm_and_si128(_mm_slli_si128(v, 3), only(3))))};
  }
  TESSARO_INLINE static Px splat(uint32_t x) { return {_mm_set1_epi32(static_cast<int>(x))}; }
  TESSARO_INLINE static uint32_t bits(__m128i mask) {
    return static_cast<uint32_t>(_mm_movemask_ps(_mm_castsi128_ps(mask)));
  }
};

TESSARO_INLINE Px kept(Px a) {
  __asm__("" : "+x"(a.v));
  return a;
}
TESSARO_INLINE Px add_sat(Px a, Px b) { return {_mm_adds_epu8(a.v, b.v)}; }
TESSARO_INLINE Px sub_sat(Px a, Px b) { return {_mm_subs_epu8(a.v, b.v)}; }
TESSARO_INLINE Px add(Px a, Px b) { return {_mm_add_epi8(a.v, b.v)}; }
TESSARO_INLINE Px sub(Px a, Px b) { return {_mm_sub_epi8(a.v, b.v)}; }
TESSARO_INLINE Px min(Px a, Px b) { return {_mm_min_epu8(a.v, b.v)}; }
TESSARO_INLINE Px max(Px a, Px b) { return {_mm_max_epu8(a.v, b.v)}; }
TESSARO_INLINE Px difference(Px a, Px b) {
  return {_mm_or_si128(_mm_subs_epu8(a.v, b.v), _mm_subs_epu8(b.v, a.v))};
}
TESSARO_INLINE Px operator&(Px a, Px b) { return {_mm_and_si128(a.v, b.v)}; }
TESSARO_INLINE Px operator|(Px a, Px b) { return {_mm_or_si128(a.v, b.v)}; }
TESSARO_INLINE Px operator^(Px a, Px b) { return {_mm_xor_si128(a.v, b.v)}; }
TESSARO_INLINE Px operator~(Px a) { return {_mm_xor_si128(a.v, _mm_set1_epi32(-1))}; }
TESSARO_INLINE Px and_not(Px a, Px b) { return {_mm_andnot_si128(b.v, a.v)}; }
TESSARO_INLINE Px choose_bits(Px mask, Px a, Px b) { return (a & mask) | and_not(b, mask); }
template <int k>
TESSARO_INLINE Px shl(Px a) {
  return {_mm_slli_epi32(a.v, k)};
}
template <int k>
TESSARO_INLINE Px shr(Px a) {
  return {_mm_srli_epi32(a.v, k)};
}
TESSARO_INLINE Px shl(Px a, int k) { return {_mm_sll_epi32(a.v, _mm_cvtsi32_si128(k))}; }
TESSARO_INLINE Px shr(Px a, int k) { return {_mm_srl_epi32(a.v, _mm_cvtsi32_si128(k))}; }
TESSARO_INLINE Unzipped<Px> unzip(Px a, Px b) {
  const __m128 x = _mm_castsi128_ps(a.v), y = _mm_castsi128_ps(b.v);
  return {{_mm_castps_si128(_mm_shuffle_ps(x, y, 0x88))}, {_mm_castps_si128(_mm_shuffle_ps(x, y, 0xDD))}};
}
TESSARO_INLINE Px::Half alpha_halves(Px a) {
  const __m128i t = _mm_srli_epi32(a.v, 24);
  return {_mm_or_si128(t, _mm_slli_epi32(t, 16))};
}
TESSARO_INLINE Px alphas(Px a) {
  const __m128i t = alpha_halves(a).v;
  return {_mm_or_si128(t, _mm_slli_epi32(t, 8))};
}
TESSARO_INLINE Px select(__m128i mask, Px yes, Px no) {
  return {_mm_or_si128(_mm_and_si128(mask, yes.v), _mm_andnot_si128(mask, no.v))};
}
TESSARO_INLINE Px with_alpha(Px colour, Px a) {
  return select(_mm_set1_epi32(static_cast<int>(0xFF000000)), a, colour);
}
TESSARO_INLINE __m128i equal(Px a, Px b) { return _mm_cmpeq_epi32(a.v, b.v); }
TESSARO_INLINE __m128i above(Px a, Px b) {
  const __m128i sign = _mm_set1_epi32(INT32_MIN);
  return _mm_cmpgt_epi32(_mm_xor_si128(a.v, sign), _mm_xor_si128(b.v, sign));
}

TESSARO_INLINE Px::Half even(Px a) { return {_mm_and_si128(a.v, _mm_set1_epi16(255))}; }
TESSARO_INLINE Px::Half odd(Px a) { return {_mm_srli_epi16(a.v, 8)}; }
TESSARO_INLINE Px join(Px::Half e, Px::Half o) { return {_mm_or_si128(e.v, _mm_slli_epi16(o.v, 8))}; }
TESSARO_INLINE Px join_sat(Px::Half e, Px::Half o) {
  const __m128i t = _mm_packus_epi16(e.v, o.v);
  return {_mm_unpacklo_epi8(t, _mm_unpackhi_epi64(t, t))};
}
TESSARO_INLINE Paired<Px::Half> paired(Px low, Px high) {
  return {{_mm_unpacklo_epi8(low.v, high.v)}, {_mm_unpackhi_epi8(low.v, high.v)}};
}
TESSARO_INLINE Px unpaired(Px::Half first, Px::Half second) { return {_mm_packus_epi16(first.v, second.v)}; }
TESSARO_INLINE Px join_high(Px::Half e, Px::Half o) {
  return {_mm_or_si128(_mm_srli_epi16(e.v, 8), _mm_andnot_si128(_mm_set1_epi16(255), o.v))};
}
TESSARO_INLINE Px::Half operator+(Px::Half a, Px::Half b) { return {_mm_add_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator-(Px::Half a, Px::Half b) { return {_mm_sub_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator&(Px::Half a, Px::Half b) { return {_mm_and_si128(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator|(Px::Half a, Px::Half b) { return {_mm_or_si128(a.v, b.v)}; }
TESSARO_INLINE Px::Half operator*(Px::Half a, Px::Half b) { return {_mm_mullo_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half sum_in_byte(Px::Half a, Px::Half b) {
  const Px::Half room = Px::Half::splat(32767 - 255);
  return {_mm_subs_epu16(_mm_adds_epi16(a.v, (b + room).v), room.v)};
}
TESSARO_INLINE Px::Half plus_equal(Px::Half a, Px::Half b) {
  return {_mm_sub_epi16(a.v, _mm_cmpeq_epi16(a.v, b.v))};
}
TESSARO_INLINE Px::Half mul_high(Px::Half a, Px::Half b) { return {_mm_mulhi_epu16(a.v, b.v)}; }
TESSARO_INLINE Px::Half mul_high_signed(Px::Half a, Px::Half b) { return {_mm_mulhi_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half min(Px::Half a, Px::Half b) { return {_mm_min_epi16(a.v, b.v)}; }
TESSARO_INLINE Px::Half max(Px::Half a, Px::Half b) { return {_mm_max_epi16(a.v, b.v)}; }
template <int k>
TESSARO_INLINE Px::Half shl(Px::Half a) {
  return {_mm_slli_epi16(a.v, k)};
}
template <int k>
TESSARO_INLINE Px::Half even_up(Px a) {
  return shl<k>(even(a));
}
template <int k>
TESSARO_INLINE Px::Half odd_up(Px a) {
  return shl<k>(odd(a));
}
template <int k>
TESSARO_INLINE Px::Half shr(Px::Half a) {
  return {_mm_srli_epi16(a.v, k)};
}
TESSARO_INLINE Px::Half halves(Px a) { return {a.v}; }
TESSARO_INLINE Px whole(Px::Half a) { return {a.v}; }
template <int k>
TESSARO_INLINE Px::Half colour_sums(Px a, int m, int c) {
  const __m128i factor = _mm_set1_epi16(static_cast<short>(m));
  const __m128i green = _mm_and_si128(odd(a).v, _mm_set1_epi32(255));
  const __m128i t = _mm_add_epi32(_mm_madd_epi16(_mm_slli_epi16(even(a).v, k), factor),
                                  _mm_madd_epi16(_mm_slli_epi16(green, k), factor));
  const __m128i sum = _mm_add_epi32(t, _mm_set1_epi32(c));
  return {_mm_shufflehi_epi16(_mm_shufflelo_epi16(sum, 0xF5), 0xF5)};
}
TESSARO_INLINE Px::Half lookup_alpha(Px a, const uint32_t* table) {
  const __m128i i = _mm_srli_epi32(a.v, 24);
  const auto entry = [table](int at) { return _mm_cvtsi32_si128(static_cast<int>(table[at])); };
  const __m128i t =
      _mm_unpacklo_epi64(_mm_unpacklo_epi32(entry(_mm_extract_epi16(i, 0)), entry(_mm_extract_epi16(i, 2))),
                         _mm_unpacklo_epi32(entry(_mm_extract_epi16(i, 4)), entry(_mm_extract_epi16(i, 6))));
  return {_mm_or_si128(t, _mm_slli_epi32(t, 16))};
}
TESSARO_INLINE Px::Half ramp_alpha(Px a, const AlphaLine& line) {
  const __m128i products = _mm_madd_epi16(alpha_halves(a).v, _mm_set1_epi32(rise_pair(line)));
  const __m128i sums = _mm_add_epi32(products, _mm_set1_epi32(line.base));
  const __m128i values = _mm_sra_epi32(sums, _mm_cvtsi32_si128(line.shift));
  const __m128i words = _mm_packs_epi32(values, values);
  return min(max(Px::Half{_mm_unpacklo_epi16(words, words)}, Px::Half::splat(0)), Px::Half::splat(256));
}

TESSARO_INLINE Px::Half falling_weights(Px::Half even, Px::Half odd, const FallingLine& line) {
  const __m128i z = _mm_and_si128(odd.v, _mm_set1_epi32(0xFFFF));
  const __m128i sum = _mm_add_epi32(_mm_madd_epi16(even.v, even.v), _mm_madd_epi16(z, z));
  const __m128i lengths = _mm_cvttps_epi32(_mm_sqrt_ps(_mm_cvtepi32_ps(sum)));
  const __m128d factor = _mm_set1_pd(line.factor);
  const auto weights = [factor](__m128i two) {
    const __m128d most = _mm_set1_pd(256);
    return _mm_cvttpd_epi32(_mm_min_pd(most, _mm_sub_pd(most, _mm_mul_pd(_mm_cvtepi32_pd(two), factor))));
  };
  const __m128i weight = _mm_unpacklo_epi64(weights(lengths), weights(_mm_unpackhi_epi64(lengths, lengths)));
  const __m128i limited = max(Px::Half{_mm_packs_epi32(weight, weight)}, Px::Half::splat(0)).v;
  return {_mm_unpacklo_epi16(limited, limited)};
}

// --- Pixels as numbers, and moved about

TESSARO_INLINE Px add32(Px a, Px b) { return {_mm_add_epi32(a.v, b.v)}; }
TESSARO_INLINE Px sub32(Px a, Px b) { return {_mm_sub_epi32(a.v, b.v)}; }
TESSARO_INLINE Px reversed(Px a) { return {_mm_shuffle_epi32(a.v, 0x1B)}; }
TESSARO_INLINE void transpose_square(Px (&r)[4]) {
  const __m128i a = _mm_unpacklo_epi32(r[0].v, r[1].v), b = _mm_unpackhi_epi32(r[0].v, r[1].v);
  const __m128i c = _mm_unpacklo_epi32(r[2].v, r[3].v), d = _mm_unpackhi_epi32(r[2].v, r[3].v);
  r[0].v = _mm_unpacklo_epi64(a, c);
  r[1].v = _mm_unpackhi_epi64(a, c);
  r[2].v = _mm_unpacklo_epi64(b, d);
  r[3].v = _mm_unpackhi_epi64(b, d);
}
TESSARO_INLINE Px picked(Px a, Px b, Px where) {
  uint32_t from[8];
  a.store(from);
  b.store(from + 4);
  return picked_singly(from, where);
}
TESSARO_INLINE Px picked(Px a, Px where) { return picked(a, a, where); }
TESSARO_INLINE Px gather(const uint8_t* p, Px where) {
  uint32_t at[4], v[4];
  where.store(at);
  for (int i = 0; i < 4; ++i) v[i] = gather(p, One{at[i]}).v;
  return Px::load(v);
}

TESSARO_INLINE Px pair_products(Px::Half a, Px::Half b) { return {_mm_madd_epi16(a.v, b.v)}; }
TESSARO_INLINE Px trunc_dot(Px a, Px b, Px c, double wa, double wb, double wc) {
  const auto two = [=](__m128i x, __m128i y, __m128i z) {  // the lower two
    const __m128d p = _mm_mul_pd(_mm_cvtepi32_pd(x), _mm_set1_pd(wa));
    const __m128d q = _mm_mul_pd(_mm_cvtepi32_pd(y), _mm_set1_pd(wb));
    const __m128d r = _mm_mul_pd(_mm_cvtepi32_pd(z), _mm_set1_pd(wc));
    return _mm_cvttpd_epi32(_mm_add_pd(_mm_add_pd(p, q), r));
  };
  const auto upper = [](Px x) { return _mm_unpackhi_epi64(x.v, x.v); };
  return {_mm_unpacklo_epi64(two(a.v, b.v, c.v), two(upper(a), upper(b), upper(c)))};
}
TESSARO_INLINE Paired<Px::Half> neighbour_sums(Px a, Px b) {
  const auto by_turns = unzip(a, b);
  return {even(by_turns.even) + even(by_turns.odd), odd(by_turns.even) + odd(by_turns.odd)};
}
TESSARO_INLINE Px from_sums(Px::Half first, Px::Half second) { return join(first, second); }

// --- Pixels of fewer bytes

TESSARO_INLINE void store_halfwords(uint8_t* p, Px::Half a) {
  const __m128i quarters = _mm_shufflehi_epi16(_mm_shufflelo_epi16(a.v, 0xD8), 0xD8);
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

static_assert(PixelVector<Px> && MovingPixels<Px> && PackedPixels<Px>);

}  // namespace

#include "simd/x86/lanes128.hpp"
