#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>

#include "support/images.hpp"

namespace tessaro::test {
namespace {

int at(uint32_t p, int channel) { return static_cast<int>(p >> (8 * channel) & 255); }
uint32_t colours(const std::function<int(int)>& f) {
  uint32_t v = 0;
  for (int c = 0; c < 3; ++c) v |= static_cast<uint32_t>(f(c)) << 8 * c;
  return v;
}
int sum(uint32_t p) { return at(p, 0) + at(p, 1) + at(p, 2); }
int mixed(int d, int s, int weight) { return (d * (256 - weight) + s * weight) / 256; }

uint32_t tone(uint32_t d, uint32_t s) {
  const int delta = (sum(d) + 1) / 3 - (sum(s) + 1) / 3;
  return (d & 0xFF000000) | colours([=](int c) { return std::min(255, std::max(0, at(s, c) + delta)); });
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
  const int weight =
      !(std::fabs(exact) < 2147483648.0) ? 0 : std::min(256, std::max(0, static_cast<int>(exact)));
  return colours([=](int c) { return mixed(at(d, c), at(s, c), weight); }) |
         static_cast<uint32_t>(mixed(at(d, 3), at(s, 3), weight)) << 24;
}

uint32_t true_blend(uint32_t d, uint32_t s, float opacity) {
  const int sa = at(s, 3), da = at(d, 3);
  if (sa == 0) return d;
  if (sa == 255 || da == 0) return s;
  const auto weight =
      static_cast<int>(sa * static_cast<double>(opacity) * static_cast<double>(0.003921569f) * 256.0);
  return colours([=](int c) { return mixed(at(d, c), at(s, c), weight); }) |
         static_cast<uint32_t>(da == 255 ? 255 : da + (255 - da) * sa / 255) << 24;
}

struct Row {
  std::string name;
  std::function<int32_t(ImageRecord*, ImageRecord*, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
                        int32_t sx, int32_t sy)>
      run;
  std::function<uint32_t(uint32_t d, uint32_t s)> rule;
};

std::vector<Row> rows() {
  std::vector<Row> all{{"tone", BBIBltTone, tone}};
  const float infinite = std::numeric_limits<float>::infinity();
  for (const float factor : {0.0f, 0.3f, 1.0f, 2.0f, 1e-30f, 700.0f, -1.0f, -1e7f, -1e30f, infinite,
                             -infinite, std::numeric_limits<float>::quiet_NaN()})
    all.push_back({"factor " + std::to_string(factor),
                   [=](auto... areas) { return BBIBltToneWB(areas..., factor); },
                   [=](uint32_t d, uint32_t s) { return tone_mix(d, s, factor); }});
  for (const float opacity : {0.0f, 0.3f, 0.5f, 1.0f, 1e30f})
    all.push_back({"opacity " + std::to_string(opacity),
                   [=](auto... areas) { return BBIBltTrueBlend(areas..., opacity); },
                   [=](uint32_t d, uint32_t s) { return true_blend(d, s, std::min(opacity, 1.0f)); }});
  return all;
}

TEST(Tone, EqualsTheFormulaPixelAfterPixel) {
  for (const Forced backend : supported_backends()) {
    Random random(24);
    for (const Row& row : rows())
      for (int32_t w = 1; w < 75; ++w) {
        // Two images, or overlapping areas of one.
        Image a(w + 20, 5, w % 3 ? 0 : -4 * w - 83, static_cast<size_t>(w % 4)), b(w + 20, 5);
        a.randomize(random.word());
        b.randomize(random.word());
        const bool same = w % 2 != 0;
        Image model = a, &s = same ? a : b, &model_s = same ? model : b;
        const int32_t dx = random.between(0, 20), sx = random.between(0, 20), sy = random.between(0, 2);
        for (int32_t y = 0; y < 3; ++y)
          for (int32_t x = 0; x < w; ++x)
            model.set(dx + x, 1 + y, row.rule(model.get(dx + x, 1 + y), model_s.get(sx + x, sy + y)));
        ASSERT_EQ(row.run(a, s, dx, 1, w, 3, sx, sy), 0);
        ASSERT_EQ(a, model) << row.name << " width " << w;
      }
  }
}

TEST(Tone, CoversEveryDistanceAndEveryPairOfAlphas) {
  // A single-precision root truncates to the integer root for every sum of squares that can occur.
  for (int root = 0, n = 0; n <= 3 * 510 * 510; ++n) {
    if ((root + 1) * (root + 1) <= n) ++root;
    ASSERT_EQ(static_cast<int>(std::sqrt(static_cast<float>(n))), root);
  }
  for (const Forced backend : supported_backends())
    for (const Row& row : rows()) {
      Image d(256, 256), s(256, 256), model(256, 256);
      Random random(3);
      for (int32_t y = 0; y < 256; ++y)
        for (int32_t x = 0; x < 256; ++x) {
          d.set(x, y, (random.pixel() & 0xFFFFFF) | static_cast<uint32_t>(x) << 24);
          s.set(x, y, (random.pixel() & 0xFFFFFF) | static_cast<uint32_t>(y) << 24);
          model.set(x, y, row.rule(d.get(x, y), s.get(x, y)));
        }
      ASSERT_EQ(row.run(d, s, 0, 0, 256, 256, 0, 0), 0);
      ASSERT_EQ(d, model);
    }
}

TEST(Tone, RefusesWhatItMust) {
  Image d(8, 8), s(8, 8);
  Image before = d.randomize(1);
  EXPECT_EQ(BBIBltTrueBlend(d, s, 0, 0, 8, 8, 0, 0, -1.0f), 1);
  EXPECT_EQ(BBIBltTrueBlend(d, s, 0, 0, 8, 8, 0, 0, std::numeric_limits<float>::quiet_NaN()), 1);
  for (const Row& row : rows())
    for (const int32_t v : extreme_values) EXPECT_EQ(row.run(d, s, v, 0, 8, 8, 0, 8), 1);
  EXPECT_EQ(d, before);
}

// ---- Levels

using Low_high = std::array<int, 2>;
Low_high bounds(const std::vector<int>& levels, int32_t threshold) {
  const auto passed = [&](int from, int to) {
    int64_t n = 0;
    for (const int v : levels) n += v >= from && v <= to;
    return n > threshold;
  };
  Low_high found{0, 255};
  for (int v = 255; v >= 0; --v)
    if (passed(0, v)) found[0] = v;
  for (int v = 0; v < 256; ++v)
    if (passed(v, 255)) found[1] = v;
  return found;
}
int stretched(int v, int low, int high) {
  if (v < low) return 0;
  if (v == low) return low == high ? 255 - low : 0;
  return v >= high ? 255 : 255 * (v - low) / (high - low);
}

TEST(Levels, StretchBetweenMeasuredBounds) {
  Random random(8);
  for (int trial = 0; trial < 60; ++trial) {
    const int32_t w = random.between(1, 23), h = random.between(1, 9);
    Image source(w, h, trial % 2 ? 0 : -4 * w - 5);
    const int floor[3] = {random.between(0, 100), random.between(0, 100), random.between(0, 100)};
    const int span[3] = {random.between(0, 150), random.between(0, 150), random.between(0, 150)};
    std::vector<int> levels[3], all;
    for (int32_t y = 0; y < h; ++y)
      for (int32_t x = 0; x < w; ++x) {
        const uint32_t p = colours([&](int c) { return floor[c] + random.between(0, span[c]); });
        source.set(x, y, p | random.word() << 24);
        for (int c = 0; c < 3; ++c) levels[c].push_back(at(p, c)), all.push_back(at(p, c));
      }
    const int32_t thresholds[] = {0, 1, w * h / 4, w * h - 1, w * h, 2 * w * h, -1, INT32_MIN, INT32_MAX};
    const int32_t threshold = thresholds[trial % 9];
    const Low_high b = bounds(levels[0], threshold), g = bounds(levels[1], threshold),
                   r = bounds(levels[2], threshold), whole = bounds(all, threshold);
    struct {
      int32_t(TESSARO_CALL* run)(ImageRecord*, int32_t);
      int low[3], high[3];
    } const expected[] = {
        {BBIAutoLevelRGB, {r[0], g[0], b[0]}, {r[1], g[1], b[1]}},
        {BBIAutoLevelRGBRev,
         {(g[0] + r[0]) / 2, (b[0] + r[0]) / 2, (b[0] + g[0]) / 2},
         {(g[1] + r[1]) / 2, (b[1] + r[1]) / 2, (b[1] + g[1]) / 2}},
        {BBIAutoLevelRGBMul, {(g[0] + r[0]) / 8, (b[0] + r[0]) / 8, (b[0] + g[0]) / 8}, {b[1], g[1], r[1]}},
        {BBIAutoLevelWB, {whole[0], whole[0], whole[0]}, {whole[1], whole[1], whole[1]}}};
    for (const auto& e : expected) {
      Image got = source, model = source;
      for (int32_t y = 0; y < h; ++y)
        for (int32_t x = 0; x < w; ++x) {
          const uint32_t p = source.get(x, y);
          model.set(x, y, (p & 0xFF000000) | colours([&](int c) {
                            return stretched(at(p, c), e.low[c], e.high[c]);
                          }));
        }
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
