// kernels: SpectrumKernels
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

// As many elements of an array as a register holds.
constexpr int64_t row = register_bytes / 8;
typedef double Row __attribute__((vector_size(register_bytes)));
// Read in place, which compilers fold into the arithmetic; copies of vectors they keep on the stack.
typedef Row StoredRow __attribute__((aligned(1), may_alias));

TESSARO_INLINE Row get_row(const void* at) { return *static_cast<const StoredRow*>(at); }
TESSARO_INLINE void put_row(void* at, const Row& v) { *static_cast<StoredRow*>(at) = v; }

struct Elements {
  Row re, im;
};
template <class T>
TESSARO_INLINE void butterfly(Elements& near, Elements& far, const T& c, const T& s) {
  const Row dr = near.re - far.re, di = near.im - far.im;
  near.re += far.re;
  near.im += far.im;
  far.re = dr * c - di * s;
  far.im = dr * s + di * c;
}

void two_stages(Bins bins, int64_t n, int64_t k, int64_t first, int64_t count, const Twiddles at[3]) {
  const Twiddles one = at[0], other = at[1], next = at[2];
  const int64_t quarter = 4 * k;  // of a block, in bytes
  for (int64_t i = first; i < n; i += 2 * k) {
    uint8_t* re = bins.re + 8 * i;
    uint8_t* im = bins.im + 8 * i;
    for (int64_t j = 0; j < count; j += row, re += sizeof(Row), im += sizeof(Row)) {
      Elements e[4];
      for (int64_t q = 0; q < 4; ++q) e[q] = {get_row(re + q * quarter), get_row(im + q * quarter)};
      butterfly(e[0], e[2], get_row(one.cosines + j), get_row(one.sines + j));
      butterfly(e[1], e[3], get_row(other.cosines + j), get_row(other.sines + j));
      butterfly(e[0], e[1], get_row(next.cosines + j), get_row(next.sines + j));
      butterfly(e[2], e[3], get_row(next.cosines + j), get_row(next.sines + j));
      for (int64_t q = 0; q < 4; ++q) {
        put_row(re + q * quarter, e[q].re);
        put_row(im + q * quarter, e[q].im);
      }
    }
  }
}

// Eight times eight elements: those whose index, high * n / 8 + middle * 8 + low, has the same middle. Tiles
// hold them as
//
//            column 0   1   2   3   4   5   6   7
//   high            0   4   2   6   1   5   3   7     in the order of reversed bits
//   row 0                   low = 0
//   ..
//   row 7                   low = 7
//
// so that the last three stages, which join elements whose low bits differ, work on whole rows. The
// reordering takes index high : middle : low to low : middle : high, each reversed: row r goes as it is to
// reversed3[r] * n / 8 + 8 * middle'.
struct Tile {
  alignas(64) double re[8][8], im[8][8];
};

constexpr int64_t reversed3[8] = {0, 4, 2, 6, 1, 5, 3, 7};

// Columns to rows: from[c][at + r] to out[r][c].
TESSARO_INLINE void transpose(Double2 (&out)[2], const double* const* from, int64_t at) {
  const auto a = get<Double2>(from[0] + at), b = get<Double2>(from[1] + at);
  out[0] = __builtin_shufflevector(a, b, 0, 2);
  out[1] = __builtin_shufflevector(a, b, 1, 3);
}
TESSARO_INLINE void transpose(Double4 (&out)[4], const double* const* from, int64_t at) {
  const auto a = get<Double4>(from[0] + at), b = get<Double4>(from[1] + at);
  const auto c = get<Double4>(from[2] + at), d = get<Double4>(from[3] + at);
  // a0 b0 a2 b2, a1 b1 a3 b3; then a0 b0 c0 d0, and so on.
  const Double4 ab0 = __builtin_shufflevector(a, b, 0, 4, 2, 6),
                ab1 = __builtin_shufflevector(a, b, 1, 5, 3, 7);
  const Double4 cd0 = __builtin_shufflevector(c, d, 0, 4, 2, 6),
                cd1 = __builtin_shufflevector(c, d, 1, 5, 3, 7);
  out[0] = __builtin_shufflevector(ab0, cd0, 0, 1, 4, 5);
  out[1] = __builtin_shufflevector(ab1, cd1, 0, 1, 4, 5);
  out[2] = __builtin_shufflevector(ab0, cd0, 2, 3, 6, 7);
  out[3] = __builtin_shufflevector(ab1, cd1, 2, 3, 6, 7);
}
TESSARO_INLINE void transpose(Double8 (&out)[4], const double* const* from, int64_t at) {
  Double4 left[4], right[4];
  transpose(left, from, at);
  transpose(right, from + 4, at);
  for (int64_t i = 0; i < 4; ++i) out[i] = __builtin_shufflevector(left[i], right[i], 0, 1, 2, 3, 4, 5, 6, 7);
}

// All eight rows, from column `first` on.
TESSARO_INLINE void take(Row (&rows)[8], const uint8_t* array, int64_t n, int64_t middle, int64_t first) {
  const double* from[row];
  for (int64_t column = 0; column < row; ++column)
    from[column] = reinterpret_cast<const double*>(array) + reversed3[first + column] * (n / 8) + 8 * middle;
  constexpr int64_t some = row == 2 ? 2 : 4;
  for (int64_t r = 0; r < 8; r += some) {
    Row out[some];
    transpose(out, from, r);
    for (int64_t i = 0; i < some; ++i) rows[r + i] = out[i];
  }
}
TESSARO_INLINE void give(const double (&rows)[8][8], uint8_t* array, int64_t n, int64_t middle) {
  for (size_t r = 0; r < 8; ++r)
    __builtin_memcpy(array + 8 * (reversed3[r] * (n / 8) + 8 * middle), rows[r], 64);
}
TESSARO_INLINE void take_and_finish(Tile& t, Bins bins, int64_t n, int64_t middle, Twiddles at) {
  for (int64_t first = 0; first < 8; first += row) {
    Row re[8], im[8];
    take(re, bins.re, n, middle, first);
    take(im, bins.im, n, middle, first);
    Elements e[8];
    for (size_t r = 0; r < 8; ++r) e[r] = {re[r], im[r]};
    for (size_t r = 0; r < 4; ++r) butterfly(e[r], e[r + 4], at.cosines[r], at.sines[r]);
    for (size_t block = 0; block < 8; block += 4)
      for (size_t r = 0; r < 2; ++r)
        butterfly(e[block + r], e[block + r + 2], at.cosines[2 * r], at.sines[2 * r]);
    for (size_t block = 0; block < 8; block += 2)
      butterfly(e[block], e[block + 1], at.cosines[0], at.sines[0]);
    for (size_t r = 0; r < 8; ++r) {
      __builtin_memcpy(t.re[r] + first, &e[r].re, sizeof(Row));
      __builtin_memcpy(t.im[r] + first, &e[r].im, sizeof(Row));
    }
  }
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
