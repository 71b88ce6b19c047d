// Weights under an opacity: one for all pixels, or by their alpha, and the multiplier that stands for a table
// of these.
#pragma once

#include <cstdint>

#include "core/numbers.hpp"

namespace tessaro {

// An opacity as calls take it: above 1 counts as 1; false when it is negative or not a number.
inline bool usable_opacity(float& opacity) {
  if (opacity > 1.0f) opacity = 1.0f;
  return opacity >= 0.0f;
}
inline uint32_t constant_weight(float opacity) { return static_cast<uint32_t>(trunc32(opacity * 256.0f)); }

// (a * u + b * v) >> 8 in all four channels, two of them a product of 32 bits. Weights u and v that add up to
// more than 256 let channels run over into their neighbours.
[[gnu::always_inline]] inline uint32_t weighted_sum(uint32_t a, uint32_t u, uint32_t b, uint32_t v) {
  constexpr uint32_t lanes = 0x00FF00FF;
  const uint32_t blue_red = ((a & lanes) * u + (b & lanes) * v) >> 8 & lanes;
  const uint32_t green_alpha = ((a >> 8 & lanes) * u + (b >> 8 & lanes) * v) & ~lanes;
  return blue_red | green_alpha;
}

// The weight, 0..256, of a pixel with this alpha (0..255) under an opacity of 0..1. The factor is a little
// above 1 / 255, so that full opacity gives 256 for alpha 255, and the alpha itself below it.
inline uint32_t alpha_weight(uint32_t alpha, float opacity) {
  return static_cast<uint32_t>(trunc32(static_cast<double>(alpha) * static_cast<double>(opacity) *
                                       static_cast<double>(0.003921569f) * 256.0));
}

// The multiplier m with which alpha * m >> 16 is alpha_weight(alpha, opacity) for every alpha; at most 65794.
// No table needs to be built and no vector has to gather: use AlphaWeights in rules.
//
// It always exists. The weights are floor(alpha * s), s = opacity * 256 / 255, so m must lie in [max(w /
// alpha), min((w + 1) / alpha)) * 65536; the ends are different fractions with denominators of at most 255,
// hence more than 1 / 65536 apart, and s lies between them: m is one of the two integers beside s * 65536.
// They differ where a fraction lies between them, and it is one only: on which side of s, its own weight
// tells. Denominators from 128 up have all fractions among them. (Rounding of the double product never breaks
// this: checked for every single-precision opacity.)
inline uint32_t alpha_factor(float opacity) {
  if (opacity == 1.0f) return 65794;
  const double slope = static_cast<double>(opacity) * static_cast<double>(0.003921569f) * 256.0;
  const auto below = static_cast<uint32_t>(trunc32(slope * 65536.0));
  for (uint32_t alpha = 128; alpha < 256; ++alpha)
    if (const uint32_t above = (below + 1) * alpha >> 16; above != below * alpha >> 16)
      return alpha_weight(alpha, opacity) >= above ? below + 1 : below;
  return below;
}

// A fraction as a weight, 0..256; what is not a number counts as 0.
template <class T>
constexpr uint32_t weight_of(T fraction) {
  return static_cast<uint32_t>(trunc32(clamped(fraction, T{0}, T{1}) * T{256}));
}

// Factors of 1024: each colour becomes (channel * channel_part >> 10) + (sum of the three * sum_part >> 10).
struct SaturationParts {
  int32_t channel_part = 0, sum_part = 0;
  // A saturation of 1 leaves colours as they are, 0 makes them grey; at most 256, and what is not a number
  // counts as 0.
  static SaturationParts of(float saturation) {
    const int32_t part = trunc32(clamped(saturation, 0.0f, 256.0f) * 1024.0f);
    return {part, (1024 - part) / 3};
  }
};

// Weights on a straight line over the alphas: (alpha * rise + base) >> shift, kept within 0..256. rise is at
// most 65534, base and every value before the shift fit 32 bits.
struct AlphaLine {
  int rise, base, shift;
};

}  // namespace tessaro
