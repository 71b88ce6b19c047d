// Per-pixel models that several families' tests compare with, written down naively.
#pragma once

#include "support/unscaled.hpp"

namespace tessaro::test {

// An image of random pixels with a pitch that is wider than a row, bottom-up, odd or so small that rows overlap, at random.
inline Image random_image(Random& random, int32_t width, int32_t height) {
  const int32_t gap = random.between(0, 3) == 0 ? random.between(0, 9) : 0;
  const int32_t row = random.between(0, 3) == 0 ? random.between(1, 4 * width) : 4 * width + gap;
  const int32_t pitch = row * (random.between(0, 3) == 0 ? -1 : 1);
  Image image(width, height, pitch, static_cast<size_t>(random.between(0, 4)));
  image.randomize(random.word());
  return image;
}

struct Scaled {
  int32_t dx, dy, dw, dh, sx, sy, sw, sh;
};
#define TESSARO_SCALED(c) c.dx, c.dy, c.dw, c.dh, c.sx, c.sy, c.sw, c.sh

inline std::ostream& operator<<(std::ostream& out, const Scaled& c) {
  return out << c.dx << ' ' << c.dy << ' ' << c.dw << ' ' << c.dh << " from " << c.sx << ' ' << c.sy << ' '
             << c.sw << ' ' << c.sh;
}

inline bool scaled_clip_step(int32_t W, int32_t H, int32_t* r, int32_t* o) {
  if (r[2] == 0 || r[3] == 0) return false;
  const double rx = static_cast<double>(o[2]) / r[2];
  const float ry = static_cast<float>(static_cast<double>(o[3]) / r[3]);
  for (int axis = 0; axis < 2; ++axis) {
    const double ratio = axis ? static_cast<double>(ry) : rx;
    const int32_t limit = axis ? H : W;
    int32_t &at = r[axis], &size = r[axis + 2], &other = o[axis], &other_size = o[axis + 2];
    if (at < 0) {
      other = static_cast<int32_t>(other - at * ratio);
      other_size = static_cast<int32_t>(other_size - -at * ratio);
      size += at;
      at = 0;
    }
    if (at + size > limit) {
      other_size = static_cast<int32_t>((limit - at - size) * ratio + other_size);
      size = limit - at;
    }
  }
  return true;
}
// The clip of stretched blits and the checks after it, for arguments of moderate size.
inline bool scaled_clip(const Image& dst, const Image& src, Scaled& c) {
  return scaled_clip_step(src.width(), src.height(), &c.sx, &c.dx) &&
         scaled_clip_step(dst.width(), dst.height(), &c.dx, &c.sx) && c.dw > 0 && c.dh > 0 && c.sw > 0 &&
         c.sh > 0;
}

// The nearest-sample walk with its two accumulators: rule(d, s, column, row) for one pixel after another.
template <class Rule>
void nearest(Image& dst, Image& src, const Scaled& c, const Rule& rule) {
  for (int32_t i = 0, ey = 0, r = c.sy; i < c.dh; ++i, ey += c.sh) {
    for (; ey >= c.dh; ey -= c.dh) ++r;
    for (int32_t j = 0, ex = 0, at = c.sx; j < c.dw; ++j, ex += c.sw) {
      for (; ex >= c.dw; ex -= c.dw) ++at;
      const uint32_t s = src.get(at, r);
      dst.set(c.dx + j, c.dy + i, rule(dst.get(c.dx + j, c.dy + i), s, j, i));
    }
  }
}

// call(dst, src) leaves dst as model(dst, src) leaves another; in one image when asked to.
template <class Call, class Model>
void compare_scaled(Image dst, Image src, bool one, const Scaled& c, const Call& call, const Model& model) {
  Image want = dst;
  const int32_t status = model(want, one ? want : src);
  ASSERT_EQ(call(dst, one ? dst : src), status) << c;
  ASSERT_TRUE(dst == want) << c << ", one image " << one << dst << want;
}

// Rectangles of all kinds around an image: enlarging, reducing, equal, cut, outside.
inline Scaled random_rectangles(Random& random, const Image& dst, const Image& src) {
  const auto place = [&](int32_t size) { return random.between(-size / 4 - 1, size / 2); };
  const auto extent = [&](int32_t size) {
    return random.between(random.between(-1, 1), size + size / 3 + 1);
  };
  Scaled c = {place(dst.width()), place(dst.height()), extent(dst.width()), extent(dst.height()),
              place(src.width()), place(src.height()), extent(src.width()), extent(src.height())};
  const int32_t kind = random.between(0, 7);
  if (kind < 2) c.sw = c.dw;
  if (kind == 1 || kind == 2) c.sh = c.dh;
  if (kind == 3) c.dw = random.between(2, 3) * c.sw;
  return c;
}

}  // namespace tessaro::test
