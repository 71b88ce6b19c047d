// kernels: ReverbKernels
#include <immintrin.h>

#include "wave/reverb.hpp"
#include "wave/stored.hpp"

namespace {

// Truncated to 64 bits; what does not fit (not-a-number included) gives the smallest integer.
TESSARO_INLINE int64_t whole(double x) {
#if defined(__x86_64__)
  return _mm_cvttsd_si64(_mm_set_sd(x));
#else
  if (x > -2147483649.0 && x < 2147483648.0) return static_cast<int32_t>(x);
  return x >= -9223372036854775808.0 && x < 9223372036854775808.0 ? static_cast<int64_t>(x) : INT64_MIN;
#endif
}

TESSARO_INLINE double* frame(uint8_t* ring, int64_t at) {
  return reinterpret_cast<double*>(ring + 16 * static_cast<size_t>(at & tessaro::ring_mask));
}

TESSARO_INLINE double step(const tessaro::Taps& taps, size_t t) {
  return taps.spread * *reinterpret_cast<const F64*>(taps.spacing + 8 * t);
}

TESSARO_INLINE __m128d gains(const tessaro::Taps& taps, size_t t) {
  return _mm_set_pd(*reinterpret_cast<const F64*>(taps.right + 8 * t),
                    *reinterpret_cast<const F64*>(taps.left + 8 * t));
}

TESSARO_INLINE void deposit(double* at, double weight, __m128d gain) {
  _mm_storeu_pd(at, _mm_add_pd(_mm_loadu_pd(at), _mm_mul_pd(_mm_set1_pd(weight), gain)));
}

// The frames i and i + 1, which follow each other unless i is the last of the ring.
TESSARO_INLINE void deposit_both(uint8_t* ring, int64_t i, double f, double echo, __m128d gain) {
#if defined(__AVX2__)
  if ((i & tessaro::ring_mask) != tessaro::ring_mask) {
    double* at = frame(ring, i);
    const __m256d share = _mm256_set_m128d(_mm_set1_pd(f), _mm_set1_pd(1 - f));
    const __m256d both =
        _mm256_mul_pd(_mm256_mul_pd(share, _mm256_set1_pd(echo)), _mm256_set_m128d(gain, gain));
    _mm256_storeu_pd(at, _mm256_add_pd(_mm256_loadu_pd(at), both));
    return;
  }
#endif
  deposit(frame(ring, i), (1 - f) * echo, gain);
  deposit(frame(ring, static_cast<int64_t>(static_cast<uint64_t>(i) + 1)), f * echo, gain);
}

void scatter(uint8_t* ring, double x, double echo, const tessaro::Taps& taps) {
  for (size_t t = 0; t < taps.count; ++t) {
    const int64_t i = whole(x);
    deposit_both(ring, i, x - static_cast<double>(i), echo, gains(taps, t));
    x += step(taps, t);
  }
}

#if defined(__AVX2__)

// ---- A block of frames at a time
//
// Where taps of two frames meet in the ring, the later tap belongs to the earlier frame. Taken from the last tap to the
// first, every ring frame is therefore added to in the order of the frames, as it must be: sums are rounded. (Taps less
// than two frames apart also meet within a frame, in the other order.)

typedef double Four __attribute__((vector_size(32)));  // frames, or two of them in two channels
typedef Four StoredFour __attribute__((aligned(1), may_alias));
typedef int64_t Mask __attribute__((vector_size(32)));
typedef int32_t FourWhole __attribute__((vector_size(16)));

struct Frames {
  Four of[4];
};
constexpr size_t frame_count = 16;
static_assert(tessaro::echo_frames == frame_count);

struct Echoes {
  Frames of;
  // Of what goes into ring frames 1 to 16 from a tap's place on: the shares that frames 0..15 have there, and those of
  // frames 1..15, which come after them. Frame 0 has its nearer share in ring frame 0.
  Mask far[8], near[8];
  bool first, all;
};

// sum += shares times gain. A share that is left out leaves the sum as it is, even a signaling not-a-number.
template <bool all>
TESSARO_INLINE void add_shares(Four& sum, const Four& shares, const Four& gain, const Mask& mask) {
  const Four v = sum + shares * gain;
  sum = all ? v : mask ? v : sum;
}

template <bool all, size_t i>
TESSARO_INLINE void add_group(double* place, const Frames& far, const Frames& near, const Four& gain,
                              const Echoes& echoes) {
  constexpr bool last = i == 3;  // no frame comes after the farther share of the last one
  const Four f = far.of[i], n = near.of[i], next = near.of[(i + 1) % 4];
  StoredFour* at = reinterpret_cast<StoredFour*>(place + 2 + 8 * i);
  Four low = at[0], high = at[1];
  add_shares<all>(low, __builtin_shufflevector(f, f, 0, 0, 1, 1), gain, echoes.far[2 * i]);
  add_shares<all>(low, __builtin_shufflevector(n, n, 1, 1, 2, 2), gain, echoes.near[2 * i]);
  add_shares<all>(high, __builtin_shufflevector(f, f, 2, 2, 3, 3), gain, echoes.far[2 * i + 1]);
  add_shares<all && !last>(high, __builtin_shufflevector(n, next, 3, 3, 4, 4), gain, echoes.near[2 * i + 1]);
  at[0] = low;
  at[1] = high;
}

template <bool all>
TESSARO_INLINE void deposit_block(uint8_t* ring, const Frames& x, const Echoes& echoes, __m128d gain) {
  FourWhole whole[4], uneven = {};
  Frames part, near, far;
  for (int i = 0; i < 4; ++i) {
    whole[i] = __builtin_convertvector(x.of[i], FourWhole);
    uneven |= (whole[i] - whole[0][0]) ^ (FourWhole{0, 1, 2, 3} + 4 * i);
    part.of[i] = x.of[i] - __builtin_convertvector(whole[i], Four);
    near.of[i] = (1 - part.of[i]) * echoes.of.of[i];
    far.of[i] = part.of[i] * echoes.of.of[i];
  }
  const auto place = static_cast<int64_t>(whole[0][0]) & tessaro::ring_mask;
  // Rounding may put a frame's place on the other side of a whole number.
  const auto bits = reinterpret_cast<__m128i>(uneven);
  if (!_mm_testz_si128(bits, bits) || place + 17 > tessaro::ring_frames) [[unlikely]] {
    for (size_t j = 0; j < frame_count; ++j)
      if (const double echo = echoes.of.of[j / 4][j % 4]; echo != 0)
        deposit_both(ring, whole[j / 4][j % 4], part.of[j / 4][j % 4], echo, gain);
    return;
  }
  const Four gains = {gain[0], gain[1], gain[0], gain[1]};
  double* at = frame(ring, place);
  if (all || echoes.first) deposit(at, near.of[0][0], gain);
  add_group<all, 0>(at, far, near, gains, echoes);
  add_group<all, 1>(at, far, near, gains, echoes);
  add_group<all, 2>(at, far, near, gains, echoes);
  add_group<all, 3>(at, far, near, gains, echoes);
}

TESSARO_INLINE void advance(Frames& at, double step) {
  for (Four& v : at.of) v += step;
}

void scatter_block(uint8_t* ring, double x, const double* values, const tessaro::Taps& taps) {
  Echoes echoes;
  __builtin_memcpy(&echoes.of, values, sizeof echoes.of);
  echoes.first = values[0] != 0;
  echoes.all = true;
  for (size_t j = 0; j < frame_count; ++j) {
    const int64_t far = values[j] != 0 ? -1 : 0, near = j < frame_count - 1 && values[j + 1] != 0 ? -1 : 0;
    echoes.all = echoes.all && far;
    for (size_t lane = 2 * (j % 2); lane < 2 * (j % 2) + 2; ++lane) {
      echoes.far[j / 2][lane] = far;
      echoes.near[j / 2][lane] = near;
    }
  }
  // Places are sums, rounded tap by tap, and so known from the first to the last: of every stretch of taps the first
  // is kept, and the others are found again. The square root of their number needs the least room.
  constexpr size_t stretch = 100;
  static_assert(stretch * stretch == tessaro::most_taps);
  Frames starts[tessaro::most_taps / stretch], places[stretch], at;
  for (int i = 0; i < 4; ++i) at.of[i] = x + (Four{0, 1, 2, 3} + 4.0 * i);
  for (size_t t = 0; t < taps.count; ++t) {
    if (t % stretch == 0) starts[t / stretch] = at;
    advance(at, step(taps, t));
  }
  for (size_t end = taps.count; end > 0;) {
    const size_t start = (end - 1) / stretch * stretch;
    at = starts[start / stretch];
    for (size_t t = start; t < end; ++t) {
      places[t - start] = at;
      advance(at, step(taps, t));
    }
    if (echoes.all)
      for (size_t t = end; t-- > start;) deposit_block<true>(ring, places[t - start], echoes, gains(taps, t));
    else
      for (size_t t = end; t-- > start;)
        deposit_block<false>(ring, places[t - start], echoes, gains(taps, t));
    end = start;
  }
}
#else
constexpr auto scatter_block = nullptr;  // with two numbers a vector it is no faster
#endif

}  // namespace

TESSARO_KERNELS(ReverbKernels){.scatter = scatter, .scatter_block = scatter_block};
