// A buffer's format: its code, and buffers converted from one to another.
#include "core/clip.hpp"
#include "core/numbers.hpp"
#include "wave/blocks.hpp"

using namespace tessaro;

namespace tessaro {

bool open_wave(const WaveBuffer* at, Wave& wave) {
  const auto record = load<WaveBuffer>(at);
  const int32_t channels = record.format & 7, bits = record.format & 248, rate = record.format >> 8;
  if (channels != 1 && channels != 2) return false;
  if (rate < 1000 || rate > 441000) return false;
  switch (bits) {
    case 8:
      wave.stored = stored8;
      break;
    case 16:
      wave.stored = stored16;
      break;
    case 24:
      wave.stored = stored24;
      break;
    case 64:
      wave.stored = stored64;
      break;
    default:
      return false;
  }
  wave.data = static_cast<uint8_t*>(record.data);
  wave.count = record.count < 0 ? 0 : record.count;
  wave.lanes = channels;
  return true;
}

}  // namespace tessaro

extern "C" {

int32_t TESSARO_CALL waveFormatEnc(int32_t bits, int32_t channels, int32_t rate) {
  if (bits != 8 && bits != 16 && bits != 24 && bits != 64) return 0;
  if (channels != 1 && channels != 2) return 0;
  return wrap_add(wrap_mul(rate, 256), bits + channels);
}

int32_t TESSARO_CALL waveFormat(const WaveBuffer* dst, const WaveBuffer* src) {
  Wave to, from;
  if (!open_wave(dst, to) || !open_wave(src, from)) return status_nothing;
  const int lanes = lanes_of(to, from);
  const Side<int16_t> out(to, 0, lanes), in(from, 0, lanes);
  if (!out.same_layout(in))
    copy(out, in, to.count);
  else if (out.stored() == stored24)
    transform_stored(out, in, to.count, [](uint8_t* d, const uint8_t* s, size_t n) {
      kernels<SampleKernels>().copy16[stored24](d, s, n, 0);
    });
  else
    copy_bytes(out, in, to.count);
  return status_done;
}

}  // extern "C"
