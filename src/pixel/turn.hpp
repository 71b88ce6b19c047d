// Mirrored and turned images.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

struct TurnKernels {
  void (*mirror)(const Area&);
  void (*swap_rows)(uint8_t* a, uint8_t* b, size_t width);
  void (*half_turn)(const AreaPair&);
  // dst[x][y] = src[y][x]; width and height are the source's.
  void (*transpose)(const AreaPair&);
};
TESSARO_DECLARE_KERNELS(TurnKernels);

}  // namespace tessaro
