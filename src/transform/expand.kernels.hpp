// kernels: ExpandKernels
#include "transform/expand.hpp"

#include "simd/rules.hpp"
#include "transform/sample_walk.hpp"

namespace {

using tessaro::AreaPair;
using tessaro::Gradient;
using tessaro::Treatment;

// The colour of a row runs from left to right; the columns' weights come as pixels.
template <class P>
struct GradientRule {
  const Gradient& g;
  AlphaWeights<P> weights;
  P left = P::splat(0), right = P::splat(0);
  TESSARO_INLINE explicit GradientRule(const Gradient& gradient) : g(gradient), weights(g.factor) {}
  TESSARO_INLINE void start_row(uint32_t weight) {
    const auto w = P::Half::splat(weight);
    left = mix(P::splat(g.top_left), P::splat(g.bottom_left), w);
    right = mix(P::splat(g.top_right), P::splat(g.bottom_right), w);
  }
  TESSARO_INLINE P operator()(P d, P s, P column) const {
    const P mask = P::splat(g.mask), keep = P::splat(g.keep);
    s = choose_bits(mask, s, mix(left, right, halves(column)));
    const auto weight = g.by_alpha ? weights(s) : P::Half::splat(g.weight);
    return choose_bits(keep, d, mix(d, s, weight));
  }
};

void gradient(const Stretch& n, const Gradient& g) {
  const auto* weights = reinterpret_cast<const uint8_t*>(g.column_weights);
  GradientRule<Px> rule{g};
  GradientRule<One> one{g};
  for_samples<Px>(n, [&]<class P>(uint8_t* dst, const uint8_t* src, int32_t x, int32_t width, int32_t i) {
    const uint32_t row = tessaro::way_weight(i, n.dh - 1);
    const uint8_t* columns = weights + 4 * static_cast<ptrdiff_t>(x);
    if constexpr (std::same_as<P, Px>) {
      rule.start_row(row);
      walk_row<P>(dst, static_cast<size_t>(width), rule, src, columns);
    } else {
      one.start_row(row);
      walk_row<P>(dst, static_cast<size_t>(width), one, src, columns);
    }
  });
}

// Stretches low..high of each colour to 0..255: floor(255 * (v - low) / (high - low)). From above the high
// end it is 255 and up to the low end 0, except that equal ends give 255 - low at that value. Each channel is
// ((t << 8 | bias) * factor >> 16) * shift >> 16 of its t = min(v - low, range): see LevelFactor, which is
// exact.
template <class P>
struct Levels {
  P low, range, equal_ends, bias;
  Paired<typename P::Half> factor, shift;
  bool any_equal = false;
  TESSARO_INLINE explicit Levels(const tessaro::LevelRange (&colours)[3]) {
    // Alpha stays: (t << 8) * 0x8000 >> 16 is t << 7, and that times 0x0200 >> 16 is t.
    uint32_t lows = 0, ranges = 0xFF000000, patch = 0, biases = 0, factors[] = {0, 0x80000000},
             shifts[] = {0, 0x02000000};
    for (int k = 0; k < 3; ++k) {
      const tessaro::LevelRange& c = colours[k];
      const auto put = [k](uint32_t& word, uint32_t byte) { word |= (byte & 255) << 8 * k; };
      put(lows, c.low);
      put(ranges, c.range);
      put(biases, c.by.bias);
      put(factors[0], c.by.factor);
      put(factors[1], c.by.factor >> 8);
      put(shifts[0], c.by.shift);
      put(shifts[1], c.by.shift >> 8);
      if (c.equal_ends) put(patch, 255 - c.low);
      any_equal |= c.equal_ends;
    }
    low = P::splat(lows);
    range = P::splat(ranges);
    bias = P::splat(biases);
    equal_ends = P::splat(patch);
    factor = paired(P::splat(factors[0]), P::splat(factors[1]));
    shift = paired(P::splat(shifts[0]), P::splat(shifts[1]));
  }
  TESSARO_INLINE P operator()(P v) const {
    const auto t = paired(bias, min(sub_sat(v, low), range));
    const P out = unpaired(mul_high(mul_high(t.first, factor.first), shift.first),
                           mul_high(mul_high(t.second, factor.second), shift.second));
    if (!any_equal) return out;
    const P one = P::splat(0x01010101);
    return out | (sub(min(difference(v, low), one), one) & equal_ends);
  }
};

template <class P>
struct Treat {
  using H = typename P::Half;
  const Treatment c;
  // The mask, the inverted bits and the colour as one rule: (s & vary) ^ flip. Steps of one operation are
  // always taken: a branch costs more.
  P vary, flip, keep, from_source, added;
  bool adds, mixes;
  H weight;
  AlphaWeights<P> weights;
  Saturate<P> saturate;
  Levels<P> levels;
  TESSARO_INLINE explicit Treat(const Treatment& treatment)
      : c(treatment),
        vary(P::splat(c.mask | (c.invert & ~c.colour))),
        flip(P::splat((c.invert | c.colour) & ~c.mask)),
        keep(P::splat(c.keep)),
        from_source(P::splat(c.source_is_base ? 0xFFFFFFFF : 0)),
        added(P::splat((c.add_colour ? 0x00FFFFFFu : 0) | (c.add_alpha ? 0xFF000000 : 0))),
        adds(c.add_colour || c.add_alpha),
        mixes((c.by_alpha || c.weight != 256) && !(c.add_colour && c.add_alpha)),
        weight(H::splat(c.weight)),
        weights(c.factor),
        saturate{c.saturation.channel_part, c.saturation.sum_part},
        levels{c.levels} {}
  TESSARO_INLINE P operator()(P d, P s) const {
    s = kept(s);
    const P base = choose_bits(from_source, s, d);
    s = (s & vary) ^ flip;
    const H w = c.by_alpha ? weights(s) : weight;  // early: the colours take long
    if (c.saturated) s = saturate(s);
    if (c.levelled) s = levels(s);
    P out = s;
    if (mixes) out = mix(base, s, w);
    if (adds) out = choose_bits(added, add_sat(base, join_high(even(s) * w, odd(s) * w)), out);
    return choose_bits(keep, base, out);
  }
};

template <class P>
struct FillByAlpha {
  P colour;
  AlphaWeights<P> weights;
  TESSARO_INLINE FillByAlpha(uint32_t c, uint32_t factor) : colour(P::splat(c)), weights(factor) {}
  TESSARO_INLINE P operator()(P d, P s) const { return mix(d, colour, weights(s)); }
};

}  // namespace

TESSARO_KERNELS(ExpandKernels){
    .copy = [](const Stretch& n) { stretch_copy(n); },
    .mix = [](const Stretch& n, uint32_t weight) { stretch_short<ConstantMix>(n, weight); },
    .blend = [](const Stretch& n, uint32_t factor) { stretch_short<AlphaMix>(n, factor); },
    .gradient = gradient,
    .choose =
        [](const Stretch& n, const Treatment& treatment) {
          if (treatment.saturated && treatment.saturation.channel_part > saturation_limit)
            stretch<One, Treat>(n, treatment);
          else
            stretch<Px, Treat>(n, treatment);
        },
    .fill_by_alpha = [](const AreaPair& n, uint32_t colour,
                        uint32_t factor) { walk2<FillByAlpha>(n, colour, factor); },
};
