// The frame of the formats that send one pixel of four bytes after another, each against the pixel before it:
// all they differ in is how one pixel is coded.
#pragma once

#include <cstring>

#include "codec/stream/bits.hpp"

namespace tessaro {

// code(pixel, before) gives a BitField. Stops without a flush once `written` reaches the limit.
template <class Code>
inline int32_t encode_pixels(const void* source, void* destination, uint32_t length, uint32_t* written,
                             uint32_t margin, Code code) {
  const auto* in = static_cast<const uint8_t*>(source);
  const uint32_t limit = length - margin;
  BitWriter out(static_cast<uint8_t*>(destination));
  uint32_t before = 0, left = length;
  // Far from the limit and from the end, where at least 7 more bytes follow.
  for (; left >= 4 * 64 && out.written() + 16 < limit; in += 4, left -= 4) {
    const auto pixel = load<uint32_t>(in);
    out.put_ahead(code(pixel, before));
    before = pixel;
  }
  while (left != 0) {
    // A short last pixel keeps the bytes of the one before in its other places.
    const uint32_t n = left < 4 ? left : 4;
    uint32_t pixel = before;
    std::memcpy(&pixel, in, n);
    const BitField c = code(pixel, before);
    const unsigned low = c.width / 2;
    out.put(static_cast<uint32_t>(c.bits >> low), c.width - low);
    out.put(static_cast<uint32_t>(c.bits) & ones(low), low);
    if (out.written() >= limit) {
      store(written, out.written());
      return 1;
    }
    before = pixel;
    in += n;
    left -= n;
  }
  out.flush();
  store(written, out.written());
  return out.written() >= limit;
}

// next(reader, before, need) gives the next pixel; it calls need(n) before it looks at n bits. No pixel costs
// fewer than `least_bits` bits.
template <class Source, class Next>
inline int32_t decode_pixels(Source source, void* destination, uint32_t count, unsigned least_bits,
                             Next next) {
  if (count == 0) return 1;
  BitReader<Source> in(source);
  auto* out = static_cast<uint8_t*>(destination);
  uint32_t pixel = 0;
  // So many pixels take the 128 bits or more of a refill's 8 bytes and of the 8 that may be held: where more
  // are to come, the stream has what a refill reads.
  const uint32_t end = 128 / least_bits + 1;
  const auto far_from_end = [&] { return count / 4 > end && in.can_refill(uint64_t{1} << 40); };
  for (; far_from_end(); out += 4, count -= 4) {
    in.refill();
    pixel = next(in, pixel, [](unsigned) {});
    store(out, pixel);
  }
  for (;;) {
    pixel = next(in, pixel, [&](unsigned n) { in.need(n); });
    if (in.ran_out()) return 1;
    if (count <= 4) break;
    store(out, pixel);
    out += 4;
    count -= 4;
  }
  std::memcpy(out, &pixel, count);
  return 0;
}

}  // namespace tessaro
