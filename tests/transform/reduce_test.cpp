#include <cmath>

#include "support/unscaled.hpp"

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
  for (const Forced backend : supported_backends())
    for (const Row& row : rows)
      for (uint32_t offset = 0; offset < 256; offset += 5) {
        Image image(61, 9, -4 * 62, offset % 4), model(61, 9, -4 * 62, offset % 4);
        for_pixels(image, [&](int32_t x, int32_t y) {
          for (int32_t k = 0; k < 4; ++k) {
            const uint32_t c = (offset + static_cast<uint32_t>(37 * y + 4 * x + k)) & 255;
            image.at(x, y)[k] = static_cast<uint8_t>(c);
            model.at(x, y)[k] = static_cast<uint8_t>(k == 3 || c == 0 ? c : row.formula(c, x, y));
          }
        });
        ASSERT_EQ(row.run(image), 0);
        ASSERT_EQ(image, model);
      }
  Image empty(0, 5);
  for (const Row& row : rows) EXPECT_EQ(row.run(empty), 1);
}

auto weighted(double red, double green, double blue) {
  return [=](uint32_t r, uint32_t g, uint32_t b) {
    const double v = g * green + b * blue + r * red;
    return v > -2147483649.0 && v < 2147483648.0 ? static_cast<uint32_t>(static_cast<int32_t>(v)) & 255 : 0;
  };
}

std::vector<UnscaledRow> choose_rows() {
  std::vector<UnscaledRow> all;
  for (int32_t from = 0; from < 16; ++from) {
    const int32_t colour = from & 3, alpha = from >> 2;
    const auto rule = [=](auto brightness) {
      return [=](uint32_t d, uint32_t s) {
        const uint32_t c = colour & 2 ? d : s, a = alpha & 2 ? d : s;
        return (colour & 1 ? (c >> 24) * 0x010101 : c & 0xFFFFFF) |
               (alpha & 1 ? a >> 24 : brightness(channel(a, 16), channel(a, 8), channel(a, 0))) << 24;
      };
    };
    all.push_back({"BBIChooseCA", [=](auto* d, auto* s, auto&) { return BBIChooseCA(d, s, colour, alpha); },
                   rule([](uint32_t r, uint32_t g, uint32_t b) { return (r + g + b) / 3; })});
    all.push_back({"BBIChooseCATR",
                   [=](auto* d, auto* s, auto&) { return BBIChooseCATR(d, s, colour, alpha); },
                   rule(weighted(0.2125, 0.7154, 0.0721))});
    const float weights[][3] = {{0.3f, 0.59f, 0.11f}, {1, 1, 1},     {-2, 0.5f, 1e9f},
                                {NAN, 1, 1},          {1e30f, 0, 0}, {0.5f, 0.25f, 0.25f},
                                {0.3f, 1.9f, 0.01f}};
    for (const auto& w : weights)
      all.push_back({"BBIChooseCATS",
                     [=, r = w[0], g = w[1], b = w[2]](auto* d, auto* s, auto&) {
                       return BBIChooseCATS(d, s, colour, alpha, r, g, b);
                     },
                     rule(weighted(w[0], w[1], w[2]))});
  }
  for (int32_t from = 0; from < 64; ++from) {
    const int32_t red = from & 7, green = from >> 3, blue = (from * 5 + green) & 7,
                  alpha = (from * 3 + 1) & 7;
    const auto routed = [](int32_t selector, uint32_t d, uint32_t s) {
      return channel(selector & 4 ? d : s, (selector & 3) == 3 ? 24 : 16 - 8 * (selector & 3));
    };
    all.push_back({"BBIChooseRGBA",
                   [=](auto* d, auto* s, auto&) { return BBIChooseRGBA(d, s, red, green, blue, alpha); },
                   [=](uint32_t d, uint32_t s) {
                     return routed(red, d, s) << 16 | routed(green, d, s) << 8 | routed(blue, d, s) |
                            routed(alpha, d, s) << 24;
                   }});
  }
  return all;
}

TEST(Choose, EqualsTheModelForEverySelector) {
  for (const Forced backend : supported_backends()) {
    Random random(5);
    for (const UnscaledRow& row : choose_rows())
      for (const bool same : {false, true}) {
        const int32_t w = random.between(1, 150), h = random.between(1, 4);
        Image d(w + 1, h + 1), s(w, h, -4 * (w + 2), 1);
        d.randomize(random.word());
        s.randomize(random.word());
        Image& from = same ? d : s;
        compare(row, d, from, {0, 0, from.width(), from.height(), 0, 0});
        if (HasFatalFailure()) return;
      }
  }
  Image d(0, 4), s(4, 4);
  EXPECT_EQ(BBIChooseCA(d, s, 0, 0), 1);
  EXPECT_EQ(BBIChooseRGBA(s, d, 0, 0, 0, 0), 1);
}

// Whole sums fall below themselves in doubles now and then.
TEST(Choose, WeighsEveryColourAsDoublesDo) {
  const auto brightness = weighted(0.2125, 0.7154, 0.0721);
  Image all(256, 256), weighed(256, 256);
  for (const Forced backend : supported_backends())
    for (uint32_t green = 0; green < 256; ++green) {
      for_pixels(all, [&](int32_t x, int32_t y) {
        all.set(x, y, static_cast<uint32_t>(x) << 16 | green << 8 | static_cast<uint32_t>(y));
      });
      BBIChooseCATR(weighed, all, 0, 0);
      uint32_t wrong = 0;
      for_pixels(weighed, [&](int32_t x, int32_t y) {
        wrong +=
            weighed.get(x, y) >> 24 != brightness(static_cast<uint32_t>(x), green, static_cast<uint32_t>(y));
      });
      ASSERT_EQ(wrong, 0u) << "green " << green;
    }
}

}  // namespace
}  // namespace tessaro::test
