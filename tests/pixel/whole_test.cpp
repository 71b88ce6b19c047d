#include <array>
#include <functional>
#include <set>

#include "support/models.hpp"

namespace tessaro::test {
namespace {

using Box = std::array<int32_t, 4>;

int at(uint32_t p, int channel) { return static_cast<int>(p >> (8 * channel) & 255); }
bool grey(uint32_t p) { return at(p, 0) == at(p, 1) && at(p, 1) == at(p, 2); }

TEST(Compare, FailsAtTheOneWrongPixel) {
  const struct {
    uint32_t a, b;
    bool (*pass)(uint32_t a, uint32_t b);
  } modes[] = {{0x12345678, 0x12345678, [](uint32_t a, uint32_t b) { return a == b; }},
               {0x12345678, 0x99345678, [](uint32_t a, uint32_t b) { return (a ^ b) % 0x1000000 == 0; }},
               {0x12345678, 0x12FFFFFF, [](uint32_t a, uint32_t b) { return at(a, 3) == at(b, 3); }},
               {},
               {0x00345678, 0, [](uint32_t a, uint32_t) { return at(a, 3) == 0; }},
               {0xFF345678, 0, [](uint32_t a, uint32_t) { return at(a, 3) == 255; }},
               {0x12FFFFFF, 0, [](uint32_t a, uint32_t) { return grey(a) && (at(a, 0) + 1) % 256 < 2; }},
               {0x11232323, 0, [](uint32_t a, uint32_t) { return grey(a); }}};
  for (const Forced backend : supported_backends()) {
    Random random(1);
    for (const int32_t mode : {0, 1, 2, 4, 5, 6, 7})
      for (int32_t w = 1; w < 150; w += 1 + w / 40) {
        Image a = image_of_rows_apart(random, w, 3), b = image_of_rows_apart(random, w, 3);
        a.fill(modes[mode].a);
        b.fill(modes[mode].b);
        ASSERT_EQ(BBICompare(a, b, mode), 0) << "mode " << mode << " width " << w;
        for (int trial = 0; trial < 60; ++trial) {
          const int32_t x = random.between(0, w - 1), y = random.between(0, 2);
          const uint32_t flip = 1u << random.between(0, 31);
          Image& changed = trial % 2 ? a : b;
          changed.set(x, y, changed.get(x, y) ^ flip);
          ASSERT_NE(BBICompare(a, b, mode), modes[mode].pass(a.get(x, y), b.get(x, y)))
              << "mode " << mode << " width " << w << " flip " << flip;
          changed.set(x, y, changed.get(x, y) ^ flip);
        }
      }
  }
  Image a(5, 2), narrow(4, 2), flat(5, 0), thin(0, 5);
  a.fill(0);
  EXPECT_EQ(BBICompare(a, narrow, 4), 1);
  EXPECT_EQ(BBICompare(flat, flat, 3), 0);
  EXPECT_EQ(BBICompare(thin, thin, 0), 0);
  for (const int32_t mode : {3, 8, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(BBICompare(a, a, mode), 2);
    EXPECT_EQ(BBICompare(thin, thin, mode), 2);
  }
}

TEST(Compare, CountsPixelsThatDifferALittle) {
  for (const Forced backend : supported_backends()) {
    Random random(2);
    for (const int32_t w : {1, 3, 17, 70, 9000}) {
      Image a = w > 8000 ? Image(w, 1, 4) : image_of_rows_apart(random, w, 4), b = a;
      for_pixels(b, [&](int32_t x, int32_t y) {
        if (w > 8000)  // every one counts
          b.set(x, y, a.get(x, y) ^ 1);
        else if (random.between(0, 4))
          b.set(x, y, random.pixel());
      });
      for (const int32_t tolerance : {0, 1, 2, 20, 254, 255, 256, -5, INT32_MIN, INT32_MAX})
        for (const uint32_t mask : {0xFFFFFFFFu, 0u, 0x00FF00FFu, 0xF0F0F0F0u}) {
          int32_t count = 0;
          const int t = std::clamp(tolerance, 1, 255);
          for_pixels(a, [&](int32_t x, int32_t y) {
            const uint32_t ma = a.get(x, y) & mask, mb = b.get(x, y) & mask;
            bool near = false;
            for (int c = 0; c < 4; ++c) near = near || std::abs(at(ma, c) - at(mb, c)) <= t;
            count += ma != mb && near;
          });
          ASSERT_EQ(BBICompareAny(a, b, mask, tolerance), count) << w;
        }
    }
  }
  Image a(5, 2), b(5, 3), flat(5, 0);
  EXPECT_EQ(BBICompareAny(a, b, 0, 1), -1);
  EXPECT_EQ(BBICompareAny(flat, flat, ~0u, 1), 0);
}

TEST(Colours, CountsAndCollects) {
  Random random(3);
  for (int trial = 0; trial < 40; ++trial) {
    // Past 2^15 pixels another way of counting begins.
    const bool large = trial % 8 == 0;
    Image image = large ? Image(300, 200, -1204, 1)
                        : image_of_rows_apart(random, random.between(1, 60), random.between(1, 9));
    const int32_t kinds = random.between(1, 400);
    for_pixels(image, [&](int32_t x, int32_t y) {
      image.set(x, y, static_cast<uint32_t>(random.between(0, kinds)) * 0x2F1E35u ^ random.word() << 24);
    });
    std::set<uint32_t> colours;
    for_pixels(image, [&](int32_t x, int32_t y) { colours.insert(image.get(x, y) & 0xFFFFFF); });
    EXPECT_EQ(BBIColorCount(image, 0), static_cast<int32_t>(colours.size()));
    EXPECT_EQ(BBIColorCount(image, 1), 0);

    const int32_t max = trial % 4 == 0 ? 256 : trial % 4 == 1 ? 0 : random.between(1, 255);
    Image model = image;
    std::vector<uint32_t> palette(257, 0xCCCCCCCC), expected = palette;
    int32_t n = 0;
    for_pixels(model, [&](int32_t x, int32_t y) {
      const uint32_t colour = model.get(x, y) & 0xFFFFFF;
      const auto kept = expected.begin() + std::min(n, max);
      auto slot = std::find(expected.begin(), kept, colour);
      uint32_t index = static_cast<uint32_t>(slot - expected.begin());
      if (slot == kept) {
        if (n++ < max)
          *slot = colour;
        else
          index = 0;
      }
      model.set(x, y, index << 24 | colour);
    });
    EXPECT_EQ(BBIColorPalette(image, palette.data(), max), n);
    EXPECT_EQ(palette, expected);
    EXPECT_EQ(image, model) << "max " << max;
  }
  Image image(3, 3), before = image;
  for (const int32_t max : {-1, 257, INT32_MIN, INT32_MAX})
    EXPECT_EQ(BBIColorPalette(image, nullptr, max), 0);
  EXPECT_EQ(image, before);
}

TEST(Trim, FindsTheContent) {
  for (const Forced backend : supported_backends()) {
    Random random(4);
    for (int trial = 0; trial < 400; ++trial) {
      Image image = image_of_rows_apart(random, random.between(1, 150), random.between(1, 9));
      image.fill(0x7F332211);
      for (int dots = random.between(0, 3); dots > 0; --dots) {
        const int32_t x = random.between(0, image.width() - 1), y = random.between(0, image.height() - 1);
        const bool masked = random.between(0, 3) == 0;  // differs only where the mask does not look
        image.set(x, y, masked ? 0x00332211 : 0x7F332210);
      }
      int32_t x0 = INT32_MAX, y0 = INT32_MAX, x1 = -1, y1 = -1;
      for_pixels(image, [&](int32_t x, int32_t y) {
        if ((image.get(x, y) & 0xFFFFFF) != 0x332211)
          x0 = std::min(x0, x), x1 = std::max(x1, x), y0 = std::min(y0, y), y1 = std::max(y1, y);
      });
      if (x1 < 0) x0 = y0 = x1 = y1 = 0;
      const Image before = image;
      Box box;
      ASSERT_EQ(BBITrim(image, 0, 0xFFFFFF, 0x332211, &box[0], &box[1], &box[2], &box[3]), 0);
      ASSERT_EQ(image, before);
      ASSERT_EQ(box, (Box{x0, y0, x1 - x0 + 1, y1 - y0 + 1})) << image;
    }
  }
  Box box{9, 9, 9, 9};
  Image empty(0, 4);
  EXPECT_EQ(BBITrim(empty, -1, 0, 1, &box[0], &box[1], &box[2], &box[3]), 1);
  EXPECT_EQ(box, (Box{9, 9, 9, 9}));
  EXPECT_EQ(BBITrim(empty, 0, 0, 1, &box[0], &box[1], &box[2], &box[3]), 0);
  EXPECT_EQ(box, (Box{0, 0, 1, 1}));
}

uint32_t mean_of_neighbours(Image& image, int32_t x, int32_t y) {
  const uint32_t here = image.get(x, y);
  int sums[3] = {}, n = 0;
  for (const auto& [a, b] : neighbours(image, x, y)) {
    const uint32_t p = image.get(a, b);
    if (at(p, 3) == 0) continue;
    ++n;
    for (int c = 0; c < 3; ++c) sums[c] += at(p, c);
  }
  if (at(here, 3) != 0 || n == 0) return here;
  return static_cast<uint32_t>(sums[0] / n | (sums[1] / n) << 8 | (sums[2] / n) << 16);
}

// Every operation that makes a new pixel from an old image.
TEST(Whole, EqualsTheModelInEveryShape) {
  struct Row {
    const char* name;
    std::function<int32_t(ImageRecord*)> run;
    std::function<uint32_t(Image&, int32_t x, int32_t y)> model;
  };
  const Row rows[] = {
      {"Clear", [](auto* i) { return BBIClear(i, 300, -4, 7, 256); },
       [](auto&, int, int) { return 0xFFFF0007u; }},
      {"ClearRGB", [](auto* i) { return BBIClearRGB(i, 1, INT32_MAX, INT32_MIN); },
       [](auto& i, int x, int y) { return (i.get(x, y) & 0xFF000000) | 0x01FF00; }},
      {"ClearMask", [](auto* i) { return BBIClearMask(i, 0x11, 0x22, 0x33, 0x44, 0x0FF000F3u); },
       [](auto& i, int x, int y) { return (i.get(x, y) & 0x0FF000F3u) | (0x44112233u & ~0x0FF000F3u); }},
      {"ClearMask 0", [](auto* i) { return BBIClearMask(i, 0x11, 0x22, 0x33, 0x44, 0); },
       [](auto&, int, int) { return 0x44112233u; }},
      {"Mirror", BBIMirror, [](auto& i, int x, int y) { return i.get(i.width() - 1 - x, y); }},
      {"VMirror", BBIVMirror, [](auto& i, int x, int y) { return i.get(x, i.height() - 1 - y); }},
      {"Keying", [](auto* i) { return BBIKeying(i, 0x99FF00FF); },
       [](auto& i, int x, int y) {
         const uint32_t p = i.get(x, y) & 0xFFFFFF;
         return p == 0xFF00FF ? p : p | 0xFF000000;
       }},
      {"KeyingFilter", BBIKeyingFilter, mean_of_neighbours},
  };
  for (const Forced backend : supported_backends()) {
    Random random(5);
    for (const Row& row : rows)
      for (int32_t w = 0; w < 75; ++w) {
        Image image = image_of_rows_apart(random, w, random.between(w == 70 ? 0 : 1, 5));
        for_pixels(image, [&](int32_t x, int32_t y) {
          const int32_t kind = random.between(0, 5);
          const uint32_t p = image.get(x, y);
          if (kind < 4) image.set(x, y, kind == 0 ? 0xFF00FF | p << 24 : p & 0xFFFFFF);
        });
        Image before = image, model = image;
        for_pixels(model, [&](int32_t x, int32_t y) { model.set(x, y, row.model(before, x, y)); });
        ASSERT_EQ(row.run(image), w == 0 || image.height() == 0 ? 1 : 0);
        ASSERT_EQ(image, model) << row.name << ' ' << "width " << w;
      }
  }
  EXPECT_EQ(BBIAntiAreas(INT32_MIN, 0, -1), 0);
}

TEST(Whole, RowsThatRunIntoOneAnotherGoPixelByPixel) {
  for (const Forced backend : supported_backends())
    for (const int32_t pitch : {4, 37, 150, -4, -101}) {
      Random random(8);
      Image image(40, 6, pitch);
      for_pixels(image, [&](int32_t x, int32_t y) { image.set(x, y, random.pixel()); });
      Image model = image;
      for_pixels(model, [&](int32_t x, int32_t y) { model.set(x, y, mean_of_neighbours(model, x, y)); });
      ASSERT_EQ(BBIKeyingFilter(image), 0);
      ASSERT_EQ(image, model) << "pitch " << pitch;
      for (int32_t y = 0; y < 3; ++y)
        for (int32_t x = 0; x < 40; ++x) {
          const uint32_t p = model.get(x, y), q = model.get(x, 5 - y);
          model.set(x, y, q);
          model.set(x, 5 - y, p);
        }
      ASSERT_EQ(BBIVMirror(image), 0);
      ASSERT_EQ(image, model) << "pitch " << pitch;
    }
  // Painting uncovers what it has painted: more spans than an image has pixels, all of them within it.
  Image image(5, 13, 10);
  for (int i = 0; i < 140; ++i) image.at(0, 0)[i] = i % 4 == 3;
  Box box;
  EXPECT_EQ(BBIPaint(image, 3, 12, 0x100, &box[0], &box[1], &box[2], &box[3]), 0);
}

TEST(Rotation, PutsEveryPixelInItsPlace) {
  for (const Forced backend : supported_backends()) {
    Random random(6);
    for (int trial = 0; trial < 300; ++trial) {
      const int32_t w = random.between(1, trial % 3 ? 40 : 150), h = random.between(1, trial % 5 ? 40 : 150);
      const int32_t mode = trial % 3;
      Image src = some_image(random, w, h),
            dst = mode == 1 ? some_image(random, w, h) : some_image(random, h, w);
      Image model = dst;
      for_pixels(src, [&](int32_t x, int32_t y) {
        const uint32_t p = src.get(x, y);
        if (mode == 0) model.set(h - 1 - y, x, p);
        if (mode == 1) model.set(w - 1 - x, h - 1 - y, p);
        if (mode == 2) model.set(y, w - 1 - x, p);
      });
      ASSERT_EQ(BBIRotation(dst, src, mode), 0);
      ASSERT_EQ(dst, model) << "mode " << mode << ' ' << w << " x " << h;
    }
  }
  Image dst(3, 2), src(2, 3), flat(5, 0), tall(0, 5), before = dst;
  EXPECT_EQ(BBIRotation(dst, src, 1), 1);
  EXPECT_EQ(BBIRotation(dst, dst, 0), 1);
  EXPECT_EQ(BBIRotation(dst, dst, 2), 1);
  EXPECT_EQ(BBIRotation(tall, flat, 0), 0);
  EXPECT_EQ(BBIRotation(flat, tall, 2), 0);
  for (const int32_t mode : {3, -1, INT32_MIN, INT32_MAX}) EXPECT_EQ(BBIRotation(dst, src, mode), 0);
  EXPECT_EQ(dst, before);
}

// One neighbour after another, from a list.
int32_t naive_paint(Image& image, int32_t x, int32_t y, uint32_t colour, Box& box) {
  if (!inside(image, x, y) || image.get(x, y) == colour) return 1;
  const uint32_t old = image.get(x, y);
  std::vector<std::pair<int32_t, int32_t>> list{{x, y}};
  for (box = {x, y, x, y}; !list.empty();) {
    const auto [px, py] = list.back();
    list.pop_back();
    image.set(px, py, colour);
    box = {std::min(box[0], px), std::min(box[1], py), std::max(box[2], px), std::max(box[3], py)};
    for (const auto& [nx, ny] : neighbours(image, px, py))
      if (image.get(nx, ny) == old) list.push_back({nx, ny});
  }
  return 0;
}

TEST(Paint, FillsExactlyTheConnectedPixels) {
  const uint32_t values[] = {0, 0xFF000000, 0x00000001, 0xFF00FF00};
  for (const Forced backend : supported_backends()) {
    Random random(7);
    for (int trial = 0; trial < 1500; ++trial) {
      Image image =
          image_of_rows_apart(random, random.between(1, trial % 4 ? 24 : 90), random.between(1, 24));
      // From open ground with a few stones over mazes of corridors to scattered pixels.
      const int32_t density = random.between(0, 9), step = random.between(1, 4);
      const bool corridors = trial % 3 == 0;
      for_pixels(image, [&](int32_t x, int32_t y) {
        const bool wall = corridors ? (x % (step + 1) == step || y % 5 == 4) && random.between(0, 3)
                                    : random.between(0, 20) < density;
        image.set(x, y, values[wall ? random.between(1, 3) : 0]);
      });
      Image model = image;
      const int32_t x = random.between(-1, image.width()), y = random.between(-1, image.height());
      const uint32_t colour = values[random.between(0, 3)];
      Box got{-5, -5, -5, -5}, box = got;
      const int32_t status = naive_paint(model, x, y, colour, box);
      ASSERT_EQ(BBIPaint(image, x, y, colour, &got[0], &got[1], &got[2], &got[3]), status);
      ASSERT_EQ(image, model) << "from " << x << ", " << y;
      ASSERT_EQ(got, box);
    }
  }
  Image image(4, 4);
  for (const int32_t v : extreme_values)
    if (v < 0 || v > 3) {
      EXPECT_EQ(BBIPaint(image, v, 1, 5, nullptr, nullptr, nullptr, nullptr), 1);
      EXPECT_EQ(BBIPaint(image, 1, v, 5, nullptr, nullptr, nullptr, nullptr), 1);
    }
}

}  // namespace
}  // namespace tessaro::test
