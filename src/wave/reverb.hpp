// The echo ring of waveEffectReverbA1.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

inline constexpr int64_t ring_frames = 1 << 19, ring_mask = ring_frames - 1;

// The taps that a call uses: gains per channel and the distance to the next tap.
struct Taps {
  const uint8_t* left;  // doubles of the host's
  const uint8_t* right;
  const double* step;
  size_t count;
};

struct ReverbKernels {
  // Adds echo times the gains of every tap to the ring, split between the two frames that the tap's place lies
  // between. The first place is x.
  void (*scatter)(uint8_t* ring, double x, double echo, const Taps& taps);
};
TESSARO_DECLARE_KERNELS(ReverbKernels);

}  // namespace tessaro
