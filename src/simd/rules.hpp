// Rules of arithmetic that several families share.
#pragma once

#include "simd/vocabulary.hpp"

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

}  // namespace
