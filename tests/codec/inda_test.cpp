#include "codec/bit_string.hpp"

namespace {

using namespace tessaro;
using namespace tessaro::test;

// The bits that a level keeps.
unsigned kept_mask(unsigned level) { return level <= 8 ? 0xFF00u >> level & 0xFF : 0xFFu >> (level - 8); }

Encoded model(const Bytes& data) {
  BitString out{data.size() - 64};
  unsigned before_level = 0, before_distance = 0, before_mask = 0;
  uint8_t window[16] = {};
  for (size_t at = 0; at < data.size(); at += 8) {
    std::copy(window + 8, window + 16, window);
    for (size_t j = 0; j < 8 && at + j < data.size(); ++j) window[8 + j] = data[at + j];
    unsigned best = 11, level = 0, distance = before_distance, mask = 0;
    for (unsigned l = 1; l < 16; ++l)
      for (unsigned d = 0; d < 8; ++d) {
        unsigned agreeing = 0;
        for (unsigned j = 0; j < 8; ++j)
          if (((window[8 + j] ^ window[j + d]) & kept_mask(l)) == 0) agreeing |= 1u << j;
        const auto bits = static_cast<unsigned>(__builtin_popcount(kept_mask(l)));
        const unsigned score = bits * static_cast<unsigned>(__builtin_popcount(agreeing));
        if (score > best) best = score, level = l, distance = d, mask = agreeing;
      }
    const unsigned change =
        (mask != before_mask) * 4u + (distance != before_distance) * 2u + (level != before_level);
    out.put(change, 3);
    if (change & 1) out.put(level, 4);
    if (change & 2 && level) out.put(distance, 3);
    if (change & 4 && level) out.put(mask, 8);
    before_level = level, before_distance = distance, before_mask = mask;
    for (unsigned j = 0; j < 8; ++j)
      if ((mask >> j & 1) == 0)
        out.put(window[8 + j], 8);
      else if (level <= 8)
        out.put(window[8 + j], 8 - level);
      else
        out.put(static_cast<unsigned>(window[8 + j] >> (16 - level)), level - 8);
    if (out.full()) return out.ended();
  }
  return out.flushed();
}

TEST(Inda, FindsTheBestReferences) {
  for (const Forced backend : supported_backends())
    check_codec({indaEncoder, model, indaDecoder, indaDecoderSafe, 65, 8});
}

// Every level, distance and mask, also those that an encoder would not choose, and parameters that stay unsent while
// the level is 0.
TEST(Inda, DecodesAllParameters) {
  Random random(4);
  for (int i = 0; i < 3000; ++i) {
    BitString stream;
    unsigned level = 0, distance = 0, mask = 0;
    Bytes out(8);
    for (int block = 0; block < 6; ++block) {
      const unsigned change = random.word() & 7;
      stream.put(change, 3);
      if (change & 1) stream.put(level = random.word() & 15, 4);
      if (change & 2 && level) stream.put(distance = random.word() & 7, 3);
      if (change & 4 && level) stream.put(mask = random.word() & 255, 8);
      for (unsigned j = 0; j < 8; ++j) {
        const unsigned kept = mask >> j & 1 ? kept_mask(level) : 0, any = random.word() & 255 & ~kept;
        const unsigned shift = level > 8 && kept ? 16 - level : 0;
        stream.put(any >> shift, 8 - static_cast<unsigned>(__builtin_popcount(kept)));
        out.push_back(static_cast<uint8_t>((out[out.size() - 8 + distance] & kept) | any));
      }
    }
    const Bytes expected(out.begin() + 8, out.end()), bytes = stream.flushed().stream;
    ASSERT_EQ(decode(indaDecoder, indaDecoderSafe, bytes, 48), expected);
  }
}

}  // namespace
