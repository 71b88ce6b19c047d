// ib18: blocks of six bytes, each byte a repeat of the one before, the one predicted to follow it, or a literal.
#include "codec/bits.hpp"
#include "codec/channel_order.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t shortest = 512;
constexpr uint32_t margin = 32;
constexpr unsigned block = 6;
constexpr unsigned longest_run = 16;  // doublings of a block

// What the encoder reads: the source in its order, and zeros behind it.
struct PlainOrder {
  const uint8_t* source;
  uint64_t n;
  uint8_t operator[](uint64_t i) const { return i < n ? source[i] : uint8_t{0}; }
};
// Every fourth byte from 0, then from 1, 2 and 3. Lengths that are not a multiple of 4 give what these formulas give.
struct ChannelsOrder {
  const uint8_t* source;
  uint64_t n;
  uint8_t operator[](uint64_t i) const {
    const uint64_t q = 4 * i < 2 * n ? 4 * i : 4 * i + 2 - 2 * n;
    if (q < n) return source[q];
    return q + 1 - n < n ? source[q + 1 - n] : uint8_t{0};
  }
};

// For every byte the one that follows it most often; the smallest of equals, and never itself.
void find_successors(const uint8_t* source, uint32_t n, uint8_t* successors) {
  int32_t counts[256][256] = {};
  uint8_t before = 0;
  for (uint32_t i = 0; i < n; ++i) {
    ++counts[before][source[i]];
    before = source[i];
  }
  for (unsigned p = 0; p < 256; ++p) {
    counts[p][p] = -1;
    unsigned best = 0;
    for (unsigned c = 1; c < 256; ++c)
      if (counts[p][c] > counts[p][best]) best = c;
    successors[p] = static_cast<uint8_t>(best);
  }
}

template <class Order>
int32_t encode(const void* source, void* destination, uint32_t length, uint32_t* written) {
  if (length < shortest) return 1;
  const Order in{static_cast<const uint8_t*>(source), length};
  auto* const begin = static_cast<uint8_t*>(destination);
  uint8_t successors[256];
  find_successors(in.source, length, successors);
  std::memcpy(begin, successors, sizeof successors);
  uint8_t* out = begin + 256;
  const uint8_t* const limit = begin + (length - margin);
  uint8_t last = 0;
  for (uint64_t at = 0; at < length;) {
    // Both lists are made as if every byte belonged to them; those that do not are overwritten.
    uint8_t unpredicted[block + 1], unrepeated[block + 1];
    unsigned repeats = 0, predictions = 0, repeated = 0, predicted = 0;
    for (unsigned k = 0; k < block; ++k) {
      const uint8_t byte = in[at + k];
      const unsigned r = byte == last, p = !r & (byte == successors[last]);
      repeats |= r << k;
      predictions |= p << k;
      unrepeated[k - repeated] = byte;
      unpredicted[k - predicted] = byte;
      repeated += r;
      predicted += p;
      last = byte;
    }
    at += block;
    const auto put = [&](unsigned operation, const uint8_t* literals, unsigned count) {
      *out++ = static_cast<uint8_t>(operation);
      for (unsigned k = 0; k < count; ++k) out[k] = literals[k];
      out += count;
    };
    if (repeated == block) {
      unsigned level = 0;
      for (uint64_t size = block; level < longest_run; ++level, size *= 2) {
        uint64_t same = 0;
        while (same < size && in[at + same] == last) ++same;
        if (same < size) break;
        at += size;
      }
      put(level == 0 ? 0x7F : 0x10 | (level - 1), nullptr, 0);
    } else if (predicted == block) {
      put(0xBF, nullptr, 0);
    } else if (repeated + predicted == block) {
      put(0xC0 | repeats, nullptr, 0);
    } else if (repeated < predicted) {
      put(0x80 | predictions, unpredicted, block - predicted);
    } else {
      put(0x40 | repeats, unrepeated, block - repeated);
    }
    if (out >= limit) break;
  }
  store(written, static_cast<uint32_t>(out - begin));
  return out >= limit;
}

// Where the decoder writes: `count` bytes in a row, or one channel of four after another. put() is false after the last
// byte. room(n) is where n bytes may be put `step` apart without that being the last one, or null.
class Row {
 public:
  static constexpr unsigned step = 1;
  Row(void* out, uint32_t count) : at_(static_cast<uint8_t*>(out)), end_(at_ + count) {}
  bool put(uint8_t byte) {
    *at_++ = byte;
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
    out_[order_.position()] = byte;
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
    successors_ = in_.at;
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
      last_ = successors_[last_];
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
    const auto literals =
        zero == Is::literal ? block - static_cast<unsigned>(__builtin_popcount(flags & 0x3F)) : 0;
    uint8_t* const to = out_.room(block);
    if (to == nullptr || !in_.has(literals)) {
      for (unsigned k = 0; k < block && state_ == State::going; ++k) put(flags >> k & 1 ? one : zero);
      return;
    }
    const uint8_t* literal = in_.at - 1;  // the last one taken, or the operation
    uint8_t last = last_;
    for (unsigned k = 0; k < block; ++k) {
      const bool flag = flags >> k & 1;
      const uint8_t repeated_or_predicted = one == Is::repeat ? last : successors_[last];
      if constexpr (zero == Is::literal) {
        literal += !flag;
        last = flag ? repeated_or_predicted : *literal;
      } else {
        last = flag ? last : successors_[last];
      }
      to[k * Sink::step] = last;
    }
    last_ = last;
    in_.at += literals;
    out_.skip(block);
  }

  Source in_;
  Sink out_;
  const uint8_t* successors_ = nullptr;
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
extern "C" int32_t TESSARO_CALL ib18DecoderSafe(const void* stream, void* destination, uint32_t size,
                                                uint32_t count) {
  return count == 0 ? 1 : decode<Row>(Bounded(stream, size), destination, count);
}
extern "C" int32_t TESSARO_CALL ib18DecoderExSafe(const void* stream, void* destination, uint32_t size,
                                                  uint32_t count) {
  return count == 0 ? 1 : decode<FourChannels>(Bounded(stream, size), destination, count);
}
