// Per-pixel models that several families' tests compare with, written down naively.
#pragma once

#include <cmath>
#include <functional>

#include "support/images.hpp"

namespace tessaro::test {

inline uint32_t per_channel(const std::function<uint32_t(int)>& f) {
  return f(0) | f(8) << 8 | f(16) << 16 | f(24) << 24;
}
inline uint32_t channel(uint32_t v, int at) { return v >> at & 255; }

inline uint32_t mixed(uint32_t d, uint32_t s, uint32_t weight) {
  return per_channel(
      [=](int at) { return (channel(d, at) * (256 - weight) + channel(s, at) * weight) / 256; });
}
inline uint32_t weight_of(uint32_t alpha, float opacity) {
  return static_cast<uint32_t>(static_cast<double>(alpha) * static_cast<double>(opacity) *
                               static_cast<double>(bits_as<float>(0x3B808081u)) * 256.0);
}

// An image of random pixels with a pitch that is wider than a row, bottom-up or odd, at random.
inline Image random_image(Random& random, int32_t width, int32_t height) {
  const int32_t gap = random.between(0, 3) == 0 ? random.between(0, 9) : 0;
  const int32_t pitch = (4 * width + gap) * (random.between(0, 3) == 0 ? -1 : 1);
  Image image(width, height, pitch, static_cast<size_t>(random.between(0, 4)));
  image.randomize(random.word());
  return image;
}

}  // namespace tessaro::test
