// What the pixel-by-pixel models of several families share.
#pragma once

#include <algorithm>

#include "support/images.hpp"

namespace tessaro::test {

struct Ends {
  int32_t x0, y0, x1, y1;
};

// Filled at random, rows in either order, of any pitch and alignment.
inline Image some_image(Random& random, int32_t width, int32_t height) {
  const int32_t pitch = 4 * width + random.between(0, 9);
  Image image(width, height, random.word() & 1 ? pitch : -pitch, random.word() % 4);
  image.randomize(random.word());
  return image;
}
// Near an image's edges, or where sums turn over.
inline int32_t any_coordinate(Random& random) {
  return random.word() % 2 ? random.between(-4, 12)
                           : extreme_values[random.word() % std::size(extreme_values)];
}

inline bool inside(const Image& image, int64_t x, int64_t y) {
  return x >= 0 && y >= 0 && x < image.width() && y < image.height();
}
inline void put_masked(Image& image, int32_t x, int32_t y, uint32_t mask, uint32_t colour) {
  image.set(x, y, (~mask & colour) | (image.get(x, y) & mask));
}
inline uint32_t mix(uint32_t from, uint32_t to, uint32_t w) {
  uint32_t out = 0;
  for (int k = 0; k < 32; k += 8) out |= (((from >> k & 255) * (256 - w) + (to >> k & 255) * w) >> 8) << k;
  return out;
}

}  // namespace tessaro::test
