// kernels: OscillatorKernels
#include "wave/oscillator.hpp"

#include "wave/trigonometry.hpp"

namespace {

void sines(double* __restrict out, const float* __restrict angles, size_t n) {
  for (size_t i = 0; i < n; ++i) out[i] = sine(static_cast<double>(angles[i]));
}

}  // namespace

TESSARO_KERNELS(OscillatorKernels){.sines = sines};
