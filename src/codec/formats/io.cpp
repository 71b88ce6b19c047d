// io: 4-byte groups, a one bit for a repeat of the group before, a zero and the group otherwise.
#include "codec/stream/bits.hpp"
#include "tessaro/codec.h"

namespace tessaro {
namespace {

constexpr uint32_t margin = 64;

// Groups are kept with their first byte on top, as they stand in the stream.
template <class Source>
int32_t decode(Source source, void* destination, uint32_t count) {
  if (count == 0) return 1;
  BitReader<Source> in(source);
  auto* out = static_cast<uint8_t*>(destination);
  uint32_t group = 0, left = count;
  // Every group costs at least a bit: so much of the stream is sure to be there.
  while (left >= 4 && in.can_refill(left / 4)) {
    in.refill();
    if (static_cast<int64_t>(in.window()) < 0) {
      const auto ones = static_cast<unsigned>(__builtin_clzll(~in.window() | 1));
      unsigned run = ones < in.held() ? ones : in.held();
      if (run > left / 4) run = left / 4;
      in.skip(run);
      left -= 4 * run;
      for (; run != 0; --run, out += 4) store(out, __builtin_bswap32(group));
    } else {
      in.skip(1);
      group = in.take(32);
      store(out, __builtin_bswap32(group));
      out += 4;
      left -= 4;
    }
  }
  while (left != 0) {
    if (in.read(1) == 0) group = in.read(32);
    if (in.ran_out()) return 1;
    const uint32_t bytes = __builtin_bswap32(group);
    const unsigned n = left < 4 ? left : 4;
    std::memcpy(out, &bytes, n);
    out += n;
    left -= n;
  }
  return 0;
}

}  // namespace
}  // namespace tessaro

using namespace tessaro;

extern "C" int32_t TESSARO_CALL ioEncoder(const void* source, void* destination, uint32_t length,
                                          uint32_t* written) {
  if (length <= margin) return 1;
  const auto* in = static_cast<const uint8_t*>(source);
  const uint32_t limit = length - margin;
  BitWriter out(static_cast<uint8_t*>(destination));
  uint32_t before = 0, left = length;
  // A run of repeats in one field, and nothing to test, while no run can reach the limit or the end.
  constexpr uint32_t longest = 32;
  while (left >= 4 * longest && out.written() + 8 < limit) {
    const uint32_t group = __builtin_bswap32(load<uint32_t>(in));
    uint32_t groups = 1;
    if (group == before) {
      const uint64_t two = load<uint32_t>(in) * 0x100000001u;
      while (groups + 2 <= longest && load<uint64_t>(in + 4 * groups) == two) groups += 2;
      out.put(~0u >> (longest - groups), groups);
    } else {
      out.put(0, 1);
      out.put(group, 32);
    }
    before = group;
    in += 4 * groups;
    left -= 4 * groups;
  }
  while (left != 0) {
    const unsigned n = left < 4 ? left : 4;
    uint32_t group = 0;
    std::memcpy(&group, in, n);
    group = __builtin_bswap32(group);
    out.put(group == before, 1);
    if (group != before) out.put(group, 32);
    if (out.written() >= limit) {
      store(written, out.written());
      return 1;
    }
    before = group;
    in += n;
    left -= n;
  }
  out.flush();
  store(written, out.written());
  return out.written() >= limit;
}

extern "C" int32_t TESSARO_CALL ioDecoder(const void* stream, void* destination, uint32_t count) {
  return decode(Trusted(stream), destination, count);
}

extern "C" int32_t TESSARO_CALL ioDecoderSafe(const void* stream, void* destination, uint32_t stream_size,
                                              uint32_t count) {
  return decode(Bounded(stream, stream_size), destination, count);
}
