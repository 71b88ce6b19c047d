// inabe: groups of 4 * 2^k bytes of one similarity, each byte in a few bits or behind an escape of that many ones.
#include <cstring>

#include "codec/bits.hpp"
#include "codec/channel_order.hpp"
#include "codec/group_scan.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t least_length = 257, margin = 256;
// The widths that an encoder chooses from, and where a decoder stops to count: fields end at 32 bits.
constexpr unsigned short_widths = 8, longest_field = 32;

constexpr uint32_t ones(unsigned n) { return static_cast<uint32_t>((uint64_t{1} << n) - 1); }

// Byte e of an entry is 1 where the value needs no escape in e bits: sums of entries count all widths at once.
struct FitTable {
  uint64_t of[256];
};
constexpr FitTable fits = [] {
  FitTable table{};
  for (unsigned v = 0; v < 256; ++v)
    for (unsigned e = 1; e < short_widths; ++e)
      if (v < ones(e)) table.of[v] |= uint64_t{1} << 8 * e;
  return table;
}();

// The short width that costs least; the smaller one of equals.
unsigned best_width(const uint8_t* bytes, uint32_t size, unsigned width) {
  uint32_t fitting[short_widths] = {};
  for (uint32_t at = 0; at < size;) {
    const uint32_t stop = size - at < 255 ? size : at + 255;
    uint64_t sums = 0;
    for (; at < stop; ++at) sums += fits.of[bytes[at] & ones(width)];
    for (unsigned e = 1; e < short_widths; ++e) fitting[e] += sums >> 8 * e & 0xFF;
  }
  unsigned best = 0;
  int64_t least = 0;  // against the cost of width 0
  for (unsigned e = 1; e < short_widths; ++e) {
    const int64_t cost = int64_t{e} * size + e - int64_t{width} * fitting[e];
    if (cost < least) least = cost, best = e;
  }
  return best;
}

class Encoder {
 public:
  Encoder(uint8_t* out, uint32_t limit) : out_(out), limit_(limit) {}
  // False when the stream has reached its limit. Far below it nothing is tested.
  bool group(const uint8_t* bytes, uint32_t size, Group group) {
    return uint64_t{out_.written()} + size + 16 < limit_ ? code<false>(bytes, size, group)
                                                         : code<true>(bytes, size, group);
  }
  uint32_t written() const { return out_.written(); }
  void flush() { out_.flush(); }

 private:
  template <bool tested>
  bool room() const {
    return !tested || out_.written() < limit_;
  }
  template <bool tested>
  bool code(const uint8_t* bytes, uint32_t size, Group group) {
    // Each of these ones leaves as soon as the scan has seen that the group is that large.
    for (unsigned i = 0; i < group.level; ++i) {
      out_.put(1, 1);
      if (!room<tested>()) return false;
    }
    const BitField mark = class_mark[group.kind];
    out_.put(mark.bits, 1 + mark.width);
    if (group.kind == repeats) return room<tested>();
    const unsigned width = class_width[group.kind], e = best_width(bytes, size, width);
    out_.put(ones(e) << 1, e + 1);
    const uint32_t escape = ones(e);
    const auto code_of = [&](uint8_t byte) {
      const uint32_t value = byte & ones(width);
      return value < escape ? BitField{value, e} : BitField{escape << width | value, e + width};
    };
    uint32_t at = 0;
    if (!tested)
      for (; at + 2 <= size; at += 2) {
        const BitField a = code_of(bytes[at]), b = code_of(bytes[at + 1]);
        out_.put(a.bits << b.width | b.bits, a.width + b.width);
      }
    for (; at < size; ++at) {
      const BitField c = code_of(bytes[at]);
      out_.put(c.bits, c.width);
      if (!room<tested>()) return false;
    }
    return true;
  }

  BitWriter out_;
  uint32_t limit_;
};

// Where decoded codes go: as they are, or as differences of pixels that were sent channel by channel.
class Codes {
 public:
  Codes(void* out, uint32_t) : at_(static_cast<uint8_t*>(out)) {}
  void put(uint8_t code) { *at_++ = code; }
  void repeat(uint8_t code, uint32_t n) {
    std::memset(at_, code, n);
    at_ += n;
  }

 private:
  uint8_t* at_;
};
class Pixels {
 public:
  Pixels(void* out, uint32_t count) : out_(static_cast<uint8_t*>(out)), order_(count) {}
  void put(uint8_t code) { step(unfold(code)); }
  void repeat(uint8_t code, uint32_t n) {
    for (const uint8_t difference = unfold(code); n; --n) step(difference);
  }

 private:
  void step(uint8_t difference) {
    value_ = static_cast<uint8_t>(value_ + difference);
    out_[order_.position()] = value_;
    order_.next();
  }

  uint8_t* out_;
  ChannelOrder order_;
  uint8_t value_ = 128;
};

template <class Sink, class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  BitReader<Source> in(source);
  Sink out(destination, count);
  uint8_t last = 0;
  while (count != 0) {
    const GroupHead head = read_group_head(in);
    const uint32_t size = head.size < count ? static_cast<uint32_t>(head.size) : count;
    count -= size;
    if (head.kind == repeats) {
      if (in.ran_out()) return 1;
      out.repeat(last, size);
      continue;
    }
    const unsigned e = in.read_ones(longest_field), width = class_width[head.kind];
    const uint8_t keep = class_keep[head.kind];
    const uint32_t escape = ones(e);
    for (uint32_t i = 0; i < size; ++i) {
      uint32_t value = e ? in.read(e) : 0;
      if (value == escape) value = in.read(width);
      if (in.ran_out()) return 1;
      last = static_cast<uint8_t>((last & keep) | value);
      out.put(last);
    }
  }
  return 0;
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL inabeEncoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written) {
  if (length < least_length) return 1;
  const auto* bytes = static_cast<const uint8_t*>(source);
  const uint32_t limit = length - margin;
  Encoder out(static_cast<uint8_t*>(destination), limit);
  bool room = true;
  for (uint32_t at = 0; room && at < length;) {
    const Group group = scan_group(bytes, length, at);
    const uint32_t size = group.size < length - at ? group.size : length - at;
    room = out.group(bytes + at, size, group);
    at += size;
  }
  // A stream that was given up is flushed too.
  out.flush();
  store(written, out.written());
  return out.written() >= limit;
}

extern "C" int32_t TESSARO_CALL inabeDecoder(const void* stream, void* destination, uint32_t count) {
  return decode<Codes>(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL inabeDecoderEx(const void* stream, void* destination, uint32_t count) {
  return decode<Pixels>(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL inabeDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                 uint32_t count) {
  return count ? decode<Codes>(Bounded(stream, stream_size), destination, count) : 1;
}

extern "C" int32_t TESSARO_CALL inabeDecoderExSafe(const void* stream, void* destination,
                                                   uint32_t stream_size, uint32_t count) {
  return count ? decode<Pixels>(Bounded(stream, stream_size), destination, count) : 1;
}
