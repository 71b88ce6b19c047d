// Images at half their size.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

struct HalveKernels {
  // A row of means of 2 x 2 pixels, rounded down.
  void (*halve)(uint8_t* out, const uint8_t* upper, const uint8_t* lower, size_t width);
};
TESSARO_DECLARE_KERNELS(HalveKernels);

}  // namespace tessaro
