// Sums of pixels' channels and their means, which do not depend on how many pixels a mean is taken of.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

// Divides a sum of `count` bytes by count, exactly, with two high products:
//   sum / count = ((sum + bias) * first >> 16) * second >> 16      for 0 <= sum <= 255 * count, 2 <= count <= 255
// first is 2^(16 + k) / count for the largest k that keeps it in 16 bits, rounded down (bias 1) or up (bias
// 0), whichever is exact for this count; second is 2^(16 - k).
struct Divider {
  uint16_t first, second, bias;

  constexpr uint32_t divide(uint32_t sum) const {
    return (((sum + bias) * first >> 16) * static_cast<uint32_t>(second)) >> 16;
  }
};

// The dividers of the counts 0..255 in rising order and, behind them, in falling order, four lanes a count,
// so that the shortened windows at both ends of a row find theirs side by side. Those of 0 and 1 are not
// used.
struct Dividers {
  std::array<uint16_t, 2048> first{}, second{}, bias{};
  constexpr Divider of(size_t count) const { return {first[4 * count], second[4 * count], bias[4 * count]}; }
};
extern const Dividers dividers;

// The four channels of a pixel in the 16-bit lanes of a word, and such sums divided.
constexpr uint64_t widened(uint32_t pixel) {
  const uint64_t halves = (pixel | static_cast<uint64_t>(pixel) << 16) & 0x0000FFFF0000FFFFu;
  return (halves | halves << 8) & 0x00FF00FF00FF00FFu;
}
constexpr uint32_t divided(uint64_t sums, Divider by) {
  uint32_t pixel = 0;
  for (int k = 0; k < 4; ++k) pixel |= by.divide(static_cast<uint32_t>(sums >> 16 * k & 0xFFFF)) << 8 * k;
  return pixel;
}

// How far the destination lies ahead of its source, as far as memory that they share goes.
inline ptrdiff_t distance(const AreaPair& n) {
  return static_cast<ptrdiff_t>(reinterpret_cast<uintptr_t>(n.dst) - reinterpret_cast<uintptr_t>(n.src));
}
// True where no row of the destination runs into another and each of its columns meets no column of the
// source but its own, so that all columns may move down together.
inline bool columns_apart(const AreaPair& n) {
  if (!rows_apart(dst_of(n))) return false;
  return !share_memory(dst_of(n), src_of(n)) ||
         (n.dst_pitch == n.src_pitch && distance(n) % n.dst_pitch == 0);
}

// Where a sum of sub-steps ends: `whole` source pixels from the left and so much of the sub-steps of pixel
// `next`.
struct StepSum {
  int32_t whole, next;
  uint16_t part;
};

// Sums have four 16-bit lanes a pixel, in the order of its bytes, and wrap; differences of two of them do
// not.
inline constexpr size_t column_room(size_t lanes) { return (lanes + 63) / 64 * 64; }  // whole vectors
struct MeanKernels {
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
  // Sums of columns: 0 at first, in an order that only these four know, with room for column_room(lanes) of
  // them. sums += add * times; sums -= remove; out = sums / the divider
  void (*accumulate)(uint16_t* sums, const uint8_t* add, size_t lanes, uint16_t times);
  void (*subtract)(uint16_t* sums, const uint8_t* remove, size_t lanes);
  void (*divide)(uint8_t* out, uint16_t* sums, size_t lanes, Divider by);
  // One step of a window that slides down: sums += add; out = sums / the divider; sums -= remove.
  void (*slide)(uint8_t* out, uint16_t* sums, const uint8_t* add, const uint8_t* remove, size_t lanes,
                Divider by);
};
TESSARO_DECLARE_KERNELS(MeanKernels);

}  // namespace tessaro
