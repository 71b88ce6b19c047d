// kernels: MeanKernels
#include "transform/means.hpp"

namespace {

using tessaro::Divider;
using tessaro::StepSum;

TESSARO_INLINE uint16_t high(uint16_t a, uint16_t b) {
  return static_cast<uint16_t>((static_cast<uint32_t>(a) * b) >> 16);
}
TESSARO_INLINE uint16_t plus(uint16_t a, uint16_t b) { return static_cast<uint16_t>(a + b); }
TESSARO_INLINE uint16_t minus(uint16_t a, uint16_t b) { return static_cast<uint16_t>(a - b); }

// The sums are the library's own memory and rows are kept where they could be overwritten: no output aliases an input.

// One addition a pixel is the whole chain; the four lanes ride in it.
void running_sums(uint16_t* __restrict sums, const uint8_t* __restrict src, size_t count) {
  Quad sum = Quad::load(sums);
  for (size_t i = 0; i < count; ++i) {
    sum = sum + Quad::of(src + 4 * i);
    sum.store(sums + 4 * (i + 1));
  }
}

void step_sums(uint16_t* __restrict out, const uint16_t* __restrict sums, const uint8_t* __restrict src,
               const StepSum* __restrict places, size_t count, uint16_t num) {
  const Quad times = Quad::splat(num);
  for (size_t i = 0; i < count; ++i) {
    const StepSum& at = places[i];
    (Quad::load(sums + 4 * at.whole) * times + Quad::of(src + 4 * at.next) * Quad::splat(at.part))
        .store(out + 4 * i);
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

}  // namespace

TESSARO_KERNELS(MeanKernels){
    .running_sums = running_sums,
    .step_sums = step_sums,
    .means = means,
    .tapered_means = tapered_means,
    .accumulate = accumulate,
    .subtract = subtract,
    .divide = divide,
    .slide = slide,
};
