// ib18: blocks of six bytes, each byte a repeat of the one before, the one predicted to follow it, or a
// literal.
#include "codec/formats/ib18.hpp"

#include "codec/stream/bits.hpp"
#include "codec/stream/bytes.hpp"
#include "codec/stream/channel_order.hpp"
#include "core/heap.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t shortest = 512;
constexpr uint32_t margin = 32;
constexpr unsigned block_size = 6;
constexpr unsigned all_of_block = 0x3F;
constexpr uint64_t bytes_of_block = 0x0000FFFFFFFFFFFF;
constexpr unsigned longest_run = 16;  // doublings of a block

// What the encoder reads: the source in its order, and zeros behind it. block(i) is the six bytes from i on,
// the first one lowest, with anything above them.
struct PlainOrder {
  const uint8_t* source;
  uint64_t n;
  uint8_t operator[](uint64_t i) const { return i < n ? source[i] : uint8_t{0}; }
  uint64_t block(uint64_t i) const {
    if (i + 8 <= n) [[likely]]
      return load<uint64_t>(source + i);
    uint64_t bytes = 0;
    for (unsigned k = 0; k < block_size; ++k) bytes |= uint64_t{(*this)[i + k]} << 8 * k;
    return bytes;
  }
};
// Every fourth byte from 0, then from 1, 2 and 3. Lengths that are not a multiple of 4 give what these
// formulas give.
struct ChannelsOrder {
  const uint8_t* source;
  uint64_t n;
  uint64_t position(uint64_t i) const {
    const uint64_t q = 4 * i < 2 * n ? 4 * i : 4 * i + 2 - 2 * n;
    return q < n ? q : q + 1 - n;
  }
  uint8_t operator[](uint64_t i) const {
    const uint64_t at = position(i);
    return at < n ? source[at] : uint8_t{0};
  }
  uint64_t block(uint64_t i) const {
    uint64_t bytes = 0;
    const uint64_t first = position(i), last = position(i + block_size - 1);
    if (last - first == 4 * (block_size - 1) && last < n) [[likely]] {  // all in one channel
      for (unsigned k = 0; k < block_size; ++k) bytes |= uint64_t{source[first + 4 * k]} << 8 * k;
    } else {
      for (unsigned k = 0; k < block_size; ++k) bytes |= uint64_t{(*this)[i + k]} << 8 * k;
    }
    return bytes;
  }
};

// One of two values without a jump: no processor guesses which of them the data asks for.
inline uint64_t either(bool first, uint64_t a, uint64_t b) { return b ^ ((a ^ b) & (uint64_t{0} - first)); }

// Flags of the bytes of a block that are the same in both.
inline unsigned equal_bytes(uint64_t a, uint64_t b) { return zero_bytes((a ^ b) | ~bytes_of_block); }

template <class Order>
int32_t encode(const void* source, void* destination, uint32_t length, uint32_t* written) {
  if (length < shortest) return 1;
  const Order in{static_cast<const uint8_t*>(source), length};
  auto* const begin = static_cast<uint8_t*>(destination);
  uint8_t successors[256];
  {
    // A quarter of a MiB, which not every thread of a host has on its stack; a small table costs more passes.
    HeapArray<uint32_t> table(256 * 256);
    uint32_t small[8 * 256];
    if (table)
      find_successors<256>(in.source, length, table.data(), successors);
    else
      find_successors<8>(in.source, length, small, successors);
  }
  std::memcpy(begin, successors, sizeof successors);
  uint8_t* out = begin + sizeof successors;
  const uint8_t* const limit = begin + (length - margin);
  uint8_t last = 0;
  // The last eight bytes of the stream: an operation with its literals is stored together with those before
  // it, without a branch for their number and without touching what follows.
  uint64_t tail = load_big_endian64(out - 8);
  for (uint64_t at = 0; at < length;) {
    const uint64_t bytes = in.block(at), before = bytes << 8 | last;
    uint64_t expected = 0;
    for (unsigned k = 0; k < block_size; ++k)
      expected |= uint64_t{successors[before >> 8 * k & 0xFF]} << 8 * k;
    // No byte is its own successor, so none is both.
    const unsigned repeats = equal_bytes(bytes, before), predictions = equal_bytes(bytes, expected);
    last = static_cast<uint8_t>(bytes >> 8 * (block_size - 1));
    at += block_size;
    const unsigned repeated = bits_in(repeats), predicted = bits_in(predictions);
    uint64_t operation, unsent;  // the flags of the bytes that are not sent
    if (repeated == block_size) {
      unsigned level = 0;
      for (uint64_t size = block_size; level < longest_run; ++level, size *= 2) {
        uint64_t same = 0;
        while (same < size && in[at + same] == last) ++same;
        if (same < size) break;
        at += size;
      }
      operation = level == 0 ? 0x7F : 0x10 | (level - 1);
      unsent = all_of_block;
    } else {
      const bool by_prediction = repeated < predicted;
      const bool mixed = repeated + predicted == block_size && predicted != block_size;
      operation = either(by_prediction, 0x80 | predictions, 0x40 | repeats);
      operation = either(mixed, 0xC0 | repeats, operation);
      unsent = either(mixed, all_of_block, either(by_prediction, predictions, repeats));
    }
    uint64_t sent = 0;  // literals, the last one lowest
    for (unsigned k = 0; k < block_size; ++k)
      sent = either(unsent >> k & 1, sent, sent << 8 | (bytes >> 8 * k & 0xFF));
    const unsigned literals = block_size - bits_in(static_cast<unsigned>(unsent));
    out += 1 + literals;
    tail = (tail << 8 | operation) << 8 * literals | sent;
    store(out - 8, __builtin_bswap64(tail));
    if (out >= limit) break;
  }
  store(written, static_cast<uint32_t>(out - begin));
  return out >= limit;
}

// Where the decoder writes: `count` bytes in a row, or one channel of four after another. put() is false
// after the last byte. room(n) is where n bytes may be put `step` apart without that being the last one, or
// null.
class Row {
 public:
  static constexpr unsigned step = 1;
  Row(void* out, uint32_t count) : at_(static_cast<uint8_t*>(out)), end_(at_ + count) {}
  bool put(uint8_t byte) {
    *at_++ = byte;  // NOLINT(clang-analyzer-core.NullDereference): room() may be null, this never is
    return at_ != end_;
  }
  uint8_t* room(uint32_t n) { return static_cast<size_t>(end_ - at_) > n ? at_ : nullptr; }
  void skip(uint32_t n) { at_ += n; }

 private:
  uint8_t *at_, *end_;
};
class FourChannels {
 public:
  static constexpr unsigned step = 4;
  FourChannels(void* out, uint32_t count) : out_(static_cast<uint8_t*>(out)), order_(count) {}
  bool put(uint8_t byte) {
    out_[order_.position()] = byte;  // NOLINT(clang-analyzer-core.NullDereference): as above
    return order_.next();
  }
  uint8_t* room(uint32_t n) { return order_.has(n) ? out_ + order_.position() : nullptr; }
  void skip(uint32_t n) { order_.skip(n); }

 private:
  uint8_t* out_;
  ChannelOrder order_;
};

// What a flag of 1 and of 0 stands for in a block.
enum class Is { repeat, predicted, literal };

template <class Source, class Sink>
class Decoder {
 public:
  Decoder(Source in, Sink out) : in_(in), out_(out) {}

  int32_t run() {
    if (!in_.has(256)) return 1;
    std::memcpy(tables_.successors, in_.at, 256);
    for (unsigned v = 0; v < 256; ++v) tables_.same[v] = static_cast<uint8_t>(v);
    in_.at += 256;
    while (state_ == State::going) {
      if (!in_.has(1)) return 1;
      const unsigned operation = *in_.at++;
      switch (operation >> 6) {
        case 0:
          long_run(operation);
          break;
        case 1:
          take_block<Is::repeat, Is::literal>(operation);
          break;
        case 2:
          take_block<Is::predicted, Is::literal>(operation);
          break;
        default:
          take_block<Is::repeat, Is::predicted>(operation);
      }
    }
    return state_ == State::cut;
  }

 private:
  enum class State { going, done, cut };

  void put(Is what) {
    if (what == Is::literal) {
      if (!in_.has(1)) {
        state_ = State::cut;
        return;
      }
      last_ = *in_.at++;
    } else if (what == Is::predicted) {
      last_ = tables_.successors[last_];
    }
    if (!out_.put(last_)) state_ = State::done;
  }

  void long_run(unsigned operation) {
    const Is what = operation & 0x10 ? Is::repeat : operation & 0x20 ? Is::predicted : Is::literal;
    uint32_t n = 12u << (operation & 15);
    if (what == Is::repeat) {
      constexpr uint32_t piece = 12;  // divides every run
      for (uint8_t* to; n != 0 && (to = out_.room(piece)) != nullptr; n -= piece) {
        for (unsigned k = 0; k < piece; ++k) to[k * Sink::step] = last_;
        out_.skip(piece);
      }
    }
    for (; n != 0 && state_ == State::going; --n) put(what);
  }

  template <Is one, Is zero>
  void take_block(unsigned flags) {
    const auto literals = zero == Is::literal ? block_size - bits_in(flags & 0x3F) : 0;
    uint8_t* const to = out_.room(block_size);
    if (to == nullptr || !in_.has(literals)) {
      for (unsigned k = 0; k < block_size && state_ == State::going; ++k) put(flags >> k & 1 ? one : zero);
      return;
    }
    const uint8_t* literal = in_.at - 1;  // the last one taken, or the operation
    uint8_t last = last_;
    for (unsigned k = 0; k < block_size; ++k) {
      const int flag = flags >> k & 1;
      if constexpr (zero == Is::literal) literal += !flag;
      if constexpr (Sink::step == 1) {
        // The flags of interleaved pixels are alike from pixel to pixel, and jumps are guessed well: a
        // literal then does not wait for the byte before it.
        if (flag)
          last = one == Is::repeat ? last : tables_.successors[last];
        else
          last = zero == Is::literal ? *literal : tables_.successors[last];
      } else if constexpr (zero == Is::literal && one == Is::repeat) {
        last = static_cast<uint8_t>((last & -flag) | (*literal & (flag - 1)));
      } else if constexpr (zero == Is::literal) {
        last =
            static_cast<uint8_t>((flag ? tables_.successors : tables_.none)[last] | (*literal & (flag - 1)));
      } else {
        last = (flag ? tables_.same : tables_.successors)[last];
      }
      to[k * Sink::step] = last;
    }
    last_ = last;
    in_.at += literals;
    out_.skip(block_size);
  }

  Source in_;
  Sink out_;
  struct {
    uint8_t none[256], successors[256], same[256];
  } tables_ = {};
  uint8_t last_ = 0;
  State state_ = State::going;
};

template <class Sink, class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  return Decoder(source, Sink(destination, count)).run();
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL ib18Encoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written) {
  return encode<PlainOrder>(source, destination, length, written);
}
extern "C" int32_t TESSARO_CALL ib18EncoderEx(const void* source, void* destination, uint32_t length,
                                              uint32_t* written) {
  return encode<ChannelsOrder>(source, destination, length, written);
}

extern "C" int32_t TESSARO_CALL ib18Decoder(const void* stream, void* destination, uint32_t count) {
  return count == 0 ? 0 : decode<Row>(Trusted(stream), destination, count);
}
extern "C" int32_t TESSARO_CALL ib18DecoderEx(const void* stream, void* destination, uint32_t count) {
  return count == 0 ? 0 : decode<FourChannels>(Trusted(stream), destination, count);
}
extern "C" int32_t TESSARO_CALL ib18DecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                uint32_t count) {
  return count == 0 ? 1 : decode<Row>(Bounded(stream, stream_size), destination, count);
}
extern "C" int32_t TESSARO_CALL ib18DecoderExSafe(const void* stream, void* destination, uint32_t stream_size,
                                                  uint32_t count) {
  return count == 0 ? 1 : decode<FourChannels>(Bounded(stream, stream_size), destination, count);
}
