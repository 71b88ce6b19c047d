// What is particular to a processor, for any of them.
#include "simd/processor.hpp"

#include "core/numbers.hpp"

namespace tessaro::processor {

uint32_t feature_flags() { return 1u << 23 | 1u << 25 | 1u << 26; }

bool streams_well() { return false; }

void fill(uint8_t* at, uint32_t word, size_t count) {
  for (size_t i = 0; i < count; ++i) store(at + 4 * i, word);
}

uint32_t remainder(uint32_t a, uint32_t b) {
  if (b == 0) __builtin_trap();
  return a % b;
}

}  // namespace tessaro::processor
