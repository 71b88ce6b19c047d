// Gains that change from frame to frame, and the levels they follow.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

// Samples n at a time; tables are indexed by Stored. What out and in point to has no alignment.
struct DynamicsKernels {
  // Stereo frames within one form times a gain that grows by step after every frame; gain is left at its next
  // value. ramp24's last entry is for a block's values; ramp64 clamps. out may be in.
  using Ramp = void (*)(uint8_t* out, const uint8_t* in, size_t frames, double gain[2], const double step[2]);
  Ramp ramp24[4], ramp64[4];
  // Lowers low and raises high to the extremes of the samples at even and at odd places; 8-bit ones without
  // their bias.
  void (*extremes[3])(const uint8_t* in, size_t n, int32_t low[2], int32_t high[2]);
  void (*extremes64)(const uint8_t* in, size_t n, double low[2], double high[2]);
};
TESSARO_DECLARE_KERNELS(DynamicsKernels);

}  // namespace tessaro
