// Waveform operations as a plain loop states them, compiled for the processor that builds them with the
// vectoriser on.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessaro::bench {

// On `samples` interleaved stereo samples, both buffers in the same format and not overlapping.
using WaveLoop = void (*)(uint8_t* dst, const uint8_t* src, size_t samples);

struct WaveLoops {
  WaveLoop gain, convert, copy64, add, sub, mul, normal, maximize24, maximize64;
};
WaveLoops wave_loops(int bits);

}  // namespace tessaro::bench
