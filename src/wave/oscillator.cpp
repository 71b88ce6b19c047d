// A sine whose step is itself moved by a sine, at the cost of a few additions a frame.
#include "wave/oscillator.hpp"

#include <cmath>

#include "core/numbers.hpp"
#include "wave/ramp.hpp"
#include "wave/trigonometry.hpp"

namespace tessaro {

namespace {

// Angles beyond 2^24, by Payne and Hanek's reduction: a single-precision value is m * 2^e with m of 24 bits,
// and the bits of 2 / pi that make whole turns of its product can be left away, as can those far behind. 128
// bits between leave an error below 2^-102 quarter turns. No such value comes nearer to a whole number of
// them than 2^-30 (all were tried), so that the rest has 72 good bits; 96 bits between would leave 40.
Angle reduced_far(float a) {
  static constexpr uint32_t two_over_pi[] = {0,           0xA2F9836Eu, 0x4E441529u, 0xFC2757D1u, 0xF534DDC0u,
                                             0xDB629599u, 0x3C439041u, 0xFE5163ABu, 0xDEBBC561u};
  const uint32_t word = bits_as<uint32_t>(a);
  const uint64_t m = (word & 0x7FFFFF) | 0x800000;
  const uint32_t e = (word >> 23 & 255) - 150;       // 1..104
  const uint32_t from = 32 + e - 2, by = from % 32;  // the bit of 2 / pi that stands for two quarter turns
  uint64_t carry = 0;
  uint32_t product[4];  // of m and 128 bits of 2 / pi from there; the top two bits count quarter turns
  for (uint32_t i = 4; i-- > 0;) {
    const uint32_t* at = two_over_pi + from / 32 + i;
    const uint32_t part = by == 0 ? at[0] : at[0] << by | at[1] >> (32 - by);
    carry += m * part;
    product[i] = static_cast<uint32_t>(carry);
    carry >>= 32;
  }
  const uint64_t top = static_cast<uint64_t>(product[0]) << 32 | product[1];
  const uint64_t fraction = top << 2 | product[2] >> 30;
  const auto nearest = static_cast<int64_t>(fraction);  // from -1/2 to 1/2
  int32_t quarter = static_cast<int32_t>(product[0] >> 30) + (nearest < 0 ? 1 : 0);
  constexpr double scale = 0x1p-64, pi_half = 0x1.921fb54442d18p0, pi_half_tail = 0x1.1a62633145c07p-54;
  const double high = static_cast<double>(nearest & ~int64_t{0xFFF}) * scale;
  const double lowest = static_cast<double>(product[2] << 2 | product[3] >> 30) * 0x1p-96;
  const double low = static_cast<double>(nearest & 0xFFF) * scale + lowest;
  double rest = high * pi_half;
  double tail = high * pi_half_tail + low * pi_half;
  if (a < 0) {
    quarter = -quarter;
    rest = -rest;
    tail = -tail;
  }
  return {quarter, rest, tail};
}

constexpr float nearest_far = 16777216.0f;

double any_sine(float a) {
  if (!std::isfinite(a)) return a - a;
  return std::fabs(a) <= nearest_far ? sine(static_cast<double>(a)) : sine_of(reduced_far(a));
}

void sines(double* out, const float* angles, int64_t n) {
  bool near = true;
  for (int64_t i = 0; i < n; ++i) near &= std::fabs(angles[i]) <= nearest_far;
  if (near) return kernels<OscillatorKernels>().sines(out, angles, static_cast<size_t>(n));
  for (int64_t i = 0; i < n; ++i) out[i] = any_sine(angles[i]);
}

bool same(float a, float b) { return a == b || (a != a && b != b); }

}  // namespace

void Oscillator::advance(float* phases, int64_t n) {
  double drift[block];  // by the modulation of the step itself
  if (modulation_ + rate_ == modulation_) {
    const double steady = any_sine(modulation_);
    for (int64_t i = 0; i < n; ++i) drift[i] = steady;
  } else {
    for (int64_t i = 0; i < n; ++i) phases[i] = modulation_ += rate_;
    sines(drift, phases, n);
  }
  for (int64_t i = 0; i < n; ++i) {
    phases[i] = phase_;
    phase_ += increment_;
    increment_ = static_cast<float>(static_cast<double>(increment_) + drift[i] * static_cast<double>(depth_));
  }
}

void Oscillator::draw(int32_t* tone, int64_t n) {
  for (int64_t some; n > 0; n -= some, tone += some) {
    some = n < block ? n : block;
    float phases[block];
    double values[block];
    advance(phases, some);
    sines(values, phases, some);
    for (int64_t i = 0; i < some; ++i) {
      const int32_t value = trunc32(values[i] * static_cast<double>(amplitude_));
      tone[i] = value < -65536 ? -65536 : value;
    }
  }
}

void Oscillator::skip(int64_t n) {
  if (depth_ == 0.0f) {  // the pitch stays unless the modulation stops being a number
    const float modulation = added_up(modulation_, rate_, n);
    if (std::isfinite(modulation)) {
      modulation_ = modulation;
      phase_ = added_up(phase_, increment_, n);
      return;
    }
  }
  while (n > 0) {
    const float phase = phase_, modulation = modulation_, increment = increment_;
    const int64_t some = n < block ? n : block;
    float phases[block];
    advance(phases, some);
    n -= some;
    // Sums that have grown past their steps no longer move, nor do any that are where they were a block ago.
    if (same(phase, phase_) && same(modulation, modulation_) && same(increment, increment_)) n %= some;
  }
}

}  // namespace tessaro
