#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/mman.h>
#endif

#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "core/numbers.hpp"
#include "core/random.hpp"
#include "host/process.hpp"
#include "tessaro/tessaro.h"

namespace tessaro {
namespace {

TEST(Scalars, PeeksAndPokesTakeAnyAlignmentAndNegativeIndices) {
  uint8_t bytes[16] = {};
  uint8_t* base = bytes + 7;
  EXPECT_EQ(SetWORD(base, -2, 0xABCD1234), 0x1234);
  EXPECT_EQ(bytes[3], 0x34);
  EXPECT_EQ(GetWORD(base, -2), 0x1234);
  EXPECT_EQ(SetDWORD(base, 1, 0x89ABCDEF), 0x89ABCDEFu);
  EXPECT_EQ(GetDWORD(base, 1), 0x89ABCDEFu);
  EXPECT_EQ(bytes[14], 0x89);
  EXPECT_EQ(BBI(-5), -5);
}

TEST(Scalars, ShiftsTakeTheirCountModulo32) {
  EXPECT_EQ(SHR(0xFFFFFFF8, 1), 0x7FFFFFFCu);
  EXPECT_EQ(SHR(0x80000000, 63), 1u);
  EXPECT_EQ(SAR(-8, 1), -4);
  EXPECT_EQ(SAR(INT32_MIN, 63), -1);
  EXPECT_EQ(SHL(1, 33), 2u);
  EXPECT_EQ(SHL(3, 31), 0x80000000u);
}

TEST(Scalars, CompareAndExclusiveOr) {
  const char a[] = "abcdef", b[] = "abcdeg";
  EXPECT_EQ(dllComp(a, b, 5), 0);
  EXPECT_EQ(dllComp(a, b, 6), 1);
  EXPECT_EQ(dllComp(a, b, 0), 0);
  EXPECT_EQ(dllComp(nullptr, nullptr, INT32_MIN), 0);
  std::vector<uint8_t> long_one(10000, 7), long_other(10003, 7);
  EXPECT_EQ(dllComp(long_one.data(), long_other.data() + 3, 10000), 0);
  long_other.back() = 8;
  EXPECT_EQ(dllComp(long_one.data(), long_other.data() + 3, 9999), 0);
  EXPECT_EQ(dllComp(long_one.data(), long_other.data() + 3, 10000), 1);
  std::vector<uint8_t> d(64), s(64);
  for (size_t i = 0; i < 64; ++i) {
    d[i] = static_cast<uint8_t>(i);
    s[i] = static_cast<uint8_t>(i * 37 + 1);
  }
  const auto before = d;
  EXPECT_EQ(CopyMemoryEx(d.data() + 43, s.data() + 43, 2, 3, -21), 0);
  for (size_t i = 0; i < 64; ++i) {
    const bool inside = (i >= 1 && i < 9) || (i >= 22 && i < 30) || (i >= 43 && i < 51);
    EXPECT_EQ(d[i], inside ? before[i] ^ s[i] : before[i]) << i;
  }
  EXPECT_EQ(CopyMemoryEx(d.data() + 43, s.data() + 43, 2, 3, -21), 0);
  EXPECT_EQ(d, before);
  EXPECT_EQ(CopyMemoryEx(nullptr, nullptr, INT32_MIN, INT32_MAX, 1), 0);
  EXPECT_EQ(CopyMemoryEx(nullptr, nullptr, 5, 0, 1), 0);
}

TEST(Scalars, HashesAreThoseOfStoredFilesAndReadNoFurtherThanTheyMay) {
  EXPECT_EQ(hash32A("The quick brown fox\xFF"), 0x007F6B0Du);
  EXPECT_EQ(hash32W("The quick brown fox\xFF", 20), 0x2505F3B1u);
  EXPECT_EQ(hash32A(""), 0xA82976E5u);
  EXPECT_EQ(hash32W(nullptr, INT32_MIN), 0xA82976E5u);
  const std::string text(64, 'x');
  // The 65th byte does not exist for it, not even as an end.
  const std::vector<char> exact(text.begin(), text.end());
  EXPECT_EQ(hash32A(exact.data()), hash32A(text.c_str()));
  EXPECT_EQ(hash32W("a\0b", 3), hash32W("ab", 2));
}

TEST(Scalars, ColourBlendTruncatesEachChannelAndLimitsTheFactor) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (const auto& [factor, mixed] : {std::pair{0.5f, 0x80801205u},
                                      {0.3f, 0x52B31704u},  // weights 180 and 76
                                      {0.0f, 0x10FF2003u},
                                      {-1.0f, 0x10FF2003u},
                                      {nan, 0x10FF2003u},
                                      {1.0f, 0xF0010507u},
                                      {7.0f, 0xF0010507u}})
    EXPECT_EQ(dwColorBlend(0x10FF2003, 0xF0010507, factor), mixed) << factor;
}

TEST(Scalars, CallsThroughPointers) {
  EXPECT_EQ(dllMethod1([](intptr_t a) -> intptr_t { return ~a; }, INTPTR_MIN), INTPTR_MAX);
  EXPECT_EQ(dllMethod4([](intptr_t a, intptr_t b, intptr_t c,
                          intptr_t d) -> intptr_t { return a + 10 * b + 100 * c + 1000 * d; },
                       1, 2, 3, 4),
            4321);
  struct Host {
    static intptr_t TESSARO_CALL minus(intptr_t a, intptr_t b) { return a - b; }
  };
  EXPECT_EQ(StdCallBack(Host::minus, 5, 12), -7);
}

// The seeding of the generator's first published version, for the standard library's generator.
struct FirstSeeding {
  using result_type = uint32_t;
  uint32_t s;
  template <class Word>
  void generate(Word at, Word end) {
    for (; at != end; ++at) {
      const uint32_t upper = s & 0xFFFF0000;
      s = 69069 * s + 1;
      *at = upper | s >> 16;
      s = 69069 * s + 1;
    }
  }
};

TEST(Generator, DrawsTheTwisterWithItsFirstSeeding) {
  FirstSeeding seeding{4357};
  std::mt19937 twister(seeding);
  seed_random(4357);
  for (int n = 0; n < 3 * 624; ++n) ASSERT_EQ(GetRandom(0xFFFFFFFF), twister() % 0xFFFFFFFF);
  // A modulus of 1 says nothing but moves on.
  seed_random(1);
  const uint32_t first = GetRandom(1u << 31), second = GetRandom(1u << 31);
  seed_random(1);
  EXPECT_EQ(GetRandom(1), 0u);
  EXPECT_EQ(GetRandom(1u << 31), second);
  EXPECT_NE(first, second);
}

#ifndef _WIN32
TEST(Scalars, ComparingTouchesNoPageBehindTheFirstDifference) {
  const size_t page = 4096;
  char* ends[2];
  for (char*& end : ends) {
    void* memory = mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    end = static_cast<char*>(memory) + page;
    mprotect(end, page, PROT_NONE);
  }
  ends[0][-1] = 1;
  EXPECT_EQ(dllComp(ends[0] - 4, ends[1] - 4, 1 << 20), 1);
  ends[1][-3] = 1;
  EXPECT_EQ(dllComp(ends[0] - 3, ends[1] - 4, 1 << 20), 1);
  for (char* end : ends) munmap(end - page, 2 * page);
}
#endif

TEST(Processor, Levels) {
  constexpr uint32_t cmov = 1u << 15, mmx = 1u << 23, sse = 1u << 25, sse2 = 1u << 26;
  for (const auto& [flags, level] : {std::pair{0u, 2},
                                     {cmov | sse | sse2, 3},
                                     {mmx, 4},
                                     {mmx | sse | cmov, 12},
                                     {mmx | sse2, 20},
                                     {mmx | sse | sse2, 28}})
    EXPECT_EQ(cpu_level_of(flags), level);
  EXPECT_EQ(GetCpuID(), 28);  // every processor that the vector code runs on
}

TEST(Numbers, TruncationOfWhatDoesNotFitGivesTheSmallestInteger) {
  EXPECT_EQ(trunc32(2147483647.5), INT32_MAX);
  EXPECT_EQ(trunc32(-2147483648.9), INT32_MIN);
  for (const double v :
       {2147483648.0, -2147483649.0, 1e300, -1e300, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(trunc32(v), INT32_MIN);
  EXPECT_EQ(trunc32(-0.9f), 0);
  EXPECT_EQ(trunc32(2147483648.0f), INT32_MIN);
}

}  // namespace
}  // namespace tessaro
