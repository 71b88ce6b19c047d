// The reverb: frames are sent to taps in a ring of the host's, which is read a little ahead of them.
#include "wave/reverb.hpp"

#include <cstring>

#include "core/clip.hpp"
#include "core/heap.hpp"
#include "core/numbers.hpp"
#include "wave/blocks.hpp"

using namespace tessaro;

namespace {

// The ring is read this far ahead of where it is cleared.
constexpr int64_t read_ahead = 199;
constexpr double wet_level = 0.005;

void clear_frames(uint8_t* ring, int64_t position, int64_t n) {
  std::memset(ring + 16 * position, 0, static_cast<size_t>(16 * n));
}

// The echoes of several frames can be added tap by tap: the taps begin behind what the frames read and clear,
// keep the distance that the kernel asks for, and end before the ring has gone round.
bool well_spaced(double place, const Taps& taps) {
  if (place < read_ahead + echo_frames) return false;
  for (size_t t = 0; t + 1 < taps.count; place += taps.step[t++])
    if (!(taps.step[t] >= 3)) return false;
  return place < ring_frames - 4;
}

}  // namespace

extern "C" int32_t TESSARO_CALL waveEffectReverbA1(const WaveBuffer* buffer, int32_t* frame_position,
                                                   const WaveBuffer* ring, int32_t* ring_position,
                                                   int32_t count, double level, int32_t predelay,
                                                   int32_t spread, int32_t taps, const double* tap_table) {
  Wave wave, echoes;
  if (count < 1 || load<WaveBuffer>(ring).count < ring_frames) return status_nothing;
  if (!open_wave(buffer, wave) || load<WaveBuffer>(buffer).count == 0) return status_nothing;
  if (!open_wave(ring, echoes) || echoes.stored != stored64) return status_nothing;
  level = clamped(level, 0.0, 99.99);
  predelay = clamped(predelay, 10, 88200);
  spread = clamped(spread, 1, 44100);
  taps = clamped(taps, 1, static_cast<int32_t>(most_taps));

  const auto* table = reinterpret_cast<const uint8_t*>(tap_table);
  const double send = level * 0.5;
  // Up to 80 KB, which not every thread of a host has on its stack.
  HeapArray<double> step(static_cast<size_t>(taps));
  if (!step) return status_nothing;
  const Taps all = {table, table + 8 * most_taps, step.data(), static_cast<size_t>(taps)};
  for (size_t t = 0; t < all.count; ++t) step[t] = spread * load<double>(table + 8 * (2 * most_taps + t));
  const ReverbKernels& kernel = kernels<ReverbKernels>();

  const int64_t start = load<int32_t>(frame_position), origin = load<int32_t>(ring_position);
  const Side<double> side(wave, start, 2);
  // Frames outside the buffer are silent and go nowhere: all they do is clear the ring, at most once around.
  const auto pass = [&](int64_t i, int64_t last) {
    for (last = smaller(last, i + ring_frames); i < last; ++i)
      clear_frames(echoes.data, (origin + i) & ring_mask, 1);
  };
  const int64_t first = smaller(side.first_inside(), count), last = larger(side.last_inside(count), first);
  constexpr size_t ring_bytes = 16 * ring_frames, table_bytes = 24 * most_taps;
  const uint8_t* sound = side.bytes_at(first);
  const auto sound_bytes = static_cast<size_t>((last - first) * side.frame_bytes());
  const bool by_taps = kernel.scatter_block != nullptr && well_spaced(predelay, all) &&
                       !share_memory(echoes.data, ring_bytes, table, table_bytes) &&
                       !share_memory(echoes.data, ring_bytes, sound, sound_bytes) &&
                       !share_memory(table, table_bytes, sound, sound_bytes);
  pass(0, first);
  for (int64_t i = first, n; i < last; i += n) {
    const int64_t position = (origin + i) & ring_mask;
    n = smaller(by_taps ? echo_frames : 1, smaller(last - i, ring_frames - position));
    double dry[2 * echo_frames], out[2 * echo_frames], echo[echo_frames] = {};
    bool heard = false;
    side.read(i, n, dry);
    for (int64_t j = 0; j < n; ++j) {
      double wet[2];
      std::memcpy(wet, echoes.data + 16 * ((position + j + read_ahead) & ring_mask), sizeof wet);
      for (int64_t lane = 0; lane < 2; ++lane) out[2 * j + lane] = dry[2 * j + lane] + wet[lane] * wet_level;
      const double sent = (dry[2 * j] + dry[2 * j + 1]) * send;
      if (sent < 0 || sent > 0) {
        echo[j] = sent;
        heard = true;
      }
    }
    side.write(i, n, out);
    clear_frames(echoes.data, position, n);
    if (!heard) continue;
    const auto place = static_cast<double>(position + predelay);
    if (by_taps)
      kernel.scatter_block(echoes.data, place, echo, all);
    else
      kernel.scatter(echoes.data, place, echo[0], all);
  }
  pass(last, count);
  store<int32_t>(frame_position, wrap32(start + count));
  store<int32_t>(ring_position, static_cast<int32_t>((origin + count) & ring_mask));
  return status_done;
}
