// kernels: ReduceKernels
#include <emmintrin.h>

#include "simd/rules.hpp"
#include "simd/walk.hpp"
#include "transform/reduce.hpp"

namespace {

using tessaro::AlphaFrom;
using tessaro::Choice;
using tessaro::ChooseRows;
using tessaro::DitherRow;
using tessaro::IntegerWeights;
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
  // 21846 / 65536 is 1/3 and a little more: exact up to 765.
  return shl<24>(join(colour_sums<0>(a, 21846, 0), P::Half::splat(0)));
}

// trunc(green * w.green + blue * w.blue + red * w.red) as the alpha of a pixel without colour, in doubles and in this
// order. The processor's own conversion gives the smallest integer where the sum does not fit one.
TESSARO_INLINE One weighted_as_alpha(One a, const Choice& w) {
  const auto byte = [&](int at) { return static_cast<double>(static_cast<int>(a.v >> at & 255)); };
  const __m128d sum = _mm_set_sd(byte(8) * w.green + byte(0) * w.blue + byte(16) * w.red);
  return {static_cast<uint32_t>(_mm_cvttsd_si32(sum)) << 24};
}
#if defined(__AVX512F__)
TESSARO_INLINE __m256i weighted_sum(__m256i g, __m256i b, __m256i r, const Choice& w) {
  const __m512d green = _mm512_mul_pd(_mm512_cvtepi32_pd(g), _mm512_set1_pd(w.green));
  const __m512d blue = _mm512_mul_pd(_mm512_cvtepi32_pd(b), _mm512_set1_pd(w.blue));
  const __m512d red = _mm512_mul_pd(_mm512_cvtepi32_pd(r), _mm512_set1_pd(w.red));
  return _mm512_cvttpd_epi32(_mm512_add_pd(_mm512_add_pd(green, blue), red));
}
TESSARO_INLINE __m256i lower(Px a) { return _mm512_castsi512_si256(a.v); }
TESSARO_INLINE __m256i upper(Px a) { return _mm512_extracti64x4_epi64(a.v, 1); }
TESSARO_INLINE Px combine(__m256i low, __m256i high) {
  return {_mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1)};
}
#elif defined(__AVX2__)
TESSARO_INLINE __m128i weighted_sum(__m128i g, __m128i b, __m128i r, const Choice& w) {
  const __m256d green = _mm256_mul_pd(_mm256_cvtepi32_pd(g), _mm256_set1_pd(w.green));
  const __m256d blue = _mm256_mul_pd(_mm256_cvtepi32_pd(b), _mm256_set1_pd(w.blue));
  const __m256d red = _mm256_mul_pd(_mm256_cvtepi32_pd(r), _mm256_set1_pd(w.red));
  return _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_add_pd(green, blue), red));
}
TESSARO_INLINE __m128i lower(Px a) { return _mm256_castsi256_si128(a.v); }
TESSARO_INLINE __m128i upper(Px a) { return _mm256_extracti128_si256(a.v, 1); }
TESSARO_INLINE Px combine(__m128i low, __m128i high) { return {_mm256_set_m128i(high, low)}; }
#elif TESSARO_LANES == 4
// Two doubles a register: the lower two of four integers.
TESSARO_INLINE __m128i weighted_sum(__m128i g, __m128i b, __m128i r, const Choice& w) {
  const __m128d green = _mm_mul_pd(_mm_cvtepi32_pd(g), _mm_set1_pd(w.green));
  const __m128d blue = _mm_mul_pd(_mm_cvtepi32_pd(b), _mm_set1_pd(w.blue));
  const __m128d red = _mm_mul_pd(_mm_cvtepi32_pd(r), _mm_set1_pd(w.red));
  return _mm_cvttpd_epi32(_mm_add_pd(_mm_add_pd(green, blue), red));
}
TESSARO_INLINE __m128i lower(Px a) { return a.v; }
TESSARO_INLINE __m128i upper(Px a) { return _mm_unpackhi_epi64(a.v, a.v); }
TESSARO_INLINE Px combine(__m128i low, __m128i high) { return {_mm_unpacklo_epi64(low, high)}; }
#endif
#if TESSARO_LANES > 1
// The sums of the products with the two weights of a pixel's halves.
TESSARO_INLINE Px products(Halves<Px> c, uint32_t even, uint32_t odd) {
  const auto e = halves(Px::splat(even)).v, o = halves(Px::splat(odd)).v;
#if defined(__AVX512F__)
  return {_mm512_add_epi32(_mm512_madd_epi16(c.even.v, e), _mm512_madd_epi16(c.odd.v, o))};
#elif defined(__AVX2__)
  return {_mm256_add_epi32(_mm256_madd_epi16(c.even.v, e), _mm256_madd_epi16(c.odd.v, o))};
#else
  return {_mm_add_epi32(_mm_madd_epi16(c.even.v, e), _mm_madd_epi16(c.odd.v, o))};
#endif
}
TESSARO_INLINE Px plus(Px a, Px b) {
#if defined(__AVX512F__)
  return {_mm512_add_epi32(a.v, b.v)};
#elif defined(__AVX2__)
  return {_mm256_add_epi32(a.v, b.v)};
#else
  return {_mm_add_epi32(a.v, b.v)};
#endif
}

// Weights that are rounded up give the exact sum's integer, but doubles may fall below a sum that is a whole number. Of the
// pixels whose three colours are equal, which are often met, only one does (the weights of those that come rounded are
// fixed): all others need not be looked at.
TESSARO_INLINE bool may_fall_below(Px a, Px sum) {
  const Px none = Px::splat(0);
  const uint32_t whole = Px::bits(equal(sum & Px::splat(0x3FFF), none));
  if (whole == 0) [[likely]]
    return false;
  const uint32_t grey = Px::bits(equal((shl<8>(a) ^ a) & Px::splat(0xFFFF00), none));
  const uint32_t falling = Px::bits(equal(a & Px::splat(255), Px::splat(233)));
  return (whole & ~(grey & ~falling)) != 0;
}

TESSARO_INLINE Px doubles_as_alpha(Px a, const Choice& w) {
  const Px byte = Px::splat(255);
  const Px g = shr<8>(a) & byte, b = a & byte, r = shr<16>(a) & byte;
  return shl<24>(
      combine(weighted_sum(lower(g), lower(b), lower(r), w), weighted_sum(upper(g), upper(b), upper(r), w)));
}

TESSARO_INLINE Px weighted_as_alpha(Px a, const Choice& w) {
  if (!w.integer.usable) return doubles_as_alpha(a, w);
  a = kept(a);
  const IntegerWeights& i = w.integer;
  const auto c = Halves<Px>::of(a);
  // 14 bits of the fraction are left.
  const Px sum =
      plus(products(c, i.upper_even, i.upper_odd), shr<15>(products(c, i.lower_even, i.lower_odd)));
  if (i.rounded_up && may_fall_below(a, sum)) [[unlikely]]
    return doubles_as_alpha(a, w);
  return shl<10>(sum);
}
#endif

template <class P>
struct Choose {
  const Choice& from;
  TESSARO_INLINE P operator()(P, P colour, P alpha) const {
    const P chosen = from.grey ? alphas(colour) : colour;
    if (from.alpha == AlphaFrom::mean) return with_alpha(chosen, mean_as_alpha(alpha));
    if (from.alpha == AlphaFrom::weights) return with_alpha(chosen, weighted_as_alpha(alpha, from));
    return with_alpha(chosen, alpha);
  }
};

void choose(ChooseRows rows, size_t width, const Choice& from) {
  constexpr size_t vector = 4 * Px::lanes;
  if (reads_own_writes(rows.dst, rows.colour, vector) || reads_own_writes(rows.dst, rows.alpha, vector))
    row3<One>(rows.dst, rows.colour, rows.alpha, width, Choose<One>{from});
  else
    row3<Px>(rows.dst, rows.colour, rows.alpha, width, Choose<Px>{from});
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
#if TESSARO_LANES > 4
template <>
struct Route<Px> {
  Px of_dest, of_source;  // for each byte its place in its 16 bytes, or the top bit for none
  explicit Route(const Routing& from) {
    uint32_t places[2] = {};
    for (int i = 0; i < 4; ++i)
      for (int image = 0; image < 2; ++image)
        places[image] |= (from.from_dest[i] == (image == 0) ? static_cast<uint32_t>(from.channel[i]) : 0x80u)
                         << (8 * i);
    uint32_t first_byte[Px::lanes];
    for (size_t i = 0; i < Px::lanes; ++i) first_byte[i] = static_cast<uint32_t>(4 * (i % 4)) * 0x01010101u;
    of_dest = add(Px::load(first_byte), Px::splat(places[0]));
    of_source = add(Px::load(first_byte), Px::splat(places[1]));
  }
  TESSARO_INLINE Px operator()(Px d, Px s) const {
#if defined(__AVX512F__)
    return {_mm512_or_si512(_mm512_shuffle_epi8(d.v, of_dest.v), _mm512_shuffle_epi8(s.v, of_source.v))};
#else
    return {_mm256_or_si256(_mm256_shuffle_epi8(d.v, of_dest.v), _mm256_shuffle_epi8(s.v, of_source.v))};
#endif
  }
};
#endif

void route(const tessaro::AreaPair& n, const Routing& from) { walk2<Route>(n, from); }

}  // namespace

TESSARO_KERNELS(ReduceKernels){
    .to_1555 = dither<To1555>,
    .to_4444 = dither<To4444>,
    .to_1111 = dither<To1111>,
    .choose = choose,
    .route = route,
};
