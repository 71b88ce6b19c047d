#include "codec/bit_string.hpp"

namespace {

using namespace tessaro::test;

Encoded model(const Bytes& data) {
  BitString out{data.size() - 128};
  uint8_t before[4] = {};
  for (size_t at = 0; at < data.size(); at += 4) {
    uint8_t now[4];
    for (size_t k = 0; k < 4; ++k) now[k] = at + k < data.size() ? data[at + k] : before[k];
    unsigned a = 0, b = 0, f5 = 0, f3 = 0;
    for (unsigned k = 0; k < 4; ++k) {
      if ((now[k] & 0xF8) == (before[k] & 0xF8)) ++a, f5 |= 2u << k;
      if ((now[k] & 0xE0) == (before[k] & 0xE0)) ++b, f3 |= 2u << k;
    }
    if (std::equal(now, now + 4, before)) {
      out.put(1, 5);
    } else {
      const bool low3 = 3 * b < 5 * a;
      const unsigned flags = low3 ? f5 : f3;
      out.put(flags | low3, 5);
      for (unsigned k = 0; k < 4; ++k) out.put(now[k], flags & 2u << k ? low3 ? 3 : 5 : 8);
    }
    std::copy(now, now + 4, before);
    if (out.full()) return out.ended();
  }
  return out.flushed();
}

TEST(Ica, CutsBytesOfPixels) {
  check_codec({icaEncoder, model, icaDecoder, icaDecoderSafe, 129});
  // Every head, also the ones that an encoder would not choose here: the bytes 0x40 + k, then fields of all ones.
  for (unsigned head = 0; head < 32; ++head) {
    BitString stream;
    Bytes expected = {0x40, 0x41, 0x42, 0x43};
    stream.put(0, 5);
    for (uint8_t byte : expected) stream.put(byte, 8);
    stream.put(head, 5);
    for (unsigned k = 0; k < 4; ++k) {
      const unsigned width = head == 1 ? 0 : (head & 2u << k) == 0 ? 8 : head & 1 ? 3 : 5;
      stream.put(0xFF, width);
      expected.push_back(static_cast<uint8_t>((expected[k] & 0xFF << width) | ((1u << width) - 1)));
    }
    const Bytes bytes = stream.flushed().stream;
    EXPECT_EQ(decode(icaDecoder, bytes, 8), expected) << head;
    EXPECT_EQ(decode(icaDecoderSafe, bytes, 8), expected) << head;
  }
}

}  // namespace
