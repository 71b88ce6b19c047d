#include <gtest/gtest.h>

#include <array>
#include <functional>

#include "support/images.hpp"

namespace tessaro::test {
namespace {

constexpr uint32_t key = 0x00FF00FF;

// A literal model on a plain grid, pass by pass and pair by pair.
struct Grid {
  int32_t w, h;
  std::vector<uint32_t> p;
  explicit Grid(Image& image) : w(image.width()), h(image.height()) {
    for (int32_t y = 0; y < h; ++y)
      for (int32_t x = 0; x < w; ++x) p.push_back(image.get(x, y));
  }
  uint32_t& at(int32_t x, int32_t y) { return p[static_cast<size_t>(y * w + x)]; }
  bool inside(int32_t x, int32_t y) const { return x >= 0 && y >= 0 && x < w && y < h; }

  void outlines(int op, uint32_t color, uint32_t inner, uint32_t outer) {
    Grid old = *this;
    for (int32_t y = 0; y < h; ++y)
      for (int32_t x = 0; x < w; ++x) {
        const bool p_key = old.at(x, y) == key;
        if (op == 2 && !p_key) at(x, y) = color;
        for (const auto& [nx, ny] : {std::pair{x - 1, y}, std::pair{x, y - 1}}) {
          if (!inside(nx, ny) || (old.at(nx, ny) == key) == p_key) continue;
          uint32_t& outer_pixel = p_key ? at(x, y) : at(nx, ny);
          uint32_t& inner_pixel = p_key ? at(nx, ny) : at(x, y);
          if (op == 3) outer_pixel = color;
          if (op == 4) inner_pixel = color;
          if (op == 2) outer_pixel = outer, inner_pixel = inner;
        }
      }
  }

  int32_t small_regions(uint32_t color, int32_t limit) {
    std::vector<char> seen(p.size());
    Grid old = *this;
    int32_t painted = 0;
    for (int32_t y = 0; y < h; ++y)
      for (int32_t x = 0; x < w; ++x) {
        std::vector<std::pair<int32_t, int32_t>> region;
        const std::function<void(int32_t, int32_t)> grow = [&](int32_t a, int32_t b) {
          if (!inside(a, b) || old.at(a, b) != key || seen[static_cast<size_t>(b * w + a)]++) return;
          region.emplace_back(a, b);
          grow(a - 1, b), grow(a + 1, b), grow(a, b - 1), grow(a, b + 1);
        };
        grow(x, y);
        if (region.empty() || static_cast<int32_t>(region.size()) > limit) continue;
        ++painted;
        for (const auto& [a, b] : region) at(a, b) = color;
      }
    return painted;
  }

  template <class Visit>
  void four_phases(Visit visit) {
    for (int32_t row = 0; row < 2; ++row)
      for (int32_t column = 0; column < 2; ++column)
        for (int32_t y = row; y < h; y += 2)
          for (int32_t x = column; x < w; x += 2) visit(x, y);
  }

  template <class Valid>
  bool majority(int32_t x, int32_t y, Valid valid) {
    const std::pair<int32_t, int32_t> at_[] = {{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}};
    int count[4] = {};
    uint32_t colour[4] = {};
    for (int i = 0; i < 4; ++i)
      if (inside(at_[i].first, at_[i].second)) {
        colour[i] = at(at_[i].first, at_[i].second);
        count[i] = valid(at_[i].first, at_[i].second);
      }
    for (const auto& [a, b] : {std::pair{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}})
      if (colour[a] == colour[b] && count[a] && count[b]) count[a] += count[b];
    int best = 0;
    for (int i = 1; i < 4; ++i)
      if (count[i] > count[best]) best = i;
    if (count[best]) at(x, y) = colour[best];
    return count[best] != 0;
  }

  int32_t fill_key(uint32_t excluded, bool by_average) {
    int32_t unfilled = 0;
    four_phases([&](int32_t x, int32_t y) {
      if (at(x, y) != key) return;
      const auto valid = [&](int32_t a, int32_t b) { return at(a, b) != key && at(a, b) != excluded; };
      if (!by_average) {
        unfilled += !majority(x, y, valid);
        return;
      }
      uint32_t n = 0, sums[4] = {};
      for (const auto& [a, b] : {std::pair{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}})
        if (inside(a, b) && valid(a, b)) {
          ++n;
          for (int c = 0; c < 4; ++c) sums[c] += at(a, b) >> (8 * c) & 255;
        }
      constexpr std::array<std::array<uint32_t, 2>, 5> reciprocal{
          {{0, 0}, {256, 0}, {128, 0}, {85, 3}, {64, 2}}};
      uint32_t mean = 0;
      for (int c = 0; c < 4; ++c) mean |= ((sums[c] + reciprocal[n][1]) * reciprocal[n][0] >> 8) << (8 * c);
      n ? void(at(x, y) = mean) : void(++unfilled);
    });
    return unfilled;
  }

  int32_t fill_grey(uint32_t lowest, uint32_t highest) {
    std::vector<char> mark(p.size());
    const auto marked = [&](int32_t x, int32_t y) -> char& { return mark[static_cast<size_t>(y * w + x)]; };
    for (int32_t y = 0; y < h; ++y)
      for (int32_t x = 0; x < w; ++x) marked(x, y) = (at(x, y) & 0xFFFFFF) == (at(x, y) & 255) * 0x010101;
    for (int32_t before = -1;;) {
      int32_t unfilled = 0;
      four_phases([&](int32_t x, int32_t y) {
        if (!marked(x, y) || (at(x, y) & 255) < lowest || (at(x, y) & 255) > highest) return;
        if (majority(x, y, [&](int32_t a, int32_t b) { return !marked(a, b); }))
          marked(x, y) = 0;
        else
          ++unfilled;
      });
      if (unfilled == 0 || unfilled == before) return unfilled;
      before = unfilled;
    }
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
    Grid model(image);
    const uint32_t color = colours[random.between(2, 7)], op = static_cast<uint32_t>(trial % 12);
    const int32_t limit = random.between(-1, 9);
    int32_t want = 0, got = 0;
    switch (op) {
      case 2:
      case 3:
      case 4:
        model.outlines(static_cast<int>(op), color, 0x11111111, 0x22222222);
        got = BBIPaintChoose(image, op, color, key, 0x11111111, 0x22222222);
        break;
      case 5:
        want = model.small_regions(color, limit);
        got = BBIPaintChoose(image, op, color, key, static_cast<uint32_t>(limit), 0);
        break;
      case 6:
      case 9:
        want = model.fill_key(color, op == 9);
        got = BBIPaintChoose(image, op, color, key, 0, 0);
        break;
      case 7:
        want = model.fill_grey(0x10, 0x80);
        got = BBIPaintChoose(image, op, 0xAAAAAA10, 0xBBBBBB80, 0, 0);
        break;
      default:
        for (uint32_t& c : model.p) {
          const bool grey = (c >> 16 & 255) == (c & 255) && (c >> 8 & 255) == (c & 255);
          want += op == 8 && !grey;
          if (op == 0   ? c == key
              : op == 1 ? c != key
              : op == 8 ? !grey
                        : op == 10 && (c & 0xFFFFFFF0) == 0xFF0000F0)
            c = color;
        }
        got = BBIPaintChoose(image, op, color, op == 10 ? 0xFF0000F0 : key, 0xFFFFFFF0, 0);
    }
    ASSERT_EQ(got, want) << "op " << op;
    ASSERT_EQ(Grid(image).p, model.p) << "op " << op << " limit " << limit << '\n' << image;
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
