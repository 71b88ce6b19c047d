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
  std::copy(start.begin(), start.begin() + static_cast<ptrdiff_t>(quiet), data.begin());
  return data;
}

struct Codec {
  Encoder encoder;
  Encoded (*model)(const Bytes&);
  Decoder decoder;
  SafeDecoder safe;
  size_t minimum;
  size_t at_once = 1;  // the bytes that a decoder makes together
  // From left to right, so that any length up to the whole may be asked for; else whole pixels only come back.
  bool in_order = true;
};
inline void check_codec(const Codec& codec) {
  // What is too short is refused with nothing written, and so is a count of 0.
  for (size_t length : {size_t{0}, size_t{1}, codec.minimum - 1}) {
    uint32_t untouched = 77;
    EXPECT_EQ(codec.encoder(Exact(Bytes(length)), nullptr, static_cast<uint32_t>(length), &untouched), 1);
    EXPECT_EQ(untouched, 77u);
  }
  EXPECT_EQ(decode(codec.safe, {}, 0, 1), Bytes{});

  int results[2] = {};
  const auto check = [&](const Bytes& data) {
    const Encoded expected = codec.model(data);
    ++results[expected.result];
    ASSERT_EQ(encode(codec.encoder, data), expected);
    if (expected.result != 0 || (!codec.in_order && data.size() % 4 != 0)) return;
    for (size_t count : {data.size(), data.size() / 3}) {
      const Bytes start(data.begin(), data.begin() + static_cast<ptrdiff_t>(count));
      ASSERT_TRUE(decode(codec.decoder, codec.safe, expected.stream, count) == start);
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
  // Cut streams end in a report, behind what could be made of them; damaged ones give anything, inside their bounds, and what the classic decoder makes of
  // the same bytes where the stream is long enough for it.
  for (int kind = 0; kind < kinds_of_data; ++kind) {
    constexpr uint32_t count = 3001;
    const Bytes source = make_data(kind, count);
    const Encoded e = encode(codec.encoder, source);
    if (e.result != 0) continue;
    for (size_t size = 0; size + 1 < e.stream.size(); size += 1 + size / 8) {
      const Bytes cut(e.stream.begin(), e.stream.begin() + static_cast<ptrdiff_t>(size));
      const Bytes left = decode(codec.safe, cut, count, 1);
      if (!codec.in_order) continue;
      uint32_t made = 0;  // the most that the stream is long enough for
      for (uint32_t step = 2048; step != 0; step /= 2)
        if (made + step < count && codec.safe(Exact(cut), Exact(Bytes(count)).at.get(),
                                              static_cast<uint32_t>(size), made + step) == 0)
          made += step;
      made -= made < codec.at_once ? made : static_cast<uint32_t>(codec.at_once) - 1;
      ASSERT_TRUE(std::equal(left.begin(), left.begin() + made, source.begin())) << kind << ' ' << size;
    }
    damage(e.stream, static_cast<uint32_t>(kind), 200, [&](const Bytes& bad) {
      const Exact source(bad), out(Bytes(count, 0xA5));
      if (codec.safe(source, out.at.get(), static_cast<uint32_t>(bad.size()), count) == 0) {
        EXPECT_TRUE(decode(codec.decoder, bad, count) == Bytes(out.at.get(), out.at.get() + count));
      }
    });
  }
}

}  // namespace tessaro::test
