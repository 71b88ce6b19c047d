// Data to code and streams placed so that the sanitizers see every byte that is touched around them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "support/images.hpp"

namespace tessaro::test {

using Bytes = std::vector<uint8_t>;
using Encoder = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t, uint32_t*);
using Decoder = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t);
using SafeDecoder = int32_t(TESSARO_CALL*)(const void*, void*, uint32_t stream_size, uint32_t count);

// A heap block of exactly this size: the address behind it is not ours.
struct Exact {
  std::unique_ptr<uint8_t[]> at;
  explicit Exact(const Bytes& bytes) : at(new uint8_t[bytes.size()]) {
    std::copy(bytes.begin(), bytes.end(), at.get());
  }
  operator const uint8_t*() const { return at.get(); }
};

struct Encoded {
  int32_t result = -1;
  Bytes stream;  // the bytes that the written length covers
  bool operator==(const Encoded&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const Encoded& e) {
  out << "result " << e.result << ", " << e.stream.size() << " bytes:" << std::hex;
  for (size_t i = 0; i < e.stream.size() && i < 64; ++i) out << ' ' << int{e.stream[i]};
  return out << std::dec;
}

// Encodes between exact blocks into `room` bytes (the source's length when 0), and checks that nothing behind the
// written length has changed.
inline Encoded encode(Encoder encoder, const Bytes& data, size_t room = 0) {
  const Exact source(data);
  const Bytes blank(room ? room : data.size(), 0xA5);
  const Exact destination(blank);
  uint32_t written = 0xA5A5A5A5;
  Encoded e;
  e.result = encoder(source, destination.at.get(), static_cast<uint32_t>(data.size()), &written);
  if (written == 0xA5A5A5A5) return e;  // untouched: too short to code
  EXPECT_LE(written, blank.size());
  e.stream.assign(destination.at.get(), destination.at.get() + written);
  for (size_t i = written; i < blank.size(); ++i) {
    if (destination[static_cast<ptrdiff_t>(i)] == 0xA5) continue;
    ADD_FAILURE() << "byte " << i << " behind the " << written << " written has changed";
    break;
  }
  return e;
}

inline Bytes decode(Decoder decoder, const Bytes& stream, size_t count) {
  const Exact source(stream), destination(Bytes(count, 0xA5));
  EXPECT_EQ(decoder(source, destination.at.get(), static_cast<uint32_t>(count)), 0);
  return Bytes(destination.at.get(), destination.at.get() + count);
}
inline Bytes decode(SafeDecoder decoder, const Bytes& stream, size_t count, int32_t result = 0) {
  const Exact source(stream), destination(Bytes(count, 0xA5));
  EXPECT_EQ(decoder(source, destination.at.get(), static_cast<uint32_t>(stream.size()),
                    static_cast<uint32_t>(count)),
            result);
  return Bytes(destination.at.get(), destination.at.get() + count);
}
// A stream that is long enough means the same to both.
inline Bytes decode(Decoder decoder, SafeDecoder safe, const Bytes& stream, size_t count) {
  const Bytes decoded = decode(decoder, stream, count);
  EXPECT_TRUE(decode(safe, stream, count) == decoded);
  return decoded;
}

// Generated data of many kinds: what the formats are made for, what they are bad at, and what lies between.
inline constexpr int kinds_of_data = 9;
inline Bytes make_data(int kind, size_t length, uint32_t seed = 1) {
  Random random(seed * 31 + static_cast<uint32_t>(kind));
  Bytes data(length);
  int32_t walk[4] = {128, 90, 30, 255};
  uint32_t colour = 0;
  for (size_t i = 0; i < length; ++i) {
    const int before = i ? data[i - 1] : 0, any = static_cast<int>(random.word() & 255);
    const auto byte = [&]() -> int {
      if (kind == 0) return 0;
      if (kind == 1) return any;
      if (kind == 2) return random.byte();
      if (kind == 3) return walk[i % 4] += i % 4 != 3 ? random.between(-5, 5) : 0;  // pixels; alpha rests
      if (kind == 4 && i % 4 == 0 && random.word() % 9 == 0) colour = random.pixel();
      if (kind == 4) return static_cast<int>(colour >> 8 * (i % 4) & 255);  // flat areas
      if (kind == 5) return (before & 0xF8) | (any & 7);
      if (kind == 7) return i * 3 % 251 < 40 ? static_cast<int>(7 * i & 255) : before;
      if (kind == 8) return "tessaro "[i % 8];
      const int masks[] = {0xFF, 0xF8, 0xE0, 0};  // long runs of each similarity in turn
      const int mask = masks[i / 97 % 4];
      return (before & mask) | (any & ~mask);
    };
    data[i] = static_cast<uint8_t>(byte());
  }
  return data;
}

// Streams made from a good one: cut short, with changed bytes, or both.
inline void damage(const Bytes& stream, uint32_t seed, int how_often,
                   const std::function<void(const Bytes&)>& check) {
  Random random(seed);
  for (int i = 0; i < how_often; ++i) {
    Bytes bad = stream;
    if (i % 3 != 0)
      for (int32_t n = random.between(1, 4); n > 0 && !bad.empty(); --n)
        bad[random.word() % bad.size()] ^= static_cast<uint8_t>(1u << random.word() % 8);
    if (i % 3 != 1) bad.resize(random.word() % (bad.size() + 1));
    check(bad);
  }
}

}  // namespace tessaro::test
