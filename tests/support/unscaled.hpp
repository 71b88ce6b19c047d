// Unscaled operations against a model that walks pixel by pixel: a row a rule, and the comparisons that every row goes
// through.
#pragma once

#include <functional>

#include "support/models.hpp"

namespace tessaro::test {

struct Unscaled {
  int32_t dx, dy, w, h, sx, sy;
};
struct UnscaledRow {
  std::string name;
  std::function<int32_t(ImageRecord*, ImageRecord*, const Unscaled&)> run;
  std::function<uint32_t(uint32_t d, uint32_t s)> rule;
  bool alone = false;  // without a source
};
#define TESSARO_UNSCALED_CALL(Name, ...)                                            \
  [=](auto* d, auto* s, const Unscaled& c) {                                        \
    return Name(d, s, c.dx, c.dy, c.w, c.h, c.sx, c.sy __VA_OPT__(, ) __VA_ARGS__); \
  }

// The pixel at column 0, row 0 of every source.
inline constexpr uint32_t first_of_source = 0x80402010;

// What is left of any rectangle is what the clip of single pixels keeps, in 64 bits. src may be dst.
inline void compare(const UnscaledRow& row, Image& dst, Image& src, const Unscaled& c) {
  Image want = dst;
  Image& from = &src == &dst || row.alone ? want : src;
  const int64_t apart_x = row.alone ? 0 : int64_t{c.sx} - c.dx,
                apart_y = row.alone ? 0 : int64_t{c.sy} - c.dy;
  int32_t status = 1;
  for_pixels(dst, [&](int32_t x, int32_t y) {
    const int64_t i = int64_t{x} - c.dx, j = int64_t{y} - c.dy, u = x + apart_x, v = y + apart_y;
    if (i < 0 || j < 0 || i >= c.w || j >= c.h || !inside(from, u, v)) return;
    status = 0;
    const uint32_t s = from.get(static_cast<int32_t>(u), static_cast<int32_t>(v));
    want.set(x, y, row.rule(want.get(x, y), s));
  });
  ASSERT_EQ(row.run(dst, src, c), status) << row.name;
  ASSERT_EQ(dst, want) << row.name << ": " << c.w << " x " << c.h << " to " << c.dx << ',' << c.dy << " from "
                       << c.sx << ',' << c.sy << ", one image " << (&src == &dst);
}

// Every pair of bytes in every channel, and every alpha of the source with pairs of a coarser grid.
inline void compare_every_pair_of_bytes(const std::vector<UnscaledRow>& rows) {
  for (const Forced backend : supported_backends())
    for (const UnscaledRow& row : rows)
      for (const bool alphas : {false, true}) {
        Image d(256, 256), s(256, 257);
        s.fill(first_of_source);
        for_pixels(d, [&](int32_t x, int32_t y) {
          const auto a = static_cast<uint32_t>(x), b = static_cast<uint32_t>(y);
          d.set(x, y, alphas ? (a * 17 & 255) * 0x010101 | (255 - a) << 24 : a * 0x01010101);
          s.set(x, y + 1, alphas ? (a * 5 & 255) * 0x010101 | b << 24 : b * 0x01010101);
        });
        s.set(3, 1, first_of_source);
        compare(row, d, s, {0, 0, 256, 256, 0, 1});
        if (testing::Test::HasFatalFailure()) return;
      }
}

// Widths around a vector, any alignment and pitch; within one image the destination lies up to a vector and more before
// or behind its source.
inline void compare_every_shape(const std::vector<UnscaledRow>& rows) {
  for (const Forced backend : supported_backends()) {
    Random random(9);
    for (const UnscaledRow& row : rows)
      for (int32_t w = 1; w <= 70 && !testing::Test::HasFatalFailure(); ++w) {
        const int32_t row_bytes = 4 * (w + 24), pitches[] = {-row_bytes - w % 5, 0, row_bytes + 3};
        Image a(w + 24, 6, pitches[w % 3], static_cast<size_t>(w % 4)), b(w + 24, 6);
        a.randomize(random.word()).set(0, 0, first_of_source);
        b.randomize(random.word()).set(0, 0, first_of_source);
        b.set(5, 2, first_of_source);
        const bool same = w % 2;
        const int32_t sy = random.between(-1, 2), dy = same && w % 4 == 1 ? sy : random.between(-1, 2);
        compare(row, a, same ? a : b, {random.between(-2, 26), dy, w, 4, random.between(-2, 26), sy});
      }
  }
}

inline void compare_extreme_rectangles(const std::vector<UnscaledRow>& rows) {
  Image d(7, 5), s(6, 9, -28);
  s.randomize(2).set(0, 0, first_of_source);
  for (const UnscaledRow& row : rows)
    for (const int32_t a : extreme_values)
      for (const int32_t b : extreme_values)
        for (int place = 0; place < 6 && !testing::Test::HasFatalFailure(); ++place) {
          int32_t r[] = {1, 1, 3, 3, 1, 1};
          r[place] = a;
          r[(place + 1 + (b & 1)) % 6] = b;
          compare(row, d.randomize(1), s, {r[0], r[1], r[2], r[3], r[4], r[5]});
        }
}

}  // namespace tessaro::test
