// Interpolated stretching: the clipped call, and the kernels behind the exports.
#pragma once

#include <cstdint>

#include "simd/dispatch.hpp"
#include "transform/stretch.hpp"

namespace tessaro {

// Positions along one axis, in 1 / 4096 of a pixel: `start` for the first destination pixel, then `step` from
// one to the next. The neighbour after the last position is still within the source.
struct Positions {
  int32_t start, step;
  int32_t pixel(int32_t i) const { return (i * step + start) >> 12; }
  uint32_t weight(int32_t i) const { return static_cast<uint32_t>((i * step + start) >> 4) & 255; }
};

struct Bilinear {
  Stretch area;
  Positions x, y;
  // Room for four rows of the destination's width: columns, their weights, and two interpolated rows. Null
  // where there is none.
  uint32_t* room;
};

// How a sample comes into the destination.
struct Render {
  const uint32_t* table;  // weights by alpha
  bool add, tinted;
  uint32_t tint;
};

struct LinearKernels {
  void (*replace)(const Bilinear&);
  void (*render)(const Bilinear&, const Render&);
  void (*render_nearest)(const Stretch&, const Render&);
};
TESSARO_DECLARE_KERNELS(LinearKernels);

}  // namespace tessaro
