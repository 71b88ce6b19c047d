// Areas between two corner points, and the strips that areas are drawn in.
#pragma once

#include "core/clip.hpp"

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
inline constexpr ptrdiff_t strip_width = 4096;

// Calls draw(first column, first row, the area from there on) for each strip; columns and rows count from
// those of `all`. Strips are of one row each where rows run into one another, the last row first if the walk
// goes upwards.
template <class Draw>
void each_strip(const Area& all, bool upwards, Draw draw, ptrdiff_t strip = strip_width) {
  const bool apart = rows_apart(all);
  for (ptrdiff_t i = 0, rows = apart ? all.height : 1; i < all.height; i += rows) {
    const ptrdiff_t row = apart || !upwards ? i : all.height - 1 - i;
    for (ptrdiff_t done = 0; done < all.width; done += strip)
      draw(done, row,
           Area{all.at + row * all.pitch + 4 * done, all.pitch,
                all.width - done < strip ? all.width - done : strip, rows});
  }
}

}  // namespace tessaro
