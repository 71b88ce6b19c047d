#include "transform/models.hpp"

using namespace tessaro;
using namespace tessaro::test;

namespace {

struct Arguments {
  float opacity = 1.0f, saturation = 1.0f;
  uint32_t low = 0, high = 0xFFFFFF, keep = 0, mask = 0xFFFFFFFF, color = 0, invert = 0;
  int32_t by_alpha = 0, add_color = 0, add_alpha = 0, source_is_base = 0;
  uint32_t corners[4] = {};
};

float at_most_1(float opacity) { return opacity > 1.0f ? 1.0f : opacity; }
uint32_t constant(float opacity) { return static_cast<uint32_t>(at_most_1(opacity) * 256.0f); }
uint32_t weight(const Arguments& a, uint32_t s) {
  return a.by_alpha ? weight_of(s >> 24, at_most_1(a.opacity)) : constant(a.opacity);
}

uint32_t masked(const Arguments& a, uint32_t s) {
  return (s & a.mask) | (((~s & a.invert) | a.color) & ~a.mask);
}

uint32_t level(uint32_t v, uint32_t lo, uint32_t hi) {
  if (v < lo) return 0;
  if (v == lo) return lo == hi ? 255 - lo : 0;
  if (v >= hi) return 255;
  return 255 * (v - lo) / (hi - lo);
}

uint32_t chosen(const Arguments& a, uint32_t d, uint32_t raw) {
  const uint32_t b = a.source_is_base ? raw : d;
  uint32_t s = a.mask != 0xFFFFFFFF ? masked(a, raw) : raw;
  if (a.saturation != 1.0f) s = saturated(s, a.saturation);
  if (a.low != 0 || a.high != 0xFFFFFF)
    s = per_channel([&](int at) {
      return at == 24 ? channel(s, 24) : level(channel(s, at), channel(a.low, at), channel(a.high, at));
    });
  const uint32_t w = weight(a, s);
  if (w != 256)
    s = per_channel([&](int at) {
      const bool scaled = (a.add_color && a.add_alpha) || (at == 24 ? a.add_alpha : a.add_color);
      return scaled ? channel(s, at) * w / 256 : (channel(b, at) * (256 - w) + channel(s, at) * w) / 256;
    });
  s = per_channel([&](int at) {
    const bool added = at == 24 ? a.add_alpha : a.add_color;
    return added ? std::min(channel(b, at) + channel(s, at), 255u) : channel(s, at);
  });
  return a.keep ? (s & ~a.keep) | (b & a.keep) : s;
}

int32_t expected_choose(Image& dst, Image& src, Scaled c, Arguments a) {
  if (!scaled_clip(dst, src, c)) return 1;
  if (!(a.opacity >= 0.0f)) a.opacity = 0.0f;
  const uint32_t a0 = constant(a.opacity);
  if (!a.source_is_base && a0 == 0) return 1;
  const bool simple = a.saturation == 1.0f && !(a.low & 0xFFFFFF) && (a.high & 0xFFFFFF) == 0xFFFFFF &&
                      !a.add_color && !a.add_alpha && !a.source_is_base;
  const bool equal = c.dw == c.sw && c.dh == c.sh;
  if (!simple) {
    nearest(dst, src, c, [&](uint32_t d, uint32_t s, int32_t, int32_t) { return chosen(a, d, s); });
    return 2;
  }
  if (equal && a.mask == 0xFF000000 && !a.keep && !a.invert) {
    nearest(dst, src, c,
            [&](uint32_t d, uint32_t s, int32_t, int32_t) { return mixed(d, a.color, weight(a, s)); });
    return 513;
  }
  nearest(dst, src, c, [&](uint32_t d, uint32_t s, int32_t, int32_t) {
    if (a.mask == 0xFFFFFFFF && !a.keep && equal && a0 == 256 && a.by_alpha) {  // the plain blend by alpha
      const uint32_t w = s >> 24;
      return w == 0     ? d
             : w == 255 ? s
                        : per_channel(
                              [&](int at) { return (channel(s, at) * w + channel(d, at) * (255 - w)) >> 8; });
    }
    if (a.mask != 0xFFFFFFFF) s = masked(a, s);
    const uint32_t out = mixed(d, s, weight(a, s));
    return (d & a.keep) | (out & ~a.keep);
  });
  return 0;
}

int32_t choose(ImageRecord* d, ImageRecord* s, const Scaled& c, const Arguments& a) {
  return BBIExpandChooseBlt(d, s, c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh, a.opacity, a.saturation,
                            a.low, a.high, a.keep, a.mask, a.color, a.invert, a.by_alpha, a.add_color,
                            a.add_alpha, a.source_is_base);
}

uint32_t way(int32_t at, int32_t size) {
  const auto t = static_cast<float>(at) / static_cast<float>(size - 1);
  return t > 1.0f ? 256 : t >= 0.0f ? static_cast<uint32_t>(t * 256.0f) : 0;
}

int32_t expected_plain(Image& dst, Image& src, Scaled c, const Arguments& a, int which) {
  if (!scaled_clip(dst, src, c) || !(a.opacity >= 0.0f)) return 1;
  nearest(dst, src, c, [&](uint32_t d, uint32_t s, int32_t j, int32_t i) {
    if (which == 0) return mixed(d, s, constant(a.opacity));
    if (which == 1) return mixed(d, s, weight_of(s >> 24, at_most_1(a.opacity)));
    const uint32_t wy = way(i, c.dh), wx = way(j, c.dw);
    const uint32_t g =
        mixed(mixed(a.corners[0], a.corners[2], wy), mixed(a.corners[1], a.corners[3], wy), wx);
    if (a.mask != 0xFFFFFFFF) s = (s & a.mask) | (g & ~a.mask);
    return (d & a.keep) | (mixed(d, s, weight(a, s)) & ~a.keep);
  });
  return 0;
}

int32_t plain(ImageRecord* d, ImageRecord* s, const Scaled& c, const Arguments& a, int which) {
  if (which == 0) return BBIExpandBlt(d, s, c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh, a.opacity);
  if (which == 1) return BBIExpandBlendBlt(d, s, c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh, a.opacity);
  return BBIExpandColorBlt(d, s, c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh, a.opacity, a.keep, a.mask,
                           a.corners[0], a.corners[1], a.corners[2], a.corners[3], a.by_alpha);
}

Arguments random_arguments(Random& random) {
  Arguments a;
  const auto often = [&](auto usual, auto other) { return random.between(0, 1) ? usual : other; };
  const float opacities[] = {1.0f, 1.0f, 0.5f, 0.003f, 0.0f, 0.77f, 3.0f, -1.0f, NAN};
  const float saturations[] = {1.0f,  1.0f,  1.0f,   0.0f,   0.4f,  1.7f, 40.0f,
                               63.9f, 64.0f, 255.5f, 999.0f, -3.0f, NAN};
  const uint32_t masks[] = {0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000, 0xFF000000, 0x0F0FF0F0, 0};
  a.opacity = opacities[random.between(0, 8)];
  a.saturation = saturations[random.between(0, 12)];
  if (random.between(0, 2) == 0) {
    a.low = random.pixel();
    a.high = often(random.pixel(), (a.low & 0xFF00FF) | (random.word() & 0xFF00));
  }
  a.keep = random.between(0, 3) ? 0 : random.word();
  a.mask = masks[random.between(0, 5)];
  a.color = random.pixel();
  a.invert = random.between(0, 2) ? 0 : random.word();
  a.by_alpha = random.between(0, 1);
  a.add_color = random.between(0, 3) == 0;
  a.add_alpha = random.between(0, 3) == 0;
  a.source_is_base = random.between(0, 5) == 0;
  for (uint32_t& corner : a.corners) corner = random.pixel();
  return a;
}

// Runs `got` and `want` on equal random images, within one image every third time, on every back end.
template <class Call, class Model>
void compare(uint32_t seed, int rounds, int32_t widest, const Call& call, const Model& model) {
  for (const Forced backend : supported_backends()) {
    Random random(seed);
    for (int round = 0; round < rounds; ++round) {
      Image dst = random_image(random, random.between(1, widest), random.between(1, 7));
      Image src = random_image(random, random.between(1, widest), random.between(1, 7));
      const bool one = round % 3 == 0;
      Image want = dst;
      const Scaled c = random_rectangles(random, dst, one ? dst : src);
      const Arguments a = random_arguments(random);
      const int32_t status = model(want, one ? want : src, c, a);
      ASSERT_EQ(call(dst, one ? dst : src, c, a), status) << "round " << round << ": " << c;
      ASSERT_TRUE(dst == want) << "round " << round << ", one image " << one << ": " << c << dst << want;
    }
  }
}

}  // namespace

TEST(Expand, FollowsTheModel) {
  for (const auto& [rounds, widest] :
       {std::pair{1500, 70}, {30, 2500}})  // wider than what is sampled at once
    for (int which = 0; which < 3; ++which)
      compare(
          static_cast<uint32_t>(which), rounds, widest,
          [=](ImageRecord* d, ImageRecord* s, const Scaled& c, const Arguments& a) {
            return plain(d, s, c, a, which);
          },
          [=](Image& d, Image& s, const Scaled& c, const Arguments& a) {
            return expected_plain(d, s, c, a, which);
          });
}

TEST(Expand, ChooseFollowsTheModel) { compare(9, 6000, 50, choose, expected_choose); }

TEST(Expand, EveryLevelTable) {
  Image ramp(256, 1), start(256, 1);
  for (int32_t x = 0; x < 256; ++x) ramp.set(x, 0, static_cast<uint32_t>(x) * 0x010101u | 0x55000000u);
  for (const Forced backend : supported_backends())
    for (uint32_t lo = 0; lo < 256; ++lo)
      for (uint32_t hi = 0; hi < 256; ++hi) {
        // Neighbours in the other channels; the top byte keeps the levels from being none.
        const uint32_t low = lo | (lo ^ 1) << 8 | lo << 16 | 0x01000000, high = hi | hi << 8 | (hi ^ 3) << 16;
        ASSERT_EQ(BBIExpandChooseBlt(start, ramp, 0, 0, 256, 1, 0, 0, 256, 1, 1.0f, 1.0f, low, high, 0,
                                     0xFFFFFFFF, 0, 0, 0, 0, 0, 1),
                  2);
        for (int32_t x = 0; x < 256; ++x) {
          const auto v = static_cast<uint32_t>(x);
          ASSERT_EQ(start.get(x, 0),
                    0x55000000u | level(v, lo, hi) | level(v, lo ^ 1, hi) << 8 | level(v, lo, hi ^ 3) << 16)
              << lo << ", " << hi << ", " << v;
        }
      }
}

TEST(Expand, SaturationOfEveryColourOnAGrid) {
  Image grid(4096, 9), out(4096, 9);
  int32_t at = 0;
  for (uint32_t b = 0; b <= 255; b += 8)
    for (uint32_t g = 0; g <= 255; g += 8)
      for (uint32_t r = 0; r <= 255; r += 8, ++at)
        grid.set(at % 4096, at / 4096, (b + b / 32) | (g + g / 32) << 8 | (r + r / 32) << 16 | 0x80000000u);
  for (const Forced backend : supported_backends())
    for (const float saturation :
         {0.0f, 0.25f, 0.999f, 1.001f, 1.5f, 2.0f, 7.7f, 31.9f, 63.99f, 64.0f, 256.0f}) {
      BBIExpandChooseBlt(out, grid, 0, 0, 4096, 8, 0, 0, 4096, 8, 1.0f, saturation, 0, 0xFFFFFF, 0,
                         0xFFFFFFFF, 0, 0, 0, 0, 0, 1);
      for (int32_t i = 0; i < at; ++i)
        ASSERT_EQ(out.get(i % 4096, i / 4096), saturated(grid.get(i % 4096, i / 4096), saturation))
            << saturation;
    }
}

TEST(Expand, WorkedExamples) {
  Image src(4, 1), dst(8, 1);
  for (int32_t x = 0; x < 4; ++x) src.set(x, 0, 0x11111111u * static_cast<uint32_t>(x + 1));
  dst.fill(0);
  EXPECT_EQ(BBIExpandBlt(dst, src, 0, 0, 4, 1, 0, 0, 2, 1, 1.0f), 0);
  EXPECT_EQ(BBIExpandBlt(dst, src, 4, 0, 2, 1, 0, 0, 4, 1, 1.0f), 0);
  const uint32_t want[] = {0x11111111, 0x11111111, 0x22222222, 0x22222222, 0x11111111, 0x33333333, 0, 0};
  for (int32_t x = 0; x < 8; ++x) EXPECT_EQ(dst.get(x, 0), want[x]);
  // Below 1 / 256 the weight is 0.
  EXPECT_EQ(BBIExpandBlt(dst, src, 0, 0, 8, 1, 0, 0, 4, 1, 0.003f), 0);
  EXPECT_EQ(choose(dst, src, {0, 0, 8, 1, 0, 0, 4, 1}, {.opacity = 0.003f}), 1);
  for (const float bad : {-1.0f, NAN}) {
    EXPECT_EQ(plain(dst, src, {0, 0, 8, 1, 0, 0, 4, 1}, {.opacity = bad}, 2), 1);
    EXPECT_EQ(choose(dst, src, {0, 0, 8, 1, 0, 0, 4, 1}, {.opacity = bad, .source_is_base = 1}), 2);
  }
}

TEST(Expand, ExtremeRectanglesStayInside) {
  Image dst(37, 9, -152, 1), packed(37, 9, 0, 1), src(41, 5, 176, 3);
  src.randomize(1);
  const Arguments a = {.opacity = 0.5f, .mask = 0xFF, .by_alpha = 1};
  const std::vector<uint32_t> table(256, 128);
  for (const int32_t x : extreme_values)
    for (const int32_t w : extreme_values)
      for (const int32_t v : extreme_values)
        for (const Scaled& c : {Scaled{x, 0, w, 9, 0, 0, v, 5}, Scaled{0, x, 37, w, 0, v, 41, 5},
                                Scaled{x, x, w, w, v, v, w, w}, Scaled{0, 0, v, v, x, x, w, w},
                                Scaled{0, v, 5, 40, 3, x, 41, w}}) {
          for (int which = 0; which < 3; ++which) plain(dst, src, c, a, which);
          choose(dst, dst, c, a);
          BBILinearBlt(packed, src, c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh);
          BBILinearBltTest(dst, dst, c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh);
          BBILinearRender(packed, src, c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh, table.data(), x, w, 0);
        }
}
