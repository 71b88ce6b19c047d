#include "transform/models.hpp"

using namespace tessaro;
using namespace tessaro::test;

namespace {

struct Arguments {
  std::vector<uint32_t> table;
  int32_t mode, smooth;
  uint32_t tint;
};

// (p * u + q * v) >> 8, two channels in 32 bits: above 256 weights make them run over into each other.
uint32_t weighted(uint32_t p, uint32_t u, uint32_t q, uint32_t v) {
  const auto two = [&](int at) {
    return (channel(p, at) + (channel(p, at + 16) << 16)) * u +
           (channel(q, at) + (channel(q, at + 16) << 16)) * v;
  };
  return (two(0) >> 8 & 255) | (two(0) >> 24) << 16 | (two(8) >> 8 & 255) << 8 | two(8) >> 24 << 24;
}

uint32_t rendered(const Arguments& a, uint32_t d, uint32_t s) {
  const uint32_t tint = a.table[a.tint >> 24];
  if (a.mode == 2 || a.mode == 3) s = (weighted(s, 256 - tint, a.tint, tint) & 0xFFFFFF) | (s & 0xFF000000);
  const uint32_t w = a.table[s >> 24];
  if (a.mode != 1 && a.mode != 3) return weighted(d, 256 - w, s, w);
  const uint32_t added = weighted(s, w, 0, 0);
  return per_channel([&](int at) { return std::min(channel(d, at) + channel(added, at), 255u); });
}

// Memory as rows of 4 * width bytes, whatever the pitch.
uint8_t* packed(Image& image, int32_t x, int32_t y) { return image.at(0, 0) + 4 * (y * image.width() + x); }

template <class Put>
int32_t expected_bilinear(Image& dst, Image& src, Scaled c, bool smooth, const Put& put) {
  if (!scaled_clip(dst, src, c)) return 1;
  if (!smooth || c.dw < 2 || c.dh < 2 || c.sw < 2 || c.sh < 2 || (c.dw == c.sw && c.dh == c.sh) ||
      c.dw * 16 < c.sw || c.sw * 16 < c.dw || c.dh * 16 < c.sh || c.sh * 16 < c.dh) {
    nearest(dst, src, c, [&](uint32_t d, uint32_t s, int32_t, int32_t) { return put(d, s); });
    return 0;
  }
  const auto step = [](int32_t to, int32_t from) {
    return to < from ? (from - 2) * 4096 / (to - 1) : (from * 4096 - 4096) / to;
  };
  const auto start = [](int32_t to, int32_t from) { return to < from ? 2048 : (from * 2048 - 2048) / to; };
  for (int32_t i = 0; i < c.dh; ++i)
    for (int32_t j = 0; j < c.dw; ++j) {
      const int32_t fx = j * step(c.dw, c.sw) + start(c.dw, c.sw),
                    fy = i * step(c.dh, c.sh) + start(c.dh, c.sh);
      const auto wx = static_cast<uint32_t>(fx >> 4 & 255), wy = static_cast<uint32_t>(fy >> 4 & 255);
      const auto get = [&](int32_t x, int32_t y) {
        return load<uint32_t>(packed(src, c.sx + (fx >> 12) + x, c.sy + (fy >> 12) + y));
      };
      const uint32_t s = mixed(mixed(get(0, 0), get(1, 0), wx), mixed(get(0, 1), get(1, 1), wx), wy);
      uint8_t* to = packed(dst, c.dx + j, c.dy + i);
      store(to, put(load<uint32_t>(to), s));
    }
  return 0;
}

int32_t expected_test(Image& dst, Image& src, Scaled c) {
  if (!scaled_clip(dst, src, c)) return 1;
  const int taps[][2] = {{0, 0},   {1, 0},  {0, -1}, {-1, 0}, {0, 1},   {1, -1}, {-1, -1},
                         {-1, 1},  {1, 1},  {2, 0},  {0, -2}, {-2, 0},  {0, 2},  {2, -1},
                         {-1, -2}, {-2, 1}, {1, 2},  {1, -2}, {-2, -1}, {-1, 2}, {2, 1}};
  const int n = std::min((c.sw / c.dw + c.sh / c.dh + 5) & ~3, 20);
  for (int32_t i = 0; i < c.dh; ++i)
    for (int32_t j = 0; j < c.dw; ++j) {
      const int32_t at = c.sx + j * c.sw / c.dw, row = c.sy + i * c.sh / c.dh;
      uint32_t v = src.get(at, row);
      for (int k = 0; k <= n; ++k) {
        const int32_t x = at + taps[k][0], y = row + taps[k][1];
        if (c.sx < x && x < c.sw && c.sy < y && y < c.sh)
          v = per_channel([&](int b) { return (channel(v, b) + channel(src.get(x, y), b)) / 2; });
      }
      dst.set(c.dx + j, c.dy + i, v);
    }
  return 0;
}

double k(double x) { return x < 1 ? 1 - 2 * x * x + x * x * x : 4 - 8 * x + 5 * x * x - x * x * x; }

int32_t expected_cubic(Image& dst, Image& src) {
  const double rx = dst.width() > 1 ? (src.width() - 1.0) / (dst.width() - 1) : 0;
  const double ry = dst.height() > 1 ? (src.height() - 1.0) / (dst.height() - 1) : 0;
  for (int32_t y = 0; y < dst.height(); ++y)
    for (int32_t x = 0; x < dst.width(); ++x) {
      const int ix = static_cast<int>(x * rx), iy = static_cast<int>(y * ry);
      const double u = x * rx - ix, t = y * ry - iy;
      const double across[] = {k(1 + u), k(u), k(1 - u), k(2 - u)},
                   down[] = {k(1 + t), k(t), k(1 - t), k(2 - t)};
      uint32_t sample[16];
      float weight[16];
      for (int n = 0; n < 16; ++n) {
        const int32_t sx = ix - 1 + n % 4, sy = iy - 1 + n / 4;
        sample[n] = inside(src, sx, sy) ? src.get(sx, sy) : 0;
        weight[n] = std::max(static_cast<float>(across[n % 4] * down[n / 4]), 0.0f);
      }
      const int pairs[][2] = {{0, 1}, {2, 3}, {4, 5},  {6, 7},   {8, 9}, {10, 11}, {12, 13}, {14, 15},
                              {0, 2}, {4, 6}, {8, 10}, {12, 14}, {0, 4}, {8, 12},  {0, 8}};
      for (const auto& [a, b] : pairs) {
        const double sum = static_cast<double>(weight[a]) + static_cast<double>(weight[b]);
        if (sum > 0)
          sample[a] = mixed(sample[a], sample[b],
                            static_cast<uint32_t>(std::min(static_cast<double>(weight[b]) / sum, 1.0) * 256));
        weight[a] = static_cast<float>(sum);
      }
      dst.set(x, y, sample[0]);
    }
  return 0;
}

// Images as the interpolating exports want them, and some with a gap after each row.
Image wide_image(Random& random, int32_t widest, int32_t highest) {
  const int32_t w = random.between(1, widest), h = random.between(1, highest);
  Image image(w, h, 4 * w + (random.between(0, 3) ? 0 : random.between(0, 9)),
              static_cast<size_t>(random.between(0, 4)));
  image.randomize(random.word());
  return image;
}

Arguments random_arguments(Random& random) {
  Arguments a = {std::vector<uint32_t>(256), random.between(-1, 4), random.between(0, 5), random.pixel()};
  const int32_t most = random.between(0, 3) ? 256 : random.between(0, 1) ? 700 : INT32_MAX - 1;
  for (uint32_t& w : a.table) w = static_cast<uint32_t>(random.between(0, most));
  return a;
}

}  // namespace

TEST(Linear, FollowsTheModel) {
  for (const Forced backend : supported_backends()) {
    Random random(3);
    for (int round = 0; round < 6000 && !testing::Test::HasFatalFailure(); ++round) {
      const int32_t widest = round % 40 ? 60 : round % 400 ? 1500 : 6000;
      const Streamed streamed(round % 7 < 3 ? 64 : never);
      Image dst = wide_image(random, widest, 9), src = wide_image(random, widest, 9);
      const bool one = round % 4 == 0;
      const Scaled c = random_rectangles(random, dst, one ? dst : src);
      const Arguments a = random_arguments(random);
      const auto taken = [](uint32_t, uint32_t s) { return s; };
      if (round % 3 == 0)
        compare_scaled(
            dst, src, one, c, [&](Image& d, Image& s) { return BBILinearBlt(d, s, TESSARO_SCALED(c)); },
            [&](Image& d, Image& s) { return expected_bilinear(d, s, c, true, taken); });
      else if (round % 3 == 1)
        compare_scaled(
            dst, src, one, c,
            [&](Image& d, Image& s) {
              return BBILinearRender(d, s, TESSARO_SCALED(c), a.table.data(), a.mode, a.smooth, a.tint);
            },
            [&](Image& d, Image& s) {
              return expected_bilinear(d, s, c, a.smooth,
                                       [&](uint32_t p, uint32_t q) { return rendered(a, p, q); });
            });
      else if ((dst.at(0, 1) - dst.at(0, 0)) % 4 == 0 && (src.at(0, 1) - src.at(0, 0)) % 4 == 0)
        compare_scaled(  // which addresses by pitch, in whole pixels
            dst, src, one, c, [&](Image& d, Image& s) { return BBILinearBltTest(d, s, TESSARO_SCALED(c)); },
            [&](Image& d, Image& s) { return expected_test(d, s, c); });
    }
  }
}

TEST(Linear, CubicFollowsTheModel) {
  for (const Forced backend : supported_backends()) {
    Random random(4);
    for (int round = 0; round < 150; ++round) {
      // Of one of these sizes a column has an outer weight that is positive, by rounding.
      const bool rounded = round % 30 == 7;
      const int32_t w = rounded ? 51 : random.between(1, round % 5 ? 40 : 900);
      const int32_t sw = rounded ? 15 : random.between(1, round % 3 ? 40 : 600);
      const Image dst = rounded ? Image(w, 9) : random_image(random, w, random.between(1, 12));
      const Image src =
          rounded ? Image(sw, 6).randomize(random.word()) : random_image(random, sw, random.between(1, 12));
      compare_scaled(
          dst, src, round % 10 == 0, {}, [](Image& d, Image& s) { return BBILinear(d, s); }, expected_cubic);
    }
  }
  Image src(30, 20), same(30, 20, -124), empty(0, 5);
  src.randomize(1);
  EXPECT_EQ(BBILinear(same, src), 0);
  for_pixels(src, [&](int32_t x, int32_t y) { ASSERT_EQ(same.get(x, y), src.get(x, y)); });
  EXPECT_EQ(BBILinear(empty, src) + BBILinear(src, empty), 2);
}

TEST(Linear, AlphaTables) {
  std::vector<uint8_t> room(4 * 256 + 1);
  auto* table = reinterpret_cast<uint32_t*>(room.data() + 1);
  for (const float opacity : {0.5f, -2.0f, NAN, 1.0f, 9.0f, 0.3f}) {
    const float o = opacity >= 0.0f ? std::min(opacity, 1.0f) : 0.0f;
    for (const int32_t by_alpha : {0, 7}) {
      BBIAlphaTableCreate(table, opacity, by_alpha);
      for (uint32_t i = 0; i < 256; ++i)
        ASSERT_EQ(load<uint32_t>(room.data() + 1 + 4 * i),
                  by_alpha ? weight_of(i, o) : static_cast<uint32_t>(o * 256));
    }
  }
}

TEST(Linear, RowsOutsideTheMemoryAreRefused) {
  const std::vector<uint32_t> table(256, 128);
  Image good(20, 6);
  for (const int32_t pitch : {-80, -96, 40, 4, 76}) {
    Image odd(20, 6, pitch);
    odd.randomize(1);
    const Image before = odd;
    EXPECT_EQ(BBILinearBlt(good, odd, 0, 0, 20, 6, 0, 0, 15, 6), 1);
    EXPECT_EQ(BBILinearBlt(odd, good, 0, 0, 20, 6, 0, 0, 15, 5), 1);
    EXPECT_EQ(BBILinearRender(odd, good, 0, 0, 20, 6, 0, 0, 15, 5, table.data(), 0, 1, 0), 1);
    EXPECT_TRUE(odd == before);
    EXPECT_EQ(BBILinearBlt(odd, good, 0, 0, 20, 6, 0, 0, 20, 6), 0);  // by pitch
  }
}
