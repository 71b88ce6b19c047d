// kernels: ReduceKernels
#include "simd/rules.hpp"
#include "simd/walk.hpp"
#include "transform/reduce.hpp"

namespace {

using tessaro::AlphaFrom;
using tessaro::Assembly;
using tessaro::ChooseRows;
using tessaro::DitherRow;
using tessaro::IntegerWeights;
using tessaro::Routing;
using tessaro::Weights;

// 1 in every byte where low >= threshold and c is not 0.
template <class P>
TESSARO_INLINE P moves_up(P c, P low, P threshold) {
  const P one = P::splat(0x01010101);
  return sub_sat(one, sub_sat(threshold, low)) & min(c, one);
}

// The lower `bits` bits of a byte are dropped, or carried up where they reach the threshold.
template <class P, int bits>
struct CarryUp {
  TESSARO_INLINE P operator()(P c, P threshold) const {
    const P low = P::splat(((1u << bits) - 1) * 0x01010101u);
    return with_alpha(add_sat(and_not(c, low), shl<bits>(moves_up(c, c & low, threshold))), c);
  }
};
template <class P>
using To1555 = CarryUp<P, 3>;
template <class P>
using To4444 = CarryUp<P, 4>;
// The upper six bits of a colour against the threshold: 255 where they reach it and the colour is not 0, else
// 0. Bytes of one pixel do not meet: what a shift brings in from the neighbour is masked off.
template <class P>
struct To1111 {
  TESSARO_INLINE P operator()(P c, P threshold) const {
    return with_alpha(sub(P::splat(0), moves_up(c, shr<2>(c) & P::splat(0x3F3F3F3F), threshold)), c);
  }
};

template <template <class> class Rule>
void dither(uint8_t* row, size_t width, const DitherRow& thresholds) {
  size_t x = 0;
  for (; x + Px::lanes <= width; x += Px::lanes)
    Rule<Px>{}(Px::load(row + 4 * x), Px::load(thresholds.at + x % 8)).store(row + 4 * x);
  for (; x < width; ++x)
    Rule<One>{}(One::load(row + 4 * x), One::load(thresholds.at + x % 8)).store(row + 4 * x);
}

// (blue + green + red) / 3 as the alpha of a pixel without colour.
template <class P>
TESSARO_INLINE P mean_as_alpha(P a) {
  // 21846 / 65536 is 1/3 and a little more.
  static_assert([] {
    for (uint32_t sum = 0; sum <= 3 * 255; ++sum)
      if (sum * 21846 >> 16 != sum / 3) return false;
    return true;
  }());
  return shl<24>(join(colour_sums<0>(a, 21846, 0), P::Half::splat(0)));
}

// trunc(green * weight + blue * weight + red * weight) as the alpha of a pixel without colour, in doubles and
// in this order. Of what does not fit a byte the lower bits count.
template <class P>
TESSARO_INLINE P doubles_as_alpha(P a, const Weights& w) {
  const P byte = P::splat(255);
  return shl<24>(trunc_dot(shr<8>(a) & byte, a & byte, shr<16>(a) & byte, w.green, w.blue, w.red));
}

// Weights that are rounded up give the exact sum's integer, but doubles may fall below a sum that is a whole
// number. Pixels whose three colours are equal are often met. Of those only one falls with the weights that
// come rounded, which are fixed: the others need not be looked at.
constexpr uint32_t falling_grey = 233;
static_assert([] {
  for (int v = 0; v <= 255; ++v) {
    const double sum = v * tessaro::luma.green + v * tessaro::luma.blue + v * tessaro::luma.red;
    if ((static_cast<int>(sum) < v) != (v == falling_grey)) return false;
  }
  return true;
}());
template <class P>
TESSARO_INLINE bool may_fall_below(P a, P sum) {
  const P none = P::splat(0);
  const uint32_t whole = P::bits(equal(sum & P::splat(0x3FFF), none));
  if (whole == 0) [[likely]]
    return false;
  const uint32_t grey = P::bits(equal((shl<8>(a) ^ a) & P::splat(0xFFFF00), none));
  const uint32_t falling = P::bits(equal(a & P::splat(255), P::splat(falling_grey)));
  return (whole & ~(grey & ~falling)) != 0;
}

// The same with integers where they give what doubles give. Three products of a byte with 15 bits stay below
// 2^25; those of the lower bits are brought to the units of the upper ones, 2 to the -14, of which nothing is
// lost but what lies below one: the integer part begins at bit 14.
template <class P>
TESSARO_INLINE P weighted_as_alpha(P a, const Assembly& w) {
  if (P::lanes == 1 || !w.integer.usable) return doubles_as_alpha(a, w.weights);
  a = kept(a);
  const auto c = Halves<P>::of(a);
  const auto products = [&](uint32_t even, uint32_t odd) {
    return add32(pair_products(c.even, halves(P::splat(even))), pair_products(c.odd, halves(P::splat(odd))));
  };
  const IntegerWeights& i = w.integer;
  const P sum = add32(products(i.upper_even, i.upper_odd), shr<15>(products(i.lower_even, i.lower_odd)));
  if (i.rounded_up && may_fall_below(a, sum)) [[unlikely]]
    return doubles_as_alpha(a, w.weights);
  return shl<10>(sum);
}

template <class P>
struct Assemble {
  const Assembly& from;
  TESSARO_INLINE P operator()(P, P colour, P alpha) const {
    const P chosen = from.grey ? alphas(colour) : colour;
    if (from.alpha == AlphaFrom::mean) return with_alpha(chosen, mean_as_alpha(alpha));
    if (from.alpha == AlphaFrom::weights) return with_alpha(chosen, weighted_as_alpha(alpha, from));
    return with_alpha(chosen, alpha);
  }
};

void choose(ChooseRows rows, size_t width, const Assembly& from) {
  constexpr size_t vector = 4 * Px::lanes;
  if (reads_own_writes(rows.dst, rows.colour, vector) || reads_own_writes(rows.dst, rows.alpha, vector))
    walk_row<One>(rows.dst, width, Assemble<One>{from}, rows.colour, rows.alpha);
  else
    walk_row<Px>(rows.dst, width, Assemble<Px>{from}, rows.colour, rows.alpha);
}

// By shifts, or by one byte shuffle an image where there is one.
template <class P>
struct Route {
  int shift[4];
  bool from_dest[4];
  explicit Route(const Routing& from) {
    for (int i = 0; i < 4; ++i) {
      shift[i] = 8 * from.channel[i];
      from_dest[i] = from.from_dest[i];
    }
  }
  TESSARO_INLINE P operator()(P d, P s) const {
    const P low = P::splat(255);
    const auto channel = [&](int i) { return shr(from_dest[i] ? d : s, shift[i]) & low; };
    return channel(0) | shl<8>(channel(1)) | shl<16>(channel(2)) | shl<24>(channel(3));
  }
};
template <class P>
requires P::permutes struct Route<P> {
  P of_dest, of_source;  // for each byte its place in its 16 bytes, or the top bit for none
  explicit Route(const Routing& from) {
    uint32_t places[2] = {};
    for (int i = 0; i < 4; ++i)
      for (int image = 0; image < 2; ++image)
        places[image] |= (from.from_dest[i] == (image == 0) ? static_cast<uint32_t>(from.channel[i]) : 0x80u)
                         << (8 * i);
    uint32_t first_byte[P::lanes];
    for (size_t i = 0; i < P::lanes; ++i) first_byte[i] = static_cast<uint32_t>(4 * (i % 4)) * 0x01010101u;
    of_dest = add(P::load(first_byte), P::splat(places[0]));
    of_source = add(P::load(first_byte), P::splat(places[1]));
  }
  TESSARO_INLINE P operator()(P d, P s) const { return shuffled(d, of_dest) | shuffled(s, of_source); }
};

void route(const tessaro::AreaPair& n, const Routing& from) { walk2<Route>(n, from); }

}  // namespace

TESSARO_KERNELS(ReduceKernels){
    .to_1555 = dither<To1555>,
    .to_4444 = dither<To4444>,
    .to_1111 = dither<To1111>,
    .choose = choose,
    .route = route,
};
