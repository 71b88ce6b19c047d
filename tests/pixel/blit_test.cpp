#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "support/images.hpp"

namespace tessaro::test {
namespace {

using Two =
    std::function<int32_t(ImageRecord*, ImageRecord*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t)>;
using PixelRule = std::function<uint32_t(uint32_t d, uint32_t s)>;

// A rule of bytes as a rule of pixels.
PixelRule per_byte(int (*f)(int d, int s)) {
  return [f](uint32_t d, uint32_t s) {
    uint32_t out = 0;
    for (int at = 0; at < 32; at += 8)
      out |= static_cast<uint32_t>(f(static_cast<int>(d >> at & 255), static_cast<int>(s >> at & 255)) & 255)
             << at;
    return out;
  };
}
PixelRule weighted(std::function<int(int a)> of_source, std::function<int(int a)> of_dest) {
  return [=](uint32_t d, uint32_t s) {
    const int a = static_cast<int>(s >> 24);
    uint32_t out = 0;
    for (int at = 0; at < 32; at += 8)
      out |= static_cast<uint32_t>((static_cast<int>(s >> at & 255) * of_source(a) +
                                    static_cast<int>(d >> at & 255) * of_dest(a)) >>
                                   8)
             << at;
    return out;
  };
}

struct Row {
  const char* name;
  Two run;
  PixelRule rule;
};

#define CALL(Name, ...)                                                                          \
  [](auto* d, auto* s, int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy) { \
    return Name(d, s, dx, dy, cx, cy, sx, sy __VA_OPT__(, ) __VA_ARGS__);                        \
  }

// The pixel at column 0, row 0 of every source below.
constexpr uint32_t key = 0x80402010;

std::vector<Row> rows() {
  std::vector<Row> all = {
      {"Blt", CALL(BBIBlt), [](uint32_t, uint32_t s) { return s; }},
      {"Add", CALL(BBIBltAdd), per_byte([](int d, int s) { return std::min(d + s, 255); })},
      {"Mul", CALL(BBIBltMul), per_byte([](int d, int s) { return (d * s + 255) >> 8; })},
      {"Sub", CALL(BBIBltSub), per_byte([](int d, int s) { return std::max(d - s, 0); })},
      {"Xor", CALL(BBIBltXor), per_byte([](int d, int s) { return std::abs(d - s); })},
      {"Xor2", CALL(BBIBltXor2), per_byte([](int d, int s) { return (d - s + 128 + 256) % 256; })},
      {"Xor3", CALL(BBIBltXor3), per_byte([](int d, int s) { return (d + s - 128 + 256) % 256; })},
      {"Not", CALL(BBIBltNot), [](uint32_t, uint32_t s) { return ~s; }},
      {"Min", CALL(BBIBltMin), per_byte([](int d, int s) { return std::min(d, s); })},
      {"Max", CALL(BBIBltMax), per_byte([](int d, int s) { return std::max(d, s); })},
      {"Half", CALL(BBIBltHalfBlend), per_byte([](int d, int s) { return s / 2 + d / 2; })},
      {"ShiftAlpha", CALL(BBIBltShiftAlpha), [](uint32_t, uint32_t s) { return (s >> 24) * 0x01010101u; }},
      {"ShiftBlock", CALL(BBIBltShiftBlock),
       [](uint32_t d, uint32_t s) { return s > 128 ? (~d & 0x007FC0C0) | 0x00800000 : d; }},
      {"Keying", CALL(BBIBltKeying), [](uint32_t d, uint32_t s) { return s == key ? d : s; }},
      {"FX 300", CALL(BBIBltKeyingFX, 0, 300), [](uint32_t, uint32_t s) { return s; }},
      {"FX keyed 255", CALL(BBIBltKeyingFX, -1, 255),
       [](uint32_t d, uint32_t s) { return s == key ? d : s; }},
      {"FX 0", CALL(BBIBltKeyingFX, 0, 0), [](uint32_t d, uint32_t) { return d; }},
      {"FX minimum", CALL(BBIBltKeyingFX, 2, INT32_MIN), [](uint32_t d, uint32_t) { return d; }},
      {"FX 254", CALL(BBIBltKeyingFX, 0, 254), weighted([](int) { return 254; }, [](int) { return 2; })},
      {"FX keyed 77", CALL(BBIBltKeyingFX, 1, 77),
       [mixed = weighted([](int) { return 77; }, [](int) { return 179; })](uint32_t d, uint32_t s) {
         return s == key ? d : mixed(d, s);
       }},
      {"Blend", CALL(BBIBltBlend, 0),
       [mixed = weighted([](int a) { return a; }, [](int a) { return 255 - a; })](uint32_t d, uint32_t s) {
         return s >> 24 == 0 ? d : s >> 24 == 255 ? s : mixed(d, s);
       }},
      {"Blend wide", CALL(BBIBltBlend, 2),
       weighted([](int a) { return a * 256 / 255; }, [](int a) { return 256 - a * 256 / 255; })},
  };
  static constexpr int flag_sets = 16;
  for (int flags = 0; flags < flag_sets; ++flags)
    all.push_back(
        {"Alpha",
         [flags](auto* d, auto* s, int32_t dx, int32_t dy, int32_t cx, int32_t cy, int32_t sx, int32_t sy) {
           return BBIBltAlpha(d, s, dx, dy, cx, cy, sx, sy, flags & 1, flags & 2 ? -1 : 0, flags & 4,
                              flags & 8);
         },
         [flags](uint32_t d, uint32_t s) {
           const int of_dest = static_cast<int>(d >> 24);
           int a = static_cast<int>(s >> 24);
           if (flags & 8) a = of_dest - a;
           if (flags & 4) a = 255 - a;
           if (flags & 2 && a >= of_dest) a = of_dest;
           if (flags & 1 && a <= of_dest) a = of_dest;
           return static_cast<uint32_t>(a & 255) << 24 | (d & 0xFFFFFF);
         }});
  return all;
}

// Every pair of bytes in every channel, and every alpha with every pair of a coarser grid.
TEST(Blit, EqualsTheFormulaForEveryPairOfBytes) {
  for (const Backend backend : supported_backends()) {
    Forced forced(backend);
    for (const Row& row : rows())
      for (const uint32_t alphas : {0u, 1u}) {
        Image d(256, 256), s(256, 257);
        s.fill(key);
        for (int32_t y = 0; y < 256; ++y)
          for (int32_t x = 0; x < 256; ++x) {
            const auto a = static_cast<uint32_t>(x), b = static_cast<uint32_t>(y);
            d.set(x, y, alphas ? (a * 17 & 255) * 0x010101 | (255 - a) << 24 : a * 0x01010101);
            s.set(x, y + 1, alphas ? (a * 5 & 255) * 0x010101 | b << 24 : b * 0x01010101);
          }
        s.set(3, 1, key);
        Image model = d;
        for (int32_t y = 0; y < 256; ++y)
          for (int32_t x = 0; x < 256; ++x) model.set(x, y, row.rule(model.get(x, y), s.get(x, y + 1)));
        ASSERT_EQ(row.run(d, s, 0, 0, 256, 256, 0, 1), 0);
        ASSERT_EQ(d, model) << row.name << ' ' << name_of(backend);
      }
  }
}

TEST(Blit, EqualsOnePixelAfterAnotherInEveryShape) {
  for (const Backend backend : supported_backends()) {
    Forced forced(backend);
    Random random(9);
    for (const Row& row : rows())
      for (int32_t w = 1; w <= 70; ++w) {
        const bool same = w % 2;
        Image a(w + 24, 6,
                w % 3 == 0   ? -(4 * (w + 24) + w % 5)
                : w % 3 == 1 ? 0
                             : 4 * (w + 24) + 3,
                static_cast<size_t>(w % 4));
        Image b(w + 24, 6);
        a.randomize(random.word()).set(0, 0, key);
        b.randomize(random.word()).set(0, 0, key);
        b.set(5, 2, key);
        Image a_model = a, b_model = b;
        // In one image the destination lies up to a vector and more before or behind its source.
        const int32_t sx = random.between(0, 24), dx = random.between(0, 24), sy = random.between(0, 2),
                      dy = same && w % 4 == 1 ? sy : random.between(0, 2);
        ASSERT_EQ(row.run(a, same ? a : b, dx, dy, w, 4, sx, sy), 0);
        Image& source = same ? a_model : b_model;
        for (int32_t y = 0; y < 4; ++y)
          for (int32_t x = 0; x < w; ++x)
            a_model.set(dx + x, dy + y, row.rule(a_model.get(dx + x, dy + y), source.get(sx + x, sy + y)));
        ASSERT_EQ(a, a_model) << row.name << ' ' << name_of(backend) << " width " << w << " from " << sx
                              << ',' << sy << " to " << dx << ',' << dy << " same " << same;
      }
  }
}

// Rows without gaps run as one row, and long ones take other instructions; both must keep the order too.
TEST(Blit, LongRunsKeepTheOrder) {
  for (const int32_t offset : {-1, 0, 1, 7, 3980})
    for (const int32_t height : {1, 3}) {
      Image a(8190, height + 1);
      a.randomize(1);
      Image model = a;
      const int32_t from = offset < 0 ? -offset : 0;
      EXPECT_EQ(BBIBlt(a, a, from + offset, 0, 4200, height, from, 0), 0);
      for (int32_t y = 0; y < height; ++y)
        for (int32_t x = 0; x < 4200; ++x) model.set(from + offset + x, y, model.get(from + x, y));
      EXPECT_EQ(a, model) << offset;
      EXPECT_EQ(BBIBltColor(a, 0, 0, 8190, height, 0, 5, 0x12345678), 0);
      EXPECT_EQ(a.get(8189, height - 1), 0x12345678u);
      EXPECT_EQ(a.get(0, height), model.get(0, height));
    }
}

TEST(Blit, ColourRulesOfOneImage) {
  for (const Backend backend : supported_backends()) {
    Forced forced(backend);
    for (int32_t w = 1; w < 40; ++w) {
      Image image(w + 2, 5, w % 2 ? -4 * (w + 3) : 0);
      for (const uint32_t mask : {0u, 0xFFFFFFFFu, 0x00FF00FFu, 0xFF0F3355u})
        for (const uint32_t flip : {0u, 0xFFFFFFFFu, 0x12345678u}) {
          image.randomize(mask ^ flip);
          Image model = image;
          for (int32_t y = 1; y < 4; ++y)
            for (int32_t x = 1; x <= w; ++x)
              model.set(x, y, ((model.get(x, y) ^ flip) & mask) | (0xC0FFEE42 & ~mask));
          ASSERT_EQ(BBIBltColor(image, 1, 1, w, 3, mask, flip, 0xC0FFEE42), 0);
          ASSERT_EQ(image, model);
        }
      for (const float factor :
           {0.0f, 0.003f, 0.5f, 0.999f, 1.0f, 2.0f, std::numeric_limits<float>::infinity()}) {
        image.randomize(static_cast<uint32_t>(w));
        Image model = image;
        const auto k = factor >= 1 ? 256u : static_cast<uint32_t>(factor * 256);
        for (int32_t y = 1; y < 4; ++y)
          for (int32_t x = 1; x <= w; ++x) {
            uint32_t out = 0;
            for (int at = 0; at < 32; at += 8)
              out |= ((model.get(x, y) >> at & 255) * (256 - k) + (0xC0FFEE42u >> at & 255) * k) >> 8 << at;
            model.set(x, y, out);
          }
        ASSERT_EQ(BBIBltColorBlend(image, 1, 1, w, 3, 0xC0FFEE42, factor), 0);
        ASSERT_EQ(image, model) << factor;
      }
    }
  }
  Image image(3, 3);
  const Image before = image;
  for (const float factor :
       {-0.5f, std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::infinity()})
    EXPECT_EQ(BBIBltColorBlend(image, 0, 0, 3, 3, 1, factor), 1);
  EXPECT_EQ(image, before);
}

TEST(Blit, ExtremeRectanglesStayInsideBothImages) {
  Image d(7, 5), s(6, 9, -28);
  for (const Row& row : rows())
    for (const int32_t a : extreme_values)
      for (const int32_t b : extreme_values)
        for (int place = 0; place < 6; ++place) {
          int32_t r[] = {1, 1, 3, 3, 1, 1};
          r[place] = a;
          r[(place + 1 + (b & 1)) % 6] = b;
          d.randomize(1);
          s.randomize(2).set(0, 0, key);
          // What is left is what the clip of single pixels would keep, in 64 bits.
          Image model = d;
          int32_t status = 1;
          for (int64_t y = 0; y < 5; ++y)
            for (int64_t x = 0; x < 7; ++x) {
              const int64_t i = x - r[0], j = y - r[1], u = r[4] + i, v = r[5] + j;
              if (i < 0 || j < 0 || i >= r[2] || j >= r[3] || u < 0 || v < 0 || u >= 6 || v >= 9) continue;
              status = 0;
              const auto at_x = static_cast<int32_t>(x), at_y = static_cast<int32_t>(y);
              model.set(
                  at_x, at_y,
                  row.rule(model.get(at_x, at_y), s.get(static_cast<int32_t>(u), static_cast<int32_t>(v))));
            }
          const int32_t got = row.run(d, s, r[0], r[1], r[2], r[3], r[4], r[5]);
          ASSERT_EQ(got, status) << row.name;
          ASSERT_EQ(d, model) << row.name;
        }
}

TEST(Blit, TheKeyIsReadOnceBeforeItIsOverwritten) {
  Image image(4, 1);
  const uint32_t pixels[] = {key, 1, key, 2};
  for (int32_t x = 0; x < 4; ++x) image.set(x, 0, pixels[x]);
  EXPECT_EQ(BBIBltKeying(image, image, 0, 0, 3, 1, 1, 0), 0);
  const uint32_t want[] = {1, 1, 2, 2};
  for (int32_t x = 0; x < 4; ++x) EXPECT_EQ(image.get(x, 0), want[x]);
}

}  // namespace
}  // namespace tessaro::test
