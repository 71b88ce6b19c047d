// What all stream formats share, checked on every one of them: a row each.
#include "codec/streams.hpp"

namespace {

using namespace tessaro;
using namespace tessaro::test;

struct Format {
  const char* name;
  uint32_t minimum;
  Encoder encoder;
  Decoder decoder;
  SafeDecoder safe;
  friend std::ostream& operator<<(std::ostream& out, const Format& f) { return out << f.name; }
};
constexpr Format formats[] = {
    {"i", 49, iEncoder, iDecoder, iDecoderSafe},
    {"io", 65, ioEncoder, ioDecoder, ioDecoderSafe},
    {"ib18", 512, ib18Encoder, ib18Decoder, ib18DecoderSafe},
    {"ib18Ex", 512, ib18EncoderEx, ib18DecoderEx, ib18DecoderExSafe},
    {"iabr", 257, iabrEncoder, iabrDecoder, iabrDecoderSafe},
    {"inabe", 257, inabeEncoder, inabeDecoder, inabeDecoderSafe},
    {"imist", 129, imistEncoder, imistDecoder, imistDecoderSafe},
    {"inda", 65, indaEncoder, indaDecoder, indaDecoderSafe},
    {"ica", 129, icaEncoder, icaDecoder, icaDecoderSafe},
};

class Formats : public testing::TestWithParam<Format> {};
INSTANTIATE_TEST_SUITE_P(All, Formats, testing::ValuesIn(formats),
                         [](const auto& info) { return info.param.name; });

// A source that every format compresses, of a length that its margin leaves room for.
Bytes easy(size_t length) { return make_data(0, length); }

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
