// Rules of arithmetic that several families share.
#pragma once

#include "simd/scalar.hpp"

namespace {

// (d * (256 - w) + s * w) >> 8 in all four channels; w is 0..256 in both lanes of each pixel.
template <class P>
TESSARO_INLINE P mix(P d, P s, typename P::Half w, typename P::Half rest) {
  return join_high(even(d) * rest + even(s) * w, odd(d) * rest + odd(s) * w);
}
template <class P>
TESSARO_INLINE P mix(P d, P s, typename P::Half w) {
  return mix(d, s, w, P::Half::splat(256) - w);
}

// (v >> 1) of every byte.
template <class P>
TESSARO_INLINE P half_bytes(P a) {
  return shr<1>(a) & P::splat(0x7F7F7F7F);
}

// Each of blue, green and red becomes (channel * k >> 10) + (sum of the three * m >> 10), kept within a byte; m may be
// negative.
template <class P>
struct Saturate {
  typename P::Half k, m, negative;
  TESSARO_INLINE Saturate(int32_t of_channel, int32_t of_sum)
      : k(P::Half::splat(static_cast<uint32_t>(of_channel))),
        m(P::Half::splat(static_cast<uint32_t>(2 * of_sum))),
        negative(P::Half::splat(of_sum < 0 ? 0x7FFF : 0)) {}
  TESSARO_INLINE P operator()(P s) const {
    using H = typename P::Half;
    // As an unsigned factor a negative m is 65536 too high, which adds the other factor to the high product.
    const H sums = shl<5>(colour_sums(s));
    const H grey = mul_high(sums, m) - min(sums, negative);
    const auto channels = [&](H c) {
      return min(max(mul_high(shl<6>(c), k) + grey, H::splat(0)), H::splat(255));
    };
    return with_alpha(join(channels(even(s)), channels(odd(s))), s);
  }
};
// With 16 bits a factor must stay below 64; beyond that, one pixel at a time.
inline constexpr int32_t saturation_limit = 65535;
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
