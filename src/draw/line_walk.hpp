// The integer line walk. It is linear in the step number, so it can be entered at any step: a line with end
// points millions of pixels away costs no more than its steps inside the image.
#pragma once

#include "core/image.hpp"

namespace tessaro {

// Numbers of steps, both included; empty when first > last.
struct Steps {
  int64_t first, last;
  bool empty() const { return first > last; }
  Steps common(Steps other) const {
    return {first > other.first ? first : other.first, last < other.last ? last : other.last};
  }
};

// One coordinate of a walk: an error term that starts at n / 2 and grows by `extent` a step; each time it
// reaches n (or, for a late walk, exceeds n) it drops by n and the coordinate moves by one. Extents and n
// stay below 2^32, so that every product fits 64 bits unsigned.
class Track {
 public:
  Track(int32_t from, int32_t to, uint64_t n, bool late)
      : from_(from),
        sign_(from < to ? 1 : -1),
        extent_(static_cast<uint64_t>(from < to ? int64_t{to} - from : int64_t{from} - to)),
        n_(n),
        late_(late) {}

  int sign() const { return sign_; }
  int64_t extent() const { return static_cast<int64_t>(extent_); }
  int64_t moves(int64_t step) const {
    const uint64_t sum = total(step);
    return static_cast<int64_t>((sum - (late_ && sum != 0)) / n_);
  }
  int64_t error(int64_t step) const {
    return static_cast<int64_t>(total(step) - static_cast<uint64_t>(moves(step)) * n_);
  }
  int64_t at(int64_t step) const { return from_ + sign_ * moves(step); }

  // The first step after which the coordinate has moved k times (k >= 1 and no more than it ever moves).
  int64_t reaches(int64_t k) const {
    const uint64_t need = static_cast<uint64_t>(k) * n_ + late_ - n_ / 2;
    return static_cast<int64_t>((need + extent_ - 1) / extent_);
  }
  // How often the coordinate must have moved to lie in low..high.
  Steps moves_within(int64_t low, int64_t high) const {
    return sign_ > 0 ? Steps{low - from_, high - from_} : Steps{from_ - high, from_ - low};
  }
  // The steps among `all` that leave the coordinate in low..high.
  Steps within(int64_t low, int64_t high, Steps all) const {
    const Steps wanted = moves_within(low, high);
    const int64_t most = moves(all.last);
    if (wanted.empty() || wanted.last < 0 || wanted.first > most) return {1, 0};
    return all.common({wanted.first <= 0 ? all.first : reaches(wanted.first),
                       wanted.last >= most ? all.last : reaches(wanted.last + 1) - 1});
  }

 private:
  uint64_t total(int64_t step) const { return n_ / 2 + static_cast<uint64_t>(step) * extent_; }
  int64_t from_;
  int sign_;
  uint64_t extent_, n_;
  bool late_;
};

inline int64_t longer_extent(int32_t x0, int32_t y0, int32_t x1, int32_t y1) {
  const int64_t dx = int64_t{x1} - x0, dy = int64_t{y1} - y0;
  const int64_t w = dx < 0 ? -dx : dx, h = dy < 0 ? -dy : dy;
  return w > h ? w : h;
}

// A walk from (x0, y0): steps 1 .. n lead to (x1, y1), and the start itself is not among the points reached.
// A late walk has one step more and is behind by the strict comparison of its error terms.
struct LineWalk {
  int64_t n;
  Track x, y;
  Steps all;

  LineWalk(int32_t x0, int32_t y0, int32_t x1, int32_t y1, bool late = false)
      : n(longer_extent(x0, y0, x1, y1)),
        x(x0, x1, divisor(n), late),
        y(y0, y1, divisor(n), late),
        all{1, n + late} {}

  Steps inside(const ImageView& image) const {
    if (all.empty()) return all;
    return x.within(0, image.width - 1, all).common(y.within(0, image.height - 1, all));
  }

  // Calls visit(byte offset of the pixel, x, y, step) for each of the steps, which must not be empty.
  template <class Visit>
  void each(Steps steps, const ImageView& image, Visit visit) const {
    int64_t px = x.at(steps.first), py = y.at(steps.first), ex = x.error(steps.first),
            ey = y.error(steps.first);
    const int64_t limit = all.last;  // n, or n + 1 where n itself is not enough
    for (int64_t step = steps.first;; ++step) {
      visit(static_cast<ptrdiff_t>(py) * image.pitch + 4 * static_cast<ptrdiff_t>(px), px, py, step);
      if (step >= steps.last) return;
      if ((ex += x.extent()) >= limit) ex -= n, px += x.sign();
      if ((ey += y.extent()) >= limit) ey -= n, py += y.sign();
    }
  }

 private:
  static uint64_t divisor(int64_t n) { return n ? static_cast<uint64_t>(n) : 1; }
};

}  // namespace tessaro
