// The block-mask format: streams written by hand, round trips, and a decoder that no stream leads astray.
#include "codec/streams.hpp"

namespace tessaro::test {
namespace {

Bytes encode(const Bytes& source) {
  Bytes out(source.size() + (source.size() + 31) / 32 + 3, 0xA5);
  uint32_t written = 0;
  EXPECT_EQ(c2fEncoder(source.data(), out.data(), static_cast<uint32_t>(source.size()), &written), 0);
  EXPECT_LE(written, out.size());
  out.resize(written);
  return out;
}

// Stream and destination are exactly as long as they are said to be, for AddressSanitizer to see.
int32_t decode(const Bytes& stream, Bytes& out) {
  const Exact exact(stream);
  return c2fDecoder(exact, out.data(), static_cast<uint32_t>(stream.size()),
                    static_cast<uint32_t>(out.size()));
}

Bytes pixels(std::initializer_list<uint32_t> words) {
  Bytes out;
  for (const uint32_t w : words)
    for (unsigned at = 0; at < 32; at += 8) out.push_back(static_cast<uint8_t>(w >> at));
  return out;
}
Bytes operator+(Bytes a, const Bytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}
Bytes times(size_t n, const Bytes& a) {
  Bytes out;
  for (size_t i = 0; i < n; ++i) out = out + a;
  return out;
}
// A block in which every byte position changes against every block of another value.
Bytes raw(uint8_t v) { return Bytes(32, v); }

TEST(C2f, StreamsByHand) {
  struct Case {
    const char* name;
    Bytes source, stream;
  };
  const Bytes flat = times(8, pixels({0xFF102030}));
  // Alternating values keep every block of a literal run raw.
  const auto noise = [](size_t blocks) {
    Bytes out;
    for (size_t i = 0; i < blocks; ++i) out.insert(out.end(), 32, static_cast<uint8_t>(1 + i % 2));
    return out;
  };
  const Bytes red = pixels({0x010000, 0x020000, 0x030000, 0x040000, 0x050000, 0x060000, 0x070000, 0x080000});
  const Bytes two = pixels({0x01000500, 0, 0, 0, 0, 0, 0, 0x02000600});
  const Case cases[] = {
      {"nothing", {}, {0, 0, 0}},
      {"only zeros", Bytes(31), {0, 0, 0}},
      {"a tail", {9, 0, 8, 0, 0}, {0, 0, 3, 9, 0, 8}},
      {"a block and a tail without its zeros", flat + Bytes{1, 2, 0, 0, 0, 0, 0, 0},
       Bytes{1} + flat + Bytes{0, 2, 1, 2}},
      {"zeros equal the pixel before the start", Bytes(64), {0, 0xF2, 0, 0, 0}},
      {"one colour", times(15, flat), Bytes{1} + flat + Bytes{0xFE, 0, 0, 0}},
      {"fifteen blocks", times(16, flat), Bytes{1} + flat + Bytes{0xFF, 0, 0, 0, 0}},
      {"the longest run and one more", times(272, flat),
       Bytes{1} + flat + Bytes{0xFF, 255, 0, 0xF1, 0, 0, 0}},
      {"one byte position changes", red, {0, 0xB1, 1, 2, 3, 4, 5, 6, 7, 8, 0, 0, 0}},
      {"the extension stands behind fifteen blocks of data", times(16, red),
       Bytes{0, 0xBF} + times(15, {1, 2, 3, 4, 5, 6, 7, 8}) + Bytes{1, 1, 2, 3, 4, 5, 6, 7, 8, 0, 0, 0}},
      {"two byte positions", two, Bytes{0, 0x51, 5, 1} + Bytes(12) + Bytes{6, 2, 0, 0, 0}},
      {"other bytes close a run", red + Bytes(32),
       Bytes{0, 0xB2, 1, 2, 3, 4, 5, 6, 7, 8} + Bytes(8) + Bytes{0, 0, 0}},
      {"raw blocks close a run", two + pixels({0x02000600, 0, 0, 0, 0, 0, 0, 0}) + flat,
       Bytes{0, 0x52, 5, 1} + Bytes(12) + Bytes{6, 2, 6, 2} + Bytes(14) + Bytes{1} + flat + Bytes{0, 0}},
      {"literals up to the short header", noise(127), Bytes{127} + noise(127) + Bytes{0, 0}},
      {"literals past the short header", noise(128),
       Bytes{128} + noise(127) + Bytes{1} + raw(2) + Bytes{0, 0}},
      {"the longest literal run", noise(32640),
       Bytes{128} + noise(127) + Bytes{255} + raw(2) + noise(32512) + Bytes{0, 0, 0}},
      {"an operation after the longest literal run", noise(32640) + raw(2),
       Bytes{128} + noise(127) + Bytes{255} + raw(2) + noise(32512) + Bytes{0, 0xF1, 0, 0, 0}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(encode(c.source), c.stream) << c.name;
    Bytes out(c.source.size());
    EXPECT_EQ(decode(c.stream, out), 0) << c.name;
    EXPECT_EQ(out, c.source) << c.name;
  }
}

TEST(C2f, DecoderTakesWhatNoEncoderWrites) {
  const auto decoded = [](const Bytes& stream, size_t size) {
    Bytes out(size, 0xA5);
    EXPECT_EQ(decode(stream, out), 0);
    return out;
  };
  const Bytes block = pixels({1, 2, 3, 4, 5, 6, 7, 8});
  // A run that keeps nothing of the base, a run of no blocks, and a second byte in two left alone.
  EXPECT_EQ(decoded(Bytes{0, 0x01} + block + Bytes{0, 0xF0, 0, 0, 0}, 32), block);
  EXPECT_EQ(decoded(Bytes{0, 0, 1, 7}, 6), (Bytes{7, 0, 0xA5, 0, 0xA5, 0}));
  // More in the end part than there is room for.
  EXPECT_EQ(decoded(Bytes{0, 0, 200, 7, 8, 9}, 2), (Bytes{7, 8}));
}

TEST(C2f, RoundTrips) {
  Random random(6);
  for (int kind = 0; kind < 16; ++kind)
    for (size_t length : {1u, 31u, 32u, 33u, 63u, 64u, 65u, 4096u, 4099u, 40007u}) {
      Bytes source(length);
      // Byte k of a pixel changes in some blocks when bit k of the kind is set.
      for (size_t i = 0; i < length; ++i)
        source[i] = kind >> i % 4 & 1 && random.between(0, 40) ? random.byte() : static_cast<uint8_t>(i % 4);
      Bytes out(length);
      const Bytes stream = encode(source);
      EXPECT_EQ(decode(stream, out), 0);
      EXPECT_EQ(out, source) << kind << ' ' << length;
    }
}

TEST(C2f, DamagedStreamsStayInside) {
  Random random(7);
  Bytes source(6000);
  for (size_t i = 0; i < source.size(); ++i)
    source[i] = i % 700 < 400 ? static_cast<uint8_t>(i / 700) : random.byte();
  const Bytes stream = encode(source);
  size_t made = 0;
  for (size_t size = 0; size <= stream.size(); ++size) {
    Bytes out(source.size(), 0xA5);
    EXPECT_EQ(decode(Bytes(stream.begin(), stream.begin() + static_cast<ptrdiff_t>(size)), out),
              size < stream.size());
    // What was made before the end stays, and nothing behind it is touched.
    const auto end = std::mismatch(out.begin(), out.end(), source.begin()).first;
    const auto before = made;
    made = static_cast<size_t>(end - out.begin());
    ASSERT_LE(before, made) << size;
    ASSERT_TRUE(std::all_of(end, out.end(), [](uint8_t byte) { return byte == 0xA5; })) << size;
  }
  EXPECT_EQ(made, source.size());
  for (size_t room : {0u, 1u, 31u, 32u, 100u, 5951u}) {
    Bytes out(room);
    EXPECT_EQ(decode(stream, out), 1);
  }
  for (int i = 0; i < 20000; ++i) {
    Bytes bad(static_cast<size_t>(random.between(0, 300)));
    for (uint8_t& b : bad) b = random.byte();
    Bytes out(static_cast<size_t>(random.between(0, 9000)));
    decode(bad, out);
  }
}

}  // namespace
}  // namespace tessaro::test
