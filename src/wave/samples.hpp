// Wave buffers as the operations see them: opened once per call, read and written in blocks of frames at one
// of three working scales.
//
//   16-bit scale   int16_t: every operation at this scale saturates, so that 16 bits hold what it hands on
//   24-bit scale   int32_t
//   float scale    double
//
// A block has one lane a frame where source and destination are both mono, otherwise two.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "simd/dispatch.hpp"
#include "tessaro/tessaro.h"

namespace tessaro {

// The forms a sample is stored in.
enum Stored : uint8_t { stored8, stored16, stored24, stored64 };
inline constexpr size_t stored_bytes[] = {1, 2, 3, 8};
inline constexpr size_t values24 = 3;  // in tables of the 24-bit scale: values as blocks hold them

struct Wave {
  uint8_t* data;
  int64_t count;  // frames; 0 for a buffer whose record holds a negative count
  Stored stored;
  int lanes;  // channels

  size_t frame_bytes() const { return stored_bytes[stored] * static_cast<size_t>(lanes); }
  size_t bytes() const { return static_cast<size_t>(count) * frame_bytes(); }
  void silence(uint8_t* to, int64_t frames) const {
    std::memset(to, stored == stored8 ? 128 : 0, static_cast<size_t>(frames) * frame_bytes());
  }
  uint8_t* at(int64_t frame) const {
    return data + static_cast<ptrdiff_t>(frame) * static_cast<ptrdiff_t>(frame_bytes());
  }
  // Where a frame lies or, outside the buffer, would lie.
  int64_t address(int64_t frame) const {
    return static_cast<int64_t>(reinterpret_cast<uintptr_t>(data)) +
           frame * static_cast<int64_t>(frame_bytes());
  }
};

// False when a field of the record's format code is invalid.
bool open_wave(const WaveBuffer* record, Wave& wave);

// Integer codes times a gain, truncated, in one multiplication: by `gain`, or for a magnitude a of 16 bits or
// less a * (whole + (high + low / 65536) / 65536); from `most` on the product is beyond the highest code.
struct Multiplier {
  double gain;
  uint16_t whole, high, low, most;
};

// Samples n at a time; tables are indexed by Stored. The integer scales take doubles for packed 24-bit
// samples. out is memory of its own except where said; in and out of the host's memory have no alignment.
struct SampleKernels {
  void (*to16[3])(int16_t* out, const uint8_t* in, size_t n);
  void (*to24[3])(int32_t* out, const uint8_t* in, size_t n);
  void (*to64[4])(double* out, const uint8_t* in, size_t n);
  void (*from16[3])(uint8_t* out, const int16_t* in, size_t n);
  void (*from24[3])(uint8_t* out, const int32_t* in, size_t n);
  // Pairs of a stereo block to mono samples.
  void (*mean16[3])(uint8_t* out, const int16_t* pairs, size_t n);
  void (*mean24[3])(uint8_t* out, const int32_t* pairs, size_t n);
  void (*mean64[4])(uint8_t* out, const double* pairs, size_t n, double gain);
  // One form, the second index, to another at the float scale: clamps in * gain, which for integers is at
  // most 100; out may be in.
  void (*scale64[4][4])(uint8_t* out, const uint8_t* in, size_t n, double gain);
  // The same within one form of integers, for a gain that has a multiplier and for 1.
  void (*times64[3])(uint8_t* out, const uint8_t* in, size_t n, const Multiplier& multiplier);
  void (*unit64[3])(uint8_t* out, const uint8_t* in, size_t n);
  // Mono samples to pairs.
  void (*pair16)(int16_t* pairs, const int16_t* in, size_t n);
  void (*pair24)(int32_t* pairs, const int32_t* in, size_t n);
  void (*pair64)(double* pairs, const double* in, size_t n);
  // d = f(d, s) within one form, at the 16-bit scale and saturated there; d may be s.
  using Operation = void (*)(uint8_t* d, const uint8_t* s, size_t n, int32_t gain);
  Operation copy16[3];  // s
  Operation add16[3];   // d + ((s * gain) >> 8)
  Operation sub16[3];   // d - ((s * gain) >> 8)
  Operation mul16[3];   // (|s| * d) >> 15
  Operation xor16[3];   // d ^ s
  Operation gain24[4];  // (s * gain) >> 6 at the 24-bit scale; the last for a block's values
  // s + (((noise modulo 65536 - 32768) * amount) >> 8)
  void (*noise16)(int16_t* d, const int16_t* s, size_t n, const uint32_t* noise, int32_t amount);
  void (*tone16)(int16_t* d, const int16_t* s, size_t frames, size_t lanes, const int32_t* tone);
  // The moving average. running16: the first frame of sums is the running sum before the first frame of in,
  // those of the last `span` frames lie in front of it; leaves the sums of all frames behind. mean_of_span:
  // (ahead - behind) / span, truncated.
  void (*running16)(int32_t* sums, const int16_t* in, size_t frames, size_t lanes);
  void (*mean_of_span)(int16_t* out, const int32_t* ahead, const int32_t* behind, size_t n, int32_t span);
};
TESSARO_DECLARE_KERNELS(SampleKernels);

}  // namespace tessaro
