#include "wave/samples.hpp"

#include "core/clip.hpp"
#include "core/numbers.hpp"
#include "wave/blocks.hpp"
#include "wave/stored.hpp"

using namespace tessaro;

namespace {

// Where the frame of an accessor call lies, or null outside the buffer.
uint8_t* frame_at(const void* data, int32_t index, int32_t count, int32_t channels, size_t bytes) {
  if (index < 0 || index >= count) return nullptr;
  return static_cast<uint8_t*>(const_cast<void*>(data)) +
         static_cast<ptrdiff_t>(index) * static_cast<ptrdiff_t>(bytes * (channels == 2 ? 2 : 1));
}

// Calls f with the stored form that the integer scales take for these bits.
template <class F>
void with_integer_form(int32_t bits, F f) {
  if (bits == 8)
    f(S8{});
  else if (bits == 16)
    f(S16{});
  else
    f(S24{});
}
// The float scale knows its forms and does nothing for others.
template <class F>
void with_form(int32_t bits, F f) {
  if (bits == 64)
    f(S64{});
  else if (bits == 8 || bits == 16 || bits == 24)
    with_integer_form(bits, f);
}

template <class S>
const uint8_t* right_of(const uint8_t* frame, int32_t channels) {
  return channels == 2 ? frame + S::bytes : frame;
}

// What a mixing write stores, from the new value in the stored form and the sample that is there.
int32_t mixed(S8, int32_t value, const uint8_t* at) {
  return limited(wrap_add(value, static_cast<int8_t>(*at) - 128), -128, 127);
}
int32_t mixed(S16, int32_t value, const uint8_t* at) {
  const auto sum = static_cast<int16_t>(wrap_add(value, S16::get(at)));
  return sum < -32767 ? -32767 : sum;
}
int32_t mixed(S24, int32_t value, const uint8_t* at) {
  return limited(wrap_add(value, S24::get(at)), -8388607, 8388607);
}
double mixed(S64, double value, const uint8_t* at) { return to_unit(value + S64::get(at)); }

// The new value in a stored form, of any double.
int32_t unclamped(S8, double v) { return wrap_sub(128, trunc32(v * -127)); }
int32_t unclamped(S16, double v) { return trunc32(v * 32767); }
int32_t unclamped(S24, double v) { return trunc32(v * 8388607); }
double unclamped(S64, double v) { return v; }
int32_t mean(int32_t a, int32_t b) { return halved(a, b); }
double mean(double a, double b) { return (a + b) * 0.5; }

}  // namespace

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

void AddWave64(void* data, int32_t index, int32_t bits, int32_t channels, int32_t count, double left,
               double right) {
  with_form(bits, [=]<class S>(S form) {
    uint8_t* at = frame_at(data, index, count, channels, S::bytes);
    if (!at) return;
    const auto l = unclamped(form, left), r = unclamped(form, right);
    if (channels == 2) {
      S::put(at, mixed(form, l, at));
      S::put(at + S::bytes, mixed(form, r, at + S::bytes));
    } else {
      S::put(at, mixed(form, mean(l, r), at));
    }
  });
}

}  // namespace tessaro

extern "C" {

int32_t TESSARO_CALL GetWave(const void* data, int32_t index, int32_t bits, int32_t channels, int32_t count,
                             int32_t* left, int32_t* right) {
  with_integer_form(bits, [=]<class S>(S) {
    const uint8_t* at = frame_at(data, index, count, channels, S::bytes);
    store<int32_t>(left, at ? S::to16(S::get(at)) : 0);
    store<int32_t>(right, at ? S::to16(S::get(right_of<S>(at, channels))) : 0);
  });
  return 0;
}

int32_t TESSARO_CALL LetWave(void* data, int32_t index, int32_t bits, int32_t channels, int32_t count,
                             int32_t left, int32_t right) {
  with_integer_form(bits, [=]<class S>(S) {
    uint8_t* at = frame_at(data, index, count, channels, S::bytes);
    if (!at) return;
    S::put(at, channels == 2 ? S::from16(left) : S::mean16(left, right));
    if (channels == 2) S::put(at + S::bytes, S::from16(right));
  });
  return 0;
}

int32_t TESSARO_CALL GetWave24(const void* data, int32_t index, int32_t bits, int32_t channels, int32_t count,
                               int32_t* left, int32_t* right) {
  with_integer_form(bits, [=]<class S>(S) {
    const uint8_t* at = frame_at(data, index, count, channels, S::bytes);
    store<int32_t>(left, at ? S::to24(S::get(at)) : 0);
    store<int32_t>(right, at ? S::to24(S::get(right_of<S>(at, channels))) : 0);
  });
  return 0;
}

int32_t TESSARO_CALL LetWave24(void* data, int32_t index, int32_t bits, int32_t channels, int32_t count,
                               int32_t left, int32_t right) {
  with_integer_form(bits, [=]<class S>(S) {
    uint8_t* at = frame_at(data, index, count, channels, S::bytes);
    if (!at) return;
    S::put(at, channels == 2 ? S::from24(left) : S::mean24(left, right));
    if (channels == 2) S::put(at + S::bytes, S::from24(right));
  });
  return 0;
}

int32_t TESSARO_CALL GetWave64(const void* data, int32_t index, int32_t bits, int32_t channels, int32_t count,
                               double* left, double* right) {
  if (index < 0 || index >= count) {
    store<double>(left, 0.0);
    store<double>(right, 0.0);
    return 0;
  }
  with_form(bits, [=]<class S>(S) {
    const uint8_t* at = frame_at(data, index, count, channels, S::bytes);
    store<double>(left, S::to64(S::get(at)));
    store<double>(right, S::to64(S::get(right_of<S>(at, channels))));
  });
  return 0;
}

int32_t TESSARO_CALL LetWave64(void* data, int32_t index, int32_t bits, int32_t channels, int32_t count,
                               double left, double right) {
  with_form(bits, [=]<class S>(S) {
    uint8_t* at = frame_at(data, index, count, channels, S::bytes);
    if (!at) return;
    const double l = to_unit(left), r = to_unit(right);
    S::put(at, channels == 2 ? S::from64(l) : S::mean64(l, r));
    if (channels == 2) S::put(at + S::bytes, S::from64(r));
  });
  return 0;
}

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
