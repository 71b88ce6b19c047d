// kernels: BlurKernels
#include <emmintrin.h>

#include "simd/vocabulary.hpp"
#include "transform/blur.hpp"

namespace {

using tessaro::Divider;
using tessaro::StepSum;

TESSARO_INLINE uint16_t high(uint16_t a, uint16_t b) {
  return static_cast<uint16_t>((static_cast<uint32_t>(a) * b) >> 16);
}
TESSARO_INLINE uint16_t plus(uint16_t a, uint16_t b) { return static_cast<uint16_t>(a + b); }
TESSARO_INLINE uint16_t minus(uint16_t a, uint16_t b) { return static_cast<uint16_t>(a - b); }

// The sums are the library's own memory and rows are kept where they could be overwritten: no output aliases an input.

void running_sums(uint16_t* __restrict sums, const uint8_t* __restrict src, size_t count) {
  // One addition a pixel is the whole chain; the four lanes ride in it.
  __m128i sum = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(sums));
  for (size_t i = 0; i < count; ++i) {
    int pixel;
    __builtin_memcpy(&pixel, src + 4 * i, 4);
    sum = _mm_add_epi16(sum, _mm_unpacklo_epi8(_mm_cvtsi32_si128(pixel), _mm_setzero_si128()));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(sums + 4 * (i + 1)), sum);
  }
}

void step_sums(uint16_t* __restrict out, const uint16_t* __restrict sums, const uint8_t* __restrict src,
               const StepSum* __restrict places, size_t count, uint16_t num) {
  const __m128i times = _mm_set1_epi16(static_cast<short>(num));
  for (size_t i = 0; i < count; ++i) {
    const __m128i whole = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(sums + 4 * places[i].whole));
    int pixel;
    __builtin_memcpy(&pixel, src + 4 * places[i].next, 4);
    const __m128i next = _mm_unpacklo_epi8(_mm_cvtsi32_si128(pixel), _mm_setzero_si128());
    const __m128i part = _mm_set1_epi16(static_cast<short>(places[i].part));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 4 * i),
                     _mm_add_epi16(_mm_mullo_epi16(whole, times), _mm_mullo_epi16(next, part)));
  }
}

void means(uint8_t* __restrict out, const uint16_t* __restrict ahead, const uint16_t* __restrict behind,
           size_t lanes, Divider by) {
  for (size_t i = 0; i < lanes; ++i)
    out[i] = static_cast<uint8_t>(high(high(plus(minus(ahead[i], behind[i]), by.bias), by.first), by.second));
}

void tapered_means(uint8_t* __restrict out, const uint16_t* __restrict ahead,
                   const uint16_t* __restrict behind, size_t lanes, const uint16_t* __restrict first,
                   const uint16_t* __restrict second, const uint16_t* __restrict bias) {
  for (size_t i = 0; i < lanes; ++i)
    out[i] = static_cast<uint8_t>(high(high(plus(minus(ahead[i], behind[i]), bias[i]), first[i]), second[i]));
}

void accumulate(uint16_t* __restrict sums, const uint8_t* __restrict add, size_t lanes, uint16_t times) {
  for (size_t i = 0; i < lanes; ++i) sums[i] = static_cast<uint16_t>(sums[i] + add[i] * times);
}

void subtract(uint16_t* __restrict sums, const uint8_t* __restrict remove, size_t lanes) {
  for (size_t i = 0; i < lanes; ++i) sums[i] = minus(sums[i], remove[i]);
}

void divide(uint8_t* __restrict out, const uint16_t* __restrict sums, size_t lanes, Divider by) {
  for (size_t i = 0; i < lanes; ++i)
    out[i] = static_cast<uint8_t>(high(high(plus(sums[i], by.bias), by.first), by.second));
}

void slide(uint8_t* __restrict out, uint16_t* __restrict sums, const uint8_t* __restrict add,
           const uint8_t* __restrict remove, size_t lanes, Divider by) {
  for (size_t i = 0; i < lanes; ++i) {
    const uint16_t sum = plus(sums[i], add[i]);
    out[i] = static_cast<uint8_t>(high(high(plus(sum, by.bias), by.first), by.second));
    sums[i] = minus(sum, remove[i]);
  }
}

template <class P>
TESSARO_INLINE P mean_of_4(const uint8_t* upper, const uint8_t* lower) {
  const auto u = unzip(P::load(upper), P::load(upper + 4 * P::lanes));
  const auto l = unzip(P::load(lower), P::load(lower + 4 * P::lanes));
  return join(shr<2>(even(u.even) + even(u.odd) + even(l.even) + even(l.odd)),
              shr<2>(odd(u.even) + odd(u.odd) + odd(l.even) + odd(l.odd)));
}

void halve(uint8_t* out, const uint8_t* upper, const uint8_t* lower, size_t width) {
  // A destination that starts within a source row, not before it, catches up with pixels that are still to be read.
  const auto catches_up = [&](const uint8_t* row) { return out > row && out < row + 8 * width; };
  size_t x = 0;
  if (!catches_up(upper) && !catches_up(lower))
    for (; x + Px::lanes <= width; x += Px::lanes)
      mean_of_4<Px>(upper + 8 * x, lower + 8 * x).store(out + 4 * x);
  for (; x < width; ++x) mean_of_4<One>(upper + 8 * x, lower + 8 * x).store(out + 4 * x);
}

}  // namespace

TESSARO_KERNELS(BlurKernels){
    .running_sums = running_sums,
    .step_sums = step_sums,
    .means = means,
    .tapered_means = tapered_means,
    .accumulate = accumulate,
    .subtract = subtract,
    .divide = divide,
    .slide = slide,
    .halve = halve,
};
