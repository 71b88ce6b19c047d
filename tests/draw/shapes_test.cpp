// Boxes, tiles, triangles and ellipses against their formulas, pixel by pixel.
#include <gtest/gtest.h>

#include <cmath>

#include "support/models.hpp"

namespace tessaro::test {
namespace {

uint32_t some_mask(Random& random) {
  const uint32_t masks[] = {0, 0x00FFFFFF, 0xFF000000, random.word()};
  return masks[random.word() % 4];
}

// The clip of one axis of a box in plain doubles: the image's own size shrinks with the box.
struct Span {
  int32_t from, size, start, rest;
  Span(int32_t at, int32_t length, int32_t limit, bool single)
      : from(at), size(length), start(0), rest(limit) {
    if (length == 0) return;
    const double exact = static_cast<double>(limit) / length;
    const double ratio = single ? static_cast<double>(static_cast<float>(exact)) : exact;
    if (from < 0) {
      start = static_cast<int32_t>(start - from * ratio);
      rest = static_cast<int32_t>(rest + from * ratio);
      size += from;
      from = 0;
    }
    if (from + size > limit) {
      rest = static_cast<int32_t>((limit - from - size) * ratio + rest);
      size = limit - from;
    }
  }
  bool empty() const { return size < 1 || rest == 0; }
  // The weight of the far colour at a coordinate.
  uint32_t weight(int32_t at, int32_t limit, bool single) const {
    const auto part = [&](int32_t v) {
      return static_cast<double>(static_cast<float>(static_cast<double>(v) / limit));
    };
    const double f = static_cast<double>(at - from) / (size - 1);
    double v = (1.0 - f) * part(start) + f * part(start + rest);
    if (single) v = static_cast<double>(static_cast<float>(v));
    return v > 0 ? static_cast<uint32_t>(std::min(v, 1.0) * 256) : 0;
  }
};

void check_boxes(uint32_t seed) {
  SCOPED_TRACE(seed);
  Random random(seed);
  const bool wide = seed % 40 == 0, high = seed % 40 == 1;
  Image want = some_image(random, wide ? random.between(4000, 8000) : random.between(1, 70),
                          high ? 200 : random.between(1, 12)),
        got = want;
  const int32_t x = random.between(-20, 60), y = random.between(-8, 12),
                w = wide ? random.between(4090, 8100) : random.between(-2, 100),
                h = high ? 190 : random.between(-1, 30), tw = random.between(-1, seed % 80 ? 9 : 5000),
                th = random.between(-1, 5);
  const uint32_t mask = some_mask(random);
  uint32_t c[4];
  for (uint32_t& v : c) v = random.pixel();
  const Span across(x, w, want.width(), false), down(y, h, want.height(), true);
  const bool empty = w == 0 || h == 0 || across.empty() || down.empty();
  const auto compare = [&](const char* name, int32_t status, auto colour) {
    for (int32_t j = down.from; !empty && j < down.from + down.size; ++j)
      for (int32_t i = across.from; i < across.from + across.size; ++i)
        put_masked(want, i, j, mask, colour(i, j));
    EXPECT_EQ(status, empty) << name;
    ASSERT_EQ(got, want) << name;
  };
  compare("BBIDrawColorFill", BBIDrawColorFill(got, x, y, w, h, mask, c[0]),
          [&](int32_t, int32_t) { return c[0]; });
  compare("BBIDrawColorTile", BBIDrawColorTile(got, x, y, w, h, mask, tw, th, c[0], c[1], c[2], c[3]),
          [&](int32_t i, int32_t j) { return c[(i / std::max(tw, 1) & 1) + 2 * (j / std::max(th, 1) & 1)]; });
  compare("BBIDrawBox", BBIDrawBox(got, x, y, w, h, mask, c[0], c[1], c[2], c[3]), [&](int32_t i, int32_t j) {
    const uint32_t a = down.weight(j, want.height(), true), u = across.weight(i, want.width(), false);
    return mixed(mixed(c[0], c[2], a), mixed(c[1], c[3], a), u);
  });
}

// Walks from corner to corner and calls put(x, y, way across, its span, way down, its span) for the pixels inside.
template <class Put>
void corner_walk(Image& image, Ends e, Put put) {
  const int32_t sx = e.x1 > e.x0 ? 1 : -1, sy = e.y1 > e.y0 ? 1 : -1;
  const double dx = e.x1 == e.x0 ? 1.0 : e.x1 - e.x0, dy = e.y1 == e.y0 ? 1.0 : e.y1 - e.y0;
  for (int32_t y = e.y0;; y += sy) {
    for (int32_t x = e.x0;; x += sx) {
      if (inside(image, x, y)) put(x, y, x - e.x0, dx, y - e.y0, dy);
      if (x == e.x1) break;
    }
    if (y == e.y1) break;
  }
}

void naive_gradation(Image& image, Image& pattern, Ends e) {
  corner_walk(image, e, [&](int32_t x, int32_t y, double i, double dx, double j, double dy) {
    const double u = i / dx, v = j / dy;
    for (int k = 0; k < 4; ++k) {
      const auto side = [&](int32_t column) {
        const double top = pattern.at(column, 0)[k], bottom = pattern.at(column, 1)[k];
        return static_cast<double>(static_cast<float>(v * bottom + (1.0 - v) * top));
      };
      image.at(x, y)[k] = static_cast<uint8_t>((1.0 - u) * side(0) + u * side(1));
    }
  });
}

template <bool multiply>
void naive_line_box(Image& image, Image& pattern, Ends e) {
  const double p = pattern.width() - 1;
  uint32_t b = 0;
  int32_t row = INT32_MIN;
  corner_walk(image, e, [&](int32_t x, int32_t y, double i, double dx, double j, double dy) {
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

template <bool polar>
void naive_ellipse(Image& image, Image& palette, Ends e) {
  corner_walk(image, e, [&](int32_t x, int32_t y, double i, double dx, double j, double dy) {
    const double u = 2 * i / dx - 1, v = static_cast<double>(static_cast<float>(2 * j / dy - 1));
    const double r = std::sqrt(u * u + (polar ? static_cast<double>(static_cast<float>(v * v)) : v * v));
    if (r > 1.0) return;
    double t = 0;
    if (polar) t = v == 0 ? (u < 0 ? 0.5 : 0.0) : std::atan(u / v) * 0.159154976 + (v < 0 ? 0.25 : 0.75);
    image.set(x, y,
              palette.get(static_cast<int32_t>((1.0 - r) * (palette.width() - 1)),
                          std::min(static_cast<int32_t>(t * palette.height()), palette.height() - 1)));
  });
}

const struct {
  const char* name;
  int32_t(TESSARO_CALL* call)(ImageRecord*, const ImageRecord*, int32_t, int32_t, int32_t, int32_t);
  void (*naive)(Image&, Image&, Ends);
  int32_t rows;  // that the pattern must have
  bool reads_as_it_goes;
} corner_shapes[] = {
    {"BBIDrawGradationBox", BBIDrawGradationBox, naive_gradation, 2, false},
    {"BBIDrawMultiplyLineBox", BBIDrawMultiplyLineBox, naive_line_box<true>, 2, true},
    {"BBIDrawExclusiveLineBox", BBIDrawExclusiveLineBox, naive_line_box<false>, 2, true},
    {"BBIDrawLineCircle", BBIDrawLineCircle, naive_ellipse<false>, 1, true},
    {"BBIDrawPolaCircle", BBIDrawPolaCircle, naive_ellipse<true>, 2, true},
};

void check_corner_shapes(uint32_t seed) {
  Random random(seed);
  const int32_t most = seed % 40 == 0 ? 8000 : 70, reach = seed % 3 ? most + 20 : 12;
  Image want = some_image(random, random.between(seed % 40 ? 1 : 4000, most), random.between(1, 12)),
        got = want;
  Image pattern(random.between(seed % 8 ? 2 : 0, 300), random.between(seed % 9 ? 1 : 0, seed % 2 ? 2 : 300));
  pattern.randomize(seed);
  Ends e{random.between(-20, reach), random.between(-9, 20), random.between(-20, reach),
         random.between(-9, 20)};
  if (seed % 7 == 0) e.x1 = e.x0;
  if (seed % 11 == 0) e.y1 = e.y0;
  for (const auto& shape : corner_shapes) {
    const bool refused = pattern.width() < 2 || pattern.height() < shape.rows;
    if (!refused) shape.naive(want, pattern, e);
    EXPECT_EQ(shape.call(got, pattern, e.x0, e.y0, e.x1, e.y1), refused);
    ASSERT_EQ(got, want) << shape.name << " seed " << seed;
    if (!shape.reads_as_it_goes || want.width() < 2 || want.height() < 2) continue;
    shape.naive(want, want, e);
    shape.call(got, got, e.x0, e.y0, e.x1, e.y1);
    ASSERT_EQ(got, want) << shape.name << " over its pattern, seed " << seed;
  }
}

TEST(Shapes, EqualTheirFormulas) {
  for (const Forced backend : supported_backends()) {
    for (uint32_t seed = 0; seed < 400; ++seed) {
      const Streamed streamed(seed % 2 ? 64 : never);
      check_boxes(seed);
      check_corner_shapes(seed);
      if (::testing::Test::HasFatalFailure()) return;
    }
    Image image(256, 256), pattern(256, 2);  // every pair of bytes
    for (int32_t i = 0; i < 256; ++i)
      for (int32_t y = 0; y < 2; ++y) pattern.set(i, y, static_cast<uint32_t>(i) * 0x01010101u);
    for (const auto& shape : corner_shapes) {
      Image want = image;
      shape.naive(want, pattern, {0, 0, 255, 255});
      shape.call(image, pattern, 0, 0, 255, 255);
      ASSERT_EQ(image, want) << shape.name;
    }
  }
}

// 32-bit products, wrapping.
void naive_triangle(Image& image, const int32_t (&p)[6], uint32_t mask, uint32_t colour, bool with_edges) {
  const auto [x1, y1, x2, y2, x3, y3] = p;
  const auto edge = [](int32_t x, int32_t y, int32_t px, int32_t py, int32_t qx, int32_t qy) {
    const auto less = [](int32_t a, int32_t b) {
      return static_cast<uint32_t>(a) - static_cast<uint32_t>(b);
    };
    return static_cast<int32_t>(less(x, px) * less(y, qy) - less(x, qx) * less(y, py));
  };
  const int32_t right = std::max({x1, x2, x3}), bottom = std::max({y1, y2, y3});
  for (int32_t y = std::max(0, std::min({y1, y2, y3})); y < image.height() && y <= bottom; ++y)
    for (int32_t x = std::max(0, std::min({x1, x2, x3})); x < image.width() && x <= right; ++x) {
      const int32_t a = edge(x, y, x1, y1, x2, y2), b = edge(x, y, x2, y2, x3, y3),
                    c = edge(x, y, x3, y3, x1, y1);
      const bool drawn = !with_edges ? (a < 0 && b < 0 && c < 0) || (a > 0 && b > 0 && c > 0)
                         : a <= 0    ? b <= 0 && c <= 0
                                     : b >= 0 && c >= 0;
      if (drawn) put_masked(image, x, y, mask, colour);
    }
}

TEST(Shapes, TrianglesAreTheSetOfTheirEdgeTests) {
  Random random(3);
  for (uint32_t seed = 0; seed < 6000; ++seed) {
    Image want = some_image(random, random.between(1, 40), random.between(1, 12)), got = want;
    // Near, far, and so far that products wrap.
    const int32_t reach[] = {8, 60, 3000, 33000, 70000, 1 << 29};
    int32_t p[6];
    for (int32_t& v : p) v = random.between(-reach[seed % 6], reach[seed % 6]);
    if (seed % 5 == 0) p[4] = 2 * p[2] - p[0], p[5] = 2 * p[3] - p[1];  // collinear
    if (seed % 37 == 0)
      for (int32_t& v : p) v = extreme_values[random.word() % std::size(extreme_values)];
    const uint32_t mask = some_mask(random);
    for (const bool with_edges : {false, true}) {
      const uint32_t colour = with_edges ? 0x9900FF11 : 0x55AA33CC;
      naive_triangle(want, p, mask, colour, with_edges);
      EXPECT_EQ((with_edges ? BBIDrawTriangleA : BBIDrawTriangle)(got, p[0], p[1], p[2], p[3], p[4], p[5],
                                                                  mask, colour),
                0);
      ASSERT_EQ(got, want) << "seed " << seed << (with_edges ? " with edges" : "");
    }
  }
}

}  // namespace
}  // namespace tessaro::test
