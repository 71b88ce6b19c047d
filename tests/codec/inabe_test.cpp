// The two formats of groups of one similarity: with a short width for each group, and without.
#include "codec/bit_string.hpp"

namespace {

using namespace tessaro::test;

// The encoder as a machine that reads one unit of four bytes at a time and rewinds to its last checkpoint.
template <bool short_widths>
Encoded model(const Bytes& data) {
  BitString out{data.size() - 256};
  uint8_t last = 0, unit[4] = {};
  size_t scan = 0, emitted = 0;
  size_t size = 0, threshold = 0, kind = 0;  // size 0: no group is open
  struct {
    size_t size, scan;
    uint8_t last;
  } checkpoint{};
  while (emitted < data.size()) {
    for (size_t k = 0; k < 4 && scan + k < data.size(); ++k) unit[k] = data[scan + k];
    const auto agree = [&](int mask) {
      return std::all_of(unit, unit + 4, [&](uint8_t b) { return (b & mask) == (last & mask); });
    };
    const size_t found = agree(0xFF) ? 3 : agree(0xF8) ? 2 : agree(0xE0) ? 1 : 0;
    scan += 4;
    last = unit[3];
    if (size == 0) {
      size = 4, threshold = 8, kind = found, checkpoint = {4, scan, last};
    } else if (found == kind && emitted + size + 4 < data.size()) {
      size += 4;
      if (size == threshold) {
        checkpoint = {size, scan, last};
        threshold *= 2;
        out.put(1, 1);
      }
    } else {
      scan = checkpoint.scan, last = checkpoint.last, size = 0;
      out.put(0, 1);
      const unsigned mark[] = {0, 2, 6, 7}, mark_bits[] = {1, 2, 3, 3}, widths[] = {8, 5, 3, 0};
      out.put(mark[kind], mark_bits[kind]);
      const size_t n = std::min(checkpoint.size, data.size() - emitted);
      if (kind != 3) {
        const unsigned w = widths[kind];
        const auto value = [&](size_t i) { return data[emitted + i] & ((1u << w) - 1); };
        size_t least = SIZE_MAX;
        unsigned e = 0;
        if (!short_widths && out.full()) return out.flushed();
        for (unsigned candidate = 0; candidate < (short_widths ? 8 : 1); ++candidate) {
          size_t cost = (w + candidate) * n + candidate;
          for (size_t i = 0; i < n; ++i)
            if (value(i) < (1u << candidate) - 1) cost -= w;
          if (cost < least) least = cost, e = candidate;
        }
        if (short_widths) out.put((2u << e) - 2, e + 1);
        for (size_t i = 0; i < n; ++i) {
          if (value(i) < (1u << e) - 1) {
            out.put(value(i), e);
          } else {
            out.put((1u << e) - 1, e);
            out.put(value(i), w);
          }
          if (out.full()) return out.flushed();
        }
      }
      emitted += n;
    }
    if (out.full()) return out.flushed();
  }
  return out.flushed();
}

TEST(Iabr, CodesGroups) {
  check_codec({iabrEncoder, model<false>, iabrDecoder, iabrDecoderSafe, 257});
  // Groups of more bytes than any count asks for, and than 64 bits could count.
  for (unsigned level : {30u, 31u, 40u, 61u, 62u, 63u, 64u, 1000u}) {
    BitString stream;
    for (unsigned i = 0; i < level; ++i) stream.put(1, 1);
    stream.put(0b0111, 4);
    EXPECT_EQ(decode(iabrDecoderSafe, stream.flushed().stream, 1000), Bytes(1000)) << level;
  }
}

TEST(Inabe, CodesGroups) { check_codec({inabeEncoder, model<true>, inabeDecoder, inabeDecoderSafe, 257, 8}); }

TEST(Inabe, DecodesAllForms) {
  // Every width of field, escaped or not, also those above 7 that no encoder chooses.
  for (unsigned kind = 0; kind < 3; ++kind)
    for (unsigned e = 0; e <= 32; ++e) {
      BitString stream;
      const uint32_t ones = e == 32 ? ~0u : (1u << e) - 1;
      const unsigned w = kind == 0 ? 8 : kind == 1 ? 5 : 3;
      stream.put(0, 2);  // four bytes, whole
      stream.put(0, 1);  // no short width
      stream.put(0xA1B2C3D4, 32);
      stream.put(0, 1);
      stream.put((1u << kind) - 1, kind);
      stream.put(0, 1);
      stream.put(ones, e);
      stream.put(0, 1);
      Bytes expected = {0xA1, 0xB2, 0xC3, 0xD4};
      for (unsigned value : {0u, 1u, 2u, (1u << w) - 1}) {
        if (value < ones) {
          stream.put(value, e);
        } else {
          stream.put(ones, e);
          stream.put(value, w);
        }
        expected.push_back(static_cast<uint8_t>((expected.back() & 0xFF << w) | value));
      }
      const Bytes bytes = stream.flushed().stream;
      EXPECT_EQ(decode(inabeDecoder, inabeDecoderSafe, bytes, 8), expected) << kind << ' ' << e;
    }
}

TEST(Inabe, EndsFieldsAt32Bits) {
  // 33 ones and more are the width 32, without a zero behind them.
  BitString stream;
  stream.put(0, 2);
  stream.put(~0u, 32);
  stream.put(1, 1);
  for (uint32_t value : {0x12345601u, 0x80u, 0xFFFFFFFEu}) stream.put(value, 32);
  stream.put(~0u, 32);
  stream.put(0x77, 8);
  EXPECT_EQ(decode(inabeDecoder, inabeDecoderSafe, stream.flushed().stream, 4), (Bytes{1, 0x80, 0xFE, 0x77}));
}

// A host's pixels, channel by channel, as differences: what inabeDecoderEx undoes.
Bytes prepared(const Bytes& pixels) {
  Bytes out;
  uint8_t before = 128;
  for (size_t lane = 0; lane < 4; ++lane)
    for (size_t i = lane; i < pixels.size(); i += 4) {
      const auto d = static_cast<int8_t>(pixels[i] - before);
      out.push_back(static_cast<uint8_t>(d < 0 ? -2 * d - 1 : 2 * d));
      before = pixels[i];
    }
  return out;
}

TEST(Inabe, RestoresPreparedPixels) {
  int coded = 0;
  for (int kind = 0; kind < kinds_of_data; ++kind)
    for (size_t length = 257; length < 6000; length += 1 + length / 7) {
      const Bytes pixels = make_data(kind, length);
      const Encoded e = encode(inabeEncoder, prepared(pixels));
      if (e.result != 0) continue;
      ++coded;
      EXPECT_EQ(decode(inabeDecoderEx, inabeDecoderExSafe, e.stream, length), pixels)
          << kind << ' ' << length;
      damage(e.stream, 5, 6, [&](const Bytes& bad) {
        const Exact source(bad), out(Bytes(length, 0));
        inabeDecoderExSafe(source, out.at.get(), static_cast<uint32_t>(bad.size()),
                           static_cast<uint32_t>(length));
      });
    }
  EXPECT_GT(coded, 50);
  for (uint32_t count : {0u, 1u, 2u, 3u, 5u, 6u, 7u})
    EXPECT_EQ(decode(inabeDecoderEx, Bytes(count ? 12 : 0), count), Bytes(count, 128));
  EXPECT_EQ(decode(inabeDecoderExSafe, {}, 0, 1), Bytes{});
}

}  // namespace
