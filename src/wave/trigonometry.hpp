// Sine, cosine and arctangent that are the same on every target: the platforms' own differ in the last bit.
// Within one unit in the last place. Internal linkage, always inlined and without branches where kernels use
// them.
#pragma once

#include "simd/vocabulary.hpp"

namespace {

// An angle as a multiple of a quarter turn and a rest of at most an eighth, in two parts.
struct Angle {
  int32_t quarter;
  double rest, tail;
};

// For |a| up to 2^24. Pi / 2 is taken in three parts: the products with the first two are exact.
TESSARO_INLINE constexpr Angle reduced(double a) {
  const double turns = a * 0x1.45f306dc9c883p-1;
  const int32_t quarter = static_cast<int32_t>(turns + (turns < 0 ? -0.5 : 0.5));
  const double k = quarter;
  const double first = a - k * 0x1.921fb54p0;
  const double second = k * 0x1.10b461p-30;
  const double near = first - second;
  const double missed = ((first - near) - second) - k * 0x1.a62633145c06ep-58;
  const double rest = near + missed;
  return {quarter, rest, (near - rest) + missed};
}

// Taylor series of the rest: at an eighth of a turn the first term left out is below 2^-63 of the sine's and
// 2^-58 of the cosine's.
TESSARO_INLINE constexpr double sine_of_rest(Angle a) {
  const double z = a.rest * a.rest;
  const double series =
      -1.0 / 6 +
      z * (1.0 / 120 +
           z * (-1.0 / 5040 +
                z * (1.0 / 362880 +
                     z * (-1.0 / 39916800 + z * (1.0 / 6227020800 + z * (-1.0 / 1307674368000 +
                                                                         z * (1.0 / 355687428096000)))))));
  return a.rest + (a.rest * z * series + a.tail * (1 - 0.5 * z));
}
TESSARO_INLINE constexpr double cosine_of_rest(Angle a) {
  const double z = a.rest * a.rest, half = 0.5 * z, rough = 1 - half;
  const double series =
      1.0 / 24 +
      z * (-1.0 / 720 + z * (1.0 / 40320 + z * (-1.0 / 3628800 +
                                                z * (1.0 / 479001600 + z * (-1.0 / 87178291200 +
                                                                            z * (1.0 / 20922789888000))))));
  return rough + (((1 - rough) - half) + (z * z * series - a.rest * a.tail));
}

TESSARO_INLINE constexpr double sine_of(Angle a) {
  const double v = a.quarter & 1 ? cosine_of_rest(a) : sine_of_rest(a);
  return a.quarter & 2 ? -v : v;
}
TESSARO_INLINE constexpr double sine(double a) { return sine_of(reduced(a)); }

// Where an angle of 0..pi points.
struct Direction {
  double cosine, sine;
};
TESSARO_INLINE constexpr Direction direction(double angle) {
  const Angle a = reduced(angle);
  const double c = cosine_of_rest(a), s = sine_of_rest(a);
  const double across = a.quarter & 1 ? s : c, up = a.quarter & 1 ? c : s;  // quarters 0, 1, 2
  return {a.quarter == 0 ? across : -across, a.quarter == 2 ? -up : up};
}

}  // namespace
