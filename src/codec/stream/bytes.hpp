// Bytes of a word looked at all at once.
#pragma once

#include <cstdint>

namespace tessaro {

// Bit j is set where byte j, counted from the low end, is 0.
constexpr unsigned zero_bytes(uint64_t v) {
  constexpr uint64_t low7 = 0x7F7F7F7F7F7F7F7F;
  const uint64_t zero = ~(((v & low7) + low7) | v) & ~low7;  // the top bit of every such byte
  return static_cast<unsigned>((zero >> 7) * 0x0102040810204080 >> 56);
}

}  // namespace tessaro
