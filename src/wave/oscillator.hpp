// The tone of waveBltSin: a sine whose pitch wanders by the integral of another.
#pragma once

#include <cstdint>

namespace tessaro {

class Oscillator {
 public:
  Oscillator(float amplitude, float frequency, float depth, float rate)
      : amplitude_(amplitude),
        increment_(frequency),
        depth_(depth),
        rate_(rate),
        drift_(0.0 * static_cast<double>(depth)) {}
  // The next n values, truncated; far enough inside 32 bits to be added to a sample.
  void draw(int32_t* tone, int64_t n);
  // Passes over n values.
  void skip(int64_t n);

 private:
  void step();
  float amplitude_, increment_, depth_, rate_;
  float phase_ = 0, modulation_ = 0;
  double drift_;  // sin(modulation) * depth
};

}  // namespace tessaro
