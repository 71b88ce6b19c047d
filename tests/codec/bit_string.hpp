// Naive encoders: streams as strings of bits, compared with the library's byte for byte.
#pragma once

#include "codec/streams.hpp"

namespace tessaro::test {

// A stream that is given up as soon as its length reaches the limit.
struct BitString {
  size_t limit = 0;
  Bytes bytes{};
  unsigned pending = 0, held = 0;
  void put(uint32_t value, unsigned n) {
    while (n-- != 0) {
      pending = pending << 1 | (value >> n & 1);
      if (++held == 8) bytes.push_back(static_cast<uint8_t>(pending)), held = 0;
    }
  }
  bool full() const { return bytes.size() >= limit; }
  Encoded ended() const { return {full() ? 1 : 0, bytes}; }
  Encoded flushed() {
    put(0, 8);
    return ended();
  }
};

// The bytes that end on either side of every limit: quiet ones, then noise, in all proportions.
inline Bytes mixed(size_t length, size_t quiet, uint32_t seed) {
  Bytes data = make_data(1, length, seed);
  const Bytes start = make_data(static_cast<int>(seed % kinds_of_data), length, seed);
  if (quiet > length) quiet = length;
  std::copy(start.begin(), start.begin() + static_cast<ptrdiff_t>(quiet), data.begin());
  return data;
}

struct Codec {
  Encoder encoder;
  Encoded (*model)(const Bytes&);
  Decoder decoder;
  SafeDecoder safe;
  size_t minimum;
  // From left to right, so that any length up to the whole may be asked for; else whole pixels only come back.
  bool in_order = true;
};
inline void expect_same_streams(const Codec& codec) {
  int results[2] = {};
  const auto check = [&](const Bytes& data) {
    const Encoded expected = codec.model(data);
    ++results[expected.result];
    ASSERT_EQ(encode(codec.encoder, data), expected);
    if (expected.result != 0 || (!codec.in_order && data.size() % 4 != 0)) return;
    for (size_t count : {data.size(), data.size() / 3}) {
      const Bytes start(data.begin(), data.begin() + static_cast<ptrdiff_t>(count));
      ASSERT_TRUE(decode(codec.decoder, expected.stream, count) == start);
      ASSERT_TRUE(decode(codec.safe, expected.stream, count) == start);
      if (!codec.in_order) break;
    }
  };
  for (int kind = 0; kind < kinds_of_data; ++kind)
    for (size_t length = codec.minimum; length < 9000; length += 1 + length / 13) {
      SCOPED_TRACE(testing::Message() << "kind " << kind << ", length " << length);
      check(make_data(kind, length, static_cast<uint32_t>(length)));
    }
  for (uint32_t seed = 0; seed < 600; ++seed) {
    SCOPED_TRACE(testing::Message() << "mixed, seed " << seed);
    check(mixed(codec.minimum + seed, seed * 7 % (codec.minimum + seed), seed));
  }
  EXPECT_GT(results[0], 100);
  EXPECT_GT(results[1], 100);
}

}  // namespace tessaro::test
