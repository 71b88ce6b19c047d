#include "draw/pen.hpp"
#include "draw/walk.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// The steps of a walk from the one at `from` on: the longer coordinate moves on each, the shorter one when
// its error term runs over. Without branches, since where it runs over is as good as random.
template <bool masked>
void trace(uint8_t* pixels, ptrdiff_t offset, ptrdiff_t along, ptrdiff_t across, int64_t error,
           int64_t extent, int64_t n, int64_t count, Pen pen) {
  const ptrdiff_t diagonal = along + across;
  for (; count > 0; --count) {
    if constexpr (masked)
      pen.put(pixels + offset);
    else
      store(pixels + offset, pen.ink);
    // Both outcomes are formed before the choice, which then is all that the next step waits for.
    const int64_t more = error + extent, over = error + (extent - n);
    error = over < 0 ? more : over;
    offset += over < 0 ? along : diagonal;
  }
}

// One arm of a thickened line: the visible distances near..far from the line point, scanned inwards. A pixel
// of the colour found after k pixels paints what is left of the arm within the distance k.
struct Thickener {
  ImageView image;
  Pen pen;
  uint32_t colour;
  int64_t thickness;

  void arm(uint8_t* line, int64_t at, ptrdiff_t step, int sign, int64_t size) const {
    const int64_t to_first = sign > 0 ? -at : at - (size - 1), to_last = sign > 0 ? size - 1 - at : at;
    const int64_t near = to_first > 1 ? to_first : 1, far = to_last < thickness ? to_last : thickness;
    int64_t found = 0;
    for (int64_t d = far; d >= near; --d) {
      uint8_t* pixel = line + static_cast<ptrdiff_t>(at + sign * d) * step;
      if (load<uint32_t>(pixel) == colour) found = thickness + 1 - d;
      if (found >= d) pen.put(pixel);
    }
  }
  void arms(int64_t x, int64_t y) const {
    if (y >= 0 && y < image.height) {
      arm(image.at(0, y), x, 4, 1, image.width);
      arm(image.at(0, y), x, 4, -1, image.width);
    }
    if (x >= 0 && x < image.width) {
      arm(image.at(x, 0), y, image.pitch, 1, image.height);
      arm(image.at(x, 0), y, image.pitch, -1, image.height);
    }
  }
};

// Coverages of an antialiased line as fractions of one: exact sums of single-precision steps.
constexpr int coverage_bits = 57;
constexpr int64_t full_coverage = int64_t{1} << coverage_bits;
int64_t coverage_of(float v) {
  return static_cast<int64_t>(static_cast<double>(v) * static_cast<double>(full_coverage));
}

// start + step * rate, from which full_coverage is taken whenever it is exceeded: how often that has happened,
// and what is left.
struct Wraps {
  int64_t count, rest;
  Wraps(int64_t start, int64_t step, int64_t rate) {
    // The 96-bit sum in two parts: the upper one in units of 2^32.
    const auto low_word = [](int64_t v) { return static_cast<uint64_t>(v) & 0xFFFFFFFF; };
    const uint64_t low = low_word(rate) * static_cast<uint64_t>(step) + low_word(start);
    const uint64_t high = static_cast<uint64_t>(rate >> 32) * static_cast<uint64_t>(step) +
                          static_cast<uint64_t>(start >> 32) + (low >> 32);
    constexpr int whole = coverage_bits - 32;
    count = static_cast<int64_t>(high >> whole);
    rest = static_cast<int64_t>((high & ((1u << whole) - 1)) << 32 | (low & 0xFFFFFFFF));
    if (rest == 0 && count > 0) --count, rest = full_coverage;
  }
};

// The first of the steps 0..last for which the condition, once true, holds; last + 1 if it never does.
template <class Condition>
int64_t first_where(int64_t last, Condition holds) {
  int64_t low = 0, high = last + 1;
  while (low < high) {
    const int64_t middle = (low + high) / 2;
    if (holds(middle))
      high = middle;
    else
      low = middle + 1;
  }
  return low;
}

struct ColourPair {
  uint32_t c0 = 0, c1 = 0;
  bool read(const ImageRecord* image) {
    const ImageView view = ImageView::of(image);
    if (view.width < 2 || view.height < 1) return false;
    c0 = view.get(0, 0);
    c1 = view.get(1, 0);
    return true;
  }
};

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIDrawLine(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1, int32_t y1,
                                 uint32_t mask, uint32_t colour) {
  const ImageView view = ImageView::of(image);
  const LineWalk walk(x0, y0, x1, y1);
  if (walk.n == 0) {
    if (view.contains(x1, y1)) Pen(mask, colour).put(view.at(x1, y1));
    return status_done;
  }
  const Steps steps = walk.inside(view);
  if (steps.empty()) return status_done;
  const int64_t count = steps.last - steps.first + 1;
  if (walk.y.extent() == 0) {
    const int64_t left = walk.x.at(walk.x.sign() > 0 ? steps.first : steps.last);
    fill({view.at(left, y0), view.pitch, static_cast<ptrdiff_t>(count), 1}, mask, colour);
    return status_done;
  }
  const bool flat = walk.x.extent() == walk.n;
  const Track& shorter = flat ? walk.y : walk.x;
  const ptrdiff_t right = 4 * walk.x.sign(), down = view.pitch * walk.y.sign();
  (mask == 0 ? trace<false>
             : trace<true>)(view.pixels,
                            view.at(walk.x.at(steps.first), walk.y.at(steps.first)) - view.pixels,
                            flat ? right : down, flat ? down : right, shorter.error(steps.first),
                            shorter.extent(), walk.n, count, Pen(mask, colour));
  return status_done;
}

int32_t TESSARO_CALL BBIDotThick(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1, int32_t y1,
                                 uint32_t mask, uint32_t colour) {
  const ImageView view = ImageView::of(image);
  const LineWalk walk(x0, y0, x1, y1);
  const Steps steps = walk.inside(view);
  if (steps.empty()) return status_done;
  const Pen pen(mask, colour);
  walk.each(steps, view, [&](ptrdiff_t offset, int64_t x, int64_t y, int64_t) {
    uint8_t* at = view.pixels + offset;
    const auto has = [&](ptrdiff_t there) { return load<uint32_t>(at + there) == colour; };
    const int count = (x > 0 && has(-4)) + (x < view.width - 1 && has(4)) + (y > 0 && has(-view.pitch)) +
                      (y < view.height - 1 && has(view.pitch));
    if (count >= 3) pen.put(at);
  });
  return status_done;
}

int32_t TESSARO_CALL BBILineThick(ImageRecord* image, int32_t x0, int32_t y0, int32_t x1, int32_t y1,
                                  uint32_t mask, uint32_t colour, int32_t thickness) {
  const ImageView view = ImageView::of(image);
  if (thickness < 1 || view.pitch != ptrdiff_t{4} * view.width) return status_nothing;
  const LineWalk walk(x0, y0, x1, y1);
  if (walk.n == 0 || view.width < 1 || view.height < 1) return status_done;
  const Thickener thicken{view, Pen(mask, colour), colour, thickness};

  const bool flat = walk.x.extent() == walk.n;
  const Track &longer = flat ? walk.x : walk.y, &shorter = flat ? walk.y : walk.x;
  const int64_t width = flat ? view.width : view.height, height = flat ? view.height : view.width;
  const auto arms = [&](int64_t step) { thicken.arms(walk.x.at(step), walk.y.at(step)); };

  // Steps before, over and after the image in the direction of the longer coordinate. Before and after it only
  // the arms along the line's own row (column) can reach in, and of the points of one row the nearest paints
  // all that the others do: it reaches farther from the same pixels of the colour, and what it paints lies
  // within them.
  const Steps entry = longer.moves_within(0, width - 1);
  const int64_t before = (entry.first < walk.n + 1 ? entry.first : walk.n + 1) - 1;
  const int64_t after = (entry.last > 0 ? entry.last : 0) + 1;
  const Steps rows = shorter.moves_within(0, height - 1);
  const auto nearest_of_rows = [&](Steps range, bool leaving) {
    if (range.empty()) return;
    const Steps moves = rows.common({shorter.moves(range.first), shorter.moves(range.last)});
    for (int64_t k = moves.first; k <= moves.last; ++k) {
      int64_t step;
      if (leaving)
        step = k == 0 ? range.first : shorter.reaches(k);
      else
        step = k == shorter.extent() ? range.last : shorter.reaches(k + 1) - 1;
      arms(step < range.first ? range.first : step > range.last ? range.last : step);
    }
  };
  const int64_t reach = thickness;  // farther away no arm comes in
  nearest_of_rows(walk.all.common({before - reach, before}), false);
  const Steps over = walk.all.common({before + 1, after - 1});
  for (int64_t step = over.first; step <= over.last; ++step) arms(step);
  nearest_of_rows(walk.all.common({after, after + reach}), true);
  return status_done;
}

int32_t TESSARO_CALL BBIDrawGradationLine(ImageRecord* image, const ImageRecord* colours, int32_t x0,
                                          int32_t y0, int32_t x1, int32_t y1) {
  ColourPair pair;
  if (!pair.read(colours)) return status_nothing;
  const ImageView view = ImageView::of(image);
  const LineWalk walk(x0, y0, x1, y1, true);
  const Steps steps = walk.inside(view);
  if (steps.empty()) return status_done;
  const double length = walk.n == 0 ? 1.0 : static_cast<double>(walk.n);
  double c0[4], c1[4];
  for (int k = 0; k < 4; ++k) {
    c0[k] = pair.c0 >> 8 * k & 255;
    c1[k] = pair.c1 >> 8 * k & 255;
  }
  walk.each(steps, view, [&](ptrdiff_t offset, int64_t, int64_t, int64_t step) {
    const double t = static_cast<double>(step - 1) / length;
    const double u = static_cast<float>(1.0 - t);
    uint32_t pixel = 0;
    for (int k = 0; k < 4; ++k) pixel |= static_cast<uint32_t>(trunc32(c1[k] * t + c0[k] * u)) << 8 * k;
    store(view.pixels + offset, pixel);
  });
  return status_done;
}

int32_t TESSARO_CALL BBIDrawAlphaLine(ImageRecord* image, const ImageRecord* colours, int32_t x0, int32_t y0,
                                      int32_t x1, int32_t y1) {
  ColourPair pair;
  if (!pair.read(colours)) return status_nothing;
  const ImageView view = ImageView::of(image);
  int64_t xs = x0, ys = y0, xe = x1, ye = y1;
  if (xs == xe && ys == ye) return status_done;
  const int64_t dx = xs < xe ? xe - xs : xs - xe, dy = ys < ye ? ye - ys : ys - ye;
  const bool flat = dy < dx;
  if (flat ? xe < xs : ye < ys) {
    xs = x1, ys = y1, xe = x0, ye = y0;
    const uint32_t c = pair.c0;
    pair.c0 = pair.c1;
    pair.c1 = c;
  }
  const int64_t major = flat ? dx : dy, minor = flat ? dy : dx;
  const int64_t along = flat ? xs : ys, across = flat ? ys : xs;
  const int64_t length = flat ? view.width : view.height, breadth = flat ? view.height : view.width;
  const int s = (flat ? ye < ys : xe < xs) ? -1 : 1;

  // Everything that is kept is single precision; the sums of the coverages are exact.
  const double span = static_cast<double>(major);
  const float h = static_cast<float>(static_cast<double>(minor) / span * 0.5);
  const float q = static_cast<float>((static_cast<double>(minor) - static_cast<double>(h)) / span);
  const int64_t rate = coverage_of(q), begin = coverage_of(h * 0.5f);

  // Track A loses coverage, track B, one pixel further, gains it: both move on when a whole pixel is used up.
  // Both have to lie inside the image: the one that lags behind has to have come in, the one ahead not to have
  // gone out.
  const Steps moves = s > 0 ? Steps{-across, breadth - 1 - across} : Steps{across - breadth + 1, across};
  Steps steps = Steps{0, major}.common({-along, length - 1 - along});
  const auto come = [&](int64_t i) { return Wraps(0, i, rate).count >= moves.first; };
  if (!steps.empty() && !come(steps.first)) steps.first = first_where(major, come);
  const auto gone = [&](int64_t i) { return Wraps(begin, i, rate).count + 1 > moves.last; };
  if (!steps.empty() && gone(steps.last)) steps.last = first_where(steps.last, gone) - 1;
  if (steps.empty()) return status_done;

  Wraps a(0, steps.first, rate), b(begin, steps.first, rate);
  for (int64_t i = steps.first;; ++i) {
    const float t = static_cast<float>(static_cast<double>(i) / span);
    const uint32_t colour = mixed(pair.c0, pair.c1, static_cast<uint32_t>(trunc32(t * 256.0f)));
    const double alpha = static_cast<double>(colour >> 24) * static_cast<double>(0.003921569f);
    const auto blend = [&](int64_t track, double strength) {
      const int64_t m = across + s * track;
      uint8_t* at = flat ? view.at(along + i, m) : view.at(m, along + i);
      const auto weight = static_cast<uint32_t>(strength < 1.0 ? trunc32(strength * 256.0) : 256);
      store(at, mixed(load<uint32_t>(at), colour, weight));
    };
    constexpr double unit = 1.0 / static_cast<double>(full_coverage);
    blend(a.count, alpha * (static_cast<double>(full_coverage - a.rest) * unit));
    blend(b.count + 1, alpha * (static_cast<double>(b.rest) * unit));
    if (b.count > a.count) blend(a.count + 1, alpha);
    if (i == steps.last) return status_done;
    if ((a.rest += rate) > full_coverage) a.rest -= full_coverage, ++a.count;
    if ((b.rest += rate) > full_coverage) b.rest -= full_coverage, ++b.count;
  }
}

}  // extern "C"
