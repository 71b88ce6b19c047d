// Bytes of a word, and bits of a byte, looked at all at once.
#pragma once

#include <cstdint>

namespace tessaro {

// Bit j is set where byte j, counted from the low end, is 0.
constexpr unsigned zero_bytes(uint64_t v) {
  constexpr uint64_t low7 = 0x7F7F7F7F7F7F7F7F;
  const uint64_t zero = ~(((v & low7) + low7) | v) & ~low7;  // the top bit of every such byte
  return static_cast<unsigned>((zero >> 7) * 0x0102040810204080 >> 56);
}

// How many of eight bits are set. (The processor's own count is not there on all of them.)
constexpr unsigned bits_in(unsigned flags) {
  unsigned n = flags - (flags >> 1 & 0x55);
  n = (n & 0x33) + (n >> 2 & 0x33);
  return (n + (n >> 4)) & 15;
}

}  // namespace tessaro
