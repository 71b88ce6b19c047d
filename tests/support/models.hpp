// What the pixel-by-pixel models of several families share.
#pragma once

#include <algorithm>

#include "support/images.hpp"

namespace tessaro::test {

inline uint32_t channel(uint32_t v, int at) { return v >> at & 255; }
template <class F>
uint32_t per_channel(const F& f) {
  return f(0) | f(8) << 8 | f(16) << 16 | f(24) << 24;
}
inline uint32_t mixed(uint32_t d, uint32_t s, uint32_t weight) {
  return per_channel(
      [=](int at) { return (channel(d, at) * (256 - weight) + channel(s, at) * weight) / 256; });
}

// The weight that an alpha has under an opacity of 0 to 1.
inline uint32_t weight_of(uint32_t alpha, float opacity) {
  return static_cast<uint32_t>(static_cast<double>(alpha) * static_cast<double>(opacity) *
                               static_cast<double>(bits_as<float>(0x3B808081u)) * 256.0);
}

inline uint32_t saturated(uint32_t v, float saturation) {
  if (!(saturation >= 0.0f)) saturation = 0.0f;
  if (saturation > 256.0f) saturation = 256.0f;
  const auto k = static_cast<int64_t>(saturation * 1024.0f), m = (1024 - k) / 3;
  const int64_t t = ((channel(v, 0) + channel(v, 8) + channel(v, 16)) * m) >> 10;
  return per_channel([&](int at) {
    const int64_t c = channel(v, at);
    return static_cast<uint32_t>(
        at == 24 ? c : std::min<int64_t>(std::max<int64_t>(((c * k) >> 10) + t, 0), 255));
  });
}

// A byte stretched from lo..hi to all that bytes hold.
inline uint32_t level(uint32_t v, uint32_t lo, uint32_t hi) {
  if (v < lo) return 0;
  if (v == lo) return lo == hi ? 255 - lo : 0;
  if (v >= hi) return 255;
  return 255 * (v - lo) / (hi - lo);
}

struct Ends {
  int32_t x0, y0, x1, y1;
};

// Filled at random, rows in either order, of any pitch and alignment.
inline Image image_of_pitch(Random& random, int32_t width, int32_t height, int32_t pitch) {
  Image image(width, height, random.word() & 1 ? pitch : -pitch, random.word() % 4);
  image.randomize(random.word());
  return image;
}
inline Image image_of_rows_apart(Random& random, int32_t width, int32_t height) {
  return image_of_pitch(random, width, height, 4 * width + random.between(0, 9) * random.between(0, 1));
}
// One of eight has rows that run into one another.
inline Image some_image(Random& random, int32_t width, int32_t height) {
  if (width > 0 && random.word() % 8 == 0)
    return image_of_pitch(random, width, height, random.between(1, 4 * width));
  return image_of_rows_apart(random, width, height);
}

template <class Visit>
void for_pixels(const Image& image, const Visit& visit) {
  for (int32_t y = 0; y < image.height(); ++y)
    for (int32_t x = 0; x < image.width(); ++x) visit(x, y);
}
inline bool inside(const Image& image, int64_t x, int64_t y) {
  return x >= 0 && y >= 0 && x < image.width() && y < image.height();
}
// Left, right, above, below.
inline std::vector<std::pair<int32_t, int32_t>> neighbours(const Image& image, int32_t x, int32_t y) {
  std::vector<std::pair<int32_t, int32_t>> all;
  for (const auto& [a, b] : {std::pair{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}})
    if (inside(image, a, b)) all.emplace_back(a, b);
  return all;
}
inline void put_masked(Image& image, int32_t x, int32_t y, uint32_t mask, uint32_t colour) {
  image.set(x, y, (~mask & colour) | (image.get(x, y) & mask));
}

}  // namespace tessaro::test
