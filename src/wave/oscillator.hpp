// The tone of waveBltSin: a sine whose pitch wanders by the integral of another.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

struct OscillatorKernels {
  // The sines of n angles whose magnitudes are at most 2^24.
  void (*sines)(double* out, const float* angles, size_t n);
};
TESSARO_DECLARE_KERNELS(OscillatorKernels);

class Oscillator {
 public:
  Oscillator(float amplitude, float frequency, float depth, float rate)
      : amplitude_(amplitude), increment_(frequency), depth_(depth), rate_(rate) {}
  // The next n values, truncated; far enough inside 32 bits to be added to a sample.
  void draw(int32_t* tone, int64_t n);
  // Passes over n values.
  void skip(int64_t n);

 private:
  static constexpr int64_t block = 512;
  // The phases of the next n values, at most a block of them.
  void advance(float* phases, int64_t n);

  float amplitude_, increment_, depth_, rate_;
  float phase_ = 0, modulation_ = 0;
};

}  // namespace tessaro
