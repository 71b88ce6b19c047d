// kernels: ReduceKernels for scalar sse2 avx2 avx512
#include "simd/walk.hpp"
#include "transform/reduce.hpp"

namespace {

using tessaro::AlphaFrom;
using tessaro::Choice;
using tessaro::ChooseRows;
using tessaro::DitherRow;
using tessaro::Routing;

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
  const auto sum = even(a & P::splat(0xFF)) + odd(a & P::splat(0xFF00)) + even(shr<16>(a) & P::splat(0xFF));
  // 21846 / 65536 is 1/3 and a little more: exact up to 765.
  return shl<24>(join(mul_high(sum, P::Half::splat(21846)), P::Half::splat(0)));
}

template <class P>
struct ChooseWhole {
  bool grey, mean;
  TESSARO_INLINE P operator()(P, P colour, P alpha) const {
    return with_alpha(grey ? alphas(colour) : colour, mean ? mean_as_alpha(alpha) : alpha);
  }
};

// A weighted brightness takes doubles, in this order of sums; a block at a time, so that the compiler sees arrays
// that nothing else touches.
constexpr size_t block = 64;
TESSARO_INLINE void choose_weighted(const ChooseRows& rows, size_t count, const Choice& choice) {
  uint32_t colour[block], alpha[block], out[block];
  __builtin_memcpy(colour, rows.colour, 4 * count);
  __builtin_memcpy(alpha, rows.alpha, 4 * count);
  for (size_t i = count; i < block; ++i) colour[i] = alpha[i] = 0;
  for (size_t i = 0; i < block; ++i) {
    const double sum = static_cast<double>(static_cast<int>(alpha[i] >> 8 & 255)) * choice.green +
                       static_cast<double>(static_cast<int>(alpha[i] & 255)) * choice.blue +
                       static_cast<double>(static_cast<int>(alpha[i] >> 16 & 255)) * choice.red;
    // What does not fit an integer becomes the smallest one.
    const double fits = sum >= -2147483648.0 && sum < 2147483648.0 ? sum : -2147483648.0;
    const auto low = static_cast<uint32_t>(static_cast<int32_t>(fits)) << 24;
    out[i] = low | ((choice.grey ? (colour[i] >> 24) * 0x010101u : colour[i]) & 0x00FFFFFFu);
  }
  __builtin_memcpy(rows.dst, out, 4 * count);
}

void choose(ChooseRows rows, size_t width, const Choice& choice) {
  const auto ordered = [&](size_t pixels) {
    return reads_own_writes(rows.dst, rows.colour, 4 * pixels) ||
           reads_own_writes(rows.dst, rows.alpha, 4 * pixels);
  };
  if (choice.alpha == AlphaFrom::weights) {
    const size_t step = ordered(block) ? 1 : block;
    for (size_t x = 0; x < width; x += step) {
      const size_t count = width - x < step ? width - x : step;
      choose_weighted({rows.dst + 4 * x, rows.colour + 4 * x, rows.alpha + 4 * x}, count, choice);
    }
  } else if (ordered(Px::lanes)) {
    row3<One>(rows.dst, rows.colour, rows.alpha, width,
              ChooseWhole<One>{choice.grey, choice.alpha == AlphaFrom::mean});
  } else {
    row3<Px>(rows.dst, rows.colour, rows.alpha, width,
             ChooseWhole<Px>{choice.grey, choice.alpha == AlphaFrom::mean});
  }
}

template <class P>
struct Route {
  const Routing& from;
  TESSARO_INLINE P operator()(P d, P s) const {
    const P low = P::splat(255);
    const auto channel = [&](int i) { return shr(from.from_dest[i] ? d : s, from.shift[i]) & low; };
    return channel(0) | shl<8>(channel(1)) | shl<16>(channel(2)) | shl<24>(channel(3));
  }
};

void route(uint8_t* dst, const uint8_t* src, size_t width, const Routing& from) {
  if (reads_own_writes(dst, src, 4 * Px::lanes))
    row2<One>(dst, src, width, Route<One>{from});
  else
    row2<Px>(dst, src, width, Route<Px>{from});
}

}  // namespace

TESSARO_KERNELS(ReduceKernels){
    .to_1555 = dither<To1555>,
    .to_4444 = dither<To4444>,
    .to_1111 = dither<To1111>,
    .choose = choose,
    .route = route,
};
