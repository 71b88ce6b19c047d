#include <gtest/gtest.h>

#include <set>

#include "support/unscaled.hpp"

namespace tessaro::test {
namespace {

constexpr uint32_t key = 0x00FF00FF;

// A literal model, pass by pass and pair by pair.
struct Model {
  Image& p;
  const int32_t w = p.width(), h = p.height();

  template <class Visit>
  void each(Visit visit, int32_t step = 1, int32_t left = 0, int32_t top = 0) {
    for (int32_t y = top; y < h; y += step)
      for (int32_t x = left; x < w; x += step) visit(x, y);
  }
  template <class Visit>
  void four_phases(Visit visit) {
    for (int32_t phase = 0; phase < 4; ++phase) each(visit, 2, phase % 2, phase / 2);
  }

  void outlines(uint32_t op, uint32_t color, uint32_t inner, uint32_t outer) {
    Image old = p;
    each([&](int32_t x, int32_t y) {
      const bool p_key = old.get(x, y) == key;
      if (op == 2 && !p_key) p.set(x, y, color);
      for (const auto& [nx, ny] : {std::pair{x - 1, y}, std::pair{x, y - 1}}) {
        if (nx < 0 || ny < 0 || (old.get(nx, ny) == key) == p_key) continue;
        if (op != 4) p.set(p_key ? x : nx, p_key ? y : ny, op == 2 ? outer : color);
        if (op != 3) p.set(p_key ? nx : x, p_key ? ny : y, op == 2 ? inner : color);
      }
    });
  }

  int32_t small_regions(uint32_t color, int32_t limit) {
    std::set<std::pair<int32_t, int32_t>> seen;
    Image old = p;
    int32_t painted = 0;
    each([&](int32_t x, int32_t y) {
      std::vector<std::pair<int32_t, int32_t>> region;
      const std::function<void(int32_t, int32_t)> grow = [&](int32_t a, int32_t b) {
        if (old.get(a, b) != key || !seen.emplace(a, b).second) return;
        region.emplace_back(a, b);
        for (const auto& [c, d] : neighbours(old, a, b)) grow(c, d);
      };
      grow(x, y);
      if (region.empty() || static_cast<int32_t>(region.size()) > limit) return;
      ++painted;
      for (const auto& [a, b] : region) p.set(a, b, color);
    });
    return painted;
  }

  template <class Valid>
  bool fill(int32_t x, int32_t y, bool by_average, Valid valid) {
    std::vector<uint32_t> colour;
    for (const auto& [a, b] : neighbours(p, x, y))
      if (valid(a, b)) colour.push_back(p.get(a, b));
    const size_t n = colour.size();
    if (n == 0) return false;
    if (by_average) {
      constexpr uint32_t multiplier[] = {0, 256, 128, 85, 64}, bias[] = {0, 0, 0, 3, 2};
      p.set(x, y, per_channel([&](int at) {
              uint32_t sum = bias[n];
              for (const uint32_t c : colour) sum += channel(c, at);
              return sum * multiplier[n] >> 8;
            }));
      return true;
    }
    std::vector<uint32_t> count(n, 1);
    for (size_t a = 0; a < n; ++a)
      for (size_t b = a + 1; b < n; ++b)
        if (colour[a] == colour[b]) count[a] += count[b];
    p.set(x, y, colour[static_cast<size_t>(std::max_element(count.begin(), count.end()) - count.begin())]);
    return true;
  }

  int32_t fill_key(uint32_t excluded, bool by_average) {
    int32_t unfilled = 0;
    four_phases([&](int32_t x, int32_t y) {
      if (p.get(x, y) == key)
        unfilled += !fill(x, y, by_average, [&](int32_t a, int32_t b) {
          return p.get(a, b) != key && p.get(a, b) != excluded;
        });
    });
    return unfilled;
  }

  int32_t fill_grey(uint32_t lowest, uint32_t highest) {
    std::set<std::pair<int32_t, int32_t>> marked;
    each([&](int32_t x, int32_t y) {
      if ((p.get(x, y) & 0xFFFFFF) == (p.get(x, y) & 255) * 0x010101) marked.emplace(x, y);
    });
    for (int32_t before = -1;;) {
      int32_t unfilled = 0;
      four_phases([&](int32_t x, int32_t y) {
        const uint32_t blue = p.get(x, y) & 255;
        if (!marked.count({x, y}) || blue < lowest || blue > highest) return;
        if (fill(x, y, false, [&](int32_t a, int32_t b) { return !marked.count({a, b}); }))
          marked.erase({x, y});
        else
          ++unfilled;
      });
      if (unfilled == 0 || unfilled == before) return unfilled;
      before = unfilled;
    }
  }

  int32_t run(uint32_t op, uint32_t color, uint32_t other, uint32_t x, uint32_t y) {
    if (op >= 2 && op <= 4) outlines(op, color, x, y);
    if (op == 5) return small_regions(color, static_cast<int32_t>(x));
    if (op == 6 || op == 9) return fill_key(color, op == 9);
    if (op == 7) return fill_grey(color & 255, other & 255);
    int32_t painted = 0;
    each([&](int32_t a, int32_t b) {
      const uint32_t c = p.get(a, b);
      const bool grey = channel(c, 16) == channel(c, 0) && channel(c, 8) == channel(c, 0);
      if ((op == 0 && c == other) || (op == 1 && c != other) || (op == 8 && !grey) ||
          (op == 10 && (c & x) == other)) {
        p.set(a, b, color);
        ++painted;
      }
    });
    return op == 8 ? painted : 0;
  }
};

TEST(PaintChoose, EqualsTheModel) {
  Random random(3);
  const uint32_t colours[] = {key, key, key, 0xFF000000, 0xFF808080, 0xFF0000FF, 0x01020304, 0xFF0000FE};
  for (int trial = 0; trial < 3000; ++trial) {
    Image image(random.between(1, 14), random.between(1, 14), trial & 1 ? 0 : -70);
    const int32_t variety = random.between(2, 8);
    for (int32_t y = 0; y < image.height(); ++y)
      for (int32_t x = 0; x < image.width(); ++x)
        image.set(x, y,
                  colours[random.between(0, variety - 1) * (trial % 7 == 0 ? random.between(0, 1) : 1)]);
    Image want = image;
    const auto op = static_cast<uint32_t>(trial % 12);
    const auto limit = static_cast<uint32_t>(random.between(-1, 9));
    const uint32_t color = op == 7 ? 0xAAAAAA10 : colours[random.between(2, 7)],
                   other = op == 7    ? 0xBBBBBB80
                           : op == 10 ? 0xFF0000F0
                                      : key,
                   x = op == 5    ? limit
                       : op == 10 ? 0xFFFFFFF0
                                  : 0x11111111;
    ASSERT_EQ(BBIPaintChoose(image, op, color, other, x, 0x22222222),
              Model{want}.run(op, color, other, x, 0x22222222))
        << "op " << op;
    ASSERT_EQ(image, want) << "op " << op << " limit " << limit;
  }
}

TEST(PaintChoose, FillsALongCorridorInLinearTime) {
  // One coloured pixel at the end of a grey corridor that winds through the whole image: thousands of passes.
  Image image(1001, 1001);
  image.fill(0xFF646464);
  for (int32_t y = 1; y < 1001; y += 2)
    for (int32_t x = 0; x < 1001; ++x)
      if (x != (y % 4 == 1 ? 1000 : 0)) image.set(x, y, 0xFFC8C8C8);  // walls: grey, but out of range
  image.set(0, 0, 0xFF0000FF);
  EXPECT_EQ(BBIPaintChoose(image, 7, 0, 150, 0, 0), 0);
  EXPECT_EQ(image.get(1000, 1000), 0xFF0000FFu);
  EXPECT_EQ(image.get(5, 1), 0xFFC8C8C8u);
}

TEST(PaintChoose, LeavesTheImageForOtherOperationsAndEmptyImages) {
  Image image(5, 5), empty(0, 3);
  image.randomize(1);
  const Image before = image;
  for (const uint32_t op : {11u, 0xFFFFFFFFu, 0x80000000u})
    EXPECT_EQ(BBIPaintChoose(image, op, 1, 2, 3, 4), 0);
  EXPECT_EQ(image, before);
  for (uint32_t op = 0; op < 12; ++op) EXPECT_EQ(BBIPaintChoose(empty, op, 1, 2, 3, 4), 0);
}

}  // namespace
}  // namespace tessaro::test
