// Blits that respect the brightness of what they meet.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

struct ToneKernels {
  void (*tone)(const AreaPair&);
  void (*tone_mix)(const AreaPair&, float factor);
  void (*true_blend)(const AreaPair&, uint32_t factor);  // alpha_factor
};
TESSARO_DECLARE_KERNELS(ToneKernels);

}  // namespace tessaro
