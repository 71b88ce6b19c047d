#include <gtest/gtest.h>

#include <array>
#include <deque>

#include "support/unscaled.hpp"

namespace tessaro::test {
namespace {

using Get = std::function<uint32_t(int32_t)>;
using Put = std::function<void(int32_t, uint32_t)>;

template <class Pixels>
uint32_t mean_of(const Pixels& pixels) {
  return per_channel([&](int at) {
    uint32_t sum = 0;
    for (const uint32_t p : pixels) sum += channel(p, at);
    return sum / static_cast<uint32_t>(pixels.size());
  });
}

// The window as a queue, one pixel after another.
void blur_model(int32_t n, const Get& get, const Put& put, int32_t radius, int32_t loop) {
  const int32_t r = std::min({radius, n / 2 - 1, 127});
  std::deque<uint32_t> window;
  for (int32_t i = loop ? -2 * r : -r; i < n; ++i) {
    if (loop || i < n - r) window.push_back(get((i + r + n) % n));
    if (i >= 0) put(i, mean_of(window));
    if (i >= (loop ? 0 : r)) window.pop_front();
  }
}

// Sub-step by sub-step.
void scale_model(int32_t n, const Get& get, const Put& put, int32_t num, int32_t den) {
  num = std::min(num, 128);
  den = std::min(den, 128);
  const bool forward = num < den;
  int32_t current = forward ? 0 : std::max(0, den * n / num - 1), used = 0;
  uint32_t pixel = get(current);
  for (int32_t i = 0; i < n; ++i) {
    std::vector<uint32_t> steps;
    for (int32_t step = 0; step < den; ++step) {
      if (used == num && current != (forward ? n - 1 : 0)) {
        pixel = get(current += forward ? 1 : -1);
        used = 0;
      }
      steps.push_back(pixel);
      if (used < num) ++used;
    }
    put(forward ? i : n - 1 - i, mean_of(steps));
  }
}

struct Row {
  const char* name;
  std::function<int32_t(ImageRecord*, ImageRecord*, const Unscaled&, int32_t, int32_t)> run;
  bool columns, loop, scales;
};
#define CALL(Name, ...)                                                                \
  [](auto* d, auto* s, const Unscaled& c, int32_t a, [[maybe_unused]] int32_t b) {     \
    return Name(d, s, c.dx, c.dy, c.w, c.h, c.sx, c.sy, a __VA_OPT__(, ) __VA_ARGS__); \
  }
const Row rows[] = {{"BBIBltUBlur", CALL(BBIBltUBlur), false, false, false},
                    {"BBIBltVBlur", CALL(BBIBltVBlur), true, false, false},
                    {"BBIBltUBlurLoop", CALL(BBIBltUBlurLoop), false, true, false},
                    {"BBIBltVBlurLoop", CALL(BBIBltVBlurLoop), true, true, false},
                    {"BBIBltUScale", CALL(BBIBltUScale, b), false, false, true},
                    {"BBIBltVScale", CALL(BBIBltVScale, b), true, false, true}};

TEST(Blur, AndScaleEqualTheModelApartAndOverlapping) {
  Random random(7);
  for (const Row& row : rows)
    for (const Forced backend : supported_backends())
      for (int trial = 0; trial < 200; ++trial) {
        const int32_t w = random.between(1, trial % 9 == 0 ? 320 : 40),
                      h = random.between(1, trial % 9 == 1 ? 320 : 40), n = row.columns ? h : w;
        // Rows of some destinations run into one another.
        const int32_t pitch = trial % 8 == 5 ? 2 * w : 4 * (w + 9) + random.between(0, 5);
        Image a(w + 9, h + 9, random.between(0, 1) ? pitch : -pitch,
                static_cast<size_t>(random.between(0, 3)));
        a.randomize(random.word());
        Image b(w + 9, h + 9);
        b.randomize(random.word());
        if (random.word() % 3 == 0)  // the largest sums, and those one below
          for (Image* image : {&a, &b}) {
            image->fill(0xFFFFFFFF);
            for (int n = 0; n < 5; ++n)
              image->set(random.between(0, w + 8), random.between(0, h + 8), 0xFEFEFEFE);
          }
        Image want = a;
        const bool same = trial % 3 != 0;  // half of these in place or below itself
        const int32_t dx = random.between(0, 9), dy = random.between(0, 9);
        const Unscaled c = {
            dx, dy, w, h, trial % 2 ? dx : random.between(0, 9), trial % 4 == 1 ? dy : random.between(0, 9)};
        const int32_t most = trial % 3 == 0 ? 200 : row.scales ? 6 : 20;
        const int32_t first = random.between(1, most),
                      second = row.scales ? random.between(1, most) : row.loop;
        if (!row.scales && n < 4) continue;
        ASSERT_EQ(row.run(a, same ? a : b, c, first, second), 0);
        Image& from = same ? want : b;
        for (int32_t line = 0; line < (row.columns ? w : h); ++line)
          (row.scales ? scale_model : blur_model)(
              n,
              [&](int32_t i) {
                return row.columns ? from.get(c.sx + line, c.sy + i) : from.get(c.sx + i, c.sy + line);
              },
              [&](int32_t i, uint32_t v) {
                row.columns ? want.set(dx + line, dy + i, v) : want.set(dx + i, dy + line, v);
              },
              first, second);
        ASSERT_EQ(a, want) << row.name << ' ' << "trial " << trial << ": " << w << 'x' << h << " to " << dx
                           << ',' << dy << " from " << c.sx << ',' << c.sy << ", " << first << ", " << second
                           << ", one image " << same;
      }
}

TEST(Blur, WithoutAWindowCopiesAndRefusesBadRatios) {
  for (const Row& row : rows) {
    Image d(9, 9), s(9, 9);
    s.randomize(3);
    EXPECT_EQ(row.run(d, s, {9, 0, 5, 5, 0, 0}, 2, 2), 1);
    if (row.scales) {
      EXPECT_EQ(row.run(d, s, {0, 0, 4, 4, 0, 0}, 0, 5), 1);
      EXPECT_EQ(row.run(d, s, {0, 0, 4, 4, 0, 0}, 5, INT32_MIN), 1);
      continue;
    }
    for (const int32_t size : {2, 3, 9}) {
      d.fill(0);
      EXPECT_EQ(row.run(d, s, {0, 0, size, size, 0, 0}, size == 9 ? INT32_MIN : INT32_MAX, 0), 0);
      for (int32_t i = 0; i < 9; ++i) EXPECT_EQ(d.get(i, i), i < size ? s.get(i, i) : 0u);
    }
  }
}

TEST(HalfSize, EqualsTheModelAndRefusesWhatLeavesTheImages) {
  for (const Forced backend : supported_backends())
    for (int32_t w = 1; w <= 40; ++w)
      for (int32_t shift = -3; shift <= 3; ++shift) {
        // One image: the destination before, on and behind its source.
        Image a(2 * w + 6, 7, 0, static_cast<size_t>(w % 4));
        a.randomize(static_cast<uint32_t>(w));
        Image model = a;
        ASSERT_EQ(BBIBltHalfSize(a, a, 3 + shift, 1, w, 3, 3, 0), 0);
        for (int32_t y = 0; y < 3; ++y)
          for (int32_t x = 0; x < w; ++x) {
            const auto from = [&](int32_t k) { return model.get(3 + 2 * x + k % 2, 2 * y + k / 2); };
            model.set(3 + shift + x, 1 + y, mean_of(std::array{from(0), from(1), from(2), from(3)}));
          }
        ASSERT_EQ(a, model) << w << ' ' << shift;
      }
  Image d(4, 4), s(8, 8);
  EXPECT_EQ(BBIBltHalfSize(d, s, 0, 0, 4, 4, 0, 0), 0);
  for (const auto& r : {std::array<int32_t, 6>{0, 0, 4, 4, 1, 0},
                        {1, 0, 4, 4, 0, 0},
                        {0, 0, 0, 4, 0, 0},
                        {-1, 0, 2, 2, 0, 0},
                        {0, 0, 4, INT32_MAX, 0, 0},
                        {0, 0, 2, 2, 0, INT32_MIN}})
    EXPECT_EQ(BBIBltHalfSize(d, s, r[0], r[1], r[2], r[3], r[4], r[5]), 1);
}

}  // namespace
}  // namespace tessaro::test
