// kernels: EllipseKernels
#include "draw/arctan.hpp"
#include "draw/ellipses.hpp"
#include "simd/vocabulary.hpp"

namespace {

using tessaro::EllipseRow;

constexpr size_t block = 256;

// Work runs in blocks: places in the palette in one loop, which has no memory to fetch and goes by vectors,
// and the copies in another.
template <class Place>
TESSARO_INLINE void copy_places(const EllipseRow& row, const Place& place) {
  int32_t offsets[block];
  for (size_t done = 0; done < row.width; done += block) {
    const size_t n = row.width - done < block ? row.width - done : block;
    place(done, n, offsets);
    uint8_t* at = row.at + 4 * done;
    for (size_t i = 0; i < n; ++i) std::memcpy(at + 4 * i, row.palette + offsets[i], 4);
  }
}

void radial(const EllipseRow& row) {
  const double columns = row.palette_width - 1, v2 = row.v_squared;
  copy_places(row, [&](size_t done, size_t n, int32_t* offsets) {
    const double* u2 = row.u_squared + done;
    for (size_t i = 0; i < n; ++i)
      offsets[i] = 4 * static_cast<int32_t>((1.0 - __builtin_sqrt(u2[i] + v2)) * columns);
  });
}

// A little above 1 / (2 pi), as hosts know it: where a turn begins in the palette depends on every digit.
constexpr double turns_per_radian = 0.159154976;

// The angle is 0 along the middle row, to the left of the centre half a turn.
void polar(const EllipseRow& row) {
  const double columns = row.palette_width - 1, rows = row.palette_height;
  const double v = row.v, v2 = row.v_squared, half_plane = v < 0 ? 0.25 : 0.75;
  const auto pitch = static_cast<int32_t>(row.palette_pitch);
  const int32_t last = row.palette_height - 1;
  copy_places(row, [&](size_t done, size_t n, int32_t* offsets) {
    const double *u = row.u + done, *u2 = row.u_squared + done;
    const auto place = [&](size_t i, double turns) {
      const auto column = static_cast<int32_t>((1.0 - __builtin_sqrt(u2[i] + v2)) * columns);
      const auto turn = static_cast<int32_t>(turns * rows);
      offsets[i] = (turn < last ? turn : last) * pitch + 4 * column;
    };
    if (v == 0)
      for (size_t i = 0; i < n; ++i) place(i, u[i] < 0 ? 0.5 : 0.0);
    else
      for (size_t i = 0; i < n; ++i) place(i, arctan(u[i] / v) * turns_per_radian + half_plane);
  });
}

}  // namespace

TESSARO_KERNELS(EllipseKernels){.radial = radial, .polar = polar};
