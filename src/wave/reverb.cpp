#include "wave/reverb.hpp"

#include <cstring>

#include "frame/clip.hpp"
#include "frame/numbers.hpp"
#include "wave/blocks.hpp"

using namespace tessaro;

namespace {

constexpr int32_t most_taps = 10000;  // and the length of each of the table's three blocks
// The ring is read this far ahead of where it is cleared.
constexpr int64_t read_ahead = 199;
constexpr double wet_level = 0.005;

int32_t limited(int32_t v, int32_t low, int32_t high) { return v < low ? low : v > high ? high : v; }

void clear_frame(uint8_t* ring, int64_t position) { std::memset(ring + 16 * position, 0, 16); }

}  // namespace

extern "C" int32_t TESSARO_CALL waveEffectReverbA1(const WaveBuffer* buffer, int32_t* frame_position,
                                                   const WaveBuffer* ring, int32_t* ring_position,
                                                   int32_t count, double level, int32_t predelay,
                                                   int32_t spread, int32_t taps, const double* tap_table) {
  Wave wave, echoes;
  if (count < 1 || ring->count < ring_frames) return status_nothing;
  if (!open_wave(buffer, wave) || buffer->count == 0) return status_nothing;
  if (!open_wave(ring, echoes) || echoes.stored != stored64) return status_nothing;
  if (!(level > 0.0)) level = 0.0;
  if (level > 99.99) level = 99.99;
  predelay = limited(predelay, 10, 88200);
  spread = limited(spread, 1, 44100);
  taps = limited(taps, 1, most_taps);

  const auto* table = reinterpret_cast<const uint8_t*>(tap_table);
  const double send = level * 0.5;
  double step[most_taps];
  for (int32_t t = 0; t < taps; ++t)
    step[t] = spread * load<double>(table + 8 * static_cast<size_t>(2 * most_taps + t));
  const Taps all = {table, table + 8 * most_taps, step, static_cast<size_t>(taps)};
  const auto scatter = kernels<ReverbKernels>().scatter;

  const int64_t start = load<int32_t>(frame_position), origin = load<int32_t>(ring_position);
  const Side<double> side(wave, start, 2);
  // Frames outside the buffer are silent and go nowhere: all they do is clear the ring, at most once around.
  const auto pass = [&](int64_t i, int64_t last) {
    for (last = smaller(last, i + ring_frames); i < last; ++i)
      clear_frame(echoes.data, (origin + i) & ring_mask);
  };
  const int64_t first = smaller(side.first_inside(), count), last = larger(side.last_inside(count), first);
  pass(0, first);
  for (int64_t i = first; i < last; ++i) {
    const int64_t position = (origin + i) & ring_mask;
    double dry[2], wet[2], out[2];
    side.read(i, 1, dry);
    std::memcpy(wet, echoes.data + 16 * ((position + read_ahead) & ring_mask), sizeof wet);
    for (int lane = 0; lane < 2; ++lane) out[lane] = dry[lane] + wet[lane] * wet_level;
    side.write(i, 1, out);
    clear_frame(echoes.data, position);
    const double echo = (dry[0] + dry[1]) * send;
    if (echo < 0 || echo > 0) scatter(echoes.data, static_cast<double>(position + predelay), echo, all);
  }
  pass(last, count);
  store<int32_t>(frame_position, wrap32(start + count));
  store<int32_t>(ring_position, static_cast<int32_t>((origin + count) & ring_mask));
  return status_done;
}
