// Rules that stretched and unscaled blits share.
#pragma once

#include "simd/rules.hpp"

namespace {

template <class P>
struct ConstantMix {
  typename P::Half weight, rest;
  TESSARO_INLINE explicit ConstantMix(uint32_t w)
      : weight(P::Half::splat(w)), rest(P::Half::splat(256 - w)) {}
  TESSARO_INLINE P operator()(P d, P s) const { return mix(d, s, weight, rest); }
};

template <class P>
struct AlphaMix {
  uint32_t factor;  // alpha_factor
  TESSARO_INLINE explicit AlphaMix(uint32_t f) : factor(f) {}
  TESSARO_INLINE P operator()(P d, P s) const { return mix(d, s, scaled_alpha(s, factor)); }
};

}  // namespace
