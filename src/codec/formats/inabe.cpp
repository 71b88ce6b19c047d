// inabe: groups of 4 * 2^k bytes of one similarity, each byte in a few bits or behind an escape of that many
// ones.
#include <cstring>

#include "codec/stream/bits.hpp"
#include "codec/stream/channel_order.hpp"
#include "codec/stream/groups.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t margin = 256;
// The widths that an encoder chooses from, and where a decoder stops to count: fields end at 32 bits.
constexpr unsigned short_widths = 8, longest_field = 32;

// Byte e of an entry is 1 where the value needs no escape in e bits: sums of entries count all widths at
// once.
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
template <unsigned width>
unsigned best_width(const uint8_t* bytes, uint32_t size) {
  // A short width that is not below the full one saves nothing.
  uint32_t fitting[width] = {};
  for (uint32_t at = 0; at < size;) {
    const uint32_t stop = size - at < 252 ? size : at + 252;
    uint64_t sums = 0;
    const auto entry = [&](uint32_t i) { return fits.of[bytes[i] & ones(width)]; };
    for (; stop - at >= 4; at += 4) sums += entry(at) + entry(at + 1) + entry(at + 2) + entry(at + 3);
    for (; at < stop; ++at) sums += entry(at);
    for (unsigned e = 1; e < width; ++e) fitting[e] += static_cast<uint32_t>(sums >> 8 * e & 0xFF);
  }
  // Costs against that of width 0, the width below them: the least of both without a branch.
  int64_t least = 0;
  for (unsigned e = 1; e < width; ++e) {
    const int64_t cost = int64_t{e} * size + e - int64_t{width} * fitting[e];
    const int64_t ranked = cost * short_widths + e;
    least = ranked < least ? ranked : least;
  }
  return static_cast<unsigned>(least & (short_widths - 1));
}

class Encoder {
 public:
  Encoder(uint8_t* out, uint32_t limit) : out_(out), limit_(limit) {}
  // False when the stream has reached its limit. Where the group cannot, nothing is tested: a byte takes one
  // byte on average at most (the width was chosen to save), and 16 more are room for any head.
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
    if (!put_size(out_, group.level, tested, [&] { return !room<tested>(); })) return false;
    const BitField mark = class_mark[group.kind];
    switch (group.kind) {
      case 0:
        return payload<tested, 8>(bytes, size, mark);
      case 1:
        return payload<tested, 5>(bytes, size, mark);
      case 2:
        return payload<tested, 3>(bytes, size, mark);
      default:
        out_.put(mark);
        return room<tested>();
    }
  }
  // What stands behind the size of a group that is not of repeats.
  template <bool tested, unsigned width>
  bool payload(const uint8_t* bytes, uint32_t size, BitField mark) {
    const unsigned e = best_width<width>(bytes, size);
    const uint32_t escape = ones(e);
    out_.put(mark + BitField{escape << 1, e + 1});
    // Masks, because no branch foresees an escape.
    const uint32_t low = ones(width), mark_of_escape = escape << width;
    const auto code_of = [&](uint8_t byte) {
      const uint32_t value = byte & low, escaped = 0u - (value >= escape);
      return BitField{value | (mark_of_escape & escaped), e + (width & escaped)};
    };
    uint32_t at = 0;
    const auto put_two = [&] {
      out_.put(code_of(bytes[at]) + code_of(bytes[at + 1]));
      at += 2;
    };
    // All groups but a cut one consist of fours.
    if (!tested)
      while (size - at >= 4) put_two(), put_two();
    for (; at < size; ++at) {
      out_.put(code_of(bytes[at]));
      if (!room<tested>()) return false;
    }
    return true;
  }

  BitWriter out_;
  uint32_t limit_;
};

// Where decoded codes go, a span at a time: as they are, or as differences of pixels that were sent channel
// by channel.
class Codes {
 public:
  Codes(void* out, uint32_t) : at_(static_cast<uint8_t*>(out)) {}
  static constexpr uint32_t longest_span = UINT32_MAX;
  uint8_t* span() { return at_; }
  void done(uint32_t n) { at_ += n; }
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
  static constexpr uint32_t longest_span = 1024;
  uint8_t* span() { return codes_; }
  void done(uint32_t n) {
    step(n, [&](uint32_t i) { return unfold(codes_[i]); });
  }
  void repeat(uint8_t code, uint32_t n) {
    const uint8_t difference = unfold(code);
    step(n, [&](uint32_t) { return difference; });
  }

 private:
  // n positions at most, those of one channel at a time.
  template <class Difference>
  void step(uint32_t n, Difference difference) {
    for (uint32_t i = 0; i < n;) {
      const uint32_t channel = order_.left_in_channel(), stop = n - i < channel ? n : i + channel;
      uint8_t* at = out_ + order_.position();
      order_.skip(stop - i - 1);
      order_.next();
      for (; i < stop; ++i, at += 4) *at = value_ = static_cast<uint8_t>(value_ + difference(i));
    }
  }

  uint8_t* out_;
  ChannelOrder order_;
  uint8_t value_ = 128;
  uint8_t codes_[longest_span];
};

// How the codes of a group are written.
struct Form {
  unsigned e, width;
  uint8_t keep;
};

// Codes, `per` of them between two reads where those fit into one; the rest that is shorter is left.
template <unsigned per, class Source>
uint32_t read_batches(BitReader<Source>& in, uint8_t* out, uint32_t n, Form form, uint8_t last) {
  const uint64_t escape = ~uint64_t{0} << (64 - form.e);
  uint32_t left = n;
  for (; left >= per && !in.ran_out(); left -= per) {
    if (in.can_refill(uint64_t{left} * form.e)) {
      // Escapes come too often for a branch to foresee them.
      in.refill();
      for (unsigned k = 0; k < per; ++k) {
        const uint64_t window = in.window();
        const bool escaped = window >= escape;
        const uint64_t field = escaped ? window << form.e >> (64 - form.width) : window >> (64 - form.e);
        in.skip(escaped ? form.e + form.width : form.e);
        *out++ = last = static_cast<uint8_t>((last & form.keep) | field);
      }
    } else {
      // No more is sure to follow than the short fields, and what every escape adds.
      in.need(per * form.e);
      for (unsigned k = per; k-- > 0;) {
        uint64_t field = in.window() >> (64 - form.e);
        const bool escaped = in.window() >= escape;
        in.skip(form.e);
        if (escaped) {
          in.need(form.width + k * form.e);
          field = in.take(form.width);
        }
        *out++ = last = static_cast<uint8_t>((last & form.keep) | field);
      }
    }
  }
  return n - left;
}

template <class Source>
void read_codes(BitReader<Source>& in, uint8_t* out, uint32_t n, Form form, uint8_t last) {
  if (form.e == 0) {
    if (form.width == 8) return void(read_payload<8>(in, out, n, last));
    if (form.width == 5) return void(read_payload<5>(in, out, n, last));
    return void(read_payload<3>(in, out, n, last));
  }
  // Groups come in fours, but for a last one that is cut.
  const unsigned longest = form.e + form.width;
  uint32_t i = longest <= 14   ? read_batches<4>(in, out, n, form, last)
               : longest <= 28 ? read_batches<2>(in, out, n, form, last)
                               : 0;
  if (i) last = out[i - 1];
  for (const uint32_t escape = ones(form.e); i < n && !in.ran_out(); ++i) {
    uint32_t field = in.read(form.e);
    if (field == escape) field = in.read(form.width);
    out[i] = last = static_cast<uint8_t>((last & form.keep) | field);
  }
}

template <class Sink, class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  BitReader<Source> in(source);
  Sink out(destination, count);
  uint8_t last = 0;
  while (count != 0) {
    // The shortest head and what follows it, a mark of repeats or a field and a code, have four bits or more:
    // need(4) reads no byte that the stream may lack.
    if (in.can_refill(0))
      in.refill();
    else
      in.need(4);
    const GroupHead head = read_group_head(in);
    uint32_t size = head.size < count ? static_cast<uint32_t>(head.size) : count;
    count -= size;
    if (head.kind == repeats) {
      if (in.ran_out()) return 1;
      out.repeat(last, size);
      continue;
    }
    // One more than the longest is asked for, so that the zero behind 32 ones is taken too; 33 ones count as
    // 32.
    const unsigned short_width = in.read_ones(longest_field + 1);
    const Form form{short_width < longest_field ? short_width : longest_field, class_width[head.kind],
                    class_keep[head.kind]};
    while (size != 0) {
      const uint32_t n = size < Sink::longest_span ? size : Sink::longest_span;
      uint8_t* span = out.span();
      read_codes(in, span, n, form, last);
      if (in.ran_out()) return 1;
      last = span[n - 1];
      out.done(n);
      size -= n;
    }
  }
  return 0;
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL inabeEncoder(const void* source, void* destination, uint32_t length,
                                             uint32_t* written) {
  if (length <= margin) return 1;
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
