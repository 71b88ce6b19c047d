#include "codec/streams.hpp"

namespace {

using namespace tessaro;
using namespace tessaro::test;

TEST(Io, CodesRepeatsAsOneBit) {
  Bytes expected(33, 0xFF);
  expected.back() = 0;
  EXPECT_EQ(encode(ioEncoder, Bytes(1024)), (Encoded{0, expected}));

  // 40 groups of 1, 2, 3, 4 and a short last one that equals 5, 0, 0, 0: 0 + 32 bits, 39 ones, 0 + 32 bits.
  Bytes data;
  for (int i = 0; i < 40; ++i) data.insert(data.end(), {1, 2, 3, 4});
  data.push_back(5);
  const Encoded e = encode(ioEncoder, data);
  EXPECT_EQ(e, (Encoded{0, {0x00, 0x81, 0x01, 0x82, 0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0x80, 0, 0, 0}}));
  EXPECT_EQ(decode(ioDecoder, e.stream, data.size()), data);
  EXPECT_EQ(decode(ioDecoder, e.stream, 0, 1), Bytes{});
}

// The limit falls after a whole group, without a flush.
TEST(Io, StopsAtTheLimit) {
  const Bytes noise = make_data(1, 65);
  const Encoded e = encode(ioEncoder, noise);
  EXPECT_EQ(e.result, 1);
  EXPECT_EQ(e.stream.size(), 4u);  // 33 bits: four bytes and a bit that is never sent
}

}  // namespace
