#include "frame/clip.hpp"

#include <gtest/gtest.h>

#include <array>

namespace tessaro {
namespace {

using Rect = std::array<int64_t, 6>;

Rect clipped(int64_t width, int64_t height, Rect r, int32_t want) {
  EXPECT_EQ(ClipRect(width, height, r[0], r[1], r[2], r[3], r[4], r[5]), want);
  return r;
}

TEST(ClipRect, CutsMoveTheCompanionAtTheLeftAndTopOnly) {
  EXPECT_EQ(clipped(100, 50, {-3, 5, 10, 10, 20, 30}, 0), (Rect{0, 5, 7, 10, 23, 30}));
  EXPECT_EQ(clipped(100, 50, {95, -4, 10, 10, 20, 30}, 0), (Rect{95, 0, 5, 6, 20, 34}));
  EXPECT_EQ(clipped(100, 50, {95, 45, 10, 10, 20, 30}, 0), (Rect{95, 45, 5, 5, 20, 30}));
}

TEST(ClipRect, ReportsEmpty) {
  for (const Rect r :
       {Rect{100, 0, 5, 5, 0, 0}, Rect{0, 50, 5, 5, 0, 0}, Rect{0, 0, 0, 5, 0, 0}, Rect{0, 0, 5, -1, 0, 0},
        Rect{INT32_MIN, 0, INT32_MAX, 5, 0, 0}, Rect{INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX, 0, 0}})
    clipped(100, 50, r, 1);
  clipped(-1, 50, {0, 0, 5, 5, 0, 0}, 1);
}

using Scaled = std::array<int64_t, 8>;

Scaled scaled(int32_t width, int32_t height, Scaled r, int32_t want) {
  EXPECT_EQ(ClipScaledRect(width, height, r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7]), want);
  return r;
}

TEST(ClipScaledRect, CutsTheCompanionInProportion) {
  EXPECT_EQ(scaled(100, 100, {-4, 0, 20, 10, 0, 0, 10, 10}, 0), (Scaled{0, 0, 16, 10, 2, 0, 8, 10}));
  EXPECT_EQ(scaled(100, 100, {90, 95, 20, 10, 5, 6, 10, 30}, 0), (Scaled{90, 95, 10, 5, 5, 6, 5, 15}));
}

TEST(ClipScaledRect, RefusesOnlyZeroSizes) {
  scaled(100, 100, {0, 0, 0, 5, 0, 0, 10, 10}, 1);
  scaled(100, 100, {0, 0, 5, 0, 0, 0, 10, 10}, 1);
  EXPECT_EQ(scaled(100, 100, {-2, 0, -10, 10, 0, 0, 10, 10}, 0), (Scaled{0, 0, -12, 10, -2, 0, 12, 10}));
}

TEST(ClipScaledRect, OnlyTheVerticalRatioIsSinglePrecision) {
  // 0.7 is a little less than 7 / 10 in single precision.
  EXPECT_EQ(scaled(10, 10, {-10, -10, 20, 20, 0, 0, 14, 14}, 0), (Scaled{0, 0, 10, 10, 7, 6, 7, 7}));
}

}  // namespace
}  // namespace tessaro
