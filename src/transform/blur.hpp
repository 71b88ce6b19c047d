// Means along rows and columns, in time that does not depend on the width of the window.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

// Divides a sum of `count` bytes by count, exactly, with two high products:
//   sum / count = ((sum + bias) * first >> 16) * second >> 16      for 0 <= sum <= 255 * count, 2 <= count <= 255
// first is 2^(16 + k) / count for the largest k that keeps it in 16 bits, rounded down (bias 1) or up (bias 0),
// whichever is exact for this count; second is 2^(16 - k).
struct Divider {
  uint16_t first, second, bias;

  constexpr uint32_t divide(uint32_t sum) const {
    return (((sum + bias) * first >> 16) * static_cast<uint32_t>(second)) >> 16;
  }
};

// Where a sum of sub-steps ends: `whole` source pixels from the left and so much of the sub-steps of pixel `next`.
struct StepSum {
  int32_t whole, next;
  uint16_t part;
};

// Sums have four 16-bit lanes a pixel, in the order of its bytes, and wrap; differences of two of them do not.
struct BlurKernels {
  // sums[i + 1] = sums[i] + pixel i, for count pixels; sums[0] is given.
  void (*running_sums)(uint16_t* sums, const uint8_t* src, size_t count);
  // out[i] = sums[places[i].whole] * num + pixel places[i].next * places[i].part, for count places
  void (*step_sums)(uint16_t* out, const uint16_t* sums, const uint8_t* src, const StepSum* places,
                    size_t count, uint16_t num);
  // out = (ahead - behind) / the divider, lane by lane.
  void (*means)(uint8_t* out, const uint16_t* ahead, const uint16_t* behind, size_t lanes, Divider by);
  // The same with a divider for each lane.
  void (*tapered_means)(uint8_t* out, const uint16_t* ahead, const uint16_t* behind, size_t lanes,
                        const uint16_t* first, const uint16_t* second, const uint16_t* bias);
  // sums += add * times; sums -= remove; out = sums / the divider
  void (*accumulate)(uint16_t* sums, const uint8_t* add, size_t lanes, uint16_t times);
  void (*subtract)(uint16_t* sums, const uint8_t* remove, size_t lanes);
  void (*divide)(uint8_t* out, const uint16_t* sums, size_t lanes, Divider by);
  // One step of a window that slides down: sums += add; out = sums / the divider; sums -= remove.
  void (*slide)(uint8_t* out, uint16_t* sums, const uint8_t* add, const uint8_t* remove, size_t lanes,
                Divider by);
  // A row of means of 2 x 2 pixels.
  void (*halve)(uint8_t* out, const uint8_t* upper, const uint8_t* lower, size_t width);
};
TESSARO_DECLARE_KERNELS(BlurKernels);

}  // namespace tessaro
