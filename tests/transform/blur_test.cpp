#include <gtest/gtest.h>

#include <deque>

#include "support/images.hpp"
#include "transform/blur.hpp"

namespace tessaro::test {
namespace {

using Blur = decltype(&BBIBltUBlur);

struct BlurCase {
  const char* name;
  Blur run;
  bool columns, loop;
};
constexpr BlurCase blurs[] = {{"BBIBltUBlur", BBIBltUBlur, false, false},
                              {"BBIBltVBlur", BBIBltVBlur, true, false},
                              {"BBIBltUBlurLoop", BBIBltUBlurLoop, false, true},
                              {"BBIBltVBlurLoop", BBIBltVBlurLoop, true, true}};

// The window as a queue, one pixel after another; rectangles inside the images.
void blur_model(Image& dst, Image& src, int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                int32_t radius, bool columns, bool loop) {
  const int32_t n = columns ? h : w, lines = columns ? w : h;
  int32_t r = std::min(radius, n / 2 - 1);
  if (r >= 128) r = 127;
  for (int32_t line = 0; line < lines; ++line) {
    const auto from = [&](int32_t i) {
      return columns ? src.get(sx + line, sy + i) : src.get(sx + i, sy + line);
    };
    std::deque<uint32_t> window;
    for (int32_t i = loop ? -2 * r : -r; i < n; ++i) {
      if (loop || i < n - r) window.push_back(from((i + r + n) % n));
      if (i >= 0) {
        uint32_t mean = 0;
        for (int shift = 0; shift < 32; shift += 8) {
          uint32_t sum = 0;
          for (const uint32_t p : window) sum += p >> shift & 255;
          mean |= sum / static_cast<uint32_t>(window.size()) << shift;
        }
        columns ? dst.set(dx + line, dy + i, mean) : dst.set(dx + i, dy + line, mean);
      }
      if (i >= (loop ? 0 : r)) window.pop_front();
    }
  }
}

TEST(Blur, EqualsTheModelApartAndOverlapping) {
  Random random(7);
  for (const BlurCase& blur : blurs)
    for (const Backend backend : supported_backends()) {
      Forced forced(backend);
      for (int trial = 0; trial < 150; ++trial) {
        const int32_t w = random.between(1, trial % 9 == 0 ? 320 : 40),
                      h = random.between(1, trial % 9 == 1 ? 320 : 40);
        const int32_t pitch = 4 * (w + 9) + random.between(0, 5), sign = random.between(0, 1) ? 1 : -1;
        Image a(w + 9, h + 9, sign * pitch, static_cast<size_t>(random.between(0, 3)));
        a.randomize(random.word());
        Image b(w + 9, h + 9);
        b.randomize(random.word());
        Image a_model = a, b_model = b;
        const bool same = trial % 3 != 0;  // half of these in place or below itself
        const int32_t dx = random.between(0, 9), dy = random.between(0, 9);
        const int32_t sx = trial % 2 ? dx : random.between(0, 9),
                      sy = trial % 4 == 1 ? dy : random.between(0, 9);
        const int32_t radius = trial % 5 == 0 ? INT32_MAX : random.between(1, 20);
        if ((blur.columns ? h : w) < 4) continue;
        ASSERT_EQ(blur.run(a, same ? a : b, dx, dy, w, h, sx, sy, radius), 0);
        blur_model(a_model, same ? a_model : b_model, dx, dy, w, h, sx, sy, radius, blur.columns, blur.loop);
        ASSERT_EQ(a, a_model) << blur.name << ' ' << name_of(backend) << ' ' << w << 'x' << h << " to " << dx
                              << ',' << dy << " from " << sx << ',' << sy << " radius " << radius << " same "
                              << same;
      }
    }
}

TEST(Blur, WithoutAWindowCopies) {
  for (const BlurCase& blur : blurs)
    for (const int32_t size : {2, 3, 9}) {
      Image d(9, 9), s(9, 9);
      d.fill(0);
      s.randomize(3);
      const int32_t radius = size == 9 ? INT32_MIN : 50;
      EXPECT_EQ(blur.run(d, s, 0, 0, size, size, 0, 0, radius), 0);
      for (int32_t i = 0; i < 9; ++i) EXPECT_EQ(d.get(i, i), i < size ? s.get(i, i) : 0u);
    }
  Image d(9, 9);
  EXPECT_EQ(BBIBltUBlur(d, d, 9, 0, 5, 5, 0, 0, 2), 1);
}

TEST(Divider, IsExactForEveryWindow) {
  // Wide flat images reach the largest sums of every count, ramps the remainders.
  Image d(600, 1), s(600, 1);
  for (const uint32_t colour : {0xFFFFFFFFu, 0xFEFDFCFBu, 0x01020380u})
    for (int32_t radius = 1; radius <= 127; ++radius) {
      s.fill(colour);
      BBIBltUBlur(d, s, 0, 0, 600, 1, 0, 0, radius);
      for (int32_t x = 0; x < 600; ++x) ASSERT_EQ(d.get(x, 0), colour) << radius << ' ' << x;
      // One less in one pixel of the window brings every mean one down.
      s.set(300, 0, colour - 0x01010101);
      BBIBltUBlur(d, s, 0, 0, 600, 1, 0, 0, radius);
      ASSERT_EQ(d.get(300 - radius, 0), colour - 0x01010101);
      ASSERT_EQ(d.get(300 + radius, 0), colour - 0x01010101);
      ASSERT_EQ(d.get(301 + radius, 0), colour);
    }
}

// Sub-step by sub-step.
void scale_model(Image& dst, Image& src, int32_t dx, int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy,
                 int32_t num, int32_t den, bool columns) {
  num = std::min(num, 128);
  den = std::min(den, 128);
  const int32_t n = columns ? h : w, lines = columns ? w : h;
  for (int32_t line = 0; line < lines; ++line) {
    int32_t current = num < den ? 0 : std::max(0, den * n / num - 1), used = 0;
    const auto read = [&] {
      return columns ? src.get(sx + line, sy + current) : src.get(sx + current, sy + line);
    };
    uint32_t pixel = read();
    for (int32_t i = 0; i < n; ++i) {
      uint32_t sums[4] = {}, mean = 0;
      for (int32_t step = 0; step < den; ++step) {
        if (used == num && current != (num < den ? n - 1 : 0)) {
          current += num < den ? 1 : -1;
          pixel = read();
          used = 0;
        }
        for (int c = 0; c < 4; ++c) sums[c] += pixel >> (8 * c) & 255;
        if (used < num) ++used;
      }
      for (int c = 0; c < 4; ++c) mean |= sums[c] / static_cast<uint32_t>(den) << (8 * c);
      const int32_t to = num < den ? i : n - 1 - i;
      columns ? dst.set(dx + line, dy + to, mean) : dst.set(dx + to, dy + line, mean);
    }
  }
}

TEST(OneAxisScale, EqualsTheModel) {
  Random random(11);
  for (const Backend backend : supported_backends()) {
    Forced forced(backend);
    for (int trial = 0; trial < 400; ++trial) {
      const bool columns = trial & 1, same = trial & 2;
      const int32_t w = random.between(1, 40), h = random.between(1, 40);
      Image a(w + 5, h + 5, random.between(0, 1) ? 0 : -4 * (w + 6)), b(w + 5, h + 5);
      a.randomize(random.word());
      b.randomize(random.word());
      Image a_model = a, b_model = b;
      const int32_t dx = random.between(0, 5), dy = random.between(0, 5);
      const int32_t sx = trial & 4 ? dx : random.between(0, 5), sy = trial & 8 ? dy : random.between(0, 5);
      const int32_t limit = trial % 5 == 0 ? 200 : 6;
      const int32_t num = random.between(1, limit), den = random.between(1, limit);
      const auto run = columns ? BBIBltVScale : BBIBltUScale;
      ASSERT_EQ(run(a, same ? a : b, dx, dy, w, h, sx, sy, num, den), 0);
      scale_model(a_model, same ? a_model : b_model, dx, dy, w, h, sx, sy, num, den, columns);
      ASSERT_EQ(a, a_model) << name_of(backend) << ' ' << w << 'x' << h << ' ' << num << '/' << den
                            << " columns " << columns << " same " << same;
    }
  }
  Image image(4, 4);
  for (const auto run : {BBIBltUScale, BBIBltVScale}) {
    EXPECT_EQ(run(image, image, 0, 0, 4, 4, 0, 0, 0, 5), 1);
    EXPECT_EQ(run(image, image, 0, 0, 4, 4, 0, 0, 5, INT32_MIN), 1);
  }
}

TEST(HalfSize, EqualsTheModelAndRefusesWhatLeavesTheImages) {
  for (const Backend backend : supported_backends()) {
    Forced forced(backend);
    for (int32_t w = 1; w <= 40; ++w)
      for (int32_t shift = -3; shift <= 3; ++shift) {
        // One image: the destination before, on and behind its source.
        Image a(2 * w + 6, 7, 0, static_cast<size_t>(w % 4));
        a.randomize(static_cast<uint32_t>(w));
        Image model = a;
        ASSERT_EQ(BBIBltHalfSize(a, a, 3 + shift, 1, w, 3, 3, 0), 0);
        for (int32_t y = 0; y < 3; ++y)
          for (int32_t x = 0; x < w; ++x) {
            uint32_t mean = 0;
            for (int c = 0; c < 32; c += 8) {
              uint32_t sum = 0;
              for (int k = 0; k < 4; ++k) sum += model.get(3 + 2 * x + (k & 1), 2 * y + (k >> 1)) >> c & 255;
              mean |= sum / 4 << c;
            }
            model.set(3 + shift + x, 1 + y, mean);
          }
        ASSERT_EQ(a, model) << name_of(backend) << ' ' << w << ' ' << shift;
      }
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
