#include "core/weights.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "support/images.hpp"

using namespace tessaro;
using namespace tessaro::test;

TEST(AlphaWeights, OneMultiplierGivesTheWholeTable) {
  Random random(5);
  for (uint32_t n = 0; n < 200000; ++n) {
    const float opacity =
        n < 256      ? static_cast<float>(n) / 255.0f
        : n < 1281   ? static_cast<float>(n - 256) / 1024.0f
        : n % 2 == 0 ? bits_as<float>(0x3F800000 - n)
                     : std::ldexp(static_cast<float>(random.word() >> 8), -24 - static_cast<int>(n & 7));
    const uint32_t m = alpha_factor(opacity);
    ASSERT_LE(m, 65794u);
    for (uint32_t alpha = 0; alpha < 256; ++alpha) {
      const double entry = static_cast<double>(alpha) * static_cast<double>(opacity) *
                           static_cast<double>(bits_as<float>(0x3B808081u)) * 256.0;
      ASSERT_EQ(alpha * m >> 16, static_cast<uint32_t>(entry))
          << "opacity " << opacity << ", alpha " << alpha;
    }
  }
}
