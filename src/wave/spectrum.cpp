// The discrete Fourier transform of a run, of any length.
#include "wave/spectrum.hpp"

#include <cmath>

#include "core/numbers.hpp"
#include "wave/blocks.hpp"
#include "wave/trigonometry.hpp"

using namespace tessaro;

namespace {

// Not 2 pi to the last bit: the constant has 15 digits.
constexpr double full_turn = 6.28318530717959;

// Twiddles that are computed at a time.
constexpr int64_t twiddle_block = 512;

// Of powers of two every stage of k twiddles has the same, whatever the length of the transform: halving an
// angle is exact. Those of stages of up to a block are here, the stage of k behind the k - 1 of the ones
// before it.
struct StageTwiddles {
  double cosines[2 * twiddle_block - 1], sines[2 * twiddle_block - 1];
};
constexpr StageTwiddles small_stages = [] {
  StageTwiddles all{};
  for (int64_t k = 1; k <= twiddle_block; k *= 2)
    for (int64_t j = 0; j < k; ++j) {
      const Direction at = direction(static_cast<double>(j) * (full_turn / static_cast<double>(2 * k)));
      all.cosines[k - 1 + j] = at.cosine;
      all.sines[k - 1 + j] = at.sine;
    }
  return all;
}();

struct TwiddleRoom {
  double cosines[twiddle_block], sines[twiddle_block];
};

Twiddles computed(TwiddleRoom& room, int64_t first, int64_t count, double angle) {
  kernels<SpectrumKernels>().twiddles(room.cosines, room.sines, static_cast<size_t>(first),
                                      static_cast<size_t>(count), angle);
  return {room.cosines, room.sines};
}

// Of the stage of k, which is a power of two.
Twiddles of_stage(TwiddleRoom& room, int64_t k, int64_t first, int64_t count) {
  if (k <= twiddle_block) return {small_stages.cosines + k - 1 + first, small_stages.sines + k - 1 + first};
  return computed(room, first, count, full_turn / static_cast<double>(2 * k));
}

void reverse_bits(Bins bins, int64_t n) {
  if (n - 1 < 2) return;
  const auto swap = [](uint8_t* array, int64_t i, int64_t j) {
    const double a = load<double>(array + 8 * i), b = load<double>(array + 8 * j);
    store(array + 8 * i, b);
    store(array + 8 * j, a);
  };
  for (int64_t i = 1, j = 0; i < n - 1; ++i) {
    int64_t b = n / 2;
    j ^= b;
    while (b > j) {
      b /= 2;
      j ^= b;
    }
    if (i < j) {
      swap(bins.re, i, j);
      swap(bins.im, i, j);
    }
  }
}

void transform_any(Bins bins, int64_t n) {
  TwiddleRoom room;
  double angle = full_turn / static_cast<double>(n);
  for (int64_t m = n, k = n / 2; k >= 1; m = k, k /= 2, angle *= 2)
    for (int64_t first = 0; first < k; first += twiddle_block) {
      const int64_t count = smaller(twiddle_block, k - first);
      kernels<SpectrumKernels>().stage(bins, n, m, k, first, count, computed(room, first, count, angle));
    }
  reverse_bits(bins, n);
}

// The same for a power of two of at least 64, in fewer passes.
void transform_power_of_two(Bins bins, int64_t n) {
  const SpectrumKernels& kernel = kernels<SpectrumKernels>();
  TwiddleRoom rooms[3];
  int64_t k = n / 2;
  if (__builtin_ctzll(static_cast<uint64_t>(n)) % 2 == 0) {  // an odd number of stages before the last three
    for (int64_t first = 0; first < k; first += twiddle_block) {
      const int64_t count = smaller(twiddle_block, k - first);
      kernel.stage(bins, n, n, k, first, count, of_stage(rooms[0], k, first, count));
    }
    k /= 2;
  }
  for (; k > 4; k /= 4) {
    const int64_t half = k / 2;
    for (int64_t first = 0; first < half; first += twiddle_block) {
      const int64_t count = smaller(twiddle_block, half - first);
      const Twiddles at[3] = {of_stage(rooms[0], k, first, count), of_stage(rooms[1], k, half + first, count),
                              of_stage(rooms[2], half, first, count)};
      kernel.two_stages(bins, n, k, first, count, at);
    }
  }
  kernel.finish(bins, n, of_stage(rooms[0], 4, 0, 4));
}

// The angle of the point (x, y), as the field's atan2: the same on every target. It adds up two parts of the
// angle before the last rounding, and branches; the palettes' arctan in draw/ goes by vectors and rounds
// otherwise.
double arctangent(double y, double x) {
  static constexpr double pi = 0x1.921fb54442d18p1, pi_tail = 0x1.1a62633145c07p-53;
  // Arctangents of sixteenths, in two parts.
  static constexpr double table[17][2] = {{0, 0},
                                          {0x1.ff55bb72cfdeap-5, -0x1.c934d86d23f1dp-60},
                                          {0x1.fd5ba9aac2f6ep-4, -0x1.cd37686760c17p-59},
                                          {0x1.7b97b4bce5b02p-3, 0x1.347b0b4f881cap-58},
                                          {0x1.f5b75f92c80ddp-3, 0x1.8ab6e3cf7afbdp-57},
                                          {0x1.362773707ebccp-2, -0x1.963a544b672d8p-57},
                                          {0x1.6f61941e4def1p-2, -0x1.c63aae6f6e918p-56},
                                          {0x1.a64eec3cc23fdp-2, -0x1.24dec1b50b7ffp-56},
                                          {0x1.dac670561bb4fp-2, 0x1.a2b7f222f65e2p-56},
                                          {0x1.0657e94db30d0p-1, -0x1.d5b495f6349e6p-56},
                                          {0x1.1e00babdefeb4p-1, -0x1.928df287a668fp-58},
                                          {0x1.345f01cce37bbp-1, 0x1.1021137c71102p-55},
                                          {0x1.4978fa3269ee1p-1, 0x1.2419a87f2a458p-56},
                                          {0x1.5d58987169b18p-1, 0x1.0028e4bc5e7cap-57},
                                          {0x1.700a7c5784634p-1, -0x1.8c34d25aadef6p-56},
                                          {0x1.819d0b7158a4dp-1, -0x1.bf76229d3b917p-56},
                                          {0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55}};
  if (x != x || y != y) return x + y;
  double across = std::fabs(x), up = std::fabs(y);
  const bool steep = up > across;
  double large = steep ? up : across, small = steep ? across : up;
  double main = 0, tail = 0;
  if (small == large && large != 0) {  // infinities too
    main = table[16][0];
    tail = table[16][1];
  } else if (small != 0 && large <= 0x1.fffffffffffffp1023) {
    // Away from the ends of the range, so that nothing below overflows and little is lost.
    const double scale = large > 0x1p500 ? 0x1p-600 : large < 0x1p-400 ? 0x1p600 : 1.0;
    large *= scale;
    small *= scale;
    const int32_t i = static_cast<int32_t>(small / large * 16 + 0.5);
    const double c = i / 16.0;
    const double t = (small - c * large) / (large + c * small), z = t * t;
    const double series =
        z * (-1.0 / 3 + z * (1.0 / 5 + z * (-1.0 / 7 + z * (1.0 / 9 + z * (-1.0 / 11 + z * (1.0 / 13))))));
    main = table[i][0] + t;
    tail = (table[i][0] - main + t) + (table[i][1] + t * series);
  }
  double base = 0, base_tail = 0, sign = 1;
  if (steep) {
    base = pi / 2;
    base_tail = pi_tail / 2;
    sign = x < 0 ? 1 : -1;
  } else if (std::signbit(x)) {
    base = pi;
    base_tail = pi_tail;
    sign = -1;
  }
  const double sum = base + sign * main;
  const double result =
      base == 0 ? main + tail : sum + ((base - sum + sign * main) + (base_tail + sign * tail));
  return std::copysign(result, y);
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL wavefft(const WaveBuffer* buffer, int32_t start, int32_t n, double* re, double* im) {
  Wave wave;
  if (!open_wave(buffer, wave)) return 1;
  if (n < 1 || start < 0) return 2;
  if (static_cast<int64_t>(start) + n > wave.count) return 3;
  const Bins bins = {reinterpret_cast<uint8_t*>(re), reinterpret_cast<uint8_t*>(im)};
  const Side<double> side(wave, start, wave.lanes);
  double room[2 * block_frames];
  for (int64_t i = 0, some; i < n; i += some) {
    some = smaller(block_frames, n - i);
    kernels<SpectrumKernels>().start({bins.re + 8 * i, bins.im + 8 * i}, side.read(i, some, room, true), some,
                                     wave.lanes == 2);
  }
  if (n >= 64 && (n & (n - 1)) == 0)
    transform_power_of_two(bins, n);
  else
    transform_any(bins, n);
  return 0;
}

int32_t TESSARO_CALL wavefft2(const WaveBuffer* buffer, int32_t start, int32_t n, double* re, double* im) {
  const int32_t result = wavefft(buffer, start, n, re, im);
  auto* a = reinterpret_cast<uint8_t*>(re);
  auto* b = reinterpret_cast<uint8_t*>(im);
  for (int64_t i = 0; i < n; ++i) {
    const double x = load<double>(a + 8 * i), y = load<double>(b + 8 * i);
    store<double>(a + 8 * i, std::sqrt(x * x + y * y));
    store<double>(b + 8 * i, arctangent(x, y));
  }
  return result;
}

}  // extern "C"
