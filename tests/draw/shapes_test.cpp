// Boxes, tiles, triangles and ellipses against their formulas, pixel by pixel.
#include <gtest/gtest.h>

#include <cmath>

#include "support/images.hpp"

namespace tessaro::test {
namespace {

// An image of random size, pitch and alignment.
Image some_image(Random& random, int32_t most) {
  const int32_t width = random.between(1, most), height = random.between(1, 12);
  const int32_t gap = random.between(0, 9), pitch = 4 * width + gap;
  Image image(width, height, random.word() & 1 ? pitch : -pitch, random.word() % 4);
  image.randomize(random.word());
  return image;
}
uint32_t masked(uint32_t old, uint32_t mask, uint32_t colour) { return (~mask & colour) | (old & mask); }
uint32_t some_mask(Random& random) {
  const uint32_t masks[] = {0, 0x00FFFFFF, 0xFF000000, random.word()};
  return masks[random.word() % 4];
}

struct Box {
  int32_t x, y, w, h, sx, sw, sy, sh;
  bool empty;
};
// The clip of the boxes in plain doubles, for boxes of positive size: the whole image shrinks with the box.
Box clip(Image& image, int32_t x, int32_t y, int32_t w, int32_t h) {
  Box b{x, y, w, h, 0, image.width(), 0, image.height(), false};
  if (w == 0 || h == 0) return b.empty = true, b;
  const double rx = static_cast<double>(image.width()) / w;
  const double ry = static_cast<float>(static_cast<double>(image.height()) / h);
  if (b.x < 0) {
    b.sx = static_cast<int32_t>(b.sx - b.x * rx);
    b.sw = static_cast<int32_t>(b.sw + b.x * rx);
    b.w += b.x;
    b.x = 0;
  }
  if (b.x + b.w > image.width()) {
    b.sw = static_cast<int32_t>((image.width() - b.x - b.w) * rx + b.sw);
    b.w = image.width() - b.x;
  }
  if (b.y < 0) {
    b.sy = static_cast<int32_t>(b.sy - b.y * ry);
    b.sh = static_cast<int32_t>(b.sh + b.y * ry);
    b.h += b.y;
    b.y = 0;
  }
  if (b.y + b.h > image.height()) {
    b.sh = static_cast<int32_t>((image.height() - b.y - b.h) * ry + b.sh);
    b.h = image.height() - b.y;
  }
  b.empty = b.w < 1 || b.h < 1 || b.sw == 0 || b.sh == 0;
  return b;
}

uint32_t mix(uint32_t from, uint32_t to, uint32_t w) {
  uint32_t out = 0;
  for (int k = 0; k < 32; k += 8) out |= (((from >> k & 255) * (256 - w) + (to >> k & 255) * w) >> 8) << k;
  return out;
}
uint32_t weight(double f, float start, float end, bool single) {
  double v = (1.0 - f) * static_cast<double>(start) + f * static_cast<double>(end);
  if (single) v = static_cast<double>(static_cast<float>(v));
  return v > 0 ? static_cast<uint32_t>(std::min(v, 1.0) * 256) : 0;
}

void check_boxes(uint32_t seed) {
  SCOPED_TRACE(seed);
  Random random(seed);
  const int32_t most = seed % 40 == 0 ? 4500 : 70;
  Image image = some_image(random, most), want = image, got = image;
  const int32_t x = random.between(-20, 60), y = random.between(-8, 12), w = random.between(-2, most + 30),
                h = random.between(-1, 30);
  const uint32_t mask = some_mask(random);
  uint32_t c[4];
  for (uint32_t& v : c) v = random.pixel();
  const int32_t tw = random.between(-1, 9), th = random.between(-1, 5);
  const Box b = clip(image, x, y, w, h);
  const auto each = [&](auto colour) {
    if (b.empty) return;
    for (int32_t j = b.y; j < b.y + b.h; ++j)
      for (int32_t i = b.x; i < b.x + b.w; ++i) want.set(i, j, masked(want.get(i, j), mask, colour(i, j)));
  };
  const int32_t status = b.empty ? 1 : 0;

  each([&](int32_t, int32_t) { return c[0]; });
  ASSERT_EQ(BBIDrawColorFill(got, x, y, w, h, mask, c[0]), status);
  ASSERT_EQ(got, want) << "BBIDrawColorFill";

  each([&](int32_t i, int32_t j) { return c[(i / std::max(tw, 1) & 1) + 2 * (j / std::max(th, 1) & 1)]; });
  ASSERT_EQ(BBIDrawColorTile(got, x, y, w, h, mask, tw, th, c[0], c[1], c[2], c[3]), status);
  ASSERT_EQ(got, want) << "BBIDrawColorTile";

  const auto part = [](int32_t v, int32_t all) { return static_cast<float>(static_cast<double>(v) / all); };
  const auto way = [](int32_t v, int32_t n) { return static_cast<double>(v) / (n - 1); };
  each([&](int32_t i, int32_t j) {
    const uint32_t a =
        weight(way(j - b.y, b.h), part(b.sy, image.height()), part(b.sy + b.sh, image.height()), true);
    const uint32_t u =
        weight(way(i - b.x, b.w), part(b.sx, image.width()), part(b.sx + b.sw, image.width()), false);
    return mix(mix(c[0], c[2], a), mix(c[1], c[3], a), u);
  });
  ASSERT_EQ(BBIDrawBox(got, x, y, w, h, mask, c[0], c[1], c[2], c[3]), status);
  ASSERT_EQ(got, want) << "BBIDrawBox";
}

// Walks from corner to corner and calls put(x, y, u, v) for the pixels inside.
template <class Put>
void corner_walk(Image& image, int32_t x0, int32_t y0, int32_t x1, int32_t y1, Put put) {
  const int32_t sx = x1 > x0 ? 1 : -1, sy = y1 > y0 ? 1 : -1;
  const double dx = x1 == x0 ? 1.0 : x1 - x0, dy = y1 == y0 ? 1.0 : y1 - y0;
  for (int32_t y = y0;; y += sy) {
    for (int32_t x = x0;; x += sx) {
      if (x >= 0 && y >= 0 && x < image.width() && y < image.height()) put(x, y, (x - x0), dx, (y - y0), dy);
      if (x == x1) break;
    }
    if (y == y1) break;
  }
}

void naive_line_box(Image& image, Image& pattern, bool multiply, int32_t x0, int32_t y0, int32_t x1,
                    int32_t y1) {
  const double p = pattern.width() - 1;
  uint32_t b = 0;
  int32_t row = INT32_MIN;
  corner_walk(image, x0, y0, x1, y1, [&](int32_t x, int32_t y, double i, double dx, double j, double dy) {
    if (y != row) b = pattern.get(static_cast<int32_t>(j / dy * p), 1);
    row = y;
    const uint32_t a = pattern.get(static_cast<int32_t>(i / dx * p), 0);
    uint32_t out = 0;
    for (int k = 0; k < 32; k += 8) {
      const uint32_t m = a >> k & 255, n = b >> k & 255, s = m + n;
      out |= (multiply ? m * n / 255 : s > 255 ? 510 - s : s) << k;
    }
    image.set(x, y, out);
  });
}

void check_corner_boxes(uint32_t seed) {
  SCOPED_TRACE(seed);
  Random random(seed);
  const int32_t most = seed % 40 == 0 ? 4500 : 70;
  Image image = some_image(random, most), want = image, got = image;
  Image pattern(random.between(2, 300), random.between(2, 4));
  pattern.randomize(seed);
  const int32_t reach = seed % 3 ? most + 20 : 12;
  const int32_t x0 = random.between(-20, reach), y0 = random.between(-9, 20);
  const int32_t x1 = seed % 7 ? random.between(-20, reach) : x0, y1 = seed % 11 ? random.between(-9, 20) : y0;

  float corner[4][4];
  for (int k = 0; k < 4; ++k)
    for (int32_t n = 0; n < 4; ++n) corner[n][k] = pattern.at(n % 2, n / 2)[k];
  corner_walk(want, x0, y0, x1, y1, [&](int32_t x, int32_t y, double i, double dx, double j, double dy) {
    const double u = i / dx, v = j / dy;
    for (int k = 0; k < 4; ++k) {
      const auto blend = [&](float top, float bottom) {
        return static_cast<double>(
            static_cast<float>(v * static_cast<double>(bottom) + (1.0 - v) * static_cast<double>(top)));
      };
      want.at(x, y)[k] = static_cast<uint8_t>((1.0 - u) * blend(corner[0][k], corner[2][k]) +
                                              u * blend(corner[1][k], corner[3][k]));
    }
  });
  ASSERT_EQ(BBIDrawGradationBox(got, pattern, x0, y0, x1, y1), 0);
  ASSERT_EQ(got, want) << "BBIDrawGradationBox";
  naive_line_box(want, pattern, true, x0, y0, x1, y1);
  ASSERT_EQ(BBIDrawMultiplyLineBox(got, pattern, x0, y0, x1, y1), 0);
  ASSERT_EQ(got, want) << "BBIDrawMultiplyLineBox";
  naive_line_box(want, pattern, false, x0, y0, x1, y1);
  ASSERT_EQ(BBIDrawExclusiveLineBox(got, pattern, x0, y0, x1, y1), 0);
  ASSERT_EQ(got, want) << "BBIDrawExclusiveLineBox";
  if (image.width() >= 2 && image.height() >= 2) {  // the pattern is the image itself
    naive_line_box(want, want, false, x0, y0, x1, y1);
    BBIDrawExclusiveLineBox(got, got, x0, y0, x1, y1);
    ASSERT_EQ(got, want) << "BBIDrawExclusiveLineBox over its pattern";
  }
}

// 32-bit products, wrapping.
void naive_triangle(Image& image, const int32_t (&p)[6], uint32_t mask, uint32_t colour, bool with_edges) {
  const auto product = [](int32_t a, int32_t b, int32_t c, int32_t d, int32_t e, int32_t f, int32_t g,
                          int32_t h) {
    const auto u = [](int32_t v) { return static_cast<uint32_t>(v); };
    return static_cast<int32_t>((u(a) - u(b)) * (u(c) - u(d)) - (u(e) - u(f)) * (u(g) - u(h)));
  };
  const auto [x1, y1, x2, y2, x3, y3] = p;
  for (int32_t y = std::max(0, std::min({y1, y2, y3})); y < image.height() && y <= std::max({y1, y2, y3});
       ++y)
    for (int32_t x = std::max(0, std::min({x1, x2, x3})); x < image.width() && x <= std::max({x1, x2, x3});
         ++x) {
      const int32_t a = product(x, x1, y, y2, x, x2, y, y1), b = product(x, x2, y, y3, x, x3, y, y2),
                    c = product(x, x3, y, y1, x, x1, y, y3);
      const bool inside = !with_edges ? (a < 0 && b < 0 && c < 0) || (a > 0 && b > 0 && c > 0)
                          : a <= 0    ? b <= 0 && c <= 0
                                      : b >= 0 && c >= 0;
      if (inside) image.set(x, y, masked(image.get(x, y), mask, colour));
    }
}

void check_triangle(Image& image, const int32_t (&p)[6], uint32_t mask) {
  Image want = image, got = image;
  naive_triangle(want, p, mask, 0x55AA33CC, false);
  EXPECT_EQ(BBIDrawTriangle(got, p[0], p[1], p[2], p[3], p[4], p[5], mask, 0x55AA33CC), 0);
  ASSERT_EQ(got, want) << p[0] << ',' << p[1] << ' ' << p[2] << ',' << p[3] << ' ' << p[4] << ',' << p[5];
  naive_triangle(want, p, mask, 0x9900FF11, true);
  EXPECT_EQ(BBIDrawTriangleA(got, p[0], p[1], p[2], p[3], p[4], p[5], mask, 0x9900FF11), 0);
  ASSERT_EQ(got, want) << p[0] << ',' << p[1] << ' ' << p[2] << ',' << p[3] << ' ' << p[4] << ',' << p[5];
}

void check_ellipse(uint32_t seed) {
  SCOPED_TRACE(seed);
  Random random(seed);
  const int32_t most = seed % 40 == 0 ? 4500 : 70;
  Image image = some_image(random, most), want = image, got = image;
  Image palette(random.between(2, 300), random.between(2, 300));
  palette.randomize(seed);
  const int32_t reach = seed % 3 ? most + 20 : 12;
  const int32_t x0 = random.between(-20, reach), y0 = random.between(-9, 20);
  const int32_t x1 = seed % 7 ? random.between(-20, reach) : x0, y1 = seed % 11 ? random.between(-9, 20) : y0;
  const auto naive = [&](Image& colours, bool polar) {
    corner_walk(want, x0, y0, x1, y1, [&](int32_t x, int32_t y, double i, double dx, double j, double dy) {
      const double u = 2 * i / dx - 1, v = static_cast<double>(static_cast<float>(2 * j / dy - 1));
      const double r = std::sqrt(u * u + (polar ? static_cast<double>(static_cast<float>(v * v)) : v * v));
      if (r > 1.0) return;
      double t = 0;
      if (polar) t = v == 0 ? (u < 0 ? 0.5 : 0.0) : std::atan(u / v) * 0.159154976 + (v < 0 ? 0.25 : 0.75);
      want.set(x, y,
               colours.get(static_cast<int32_t>((1.0 - r) * (colours.width() - 1)),
                           std::min(static_cast<int32_t>(t * colours.height()), colours.height() - 1)));
    });
  };
  naive(palette, false);
  ASSERT_EQ(BBIDrawLineCircle(got, palette, x0, y0, x1, y1), 0);
  ASSERT_EQ(got, want) << "BBIDrawLineCircle";
  naive(palette, true);
  ASSERT_EQ(BBIDrawPolaCircle(got, palette, x0, y0, x1, y1), 0);
  ASSERT_EQ(got, want) << "BBIDrawPolaCircle";
  if (image.width() >= 2 && image.height() >= 2) {  // the palette is the image itself
    naive(want, true);
    BBIDrawPolaCircle(got, got, x0, y0, x1, y1);
    ASSERT_EQ(got, want) << "BBIDrawPolaCircle over its palette";
  }
}

TEST(Shapes, EqualTheirFormulas) {
  for (const Backend backend : supported_backends()) {
    const Forced forced(backend);
    SCOPED_TRACE(name_of(backend));
    for (uint32_t seed = 0; seed < 400; ++seed) {
      check_boxes(seed);
      check_corner_boxes(seed);
      check_ellipse(seed);
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

TEST(Shapes, MultiplyAndFoldEveryPairOfBytes) {
  for (const Backend backend : supported_backends()) {
    const Forced forced(backend);
    Image image(256, 256), pattern(256, 2);
    for (int32_t i = 0; i < 256; ++i)
      for (int32_t y = 0; y < 2; ++y) pattern.set(i, y, static_cast<uint32_t>(i) * 0x01010101u);
    BBIDrawMultiplyLineBox(image, pattern, 0, 0, 255, 255);
    for (int32_t y = 0; y < 256; ++y)
      for (int32_t x = 0; x < 256; ++x)
        ASSERT_EQ(image.get(x, y), static_cast<uint32_t>(x * y / 255) * 0x01010101u);
    BBIDrawExclusiveLineBox(image, pattern, 0, 0, 255, 255);
    for (int32_t y = 0; y < 256; ++y)
      for (int32_t x = 0; x < 256; ++x)
        ASSERT_EQ(image.get(x, y), static_cast<uint32_t>(x + y > 255 ? 510 - x - y : x + y) * 0x01010101u);
  }
}

TEST(Shapes, TrianglesAreTheSetOfTheirEdgeTests) {
  Random random(3);
  for (uint32_t seed = 0; seed < 6000; ++seed) {
    Image image = some_image(random, 40);
    // Near, far, and so far that products wrap.
    const int32_t reach[] = {8, 60, 3000, 33000, 70000, 1 << 29};
    int32_t p[6];
    for (int32_t& v : p) v = random.between(-reach[seed % 6], reach[seed % 6]);
    if (seed % 5 == 0) p[4] = 2 * p[2] - p[0], p[5] = 2 * p[3] - p[1];  // collinear
    if (seed % 37 == 0)
      for (int32_t& v : p) v = extreme_values[random.word() % std::size(extreme_values)];
    check_triangle(image, p, some_mask(random));
    if (HasFatalFailure()) return;
  }
}

TEST(Shapes, StopAtTheImageWhateverTheCorners) {
  Random random(4);
  const auto any = [&] {
    return random.word() % 2 ? random.between(-4, 12)
                             : extreme_values[random.word() % std::size(extreme_values)];
  };
  for (int i = 0; i < 20000; ++i) {
    Image image(9, 7, -40), pattern(random.between(0, 5), random.between(0, 5));
    image.fill(1);
    pattern.fill(2);
    const int32_t a = any(), b = any(), c = any(), d = any();
    BBIDrawColorFill(image, a, b, c, d, 0, 3);
    BBIDrawColorTile(image, a, b, c, d, 0xF0, any(), any(), 3, 4, 5, 6);
    BBIDrawBox(image, a, b, c, d, 0, 3, 4, 5, 6);
    EXPECT_EQ(BBIDrawGradationBox(image, pattern, a, b, c, d), pattern.width() < 2 || pattern.height() < 2);
    BBIDrawMultiplyLineBox(image, pattern, a, b, c, d);
    BBIDrawExclusiveLineBox(image, image, a, b, c, d);
    EXPECT_EQ(BBIDrawLineCircle(image, pattern, a, b, c, d), pattern.width() < 2 || pattern.height() < 1);
    EXPECT_EQ(BBIDrawPolaCircle(image, pattern, a, b, c, d), pattern.width() < 2 || pattern.height() < 2);
  }
}

TEST(Shapes, KeepTheirOddities) {
  Image image(10, 10);
  image.fill(0);
  // A box so large that its visible part of the image's size truncates to nothing.
  EXPECT_EQ(BBIDrawColorFill(image, 0, 0, 2000, 10, 0, 7), 1);
  EXPECT_EQ(image.get(0, 0), 0u);
  BBIDrawTriangleA(image, 0, 0, 4, 0, 0, 4, 0, 7);  // without the edge from corner 1 to corner 2
  EXPECT_EQ(image.get(2, 0), 0u);
  EXPECT_EQ(image.get(0, 1), 7u);
  // A column of an ellipse: only its middle touches the rim.
  Image palette(2, 1);
  palette.set(0, 0, 11);
  palette.set(1, 0, 12);
  image.fill(0);
  BBIDrawLineCircle(image, palette, 3, 0, 3, 4);
  for (int32_t y = 0; y < 5; ++y) EXPECT_EQ(image.get(3, y), y == 2 ? 11u : 0u);
}

}  // namespace
}  // namespace tessaro::test
