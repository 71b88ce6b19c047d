#include <cmath>

#include "support/unscaled.hpp"

namespace tessaro::test {
namespace {

using PixelRule = std::function<uint32_t(uint32_t d, uint32_t s)>;

// A rule of bytes as a rule of pixels.
PixelRule per_byte(int (*f)(int d, int s)) {
  return [f](uint32_t d, uint32_t s) {
    return per_channel([&](int at) {
      return static_cast<uint32_t>(f(static_cast<int>(channel(d, at)), static_cast<int>(channel(s, at))) &
                                   255);
    });
  };
}

#define CALL TESSARO_UNSCALED_CALL
constexpr uint32_t key = first_of_source;

std::vector<UnscaledRow> rows() {
  std::vector<UnscaledRow> all = {
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
      {"FX 254", CALL(BBIBltKeyingFX, 0, 254), [](uint32_t d, uint32_t s) { return mixed(d, s, 254); }},
      {"FX keyed 77", CALL(BBIBltKeyingFX, 1, 77),
       [](uint32_t d, uint32_t s) { return s == key ? d : mixed(d, s, 77); }},
      {"Blend", CALL(BBIBltBlend, 0),
       [](uint32_t d, uint32_t s) {
         const uint32_t a = s >> 24;
         if (a == 0 || a == 255) return a ? s : d;
         return per_channel([=](int at) { return (channel(s, at) * a + channel(d, at) * (255 - a)) >> 8; });
       }},
      {"Blend wide", CALL(BBIBltBlend, 2),
       [](uint32_t d, uint32_t s) { return mixed(d, s, (s >> 24) * 256 / 255); }},
  };
  for (int32_t flags = 0; flags < 16; ++flags)
    all.push_back({"Alpha", CALL(BBIBltAlpha, flags & 1, flags & 2 ? -1 : 0, flags & 4, flags & 8),
                   [flags](uint32_t d, uint32_t s) {
                     const int of_dest = static_cast<int>(d >> 24);
                     int a = static_cast<int>(s >> 24);
                     if (flags & 8) a = of_dest - a;
                     if (flags & 4) a = 255 - a;
                     if (flags & 2 && a >= of_dest) a = of_dest;
                     if (flags & 1 && a <= of_dest) a = of_dest;
                     return static_cast<uint32_t>(a & 255) << 24 | (d & 0xFFFFFF);
                   }});
  constexpr uint32_t colour = 0xC0FFEE42;
  for (const auto& [mask, flip] :
       {std::pair{0u, 0u}, {0u, 0x12345678u}, {0xFFFFFFFFu, 0x12345678u}, {0xFF0F3355u, 0x77u}})
    all.push_back(
        {"Color",
         [mask = mask, flip = flip](auto* d, auto*, const Unscaled& c) {
           return BBIBltColor(d, c.dx, c.dy, c.w, c.h, mask, flip, colour);
         },
         [mask = mask, flip = flip](uint32_t d, uint32_t) { return ((d ^ flip) & mask) | (colour & ~mask); },
         true});
  for (const float factor : {0.0f, 0.003f, 0.5f, 0.999f, 1.0f, INFINITY})
    all.push_back({"ColorBlend",
                   [factor](auto* d, auto*, const Unscaled& c) {
                     return BBIBltColorBlend(d, c.dx, c.dy, c.w, c.h, colour, factor);
                   },
                   [weight = factor >= 1 ? 256u : static_cast<uint32_t>(factor * 256)](uint32_t d, uint32_t) {
                     return mixed(d, colour, weight);
                   },
                   true});
  return all;
}

TEST(Blit, EqualsTheFormulaForEveryPairOfBytes) { compare_every_pair_of_bytes(rows()); }
TEST(Blit, EqualsOnePixelAfterAnotherInEveryShape) { compare_every_shape(rows()); }
TEST(Blit, ExtremeRectanglesStayInsideBothImages) { compare_extreme_rectangles(rows()); }

// Rows without gaps run as one row, and long ones and large areas take other instructions; all must keep the order too.
TEST(Blit, LongRunsKeepTheOrder) {
  for ([[maybe_unused]] const Forced forced : supported_backends())
    for (const int32_t offset : {-1, 0, 1, 7, 3980})
      for (const int32_t height : {1, 3}) {
        const Streamed streamed(height == 1 ? 4200 : never);
        Image a(8190, height + 1);
        a.randomize(1);
        const int32_t from = offset < 0 ? -offset : 0;
        compare(rows()[0], a, a, {from + offset, 0, 4200, height, from, 0});
        const uint32_t below = a.get(0, height);
        EXPECT_EQ(BBIBltColor(a, 0, 0, 8190, height, 0, 5, 0x12345678), 0);
        EXPECT_EQ(a.get(8189, height - 1), 0x12345678u);
        EXPECT_EQ(a.get(0, height), below);
      }
}

TEST(Blit, RefusesBadFactors) {
  Image image(3, 3);
  const Image before = image;
  for (const float factor : {-0.5f, NAN, -INFINITY})
    EXPECT_EQ(BBIBltColorBlend(image, 0, 0, 3, 3, 1, factor), 1);
  EXPECT_EQ(image, before);
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
