#include "wave/samples.hpp"

#include "models.hpp"

namespace tessaro::test {
namespace {

TEST(Samples, EveryStoredSampleIsReadAsItsFormSays) {
  for (const int32_t bits : {8, 16, 24, 64, 5, 0, -1, 32})
    for (const int32_t channels : {1, 2, 0, 3}) {
      std::vector<uint8_t> bytes(16 + 8 * 2 * 600);
      Random random(static_cast<uint32_t>(bits * 8 + channels));
      for (uint8_t& byte : bytes) byte = random.byte();
      const int32_t count = 600;
      const int32_t form = bits == 8 || bits == 16 || bits == 64 ? bits : 24;
      const Buffer buffer{bytes.data() + 1, count, form, channels == 2 ? 2 : 1};
      for (int32_t i = -1; i <= count; ++i) {
        SCOPED_TRACE(testing::Message() << bits << ' ' << channels << ' ' << i);
        int32_t l = 5, r = 5;
        EXPECT_EQ(GetWave(buffer.data, i, bits, channels, count, &l, &r), 0);
        ASSERT_EQ((Frame{l, r}), buffer.get(i, 16));
        EXPECT_EQ(GetWave24(buffer.data, i, bits, channels, count, &l, &r), 0);
        ASSERT_EQ((Frame{l, r}), buffer.get(i, 24));
        double a = 5, b = 5;
        EXPECT_EQ(GetWave64(buffer.data, i, bits, channels, count, &a, &b), 0);
        const Frame64 want = bits == form || !buffer.inside(i) ? buffer.get64(i) : Frame64{5, 5};
        ASSERT_EQ(std::memcmp(&a, &want[0], 8), 0);
        ASSERT_EQ(std::memcmp(&b, &want[1], 8), 0);
      }
    }
}

TEST(Samples, WritesWrapTruncateAndClampAsTheirScaleSays) {
  std::vector<int32_t> values(std::begin(extreme_values), std::end(extreme_values));
  for (int32_t v = -70000; v < 70000; v += 117) values.push_back(v);
  Random random(1);
  for (int i = 0; i < 300; ++i)
    values.push_back(static_cast<int32_t>(random.word()) >> random.between(0, 16));
  const double reals[] = {0.0,          -0.5, 0.5, 1.0,   -1.0, 2.0, -3.0, 1e300,   -1e300,
                          std::nan(""), 0.25, 0.1, -0.99, 1e-9, 0.7, -0.0, INFINITY};
  for (const int32_t bits : {8, 16, 24, 64})
    for (const int32_t channels : {1, 2}) {
      std::vector<uint8_t> got(64, 0x55), want = got;
      const Buffer mine{want.data() + 3, 3, bits, channels};
      for (size_t v = 0; v < values.size(); ++v)
        for (const int32_t index : {-1, 1, 3}) {
          const int32_t l = values[v], r = values[(v * 7 + 3) % values.size()];
          EXPECT_EQ(LetWave(got.data() + 3, index, bits, channels, 3, l, r), 0);
          mine.let(index, 16, l, r);
          ASSERT_EQ(got, want) << bits << ' ' << channels << ' ' << l << ' ' << r;
          EXPECT_EQ(LetWave24(got.data() + 3, index, bits, channels, 3, l, r), 0);
          mine.let(index, 24, l, r);
          ASSERT_EQ(got, want) << bits << ' ' << channels << ' ' << l << ' ' << r;
        }
      for (const double l : reals)
        for (const double r : reals)
          for (const int32_t index : {-1, 2, 3}) {
            EXPECT_EQ(LetWave64(got.data() + 3, index, bits, channels, 3, l, r), 0);
            mine.let64(index, l, r);
            ASSERT_EQ(got, want) << bits << ' ' << channels << ' ' << l << ' ' << r;
          }
      LetWave64(got.data() + 3, 1, 20, channels, 3, 1, 1);
      EXPECT_EQ(got, want);
    }
}

TEST(Samples, FormatCodesAreMadeAndChecked) {
  EXPECT_EQ(waveFormatEnc(16, 2, 500), 128018);
  EXPECT_EQ(waveFormatEnc(64, 1, -1), -256 + 65);
  EXPECT_EQ(waveFormatEnc(8, 1, INT32_MAX), -256 + 9);
  for (const auto& [bits, channels] : {std::pair{0, 1}, {32, 1}, {16, 0}, {16, 3}, {-8, 1}})
    EXPECT_EQ(waveFormatEnc(bits, channels, 44100), 0);
  uint8_t bytes[16] = {1, 2, 3, 4};
  const WaveBuffer good{waveFormatEnc(16, 1, 1000), 2, bytes};
  uint8_t target[16] = {9, 9, 9, 9};
  for (const int32_t code : {0, 128018, waveFormatEnc(16, 1, 999), waveFormatEnc(16, 1, 441001),
                             44100 * 256 + 16, 44100 * 256 + 19, 44100 * 256 + 33, 44100 * 256 + 1, -1}) {
    const WaveBuffer bad{code, 2, target};
    EXPECT_EQ(waveFormat(&bad, &good), 1);
    EXPECT_EQ(waveFormat(&good, &bad), 1);
    EXPECT_EQ(waveBlt64(&bad, &good, 0, 0, 2) + waveClear64(&bad, 0, 2), 2);
    double re[2] = {}, im[2] = {};
    EXPECT_EQ(wavefft(&bad, 0, 2, re, im), 1);
  }
  EXPECT_EQ(target[0], 9);
  const WaveBuffer fast{waveFormatEnc(16, 1, 441000), 2, target};
  EXPECT_EQ(waveFormat(&fast, &good), 0);
  EXPECT_EQ(target[3], 4);
}

}  // namespace
}  // namespace tessaro::test
