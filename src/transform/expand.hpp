// Stretched blits by nearest sample: what happens to a sample, and the kernels behind the exports.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "core/weights.hpp"
#include "simd/dispatch.hpp"
#include "transform/stretch.hpp"

namespace tessaro {

// A colour for each corner of the destination.
struct Gradient {
  uint32_t keep, mask;
  uint32_t top_left, top_right, bottom_left, bottom_right;
  bool by_alpha;
  uint32_t weight, factor;         // the constant weight; alpha_factor
  const uint32_t* column_weights;  // of the right colours, in both halves of a word
};

// t * 255 / range for t of 0..range, without a division: ((t << 8 | bias) * factor >> 16) * shift >> 16.
struct LevelFactor {
  uint32_t bias, factor, shift;
  constexpr bool is_exact(uint32_t range) const {
    for (uint32_t t = 0; t <= range; ++t)
      if (((t << 8 | bias) * factor >> 16) * shift >> 16 != t * 255 / range) return false;
    return true;
  }
};

// The levels of a colour: range is what lies between the ends, 0 where nothing lies above the low one.
struct LevelRange {
  uint32_t low, range;
  LevelFactor by;
  bool equal_ends;
};

// What happens to a sample on its way into the destination.
struct Treatment {
  uint32_t keep = 0, mask = 0xFFFFFFFF, colour = 0, invert = 0;
  bool by_alpha = false;
  uint32_t weight = 0, factor = 0;
  bool saturated = false;
  SaturationParts saturation = {};
  bool levelled = false;
  LevelRange levels[3] = {};  // blue, green, red
  bool add_colour = false, add_alpha = false, source_is_base = false;
};

struct ExpandKernels {
  void (*copy)(const Stretch&);
  void (*mix)(const Stretch&, uint32_t weight);
  void (*blend)(const Stretch&, uint32_t factor);
  void (*gradient)(const Stretch&, const Gradient&);
  void (*choose)(const Stretch&, const Treatment&);
  void (*fill_by_alpha)(const AreaPair&, uint32_t colour, uint32_t factor);
};
TESSARO_DECLARE_KERNELS(ExpandKernels);

// The weight, 0..256, of the far end at place `at` on a way from 0 to `last`.
inline uint32_t way_weight(int32_t at, int32_t last) {
  return weight_of(static_cast<float>(static_cast<double>(at) / static_cast<double>(last)));
}

}  // namespace tessaro
