// A sound read at a constant speed.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

// The most frames that are made at once.
inline constexpr int32_t resample_frames = 510;

struct ResampleKernels {
  // Frame j of out, for j = 0..n - 1, is the blend of the two frames that (first + j) * ratio lies between.
  // `in` holds the source's frames from number `base` on. The place between the two counts in parts of 32768,
  // of which the bits of `fine` are used. Indexed by the lanes of a frame less one.
  void (*blend[2])(int16_t* out, const int16_t* in, int32_t base, int32_t first, size_t n, double ratio,
                   int32_t fine);
};
TESSARO_DECLARE_KERNELS(ResampleKernels);

}  // namespace tessaro
