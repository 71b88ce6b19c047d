// The discrete Fourier transform in place, radix 2, decimation in frequency.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

// The host's arrays, which have no alignment.
struct Bins {
  uint8_t* re;
  uint8_t* im;
};

struct SpectrumKernels {
  // The cosines and sines of angle * (first + j) for j = 0..count - 1; the angles lie in 0..pi.
  void (*twiddles)(double* cosines, double* sines, size_t first, size_t count, double angle);
  // The butterflies of one stage for twiddles first..first + count - 1: elements i and i + k in every block of
  // m, for i = first.. in the block, as far as both lie below n.
  void (*stage)(Bins bins, int64_t n, int64_t m, int64_t k, int64_t first, int64_t count,
                const double* cosines, const double* sines);
};
TESSARO_DECLARE_KERNELS(SpectrumKernels);

}  // namespace tessaro
