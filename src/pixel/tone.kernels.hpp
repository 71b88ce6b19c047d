// kernels: ToneKernels
#include "pixel/tone.hpp"

#include "simd/rules.hpp"
#include "simd/walk.hpp"

namespace {

using tessaro::AreaPair;

// (blue + green + red + more) / 3, without the remainder, in both lanes: 21846 / 65536 is a little more than
// 1/3, and exact for sums up to 766.
template <class P>
TESSARO_INLINE typename P::Half mean(P a, int more) {
  return colour_sums<0>(a, 21846, 21846 * more);
}

template <class P>
struct Tone {
  TESSARO_INLINE P operator()(P d, P s) const {
    const P wanted = brightness(d), has = brightness(s);
    return with_alpha(sub_sat(add_sat(s, sub_sat(wanted, has)), sub_sat(has, wanted)), d);
  }
  TESSARO_INLINE static P brightness(P a) {  // in all four bytes
    const auto grey = mean(a, 1);
    return join(grey, grey);
  }
};

template <class P>
struct ToneMix {
  FallingLine line;
  TESSARO_INLINE explicit ToneMix(float factor) : line(factor) {}
  TESSARO_INLINE P operator()(P d, P s) const {
    const auto e = even(s) - even(d), o = odd(s) - odd(d), lift = mean(d, 0) - mean(s, 0);
    const auto w = falling_weights(e + lift, o + lift, line);
    return add(d, join_high(e * w, o * w));  // as mix does, from the differences that are there
  }
};

template <class P>
struct TrueBlend {
  AlphaWeights<P> weights;
  TESSARO_INLINE explicit TrueBlend(uint32_t factor) : weights(factor) {}
  TESSARO_INLINE P operator()(P d, P s) const {
    using H = typename P::Half;
    const H sa = alpha_halves(s), da = alpha_halves(d);
    // A product of two bytes through 255, without the remainder.
    const H more = (H::splat(255) - da) * sa;
    const H alpha = da + shr<8>(more + H::splat(1) + shr<8>(more));
    const P blended = with_alpha(mix(d, s, weights(s)), join(alpha, alpha));
    const P first = P::splat(0x01000000), last = P::splat(0xFEFFFFFF);
    const P covered = select(above(first, d), s, select(above(s, last), s, blended));
    return select(above(first, s), d, covered);
  }
};

}  // namespace

TESSARO_KERNELS(ToneKernels){
    .tone = [](const AreaPair& n) { walk2<Tone>(n); },
    .tone_mix = [](const AreaPair& n, float factor) { walk2<ToneMix>(n, factor); },
    .true_blend = [](const AreaPair& n, uint32_t factor) { walk2<TrueBlend>(n, factor); },
};
