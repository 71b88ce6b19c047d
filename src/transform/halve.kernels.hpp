// kernels: HalveKernels
#include "transform/halve.hpp"

#include "simd/rules.hpp"
#include "simd/walk.hpp"

namespace {

// (a + b + c + d) >> 2 of each channel; the sums are at most 1020.
template <class P>
TESSARO_INLINE P mean_of_4(const uint8_t* upper, const uint8_t* lower) {
  const auto u = neighbour_sums(P::load(upper), P::load(upper + 4 * P::lanes));
  const auto l = neighbour_sums(P::load(lower), P::load(lower + 4 * P::lanes));
  return from_sums(shr<2>(u.first + l.first), shr<2>(u.second + l.second));
}

void halve(uint8_t* out, const uint8_t* upper, const uint8_t* lower, size_t width) {
  // A destination that starts within a source row, not at or before its start, runs over pixels still to be
  // read.
  size_t x = 0;
  if (!reads_own_writes(out, upper, 8 * width) && !reads_own_writes(out, lower, 8 * width))
    for (; x + Px::lanes <= width; x += Px::lanes)
      mean_of_4<Px>(upper + 8 * x, lower + 8 * x).store(out + 4 * x);
  for (; x < width; ++x) mean_of_4<One>(upper + 8 * x, lower + 8 * x).store(out + 4 * x);
}

}  // namespace

TESSARO_KERNELS(HalveKernels){.halve = halve};
