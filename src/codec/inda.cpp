// inda, the masked-reference format: blocks of eight bytes, each byte a literal or the rest of what it shares with a byte up
// to eight places back.
#include "codec/inda.hpp"

#include <cstring>

#include "codec/bits.hpp"
#include "codec/bytes.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t least_length = 65, margin = 64;
constexpr unsigned block_bytes = 8;

struct Parameters {
  unsigned level = 0, distance = 0, mask = 0;
};
enum Change : unsigned { level_changes = 1, distance_changes = 2, mask_changes = 4 };

class Encoder {
 public:
  explicit Encoder(uint8_t* out) : out_(out) {}
  // The block and the eight bytes before it. `ahead`: at least 7 more bytes follow it.
  void block(const uint8_t* at, unsigned choice, bool ahead) {
    Parameters now{choice / 8, choice ? choice % 8 : before_.distance, 0};
    const IndaLevel level = inda_levels.at[now.level];
    if (now.level) {
      const uint64_t changed = load<uint64_t>(at) ^ load<uint64_t>(at + now.distance - block_bytes);
      now.mask = zero_bytes(changed & (level.kept * 0x0101010101010101));
    }
    head(now, ahead);
    before_ = now;
    for (unsigned j = 0; j < block_bytes; ++j) {
      if (now.mask >> j & 1)
        put(at[j] >> level.shift & ((1u << level.sent_bits) - 1), level.sent_bits, ahead);
      else
        put(at[j], 8, ahead);
    }
  }
  uint32_t written() const { return out_.written(); }
  void flush() { out_.flush(); }

 private:
  void put(uint32_t bits, unsigned width, bool ahead) {
    if (ahead)
      out_.put_ahead(bits, width);
    else
      out_.put(bits, width);
  }
  void head(Parameters now, bool ahead) {
    const unsigned changes = (now.mask != before_.mask ? mask_changes : 0u) |
                             (now.distance != before_.distance ? distance_changes : 0u) |
                             (now.level != before_.level ? level_changes : 0u);
    unsigned bits = changes, width = 3;
    const auto append = [&](unsigned value, unsigned n) {
      bits = bits << n | value;
      width += n;
    };
    if (changes & level_changes) append(now.level, 4);
    if (now.level && changes & distance_changes) append(now.distance, 3);
    if (now.level && changes & mask_changes) append(now.mask, 8);
    put(bits, width, ahead);
  }

  BitWriter out_;
  Parameters before_;
};

template <class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  if (count == 0) return 1;
  BitReader<Source> in(source);
  auto* out = static_cast<uint8_t*>(destination);
  Parameters now;
  // The eight bytes before the block, then the block.
  uint8_t window[2 * block_bytes] = {};
  for (;;) {
    const unsigned changes = in.read(3);
    if (changes & level_changes) now.level = in.read(4);
    if (now.level && changes & distance_changes) now.distance = in.read(3);
    if (now.level && changes & mask_changes) now.mask = in.read(8);
    const IndaLevel level = inda_levels.at[now.level];
    const unsigned size = count < block_bytes ? count : block_bytes;
    for (unsigned j = 0; j < size; ++j) {
      uint8_t& byte = window[block_bytes + j];
      if ((now.mask >> j & 1) == 0) {
        byte = static_cast<uint8_t>(in.read(8));
      } else {
        byte = window[j + now.distance] & level.kept;
        if (level.sent_bits) byte |= static_cast<uint8_t>(in.read(level.sent_bits) << level.shift);
      }
      if (in.ran_out()) return 1;
      *out++ = byte;
    }
    count -= size;
    if (count == 0) return 0;
    std::memcpy(window, window + block_bytes, block_bytes);
  }
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL indaEncoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written) {
  if (length < least_length) return 1;
  const auto* at = static_cast<const uint8_t*>(source);
  const uint8_t* const end = at + length;
  const uint32_t limit = length - margin;
  const auto search = kernels<IndaKernels>().search;
  Encoder out(static_cast<uint8_t*>(destination));
  // False when the stream has reached its limit.
  const auto code = [&](const uint8_t* block, unsigned choice, bool ahead) {
    out.block(block, choice, ahead);
    return out.written() < limit;
  };
  const auto code_window = [&](const uint8_t* window) {
    uint8_t choice;
    search(window + block_bytes, 1, &choice);
    return code(window + block_bytes, choice, false);
  };
  const auto code_all = [&] {
    // The first block has zeros before it.
    uint8_t window[2 * block_bytes] = {};
    std::memcpy(window + block_bytes, at, block_bytes);
    if (!code_window(window)) return false;
    at += block_bytes;
    constexpr size_t batch = 64;
    uint8_t choices[batch];
    for (size_t blocks; (blocks = static_cast<size_t>(end - at) / block_bytes) != 0;) {
      // Every block costs three bits or more: behind one that 20 others follow come 7 bytes.
      const bool ahead = blocks >= batch + 20 && out.written() + batch * 16 < limit;
      if (blocks > batch) blocks = batch;
      search(at, blocks, choices);
      for (size_t i = 0; i < blocks; ++i, at += block_bytes)
        if (!code(at, choices[i], ahead)) return false;
    }
    if (at == end) return true;
    // A short last block keeps the bytes of the one before in its other places.
    std::memcpy(window, at - block_bytes, block_bytes);
    std::memcpy(window + block_bytes, at - block_bytes, block_bytes);
    std::memcpy(window + block_bytes, at, static_cast<size_t>(end - at));
    return code_window(window);
  };
  const bool complete = code_all();
  if (complete) out.flush();
  store(written, out.written());
  return complete && out.written() < limit ? 0 : 1;
}

extern "C" int32_t TESSARO_CALL indaDecoder(const void* stream, void* destination, uint32_t count) {
  return decode(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL indaDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                uint32_t count) {
  return decode(Bounded(stream, stream_size), destination, count);
}
