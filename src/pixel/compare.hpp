// Tests of whole images, and the search for their content.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

// What every pixel of the first image must be, some by comparison with the second.
enum CompareTest {
  equal_pixels,
  equal_colours,
  equal_alphas,
  transparent,
  opaque,
  black_or_white,
  grey,
  compare_test_count
};

struct CompareKernels {
  using Test = bool (*)(const AreaPair&);  // dst and src are the first and the second image
  Test holds[compare_test_count];
  // The number of pixels that differ under the mask and have a byte that differs by at most the tolerance.
  int32_t (*count_near)(const AreaPair&, uint32_t mask, uint32_t tolerance);
  // The index of the first pixel with (p & mask) != key, or width; one more than that of the last, or 0.
  size_t (*first_content)(const uint8_t* row, size_t width, uint32_t mask, uint32_t key);
  size_t (*end_of_content)(const uint8_t* row, size_t width, uint32_t mask, uint32_t key);
};
TESSARO_DECLARE_KERNELS(CompareKernels);

}  // namespace tessaro
