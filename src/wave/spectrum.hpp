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

struct Twiddles {
  const double* cosines;
  const double* sines;
};

struct SpectrumKernels {
  // re = left + right, im = 0: frame i is made of values 2 * i and 2 * i + 1 or, mono,
  // twice value i.
  void (*start)(Bins bins, const double* values, int64_t frames, bool stereo);
  // The cosines and sines of angle * (first + j) for j = 0..count - 1; the angles lie in 0..pi.
  void (*twiddles)(double* cosines, double* sines, size_t first, size_t count, double angle);
  // The butterflies of one stage for twiddles first..first + count - 1: elements i and i + k in every block
  // of m, for i = first.. in the block, as far as both lie below n.
  void (*stage)(Bins bins, int64_t n, int64_t m, int64_t k, int64_t first, int64_t count, Twiddles at);
  // Two stages at once, k and k / 2, where blocks of 2 k divide n: for i = first..first + count - 1, below k
  // / 2, the first stage's twiddles of i and of i + k / 2 and the second stage's of i. count is a multiple of
  // 8.
  void (*two_stages)(Bins bins, int64_t n, int64_t k, int64_t first, int64_t count, const Twiddles at[3]);
  // The last three stages, k = 4, 2 and 1, and the reordering by reversed bits, for a power of two of at
  // least
  // 64. The twiddles are those of k = 4.
  void (*finish)(Bins bins, int64_t n, Twiddles at);
};
TESSARO_DECLARE_KERNELS(SpectrumKernels);

}  // namespace tessaro
