// Unscaled blits: the kernels behind the exports, and the ones that other families call.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

// The flags of BBIBltAlpha.
struct AlphaFlags {
  bool max_with_dest, min_with_dest, invert, subtract_from_dest;
};

struct BlitKernels {
  using Two = void (*)(const AreaPair&);
  Two copy, add, mul, sub, difference, wrap_sub, wrap_add, invert, min, max, half, shift_alpha, shift_block;
  Two blend_255, blend_256;  // source-over by alpha: weights that sum to 255, and to 256
  void (*fill)(const Area&, uint32_t colour);
  void (*masked_fill)(const Area&, uint32_t mask, uint32_t flip, uint32_t colour);
  void (*mix_colour)(const Area&, uint32_t colour, uint32_t weight);
  void (*alpha)(const AreaPair&, AlphaFlags);
  void (*keying)(const AreaPair&, uint32_t key);
  void (*mix)(const AreaPair&, uint32_t weight);
  void (*keyed_mix)(const AreaPair&, uint32_t key, uint32_t weight);
};
TESSARO_DECLARE_KERNELS(BlitKernels);

}  // namespace tessaro
