// kernels: ExpandKernels for scalar sse2 avx2 avx512
#include "transform/expand.hpp"

#include "transform/rules.hpp"
#include "transform/stretch.hpp"

namespace {

using tessaro::AreaPair;
using tessaro::Choice;
using tessaro::Gradient;

template <class P>
struct Replace {
  TESSARO_INLINE P operator()(P, P s) const { return s; }
};

// The colour of a row runs from left to right; the columns' weights come as pixels.
template <class P>
struct GradientRule {
  const Gradient& g;
  P left = P::splat(0), right = P::splat(0);
  TESSARO_INLINE explicit GradientRule(const Gradient& gradient) : g(gradient) {}
  TESSARO_INLINE void start_row(uint32_t weight) {
    const auto w = P::Half::splat(weight);
    left = mix(P::splat(g.top_left), P::splat(g.bottom_left), w);
    right = mix(P::splat(g.top_right), P::splat(g.bottom_right), w);
  }
  TESSARO_INLINE P operator()(P d, P s, P column) const {
    const P mask = P::splat(g.mask), keep = P::splat(g.keep);
    s = (s & mask) | and_not(mix(left, right, halves(column)), mask);
    const auto weight = g.by_alpha ? scaled_alpha(s, g.factor) : P::Half::splat(g.weight);
    return (d & keep) | and_not(mix(d, s, weight), keep);
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
// and up to the low end 0, except that equal ends give 255 - low at that value.
template <class P>
struct Levels {
  using H = typename P::Half;
  P low, range, equal_ends;
  H even_range, odd_range, even_inverse, odd_inverse;
  bool any_equal = false;
  TESSARO_INLINE Levels(uint32_t from, uint32_t to) {
    uint32_t lows = 0, ranges = 0xFF000000, patch = 0, inverse[4] = {0, 0, 0, 256};
    for (int k = 0; k < 3; ++k) {
      const uint32_t a = from >> 8 * k & 255, b = to >> 8 * k & 255;
      const uint32_t r = b > a ? b - a : 1;
      lows |= a << 8 * k;
      ranges |= r << 8 * k;
      inverse[k] = (255 * 256 + r - 1) / r;
      if (a == b) {
        any_equal = true;
        patch |= (255 - a) << 8 * k;
      }
    }
    low = P::splat(lows);
    range = P::splat(ranges);
    equal_ends = P::splat(patch);
    even_range = even(range);
    odd_range = odd(range);
    even_inverse = halves(P::splat(inverse[0] | inverse[2] << 16));
    odd_inverse = halves(P::splat(inverse[1] | inverse[3] << 16));
  }
  // The product with the inverse is the quotient or one more, never less; the remainder tells.
  TESSARO_INLINE static H scaled(H t, H r, H inverse) {
    const H up = shl<8>(t);
    const H q = mul_high(up, inverse);
    return q - shr<15>(up - t - q * r);
  }
  TESSARO_INLINE P operator()(P v) const {
    const P t = min(sub_sat(v, low), range);
    P out = join(scaled(even(t), even_range, even_inverse), scaled(odd(t), odd_range, odd_inverse));
    if (any_equal) {
      const P one = P::splat(0x01010101);
      out = out | (sub(min(difference(v, low), one), one) & equal_ends);
    }
    return out;
  }
};

template <class P>
struct Choose {
  using H = typename P::Half;
  const Choice& c;
  P mask, color, invert, keep;
  Saturate<P> saturate;
  Levels<P> levels;
  TESSARO_INLINE explicit Choose(const Choice& choice)
      : c(choice),
        mask(P::splat(c.mask)),
        color(P::splat(c.color)),
        invert(P::splat(c.invert)),
        keep(P::splat(c.keep)),
        saturate{c.saturation, c.grey},
        levels{c.low, c.high} {}
  TESSARO_INLINE P operator()(P d, P s) const {
    const P base = c.source_is_base ? s : d;
    if (c.mask != 0xFFFFFFFF) s = (s & mask) | and_not(and_not(invert, s) | color, mask);
    if (c.saturated) s = saturate(s);
    if (c.levelled) s = levels(s);
    const H weight = c.by_alpha ? scaled_alpha(s, c.factor) : H::splat(c.weight);
    if (!c.add_color && !c.add_alpha) {
      s = mix(base, s, weight);
    } else {
      const P part = join_high(even(s) * weight, odd(s) * weight);
      if (c.add_color && c.add_alpha) {
        s = add_sat(base, part);
      } else {
        const P mixed = mix(base, s, weight), sum = add_sat(base, part);
        s = c.add_color ? with_alpha(sum, mixed) : with_alpha(mixed, sum);
      }
    }
    if (c.keep != 0) s = (base & keep) | and_not(s, keep);
    return s;
  }
};

template <class P>
struct FillByAlpha {
  P color;
  uint32_t factor;
  TESSARO_INLINE FillByAlpha(uint32_t c, uint32_t f) : color(P::splat(c)), factor(f) {}
  TESSARO_INLINE P operator()(P d, P s) const { return mix(d, color, scaled_alpha(s, factor)); }
};

}  // namespace

TESSARO_KERNELS(ExpandKernels){
    .copy = [](const Stretch& n) { stretch<Px, Replace, true>(n); },
    .mix = [](const Stretch& n, uint32_t weight) { stretch<Px, ConstantMix>(n, weight); },
    .blend = [](const Stretch& n, uint32_t factor) { stretch<Px, AlphaMix>(n, factor); },
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
