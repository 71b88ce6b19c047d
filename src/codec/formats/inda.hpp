// What a block of the masked-reference format keeps of its references, and the search for the best choice.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

// Level 0 keeps nothing, levels 1..8 that many top bits of the reference, levels 9..15 the low 7..1 bits.
// What is sent stands `shift` bits up in the byte.
struct IndaLevel {
  uint8_t kept, kept_bits, sent_bits, shift;
};
inline constexpr unsigned inda_level_count = 16;
struct IndaLevels {
  IndaLevel at[inda_level_count];
};
constexpr IndaLevels inda_levels = [] {
  IndaLevels levels{};
  for (unsigned level = 0; level < inda_level_count; ++level) {
    const unsigned top = level <= 8 ? level : 0, low = level > 8 ? 16 - level : 0;
    levels.at[level] = {static_cast<uint8_t>((0xFF00u >> top & 0xFF) | ((1u << low) - 1)),
                        static_cast<uint8_t>(top + low), static_cast<uint8_t>(8 - top - low),
                        static_cast<uint8_t>(low)};
  }
  return levels;
}();

struct IndaKernels {
  // The best pair of level and distance code for each of `count` blocks of eight bytes, as level * 8 +
  // distance, or 0 where none is good enough. The eight bytes before the first block are its history.
  void (*search)(const uint8_t* blocks, size_t count, uint8_t* choices);
};
TESSARO_DECLARE_KERNELS(IndaKernels);

}  // namespace tessaro
