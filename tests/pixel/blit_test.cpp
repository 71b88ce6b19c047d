#include <gtest/gtest.h>
#include "support/images.hpp"
using namespace tessaro::test;
TEST(Blit, Adds) {
  Image d(7, 5), s(7, 5, -40, 1);
  d.fill(0xC8C8C8C8);
  s.fill(0x64646464);
  EXPECT_EQ(BBIBltAdd(d, s, -1, 0, 100, 100, 0, 0), 0);
  EXPECT_EQ(d.get(0, 0), 0xFFFFFFFFu);
  EXPECT_EQ(d.get(6, 0), 0xC8C8C8C8u);
}
