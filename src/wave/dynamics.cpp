#include "frame/clip.hpp"
#include "frame/numbers.hpp"
#include "wave/blocks.hpp"
#include "wave/ramp.hpp"

using namespace tessaro;

namespace {

// The most that a channel may be raised, from the highest of the bits 20 to 22 that its samples have.
double limit24(uint32_t bits) {
  return bits & 0x400000 ? 1.0 : bits & 0x200000 ? 2.0 : bits & 0x100000 ? 4.0 : 8.0;
}

double limit64(double peak) {
  static constexpr struct {
    double from, limit;
  } rows[] = {{0.06249, 14}, {0.07142, 12}, {0.08333, 10}, {0.09999, 8}, {0.1249, 6},   {0.1666, 4},
              {0.249, 2},    {0.49, 1},     {0.99, 0.5},   {1.99, 0.25}, {3.99, 0.125}, {7.99, 0}};
  double limit = 16;
  for (const auto& row : rows)
    if (peak >= row.from) limit = row.limit;
  return limit;
}

// Not-a-number counts as too low.
double limited(double v, double low, double high) {
  if (!(v >= low)) return low;
  return v > high ? high : v;
}

// Calls see(values, n) for the frames that lie inside the buffer.
template <class T, class See>
void look(const Side<T>& side, int64_t count, See see) {
  T room[2 * block_frames];
  const int64_t last = side.last_inside(count);
  for (int64_t i = side.first_inside(), n; i < last; i += n) {
    n = smaller(block_frames, last - i);
    see(side.read(i, n, room, true), static_cast<size_t>(n));
  }
}

void advance(int32_t* position, int32_t count) {
  store<int32_t>(position, wrap_add(load<int32_t>(position), count));
}

// Two gains that grow by an equal step after every frame, from one value to another over count frames.
struct Ramp {
  double gain[2], step[2];
  int64_t reached = 0;
  Ramp(const double from[2], const double to[2], int32_t count) {
    for (int lane = 0; lane < 2; ++lane) {
      gain[lane] = from[lane];
      step[lane] = (to[lane] - from[lane]) / count;
    }
  }
  void skip_to(int64_t i) {
    for (int lane = 0; lane < 2; ++lane) gain[lane] = added_up(gain[lane], step[lane], i - reached);
    reached = i;
  }
};

}  // namespace

extern "C" {

int32_t TESSARO_CALL waveEffectMaximizer24(const WaveBuffer* buffer, int32_t* look_position,
                                           int32_t* write_position, int32_t count, double growth,
                                           double* left_gain, double* right_gain) {
  Wave wave;
  if (!open_wave(buffer, wave) || count < 1) return status_nothing;
  growth = limited(growth, 1.0001, 1.7);
  const SampleKernels& k = kernels<SampleKernels>();

  uint32_t bits[2] = {};
  look(Side<int32_t>(wave, load<int32_t>(look_position), 2), count,
       [&](const int32_t* in, size_t n) { k.peaks24(in, n, bits); });
  advance(look_position, count);

  const double before[2] = {load<double>(left_gain), load<double>(right_gain)};
  double after[2];
  for (int lane = 0; lane < 2; ++lane) {
    double gain = before[lane] * growth;
    if (gain < 1.0) gain = 1.0;
    const double limit = limit24(bits[lane]);
    after[lane] = gain > limit ? limit : gain;
  }
  store<double>(left_gain, after[0]);
  store<double>(right_gain, after[1]);

  Ramp ramp(before, after, count);
  const Side<int32_t> side(wave, load<int32_t>(write_position), 2);
  transform(side, side, count, false, [&](int32_t* out, const int32_t* in, int64_t i, int64_t n) {
    ramp.skip_to(i);
    k.ramp24(out, in, static_cast<size_t>(n), ramp.gain, ramp.step);
    ramp.reached = i + n;
  });
  advance(write_position, count);
  return status_done;
}

int32_t TESSARO_CALL waveEffectMaximizer64(const WaveBuffer* dst, const WaveBuffer* src,
                                           int32_t* look_position, int32_t* write_position, int32_t count,
                                           double step, double* left_state, double* right_state) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from) || count < 1) return status_nothing;
  step = limited(step, 0.0, 9.9);
  const SampleKernels& k = kernels<SampleKernels>();

  double low[2] = {}, high[2] = {};
  look(Side<double>(from, load<int32_t>(look_position), 2), count,
       [&](const double* in, size_t n) { k.peaks64(in, n, low, high); });
  advance(look_position, count);

  const double state[2] = {load<double>(left_state), load<double>(right_state)};
  double before[2], after[2], grown[2];
  for (int lane = 0; lane < 2; ++lane) {
    before[lane] = state[lane] + 16;
    const double cap = limit64(high[lane] > -low[lane] ? high[lane] : -low[lane]) - 16;
    grown[lane] = state[lane] + step;
    if (grown[lane] < -15.0) grown[lane] = -15.0;
    if (grown[lane] > cap) grown[lane] = cap;
    after[lane] = grown[lane] + 16;
  }
  store<double>(left_state, grown[0]);
  store<double>(right_state, grown[1]);

  Ramp ramp(before, after, count);
  const int32_t position = load<int32_t>(write_position);
  transform(Side<double>(to, position, 2), Side<double>(from, position, 2), count, false,
            [&](double* out, const double* in, int64_t i, int64_t n) {
              ramp.skip_to(i);
              k.ramp64(out, in, static_cast<size_t>(n), ramp.gain, ramp.step);
              ramp.reached = i + n;
            });
  advance(write_position, count);
  return status_done;
}

int32_t TESSARO_CALL waveNormal(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                int32_t src_start, int32_t count, float target) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from)) return status_nothing;
  // The level is never measured: the divisor is the greatest of 0.01 and two values that are at most 0.
  const double gain = limited(static_cast<double>(target), 0.0, 1.0) / 0.01;
  const int lanes = lanes_of(to, from);
  const Side<double> out(to, dst_start, lanes);
  each_block(out, Side<double>(from, src_start, lanes), count,
             [&](int64_t i, int64_t n, const double* in) { out.write(i, n, in, gain); });
  return status_done;
}

}  // extern "C"
