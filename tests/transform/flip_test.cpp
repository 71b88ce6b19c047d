#include "transform/models.hpp"

using namespace tessaro;
using namespace tessaro::test;

namespace {

#define CALL TESSARO_UNSCALED_CALL

std::vector<UnscaledRow> rows() {
  std::vector<UnscaledRow> all;
  for (const float opacity : {0.0f, 0.003f, 0.3f, 0.5f, 0.999f, 1.0f, 7.0f}) {
    const float o = opacity > 1.0f ? 1.0f : opacity;
    all.push_back({"BBIFlip", CALL(BBIFlip, opacity),
                   [=](uint32_t d, uint32_t s) { return mixed(d, s, static_cast<uint32_t>(o * 256.0f)); }});
    all.push_back({"BBIFlipBlend", CALL(BBIFlipBlend, opacity),
                   [=](uint32_t d, uint32_t s) { return mixed(d, s, weight_of(s >> 24, o)); }});
  }
  all.push_back(
      {"BBIDepth", CALL(BBIDepth), [](uint32_t d, uint32_t s) { return s >> 24 > d >> 24 ? s : d; }});
  constexpr uint32_t keep = 0xF0F00F33;
  all.push_back({"BBIDepthMask", CALL(BBIDepthMask, keep),
                 [](uint32_t d, uint32_t s) { return s >> 24 > d >> 24 ? (d & keep) | (s & ~keep) : d; }});
  return all;
}

}  // namespace

TEST(Flip, EqualsTheFormulaForEveryPairOfBytes) { compare_every_pair_of_bytes(rows()); }
TEST(Flip, EqualsOnePixelAfterAnotherInEveryShape) { compare_every_shape(rows()); }
TEST(Flip, ExtremeRectanglesStayInsideBothImages) { compare_extreme_rectangles(rows()); }

TEST(Flip, RefusesBadOpacities) {
  Image image(9, 9), src(9, 9);
  image.randomize(1);
  const Image before = image;
  for (const float bad : {-0.001f, -INFINITY, NAN}) {
    EXPECT_EQ(BBIFlip(image, src, 0, 0, 9, 9, 0, 0, bad), 1);
    EXPECT_EQ(BBIFlipBlend(image, src, 0, 0, 9, 9, 0, 0, bad), 1);
  }
  EXPECT_TRUE(image == before);
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
