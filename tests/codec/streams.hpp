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

inline Bytes decode(Decoder decoder, const Bytes& stream, size_t count, int32_t result = 0) {
  const Exact source(stream), destination(Bytes(count, 0xA5));
  EXPECT_EQ(decoder(source, destination.at.get(), static_cast<uint32_t>(count)), result);
  return Bytes(destination.at.get(), destination.at.get() + count);
}
inline Bytes decode(SafeDecoder decoder, const Bytes& stream, size_t count, int32_t result = 0) {
  const Exact source(stream), destination(Bytes(count, 0xA5));
  EXPECT_EQ(decoder(source, destination.at.get(), static_cast<uint32_t>(stream.size()),
                    static_cast<uint32_t>(count)),
            result);
  return Bytes(destination.at.get(), destination.at.get() + count);
}

// Generated data of many kinds: what the formats are made for, what they are bad at, and what lies between.
inline constexpr int kinds_of_data = 9;
inline Bytes make_data(int kind, size_t length, uint32_t seed = 1) {
  Random random(seed * 31 + static_cast<uint32_t>(kind));
  Bytes data(length);
  int32_t walk[4] = {128, 90, 30, 255};
  uint32_t colour = 0;
  for (size_t i = 0; i < length; ++i) {
    const auto before = i ? data[i - 1] : uint8_t{0};
    const auto any = static_cast<uint8_t>(random.word());
    switch (kind) {
      case 0:
        data[i] = 0;
        break;
      case 1:
        data[i] = any;
        break;
      case 2:
        data[i] = random.byte();
        break;
      case 3:  // pixels: each channel walks, alpha rests
        if (i % 4 != 3) walk[i % 4] += random.between(-5, 5);
        data[i] = static_cast<uint8_t>(walk[i % 4]);
        break;
      case 4:  // flat areas of a few colours
        if (i % 4 == 0 && random.word() % 9 == 0) colour = random.pixel();
        data[i] = static_cast<uint8_t>(colour >> 8 * (i % 4));
        break;
      case 5:
        data[i] = static_cast<uint8_t>((before & 0xF8) | (any & 7));
        break;
      case 6:  // long runs of each similarity in turn
        data[i] = static_cast<uint8_t>(i / 97 % 4 == 0   ? before
                                       : i / 97 % 4 == 1 ? (before & 0xF8) | (any & 7)
                                       : i / 97 % 4 == 2 ? (before & 0xE0) | (any & 31)
                                                         : any);
        break;
      case 7:
        data[i] = static_cast<uint8_t>(i * 3 % 251 < 40 ? 7 * i : before);
        break;
      default:
        data[i] = static_cast<uint8_t>("tessaro "[i % 8]);
        break;
    }
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
