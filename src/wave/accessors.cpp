// Single frames read and written at each working scale, from the fields of a buffer rather than its record.
#include "core/clip.hpp"
#include "wave/samples.hpp"
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

}  // namespace

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

}  // extern "C"
