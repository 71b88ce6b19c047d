// Groups of 4 * 2^k bytes that are all sent with the same number of bits: how an encoder finds them, their
// heads, and their bytes.
#pragma once

#include <cstdint>

#include "codec/stream/bits.hpp"

namespace tessaro {

// What is sent of a byte that follows another: all of it, its low 5 bits, its low 3 bits, or nothing. A class
// is written as that many ones and, below 3, a zero.
inline constexpr unsigned class_width[] = {8, 5, 3, 0};
inline constexpr uint8_t class_keep[] = {0x00, 0xE0, 0xF8, 0xFF};  // what stays of the byte before
inline constexpr unsigned repeats = 3;

struct Group {
  uint32_t size;   // 4 * 2^level; the last group of a stream may be longer than what is left to code
  unsigned level;  // sent as that many ones and a zero
  unsigned kind;   // the class of all its bytes
};

// The class of four bytes in a row, the first of which follows `last`: of the least similar one.
inline unsigned class_of_unit(uint32_t unit, uint8_t last) {
  const uint32_t changed = unit ^ (unit << 8 | last);
  // Each similarity includes the weaker ones; a sum, because no branch foresees them.
  return unsigned{changed == 0} + ((changed & 0xF8F8F8F8) == 0) + ((changed & 0xE0E0E0E0) == 0);
}

// The group that starts at byte `start` of the source, which has at least 5 bytes; `last` is the byte before
// it, 0 at the beginning. The unit that holds the last byte of the source never extends a group. Where it has
// fewer than four bytes, the bytes of the unit before stand in the other places.
inline Group scan_group(const uint8_t* source, uint32_t length, uint32_t start) {
  const auto last_before = [&](uint64_t at) { return at ? source[at - 1] : uint8_t{0}; };
  uint32_t unit;
  if (length - start >= 4) {
    unit = load<uint32_t>(source + start);
  } else {
    const unsigned short_by = 8 * (4 - (length - start));
    // The four bytes that end the source hold, on top, those of the short unit.
    unit = load<uint32_t>(source + length - 4) >> short_by;
    unit |= load<uint32_t>(source + start - 4) >> (32 - short_by) << (32 - short_by);
  }
  const unsigned kind = class_of_unit(unit, last_before(start));
  uint64_t next = uint64_t{start} + 4;
  while (next + 4 < length && class_of_unit(load<uint32_t>(source + next), source[next - 1]) == kind)
    next += 4;
  // The group ends at the last power of two that its units fill.
  const auto units = static_cast<uint32_t>((next - start) / 4);
  const auto level = 31u - static_cast<unsigned>(__builtin_clz(units));
  return {4u << level, level, kind};
}

// The head of a group: its size, then the zero that ends it with the class.
inline constexpr BitField class_mark[] = {{0b00, 2}, {0b010, 3}, {0b0110, 4}, {0b0111, 4}};

// Appends a size. Where `tested`, close to the limit, every one of its bits leaves on its own, as it does
// once a scan has seen that the group is that large: false as soon as full().
template <class Full>
inline bool put_size(BitWriter& out, unsigned level, bool tested, Full full) {
  if (!tested) out.put(ones(level), level);
  for (unsigned k = 0; tested && k < level; ++k) {
    out.put(1, 1);
    if (full()) return false;
  }
  return true;
}

// A size ends at 2^32, whatever a damaged stream asks for.
struct GroupHead {
  uint64_t size;
  unsigned kind;
};
template <class Source>
inline GroupHead read_group_head(BitReader<Source>& in) {
  const unsigned level = in.read_ones(UINT32_MAX);
  return {uint64_t{4} << (level < 30 ? level : 30), in.read_ones(repeats)};
}

// The low bits of four bytes side by side, first byte on top, and back.
template <unsigned width>
inline uint32_t pack(uint32_t bytes) {
  if constexpr (width == 8) return bytes;
  if constexpr (width == 5) {
    const uint32_t pairs = (bytes & 0x001F001F) | (bytes >> 3 & 0x03E003E0);  // 000000aa aaabbbbb, twice
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
  for (; n != 0; --n) out.put(*from++ & ones(width), width);
}

}  // namespace tessaro
