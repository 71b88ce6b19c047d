// kernels: BlitKernels
#include "pixel/blit.hpp"
#include "simd/processor.hpp"
#include "simd/rows.hpp"
#include "simd/rules.hpp"

namespace {

using tessaro::AlphaFlags;
using tessaro::Area;
using tessaro::AreaPair;

// One rule a line where the vocabulary has the operation.
#define TESSARO_RULE2(Name, result)                                                 \
  template <class P>                                                                \
  struct Name {                                                                     \
    TESSARO_INLINE P operator()([[maybe_unused]] P d, P s) const { return result; } \
  }
TESSARO_RULE2(Add, add_sat(d, s));
TESSARO_RULE2(Sub, sub_sat(d, s));
TESSARO_RULE2(Difference, difference(d, s));
TESSARO_RULE2(WrapSub, sub(d, s) ^ P::splat(0x80808080));  // + 128 of a byte
TESSARO_RULE2(WrapAdd, add(d, s) ^ P::splat(0x80808080));
TESSARO_RULE2(Invert, ~s);
TESSARO_RULE2(Min, min(d, s));
TESSARO_RULE2(Max, max(d, s));
TESSARO_RULE2(HalfBlend, add(half_bytes(s), half_bytes(d)));
TESSARO_RULE2(ShiftAlpha, alphas(s));
TESSARO_RULE2(ShiftBlock,
              select(above(s, P::splat(128)), and_not(P::splat(0x007FC0C0), d) | P::splat(0x00800000), d));

template <class P>
struct Mul {  // (d * s + 255) >> 8
  TESSARO_INLINE P operator()(P d, P s) const {
    const auto up = P::Half::splat(255);
    return join_high(even(d) * even(s) + up, odd(d) * odd(s) + up);
  }
};

template <class P>
struct Blend255 {  // alpha 0 keeps d, 255 gives s, between them (s * a + d * (255 - a)) >> 8
  TESSARO_INLINE P operator()(P d, P s) const {
    const auto a = alpha_halves(s);
    const auto full = P::Half::splat(255);
    const auto w = plus_equal(a, full), rest = plus_equal(full - a, full);
    return join_high(even(d) * rest + even(s) * w, odd(d) * rest + odd(s) * w);
  }
};

template <class P>
struct Blend256 {  // the weight is floor(alpha * 256 / 255)
  TESSARO_INLINE P operator()(P d, P s) const {
    return mix(d, s, plus_equal(alpha_halves(s), P::Half::splat(255)));
  }
};

template <class P>
struct Fill {
  P colour;
  TESSARO_INLINE explicit Fill(uint32_t c) : colour(P::splat(c)) {}
  TESSARO_INLINE P operator()(P) const { return colour; }
};

template <class P>
struct MaskedFill {
  P mask, flip, colour;
  TESSARO_INLINE MaskedFill(uint32_t m, uint32_t x, uint32_t c)
      : mask(P::splat(m)), flip(P::splat(x & m)), colour(P::splat(c & ~m)) {}
  TESSARO_INLINE P operator()(P d) const { return ((d & mask) ^ flip) | colour; }
};

template <class P>
struct MixColour {
  typename P::Half rest, even_part, odd_part;
  TESSARO_INLINE MixColour(uint32_t colour, uint32_t weight)
      : rest(P::Half::splat(256 - weight)),
        even_part(even(P::splat(colour)) * P::Half::splat(weight)),
        odd_part(odd(P::splat(colour)) * P::Half::splat(weight)) {}
  TESSARO_INLINE P operator()(P d) const {
    return join_high(even(d) * rest + even_part, odd(d) * rest + odd_part);
  }
};

template <class P>
struct Alpha {
  AlphaFlags on;
  // Alpha is the upper lane of the odd half; the lower one is carried along and dropped. The lanes are signed
  // 16 bits, enough for -255..510.
  TESSARO_INLINE P operator()(P d, P s) const {
    const auto of_dest = odd(d);
    auto a = odd(s);
    if (on.subtract_from_dest) a = of_dest - a;
    if (on.invert) a = P::Half::splat(255) - a;
    if (on.min_with_dest) a = min(a, of_dest);
    if (on.max_with_dest) a = max(a, of_dest);
    return with_alpha(d, whole(shl<8>(a)));
  }
};

template <class P>
struct Keying {
  P key;
  TESSARO_INLINE explicit Keying(uint32_t k) : key(P::splat(k)) {}
  TESSARO_INLINE P operator()(P d, P s) const { return select(equal(s, key), d, s); }
};

template <class P>
struct KeyedMix {
  Keying<P> keying;
  ConstantMix<P> mixing;
  TESSARO_INLINE KeyedMix(uint32_t k, uint32_t w) : keying(k), mixing(w) {}
  TESSARO_INLINE P operator()(P d, P s) const { return select(equal(s, keying.key), d, mixing(d, s)); }
};

void fill(Area n, uint32_t colour) {
  n = flattened(n);
  if (n.width < long_row) return walk1<Fill>(n, colour);
  for (; n.height > 0; --n.height, n.at += n.pitch)
    tessaro::processor::fill(n.at, colour, static_cast<size_t>(n.width));
}

void copy(AreaPair n) {
  n = flattened(n);
  const RowWriter write(n.width, n.height);
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    const auto width = static_cast<size_t>(n.width);
    if (reads_own_writes(n.dst, n.src, 4 * width))
      walk2<Replace>({n.dst, n.dst_pitch, n.src, n.src_pitch, n.width, 1});
    else
      write(n.dst, n.src, width);
  }
}

template <template <class> class Rule>
void two(const AreaPair& n) {
  walk2<Rule>(n);
}

}  // namespace

TESSARO_KERNELS(BlitKernels){
    .copy = [](const AreaPair& n) { copy(n); },
    .add = two<Add>,
    .mul = two<Mul>,
    .sub = two<Sub>,
    .difference = two<Difference>,
    .wrap_sub = two<WrapSub>,
    .wrap_add = two<WrapAdd>,
    .invert = two<Invert>,
    .min = two<Min>,
    .max = two<Max>,
    .half = two<HalfBlend>,
    .shift_alpha = two<ShiftAlpha>,
    .shift_block = two<ShiftBlock>,
    .blend_255 = two<Blend255>,
    .blend_256 = two<Blend256>,
    .fill = [](const Area& n, uint32_t colour) { fill(n, colour); },
    .masked_fill = [](const Area& n, uint32_t mask, uint32_t flip,
                      uint32_t colour) { walk1<MaskedFill>(n, mask, flip, colour); },
    .mix_colour = [](const Area& n, uint32_t colour,
                     uint32_t weight) { walk1<MixColour>(n, colour, weight); },
    .alpha = [](const AreaPair& n, AlphaFlags flags) { walk2<Alpha>(n, flags); },
    .keying = [](const AreaPair& n, uint32_t key) { walk2<Keying>(n, key); },
    .mix = [](const AreaPair& n, uint32_t weight) { walk2<ConstantMix>(n, weight); },
    .keyed_mix = [](const AreaPair& n, uint32_t key, uint32_t weight) { walk2<KeyedMix>(n, key, weight); },
};
