// Samples of 4 x 4 taps.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

// Columns of a destination: the first of each one's four source columns, and the weights of the four.
struct CubicColumns {
  const int32_t* first;
  const double* weights[4];
};
// The four source rows of a destination row.
struct CubicRow {
  const uint8_t* source[4];
  double weights[4];
};

struct CubicKernels {
  // n pixels whose taps all lie within the source, with outer weights that are not positive and inner ones
  // that are not negative.
  void (*inner)(uint8_t* dst, const CubicColumns& columns, const CubicRow& row, size_t n);
  // One pixel of any taps, row by row; weights are not negative.
  uint32_t (*merged)(const uint32_t samples[16], const float weights[16]);
};
TESSARO_DECLARE_KERNELS(CubicKernels);

}  // namespace tessaro
