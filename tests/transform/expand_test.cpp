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
  return BBIExpandChooseBlt(d, s, TESSARO_SCALED(c), a.opacity, a.saturation, a.low, a.high, a.keep, a.mask,
                            a.color, a.invert, a.by_alpha, a.add_color, a.add_alpha, a.source_is_base);
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
  if (which == 0) return BBIExpandBlt(d, s, TESSARO_SCALED(c), a.opacity);
  if (which == 1) return BBIExpandBlendBlt(d, s, TESSARO_SCALED(c), a.opacity);
  return BBIExpandColorBlt(d, s, TESSARO_SCALED(c), a.opacity, a.keep, a.mask, a.corners[0], a.corners[1],
                           a.corners[2], a.corners[3], a.by_alpha);
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

// Within one image every third time.
template <class Call, class Model>
void compare(uint32_t seed, int rounds, int32_t widest, const Call& call, const Model& model) {
  for (const Forced backend : supported_backends()) {
    Random random(seed);
    for (int round = 0; round < rounds && !testing::Test::HasFatalFailure(); ++round) {
      const Streamed streamed(round % 7 < 3 ? 64 : never);
      const Image dst = random_image(random, random.between(1, widest), random.between(1, 7));
      const Image src = random_image(random, random.between(1, widest), random.between(1, 7));
      const bool one = round % 3 == 0;
      const Scaled c = random_rectangles(random, dst, one ? dst : src);
      const Arguments a = random_arguments(random);
      compare_scaled(
          dst, src, one, c, [&](Image& d, Image& s) { return call(d, s, c, a); },
          [&](Image& d, Image& s) { return model(d, s, c, a); });
    }
  }
}

}  // namespace

TEST(Expand, FollowsTheModel) {
  for (const auto& [rounds, widest] :
       {std::pair{1500, 70}, {100, 6000}})  // wider than what is sampled at once
    for (int which = 0; which < 3; ++which)
      compare(
          static_cast<uint32_t>(which), rounds, widest,
          [=](Image& d, Image& s, auto&... arguments) { return plain(d, s, arguments..., which); },
          [=](Image& d, Image& s, auto&... arguments) { return expected_plain(d, s, arguments..., which); });
}

TEST(Expand, ChooseFollowsTheModel) { compare(9, 6000, 50, choose, expected_choose); }

TEST(Expand, ChoosesByEveryLevelTableAndSaturatesEveryColourOfAGrid) {
  const auto check = [](const Image& from, const Arguments& a) {
    const Scaled all{0, 0, from.width(), from.height(), 0, 0, from.width(), from.height()};
    compare_scaled(
        Image(from.width(), from.height()), from, false, all,
        [&](Image& d, Image& s) { return choose(d, s, all, a); },
        [&](Image& d, Image& s) { return expected_choose(d, s, all, a); });
  };
  Image ramp(256, 1), grid(4096, 8);
  for_pixels(ramp, [&](int32_t x, int32_t) { ramp.set(x, 0, static_cast<uint32_t>(x) * 0x010101u); });
  for_pixels(grid, [&](int32_t x, int32_t y) {
    const auto n = static_cast<uint32_t>(4096 * y + x), b = n >> 10, g = n >> 5 & 31, r = n & 31;
    grid.set(x, y, (b * 8 + b / 4) | (g * 8 + g / 4) << 8 | (r * 8 + r / 4) << 16 | 0x80000000u);
  });
  for (const Forced backend : supported_backends()) {
    for (uint32_t lo = 0; lo < 256; ++lo)
      for (uint32_t hi = 0; hi < 256 && !testing::Test::HasFatalFailure(); ++hi)
        // Neighbours in the other channels; the top byte keeps the levels from being none.
        check(ramp, {.low = lo | (lo ^ 1) << 8 | lo << 16 | 0x01000000,
                     .high = hi | hi << 8 | (hi ^ 3) << 16,
                     .source_is_base = 1});
    for (const float saturation :
         {0.0f, 0.25f, 0.999f, 1.001f, 1.5f, 2.0f, 7.7f, 31.9f, 63.99f, 64.0f, 256.0f})
      check(grid, {.saturation = saturation, .source_is_base = 1});
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
          BBILinearBlt(packed, src, TESSARO_SCALED(c));
          BBILinearBltTest(dst, dst, TESSARO_SCALED(c));
          BBILinearRender(packed, src, TESSARO_SCALED(c), table.data(), x, w, 0);
        }
}
