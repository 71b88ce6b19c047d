#include "transform/models.hpp"

using namespace tessaro;
using namespace tessaro::test;

namespace {

struct Call {
  int32_t dx, dy, w, h, sx, sy;
};
using Export = std::function<int32_t(ImageRecord*, ImageRecord*, const Call&)>;
using Rule = std::function<uint32_t(uint32_t d, uint32_t s)>;

int32_t expected(Image& dst, Image& src, const Call& c, const Rule& rule) {
  bool any = false;
  for (int32_t y = 0; y < c.h; ++y)
    for (int32_t x = 0; x < c.w; ++x) {
      const int32_t tx = c.dx + x, ty = c.dy + y, fx = c.sx + x, fy = c.sy + y;
      if (tx < 0 || ty < 0 || tx >= dst.width() || ty >= dst.height()) continue;
      if (fx < 0 || fy < 0 || fx >= src.width() || fy >= src.height()) continue;
      dst.set(tx, ty, rule(dst.get(tx, ty), src.get(fx, fy)));
      any = true;
    }
  return any ? 0 : 1;
}

uint32_t in_front(uint32_t d, uint32_t s, uint32_t keep) {
  return s >> 24 > d >> 24 ? (d & keep) | (s & ~keep) : d;
}

struct Row {
  const char* name;
  Export call;
  Rule rule;
};
std::vector<Row> rows() {
  std::vector<Row> all;
  for (const float opacity : {0.0f, 0.003f, 0.3f, 0.5f, 0.999f, 1.0f, 7.0f}) {
    const float o = opacity > 1.0f ? 1.0f : opacity;
    all.push_back({"BBIFlip",
                   [=](auto* d, auto* s, const Call& c) {
                     return BBIFlip(d, s, c.dx, c.dy, c.w, c.h, c.sx, c.sy, opacity);
                   },
                   [=](uint32_t d, uint32_t s) { return mixed(d, s, static_cast<uint32_t>(o * 256.0f)); }});
    all.push_back({"BBIFlipBlend",
                   [=](auto* d, auto* s, const Call& c) {
                     return BBIFlipBlend(d, s, c.dx, c.dy, c.w, c.h, c.sx, c.sy, opacity);
                   },
                   [=](uint32_t d, uint32_t s) { return mixed(d, s, weight_of(s >> 24, o)); }});
  }
  all.push_back(
      {"BBIDepth",
       [](auto* d, auto* s, const Call& c) { return BBIDepth(d, s, c.dx, c.dy, c.w, c.h, c.sx, c.sy); },
       [](uint32_t d, uint32_t s) { return in_front(d, s, 0); }});
  all.push_back({"BBIDepthMask",
                 [](auto* d, auto* s, const Call& c) {
                   return BBIDepthMask(d, s, c.dx, c.dy, c.w, c.h, c.sx, c.sy, 0xF0F00F33);
                 },
                 [](uint32_t d, uint32_t s) { return in_front(d, s, 0xF0F00F33); }});
  return all;
}

}  // namespace

TEST(Flip, EveryAlphaAgainstEveryByte) {
  Image src(256, 256), start(256, 256);
  for (int32_t y = 0; y < 256; ++y)
    for (int32_t x = 0; x < 256; ++x) {
      const auto a = static_cast<uint32_t>(x), v = static_cast<uint32_t>(y);
      src.set(x, y, a << 24 | v << 16 | (v ^ 0x5A) << 8 | (255 - v));
      start.set(x, y, v << 24 | (255 - v) << 16 | v << 8 | (v ^ 0xA5));
    }
  for (const Row& row : rows()) {
    Image want = start;
    expected(want, src, {0, 0, 256, 256, 0, 0}, row.rule);
    for (const Backend backend : supported_backends()) {
      const Forced forced(backend);
      Image got = start;
      EXPECT_EQ(row.call(got, src, {0, 0, 256, 256, 0, 0}), 0);
      EXPECT_TRUE(got == want) << row.name << " on " << name_of(backend);
    }
  }
}

TEST(Flip, FollowsTheModelOnRandomRectanglesAlsoWithinOneImage) {
  const auto all = rows();
  for (const Backend backend : supported_backends()) {
    const Forced forced(backend);
    Random random(11);
    for (int round = 0; round < 3000; ++round) {
      const Row& row = all[random.word() % all.size()];
      Image dst = random_image(random, random.between(1, 70), random.between(1, 5));
      Image src = random_image(random, random.between(1, 70), random.between(1, 5));
      const Call c = {random.between(-5, 20), random.between(-3, 4),  random.between(0, 70),
                      random.between(0, 6),   random.between(-5, 20), random.between(-3, 4)};
      const bool one = round % 2 == 0;
      Image want = dst;
      const int32_t status = expected(want, one ? want : src, c, row.rule);
      ASSERT_EQ(row.call(dst, one ? dst : src, c), status);
      ASSERT_TRUE(dst == want) << row.name << " on " << name_of(backend) << ", round " << round << dst
                               << want;
    }
  }
}

TEST(Flip, RefusesBadOpacitiesAndExtremeRectangles) {
  Image image(9, 9), src(9, 9);
  image.randomize(1);
  const Image before = image;
  for (const float bad : {-0.001f, -INFINITY, NAN}) {
    EXPECT_EQ(BBIFlip(image, src, 0, 0, 9, 9, 0, 0, bad), 1);
    EXPECT_EQ(BBIFlipBlend(image, src, 0, 0, 9, 9, 0, 0, bad), 1);
  }
  EXPECT_TRUE(image == before);
  for (const int32_t a : extreme_values)
    for (const int32_t b : extreme_values) {
      BBIFlip(image, src, a, b, b, a, a, b, 0.5f);
      BBIFlipBlend(image, src, b, a, INT32_MAX, INT32_MAX, b, a, INFINITY);
      BBIDepth(image, src, a, 0, INT32_MAX, 9, b, 0);
      BBIDepthMask(image, src, 0, a, 9, INT32_MAX, 0, b, 1);
      BBIFlipLineX(image, a, 3, b, 7);
      BBIFlipLineY(image, 3, a, b, 7);
      BBIFlipLineX(image, 3, a, b, 7);
      BBIFlipLineY(image, a, 3, b, 7);
    }
}

TEST(Flip, DrawsCutLines) {
  struct {
    int32_t at, length;
    std::vector<int> filled;
  } const runs[] = {{-3, 5, {0, 1}},
                    {4, 9, {4, 5, 6}},
                    {0, 7, {0, 1, 2, 3, 4, 5, 6}},
                    {-9, INT32_MAX, {0, 1, 2, 3, 4, 5, 6}},
                    {7, 1, {}},
                    {2, 0, {}},
                    {-5, 5, {}},
                    {2, -1, {}}};
  for (const auto& run : runs) {
    Image want_x(7, 7, -28, 1), want_y(7, 7, -28, 1);
    Image x = want_x, y = want_y;
    for (const int at : run.filled) want_x.set(at, 2, 0x12345678), want_y.set(2, at, 0x12345678);
    EXPECT_EQ(BBIFlipLineX(x, run.at, 2, run.length, 0x12345678), run.filled.empty());
    EXPECT_EQ(BBIFlipLineY(y, 2, run.at, run.length, 0x12345678), run.filled.empty());
    EXPECT_TRUE(x == want_x && y == want_y) << run.at << ", " << run.length;
    EXPECT_EQ(BBIFlipLineX(x, 0, 7, 1, 0) + BBIFlipLineX(x, 0, -1, 1, 0), 2);
    EXPECT_EQ(BBIFlipLineY(y, 7, 0, 1, 0) + BBIFlipLineY(y, -1, 0, 1, 0), 2);
  }
  // The step of a vertical line is a multiple of 4 bytes: with a pitch of 31 it is 28.
  Image drifting(7, 4, 31), want(7, 4, 31);
  EXPECT_EQ(BBIFlipLineY(drifting, 2, 1, 3, 0x12345678), 0);
  for (int k = 0; k < 3; ++k) store(want.at(2, 1) + 28 * k, 0x12345678u);
  EXPECT_TRUE(drifting == want);
  // Toward lower addresses it would leave the image.
  Image up(7, 9, -29), first(7, 9, -29);
  EXPECT_EQ(BBIFlipLineY(up, 0, 0, 9, 1), 0);
  for (int k = 0; k < 8; ++k) store(first.at(0, 0) - 32 * k, 1u);
  EXPECT_TRUE(up == first);
}
