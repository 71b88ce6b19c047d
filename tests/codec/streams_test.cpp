// Exact streams: worked by hand, and against a second, slow encoder of each format that puts one bit after another.
#include <algorithm>

#include "codec/bit_string.hpp"

namespace {

using namespace tessaro;
using namespace tessaro::test;

Encoded slow_i(const Bytes& in) {
  BitString out{in.size() - 48};
  int pa = 0, pb = 0;
  for (size_t at = 0; at < in.size(); at += 2) {
    const int a = in[at], b = at + 1 < in.size() ? in[at + 1] : 0;
    const bool far_a = ((a ^ pa) & 0xE0) != 0, far_b = ((b ^ pb) & 0xE0) != 0;
    const auto code = [&](unsigned n) { out.put(n, 3); };
    const auto field = [&](int v, unsigned bits) { out.put(static_cast<unsigned>(v), bits); };
    if (b == pb && a == pa) {
      code(7);
    } else if (b == pb) {
      code(6), field(a, 8);
    } else if (a == pb) {
      code(5), field(b, 8);
    } else if (a == b) {
      code(4), field(a, 8);
    } else if (far_a && far_b) {
      code(0), field(a, 8), field(b, 8);
    } else if (far_a) {
      code(1), field(a, 8), field(b, 5);
    } else if (far_b) {
      code(2), field(a, 5), field(b, 8);
    } else {
      code(3), field(a, 5), field(b, 5);
    }
    if (out.full()) return out.ended();
    pa = a, pb = b;
  }
  return out.flushed();
}

Encoded slow_io(const Bytes& in) {
  BitString out{in.size() - 64};
  Bytes before(4);
  for (size_t at = 0; at < in.size(); at += 4) {
    Bytes group(4);
    for (size_t k = 0; k < 4 && at + k < in.size(); ++k) group[k] = in[at + k];
    out.put(group == before, 1);
    if (group != before)
      for (uint8_t byte : group) out.put(byte, 8);
    if (out.full()) return out.ended();
    before = group;
  }
  return out.flushed();
}

template <bool by_channel>
Encoded slow_ib18(const Bytes& in) {
  const size_t n = in.size();
  Bytes out(256);
  std::vector<std::vector<int>> counts(256, std::vector<int>(256));
  int p = 0;
  for (int c : in) ++counts[static_cast<size_t>(p)][static_cast<size_t>(c)], p = c;
  for (size_t v = 0; v < 256; ++v) {
    counts[v][v] = -1;
    out[v] = static_cast<uint8_t>(std::max_element(counts[v].begin(), counts[v].end()) - counts[v].begin());
  }
  const auto get = [&](size_t i) -> int {
    if (!by_channel) return i < n ? in[i] : 0;
    const size_t q = 4 * i < 2 * n ? 4 * i : 4 * i + 2 - 2 * n;
    return q < n ? in[q] : q + 1 - n < n ? in[q + 1 - n] : 0;
  };
  int last = 0;
  for (size_t at = 0; at < n;) {
    std::string kinds;
    unsigned r_mask = 0, p_mask = 0;
    for (size_t k = 0; k < 6; ++k) {
      const int byte = get(at + k), before = k ? get(at + k - 1) : last;
      kinds += byte == before ? 'R' : byte == out[static_cast<size_t>(before)] ? 'P' : 'L';
      r_mask |= unsigned{kinds[k] == 'R'} << k;
      p_mask |= unsigned{kinds[k] == 'P'} << k;
    }
    const auto r = std::count(kinds.begin(), kinds.end(), 'R'),
               pr = std::count(kinds.begin(), kinds.end(), 'P');
    const auto literals = [&](char except) {
      for (size_t k = 0; k < 6; ++k)
        if (kinds[k] != except) out.push_back(static_cast<uint8_t>(get(at + k)));
    };
    size_t covered = 6;
    if (r == 6) {
      const int byte = get(at);
      unsigned level = 0;
      for (size_t s = 6; level < 16; s *= 2, ++level) {
        size_t same = 0;
        while (same < s && get(at + covered + same) == byte) ++same;
        if (same < s) break;
        covered += s;
      }
      out.push_back(static_cast<uint8_t>(level == 0 ? 0x7F : (level - 1) | 0x10));
    } else if (pr == 6) {
      out.push_back(0xBF);
    } else if (r + pr == 0) {
      out.push_back(0x40), literals(' ');
    } else if (r + pr == 6) {
      out.push_back(static_cast<uint8_t>(0xC0 | r_mask));
    } else if (r < pr) {
      out.push_back(static_cast<uint8_t>(0x80 | p_mask)), literals('P');
    } else {
      out.push_back(static_cast<uint8_t>(0x40 | r_mask)), literals('R');
    }
    if (out.size() >= n - 32) return {1, out};
    last = get(at + covered - 1);
    at += covered;
  }
  return {out.size() >= n - 32, out};
}

TEST(Streams, EqualThoseOfASlowEncoder) {
  for (const Codec& codec :
       {Codec{iEncoder, slow_i, iDecoder, iDecoderSafe, 49},
        {ioEncoder, slow_io, ioDecoder, ioDecoderSafe, 65},
        {ib18Encoder, slow_ib18<false>, ib18Decoder, ib18DecoderSafe, 512},
        {ib18EncoderEx, slow_ib18<true>, ib18DecoderEx, ib18DecoderExSafe, 512, false}}) {
    SCOPED_TRACE(codec.minimum);
    check_codec(codec);
  }
}

Bytes filled(std::initializer_list<std::pair<int, uint8_t>> runs) {
  Bytes all;
  for (auto [n, byte] : runs) all.insert(all.end(), static_cast<size_t>(n), byte);
  return all;
}

TEST(Streams, WorkedByHandI) {
  EXPECT_EQ(encode(iEncoder, Bytes(1000)), (Encoded{0, filled({{187, 0xFF}, {1, 0xF0}})}));
  EXPECT_EQ(encode(iEncoder, Bytes(49)), (Encoded{1, {0xFF}}));
}

TEST(Streams, WorkedByHandIo) {
  EXPECT_EQ(encode(ioEncoder, Bytes(1024)), (Encoded{0, filled({{32, 0xFF}, {1, 0}})}));
  Bytes data;
  for (int i = 0; i < 40; ++i) data.insert(data.end(), {1, 2, 3, 4});
  data.push_back(5);  // coded as 5, 0, 0, 0
  const Encoded e = encode(ioEncoder, data);
  EXPECT_EQ(e, (Encoded{0, {0x00, 0x81, 0x01, 0x82, 0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0x80, 0, 0, 0}}));
  EXPECT_EQ(decode(ioDecoder, e.stream, data.size()), data);
}

TEST(Streams, WorkedByHandIb18) {
  Bytes operations = encode(ib18Encoder, Bytes(600, 7)).stream;
  EXPECT_EQ(operations[0], 7);  // the successor of 0
  operations.erase(operations.begin(), operations.begin() + 256);
  EXPECT_EQ(operations, (Bytes{0xFE, 0x15, 0x14, 0x10, 0x7F}));
  // The zeros behind the end belong to a run of zeros: 6 * 2^16 bytes.
  EXPECT_EQ(encode(ib18Encoder, Bytes(600)).stream.back(), 0x1F);
  // What no encoder emits: runs of predictions and of literals, ended by the count.
  Bytes stream(256);
  for (size_t v = 0; v < 256; ++v) stream[v] = static_cast<uint8_t>(v + 1);
  stream.insert(stream.end(), {0x20, 0x00, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 8, 0xBF});
  const Bytes expected{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 8, 9, 10, 11};
  for (size_t count = 1; count <= expected.size(); ++count)
    EXPECT_EQ(decode(ib18Decoder, stream, count),
              Bytes(expected.begin(), expected.begin() + static_cast<ptrdiff_t>(count)));
  EXPECT_EQ(decode(ib18DecoderEx, stream, 6), (Bytes{1, 3, 5, 6, 2, 4}));
  EXPECT_EQ(decode(ib18Decoder, stream, 0, 0), Bytes{});
}

}  // namespace
