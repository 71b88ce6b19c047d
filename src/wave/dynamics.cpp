// Gains that follow how loud the material is.
#include "wave/dynamics.hpp"

#include "core/clip.hpp"
#include "core/numbers.hpp"
#include "wave/blocks.hpp"
#include "wave/ramp.hpp"
#include "wave/scale.hpp"
#include "wave/stored.hpp"

using namespace tessaro;

namespace {

// The most that a channel may be raised, from its highest code in 24 bits.
double limit24(int32_t peak) {
  return peak >= 0x400000 ? 1.0 : peak >= 0x200000 ? 2.0 : peak >= 0x100000 ? 4.0 : 8.0;
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

// Calls see(samples, n) for the stored samples of the run that lie inside the buffer. Silence changes no
// peak.
template <class T, class See>
void look(const Side<T>& side, int64_t count, See see) {
  const int64_t first = side.first_inside(), last = side.last_inside(count);
  if (first < last) see(side.bytes_at(first), static_cast<size_t>((last - first) * side.channels()));
}

// The greatest magnitude of each channel; of a mono buffer's samples for both.
template <class T>
void peaks(const T low[2], const T high[2], int channels, T peak[2]) {
  for (int lane = 0; lane < 2; ++lane) peak[lane] = high[lane] > -low[lane] ? high[lane] : -low[lane];
  if (channels == 1) peak[0] = peak[1] = peak[0] > peak[1] ? peak[0] : peak[1];
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
  bool level() const { return gain[0] == gain[1] && step[0] == 0 && step[1] == 0; }
  void skip_to(int64_t i) {
    for (int lane = 0; lane < 2; ++lane) gain[lane] = added_up(gain[lane], step[lane], i - reached);
    reached = i;
  }
};

// Destination frames = source frames times the ramp. Blocks have the kernel at `values`.
template <class T>
void raise(const Side<T>& dst, const Side<T>& src, int32_t count, Ramp ramp,
           const DynamicsKernels::Ramp kernels_of[4], size_t values) {
  const auto run = [&](size_t form, uint8_t* out, const uint8_t* in, int64_t i, size_t frames) {
    ramp.skip_to(i);
    kernels_of[form](out, in, frames, ramp.gain, ramp.step);
    ramp.reached = i + static_cast<int64_t>(frames);
  };
  if (dst.channels() == 2 && dst.same_layout(src)) {
    int64_t i = larger(dst.first_inside(), 0);
    transform_stored(dst, src, count, [&](uint8_t* out, const uint8_t* in, size_t n) {
      for (size_t done = 0, some; done < n / 2; done += some) {
        some = n / 2 - done < block_frames ? n / 2 - done : static_cast<size_t>(block_frames);
        const size_t at = 2 * done * stored_bytes[dst.stored()];
        run(dst.stored(), out + at, in + at, i, some);
        i += static_cast<int64_t>(some);
      }
    });
    return;
  }
  transform(dst, src, count, false, [&](T* out, const T* in, int64_t i, int64_t n) {
    run(values, reinterpret_cast<uint8_t*>(out), reinterpret_cast<const uint8_t*>(in), i,
        static_cast<size_t>(n));
  });
}

// What the float scale makes of a stored integer.
double real_of(Stored stored, int32_t code) {
  return stored == stored8 ? S8::to64(code) : stored == stored16 ? S16::to64(code) : S24::to64(code);
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL waveEffectMaximizer24(const WaveBuffer* buffer, int32_t* look_position,
                                           int32_t* write_position, int32_t count, double growth,
                                           double* left_gain, double* right_gain) {
  Wave wave;
  if (!open_wave(buffer, wave) || count < 1) return status_nothing;
  growth = clamped(growth, 1.0001, 1.7);
  const DynamicsKernels& k = kernels<DynamicsKernels>();

  const Side<int32_t> seen(wave, load<int32_t>(look_position), 2);
  int32_t low[2] = {}, high[2] = {}, peak[2];
  look(seen, count, [&](const uint8_t* in, size_t n) { k.extremes[seen.stored()](in, n, low, high); });
  peaks(low, high, wave.lanes, peak);
  advance(look_position, count);

  const double before[2] = {load<double>(left_gain), load<double>(right_gain)};
  double after[2];
  for (int lane = 0; lane < 2; ++lane) {
    double gain = before[lane] * growth;
    if (gain < 1.0) gain = 1.0;
    const double limit = limit24(peak[lane] << (24 - 8 * static_cast<int>(stored_bytes[seen.stored()])));
    after[lane] = gain > limit ? limit : gain;
  }
  store<double>(left_gain, after[0]);
  store<double>(right_gain, after[1]);

  // Loud material stays at a gain of 1, which changes nothing.
  const Ramp ramp(before, after, count);
  const Side<int32_t> side(wave, load<int32_t>(write_position), 2);
  if (!ramp.level() || before[0] != 1.0) raise(side, side, count, ramp, k.ramp24, values24);
  advance(write_position, count);
  return status_done;
}

int32_t TESSARO_CALL waveEffectMaximizer64(const WaveBuffer* dst, const WaveBuffer* src,
                                           int32_t* look_position, int32_t* write_position, int32_t count,
                                           double step, double* left_state, double* right_state) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from) || count < 1) return status_nothing;
  step = clamped(step, 0.0, 9.9);
  const DynamicsKernels& k = kernels<DynamicsKernels>();

  const Side<double> seen(from, load<int32_t>(look_position), 2);
  double low[2] = {}, high[2] = {}, peak[2];
  look(seen, count, [&](const uint8_t* in, size_t n) {
    if (from.stored == stored64) return k.extremes64(in, n, low, high);
    int32_t lowest[2] = {}, highest[2] = {};
    k.extremes[from.stored](in, n, lowest, highest);
    for (int lane = 0; lane < 2; ++lane) {
      low[lane] = real_of(from.stored, lowest[lane]);
      high[lane] = real_of(from.stored, highest[lane]);
    }
  });
  peaks(low, high, from.lanes, peak);
  advance(look_position, count);

  const double state[2] = {load<double>(left_state), load<double>(right_state)};
  double before[2], after[2], grown[2];
  for (int lane = 0; lane < 2; ++lane) {
    before[lane] = state[lane] + 16;
    const double cap = limit64(peak[lane]) - 16;
    grown[lane] = state[lane] + step;
    if (grown[lane] < -15.0) grown[lane] = -15.0;
    if (grown[lane] > cap) grown[lane] = cap;
    after[lane] = grown[lane] + 16;
  }
  store<double>(left_state, grown[0]);
  store<double>(right_state, grown[1]);

  const Ramp ramp(before, after, count);
  const int32_t position = load<int32_t>(write_position);
  if (ramp.level())
    scale(to, from, position, position, count, before[0]);
  else
    raise(Side<double>(to, position, 2), Side<double>(from, position, 2), count, ramp, k.ramp64, stored64);
  advance(write_position, count);
  return status_done;
}

int32_t TESSARO_CALL waveNormal(const WaveBuffer* dst, const WaveBuffer* src, int32_t dst_start,
                                int32_t src_start, int32_t count, float target) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from)) return status_nothing;
  // The level is never measured: the divisor is the greatest of 0.01 and two values that are at most 0.
  const double gain = clamped(static_cast<double>(target), 0.0, 1.0) / 0.01;
  scale(to, from, dst_start, src_start, count, gain);
  return status_done;
}

}  // extern "C"
