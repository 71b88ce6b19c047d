// The lines against walks that take every step, and at coordinates where taking every step is impossible.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "support/models.hpp"

namespace tessaro::test {
namespace {

int64_t longer(Ends e) { return std::max(std::abs(int64_t{e.x1} - e.x0), std::abs(int64_t{e.y1} - e.y0)); }

// Every step, one after another. late: one step more, and the error terms have to exceed n.
void walk(Ends e, bool late, const std::function<void(int64_t, int64_t, int64_t)>& visit) {
  const int64_t n = longer(e), dx = std::abs(int64_t{e.x1} - e.x0), dy = std::abs(int64_t{e.y1} - e.y0);
  int64_t x = e.x0, y = e.y0, ex = n >> 1, ey = n >> 1;
  for (int64_t i = 0; i < n + late; ++i) {
    for (ex += dx; late ? ex > n : ex >= n; ex -= n) x += e.x0 < e.x1 ? 1 : -1;
    for (ey += dy; late ? ey > n : ey >= n; ey -= n) y += e.y0 < e.y1 ? 1 : -1;
    visit(x, y, i);
  }
}

void put(Image& image, int64_t x, int64_t y, uint32_t mask, uint32_t colour) {
  if (inside(image, x, y)) put_masked(image, static_cast<int32_t>(x), static_cast<int32_t>(y), mask, colour);
}
bool is(Image& image, int64_t x, int64_t y, uint32_t colour) {
  return inside(image, x, y) && image.get(static_cast<int32_t>(x), static_cast<int32_t>(y)) == colour;
}

struct Naive {
  Image& image;
  uint32_t mask, colour;

  void line(Ends e) {
    walk(e, false, [&](int64_t x, int64_t y, int64_t) { put(image, x, y, mask, colour); });
    put(image, e.x1, e.y1, mask, colour);
  }
  void dots(Ends e) {
    walk(e, false, [&](int64_t x, int64_t y, int64_t) {
      int count = 0;
      for (auto [a, b] : {std::pair{-1, 0}, {1, 0}, {0, -1}, {0, 1}})
        count += is(image, x + a, y + b, colour);
      if (count >= 3) put(image, x, y, mask, colour);
    });
  }
  void thick(Ends e, int64_t thickness) {
    walk(e, false, [&](int64_t x, int64_t y, int64_t) {
      for (auto [a, b] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
        int64_t found = 0;
        for (int64_t k = 1; k <= thickness; ++k) {
          const int64_t d = thickness + 1 - k, px = x + a * d, py = y + b * d;
          if (is(image, px, py, colour)) found = k;
          if (found >= d) put(image, px, py, mask, colour);
        }
      }
    });
  }
  void gradation(Image& pair, Ends e) {
    const double length = longer(e) ? static_cast<double>(longer(e)) : 1.0;
    walk(e, true, [&](int64_t x, int64_t y, int64_t i) {
      if (!inside(image, x, y)) return;
      const double t = static_cast<double>(i) / length;
      const float u = static_cast<float>(1.0 - t);
      for (int k = 0; k < 4; ++k)
        image.at(static_cast<int32_t>(x), static_cast<int32_t>(y))[k] =
            static_cast<uint8_t>(pair.at(1, 0)[k] * t + pair.at(0, 0)[k] * static_cast<double>(u));
    });
  }
  // Coverages in doubles, which hold them exactly for lines of this length.
  void alpha(Image& pair, Ends e) {
    if (longer(e) == 0) return;
    uint32_t c0 = pair.get(0, 0), c1 = pair.get(1, 0);
    int64_t x0 = e.x0, y0 = e.y0, x1 = e.x1, y1 = e.y1;
    const bool flat = std::abs(y0 - y1) < std::abs(x0 - x1);
    if ((flat && x1 < x0) || (!flat && y1 < y0)) std::swap(x0, x1), std::swap(y0, y1), std::swap(c0, c1);
    const int64_t major = longer(e), minor = std::min(std::abs(x0 - x1), std::abs(y0 - y1));
    const int64_t s = flat ? (y1 < y0 ? -1 : 1) : (x1 < x0 ? -1 : 1);
    const auto length = static_cast<double>(major);
    const float h = static_cast<float>(static_cast<double>(minor) / length * 0.5);
    const float q = static_cast<float>((static_cast<double>(minor) - static_cast<double>(h)) / length);
    double ca = 1.0, cb = static_cast<double>(h * 0.5f);
    int64_t ma = flat ? y0 : x0, mb = ma + s;
    for (int64_t i = 0; i <= major; ++i) {
      const int64_t along = (flat ? x0 : y0) + i;
      const auto in = [&](int64_t m) { return flat ? inside(image, along, m) : inside(image, m, along); };
      if (in(ma) && in(mb)) {
        const float t = static_cast<float>(static_cast<double>(i) / length);
        const uint32_t c = mixed(c0, c1, static_cast<uint32_t>(t * 256.0f));
        const double alpha = (c >> 24) * static_cast<double>(0.003921569f);
        const auto blend = [&](int64_t m, double strength) {
          const auto x = static_cast<int32_t>(flat ? along : m), y = static_cast<int32_t>(flat ? m : along);
          image.set(x, y, mixed(image.get(x, y), c, static_cast<uint32_t>(std::min(strength, 1.0) * 256)));
        };
        blend(ma, alpha * ca);
        blend(mb, alpha * cb);
        if (mb == ma + 2 * s) blend(ma + s, alpha);
      }
      if ((ca -= static_cast<double>(q)) < 0) ca += 1, ma += s;
      if ((cb += static_cast<double>(q)) > 1) cb -= 1, mb += s;
    }
  }
};

void compare_all(Ends e, int32_t thickness, uint32_t seed) {
  SCOPED_TRACE(::testing::Message() << e.x0 << ',' << e.y0 << " to " << e.x1 << ',' << e.y1 << " thickness "
                                    << thickness << " seed " << seed);
  Random random(seed);
  const int32_t width = random.between(1, 24), height = random.between(1, 18);
  Image packed(width, height),
      loose(width, height, random.word() & 1 ? 4 * width + 5 : -(4 * width + 7), seed % 4);
  Image pair(2, 1);
  pair.randomize(seed);
  // Few values, so that strokes of the colour and holes in them occur; partial masks may make the colour appear.
  const uint32_t colour = 0x00FF10FF, mask = seed % 3 == 0 ? 0x0000FF00 : seed % 3 == 1 ? 0xFF000000 : 0;
  const uint32_t values[] = {colour, colour, 0x00FF00FF, 0x12345678};
  for_pixels(packed, [&](int32_t x, int32_t y) {
    const uint32_t v = values[random.word() % (seed % 2 ? 3 : 4)];
    packed.set(x, y, v);
    loose.set(x, y, v);
  });
  for (Image* image : {&packed, &loose}) {
    Image want = *image, got = *image;
    Naive naive{want, mask, colour};
    const auto compare = [&](const char* name, int32_t status, int32_t wanted = 0) {
      EXPECT_EQ(status, wanted) << name;
      ASSERT_EQ(got, want) << name;
    };
    naive.dots(e);
    compare("BBIDotThick", BBIDotThick(got, e.x0, e.y0, e.x1, e.y1, mask, colour));
    if (image == &packed) naive.thick(e, thickness);
    compare("BBILineThick", BBILineThick(got, e.x0, e.y0, e.x1, e.y1, mask, colour, thickness),
            image != &packed);
    naive.line(e);
    compare("BBIDrawLine", BBIDrawLine(got, e.x0, e.y0, e.x1, e.y1, mask, colour));
    naive.alpha(pair, e);
    compare("BBIDrawAlphaLine", BBIDrawAlphaLine(got, pair, e.x0, e.y0, e.x1, e.y1));
    naive.gradation(pair, e);
    compare("BBIDrawGradationLine", BBIDrawGradationLine(got, pair, e.x0, e.y0, e.x1, e.y1));
  }
}

TEST(Lines, EqualWalksThatTakeEveryStep) {
  Random random(1);
  for (uint32_t seed = 0; seed < 3000; ++seed) {
    const int32_t reach = seed % 4 == 0 ? 3 : seed % 4 == 1 ? 30 : seed % 4 == 2 ? 200 : 2000;
    const auto at = [&] { return random.between(-reach, reach + 20); };
    Ends e{at(), at(), at(), at()};
    if (seed % 7 == 0) e.y1 = e.y0;
    if (seed % 7 == 1) e.x1 = e.x0;
    if (seed % 7 == 2) e.y1 = e.y0 + random.between(-3, 3);  // long runs on one row
    compare_all(e, random.between(1, seed % 5 ? 9 : 300), seed);
    if (HasFatalFailure()) return;
  }
}

TEST(Lines, EnterAtTheRightStepFromFarAway) {
  // Long, but still short enough for the model.
  Random random(2);
  for (uint32_t seed = 0; seed < 6; ++seed) {
    const auto far = [&] { return random.between(-40000, 40000); };
    const int32_t x0 = far(), y0 = far();
    compare_all({x0, y0, random.between(-5, 25) * 2 - x0, random.between(-5, 20) * 2 - y0}, 40, seed);
    if (HasFatalFailure()) return;
  }
  // Longer than any model, on an image of nothing but the colour: it stays as it is, and soon.
  const Image before = Image(9, 7).fill(0x00FF10FF);
  for (const int32_t a : extreme_values)
    for (const int32_t b : extreme_values)
      for (const int32_t c : extreme_values) {
        Image image = before;
        BBIDotThick(image, a, b, c, b ^ c, 0, 0x00FF10FF);
        BBILineThick(image, a, b, c, b ^ c, 0, 0x00FF10FF, a);
        ASSERT_EQ(image, before);
      }
}

TEST(Lines, CrossTheWholeRangeOfCoordinates) {
  // Through the middle, at 45 degrees and on one row, from one end of the range to the other.
  Image image(8, 8);
  image.fill(0);
  BBIDrawLine(image, INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, 0, 7);
  for_pixels(image, [&](int32_t x, int32_t y) { EXPECT_EQ(image.get(x, y), x == y ? 7u : 0u); });
  image.fill(0);
  BBIDrawLine(image, INT32_MAX, 3, INT32_MIN, 3, 0, 7);
  for (int32_t x = 0; x < 8; ++x) EXPECT_EQ(image.get(x, 3), 7u);
  Image pair(2, 1);
  pair.set(0, 0, 0xFF000000);
  pair.set(1, 0, 0xFFFFFFFF);
  image.fill(0);
  BBIDrawGradationLine(image, pair, INT32_MIN, 2, INT32_MAX, 2);
  BBIDrawAlphaLine(image, pair, INT32_MIN, 4, INT32_MAX, 4);
  for (int32_t x = 0; x < 8; ++x) {
    EXPECT_EQ(image.get(x, 2) & 0xFFFFFF, 0x7F7F7Fu);
    EXPECT_EQ(image.get(x, 4) & 0xFFFFFF, 0x7F7F7Fu);
  }
  // Points far away on a row paint what is within their reach.
  image.fill(0);
  image.set(3, 5, 9);
  BBILineThick(image, -2000000000, 5, -50, 5, 0, 9, INT32_MAX);
  for (int32_t x = 0; x < 8; ++x) EXPECT_EQ(image.get(x, 5), x <= 3 ? 9u : 0u);
}

TEST(Lines, RefuseNarrowPairsAndNoThickness) {
  Image image(4, 4), narrow(1, 1);
  EXPECT_EQ(BBIDrawGradationLine(image, narrow, 0, 0, 3, 0), 1);
  EXPECT_EQ(BBIDrawAlphaLine(image, narrow, 0, 0, 0, 0), 1);
  EXPECT_EQ(BBILineThick(image, 0, 0, 3, 0, 0, 5, 0), 1);
  EXPECT_EQ(BBILineThick(image, 0, 0, 0, 0, 0, 5, 1), 0);
}

}  // namespace
}  // namespace tessaro::test
