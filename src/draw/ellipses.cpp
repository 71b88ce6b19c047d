// Ellipses coloured by the distance from their centre, and by the angle around it.
#include "draw/ellipses.hpp"

#include <cmath>

#include "core/clip.hpp"
#include "draw/run.hpp"
#include "draw/search.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// The distance is the rounded square root; it is at most 1 up to the number after 1.
constexpr double widest = 1.0 + 0x1p-52;

int32_t draw_ellipse(ImageRecord* dst, const ImageRecord* colours, int32_t x1, int32_t y1, int32_t x2,
                     int32_t y2, bool polar) {
  const ImageView image = ImageView::of(dst), palette = ImageView::of(colours);
  if (palette.width < 2 || palette.height < (polar ? 2 : 1)) return status_nothing;
  const Run across(x1, x2, image.width), down(y1, y2, image.height);
  if (across.empty() || down.empty()) return status_done;

  const auto row_of = [&](int64_t y) {
    const auto v = static_cast<float>(2 * down.way(y) / down.span - 1);
    // The polar form keeps the square in single precision.
    const double square =
        polar ? static_cast<double>(v * v) : static_cast<double>(v) * static_cast<double>(v);
    return EllipseRow{.at = nullptr,
                      .u = nullptr,
                      .u_squared = nullptr,
                      .width = 0,
                      .v = v,
                      .v_squared = square,
                      .palette = palette.pixels,
                      .palette_pitch = palette.pitch,
                      .palette_width = palette.width,
                      .palette_height = palette.height};
  };
  const auto column_u = [&](int64_t x) { return 2 * across.way(x) / across.span - 1; };
  const auto kernel = polar ? kernels<EllipseKernels>().polar : kernels<EllipseKernels>().radial;

  const Area written = {image.at(across.lowest(), down.lowest()), image.pitch,
                        static_cast<ptrdiff_t>(across.count()), static_cast<ptrdiff_t>(down.count())};
  if (share_memory(written, {palette.pixels, palette.pitch, palette.width, palette.height})) {
    // The palette is being drawn over: one pixel after another.
    for (int64_t j = down.first; j <= down.last; ++j) {
      EllipseRow row = row_of(down.at(j));
      for (int64_t i = across.first; i <= across.last; ++i) {
        const double u = column_u(across.at(i)), square = u * u;
        if (square + row.v_squared > widest) continue;
        row.at = image.at(across.at(i), down.at(j));
        row.u = &u, row.u_squared = &square, row.width = 1;
        kernel(row);
      }
    }
    return status_done;
  }

  each_strip(written, down.sign < 0, [&](ptrdiff_t done, ptrdiff_t top, Area area) {
    double u[strip_width], square[strip_width];
    ptrdiff_t centre = 0;  // the squares fall up to here and rise from here on
    for (ptrdiff_t i = 0; i < area.width; ++i) {
      u[i] = column_u(across.lowest() + done + i);
      square[i] = u[i] * u[i];
      if (square[i] < square[centre]) centre = i;
    }
    for (ptrdiff_t j = 0; j < area.height; ++j) {
      EllipseRow row = row_of(down.lowest() + top + j);
      if (square[centre] + row.v_squared > widest) continue;
      const auto inside = [&](int64_t i) { return square[i] + row.v_squared <= widest; };
      const ptrdiff_t left = static_cast<ptrdiff_t>(first_where(0, centre, inside));
      const ptrdiff_t right = static_cast<ptrdiff_t>(
          first_where(centre, area.width - 1, [&](int64_t i) { return !inside(i); }) - 1);
      row.at = area.at + j * area.pitch + 4 * left;
      row.u = u + left;
      row.u_squared = square + left;
      row.width = static_cast<size_t>(right - left + 1);
      kernel(row);
    }
  });
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIDrawLineCircle(ImageRecord* dst, const ImageRecord* palette, int32_t x1, int32_t y1,
                                       int32_t x2, int32_t y2) {
  return draw_ellipse(dst, palette, x1, y1, x2, y2, false);
}

int32_t TESSARO_CALL BBIDrawPolaCircle(ImageRecord* dst, const ImageRecord* palette, int32_t x1, int32_t y1,
                                       int32_t x2, int32_t y2) {
  return draw_ellipse(dst, palette, x1, y1, x2, y2, true);
}

}  // extern "C"
