// inda, the masked-reference format: blocks of eight bytes, each byte a literal or the rest of what it shares
// with a byte up to eight places back.
#include "codec/formats/inda.hpp"

#include <cstring>

#include "codec/stream/bits.hpp"
#include "codec/stream/bytes.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t margin = 64;
constexpr unsigned block_bytes = 8;

constexpr uint64_t each_byte = 0x0101010101010101;

struct Parameters {
  unsigned level = 0, distance = 0, mask = 0;
};
enum Change : unsigned { level_changes = 1, distance_changes = 2, mask_changes = 4 };

// Which bits of a block's eight bytes are sent, and in how many bits each byte is.
struct Layout {
  uint64_t built;   // ones in the bytes that are built from a reference
  uint64_t kept;    // the bits that those bytes take from it
  uint64_t widths;  // a byte each
  unsigned shift;   // where the sent bits of a built byte stand

  explicit Layout(Parameters p) {
    const IndaLevel level = inda_levels.at[p.level];
    // Bit j moves into byte j, then fills it.
    const uint64_t flags = p.mask * each_byte & 0x8040201008040201;
    built = (flags + 0x7F7F7F7F7F7F7F7F) >> 7 & each_byte;
    built *= 255;
    kept = level.kept * each_byte & built;
    widths = 8 * each_byte - (level.kept_bits * each_byte & built);
    shift = level.shift;
  }
};

// Four bytes of a block, each in its own width: where they stand in up to 32 bits of the stream.
struct Half {
  // The bits up to and with each byte, a byte each: at most 32, so that no byte of the product overflows.
  uint32_t after;
  explicit Half(uint32_t widths) : after(widths * 0x01010101u) {}
  // Of the first n bytes, and behind byte j.
  unsigned bits(unsigned n = 4) const { return static_cast<unsigned>(uint64_t{after} << 8 >> 8 * n & 0xFF); }
  unsigned behind(unsigned j) const { return bits() - bits(j + 1); }
};
inline BitField gather(uint32_t bytes, Half half) {
  uint64_t bits = 0;
  for (unsigned j = 0; j < 4; ++j) bits |= uint64_t{bytes >> 8 * j & 0xFF} << half.behind(j);
  return {bits, half.bits()};
}
// What lies above a byte's own width is not its: the caller clears it.
inline uint32_t scatter(uint64_t bits, Half half) {
  uint32_t bytes = 0;
  for (unsigned j = 0; j < 4; ++j) bytes |= (static_cast<uint32_t>(bits >> half.behind(j)) & 0xFF) << 8 * j;
  return bytes;
}

class Encoder {
 public:
  explicit Encoder(uint8_t* out) : out_(out) {}
  // The block and the eight bytes before it. `ahead`: at least 7 more bytes follow it.
  void block(const uint8_t* at, unsigned choice, bool ahead) {
    Parameters now{choice / 8, choice ? choice % 8 : before_.distance, 0};
    const auto bytes = load<uint64_t>(at);
    if (now.level) {
      const uint64_t changed = bytes ^ load<uint64_t>(at + now.distance - block_bytes);
      now.mask = zero_bytes(changed & (inda_levels.at[now.level].kept * each_byte));
    }
    const BitField head = head_of(now);
    before_ = now;
    const Layout layout(now);
    const uint64_t sent = (bytes & ~layout.built) | ((bytes & layout.built & ~layout.kept) >> layout.shift);
    const Half first(static_cast<uint32_t>(layout.widths)),
        second(static_cast<uint32_t>(layout.widths >> 32));
    const BitField first_bits = gather(static_cast<uint32_t>(sent), first),
                   second_bits = gather(static_cast<uint32_t>(sent >> 32), second);
    if (ahead) {
      out_.put_ahead(head + first_bits);
      out_.put_ahead(second_bits);
    } else {
      out_.put(head);
      out_.put(first_bits);
      out_.put(second_bits);
    }
  }
  uint32_t written() const { return out_.written(); }
  void flush() { out_.flush(); }

 private:
  BitField head_of(Parameters now) const {
    const unsigned changes = (now.mask != before_.mask ? mask_changes : 0u) |
                             (now.distance != before_.distance ? distance_changes : 0u) |
                             (now.level != before_.level ? level_changes : 0u);
    BitField head{changes, 3};
    const auto append = [&](bool there, unsigned value, unsigned n) {
      head = head + BitField{there ? value : 0, there ? n : 0};
    };
    append(changes & level_changes, now.level, 4);
    append(now.level && changes & distance_changes, now.distance, 3);
    append(now.level && changes & mask_changes, now.mask, 8);
    return head;
  }

  BitWriter out_;
  Parameters before_;
};

// The bytes of a block from what was sent, in place, and the eight bytes before: byte j takes its kept bits
// from the byte 8 - d places back, which may be one of this block. Every step doubles how far back the bits
// have been followed.
inline uint64_t build(uint64_t sent, uint64_t kept, uint64_t before, unsigned distance) {
  const auto up = [](uint64_t v, unsigned n) { return n < 64 ? v << n : 0; };
  unsigned back = 64 - 8 * distance;
  uint64_t bytes = sent | (before >> 8 * distance & kept);
  for (int step = 0; step < 3; ++step, back *= 2) {
    bytes |= up(bytes, back) & kept;
    kept &= up(kept, back);
  }
  return bytes;
}

template <class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  if (count == 0) return 1;
  BitReader<Source> in(source);
  auto* out = static_cast<uint8_t*>(destination);
  Parameters now;
  uint64_t bytes = 0;
  for (;;) {
    // Every later block costs three bits or more.
    const uint64_t later = uint64_t{count - 1} / block_bytes * 3;
    const auto prepare = [&](unsigned n) {
      if (in.can_refill(n + later)) in.refill();
    };
    const auto field = [&](unsigned n) {
      in.need(n);
      const uint64_t value = in.window() >> 1 >> (63 - n);
      in.skip(n);
      return static_cast<uint32_t>(value);
    };
    const auto update = [&](bool there, unsigned& parameter, unsigned n) {
      const uint32_t value = field(there ? n : 0);
      parameter = there ? value : parameter;
    };
    prepare(3);
    const unsigned changes = field(3);
    update(changes & level_changes, now.level, 4);
    update(now.level && changes & distance_changes, now.distance, 3);
    update(now.level && changes & mask_changes, now.mask, 8);
    const Layout layout(now);
    const Half first(static_cast<uint32_t>(layout.widths)),
        second(static_cast<uint32_t>(layout.widths >> 32));
    // A last block that is cut needs no more bits than its bytes have.
    const unsigned n = count < block_bytes ? count : block_bytes;
    const unsigned first_bits = first.bits(n < 4 ? n : 4), second_bits = second.bits(n < 4 ? 0 : n - 4);
    uint64_t sent = scatter(uint64_t{field(first_bits)} << (first.bits() - first_bits), first);
    prepare(second_bits);
    sent |= uint64_t{scatter(uint64_t{field(second_bits)} << (second.bits() - second_bits), second)} << 32;
    if (in.ran_out()) return 1;
    sent = (sent & ~layout.built) | (sent << layout.shift & layout.built & ~layout.kept);
    bytes = build(sent, layout.kept, bytes, now.distance);
    if (count <= block_bytes) break;
    store(out, bytes);
    out += block_bytes;
    count -= block_bytes;
  }
  std::memcpy(out, &bytes, count);
  return 0;
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL indaEncoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written) {
  if (length <= margin) return 1;
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
