#include "codec/bit_string.hpp"

namespace {

using namespace tessaro::test;

Encoded model(const Bytes& data) {
  BitString out{data.size() - 128};
  uint8_t before[4] = {};
  for (size_t at = 0; at < data.size(); at += 4) {
    uint8_t now[4];
    for (size_t k = 0; k < 4; ++k) now[k] = at + k < data.size() ? data[at + k] : before[k];
    for (size_t first = 0; first < 2; ++first) {
      const auto all_agree = [&](int mask) {
        return (now[first] & mask) == (before[first] & mask) &&
               (now[first + 2] & mask) == (before[first + 2] & mask);
      };
      unsigned width = 8;
      if (all_agree(0xFF))
        out.put(7, 3), width = 0;
      else if (all_agree(0xF8))
        out.put(6, 3), width = 3;
      else if (all_agree(0xE0))
        out.put(2, 2), width = 5;
      else
        out.put(0, 1);
      out.put(now[first], width);
      out.put(now[first + 2], width);
    }
    std::copy(now, now + 4, before);
    if (out.full()) return out.ended();
  }
  return out.flushed();
}

TEST(Imist, CodesPairsOfChannels) { check_codec({imistEncoder, model, imistDecoder, imistDecoderSafe, 129}); }

}  // namespace
