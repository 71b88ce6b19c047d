// Exact streams: worked by hand, and against a second, slow encoder of each format that puts one bit after another.
#include <algorithm>

#include "codec/bit_string.hpp"
#include "codec/formats/ib18.hpp"
#include "support/small_stack.hpp"

namespace {

using namespace tessaro;
using namespace tessaro::test;

Encoded slow_i(const Bytes& in) {
  BitString out{in.size() - 48};
  int pa = 0, pb = 0;
  for (size_t at = 0; at < in.size(); at += 2) {
    const int a = in[at], b = at + 1 < in.size() ? in[at + 1] : 0;
    const bool far_a = ((a ^ pa) & 0xE0) != 0, far_b = ((b ^ pb) & 0xE0) != 0;
    const auto code = [&](unsigned n, unsigned width_a, unsigned width_b) {
      out.put(n, 3);
      out.put(static_cast<unsigned>(a), width_a);
      out.put(static_cast<unsigned>(b), width_b);
    };
    if (b == pb)
      a == pa ? code(7, 0, 0) : code(6, 8, 0);
    else if (a == pb)
      code(5, 0, 8);
    else if (a == b)
      code(4, 8, 0);
    else
      code(far_a ? !far_b : 3 - far_b, far_a ? 8 : 5, far_b ? 8 : 5);
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

// Codes four bytes after another, the last ones filled up from those before.
template <class Code>
Encoded slow_pixels(const Bytes& data, Code code) {
  BitString out{data.size() - 128};
  uint8_t before[4] = {};
  for (size_t at = 0; at < data.size() && !out.full(); at += 4) {
    uint8_t now[4];
    for (size_t k = 0; k < 4; ++k) now[k] = at + k < data.size() ? data[at + k] : before[k];
    code(out, now, before);
    std::copy(now, now + 4, before);
  }
  return out.full() ? out.ended() : out.flushed();
}

Encoded slow_ica(const Bytes& data) {
  return slow_pixels(data, [](BitString& out, const uint8_t* now, const uint8_t* before) {
    unsigned a = 0, b = 0, f5 = 0, f3 = 0;
    for (unsigned k = 0; k < 4; ++k) {
      if ((now[k] & 0xF8) == (before[k] & 0xF8)) ++a, f5 |= 2u << k;
      if ((now[k] & 0xE0) == (before[k] & 0xE0)) ++b, f3 |= 2u << k;
    }
    if (std::equal(now, now + 4, before)) return out.put(1, 5);
    const bool low3 = 3 * b < 5 * a;
    const unsigned flags = low3 ? f5 : f3;
    out.put(flags | low3, 5);
    for (unsigned k = 0; k < 4; ++k) out.put(now[k], flags & 2u << k ? low3 ? 3 : 5 : 8);
  });
}

Encoded slow_imist(const Bytes& data) {
  return slow_pixels(data, [](BitString& out, const uint8_t* now, const uint8_t* before) {
    for (size_t first = 0; first < 2; ++first) {
      const int change = (now[first] ^ before[first]) | (now[first + 2] ^ before[first + 2]);
      const size_t kind = change == 0 ? 0 : change < 8 ? 1 : change < 32 ? 2 : 3;
      constexpr unsigned marks[] = {7, 6, 2, 0}, mark_bits[] = {3, 3, 2, 1}, widths[] = {0, 3, 5, 8};
      out.put(marks[kind], mark_bits[kind]);
      out.put(now[first], widths[kind]);
      out.put(now[first + 2], widths[kind]);
    }
  });
}

TEST(Streams, EqualThoseOfASlowEncoder) {
  for (const Codec& codec :
       {Codec{iEncoder, slow_i, iDecoder, iDecoderSafe, 49},
        {ioEncoder, slow_io, ioDecoder, ioDecoderSafe, 65},
        {icaEncoder, slow_ica, icaDecoder, icaDecoderSafe, 129},
        {imistEncoder, slow_imist, imistDecoder, imistDecoderSafe, 129},
        {ib18Encoder, slow_ib18<false>, ib18Decoder, ib18DecoderSafe, 512},
        {ib18EncoderEx, slow_ib18<true>, ib18DecoderEx, ib18DecoderExSafe, 512, 1, false}}) {
    SCOPED_TRACE(codec.minimum);
    check_codec(codec);
  }
}

// Every head, also the ones that an encoder would not choose here: the bytes 0x40 + k, then fields of all ones.
TEST(Streams, EveryHeadOfIca) {
  for (unsigned head = 0; head < 32; ++head) {
    BitString stream;
    Bytes expected = {0x40, 0x41, 0x42, 0x43};
    stream.put(0, 5);
    for (uint8_t byte : expected) stream.put(byte, 8);
    stream.put(head, 5);
    for (unsigned k = 0; k < 4; ++k) {
      const unsigned width = head == 1 ? 0 : (head & 2u << k) == 0 ? 8 : head & 1 ? 3 : 5;
      stream.put(0xFF, width);
      expected.push_back(static_cast<uint8_t>((expected[k] & 0xFF << width) | ((1u << width) - 1)));
    }
    const Bytes bytes = stream.flushed().stream;
    EXPECT_EQ(decode(icaDecoder, icaDecoderSafe, bytes, 8), expected) << head;
  }
}

TEST(Streams, OfIb18NeedLittleMemory) {
  // The same table, counted in many passes.
  for (int kind = 0; kind < kinds_of_data; ++kind) {
    const Bytes data = make_data(kind, 5000);
    uint32_t counts[8 * 256];
    Bytes table(256);
    find_successors<8>(data.data(), 5000, counts, table.data());
    for (const auto encoder : {ib18Encoder, ib18EncoderEx}) {
      Bytes stream(5000);
      uint32_t written;
      on_a_small_stack([&] { encoder(data.data(), stream.data(), 5000, &written); });
      EXPECT_TRUE(std::equal(table.begin(), table.end(), stream.begin())) << kind;
    }
  }
}

TEST(Streams, OfIb18WorkedByHand) {
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
  for (size_t count = 0; count <= expected.size(); ++count)
    EXPECT_EQ(decode(ib18Decoder, stream, count),
              Bytes(expected.begin(), expected.begin() + static_cast<ptrdiff_t>(count)));
  EXPECT_EQ(decode(ib18DecoderEx, stream, 6), (Bytes{1, 3, 5, 6, 2, 4}));
}

}  // namespace
