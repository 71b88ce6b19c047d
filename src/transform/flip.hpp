// Cross-fades, depth tests and single-line fills of unscaled areas.
#pragma once

#include <cstdint>

#include "frame/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

struct FlipKernels {
  void (*blend)(const AreaPair&, uint32_t factor);  // weights from alpha_factor
  void (*depth)(const AreaPair&);
  void (*depth_mask)(const AreaPair&, uint32_t keep);
};
TESSARO_DECLARE_KERNELS(FlipKernels);

// An opacity as calls take it: above 1 counts as 1; false when it is negative or not a number.
inline bool usable_opacity(float& opacity) {
  if (opacity > 1.0f) opacity = 1.0f;
  return opacity >= 0.0f;
}
inline uint32_t constant_weight(float opacity) { return static_cast<uint32_t>(trunc32(opacity * 256.0f)); }

}  // namespace tessaro
