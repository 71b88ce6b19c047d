// Images for tests: a record with guard bytes around it, any pitch and alignment, and the back ends to run
// on.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/image.hpp"
#include "simd/dispatch.hpp"
#include "tessaro/tessaro.h"

namespace tessaro::test {

// A generator that likes the values at which rules turn.
class Random {
 public:
  explicit Random(uint32_t seed) : engine_(seed) {}
  uint32_t word() { return static_cast<uint32_t>(engine_()); }
  int32_t between(int32_t low, int32_t high) {
    return low + static_cast<int32_t>(word() % static_cast<uint32_t>(high - low + 1));
  }
  uint8_t byte() {
    const uint32_t v = word();
    return v & 0x300 ? static_cast<uint8_t>(v) : v & 0x400 ? uint8_t{255} : uint8_t{0};
  }
  uint32_t pixel() {
    return static_cast<uint32_t>(byte() | byte() << 8 | byte() << 16) | static_cast<uint32_t>(byte()) << 24;
  }

 private:
  std::mt19937 engine_;
};

// An image of its own memory. pitch 0 means 4 * width; a negative pitch stores rows bottom-up; shift moves
// the pixels off their alignment. Equality compares every byte of the block, the guards included. The block
// is exactly as large as the rows need plus the guards, so that AddressSanitizer sees what leaves it.
class Image {
 public:
  Image(int32_t width, int32_t height, int32_t pitch = 0, size_t shift = 0) : width_(width), height_(height) {
    pitch_ = pitch == 0 ? 4 * width : pitch;
    const size_t step = static_cast<size_t>(std::abs(pitch_));
    const size_t rows =
        height > 0 ? step * static_cast<size_t>(height - 1) + 4 * static_cast<size_t>(width > 0 ? width : 0)
                   : 0;
    bytes_.assign(head + guard + shift + rows + guard + head, 0xA5);
    first_ = head + guard + shift + (pitch_ < 0 && height > 0 ? step * static_cast<size_t>(height - 1) : 0);
    // The record stays near the first row: behind the pixels of a bottom-up image.
    record_ = pitch_ < 0 ? bytes_.size() - head : 0;
    auto* at = record();
    store<int16_t>(at, 4);
    store<int16_t>(at + 2,
                   static_cast<int16_t>(static_cast<ptrdiff_t>(first_) - static_cast<ptrdiff_t>(record_)));
    store<int16_t>(at + 4, static_cast<int16_t>(width));
    store<int16_t>(at + 6, static_cast<int16_t>(height));
    store<int16_t>(at + 8, static_cast<int16_t>(pitch_));
  }
  operator ImageRecord*() { return reinterpret_cast<ImageRecord*>(record()); }
  int32_t width() const { return width_; }
  int32_t height() const { return height_; }
  uint8_t* at(int32_t x, int32_t y) {
    return bytes_.data() + first_ + static_cast<ptrdiff_t>(y) * pitch_ + static_cast<ptrdiff_t>(x) * 4;
  }
  uint32_t get(int32_t x, int32_t y) { return load<uint32_t>(at(x, y)); }
  void set(int32_t x, int32_t y, uint32_t v) { store(at(x, y), v); }
  Image& fill(uint32_t colour) {
    for (int32_t y = 0; y < height_; ++y)
      for (int32_t x = 0; x < width_; ++x) set(x, y, colour);
    return *this;
  }
  Image& randomize(uint32_t seed) {
    Random random(seed);
    for (int32_t y = 0; y < height_; ++y)
      for (int32_t x = 0; x < width_; ++x) set(x, y, random.pixel());
    return *this;
  }
  friend bool operator==(const Image& a, const Image& b) { return a.bytes_ == b.bytes_; }
  friend std::ostream& operator<<(std::ostream& out, const Image& a) {
    auto& image = const_cast<Image&>(a);
    out << a.width_ << " x " << a.height_ << ", pitch " << a.pitch_ << std::hex;
    for (int32_t y = 0; y < a.height_ && y < 8; ++y) {
      out << "\n  ";
      for (int32_t x = 0; x < a.width_ && x < 12; ++x) out << ' ' << image.get(x, y);
    }
    return out << std::dec;
  }

 private:
  static constexpr size_t head = 16, guard = 128;
  uint8_t* record() { return bytes_.data() + record_; }
  int32_t width_, height_, pitch_;
  size_t first_ = 0, record_ = 0;
  std::vector<uint8_t> bytes_;
};

// Forces a back end, and names it in failures, for the life of the object.
class Forced {
 public:
  explicit Forced(Backend backend) : trace_("on the back end", 0, name_of(backend)) {
    active_backend = backend;
  }
  ~Forced() { active_backend = best_backend(); }

 private:
  testing::ScopedTrace trace_;
};

// Areas of so many pixels are written past the caches, for the life of the object.
class Streamed {
 public:
  explicit Streamed(ptrdiff_t pixels)
      : area_(std::exchange(streamed_area, pixels)), moves_(std::exchange(string_moves, pixels == never)) {}
  ~Streamed() {
    streamed_area = area_;
    string_moves = moves_;
  }

 private:
  ptrdiff_t area_;
  bool moves_;
};

// Each of them in turn, while the body of the loop runs: for (const Forced backend : supported_backends()) ...
struct supported_backends {
  struct Step {
    int level;
    Forced operator*() const { return Forced(static_cast<Backend>(level)); }
    void operator++() { ++level; }
    bool operator==(const Step&) const = default;
  };
  Step begin() const { return {0}; }
  Step end() const { return {static_cast<int>(best_backend()) + 1}; }
};

// 32-bit arguments at which sums and products turn over.
inline constexpr int32_t extreme_values[] = {
    0,      1,     -1,       2,         -2,        255,           256,           -256,       32767,
    -32768, 65536, 0x7FFFFF, INT32_MAX, INT32_MIN, INT32_MAX - 1, INT32_MIN + 1, 0x40000000, -0x40000000};

}  // namespace tessaro::test
