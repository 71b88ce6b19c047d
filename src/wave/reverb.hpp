// The echo ring of waveEffectReverbA1.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

inline constexpr int64_t ring_frames = 1 << 19, ring_mask = ring_frames - 1;
inline constexpr size_t most_taps = 10000;
// Frames whose echoes are added tap by tap.
inline constexpr int64_t echo_frames = 16;

// The taps that a call uses: gains per channel and the distance to the next tap.
struct Taps {
  const uint8_t* left;  // doubles of the host's
  const uint8_t* right;
  const double* step;
  size_t count;
};

struct ReverbKernels {
  // Adds echo times the gains of every tap to the ring, split between the two frames that the tap's place
  // lies between. The first place is x.
  void (*scatter)(uint8_t* ring, double x, double echo, const Taps& taps);
  // Null, or the same for echo_frames frames with their first places at x, x + 1, ...; echoes of 0 are left
  // out. Every tap lies at least 3 frames behind the one before, and all lie within one turn of the ring.
  void (*scatter_block)(uint8_t* ring, double x, const double* echoes, const Taps& taps);
};
TESSARO_DECLARE_KERNELS(ReverbKernels);

}  // namespace tessaro
