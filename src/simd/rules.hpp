// Rules of arithmetic that several families share.
#pragma once

#include "simd/scalar.hpp"

namespace {

// A pixel's channels in 16 bits each.
template <class P>
struct Halves {
  typename P::Half even, odd;
  TESSARO_INLINE static Halves of(P a) { return {::even(a), ::odd(a)}; }
};

// (d * (256 - w) + s * w) >> 8 in all four channels; w is 0..256 in both lanes of each pixel. That is d + ((s
// - d) * w >> 8), where the upper bytes of the products and the sum may wrap: one product a channel.
template <class P>
TESSARO_INLINE P mix(P d, Halves<P> s, typename P::Half w) {
  d = kept(d);
  return add(d, join_high((s.even - even(d)) * w, (s.odd - odd(d)) * w));
}
template <class P>
TESSARO_INLINE P mix(P d, P s, typename P::Half w) {
  return mix(d, Halves<P>::of(kept(s)), w);
}

template <class P>
struct ConstantMix {
  typename P::Half weight;
  TESSARO_INLINE explicit ConstantMix(uint32_t w) : weight(P::Half::splat(w)) {}
  TESSARO_INLINE P operator()(P d, P s) const { return mix(d, s, weight); }
};

// (alpha * m) >> 16 in both lanes of each pixel; m at most 65794, from alpha_factor.
template <class P>
struct AlphaWeights {
  using H = typename P::Half;
  H factor;
  bool beyond_16_bits;
  TESSARO_INLINE explicit AlphaWeights(uint32_t m) : factor(H::splat(m)), beyond_16_bits(m > 65535) {}
  TESSARO_INLINE H operator()(P s) const {
    const H alpha = alpha_halves(s), part = mul_high(alpha, factor);
    return beyond_16_bits ? part + alpha : part;
  }
};

template <class P>
struct AlphaMix {
  AlphaWeights<P> weights;
  TESSARO_INLINE explicit AlphaMix(uint32_t factor) : weights(factor) {}
  TESSARO_INLINE P operator()(P d, P s) const {
    s = kept(s);
    return mix(d, s, weights(s));
  }
};

// (v >> 1) of every byte.
template <class P>
TESSARO_INLINE P half_bytes(P a) {
  return shr<1>(a) & P::splat(0x7F7F7F7F);
}

// Each of blue, green and red becomes (channel * k >> 10) + (sum of the three * m >> 10), kept within a byte;
// m may be negative.
template <class P>
struct Saturate {
  using H = typename P::Half;
  H even_k, odd_k;  // alpha stays
  int32_t sum_part;
  TESSARO_INLINE Saturate(int32_t k, int32_t m) : sum_part(m) {
    const auto of_channel = static_cast<uint32_t>(k);
    even_k = H::splat(of_channel);
    odd_k = halves(P::splat(of_channel | 1024 << 16));
  }
  TESSARO_INLINE P operator()(P s) const {
    const H grey = colour_sums<6>(s, sum_part, 0);
    const auto scaled = [](H c, H k) { return mul_high_signed(shl<6>(c), k); };
    return join_sat(scaled(even(s), even_k) + grey,
                    scaled(odd(s), odd_k) + (grey & halves(P::splat(0xFFFF))));
  }
  // The same where both lanes hold one channel each, times 32. sum(channel, grey) adds what may lie beyond a
  // byte.
  template <class Sum>
  TESSARO_INLINE void apart(H& blue, H& green, H& red, const Sum& sum) const {
    const H grey = mul_high_signed(blue + green + red, H::splat(static_cast<uint32_t>(2 * sum_part)));
    const auto saturated = [&](H c) { return sum(mul_high(c, even_k + even_k), grey); };
    blue = saturated(blue), green = saturated(green), red = saturated(red);
  }
};
// With 16 bits a factor must stay below 32; beyond that, one pixel at a time.
inline constexpr int32_t saturation_limit = 32767;
template <>
struct Saturate<One> {
  int32_t k, m;
  TESSARO_INLINE One operator()(One s) const {
    const auto c = [&](int at) { return static_cast<int32_t>(s.v >> at & 255); };
    const int32_t grey = ((c(0) + c(8) + c(16)) * m) >> 10;
    uint32_t v = s.v & 0xFF000000;
    for (int at = 0; at < 24; at += 8) {
      const int32_t channel = (c(at) * k >> 10) + grey;
      v |= static_cast<uint32_t>(channel < 0 ? 0 : channel > 255 ? 255 : channel) << at;
    }
    return {v};
  }
};

}  // namespace
