#include "codec/bit_string.hpp"

namespace {

using namespace tessaro::test;

Encoded model(const Bytes& data) {
  BitString out{data.size() - 128};
  uint8_t before[4] = {};
  for (size_t at = 0; at < data.size(); at += 4) {
    uint8_t now[4];
    for (size_t k = 0; k < 4; ++k) now[k] = at + k < data.size() ? data[at + k] : before[k];
    for (size_t first : {0, 1}) {
      const auto all_agree = [&](int mask) {
        return (now[first] & mask) == (before[first] & mask) &&
               (now[first + 2] & mask) == (before[first + 2] & mask);
      };
      unsigned width = 8;
      if (all_agree(0xFF))
        out.put(7, 3), width = 0;
      else if (all_agree(0xF8))
        out.put(6, 3), width = 3;
      else if (all_agree(0xE0))
        out.put(2, 2), width = 5;
      else
        out.put(0, 1);
      out.put(now[first], width);
      out.put(now[first + 2], width);
    }
    std::copy(now, now + 4, before);
    if (out.full()) return out.ended();
  }
  return out.flushed();
}

TEST(Imist, CodesPairsOfChannels) {
  expect_same_streams({imistEncoder, model, imistDecoder, imistDecoderSafe, 129});
  // Blue changes in its low bits, red does not, green and alpha repeat: 110 010 000 111 after a pixel of 34 bits.
  Bytes data = {16, 32, 48, 255, 18, 32, 48, 255};
  while (data.size() < 400) data.insert(data.end(), data.end() - 4, data.end());
  const Encoded e = encode(imistEncoder, data);
  ASSERT_EQ(e.result, 0);
  const Bytes start(e.stream.begin(), e.stream.begin() + 7);
  // 0 00010000 00110000  0 00100000 11111111  110 010 000 111  111111...
  EXPECT_EQ(start, (Bytes{0x08, 0x18, 0x08, 0x3F, 0xF2, 0x1F, 0xFF}));
}

}  // namespace
