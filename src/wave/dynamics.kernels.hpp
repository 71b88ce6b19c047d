// kernels: DynamicsKernels
#include "wave/dynamics.hpp"

#include "wave/eights.hpp"

namespace {

typedef int8_t Row8 __attribute__((vector_size(register_bytes)));
typedef int16_t Row16 __attribute__((vector_size(register_bytes)));
typedef double Row64 __attribute__((vector_size(register_bytes)));

// Gains are added up frame by frame, rounded at every step. While they stay between two powers of two, where
// the spacing of the numbers is constant, every step adds the same amount, and frame i has the gain first + i
// * amount exactly. (Steps that fall halfway between two numbers add another amount once; that the first two
// are equal rules it out. Where the last gain is the power of two itself, a step down to it may end below it
// before it is rounded, where numbers lie closer: steps then have to need no rounding.)
TESSARO_INLINE bool even_steps(const double gain[2], const double step[2], size_t frames, double amount[2]) {
  for (size_t lane = 0; lane < 2; ++lane) {
    const double a = gain[lane] + step[lane], b = a + step[lane];
    amount[lane] = b - a;
    if (!(a - gain[lane] == amount[lane])) return false;
    const double last = gain[lane] + amount[lane] * static_cast<double>(frames);
    uint64_t from, to;
    __builtin_memcpy(&from, gain + lane, 8);
    __builtin_memcpy(&to, &last, 8);
    if (from >> 52 != to >> 52 || (to << 12 == 0 && amount[lane] != step[lane])) return false;
  }
  return true;
}

// out = rule(in, gain) with the gain of the sample's channel
template <class S, class Rule>
TESSARO_INLINE void ramp(uint8_t* out, const uint8_t* in, size_t frames, double gain[2], const double step[2],
                         Rule rule) {
  size_t i = 0;
  double amount[2];
  if (eights && even_steps(gain, step, frames, amount)) {
    const auto lanes = [](const double of[2], double times) {  // of[0], of[1], alternating
      double v[8];
      for (size_t k = 0; k < 8; ++k) v[k] = of[k & 1] * times;
      return read8<S64>(bytes_of(v));
    };
    const double counted[] = {0, 0, 1, 1, 2, 2, 3, 3};
    const Lanes four_steps = lanes(amount, 4.0);
    Lanes gains = lanes(gain, 1.0) + lanes(amount, 1.0) * read8<S64>(bytes_of(counted));
    for (; i + 4 <= frames; i += 4, gains = gains + four_steps)
      write8<S>(out + 2 * S::bytes * i, rule(read8<S>(in + 2 * S::bytes * i), gains));
    for (size_t lane = 0; lane < 2; ++lane) gain[lane] += amount[lane] * static_cast<double>(i);
  }
  for (; i < frames; ++i)
    for (size_t lane = 0; lane < 2; ++lane) {
      const size_t at = S::bytes * (2 * i + lane);
      S::put(out + at, rule(S::get(in + at), gain[lane]));
      gain[lane] += step[lane];
    }
}

TESSARO_INLINE Whole converted(const Lanes& v) { return to_whole(v); }

template <class S>
void ramp24(uint8_t* out, const uint8_t* in, size_t frames, double gain[2], const double step[2]) {
  ramp<S>(out, in, frames, gain, step,
          [](auto s, const auto& g) { return S::from24(converted(real(S::to24(s)) * g)); });
}
template <class S>
void ramp64(uint8_t* out, const uint8_t* in, size_t frames, double gain[2], const double step[2]) {
  if constexpr (S::bytes < 8) {
    const auto small = [=](size_t lane) {
      const double last = gain[lane] + step[lane] * static_cast<double>(frames);
      return magnitude(gain[lane]) <= 50 && magnitude(last) <= 50;
    };
    if (small(0) && small(1))
      return ramp<S>(out, in, frames, gain, step,
                     [](auto s, const auto& g) { return limited_code<S>(S::to64(s) * g); });
  }
  ramp<S>(out, in, frames, gain, step,
          [](auto s, const auto& g) { return S::from64(to_unit(S::to64(s) * g)); });
}

// Lowers low and raises high to the extremes of the samples at even and at odd places. Comparisons in this
// form pass over what is not a number.
template <class S, class Row, class Value>
void extremes(const uint8_t* in, size_t n, Value low[2], Value high[2]) {
  constexpr size_t lanes = sizeof(Row) / sizeof(Row{}[0]);
  Row lows = {}, highs = {};
  size_t i = 0;
  if constexpr (S::bytes != 3 || eights)
    for (; i + lanes <= n; i += lanes) {
      Row v;
      if constexpr (S::bytes == 3)
        v = read8<S>(in + S::bytes * i);
      else
        __builtin_memcpy(&v, in + S::bytes * i, sizeof v);
      if constexpr (S::bytes == 1) v ^= -128;
      lows = v < lows ? v : lows;
      highs = v > highs ? v : highs;
    }
  const auto see = [=](size_t at, Value v) {
    if (v < low[at & 1]) low[at & 1] = v;
    if (v > high[at & 1]) high[at & 1] = v;
  };
  for (size_t lane = 0; lane < lanes; ++lane) {
    see(lane, lows[lane]);
    see(lane, highs[lane]);
  }
  for (; i < n; ++i) see(i, S::get(in + S::bytes * i));
}

}  // namespace

TESSARO_KERNELS(DynamicsKernels){
    .ramp24 = {ramp24<S8>, ramp24<S16>, ramp24<S24>, ramp24<Value24>},
    .ramp64 = {ramp64<S8>, ramp64<S16>, ramp64<S24>, ramp64<S64>},
    .extremes = {extremes<S8, Row8, int32_t>, extremes<S16, Row16, int32_t>, extremes<S24, Whole, int32_t>},
    .extremes64 = extremes<S64, Row64, double>,
};
