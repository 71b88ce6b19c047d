// Naive encoders: streams as strings of bits, compared with the library's byte for byte.
#pragma once

#include "codec/streams.hpp"

namespace tessaro::test {

class BitString {
 public:
  void put(uint32_t value, unsigned n) {
    while (n-- != 0) bits_.push_back(value >> n & 1);
  }
  size_t bytes() const { return bits_.size() / 8; }
  // What has left as whole bytes; a flush pushes out eight zeros first.
  Encoded result(size_t limit, bool flush) {
    if (flush) put(0, 8);
    Encoded e;
    for (size_t i = 0; i < bytes(); ++i) {
      unsigned byte = 0;
      for (size_t j = 0; j < 8; ++j) byte = byte * 2 + bits_[8 * i + j];
      e.stream.push_back(static_cast<uint8_t>(byte));
    }
    e.result = bytes() >= limit;
    return e;
  }

 private:
  std::vector<bool> bits_;
};

// The bytes that end on either side of every limit: quiet ones, then noise, in all proportions.
inline Bytes mixed(size_t length, size_t quiet, uint32_t seed) {
  Bytes data = make_data(1, length, seed);
  const Bytes start = make_data(static_cast<int>(seed % kinds_of_data), length, seed);
  if (quiet > length) quiet = length;
  std::copy(start.begin(), start.begin() + static_cast<ptrdiff_t>(quiet), data.begin());
  return data;
}

using Model = Encoded (*)(const Bytes&);
inline void expect_same_streams(Encoder encoder, Model model, size_t minimum) {
  int results[2] = {};
  for (int kind = 0; kind < kinds_of_data; ++kind)
    for (size_t length = minimum; length < 3000; length += 1 + length / 13) {
      const Bytes data = make_data(kind, length, static_cast<uint32_t>(length));
      const Encoded expected = model(data);
      ++results[expected.result];
      ASSERT_EQ(encode(encoder, data), expected) << "kind " << kind << ", length " << length;
    }
  for (uint32_t seed = 0; seed < 600; ++seed) {
    const Bytes data = mixed(minimum + seed, seed * 7 % (minimum + seed), seed);
    const Encoded expected = model(data);
    ++results[expected.result];
    ASSERT_EQ(encode(encoder, data), expected) << "mixed, seed " << seed;
  }
  EXPECT_GT(results[0], 100);
  EXPECT_GT(results[1], 100);
}

}  // namespace tessaro::test
