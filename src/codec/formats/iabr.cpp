// iabr: groups of 4 * 2^k bytes, each sent with 8, 5, 3 or 0 bits a byte.
#include "codec/stream/bits.hpp"
#include "codec/stream/groups.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t margin = 256;

template <class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  if (count == 0) return 1;
  BitReader<Source> in(source);
  auto* out = static_cast<uint8_t*>(destination);
  uint8_t last = 0;
  for (uint32_t left = count; left != 0;) {
    const GroupHead group = read_group_head(in);
    if (in.ran_out()) return 1;
    auto n = static_cast<uint32_t>(group.size < left ? group.size : left);
    const bool cut = in.left() < uint64_t{n} * class_width[group.kind];
    if (cut) n = static_cast<uint32_t>(in.left() / class_width[group.kind]);
    switch (group.kind) {
      case 0:
        out = read_payload<8>(in, out, n, last);
        break;
      case 1:
        out = read_payload<5>(in, out, n, last);
        break;
      case 2:
        out = read_payload<3>(in, out, n, last);
        break;
      default:
        std::memset(out, last, n);
        out += n;
    }
    if (cut) return 1;
    last = out[-1];
    left -= n;
  }
  return 0;
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL iabrEncoder(const void* source, void* destination, uint32_t length,
                                            uint32_t* written) {
  if (length <= margin) return 1;
  const auto* in = static_cast<const uint8_t*>(source);
  const uint32_t limit = length - margin;
  BitWriter out(static_cast<uint8_t*>(destination));
  const auto full = [&] { return out.written() >= limit; };
  const auto encode = [&] {
    for (uint32_t start = 0; start < length;) {
      const Group group = scan_group(in, length, start);
      const uint32_t n = group.size < length - start ? group.size : length - start;
      const unsigned width = class_width[group.kind];
      // The stream ends with the step that reaches the limit. Where even a group of the widest head ends
      // below it, nothing is tested.
      const bool tested = out.written() + 8 + uint64_t{n} * width / 8 >= limit;
      if (!put_size(out, group.level, tested, full)) return;
      out.put(class_mark[group.kind]);
      if (!tested) {
        switch (group.kind) {
          case 0:
            put_payload<8>(out, in + start, n);
            break;
          case 1:
            put_payload<5>(out, in + start, n);
            break;
          case 2:
            put_payload<3>(out, in + start, n);
            break;
        }
      } else {
        if (full()) return;
        for (uint32_t k = 0; k < n && width != 0; ++k) {
          out.put(in[start + k] & ones(width), width);
          if (full()) return;
        }
      }
      start += n;
    }
  };
  encode();
  out.flush();
  store(written, out.written());
  return full();
}

extern "C" int32_t TESSARO_CALL iabrDecoder(const void* stream, void* destination, uint32_t count) {
  return decode(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL iabrDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                                uint32_t count) {
  return decode(Bounded(stream, stream_size), destination, count);
}
