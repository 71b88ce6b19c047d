// One pixel at a time: the definition of the vocabulary, and the form that every back end takes where
// overlapping memory demands one pixel after another.
#pragma once

#include "core/numbers.hpp"
#include "simd/lanes.hpp"
#include "simd/vocabulary.hpp"

namespace {

struct One {
  static constexpr size_t lanes = 1;
  static constexpr bool permutes = false;
  using Mask = bool;
  struct Half {
    uint32_t v;  // two lanes of 16 bits
    TESSARO_INLINE static Half splat(uint32_t x) { return {(x & 0xFFFF) * 0x10001}; }
  };
  uint32_t v;
  TESSARO_INLINE static One load(const void* p) {
    One a;
    std::memcpy(&a.v, p, 4);
    return a;
  }
  TESSARO_INLINE static One load(const void* p, size_t n) { return n == 0 ? One{0} : load(p); }
  TESSARO_INLINE void store(void* p) const { std::memcpy(p, &v, 4); }
  TESSARO_INLINE void store(void* p, size_t n) const {
    if (n != 0) store(p);
  }
  TESSARO_INLINE void stream(void* p) const { store(p); }
  TESSARO_INLINE static void fence() {}
  TESSARO_INLINE static One load_halfwords(const uint8_t* p) {
    return {p[0] | static_cast<uint32_t>(p[1]) << 8};
  }
  TESSARO_INLINE static One load_triples(const uint8_t* p) {
    return {p[0] | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16};
  }
  TESSARO_INLINE static One splat(uint32_t x) { return {x}; }
  TESSARO_INLINE static uint32_t bits(bool mask) { return mask; }
};

template <class F>
TESSARO_INLINE One per_byte(One a, One b, F f) {
  uint32_t v = 0;
  for (unsigned at = 0; at < 32; at += 8)
    v |=
        (static_cast<uint32_t>(f(static_cast<int>(a.v >> at & 255), static_cast<int>(b.v >> at & 255))) & 255)
        << at;
  return {v};
}
TESSARO_INLINE One kept(One a) { return a; }
TESSARO_INLINE One add_sat(One a, One b) {
  return per_byte(a, b, [](int x, int y) { return x + y > 255 ? 255 : x + y; });
}
TESSARO_INLINE One sub_sat(One a, One b) {
  return per_byte(a, b, [](int x, int y) { return x < y ? 0 : x - y; });
}
TESSARO_INLINE One add(One a, One b) {
  return per_byte(a, b, [](int x, int y) { return x + y; });
}
TESSARO_INLINE One sub(One a, One b) {
  return per_byte(a, b, [](int x, int y) { return x - y; });
}
TESSARO_INLINE One min(One a, One b) {
  return per_byte(a, b, [](int x, int y) { return x < y ? x : y; });
}
TESSARO_INLINE One max(One a, One b) {
  return per_byte(a, b, [](int x, int y) { return x > y ? x : y; });
}
TESSARO_INLINE One difference(One a, One b) {
  return per_byte(a, b, [](int x, int y) { return x > y ? x - y : y - x; });
}
TESSARO_INLINE One operator&(One a, One b) { return {a.v & b.v}; }
TESSARO_INLINE One operator|(One a, One b) { return {a.v | b.v}; }
TESSARO_INLINE One operator^(One a, One b) { return {a.v ^ b.v}; }
TESSARO_INLINE One operator~(One a) { return {~a.v}; }
TESSARO_INLINE One and_not(One a, One b) { return {a.v & ~b.v}; }
TESSARO_INLINE One choose_bits(One mask, One a, One b) { return {(a.v & mask.v) | (b.v & ~mask.v)}; }
template <int k>
TESSARO_INLINE One shl(One a) {
  return {a.v << k};
}
template <int k>
TESSARO_INLINE One shr(One a) {
  return {a.v >> k};
}
TESSARO_INLINE One shl(One a, int k) { return {a.v << k}; }
TESSARO_INLINE One shr(One a, int k) { return {a.v >> k}; }
TESSARO_INLINE Unzipped<One> unzip(One a, One b) { return {a, b}; }
TESSARO_INLINE One alphas(One a) { return {(a.v >> 24) * 0x01010101u}; }
TESSARO_INLINE One with_alpha(One colour, One a) { return {(colour.v & 0x00FFFFFF) | (a.v & 0xFF000000)}; }
TESSARO_INLINE bool equal(One a, One b) { return a.v == b.v; }
TESSARO_INLINE bool above(One a, One b) { return a.v > b.v; }
TESSARO_INLINE One select(bool mask, One yes, One no) { return mask ? yes : no; }

TESSARO_INLINE One::Half even(One a) { return {a.v & 0x00FF00FF}; }
TESSARO_INLINE One::Half odd(One a) { return {a.v >> 8 & 0x00FF00FF}; }
TESSARO_INLINE One join(One::Half e, One::Half o) { return {e.v | o.v << 8}; }
TESSARO_INLINE One join_high(One::Half e, One::Half o) {
  return {(e.v >> 8 & 0x00FF00FF) | (o.v & 0xFF00FF00)};
}
TESSARO_INLINE Paired<One::Half> paired(One low, One high) {
  return {{even(low).v | even(high).v << 8}, {odd(low).v | odd(high).v << 8}};
}
TESSARO_INLINE One::Half alpha_halves(One a) { return One::Half::splat(a.v >> 24); }
TESSARO_INLINE One::Half halves(One a) { return {a.v}; }
TESSARO_INLINE One whole(One::Half a) { return {a.v}; }
template <int k>
TESSARO_INLINE One::Half colour_sums(One a, int m, int c) {
  const auto sum = static_cast<int>((a.v & 255) + (a.v >> 8 & 255) + (a.v >> 16 & 255));
  return One::Half::splat(static_cast<uint32_t>((sum * (1 << k) * m + c) >> 16));
}
TESSARO_INLINE One::Half lookup_alpha(One a, const uint32_t* table) {
  return One::Half::splat(table[a.v >> 24]);
}
// The rise of ramp_alpha for vectors that multiply signed 16 bits in pairs: two halves of it.
TESSARO_INLINE int rise_pair(const AlphaLine& line) {
  return (line.rise - (line.rise >> 1)) << 16 | line.rise >> 1;
}
TESSARO_INLINE One::Half ramp_alpha(One a, const AlphaLine& line) {
  const int v = (static_cast<int>(a.v >> 24) * line.rise + line.base) >> line.shift;
  return One::Half::splat(static_cast<uint32_t>(v < 0 ? 0 : v > 256 ? 256 : v));
}
template <class F>
TESSARO_INLINE One::Half per_lane(One::Half a, One::Half b, F f) {
  return {(f(a.v & 0xFFFF, b.v & 0xFFFF) & 0xFFFF) | f(a.v >> 16, b.v >> 16) << 16};
}
TESSARO_INLINE One::Half operator+(One::Half a, One::Half b) {
  return per_lane(a, b, [](uint32_t x, uint32_t y) { return x + y; });
}
TESSARO_INLINE One::Half operator-(One::Half a, One::Half b) {
  return per_lane(a, b, [](uint32_t x, uint32_t y) { return x - y; });
}
TESSARO_INLINE One::Half operator&(One::Half a, One::Half b) { return {a.v & b.v}; }
TESSARO_INLINE One::Half operator|(One::Half a, One::Half b) { return {a.v | b.v}; }
TESSARO_INLINE One::Half operator*(One::Half a, One::Half b) {
  return per_lane(a, b, [](uint32_t x, uint32_t y) { return x * y; });
}
TESSARO_INLINE One::Half plus_equal(One::Half a, One::Half b) {
  return per_lane(a, b, [](uint32_t x, uint32_t y) { return x + (x == y); });
}
TESSARO_INLINE One::Half mul_high(One::Half a, One::Half b) {
  return per_lane(a, b, [](uint32_t x, uint32_t y) { return x * y >> 16; });
}
TESSARO_INLINE One::Half mul_high_signed(One::Half a, One::Half b) {
  return per_lane(a, b, [](uint32_t x, uint32_t y) {
    return static_cast<uint32_t>(static_cast<int16_t>(x) * static_cast<int16_t>(y) >> 16);
  });
}
TESSARO_INLINE One::Half min(One::Half a, One::Half b) {
  return per_lane(
      a, b, [](uint32_t x, uint32_t y) { return static_cast<int16_t>(x) < static_cast<int16_t>(y) ? x : y; });
}
TESSARO_INLINE One::Half max(One::Half a, One::Half b) {
  return per_lane(
      a, b, [](uint32_t x, uint32_t y) { return static_cast<int16_t>(x) > static_cast<int16_t>(y) ? x : y; });
}
TESSARO_INLINE One join_sat(One::Half e, One::Half o) {
  const auto byte = [](One::Half c) { return min(max(c, One::Half::splat(0)), One::Half::splat(255)); };
  return join(byte(e), byte(o));
}
TESSARO_INLINE One unpaired(One::Half first, One::Half second) { return join_sat(first, second); }
TESSARO_INLINE One::Half sum_in_byte(One::Half a, One::Half b) {
  return per_lane(a, b, [](uint32_t x, uint32_t y) {
    return tessaro::clamp_byte(static_cast<int16_t>(x) + static_cast<int16_t>(y));
  });
}
template <int k>
TESSARO_INLINE One::Half shl(One::Half a) {
  return per_lane(a, a, [](uint32_t x, uint32_t) { return x << k; });
}
template <int k>
TESSARO_INLINE One::Half even_up(One a) {
  return shl<k>(even(a));
}
template <int k>
TESSARO_INLINE One::Half odd_up(One a) {
  return shl<k>(odd(a));
}
template <int k>
TESSARO_INLINE One::Half shr(One::Half a) {
  return per_lane(a, a, [](uint32_t x, uint32_t) { return x >> k; });
}

TESSARO_INLINE One::Half falling_weights(One::Half even, One::Half odd, const FallingLine& line) {
  const int32_t x = static_cast<int16_t>(even.v), y = static_cast<int16_t>(even.v >> 16),
                z = static_cast<int16_t>(odd.v);
  const auto length = static_cast<int32_t>(__builtin_sqrtf(static_cast<float>(x * x + y * y + z * z)));
  const double v = 256.0 - length * line.factor;
  const int32_t weight = tessaro::trunc32(v > 256.0 ? 256.0 : v);
  return One::Half::splat(weight < 0 ? 0 : static_cast<uint32_t>(weight));
}

// --- Pixels as numbers, and moved about

TESSARO_INLINE One add32(One a, One b) { return {a.v + b.v}; }
TESSARO_INLINE One sub32(One a, One b) { return {a.v - b.v}; }
TESSARO_INLINE One reversed(One a) { return a; }
TESSARO_INLINE void transpose_square(One (&)[1]) {}
TESSARO_INLINE One picked(One a, One) { return a; }
TESSARO_INLINE One picked(One a, One b, One where) { return where.v & 1 ? b : a; }
TESSARO_INLINE One gather(const uint8_t* p, One where) {
  return One::load(p + 4 * static_cast<ptrdiff_t>(static_cast<int32_t>(where.v)));
}
TESSARO_INLINE One pair_products(One::Half a, One::Half b) {
  const auto product = [&](int at) {
    return static_cast<int16_t>(a.v >> at & 0xFFFF) * static_cast<int16_t>(b.v >> at & 0xFFFF);
  };
  return {static_cast<uint32_t>(product(0)) + static_cast<uint32_t>(product(16))};
}
TESSARO_INLINE One trunc_dot(One a, One b, One c, double wa, double wb, double wc) {
  const auto number = [](One x) { return static_cast<double>(static_cast<int32_t>(x.v)); };
  return {static_cast<uint32_t>(tessaro::trunc32(number(a) * wa + number(b) * wb + number(c) * wc))};
}
TESSARO_INLINE Paired<One::Half> neighbour_sums(One a, One b) { return {even(a) + even(b), odd(a) + odd(b)}; }
TESSARO_INLINE One from_sums(One::Half first, One::Half second) { return join(first, second); }

// For a back end without permutes: of 2 * lanes pixels.
template <class P>
TESSARO_INLINE P picked_singly(const uint32_t* from, P where) {
  uint32_t v[P::lanes];
  where.store(v);
  for (uint32_t& x : v) x = from[x % (2 * P::lanes)];
  return P::load(v);
}

// --- Pixels of fewer bytes

template <class P>
TESSARO_INLINE Halfwords<P> halfwords(P first, P second) {
  const P lower = P::splat(0xFFFF);
  return {choose_bits(lower, first, shl<16>(second)), choose_bits(lower, shr<16>(first), second)};
}
template <class P>
TESSARO_INLINE Pair<P> pixels(Halfwords<P> w) {
  const P lower = P::splat(0xFFFF);
  return {choose_bits(lower, w.lower, shl<16>(w.upper)), choose_bits(lower, shr<16>(w.lower), w.upper)};
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
TESSARO_INLINE void store_halfwords(uint8_t* p, One::Half a) { std::memcpy(p, &a.v, 4); }
TESSARO_INLINE void store_triples(uint8_t* p, One a, One b, One c, One d) { store_ones<3>(p, a, b, c, d); }
TESSARO_INLINE void store_bytes(uint8_t* p, One a, One b, One c, One d) { store_ones<1>(p, a, b, c, d); }
TESSARO_INLINE void store_bits(uint8_t* p, One a, One b, One c, One d) {
  *p = static_cast<uint8_t>((a.v & 128) | (b.v & 128) >> 1 | (c.v & 128) >> 2 | (d.v & 128) >> 3);
}

// --- Tables of bytes

template <class P>
TESSARO_INLINE P look_up(const ByteTable<P>& table, P a) {
  uint8_t v[4 * P::lanes];
  a.store(v);
  for (uint8_t& x : v) x = table.at[x];
  return P::load(v);
}

// --- The channels of one pixel

struct OneQuad {
  uint16_t v[4];
  TESSARO_INLINE static OneQuad of(const uint8_t* p) { return {{p[0], p[1], p[2], p[3]}}; }
  TESSARO_INLINE static OneQuad load(const uint16_t* p) { return {{p[0], p[1], p[2], p[3]}}; }
  TESSARO_INLINE void store(uint16_t* p) const { std::memcpy(p, v, sizeof v); }
  TESSARO_INLINE static OneQuad splat(uint16_t x) { return {{x, x, x, x}}; }
};
TESSARO_INLINE OneQuad operator+(OneQuad a, const OneQuad& b) {
  for (int k = 0; k < 4; ++k) a.v[k] = static_cast<uint16_t>(a.v[k] + b.v[k]);
  return a;
}
TESSARO_INLINE OneQuad operator*(OneQuad a, const OneQuad& b) {
  for (int k = 0; k < 4; ++k) a.v[k] = static_cast<uint16_t>(a.v[k] * b.v[k]);
  return a;
}

#ifndef TESSARO_PX
#define TESSARO_PX
#define TESSARO_LANES 1
using Px = One;
using Quad = OneQuad;
#endif
static_assert(PixelVector<One> && MovingPixels<One> && PackedPixels<One> && LookedUpBytes<One>);

}  // namespace
