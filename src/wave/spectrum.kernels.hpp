// kernels: SpectrumKernels for scalar sse2 avx2 avx512
#include <immintrin.h>

#include "wave/spectrum.hpp"
#include "wave/stored.hpp"
#include "wave/trigonometry.hpp"

namespace {

using tessaro::Bins;
using tessaro::Twiddles;

void twiddles(double* __restrict cosines, double* __restrict sines, size_t first, size_t count,
              double angle) {
  for (size_t j = 0; j < count; ++j) {
    const Direction at = direction(static_cast<double>(static_cast<int32_t>(first + j)) * angle);
    cosines[j] = at.cosine;
    sines[j] = at.sine;
  }
}

void start(Bins bins, const F64* values, int64_t frames, bool stereo) {
  F64* re = reinterpret_cast<F64*>(bins.re);
  F64* im = reinterpret_cast<F64*>(bins.im);
  TESSARO_PARALLEL
  for (int64_t i = 0; i < frames; ++i) im[i] = 0.0;
  if (stereo) {
    TESSARO_PARALLEL
    for (int64_t i = 0; i < frames; ++i) re[i] = values[2 * i] + values[2 * i + 1];
  } else {
    TESSARO_PARALLEL
    for (int64_t i = 0; i < frames; ++i) re[i] = values[i] + values[i];
  }
}

void stage(Bins bins, int64_t n, int64_t m, int64_t k, int64_t first, int64_t count, Twiddles at) {
  const double* __restrict cosines = at.cosines;
  const double* __restrict sines = at.sines;
  for (int64_t i = first; i + k < n; i += m) {
    F64* __restrict near_re = reinterpret_cast<F64*>(bins.re) + i;
    F64* __restrict near_im = reinterpret_cast<F64*>(bins.im) + i;
    F64* __restrict far_re = near_re + k;
    F64* __restrict far_im = near_im + k;
    const int64_t both = count < n - k - i ? count : n - k - i;
    TESSARO_PARALLEL
    for (int64_t j = 0; j < both; ++j) {
      const double dr = near_re[j] - far_re[j], di = near_im[j] - far_im[j];
      near_re[j] = near_re[j] + far_re[j];
      near_im[j] = near_im[j] + far_im[j];
      far_re[j] = dr * cosines[j] - di * sines[j];
      far_im[j] = dr * sines[j] + di * cosines[j];
    }
  }
}

void two_stages(Bins bins, int64_t n, int64_t k, int64_t first, int64_t count, const Twiddles at[3]) {
  const double* __restrict c1 = at[0].cosines;
  const double* __restrict s1 = at[0].sines;
  const double* __restrict c2 = at[1].cosines;
  const double* __restrict s2 = at[1].sines;
  const double* __restrict c3 = at[2].cosines;
  const double* __restrict s3 = at[2].sines;
  const int64_t half = k / 2;
  for (int64_t i = first; i < n; i += 2 * k) {
    F64* __restrict re0 = reinterpret_cast<F64*>(bins.re) + i;
    F64* __restrict re1 = re0 + half;
    F64* __restrict re2 = re0 + k;
    F64* __restrict re3 = re2 + half;
    F64* __restrict im0 = reinterpret_cast<F64*>(bins.im) + i;
    F64* __restrict im1 = im0 + half;
    F64* __restrict im2 = im0 + k;
    F64* __restrict im3 = im2 + half;
    TESSARO_PARALLEL
    for (int64_t j = 0; j < count; ++j) {
      // The first stage pairs 0 with 2 and 1 with 3.
      const double ar = re0[j] + re2[j], ai = im0[j] + im2[j], br = re1[j] + re3[j], bi = im1[j] + im3[j];
      const double pr = re0[j] - re2[j], pi = im0[j] - im2[j], qr = re1[j] - re3[j], qi = im1[j] - im3[j];
      const double cr = pr * c1[j] - pi * s1[j], ci = pr * s1[j] + pi * c1[j];
      const double dr = qr * c2[j] - qi * s2[j], di = qr * s2[j] + qi * c2[j];
      // The second 0 with 1 and 2 with 3.
      const double er = ar - br, ei = ai - bi, fr = cr - dr, fi = ci - di;
      re0[j] = ar + br;
      im0[j] = ai + bi;
      re1[j] = er * c3[j] - ei * s3[j];
      im1[j] = er * s3[j] + ei * c3[j];
      re2[j] = cr + dr;
      im2[j] = ci + di;
      re3[j] = fr * c3[j] - fi * s3[j];
      im3[j] = fr * s3[j] + fi * c3[j];
    }
  }
}

// Eight times eight elements: those whose index has the same middle bits. In a tile the three low bits choose the
// row and the three high bits, reversed, the column: the last three stages work on whole rows, and the rows are
// what is contiguous after the reordering.
struct Tile {
  alignas(64) double re[8][8], im[8][8];
};

constexpr int64_t reversed3[8] = {0, 4, 2, 6, 1, 5, 3, 7};

#if defined(__AVX2__)
// Four columns of four rows, from one row each in memory.
TESSARO_INLINE void transpose(__m256d (&out)[4], const double* const (&from)[8], size_t first, size_t row) {
  const __m256d a = _mm256_loadu_pd(from[first] + row), b = _mm256_loadu_pd(from[first + 1] + row);
  const __m256d c = _mm256_loadu_pd(from[first + 2] + row), d = _mm256_loadu_pd(from[first + 3] + row);
  const __m256d ab0 = _mm256_unpacklo_pd(a, b), ab1 = _mm256_unpackhi_pd(a, b);
  const __m256d cd0 = _mm256_unpacklo_pd(c, d), cd1 = _mm256_unpackhi_pd(c, d);
  out[0] = _mm256_permute2f128_pd(ab0, cd0, 0x20);
  out[1] = _mm256_permute2f128_pd(ab1, cd1, 0x20);
  out[2] = _mm256_permute2f128_pd(ab0, cd0, 0x31);
  out[3] = _mm256_permute2f128_pd(ab1, cd1, 0x31);
}
#endif

TESSARO_INLINE void take(double (&rows)[8][8], const uint8_t* array, int64_t n, int64_t middle) {
#if defined(__AVX2__)
  const double* from[8];
  for (size_t column = 0; column < 8; ++column)
    from[column] = reinterpret_cast<const double*>(array) + reversed3[column] * (n / 8) + 8 * middle;
  for (size_t row = 0; row < 8; row += 4) {
    __m256d left[4], right[4];
    transpose(left, from, 0, row);
    transpose(right, from, 4, row);
    for (size_t i = 0; i < 4; ++i) {
#if defined(__AVX512F__)  // stored at once: what is loaded whole cannot be forwarded from two stores
      _mm512_store_pd(rows[row + i], _mm512_insertf64x4(_mm512_castpd256_pd512(left[i]), right[i], 1));
#else
      _mm256_store_pd(rows[row + i], left[i]);
      _mm256_store_pd(rows[row + i] + 4, right[i]);
#endif
    }
  }
#else
  for (size_t column = 0; column < 8; ++column) {
    const F64* from = reinterpret_cast<const F64*>(array) + reversed3[column] * (n / 8) + 8 * middle;
    for (size_t row = 0; row < 8; ++row) rows[row][column] = from[row];
  }
#endif
}
TESSARO_INLINE void give(const double (&rows)[8][8], uint8_t* array, int64_t n, int64_t middle) {
  for (size_t row = 0; row < 8; ++row)
    __builtin_memcpy(array + 8 * (reversed3[row] * (n / 8) + 8 * middle), rows[row], 64);
}
TESSARO_INLINE void cross(Tile& t, size_t near, size_t far, double c, double s) {
  for (size_t i = 0; i < 8; ++i) {
    const double dr = t.re[near][i] - t.re[far][i], di = t.im[near][i] - t.im[far][i];
    t.re[near][i] += t.re[far][i];
    t.im[near][i] += t.im[far][i];
    t.re[far][i] = dr * c - di * s;
    t.im[far][i] = dr * s + di * c;
  }
}
TESSARO_INLINE void take_and_finish(Tile& t, Bins bins, int64_t n, int64_t middle, Twiddles at) {
  take(t.re, bins.re, n, middle);
  take(t.im, bins.im, n, middle);
  for (size_t j = 0; j < 4; ++j) cross(t, j, j + 4, at.cosines[j], at.sines[j]);
  for (size_t block = 0; block < 8; block += 4)
    for (size_t j = 0; j < 2; ++j) cross(t, block + j, block + j + 2, at.cosines[2 * j], at.sines[2 * j]);
  for (size_t block = 0; block < 8; block += 2) cross(t, block, block + 1, at.cosines[0], at.sines[0]);
}

void finish(Bins bins, int64_t n, Twiddles at) {
  const int64_t middles = n / 64;
  Tile one, other;
  for (int64_t middle = 0, reversed = 0; middle < middles; ++middle) {
    if (middle <= reversed) {
      take_and_finish(one, bins, n, middle, at);
      if (middle != reversed) {
        take_and_finish(other, bins, n, reversed, at);
        give(other.re, bins.re, n, middle);
        give(other.im, bins.im, n, middle);
      }
      give(one.re, bins.re, n, reversed);
      give(one.im, bins.im, n, reversed);
    }
    // Adds one from the top bit down.
    int64_t bit = middles / 2;
    for (; reversed & bit; bit /= 2) reversed ^= bit;
    reversed |= bit;
  }
}

}  // namespace

TESSARO_KERNELS(SpectrumKernels){
    .start = start, .twiddles = twiddles, .stage = stage, .two_stages = two_stages, .finish = finish};
