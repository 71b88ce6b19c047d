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

// The sums are the library's own memory and rows are kept where they could be overwritten: no output aliases
// an input.

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

// One channel, for a back end without vectors: loops over these become vectors by themselves.
struct Lane {
  uint16_t v;
  TESSARO_INLINE static Lane splat(uint16_t x) { return {x}; }
};
TESSARO_INLINE Lane operator+(Lane a, Lane b) { return {plus(a.v, b.v)}; }
TESSARO_INLINE Lane operator-(Lane a, Lane b) { return {minus(a.v, b.v)}; }
TESSARO_INLINE Lane operator*(Lane a, Lane b) { return {static_cast<uint16_t>(a.v * b.v)}; }
TESSARO_INLINE Lane mul_high(Lane a, Lane b) { return {high(a.v, b.v)}; }

template <class H>
TESSARO_INLINE H divided(H sum, Divider by) {
  return mul_high(mul_high(sum + H::splat(by.bias), H::splat(by.first)), H::splat(by.second));
}

// out[i] = rule(sums[i], in[i]...) for the channels of columns; the rule may change the sum. Vectors keep the
// sums of their even channels and those of their odd ones side by side, as they work on them: no lane has to
// move.
template <bool writes, class Rule, class... In>
TESSARO_INLINE void each_column(uint8_t* __restrict out, uint16_t* __restrict sums, size_t lanes,
                                const Rule& rule, const In* __restrict... in) {
  if constexpr (Px::lanes == 1) {
    for (size_t i = 0; i < lanes; ++i) {
      Lane sum{sums[i]};
      [[maybe_unused]] const Lane result = rule(sum, Lane{in[i]}...);
      sums[i] = sum.v;
      if constexpr (writes) out[i] = static_cast<uint8_t>(result.v);
    }
  } else {
    constexpr size_t vector = 4 * Px::lanes;
    for (size_t i = 0; i < lanes; i += vector) {
      const size_t pixels = lanes - i < vector ? (lanes - i) / 4 : Px::lanes;
      auto e = halves(Px::load(sums + i)), o = halves(Px::load(sums + i + vector / 2));
      const auto even_out = rule(e, even(load_some<Px>(in + i, pixels))...);
      const auto odd_out = rule(o, odd(load_some<Px>(in + i, pixels))...);
      Px{e.v}.store(sums + i);
      Px{o.v}.store(sums + i + vector / 2);
      if constexpr (writes) {
        const Px result = join(even_out, odd_out);
        if (pixels == Px::lanes)
          result.store(out + i);
        else
          result.store(out + i, pixels);
      }
    }
  }
}

void accumulate(uint16_t* sums, const uint8_t* add, size_t lanes, uint16_t times) {
  each_column<false>(
      nullptr, sums, lanes, [=]<class H>(H& sum, H added) { return sum = sum + added * H::splat(times); },
      add);
}

void subtract(uint16_t* sums, const uint8_t* remove, size_t lanes) {
  each_column<false>(
      nullptr, sums, lanes, []<class H>(H& sum, H removed) { return sum = sum - removed; }, remove);
}

void divide(uint8_t* out, uint16_t* sums, size_t lanes, Divider by) {
  each_column<true>(out, sums, lanes, [=]<class H>(H& sum) { return divided(sum, by); });
}

void slide(uint8_t* out, uint16_t* sums, const uint8_t* add, const uint8_t* remove, size_t lanes,
           Divider by) {
  each_column<true>(
      out, sums, lanes,
      [=]<class H>(H& sum, H added, H removed) {
        const H with = sum + added;
        sum = with - removed;
        return divided(with, by);
      },
      add, remove);
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
