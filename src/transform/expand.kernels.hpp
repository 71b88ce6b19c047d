// kernels: ExpandKernels for scalar sse2 avx2 avx512
#include "transform/expand.hpp"

#include "simd/rules.hpp"
#include "transform/stretch.hpp"

namespace {

using tessaro::AreaPair;
using tessaro::Choice;
using tessaro::Gradient;

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
      row3<P>(dst, src, columns, static_cast<size_t>(width), rule);
    } else {
      one.start_row(row);
      row3<P>(dst, src, columns, static_cast<size_t>(width), one);
    }
  });
}

// Stretches low..high of each colour to 0..255: floor(255 * (v - low) / (high - low)). From above the high end it is 255
// and up to the low end 0, except that equal ends give 255 - low at that value. Takes what is not yet kept within a byte.
template <class P>
struct Levels {
  using H = typename P::Half;
  P low, equal_ends;
  Halves<P> lows, ranges, inverses;
  bool any_equal = false;
  TESSARO_INLINE Levels(uint32_t from, uint32_t to) {
    uint32_t start = 0, range = 0xFF000000, patch = 0, inverse[4] = {0, 0, 0, 256};  // alpha stays
    for (int k = 0; k < 3; ++k) {
      const uint32_t a = from >> 8 * k & 255, b = to >> 8 * k & 255;
      const uint32_t r = b > a ? b - a : a < 255 ? 1 : 0;  // nothing lies above 255
      start |= a << 8 * k;
      range |= r << 8 * k;
      inverse[k] = r ? (255 * 256 + r - 1) / r : 0;
      if (a == b) {
        any_equal = true;
        patch |= (255 - a) << 8 * k;
      }
    }
    low = P::splat(start);
    equal_ends = P::splat(patch);
    lows = Halves<P>::of(low);
    ranges = Halves<P>::of(P::splat(range));
    inverses = {halves(P::splat(inverse[0] | inverse[2] << 16)),
                halves(P::splat(inverse[1] | inverse[3] << 16))};
  }
  // The product with the inverse is the quotient or one more, never less; the remainder tells.
  TESSARO_INLINE static H scaled(H v, H from, H range, H inverse) {
    const H t = min(max(v - from, H::splat(0)), range);
    const H up = shl<8>(t);
    const H q = mul_high(up, inverse);
    return q - shr<15>(up - t - q * range);
  }
  TESSARO_INLINE Halves<P> operator()(Halves<P> v) const {
    Halves<P> out = {scaled(v.even, lows.even, ranges.even, inverses.even),
                     scaled(v.odd, lows.odd, ranges.odd, inverses.odd)};
    if (any_equal) {
      const auto byte = [](H c) { return min(max(c, H::splat(0)), H::splat(255)); };
      const P one = P::splat(0x01010101);
      const P patch = sub(min(difference(join(byte(v.even), byte(v.odd)), low), one), one) & equal_ends;
      out = {out.even + even(patch), out.odd + odd(patch)};
    }
    return out;
  }
};

template <class P>
struct Choose {
  using H = typename P::Half;
  const Choice c;
  P vary, flip, set,
      keep;  // the mask, the inverted bits and the colour as one rule: ((s & vary) ^ flip) | set
  H weight;
  AlphaWeights<P> weights;
  Saturate<P> saturate;
  Levels<P> levels;
  TESSARO_INLINE explicit Choose(const Choice& choice)
      : c(choice),
        vary(P::splat(c.mask | (c.invert & ~c.color))),
        flip(P::splat(c.invert & ~c.color & ~c.mask)),
        set(P::splat(c.color & ~c.mask)),
        keep(P::splat(c.keep)),
        weight(H::splat(c.weight)),
        weights(c.factor),
        saturate{c.saturation, c.grey},
        levels{c.low, c.high} {}
  TESSARO_INLINE P operator()(P d, P s) const {
    const P base = c.source_is_base ? s : d;
    if (c.mask != 0xFFFFFFFF) s = ((s & vary) ^ flip) | set;
    const H w = c.by_alpha ? weights(s) : weight;
    Halves<P> v = Halves<P>::of(s);
    if (c.levelled)
      v = levels(c.saturated ? saturate.sums(s) : v);
    else if (c.saturated)
      v = Halves<P>::of(saturate(s));
    if (c.add_color && c.add_alpha) {
      s = add_sat(base, join_high(v.even * w, v.odd * w));
    } else {
      s = mix(base, v, w);
      if (c.add_color || c.add_alpha) {
        const P sum = add_sat(base, join_high(v.even * w, v.odd * w));
        s = c.add_color ? with_alpha(sum, s) : with_alpha(s, sum);
      }
    }
    if (c.keep != 0) s = choose_bits(keep, base, s);
    return s;
  }
};

template <class P>
struct FillByAlpha {
  P color;
  AlphaWeights<P> weights;
  TESSARO_INLINE FillByAlpha(uint32_t c, uint32_t factor) : color(P::splat(c)), weights(factor) {}
  TESSARO_INLINE P operator()(P d, P s) const { return mix(d, color, weights(s)); }
};

}  // namespace

TESSARO_KERNELS(ExpandKernels){
    .copy = [](const Stretch& n) { stretch_copy(n); },
    .mix = [](const Stretch& n, uint32_t weight) { stretch_short<ConstantMix>(n, weight); },
    .blend = [](const Stretch& n, uint32_t factor) { stretch_short<AlphaMix>(n, factor); },
    .gradient = gradient,
    .choose =
        [](const Stretch& n, const Choice& choice) {
          if (choice.saturated && choice.saturation > saturation_limit)
            stretch<One, Choose>(n, choice);
          else
            stretch<Px, Choose>(n, choice);
        },
    .fill_by_alpha = [](const AreaPair& n, uint32_t color,
                        uint32_t factor) { walk2<FillByAlpha>(n, color, factor); },
};
