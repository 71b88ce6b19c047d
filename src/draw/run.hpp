// Areas between two corner points, and the strips that areas are drawn in.
#pragma once

#include "frame/clip.hpp"

namespace tessaro {

// One axis of a box between two corner points: the part of it that lies inside the image.
struct Run {
  int64_t from, sign, first, last;  // the coordinate after k steps is from + sign * k; steps first..last
  double span;

  Run(int32_t a, int32_t b, int64_t size) : from(a), sign(b > a ? 1 : -1) {
    const int64_t extent = int64_t{b} - a;
    first = sign > 0 ? -from : from - (size - 1);
    last = sign > 0 ? size - 1 - from : from;
    if (first < 0) first = 0;
    if (last > extent * sign) last = extent * sign;
    span = extent == 0 ? 1.0 : static_cast<double>(extent);
  }
  bool empty() const { return first > last; }
  int64_t at(int64_t step) const { return from + sign * step; }
  int64_t lowest() const { return at(sign > 0 ? first : last); }
  int64_t count() const { return last - first + 1; }
  // The way to a coordinate, signed as the span is, and as a fraction of it.
  double way(int64_t coordinate) const { return static_cast<double>(coordinate - from); }
  double fraction(int64_t coordinate) const { return way(coordinate) / span; }
};

// Areas are drawn in strips of so many columns, so that what depends on the column alone is computed once
// for all rows of a strip and stays in the nearest cache.
inline constexpr int64_t strip_width = 4096;

// Calls draw(first column, columns as an area) for each strip.
template <class Draw>
void each_strip(const ImageView& image, int64_t x, int64_t y, int64_t w, int64_t h, Draw draw,
                int64_t strip = strip_width) {
  for (int64_t done = 0; done < w; done += strip) {
    const int64_t n = w - done < strip ? w - done : strip;
    draw(done,
         Area{image.at(x + done, y), image.pitch, static_cast<ptrdiff_t>(n), static_cast<ptrdiff_t>(h)});
  }
}

}  // namespace tessaro
