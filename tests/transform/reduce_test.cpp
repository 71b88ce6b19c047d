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
      const int32_t w = random.between(1, 150), h = random.between(1, 4),
                    shift = random.between(0, 3) * random.between(0, 40);
      // Source and destination: two images, one image, or two that interlock in one block of memory.
      Image d(w + 40, h + 1), s(w, h, -4 * (w + 2), 1);
      d.randomize(random.word());
      s.randomize(random.word());
      const bool interlock = trial % 3 == 0, same = trial % 3 == 1;
      // The records of the interlocking pair, at both ends of their block.
      struct {
        int16_t dims, pixels, width, height, pitch;
      } record{4, 0, static_cast<int16_t>(w), static_cast<int16_t>(h), static_cast<int16_t>(4 * (w + 40))};
      std::vector<uint8_t> block(16 + 4 * static_cast<size_t>(w + 40) * static_cast<size_t>(h + 1) + 400);
      ImageRecord *dst = d, *src = same ? static_cast<ImageRecord*>(d) : s;
      std::memcpy(block.data(), &record, 10);
      store<int16_t>(block.data() + 2, static_cast<int16_t>(16 + 4 * shift));
      for (size_t i = 16; i < block.size(); ++i) block[i] = static_cast<uint8_t>(i * 7 ^ i >> 3);
      const int32_t colour_from = trial & 3, alpha_from = trial >> 2 & 3;
      const float* weight = weights[static_cast<size_t>(trial) % std::size(weights)];
      const double r = static_cast<double>(weight[0]), g = static_cast<double>(weight[1]),
                   b = static_cast<double>(weight[2]);
      struct Row {
        std::function<int32_t(ImageRecord*, ImageRecord*)> run;
        std::function<uint32_t(uint32_t, uint32_t)> model;
      };
      const int32_t selectors[] = {random.between(0, 7), random.between(0, 7), random.between(0, 7),
                                   random.between(0, 7)};
      const Row rows[] = {
          {[&](auto* x, auto* y) { return BBIChooseCA(x, y, colour_from, alpha_from); },
           [&](uint32_t x, uint32_t y) {
             return chosen(x, y, colour_from, alpha_from, [](uint32_t red, uint32_t green, uint32_t blue) {
               return (red + green + blue) / 3;
             });
           }},
          {[&](auto* x, auto* y) { return BBIChooseCATR(x, y, colour_from, alpha_from); },
           [&](uint32_t x, uint32_t y) {
             return chosen(x, y, colour_from, alpha_from, [](uint32_t red, uint32_t green, uint32_t blue) {
               return low_byte(green * 0.7154 + blue * 0.0721 + red * 0.2125);
             });
           }},
          {[&](auto* x, auto* y) {
             return BBIChooseCATS(x, y, colour_from, alpha_from, weight[0], weight[1], weight[2]);
           },
           [&](uint32_t x, uint32_t y) {
             return chosen(x, y, colour_from, alpha_from, [&](uint32_t red, uint32_t green, uint32_t blue) {
               return low_byte(green * g + blue * b + red * r);
             });
           }},
          {[&](auto* x, auto* y) {
             return BBIChooseRGBA(x, y, selectors[0], selectors[1], selectors[2], selectors[3]);
           },
           [&](uint32_t x, uint32_t y) {
             const auto from = [&](int i) { return byte_of(selectors[i] & 4 ? x : y, selectors[i] & 3); };
             return from(0) << 16 | from(1) << 8 | from(2) | from(3) << 24;
           }}};
      for (const Row& row : rows) {
        if (interlock) {  // the source lies `shift` pixels before the destination in one run of memory
          std::vector<uint8_t> model = block;
          const auto at = [&](std::vector<uint8_t>& v, int32_t x, int32_t y, int32_t by) {
            return v.data() + 16 + 4 * (by + x + y * (w + 40));
          };
          for (int32_t y = 0; y < h; ++y)
            for (int32_t x = 0; x < w; ++x)
              store(at(model, x, y, shift),
                    row.model(load<uint32_t>(at(model, x, y, shift)), load<uint32_t>(at(model, x, y, 0))));
          const size_t place = block.size() - 16;
          record.pixels = static_cast<int16_t>(16 - static_cast<ptrdiff_t>(place));
          std::memcpy(block.data() + place, &record, 10);
          std::memcpy(model.data() + place, &record, 10);
          ASSERT_EQ(row.run(reinterpret_cast<ImageRecord*>(block.data()),
                            reinterpret_cast<ImageRecord*>(block.data() + place)),
                    0);
          ASSERT_EQ(block, model) << name_of(backend) << " shift " << shift << " width " << w;
        } else {
          Image model = d;
          for (int32_t y = 0; y < (same ? h + 1 : h); ++y)
            for (int32_t x = 0; x < (same ? w + 40 : w); ++x)
              model.set(x, y, row.model(model.get(x, y), same ? model.get(x, y) : s.get(x, y)));
          ASSERT_EQ(row.run(dst, src), 0);
          ASSERT_EQ(d, model) << name_of(backend) << " width " << w;
        }
      }
    }
  }
  Image d(0, 4), s(4, 4);
  EXPECT_EQ(BBIChooseCA(d, s, 0, 0), 1);
  EXPECT_EQ(BBIChooseRGBA(s, d, 0, 0, 0, 0), 1);
}

}  // namespace
}  // namespace tessaro::test
