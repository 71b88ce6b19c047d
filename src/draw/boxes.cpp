// Filled, tiled and shaded boxes.
#include "draw/boxes.hpp"

#include "core/clip.hpp"
#include "core/weights.hpp"
#include "draw/pen.hpp"
#include "draw/run.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// The clip of the boxes that are given by position and size: against the image, with the whole image as the
// source that is scaled along. False when nothing is left.
bool clip_box(const ImageView& image, int32_t x, int32_t y, int32_t w, int32_t h, ScaledBlit& box) {
  box = {x, y, w, h, 0, 0, image.width, image.height};
  return !ClipScaledBlit(image, image, box) && box.dw >= 1 && box.dh >= 1;
}
Area area_of(const ImageView& image, const ScaledBlit& box) {
  return {image.at(box.dx, box.dy), image.pitch, static_cast<ptrdiff_t>(box.dw),
          static_cast<ptrdiff_t>(box.dh)};
}

// A box between two corner points, and the pattern image that colours it.
struct CornerBox {
  ImageView image, pattern;
  Run x, y;

  CornerBox(const ImageRecord* record, const ImageRecord* colours, int32_t x0, int32_t y0, int32_t x1,
            int32_t y1)
      : image(ImageView::of(record)),
        pattern(ImageView::of(colours)),
        x(x0, x1, image.width),
        y(y0, y1, image.height) {}
  bool usable() const { return pattern.width >= 2 && pattern.height >= 2; }
  bool empty() const { return x.empty() || y.empty(); }
  Area area() const {
    return {image.at(x.lowest(), y.lowest()), image.pitch, static_cast<ptrdiff_t>(x.count()),
            static_cast<ptrdiff_t>(y.count())};
  }
  template <class Draw>
  void strips(Draw draw) const {
    each_strip(area(), y.sign < 0, draw);
  }
};

// The boxes that combine a colour chosen along x with one chosen along y.
int32_t line_box(const CornerBox& box, void (*kernel)(uint8_t*, const uint32_t*, size_t, uint32_t)) {
  if (!box.usable()) return status_nothing;
  if (box.empty()) return status_done;
  const double columns = box.pattern.width - 1;
  const auto column_colour = [&](int64_t x) {
    return box.pattern.get(trunc32(box.x.fraction(x) * columns), 0);
  };
  const auto row_colour = [&](int64_t y) { return box.pattern.get(trunc32(box.y.fraction(y) * columns), 1); };

  if (share_memory(box.area(), {box.pattern.pixels, box.pattern.pitch, box.pattern.width, 2})) {
    // The pattern is being drawn over: each colour is read where the walk stands.
    for (int64_t j = box.y.first; j <= box.y.last; ++j) {
      const uint32_t b = row_colour(box.y.at(j));
      for (int64_t i = box.x.first; i <= box.x.last; ++i) {
        const uint32_t a = column_colour(box.x.at(i));
        kernel(box.image.at(box.x.at(i), box.y.at(j)), &a, 1, b);
      }
    }
    return status_done;
  }
  box.strips([&](ptrdiff_t done, ptrdiff_t top, Area area) {
    uint32_t colours[strip_width];
    for (ptrdiff_t i = 0; i < area.width; ++i) colours[i] = column_colour(box.x.lowest() + done + i);
    for (ptrdiff_t j = 0; j < area.height; ++j)
      kernel(area.at + j * area.pitch, colours, static_cast<size_t>(area.width),
             row_colour(box.y.lowest() + top + j));
  });
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIDrawColorFill(ImageRecord* image, int32_t x, int32_t y, int32_t width, int32_t height,
                                      uint32_t mask, uint32_t colour) {
  const ImageView view = ImageView::of(image);
  ScaledBlit box;
  if (!clip_box(view, x, y, width, height, box)) return status_nothing;
  fill(area_of(view, box), mask, colour);
  return status_done;
}

int32_t TESSARO_CALL BBIDrawColorTile(ImageRecord* image, int32_t x, int32_t y, int32_t width, int32_t height,
                                      uint32_t mask, int32_t tile_width, int32_t tile_height,
                                      uint32_t colour0, uint32_t colour1, uint32_t colour2,
                                      uint32_t colour3) {
  const ImageView view = ImageView::of(image);
  ScaledBlit box;
  if (!clip_box(view, x, y, width, height, box)) return status_nothing;
  const int64_t tw = tile_width < 1 ? 1 : tile_width, th = tile_height < 1 ? 1 : tile_height;
  const int64_t left_in_band = th - box.dy % th;
  const bool starts_odd = box.dy / th % 2 != 0, both = box.dh > left_in_band;
  // Rows of whole pairs of tiles, repeated along the image; strips where the tiles are too wide. A mask makes
  // the image itself pass through the nearest cache, which leaves less room there.
  const int64_t room = mask == 0 ? strip_width : strip_width / 4;
  const int64_t pair = 2 * tw, repeated = room / pair * pair;
  const auto draw = [&](ptrdiff_t done, ptrdiff_t top, Area area) {
    alignas(64) uint32_t even[strip_width], odd[strip_width];
    const int64_t pattern = repeated > 0 && repeated < area.width ? repeated : area.width;
    const auto lay = [&](uint32_t* row, uint32_t c0, uint32_t c1) {
      const int64_t at = box.dx + done, first = pattern < pair ? pattern : pair;
      bool second = at / tw % 2 != 0;
      int64_t left = tw - at % tw;
      for (int64_t i = 0; i < first; left = tw, second = !second) {
        const uint32_t colour = (second ? c1 : c0) & ~mask;
        for (const int64_t end = i + left < first ? i + left : first; i < end; ++i) row[i] = colour;
      }
      for (int64_t i = first; i < pattern; i *= 2)
        std::memcpy(row + i, row, static_cast<size_t>(4 * (pattern - i < i ? pattern - i : i)));
    };
    if (both || !starts_odd) lay(even, colour0, colour1);
    if (both || starts_odd) lay(odd, colour2, colour3);
    kernels<BoxKernels>().tiles(area, {even, odd, static_cast<ptrdiff_t>(pattern)}, box.dy + top, th, mask);
  };
  each_strip(area_of(view, box), false, draw, repeated > 0 ? static_cast<ptrdiff_t>(box.dw) : strip_width);
  return status_done;
}

int32_t TESSARO_CALL BBIDrawBox(ImageRecord* image, int32_t x, int32_t y, int32_t width, int32_t height,
                                uint32_t mask, uint32_t top_left, uint32_t top_right, uint32_t bottom_left,
                                uint32_t bottom_right) {
  const ImageView view = ImageView::of(image);
  ScaledBlit box;
  if (!clip_box(view, x, y, width, height, box)) return status_nothing;
  // What is visible of the unclipped box, as fractions of it.
  const auto part = [](int64_t v, int64_t whole) {
    return static_cast<float>(static_cast<double>(v) / static_cast<double>(whole));
  };
  const double u_start = part(box.sx, view.width), u_end = part(box.sx + box.sw, view.width);
  const double v_start = part(box.sy, view.height), v_end = part(box.sy + box.sh, view.height);
  // One column or one row makes 0 / 0, which counts as the left or the top.
  const auto between = [](int64_t i, int64_t n, double start, double end) {
    const double f = static_cast<double>(i) / static_cast<double>(n - 1);
    return (1.0 - f) * start + f * end;
  };
  each_strip(area_of(view, box), false, [&](ptrdiff_t done, ptrdiff_t first, Area area) {
    uint32_t weights[strip_width];
    for (ptrdiff_t i = 0; i < area.width; ++i)
      weights[i] = weight_of(between(done + i, box.dw, u_start, u_end)) * 0x10001u;
    constexpr ptrdiff_t some = 64;
    for (ptrdiff_t top = 0; top < area.height; top += some) {
      RowEnds ends[some];
      const ptrdiff_t rows = area.height - top < some ? area.height - top : some;
      for (ptrdiff_t j = 0; j < rows; ++j) {
        const auto v = static_cast<float>(between(first + top + j, box.dh, v_start, v_end));
        const uint32_t a = weight_of(v);
        ends[j] = {mixed(top_left, bottom_left, a), mixed(top_right, bottom_right, a)};
      }
      kernels<BoxKernels>().gradient({area.at + top * area.pitch, area.pitch, area.width, rows}, weights,
                                     ends, mask, static_cast<ptrdiff_t>(box.dw * box.dh));
    }
  });
  return status_done;
}

int32_t TESSARO_CALL BBIDrawGradationBox(ImageRecord* image, const ImageRecord* pattern, int32_t x0,
                                         int32_t y0, int32_t x1, int32_t y1) {
  const CornerBox box(image, pattern, x0, y0, x1, y1);
  if (!box.usable()) return status_nothing;
  if (box.empty()) return status_done;
  float corner[2][2][4];
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 2; ++column)
      for (int k = 0; k < 4; ++k) corner[row][column][k] = box.pattern.at(column, row)[k];
  box.strips([&](ptrdiff_t done, ptrdiff_t top, Area area) {
    double u[strip_width];
    for (ptrdiff_t i = 0; i < area.width; ++i) u[i] = box.x.fraction(box.x.lowest() + done + i);
    for (ptrdiff_t j = 0; j < area.height; ++j) {
      const double v = box.y.fraction(box.y.lowest() + top + j);
      float side[2][4];
      for (int column = 0; column < 2; ++column)
        for (int k = 0; k < 4; ++k)
          side[column][k] = static_cast<float>(v * static_cast<double>(corner[1][column][k]) +
                                               (1.0 - v) * static_cast<double>(corner[0][column][k]));
      kernels<BoxKernels>().corners(area.at + j * area.pitch, u, static_cast<size_t>(area.width), side[0],
                                    side[1]);
    }
  });
  return status_done;
}

int32_t TESSARO_CALL BBIDrawMultiplyLineBox(ImageRecord* image, const ImageRecord* pattern, int32_t x0,
                                            int32_t y0, int32_t x1, int32_t y1) {
  return line_box(CornerBox(image, pattern, x0, y0, x1, y1), kernels<BoxKernels>().multiply);
}

int32_t TESSARO_CALL BBIDrawExclusiveLineBox(ImageRecord* image, const ImageRecord* pattern, int32_t x0,
                                             int32_t y0, int32_t x1, int32_t y1) {
  return line_box(CornerBox(image, pattern, x0, y0, x1, y1), kernels<BoxKernels>().exclusive);
}

}  // extern "C"
