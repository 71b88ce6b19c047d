// The bytes of a group, each with the same number of low bits.
#pragma once

#include "codec/bits.hpp"

namespace tessaro {

// The low bits of four bytes side by side, first byte on top, and back.
template <unsigned width>
inline uint32_t pack(uint32_t bytes) {
  if constexpr (width == 8) return bytes;
  if constexpr (width == 5) {
    const uint32_t pairs = (bytes & 0x001F001F) | (bytes >> 3 & 0x03E003E0);
    return (pairs & 0xFFFF) | pairs >> 16 << 10;
  }
  const uint32_t pairs = (bytes & 0x00070007) | (bytes >> 5 & 0x00380038);
  return (pairs & 0xFFFF) | pairs >> 16 << 6;
}
template <unsigned width>
inline uint32_t unpack(uint32_t bits) {
  if constexpr (width == 8) return bits;
  if constexpr (width == 5) {
    const uint32_t pairs = (bits & 0x3FF) | bits >> 10 << 16;
    return (pairs & 0x001F001F) | (pairs & 0x03E003E0) << 3;
  }
  const uint32_t pairs = (bits & 0x3F) | bits >> 6 << 16;
  return (pairs & 0x00070007) | (pairs & 0x00380038) << 5;
}

template <unsigned width, class Source>
inline uint8_t* read_payload(BitReader<Source>& in, uint8_t* out, uint32_t n, uint8_t last) {
  const uint32_t kept = (last & (0xFFu << width)) * 0x01010101u;
  for (; n >= 4; n -= 4, out += 4) store(out, __builtin_bswap32(unpack<width>(in.read(4 * width)) | kept));
  for (; n != 0; --n) *out++ = static_cast<uint8_t>(in.read(width) | kept);
  return out;
}

template <unsigned width>
inline void put_payload(BitWriter& out, const uint8_t* from, uint32_t n) {
  for (; n >= 4; n -= 4, from += 4) out.put(pack<width>(__builtin_bswap32(load<uint32_t>(from))), 4 * width);
  for (; n != 0; --n) out.put(*from++ & ~(~0u << width), width);
}

}  // namespace tessaro
