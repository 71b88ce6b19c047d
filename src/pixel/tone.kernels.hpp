// kernels: ToneKernels
#include "pixel/tone.hpp"

#include <emmintrin.h>

#include "simd/rules.hpp"
#include "simd/walk.hpp"

namespace {

using tessaro::AreaPair;

// (blue + green + red + more) / 3, without the remainder, in both lanes: 21846 / 65536 is a little more than 1/3, and
// exact for sums up to 766.
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

// 256 - distance * factor, for doubles and for floats. Rounded once and downwards, single precision keeps the integer part.
// Doubles give the same but where they round to 256 what lies less than half a unit below it: that takes a tiny factor,
// and then the same happens at a scale that floats have.
struct Line {
  double factor;
  float start, slope;
  TESSARO_INLINE explicit Line(float f) {
    const bool tiny = f > 0 && f <= 0x1p-46f;
    factor = static_cast<double>(f);
    start = tiny ? 256 + 0x1p-15f : 256;
    slope = tiny ? f * 0x1p31f : f;
  }
};

// The weight 0..256 of a pixel in both lanes: trunc(256 - distance * factor), where distance is the root of the sum of
// the squares of both lanes of `even` and the lower lane of `odd`, truncated.
// Sums stay below 2^20, and single precision gives their truncated root exactly: a float holds every sum, and the root
// of one less than a square lies further below the integer than half a unit in the last place.
// What is above 256 is limited before it is truncated; not-a-number passes and becomes the smallest integer.
TESSARO_INLINE One::Half weight_by_distance(One::Half even, One::Half odd, const Line& line) {
  const int32_t blue = static_cast<int16_t>(even.v), red = static_cast<int16_t>(even.v >> 16),
                green = static_cast<int16_t>(odd.v);
  const auto sum = static_cast<float>(blue * blue + green * green + red * red);
  const int32_t distance = _mm_cvttss_si32(_mm_sqrt_ss(_mm_set_ss(sum)));
  const double v = 256.0 - distance * line.factor;
  const int32_t weight = tessaro::trunc32(v > 256.0 ? 256.0 : v);
  return One::Half::splat(weight < 0 ? 0 : static_cast<uint32_t>(weight));
}
#if TESSARO_LANES == 16
TESSARO_INLINE Px::Half weight_by_distance(Px::Half even, Px::Half odd, const Line& line) {
  const __m512i green = _mm512_maskz_mov_epi16(0x55555555, odd.v);
  const __m512i sum = _mm512_add_epi32(_mm512_madd_epi16(even.v, even.v), _mm512_madd_epi16(green, green));
  const __m512 distance =
      _mm512_roundscale_ps(_mm512_sqrt_ps(_mm512_cvtepi32_ps(sum)), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
  const __m512 all = _mm512_fnmadd_round_ps(distance, _mm512_set1_ps(line.slope), _mm512_set1_ps(line.start),
                                            _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC);
  const __m512i weight =
      _mm512_max_epi32(_mm512_cvttps_epi32(_mm512_min_ps(_mm512_set1_ps(256), all)), _mm512_setzero_si512());
  return {_mm512_shuffle_epi8(weight, _mm512_set4_epi32(0x0D0C0D0C, 0x09080908, 0x05040504, 0x01000100))};
}
#elif TESSARO_LANES == 8
TESSARO_INLINE Px::Half weight_by_distance(Px::Half even, Px::Half odd, const Line& line) {
  const __m256i green = _mm256_and_si256(odd.v, _mm256_set1_epi32(0xFFFF));
  const __m256i sum = _mm256_add_epi32(_mm256_madd_epi16(even.v, even.v), _mm256_madd_epi16(green, green));
  const __m256i distance = _mm256_cvttps_epi32(_mm256_sqrt_ps(_mm256_cvtepi32_ps(sum)));
  const __m256d slope = _mm256_set1_pd(line.factor);
  const auto weights = [slope](__m128i four) {
    const __m256d most = _mm256_set1_pd(256);
    return _mm256_cvttpd_epi32(
        _mm256_min_pd(most, _mm256_sub_pd(most, _mm256_mul_pd(_mm256_cvtepi32_pd(four), slope))));
  };
  const __m256i weight = _mm256_set_m128i(weights(_mm256_extracti128_si256(distance, 1)),
                                          weights(_mm256_castsi256_si128(distance)));
  const __m256i kept = max(Px::Half{_mm256_packs_epi32(weight, weight)}, Px::Half::splat(0)).v;
  return {_mm256_unpacklo_epi16(kept, kept)};
}
#elif TESSARO_LANES == 4
TESSARO_INLINE Px::Half weight_by_distance(Px::Half even, Px::Half odd, const Line& line) {
  const __m128i green = _mm_and_si128(odd.v, _mm_set1_epi32(0xFFFF));
  const __m128i sum = _mm_add_epi32(_mm_madd_epi16(even.v, even.v), _mm_madd_epi16(green, green));
  const __m128i distance = _mm_cvttps_epi32(_mm_sqrt_ps(_mm_cvtepi32_ps(sum)));
  const __m128d slope = _mm_set1_pd(line.factor);
  const auto weights = [slope](__m128i two) {
    const __m128d most = _mm_set1_pd(256);
    return _mm_cvttpd_epi32(_mm_min_pd(most, _mm_sub_pd(most, _mm_mul_pd(_mm_cvtepi32_pd(two), slope))));
  };
  const __m128i weight =
      _mm_unpacklo_epi64(weights(distance), weights(_mm_unpackhi_epi64(distance, distance)));
  const __m128i kept = max(Px::Half{_mm_packs_epi32(weight, weight)}, Px::Half::splat(0)).v;
  return {_mm_unpacklo_epi16(kept, kept)};
}
#endif

template <class P>
struct ToneMix {
  Line line;
  TESSARO_INLINE explicit ToneMix(float factor) : line(factor) {}
  TESSARO_INLINE P operator()(P d, P s) const {
    const auto e = even(s) - even(d), o = odd(s) - odd(d), lift = mean(d, 0) - mean(s, 0);
    const auto w = weight_by_distance(e + lift, o + lift, line);
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
