// What all stream formats share, checked on every one of them: a row each.
#include "codec/streams.hpp"

namespace {

using namespace tessaro;
using namespace tessaro::test;

struct Format {
  const char* name;
  uint32_t minimum, margin;
  Encoder encoder;
  Decoder decoder;
  SafeDecoder safe;
  bool by_channel = false;  // whole pixels only, and not from left to right
  friend std::ostream& operator<<(std::ostream& out, const Format& f) { return out << f.name; }
};
constexpr Format formats[] = {
    {"i", 49, 48, iEncoder, iDecoder, iDecoderSafe},
    {"io", 65, 64, ioEncoder, ioDecoder, ioDecoderSafe},
    {"ib18", 512, 32, ib18Encoder, ib18Decoder, ib18DecoderSafe},
    {"ib18Ex", 512, 32, ib18EncoderEx, ib18DecoderEx, ib18DecoderExSafe, true},
    {"iabr", 257, 256, iabrEncoder, iabrDecoder, iabrDecoderSafe},
    {"inabe", 257, 256, inabeEncoder, inabeDecoder, inabeDecoderSafe},
    {"imist", 129, 128, imistEncoder, imistDecoder, imistDecoderSafe},
    {"inda", 65, 64, indaEncoder, indaDecoder, indaDecoderSafe},
    {"ica", 129, 128, icaEncoder, icaDecoder, icaDecoderSafe},
};

class Formats : public testing::TestWithParam<Format> {};
INSTANTIATE_TEST_SUITE_P(All, Formats, testing::ValuesIn(formats),
                         [](const auto& info) { return info.param.name; });

// A source that every format compresses, of a length that its margin leaves room for.
Bytes easy(size_t length) { return make_data(0, length); }

TEST_P(Formats, RestoreWhatTheyCode) {
  const Format& f = GetParam();
  int coded = 0;
  for (int kind = 0; kind < kinds_of_data; ++kind)
    for (size_t step = f.minimum; step < 5000; step += 1 + step / 9) {
      const size_t length = f.by_channel ? step / 4 * 4 : step;
      const Bytes data = make_data(kind, length, static_cast<uint32_t>(length));
      const Encoded e = encode(f.encoder, data);
      SCOPED_TRACE(testing::Message() << "kind " << kind << ", length " << length);
      if (e.result == 0) {
        ++coded;
        EXPECT_LT(e.stream.size(), length - f.margin);
        EXPECT_TRUE(decode(f.decoder, e.stream, length) == data);
        EXPECT_TRUE(decode(f.safe, e.stream, length) == data);
        if (f.by_channel) continue;
        // Any length up to the whole may be asked for.
        const Bytes start(data.begin(), data.begin() + static_cast<ptrdiff_t>(length / 3));
        EXPECT_TRUE(decode(f.decoder, e.stream, start.size()) == start);
        EXPECT_TRUE(decode(f.safe, e.stream, start.size()) == start);
      } else {
        EXPECT_EQ(e.result, 1);
        EXPECT_GE(e.stream.size(), length - f.margin);
      }
    }
  EXPECT_GT(coded, 50);
}

TEST_P(Formats, RefuseWhatIsTooShort) {
  const Format& f = GetParam();
  for (uint32_t length : {0u, 1u, f.minimum - 1}) {
    const Encoded e = encode(f.encoder, easy(length));
    EXPECT_EQ(e.result, 1);
    EXPECT_TRUE(e.stream.empty());
  }
  EXPECT_EQ(encode(f.encoder, easy(8192)).result, 0);
  EXPECT_EQ(decode(f.safe, {}, 0, 1), Bytes{});
}

// Random bytes after easy ones: streams that end on either side of their limit.
TEST_P(Formats, StopAtTheLimit) {
  const Format& f = GetParam();
  bool reached[2] = {};
  for (uint32_t seed = 0; seed < 400; ++seed) {
    Bytes data = easy(f.minimum + 60 + seed % 7 * (f.by_channel ? 4 : 1));
    const Bytes noise = make_data(1, data.size(), seed);
    const size_t quiet = (f.minimum + seed) % (data.size() / 3 + 1);
    std::copy(noise.begin() + static_cast<ptrdiff_t>(quiet), noise.end(),
              data.begin() + static_cast<ptrdiff_t>(quiet));
    const Encoded e = encode(f.encoder, data);
    const size_t limit = data.size() - f.margin;
    reached[e.result] = true;
    if (e.result == 0) {
      EXPECT_LT(e.stream.size(), limit);
      EXPECT_TRUE(decode(f.decoder, e.stream, data.size()) == data);
    } else {
      EXPECT_GE(e.stream.size(), limit);
    }
  }
  EXPECT_TRUE(reached[1]);
}

// Cut streams end in a report; damaged ones give anything, inside their bounds, and never more than the classic
// decoder makes of the same bytes where the stream is long enough for it.
TEST_P(Formats, StayInsideDamagedStreams) {
  const Format& f = GetParam();
  for (int kind = 0; kind < kinds_of_data; ++kind) {
    const Bytes data = make_data(kind, 3001);
    const Encoded e = encode(f.encoder, data);
    if (e.result != 0) continue;
    for (size_t size = 0; size + 1 < e.stream.size(); size += 1 + size / 8)
      decode(f.safe, Bytes(e.stream.begin(), e.stream.begin() + static_cast<ptrdiff_t>(size)), data.size(),
             1);
    damage(e.stream, static_cast<uint32_t>(kind), 200, [&](const Bytes& bad) {
      const Exact source(bad);
      const Exact out(Bytes(data.size(), 0xA5));
      const auto count = static_cast<uint32_t>(data.size());
      if (f.safe(source, out.at.get(), static_cast<uint32_t>(bad.size()), count) == 0) {
        EXPECT_TRUE(decode(f.decoder, bad, count) == Bytes(out.at.get(), out.at.get() + count));
      }
    });
  }
}

}  // namespace
