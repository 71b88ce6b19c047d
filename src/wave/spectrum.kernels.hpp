// kernels: SpectrumKernels for scalar sse2 avx2 avx512
#include "wave/spectrum.hpp"
#include "wave/stored.hpp"
#include "wave/trigonometry.hpp"

namespace {

using tessaro::Bins;

void twiddles(double* __restrict cosines, double* __restrict sines, size_t first, size_t count,
              double angle) {
  for (size_t j = 0; j < count; ++j) {
    const Angle a = reduced(static_cast<double>(static_cast<int32_t>(first + j)) * angle);
    const double c = cosine_of_rest(a), s = sine_of_rest(a);
    const double across = a.quarter & 1 ? s : c, up = a.quarter & 1 ? c : s;  // quarters 0, 1, 2
    cosines[j] = a.quarter == 0 ? across : -across;
    sines[j] = a.quarter == 2 ? -up : up;
  }
}

void stage(Bins bins, int64_t n, int64_t m, int64_t k, int64_t first, int64_t count,
           const double* __restrict cosines, const double* __restrict sines) {
  for (int64_t i = first; i + k < n; i += m) {
    F64* __restrict near_re = reinterpret_cast<F64*>(bins.re) + i;
    F64* __restrict near_im = reinterpret_cast<F64*>(bins.im) + i;
    F64* __restrict far_re = near_re + k;
    F64* __restrict far_im = near_im + k;
    const int64_t both = count < n - k - i ? count : n - k - i;
    for (int64_t j = 0; j < both; ++j) {
      const double dr = near_re[j] - far_re[j], di = near_im[j] - far_im[j];
      near_re[j] = near_re[j] + far_re[j];
      near_im[j] = near_im[j] + far_im[j];
      far_re[j] = dr * cosines[j] - di * sines[j];
      far_im[j] = dr * sines[j] + di * cosines[j];
    }
  }
}

}  // namespace

TESSARO_KERNELS(SpectrumKernels){.twiddles = twiddles, .stage = stage};
