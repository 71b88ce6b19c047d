// Row kernels of the gradient ellipses.
#pragma once

#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

// The palette as seen from one row of an ellipse: the column is where the distance from the centre puts it.
struct EllipseRow {
  uint8_t* at;
  const double *u, *u_squared;  // of each pixel
  size_t width;
  double v, v_squared;
  const uint8_t* palette;
  ptrdiff_t palette_pitch;
  int32_t palette_width, palette_height;
};

struct EllipseKernels {
  // Every pixel of the row is inside the ellipse, so that the distance is at most 1.
  void (*radial)(const EllipseRow&);
  void (*polar)(const EllipseRow&);
};
TESSARO_DECLARE_KERNELS(EllipseKernels);

}  // namespace tessaro
