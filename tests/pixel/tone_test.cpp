#include <array>
#include <cmath>

#include "support/unscaled.hpp"

namespace tessaro::test {
namespace {

int at(uint32_t p, int channel) { return static_cast<int>(p >> (8 * channel) & 255); }
int sum(uint32_t p) { return at(p, 0) + at(p, 1) + at(p, 2); }

uint32_t tone(uint32_t d, uint32_t s) {
  const int delta = (sum(d) + 1) / 3 - (sum(s) + 1) / 3;
  return per_channel([=](int place) {
    const int level = at(s, place / 8) + delta;
    return place == 24 ? d >> 24 : static_cast<uint32_t>(std::clamp(level, 0, 255));
  });
}

uint32_t tone_mix(uint32_t d, uint32_t s, float factor) {
  int squares = 0;
  for (int c = 0; c < 3; ++c) {
    const int e = at(d, c) - at(s, c) + (sum(s) / 3 - sum(d) / 3);
    squares += e * e;
  }
  int distance = 0;
  while ((distance + 1) * (distance + 1) <= squares) ++distance;
  const double exact = 256.0 - distance * static_cast<double>(factor);
  const int weight = exact > 0 ? static_cast<int>(std::min(exact, 256.0)) : 0;
  return mixed(d, s, static_cast<uint32_t>(weight));
}

uint32_t true_blend(uint32_t d, uint32_t s, float opacity) {
  const int sa = at(s, 3), da = at(d, 3);
  if (sa == 0) return d;
  if (sa == 255 || da == 0) return s;
  return (mixed(d, s, weight_of(s >> 24, opacity)) & 0xFFFFFF) |
         static_cast<uint32_t>(da == 255 ? 255 : da + (255 - da) * sa / 255) << 24;
}

#define CALL TESSARO_UNSCALED_CALL

std::vector<UnscaledRow> rows() {
  std::vector<UnscaledRow> all{{"tone", CALL(BBIBltTone), tone}};
  for (const float factor :
       {0.0f, 0.3f, 1.0f, 2.0f, 1e-16f, 700.0f, -1.0f, -1e7f, -1e30f, INFINITY, -INFINITY, NAN})
    all.push_back({"factor " + std::to_string(factor), CALL(BBIBltToneWB, factor),
                   [=](uint32_t d, uint32_t s) { return tone_mix(d, s, factor); }});
  for (const float opacity : {0.0f, 0.3f, 0.5f, 1.0f, 1e30f})
    all.push_back({"opacity " + std::to_string(opacity), CALL(BBIBltTrueBlend, opacity),
                   [=](uint32_t d, uint32_t s) { return true_blend(d, s, std::min(opacity, 1.0f)); }});
  return all;
}

TEST(Tone, EqualsOnePixelAfterAnotherInEveryShape) { compare_every_shape(rows()); }
TEST(Tone, ExtremeRectanglesStayInsideBothImages) { compare_extreme_rectangles(rows()); }

TEST(Tone, CoversEveryDistanceAndEveryPairOfAlphas) {
  // A single-precision root truncates to the integer root for every sum of squares that can occur.
  for (int root = 0, n = 0; n <= 3 * 510 * 510; ++n) {
    if ((root + 1) * (root + 1) <= n) ++root;
    ASSERT_EQ(static_cast<int>(std::sqrt(static_cast<float>(n))), root);
  }
  Image colours(256, 256), s(256, 256);
  colours.randomize(3);
  s.randomize(4);
  for_pixels(s, [&](int32_t x, int32_t y) {
    colours.at(x, y)[3] = static_cast<uint8_t>(x);
    s.at(x, y)[3] = static_cast<uint8_t>(y);
  });
  for (const Forced backend : supported_backends())
    for (const UnscaledRow& row : rows()) {
      Image d = colours;
      compare(row, d, s, {0, 0, 256, 256, 0, 0});
    }
}

TEST(Tone, RefusesNegativeOpacities) {
  Image d(8, 8), s(8, 8);
  const Image before = d.randomize(1);
  EXPECT_EQ(BBIBltTrueBlend(d, s, 0, 0, 8, 8, 0, 0, -1.0f), 1);
  EXPECT_EQ(BBIBltTrueBlend(d, s, 0, 0, 8, 8, 0, 0, NAN), 1);
  EXPECT_EQ(d, before);
}

// ---- Levels

using Low_high = std::array<uint32_t, 2>;
Low_high bounds(const std::vector<uint32_t>& levels, int32_t threshold) {
  const auto passed = [&](uint32_t from, uint32_t to) {
    return std::count_if(levels.begin(), levels.end(), [=](uint32_t v) { return v >= from && v <= to; }) >
           threshold;
  };
  Low_high found{0, 255};
  while (found[0] < 255 && !passed(0, found[0])) ++found[0];
  while (found[1] > 0 && !passed(found[1], 255)) --found[1];
  if (!passed(0, 255)) found = {0, 255};
  return found;
}

TEST(Levels, StretchBetweenMeasuredBounds) {
  Random random(8);
  for (int trial = 0; trial < 60; ++trial) {
    const int32_t w = random.between(1, 23), h = random.between(1, 9);
    Image source(w, h, trial % 2 ? 0 : -4 * w - 5);
    const int floor[3] = {random.between(0, 100), random.between(0, 100), random.between(0, 100)};
    const int span[3] = {random.between(0, 150), random.between(0, 150), random.between(0, 150)};
    std::vector<uint32_t> levels[3], all;
    for_pixels(source, [&](int32_t x, int32_t y) {
      source.set(x, y, random.word());
      for (int c = 0; c < 3; ++c) {
        const auto v = static_cast<uint32_t>(floor[c] + random.between(0, span[c]));
        source.at(x, y)[c] = static_cast<uint8_t>(v);
        levels[c].push_back(v);
        all.push_back(v);
      }
    });
    const int32_t thresholds[] = {0, 1, w * h / 4, w * h - 1, w * h, 2 * w * h, -1, INT32_MIN, INT32_MAX};
    const int32_t threshold = thresholds[trial % 9];
    const Low_high b = bounds(levels[0], threshold), g = bounds(levels[1], threshold),
                   r = bounds(levels[2], threshold), whole = bounds(all, threshold);
    struct {
      int32_t(TESSARO_CALL* run)(ImageRecord*, int32_t);
      uint32_t low[3], high[3];
    } const expected[] = {
        {BBIAutoLevelRGB, {r[0], g[0], b[0]}, {r[1], g[1], b[1]}},
        {BBIAutoLevelRGBRev,
         {(g[0] + r[0]) / 2, (b[0] + r[0]) / 2, (b[0] + g[0]) / 2},
         {(g[1] + r[1]) / 2, (b[1] + r[1]) / 2, (b[1] + g[1]) / 2}},
        {BBIAutoLevelRGBMul, {(g[0] + r[0]) / 8, (b[0] + r[0]) / 8, (b[0] + g[0]) / 8}, {b[1], g[1], r[1]}},
        {BBIAutoLevelWB, {whole[0], whole[0], whole[0]}, {whole[1], whole[1], whole[1]}}};
    for (const auto& e : expected) {
      Image got = source, model = source;
      for_pixels(source, [&](int32_t x, int32_t y) {
        for (int c = 0; c < 3; ++c)
          model.at(x, y)[c] = static_cast<uint8_t>(level(source.at(x, y)[c], e.low[c], e.high[c]));
      });
      ASSERT_EQ(e.run(got, threshold), 0);
      ASSERT_EQ(got, model) << "threshold " << threshold << " export " << &e - expected;
    }
  }
  Image empty(0, 3), flat(3, 0);
  EXPECT_EQ(BBIAutoLevelRGB(empty, 0), 1);
  EXPECT_EQ(BBIAutoLevelWB(flat, 0), 1);
}

}  // namespace
}  // namespace tessaro::test
