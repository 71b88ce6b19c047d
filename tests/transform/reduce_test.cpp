#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "support/images.hpp"

namespace tessaro::test {
namespace {

// Every byte value at every position of the matrices, in all channels.
TEST(CutDown, EqualsTheFormulaForEveryByteAndThreshold) {
  constexpr uint32_t m1555[4][4] = {{0, 4, 1, 5}, {6, 2, 7, 3}, {1, 5, 0, 4}, {7, 3, 6, 2}};
  constexpr uint32_t m4444[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
  constexpr uint32_t m1111[8][8] = {{60, 52, 40, 32, 39, 51, 59, 63}, {53, 41, 24, 12, 23, 31, 50, 58},
                                    {42, 25, 13, 4, 11, 22, 30, 49},  {33, 14, 5, 0, 3, 10, 21, 38},
                                    {34, 15, 6, 1, 2, 9, 20, 37},     {43, 26, 16, 7, 8, 19, 29, 48},
                                    {54, 44, 27, 17, 18, 28, 47, 57}, {61, 55, 45, 35, 36, 46, 56, 62}};
  struct Row {
    decltype(&BBIColorCutDown1555) run;
    std::function<uint32_t(uint32_t c, int32_t x, int32_t y)> formula;
  };
  const Row rows[] = {{BBIColorCutDown1555,
                       [&](uint32_t c, int32_t x, int32_t y) {
                         return std::min(255u, (c & 0xF8) + ((c & 7) < m1555[y & 3][x & 3] ? 0 : 8));
                       }},
                      {BBIColorCutDown4444,
                       [&](uint32_t c, int32_t x, int32_t y) {
                         return std::min(255u, (c & 0xF0) + ((c & 15) < m4444[y & 3][x & 3] ? 0 : 16));
                       }},
                      {BBIColorCutDown1111, [&](uint32_t c, int32_t x, int32_t y) {
                         return c >> 2 < (m1111[y & 7][x & 7] ^ 63) ? 0u : 255u;
                       }}};
  for (const Backend backend : supported_backends()) {
    Forced forced(backend);
    for (const Row& row : rows)
      for (uint32_t offset = 0; offset < 256; offset += 5) {
        Image image(61, 9, -4 * 62, offset % 4), model(61, 9, -4 * 62, offset % 4);
        for (int32_t y = 0; y < 9; ++y)
          for (int32_t x = 0; x < 61; ++x) {
            uint32_t want = 0, have = 0;
            for (int channel = 0; channel < 4; ++channel) {
              const uint32_t c = (offset + static_cast<uint32_t>(37 * y + 4 * x + channel)) & 255;
              have |= c << (8 * channel);
              want |= (channel == 3 || c == 0 ? c : row.formula(c, x, y)) << (8 * channel);
            }
            image.set(x, y, have);
            model.set(x, y, want);
          }
        ASSERT_EQ(row.run(image), 0);
        ASSERT_EQ(image, model) << name_of(backend);
      }
  }
  Image empty(0, 5);
  for (const Row& row : rows) EXPECT_EQ(row.run(empty), 1);
}

uint32_t byte_of(uint32_t pixel, int selector) {
  return pixel >> (selector == 3 ? 24 : 16 - 8 * selector) & 255;
}

using Brightness = std::function<uint32_t(uint32_t r, uint32_t g, uint32_t b)>;

uint32_t chosen(uint32_t d, uint32_t s, int32_t colour_from, int32_t alpha_from,
                const Brightness& brightness) {
  const uint32_t c = colour_from & 2 ? d : s, a = alpha_from & 2 ? d : s;
  const uint32_t colour = colour_from & 1 ? (c >> 24) * 0x010101 : c & 0xFFFFFF;
  const uint32_t alpha = alpha_from & 1 ? a >> 24 : brightness(a >> 16 & 255, a >> 8 & 255, a & 255);
  return colour | alpha << 24;
}

uint32_t low_byte(double v) {
  return v > -2147483649.0 && v < 2147483648.0 ? static_cast<uint32_t>(static_cast<int32_t>(v)) & 255 : 0;
}

TEST(Choose, EqualsTheModelForEverySelector) {
  Random random(5);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float weights[][3] = {{0.3f, 0.59f, 0.11f}, {1, 1, 1},     {-2, 0.5f, 1e9f},
                              {nan, 1, 1},          {1e30f, 0, 0}, {0.5f, 0.25f, 0.25f}};
  for (const Backend backend : supported_backends()) {
    Forced forced(backend);
    for (int trial = 0; trial < 200; ++trial) {
      const int32_t w = random.between(1, 150), h = random.between(1, 4);
      Image d(w + 1, h + 1), s(w, h, -4 * (w + 2), 1);
      d.randomize(random.word());
      s.randomize(random.word());
      const bool same = trial % 3 == 1;
      const int32_t colour_from = trial & 3, alpha_from = trial >> 2 & 3;
      const int32_t from[] = {random.between(0, 7), random.between(0, 7), random.between(0, 7),
                              random.between(0, 7)};
      const float* weight = weights[static_cast<size_t>(trial) % std::size(weights)];
      const auto weighted = [](double red, double green, double blue) {
        return [=](uint32_t r, uint32_t g, uint32_t b) { return low_byte(g * green + b * blue + r * red); };
      };
      const auto mean = [](uint32_t r, uint32_t g, uint32_t b) { return (r + g + b) / 3; };
      ImageRecord *dst = d, *src = same ? static_cast<ImageRecord*>(d) : s;
      for (int export_ = 0; export_ < 4; ++export_) {
        Image model = d;
        for (int32_t y = 0; y < (same ? h + 1 : h); ++y)
          for (int32_t x = 0; x < (same ? w + 1 : w); ++x) {
            const uint32_t a = d.get(x, y), b = same ? a : s.get(x, y);
            const auto routed = [&](int i) { return byte_of(from[i] & 4 ? a : b, from[i] & 3); };
            const Brightness brightness = export_ == 0   ? Brightness(mean)
                                          : export_ == 1 ? weighted(0.2125, 0.7154, 0.0721)
                                                         : weighted(weight[0], weight[1], weight[2]);
            model.set(x, y,
                      export_ < 3 ? chosen(a, b, colour_from, alpha_from, brightness)
                                  : routed(0) << 16 | routed(1) << 8 | routed(2) | routed(3) << 24);
          }
        ASSERT_EQ(export_ == 0   ? BBIChooseCA(dst, src, colour_from, alpha_from)
                  : export_ == 1 ? BBIChooseCATR(dst, src, colour_from, alpha_from)
                  : export_ == 2
                      ? BBIChooseCATS(dst, src, colour_from, alpha_from, weight[0], weight[1], weight[2])
                      : BBIChooseRGBA(dst, src, from[0], from[1], from[2], from[3]),
                  0);
        ASSERT_EQ(d, model) << name_of(backend) << " export " << export_ << " width " << w;
      }
    }
  }
  Image d(0, 4), s(4, 4);
  EXPECT_EQ(BBIChooseCA(d, s, 0, 0), 1);
  EXPECT_EQ(BBIChooseRGBA(s, d, 0, 0, 0, 0), 1);
}

}  // namespace
}  // namespace tessaro::test
