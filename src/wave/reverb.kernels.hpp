// kernels: ReverbKernels
#include "wave/reverb.hpp"
#include "wave/stored.hpp"

namespace {

TESSARO_INLINE double* frame(uint8_t* ring, int64_t at) {
  return reinterpret_cast<double*>(ring + 16 * static_cast<size_t>(at & tessaro::ring_mask));
}

TESSARO_INLINE Double2 gains(const tessaro::Taps& taps, size_t t) {
  return Double2{get<double>(taps.left + 8 * t), get<double>(taps.right + 8 * t)};
}

TESSARO_INLINE void deposit(double* at, double weight, const Double2& gain) {
  put(at, get<Double2>(at) + weight * gain);
}

// Frames are taken together, and ring frames in pairs, where four numbers fill a register.
constexpr bool wide = Px::lanes >= 8;

// The frames i and i + 1, which follow each other unless i is the last of the ring.
TESSARO_INLINE void deposit_both(uint8_t* ring, int64_t i, double f, double echo, const Double2& gain) {
  if (wide && (i & tessaro::ring_mask) != tessaro::ring_mask) {
    double* at = frame(ring, i);
    const Double2 shares = {1 - f, f};
    put(at, get<Double4>(at) + __builtin_shufflevector(shares, shares, 0, 0, 1, 1) * echo *
                                   __builtin_shufflevector(gain, gain, 0, 1, 0, 1));
    return;
  }
  deposit(frame(ring, i), (1 - f) * echo, gain);
  deposit(frame(ring, static_cast<int64_t>(static_cast<uint64_t>(i) + 1)), f * echo, gain);
}

void scatter(uint8_t* ring, double x, double echo, const tessaro::Taps& taps) {
  for (size_t t = 0; t < taps.count; ++t) {
    const int64_t i = converted64(x);
    deposit_both(ring, i, x - static_cast<double>(i), echo, gains(taps, t));
    x += taps.step[t];
  }
}

// ---- A block of frames at a time
//
// Where taps of two frames meet in the ring, the later tap belongs to the earlier frame. Taken from the last
// tap to the first, every ring frame is therefore added to in the order of the frames, as it must be: sums
// are rounded. (Taps less than two frames apart also meet within a frame, in the other order.)

using Four = Double4;  // frames, or two of them in two channels
typedef Four StoredFour __attribute__((aligned(1), may_alias));
typedef int64_t Mask __attribute__((vector_size(32)));

struct Frames {
  Four of[4];
};
constexpr size_t frame_count = 16;
static_assert(tessaro::echo_frames == frame_count);

struct Echoes {
  Frames of;
  // Of what goes into ring frames 1 to 16 from a tap's place on: the shares that frames 0..15 have there, and
  // those of frames 1..15, which come after them. Frame 0 has its nearer share in ring frame 0.
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
  StoredFour* const at = reinterpret_cast<StoredFour*>(place + 2 + 8 * i);  // deduced, it would be aligned
  Four low = at[0], high = at[1];
  add_shares<all>(low, __builtin_shufflevector(f, f, 0, 0, 1, 1), gain, echoes.far[2 * i]);
  add_shares<all>(low, __builtin_shufflevector(n, n, 1, 1, 2, 2), gain, echoes.near[2 * i]);
  add_shares<all>(high, __builtin_shufflevector(f, f, 2, 2, 3, 3), gain, echoes.far[2 * i + 1]);
  add_shares<all && !last>(high, __builtin_shufflevector(n, next, 3, 3, 4, 4), gain, echoes.near[2 * i + 1]);
  at[0] = low;
  at[1] = high;
}

template <bool all>
TESSARO_INLINE void deposit_block(uint8_t* ring, const Frames& x, const Echoes& echoes, const Double2& gain) {
  Int4 whole[4], uneven = {};
  Frames part, near, far;
  for (int i = 0; i < 4; ++i) {
    whole[i] = __builtin_convertvector(x.of[i], Int4);
    uneven |= (whole[i] - whole[0][0]) ^ (Int4{0, 1, 2, 3} + 4 * i);
    part.of[i] = x.of[i] - __builtin_convertvector(whole[i], Four);
    near.of[i] = (1 - part.of[i]) * echoes.of.of[i];
    far.of[i] = part.of[i] * echoes.of.of[i];
  }
  const auto place = static_cast<int64_t>(whole[0][0]) & tessaro::ring_mask;
  // Rounding may put a frame's place on the other side of a whole number.
  if (!none_set(uneven) || place + 17 > tessaro::ring_frames) [[unlikely]] {
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

void scatter_together(uint8_t* ring, double x, const double* values, const tessaro::Taps& taps) {
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
  // Places are sums, rounded tap by tap, and so known from the first to the last: of every stretch of taps
  // the first is kept, and the others are found again. The square root of their number needs the least room.
  constexpr size_t stretch = 100;
  static_assert(stretch * stretch == tessaro::most_taps);
  Frames starts[tessaro::most_taps / stretch], places[stretch], at;
  for (int i = 0; i < 4; ++i) at.of[i] = x + (Four{0, 1, 2, 3} + 4.0 * i);
  for (size_t t = 0; t < taps.count; ++t) {
    if (t % stretch == 0) starts[t / stretch] = at;
    advance(at, taps.step[t]);
  }
  for (size_t end = taps.count; end > 0;) {
    const size_t start = (end - 1) / stretch * stretch;
    at = starts[start / stretch];
    for (size_t t = start; t < end; ++t) {
      places[t - start] = at;
      advance(at, taps.step[t]);
    }
    if (echoes.all)
      for (size_t t = end; t-- > start;) deposit_block<true>(ring, places[t - start], echoes, gains(taps, t));
    else
      for (size_t t = end; t-- > start;)
        deposit_block<false>(ring, places[t - start], echoes, gains(taps, t));
    end = start;
  }
}

}  // namespace

// With two numbers a vector it is no faster.
TESSARO_KERNELS(ReverbKernels){.scatter = scatter, .scatter_block = wide ? scatter_together : nullptr};
