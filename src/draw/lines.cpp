// Lines of one colour or of two, and the thickening of what is drawn.
#include "draw/line_walk.hpp"
#include "draw/pen.hpp"
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

  // Steps before, over and after the image in the direction of the longer coordinate. Before and after it
  // only the arms along the line's own row (column) can reach in, and of the points of one row the nearest
  // paints all that the others do: it reaches farther from the same pixels of the colour, and what it paints
  // lies within them.
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

}  // extern "C"
