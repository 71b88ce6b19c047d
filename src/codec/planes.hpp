// Kernels of the transforms from interleaved channels into planes.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

struct PlaneKernels {
  // From source to destination, n bytes. The two must not overlap; the scalar kernels take any overlap, one
  // byte after another.
  using Run = void (*)(const uint8_t* source, uint8_t* destination, size_t n);
  struct Pair {
    Run encode, decode;
  };
  Pair of2, of3, of4;  // so many channels into planes, and back
};
TESSARO_DECLARE_KERNELS(PlaneKernels);

}  // namespace tessaro
