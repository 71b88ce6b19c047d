// Flood fill.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/image.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

// Pixels of one row, both ends included, that have been filled and whose rows above and below are still to be
// looked at.
struct PaintSpan {
  uint16_t y, left, right;
};

struct Paint {
  ImageView image;
  int32_t x, y;
  uint32_t old, colour;  // differ
  PaintSpan* pending;
  size_t room;                       // for every span that the image can have: height * ((width + 1) / 2)
  int32_t left, top, right, bottom;  // of what has been filled
};

struct PaintKernels {
  void (*flood)(Paint&);
};
TESSARO_DECLARE_KERNELS(PaintKernels);

}  // namespace tessaro
