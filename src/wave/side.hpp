// A run of frames of a buffer as values at a working scale, or as they are stored.
#pragma once

#include <cstring>

#include "wave/samples.hpp"

namespace tessaro {

inline constexpr int64_t block_frames = 512;

inline constexpr int64_t smaller(int64_t a, int64_t b) { return a < b ? a : b; }
inline constexpr int64_t larger(int64_t a, int64_t b) { return a > b ? a : b; }

// Frames start, start + 1, ... of a buffer, in blocks of values of T, which stands for the scale.
template <class T>
class Side {
 public:
  Side(const Wave& wave, int64_t start, int lanes) : wave_(wave), start_(start), lanes_(lanes) {
    if (sizeof(T) < sizeof(double) && wave_.stored == stored64) wave_.stored = stored24;
  }
  int lanes() const { return lanes_; }
  int64_t address(int64_t i) const { return wave_.address(start_ + i); }
  int64_t frame_bytes() const { return static_cast<int64_t>(wave_.frame_bytes()); }
  // The frames of the run 0..count - 1 that lie inside the buffer.
  int64_t first_inside() const { return larger(0, -start_); }
  int64_t last_inside(int64_t count) const { return smaller(count, wave_.count - start_); }

  // Frames i..i + n - 1 as values: those outside the buffer are 0. They are put into room unless the buffer
  // itself holds them as values and the caller can do with them in place.
  const T* read(int64_t i, int64_t n, T* room, bool in_place = false) const {
    const int64_t at = start_ + i;
    if (in_place && direct() && at >= 0 && at + n <= wave_.count)
      return reinterpret_cast<const T*>(wave_.at(at));
    const int64_t from = smaller(larger(-at, 0), n), to = larger(smaller(wave_.count - at, n), from);
    std::memset(room, 0, bytes(from));
    if (to > from) convert(room + from * lanes_, at + from, to - from);
    std::memset(room + to * lanes_, 0, bytes(n - to));
    return room;
  }
  // Writes frames i..i + n - 1, all inside the buffer. values may be where place() pointed: then they are
  // there.
  void write(int64_t i, int64_t n, const T* values, [[maybe_unused]] double gain = 1.0) const {
    uint8_t* at = wave_.at(start_ + i);
    const size_t count = static_cast<size_t>(n), samples = static_cast<size_t>(n * lanes_);
    const SampleKernels& k = kernels<SampleKernels>();
    if (sizeof(T) == 2 && direct() && reinterpret_cast<const uint8_t*>(values) == at) return;
    const bool same = wave_.lanes == lanes_;
    if constexpr (sizeof(T) == 2)
      same ? k.from16[wave_.stored](at, values, samples) : k.mean16[wave_.stored](at, values, count);
    else if constexpr (sizeof(T) == 4)
      same ? k.from24[wave_.stored](at, values, samples) : k.mean24[wave_.stored](at, values, count);
    else
      same ? k.scale64[wave_.stored][stored64](at, reinterpret_cast<const uint8_t*>(values), samples, gain)
           : k.mean64[wave_.stored](at, values, count, gain);
  }
  // Where an operation may put the values of frames i.. before write(): in the buffer itself if values are
  // stored as they are, which at the 16-bit scale they can be.
  T* place(int64_t i, T* room) const {
    return sizeof(T) == 2 && direct() ? reinterpret_cast<T*>(wave_.at(start_ + i)) : room;
  }
  uint8_t* bytes_at(int64_t i) const { return wave_.at(start_ + i); }
  Stored stored() const { return wave_.stored; }
  int channels() const { return wave_.lanes; }
  bool same_layout(const Side& other) const {
    return wave_.stored == other.wave_.stored && wave_.lanes == other.wave_.lanes;
  }
  // Frames i..i + n - 1 as they are stored, or silence; n may become less, so that it is one of the two.
  // Silence, and where `apart`, is put into room.
  const uint8_t* samples(int64_t i, int64_t& n, bool apart, uint8_t* room) const {
    const int64_t at = start_ + i;
    const bool inside = at >= 0 && at < wave_.count;
    n = smaller(n, inside ? wave_.count - at : at < 0 ? smaller(-at, block_frames) : block_frames);
    if (inside && !apart) return wave_.at(at);
    if (inside)
      std::memcpy(room, wave_.at(at), static_cast<size_t>(n) * wave_.frame_bytes());
    else
      wave_.silence(room, n);
    return room;
  }

 private:
  bool direct() const {
    return wave_.lanes == lanes_ &&
           ((sizeof(T) == 2 && wave_.stored == stored16) || (sizeof(T) == 8 && wave_.stored == stored64));
  }
  size_t bytes(int64_t frames) const { return static_cast<size_t>(frames * lanes_) * sizeof(T); }
  void convert(T* out, int64_t at, int64_t n) const {
    const SampleKernels& k = kernels<SampleKernels>();
    T mono[block_frames];
    const bool same = wave_.lanes == lanes_;
    T* samples = same ? out : mono;
    const size_t count = static_cast<size_t>(n);
    const size_t total = count * static_cast<size_t>(wave_.lanes);
    if constexpr (sizeof(T) == 2) {
      k.to16[wave_.stored](samples, wave_.at(at), total);
      if (!same) k.pair16(out, mono, count);
    } else if constexpr (sizeof(T) == 4) {
      k.to24[wave_.stored](samples, wave_.at(at), total);
      if (!same) k.pair24(out, mono, count);
    } else {
      k.to64[wave_.stored](samples, wave_.at(at), total);
      if (!same) k.pair64(out, mono, count);
    }
  }

  Wave wave_;
  int64_t start_;
  int lanes_;
};

}  // namespace tessaro
