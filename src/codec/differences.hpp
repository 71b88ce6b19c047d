// Kernels of the difference transforms.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

struct DifferenceKernels {
  // From source to destination, n bytes. The two may be the same memory, or the destination may begin
  // anywhere before the source or at least difference_block bytes behind it. The scalar kernels take any
  // overlap, one sample after another.
  using Run = void (*)(const uint8_t* source, uint8_t* destination, size_t n);
  struct Pair {
    Run encode, decode;
  };
  Pair bytes1, bytes2, bytes4;  // of bytes to the one 1, 2, 4 places before
  Pair words1, words2;          // of 16-bit words; n is even
};
inline constexpr size_t difference_block = 64;
TESSARO_DECLARE_KERNELS(DifferenceKernels);

}  // namespace tessaro
