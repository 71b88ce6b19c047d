// Stretching by the nearest sample, averaged with its neighbours.
#include <iterator>

#include "core/clip.hpp"
#include "tessaro/tessaro.h"
#include "transform/stretch.hpp"

using namespace tessaro;

namespace {

// The sample itself and the places around it that are averaged in, a spiral.
constexpr struct {
  int8_t x, y;
} spiral[] = {{0, 0},   {1, 0},  {0, -1}, {-1, 0}, {0, 1},   {1, -1}, {-1, -1},
              {-1, 1},  {1, 1},  {2, 0},  {0, -2}, {-2, 0},  {0, 2},  {2, -1},
              {-1, -2}, {-2, 1}, {1, 2},  {1, -2}, {-2, -1}, {-1, 2}, {2, 1}};
constexpr int64_t last_place = std::size(spiral) - 1;

// Places of one row of samples: which column of the row, from the first one on.
struct Place {
  int64_t x;
  const uint8_t* row;
};

void stretch_averaged(ImageView d, ImageView s, ScaledBlit r) {
  const int64_t wanted = (r.sw / r.dw + r.sh / r.dh + 5) & ~int64_t{3};
  const auto count = static_cast<size_t>(wanted < last_place ? wanted : last_place) + 1;
  // The sizes serve as limits of the neighbours' coordinates, and the first column and row never take part.
  const int64_t columns = r.sw - r.sx;
  for (int64_t i = 0; i < r.dh; ++i) {
    const int64_t row = r.sy + i * r.sh / r.dh;
    Place used[last_place + 1];
    size_t rows = 0;
    for (size_t k = 0; k < count; ++k)
      if (const int64_t y = row + spiral[k].y; y > r.sy && y < r.sh)
        used[rows++] = {spiral[k].x, s.at(r.sx, y)};
    const uint8_t* samples = s.at(r.sx, row);
    uint8_t* out = d.at(r.dx, r.dy + i);
    int64_t column = 0, error = 0;
    for (int64_t j = 0; j < r.dw; ++j, error += r.sw, out += 4) {
      for (; error >= r.dw; error -= r.dw) ++column;
      auto v = load<uint32_t>(samples + 4 * static_cast<ptrdiff_t>(column));
      for (size_t k = 0; k < rows; ++k) {
        const int64_t x = column + used[k].x;
        if (x <= 0 || x >= columns) continue;
        const auto p = load<uint32_t>(used[k].row + 4 * static_cast<ptrdiff_t>(x));
        v = (v & p) + ((v ^ p) >> 1 & 0x7F7F7F7F);  // (v + p) >> 1 of each channel
      }
      store(out, v);
    }
  }
}

}  // namespace

extern "C" int32_t TESSARO_CALL BBILinearBltTest(ImageRecord* dst, const ImageRecord* src, int32_t dx,
                                                 int32_t dy, int32_t dw, int32_t dh, int32_t sx, int32_t sy,
                                                 int32_t sw, int32_t sh) {
  const ImageView d = ImageView::of(dst);
  ImageView s = ImageView::of(src);
  ScaledBlit r = {dx, dy, dw, dh, sx, sy, sw, sh};
  if (!clip_stretch(d, s, r)) return status_nothing;
  s.pitch = s.pitch / 4 * 4;
  stretch_averaged(d, s, r);
  return status_done;
}
