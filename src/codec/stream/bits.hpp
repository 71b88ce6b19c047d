// Bit streams, most significant bit first: one writer and one reader under every format that has bit fields.
//
// Both keep 64 bits at hand and move up to 8 bytes at once, but only where that touches nothing else: a
// writer never changes a byte behind the stream's end, and a reader never reads one that the format does not
// make it need.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/numbers.hpp"

namespace tessaro {

inline uint64_t load_big_endian64(const uint8_t* at) { return __builtin_bswap64(load<uint64_t>(at)); }

// Bits side by side, the last one lowest; nothing stands above them.
struct BitField {
  uint64_t bits;
  unsigned width;  // at most 56
  // These, then those.
  constexpr BitField operator+(BitField next) const {
    return {bits << next.width | next.bits, width + next.width};
  }
};
constexpr uint32_t ones(unsigned n) { return static_cast<uint32_t>((uint64_t{1} << n) - 1); }  // n <= 32

class BitWriter {
 public:
  explicit BitWriter(uint8_t* out) : begin_(out), at_(out) {}

  // Appends n bits, n <= 32; nothing stands above them. Whole bytes leave at once, by a store of the last
  // four: three of them have left before, and `pending_` still holds those, so that they are stored again as
  // they are.
  void put(uint32_t bits, unsigned n) {
    pending_ = pending_ << n | bits;
    held_ += n;
    if (at_ - begin_ >= 4) [[likely]] {
      at_ += held_ >> 3;
      held_ &= 7;
      store(at_ - 4, __builtin_bswap32(static_cast<uint32_t>(pending_ >> held_)));
    } else {
      for (; held_ >= 8; held_ -= 8) *at_++ = static_cast<uint8_t>(pending_ >> (held_ - 8));
    }
  }
  void put(BitField field) { put(static_cast<uint32_t>(field.bits), field.width); }  // of 32 bits at most
  // Appends a field in one store of 8 bytes, which may change the 7 bytes behind the stream so far: only for
  // where at least 7 more are sure to follow.
  void put_ahead(BitField field) {
    pending_ = pending_ << field.width | field.bits;
    held_ += field.width;
    // Nothing pending stores bytes that will be written again, whatever the shift.
    store(at_, __builtin_bswap64(pending_ << ((64 - held_) & 63)));
    at_ += held_ >> 3;
    held_ &= 7;
  }
  // Ends the stream: the last partial byte padded with zeros, or one zero byte where nothing is pending.
  void flush() { put(0, 8); }

  uint32_t written() const { return static_cast<uint32_t>(at_ - begin_); }

 private:
  uint8_t* begin_;
  uint8_t* at_;
  uint64_t pending_ = 0;  // the last bits appended; the low held_ of them are still to leave
  unsigned held_ = 0;     // below 8 between calls
};

// Where a decoder's bytes come from. A classic decoder is not told how long its stream is.
struct Trusted {
  explicit Trusted(const void* stream) : at(static_cast<const uint8_t*>(stream)) {}
  const uint8_t* at;

  // Whether the next n bytes exist.
  static constexpr bool has(size_t) { return true; }
  static constexpr uint64_t bits_left() { return UINT64_MAX / 2; }
  // Whether 8 bytes may be read at once, when the rest of the stream is known to be at least `bytes` long.
  static constexpr bool has_8(uint64_t bytes) { return bytes >= 8; }
};
struct Bounded {
  Bounded(const void* stream, uint32_t size) : at(static_cast<const uint8_t*>(stream)), end(at + size) {}
  const uint8_t *at, *end;

  bool has(size_t n) const { return static_cast<size_t>(end - at) >= n; }
  uint64_t bits_left() const { return static_cast<uint64_t>(end - at) * 8; }
  bool has_8(uint64_t) const { return has(8); }
};

template <class Source>
class BitReader {
 public:
  explicit BitReader(Source source) : source_(source), begin_(source.at) {}

  // Makes at least n bits available, n <= 56, reading no byte beyond the one that holds the last of them.
  // Where the stream ends before, zeros take the place of what is missing and ran_out() is true from then on.
  void need(unsigned n) {
    if (held_ >= n) return;
    unsigned bytes = (n - held_ + 7) >> 3;
    if (!source_.has(bytes)) [[unlikely]] {
      ran_out_ = true;
      held_ = 64;
      return;
    }
    if (source_.at - begin_ + static_cast<ptrdiff_t>(bytes) >= 8) [[likely]] {
      // The eight bytes that end with the last one needed: the first of them have been read before.
      source_.at += bytes;
      bits_ |= load_big_endian64(source_.at - 8) << (64 - 8 * bytes) >> held_;
      held_ += 8 * bytes;
    } else {
      for (; bytes; --bytes, held_ += 8) bits_ |= static_cast<uint64_t>(*source_.at++) << (56 - held_);
    }
  }

  // How many bits the stream still has, as far as that is known.
  uint64_t left() const { return source_.bits_left() + held_; }

  // Whether refill() may be called, when the format makes the decoder read at least `sure` more bits.
  bool can_refill(uint64_t sure) const { return source_.has_8((sure - (sure < held_ ? sure : held_)) >> 3); }
  // Makes at least 56 bits available in one 8-byte read.
  void refill() {
    bits_ |= load_big_endian64(source_.at) >> held_;
    source_.at += (63 - held_) >> 3;
    held_ |= 56;
  }

  // The available bits, the next one on top; below them stands nothing or the bits that follow in the stream.
  uint64_t window() const { return bits_; }
  unsigned held() const { return held_; }
  void skip(unsigned n) {  // n < 64
    bits_ <<= n;
    held_ -= n;
  }
  // The next n bits, 1 <= n <= 32, which are available.
  uint32_t take(unsigned n) {
    const auto value = static_cast<uint32_t>(bits_ >> (64 - n));
    skip(n);
    return value;
  }
  uint32_t read(unsigned n) {
    need(n);
    return take(n);
  }
  // Counts the one bits up to a zero, which is taken too, or up to `most` of them; 2^30 and more count as
  // 2^30.
  unsigned read_ones(unsigned most) {
    for (unsigned ones = 0;;) {
      need(1);
      const unsigned all = held_;
      auto now = static_cast<unsigned>(__builtin_clzll(~bits_ | 1));
      now = now < all ? now : all;
      if (ones + now >= most) {
        skip(most - ones);
        return most;
      }
      skip(now);
      ones += now;
      if (now < all) {
        skip(1);
        return ones;
      }
      if (ones > 1u << 30) ones = 1u << 30;
    }
  }
  bool ran_out() const { return ran_out_; }

 private:
  Source source_;
  const uint8_t* begin_;
  uint64_t bits_ = 0;
  unsigned held_ = 0;  // at most 64
  bool ran_out_ = false;
};

}  // namespace tessaro
