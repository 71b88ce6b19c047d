// kernels: BoxKernels
#include "draw/boxes.hpp"
#include "simd/rows.hpp"

namespace {

using tessaro::Area;
using tessaro::RowEnds;
using tessaro::TileRows;

template <class P>
struct MaskedTile {
  P mask;
  TESSARO_INLINE P operator()(P d, P pattern) const { return (d & mask) | pattern; }
};

template <class DrawRow>
TESSARO_INLINE void tile_rows(Area n, const TileRows& rows, int64_t y, int64_t tile_height,
                              const DrawRow& draw) {
  bool in_odd = y / tile_height % 2 != 0;
  int64_t left = tile_height - y % tile_height;
  for (; n.height > 0; --n.height, n.at += n.pitch) {
    const auto* row = reinterpret_cast<const uint8_t*>(in_odd ? rows.odd : rows.even);
    for (ptrdiff_t x = 0; x < n.width; x += rows.width)
      draw(n.at + 4 * x, row, static_cast<size_t>(n.width - x < rows.width ? n.width - x : rows.width));
    if (--left == 0) left = tile_height, in_odd = !in_odd;
  }
}
void tiles(const Area& n, const TileRows& rows, int64_t y, int64_t tile_height, uint32_t mask) {
  if (mask == 0) {
    tile_rows(n, rows, y, tile_height, RowWriter(n.width, n.height));
  } else {
    const MaskedTile<Px> rule{Px::splat(mask)};
    tile_rows(n, rows, y, tile_height,
              [&](uint8_t* dst, const uint8_t* src, size_t width) { walk_row<Px>(dst, width, rule, src); });
  }
}

// (right * w + left * (256 - w)) >> 8. Modulo 65536 that is left * 256 + (right - left) * w: one product
// less.
template <class P, bool masked>
struct Gradient {
  using Half = typename P::Half;
  Half even_base, even_rise, odd_base, odd_rise;
  P mask;
  Gradient(uint32_t left, uint32_t right, uint32_t m)
      : even_base(shl<8>(even(P::splat(left)))),
        even_rise(even(P::splat(right)) - even(P::splat(left))),
        odd_base(shl<8>(odd(P::splat(left)))),
        odd_rise(odd(P::splat(right)) - odd(P::splat(left))),
        mask(P::splat(m)) {}
  TESSARO_INLINE P operator()([[maybe_unused]] P d, P weights) const {
    const Half w = halves(weights);
    const P colour = join_high(even_base + even_rise * w, odd_base + odd_rise * w);
    if constexpr (masked)
      return choose_bits(mask, d, colour);
    else
      return colour;
  }
};
void gradient(const Area& n, const uint32_t* weights, const RowEnds* ends, uint32_t mask, ptrdiff_t pixels) {
  const auto* w = reinterpret_cast<const uint8_t*>(weights);
  const auto width = static_cast<size_t>(n.width);
  const Streaming streaming(mask == 0 ? pixels : 0, n.width);
  uint8_t* row = n.at;
  for (ptrdiff_t y = 0; y < n.height; ++y, row += n.pitch) {
    if (mask != 0) {
      walk_row<Px>(row, width, Gradient<Px, true>(ends[y].left, ends[y].right, mask), w);
      continue;
    }
    const Gradient<Px, false> rule(ends[y].left, ends[y].right, mask);
    if (streaming.on() && can_align(row))
      stream_row<Px>(row, width, rule, w);
    else
      walk_row<Px>(row, width, rule, w);
  }
}

void corners(uint8_t* row, const double* u, size_t width, const float (&left)[4], const float (&right)[4]) {
  const double l0 = left[0], l1 = left[1], l2 = left[2], l3 = left[3];
  const double r0 = right[0], r1 = right[1], r2 = right[2], r3 = right[3];
  for (size_t x = 0; x < width; ++x) {
    const double t = u[x], rest = 1.0 - t;
    const auto mixed = [&](double l, double r) { return static_cast<int32_t>(rest * l + t * r); };
    const int32_t pixel = mixed(l0, r0) | mixed(l1, r1) << 8 | mixed(l2, r2) << 16 | mixed(l3, r3) << 24;
    std::memcpy(row + 4 * x, &pixel, 4);
  }
}

template <class P>
struct Multiply {  // a * b / 255, rounded down
  using Half = typename P::Half;
  Half even_row, odd_row;
  explicit Multiply(uint32_t colour) : even_row(even(P::splat(colour))), odd_row(odd(P::splat(colour))) {}
  TESSARO_INLINE P operator()(P, P columns) const {
    return join_high(by_255(even(columns) * even_row), by_255(odd(columns) * odd_row));
  }
  // In the upper byte: with n = product + 1, n + n / 256 is a little above n * 256 / 255, and its upper byte
  // exact for every product of two bytes.
  static_assert([] {
    for (uint32_t p = 0; p <= 255 * 255; ++p)
      if ((p + 1 + ((p + 1) >> 8)) >> 8 != p / 255) return false;
    return true;
  }());
  TESSARO_INLINE static Half by_255(Half product) {
    const Half next = product + Half::splat(1);
    return next + shr<8>(next);
  }
};
template <class P>
struct Exclusive {  // a + b, above 255 folded back to 510 - (a + b)
  P row, inverse;
  explicit Exclusive(uint32_t colour) : row(P::splat(colour)), inverse(P::splat(~colour)) {}
  TESSARO_INLINE P operator()(P, P columns) const {
    return min(add_sat(columns, row), add_sat(~columns, inverse));
  }
};

}  // namespace

TESSARO_KERNELS(BoxKernels){
    .tiles = tiles,
    .gradient = gradient,
    .corners = corners,
    .multiply =
        [](uint8_t* row, const uint32_t* columns, size_t width, uint32_t colour) {
          walk_row<Px>(row, width, Multiply<Px>(colour), reinterpret_cast<const uint8_t*>(columns));
        },
    .exclusive =
        [](uint8_t* row, const uint32_t* columns, size_t width, uint32_t colour) {
          walk_row<Px>(row, width, Exclusive<Px>(colour), reinterpret_cast<const uint8_t*>(columns));
        },
};
