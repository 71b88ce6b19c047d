// Cross-fades, depth tests and single-line fills of unscaled areas.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

struct FlipKernels {
  void (*blend)(const AreaPair&, uint32_t factor);  // weights from alpha_factor
  void (*depth)(const AreaPair&);
  void (*depth_mask)(const AreaPair&, uint32_t keep);
};
TESSARO_DECLARE_KERNELS(FlipKernels);

}  // namespace tessaro
