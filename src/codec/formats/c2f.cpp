// c2f, the block-mask format: eight pixels at a time, without the bytes that do not change.
//
// Both sides are plain 64-bit words: the n kept bytes of eight pixels fill n words exactly, so a block is
// packed and unpacked without a load or a store beyond it.
#include <cstddef>
#include <cstring>

#include "codec/stream/bytes.hpp"
#include "core/numbers.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr size_t block_bytes = 32;
constexpr unsigned block_pixels = 8;
constexpr unsigned all_bytes = 15;
constexpr unsigned short_literals = 127, most_literals = 255 * 128;
constexpr unsigned short_run = 15, most_run = short_run + 255;

constexpr uint32_t mask_of(unsigned kept) {
  uint32_t mask = 0;
  for (unsigned k = 0; k < 4; ++k)
    if (kept >> k & 1) mask |= 0xFFu << 8 * k;
  return mask;
}

// The kept bytes of a pixel moved together at the low end, and back.
template <unsigned kept>
constexpr uint32_t gather(uint32_t pixel) {
  uint32_t v = 0;
  for (unsigned k = 0, n = 0; k < 4; ++k)
    if (kept >> k & 1) v |= (pixel >> 8 * k & 0xFF) << 8 * n++;
  return v;
}
template <unsigned kept>
constexpr uint32_t scatter(uint32_t bytes) {
  uint32_t v = 0;
  for (unsigned k = 0, n = 0; k < 4; ++k)
    if (kept >> k & 1) v |= (bytes >> 8 * n++ & 0xFF) << 8 * k;
  return v;
}

template <unsigned kept>
void pack(uint8_t* out, const uint8_t* block) {
  constexpr unsigned bits = 8 * bits_in(kept), bytes = block_pixels * bits_in(kept);
  uint64_t words[5] = {};
#pragma GCC unroll 8
  for (unsigned i = 0; i < block_pixels; ++i) {
    const uint64_t v = gather<kept>(load<uint32_t>(block + 4 * i));
    const unsigned at = i * bits, shift = at % 64;
    words[at / 64] |= v << shift;
    if (shift + bits > 64) words[at / 64 + 1] |= v >> (64 - shift) % 64;
  }
  std::memcpy(out, words, bytes);
}

template <unsigned kept>
void unpack(uint8_t* block, const uint8_t* at, uint32_t base) {
  constexpr unsigned bits = 8 * bits_in(kept), bytes = block_pixels * bits_in(kept);
  uint64_t words[5] = {};
  std::memcpy(words, at, bytes);
#pragma GCC unroll 8
  for (unsigned i = 0; i < block_pixels; ++i) {
    const unsigned from = i * bits, shift = from % 64;
    uint64_t v = words[from / 64] >> shift;
    if (shift + bits > 64) v |= words[from / 64 + 1] << (64 - shift) % 64;
    store(block + 4 * i, (base & ~mask_of(kept)) | scatter<kept>(static_cast<uint32_t>(v)));
  }
}

// Bit k is set where byte k of some pixel of the block differs from the base pixel's.
unsigned changed_bytes(const uint8_t* block, uint32_t base) {
  const uint64_t twice = base * uint64_t{0x100000001};
  uint64_t d = 0;
  for (unsigned i = 0; i < block_pixels; i += 2) d |= load<uint64_t>(block + 4 * i) ^ twice;
  return ~zero_bytes(static_cast<uint32_t>(d | d >> 32)) & all_bytes;
}

struct Encoder {
  const uint8_t* at;
  const uint8_t* end;
  uint8_t* out;
  uint32_t base = 0;  // the last pixel of the block before
  unsigned kept = 0;  // bytes of the block at hand that change

  // False when no whole block is left.
  bool block() {
    if (static_cast<size_t>(end - at) < block_bytes) return false;
    kept = changed_bytes(at, base);
    return true;
  }
  bool next_block() {
    base = load<uint32_t>(at + block_bytes - 4);
    at += block_bytes;
    return block();
  }
};

// An operation byte and the blocks that it stands for: the one at hand and those behind it that keep the same
// bytes.
template <unsigned kept>
bool pack_run(Encoder& e) {
  uint8_t* const operation = e.out++;
  uint8_t* extension = nullptr;
  unsigned count = 0;
  bool more;
  do {
    pack<kept>(e.out, e.at);
    e.out += block_pixels * bits_in(kept);
    if (++count == short_run) extension = e.out++;
    more = e.next_block();
  } while (more && e.kept == kept && count < most_run);
  *operation = static_cast<uint8_t>((~kept & 15) << 4 | (extension ? short_run : count));
  if (extension) *extension = static_cast<uint8_t>(count - short_run);
  return more;
}

template <unsigned kept>
void unpack_run(uint8_t* out, const uint8_t* at, size_t blocks, uint32_t base) {
  for (; blocks; --blocks, out += block_bytes, at += block_pixels * bits_in(kept))
    unpack<kept>(out, at, base);
}

// One routine for every set of kept bytes.
constexpr bool (*pack_runs[16])(Encoder&) = {pack_run<0>,  pack_run<1>,  pack_run<2>,  pack_run<3>,
                                             pack_run<4>,  pack_run<5>,  pack_run<6>,  pack_run<7>,
                                             pack_run<8>,  pack_run<9>,  pack_run<10>, pack_run<11>,
                                             pack_run<12>, pack_run<13>, pack_run<14>, nullptr};
constexpr void (*unpack_runs[16])(uint8_t*, const uint8_t*, size_t, uint32_t) = {
    unpack_run<0>,  unpack_run<1>,  unpack_run<2>,  unpack_run<3>, unpack_run<4>,  unpack_run<5>,
    unpack_run<6>,  unpack_run<7>,  unpack_run<8>,  unpack_run<9>, unpack_run<10>, unpack_run<11>,
    unpack_run<12>, unpack_run<13>, unpack_run<14>, unpack_run<15>};

// A decoder's stream and destination: nothing is touched before it is known to lie inside.
class Decoder {
 public:
  Decoder(const uint8_t* stream, size_t stream_size, uint8_t* destination, size_t size)
      : at_(stream),
        end_(stream + stream_size),
        start_(destination),
        out_(destination),
        stop_(start_ + size) {}

  // The last pixel written.
  uint32_t base() const { return out_ == start_ ? 0 : load<uint32_t>(out_ - 4); }
  bool byte(unsigned& v) {
    if (at_ == end_) return false;
    v = *at_++;
    return true;
  }
  bool blocks(size_t count, unsigned kept, uint32_t base) {
    const size_t data = count * block_pixels * bits_in(kept);
    if (room() < count * block_bytes || left() < data) return false;
    unpack_runs[kept](out_, at_, count, base);
    at_ += data;
    out_ += count * block_bytes;
    return true;
  }
  bool literals(size_t count) { return blocks(count, all_bytes, 0); }
  bool tail(size_t count) {
    size_t n = count < room() ? count : room();
    if (n > left()) n = left();
    if (n) std::memcpy(out_, at_, n);
    out_ += n;
    if (n < count) return room() == 0;
    // Every second byte only; the ones between keep what they held.
    for (size_t i = 0; i < room(); i += 2) out_[i] = 0;
    return true;
  }

 private:
  size_t left() const { return static_cast<size_t>(end_ - at_); }
  size_t room() const { return static_cast<size_t>(stop_ - out_); }

  const uint8_t* at_;
  const uint8_t* const end_;
  uint8_t* const start_;
  uint8_t* out_;
  uint8_t* const stop_;
};

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL c2fEncoder(const void* source, void* destination, uint32_t length,
                                           uint32_t* written) {
  auto* const start = static_cast<uint8_t*>(destination);
  const auto* const from = static_cast<const uint8_t*>(source);
  Encoder e{from, from + length, start};
  for (bool more = e.block();;) {
    uint8_t* const header = e.out++;
    uint8_t* extension = nullptr;
    unsigned count = 0;
    for (; more && e.kept == all_bytes && count < most_literals; more = e.next_block()) {
      if (++count == short_literals + 1) extension = e.out++;
      std::memcpy(e.out, e.at, block_bytes);
      e.out += block_bytes;
    }
    *header = static_cast<uint8_t>(extension ? 128 + count % 128 : count);
    if (extension) *extension = static_cast<uint8_t>(count / 128);
    // The longest literal run has no operation behind it.
    if (count == most_literals) continue;
    if (!more) break;
    more = pack_runs[e.kept](e);
  }
  // The end: the rest that fills no block, without its zeros.
  size_t tail = static_cast<size_t>(e.end - e.at);
  while (tail && e.at[tail - 1] == 0) --tail;
  *e.out++ = 0;
  *e.out++ = static_cast<uint8_t>(tail);
  if (tail) std::memcpy(e.out, e.at, tail);
  store(written, static_cast<uint32_t>(e.out + tail - start));
  return 0;
}

extern "C" int32_t TESSARO_CALL c2fDecoder(const void* stream, void* destination, uint32_t stream_size,
                                           uint32_t size) {
  Decoder d(static_cast<const uint8_t*>(stream), stream_size, static_cast<uint8_t*>(destination), size);
  unsigned header, extension, operation;
  for (;;) {
    if (!d.byte(header)) return 1;
    if (header < 128) {
      if (!d.literals(header)) return 1;
    } else {
      if (!d.literals(short_literals) || !d.byte(extension)) return 1;
      const unsigned count = extension * 128 + (header & 127);
      // No stream counts fewer blocks than it has already given.
      if (count < short_literals || !d.literals(count - short_literals)) return 1;
      if (count == most_literals) continue;
    }
    if (!d.byte(operation)) return 1;
    if (operation == 0) break;
    const unsigned kept = ~operation >> 4 & 15, count = operation & 15;
    const uint32_t base = d.base();
    if (!d.blocks(count, kept, base)) return 1;
    if (count == short_run && (!d.byte(extension) || !d.blocks(extension, kept, base))) return 1;
  }
  unsigned tail;
  return d.byte(tail) && d.tail(tail) ? 0 : 1;
}
