// kernels: TurnKernels
#include "pixel/turn.hpp"

#include "simd/walk.hpp"

namespace {

using tessaro::Area;
using tessaro::AreaPair;

void mirror(const Area& n) {
  constexpr ptrdiff_t lanes = Px::lanes;
  uint8_t* row = n.at;
  for (ptrdiff_t y = 0; y < n.height; ++y, row += n.pitch) {
    // Pixels from left to right - 1 are still to be exchanged. In the last step the two vectors may overlap,
    // and then agree on what lies in both.
    uint8_t *left = row, *right = row + 4 * n.width;
    for (; right - left >= 4 * lanes; left += 4 * lanes, right -= 4 * lanes) {
      const Px a = Px::load(left), b = Px::load(right - 4 * lanes);
      reversed(b).store(left);
      reversed(a).store(right - 4 * lanes);
    }
    for (; right - left >= 8; left += 4, right -= 4) {
      const One a = One::load(left), b = One::load(right - 4);
      b.store(left);
      a.store(right - 4);
    }
  }
}

template <class P>
TESSARO_INLINE void swap_rows(uint8_t* a, uint8_t* b, size_t width) {
  size_t x = 0;
  for (; x + P::lanes <= width; x += P::lanes) {
    const P p = P::load(a + 4 * x), q = P::load(b + 4 * x);
    q.store(a + 4 * x);
    p.store(b + 4 * x);
  }
  if (const size_t rest = width - x) {
    const P p = P::load(a + 4 * x, rest), q = P::load(b + 4 * x, rest);
    q.store(a + 4 * x, rest);
    p.store(b + 4 * x, rest);
  }
}
void swap_rows(uint8_t* a, uint8_t* b, size_t width) {
  // Rows of an image may run into one another.
  if (reads_own_writes(a, b, 4 * Px::lanes) || reads_own_writes(b, a, 4 * Px::lanes)) [[unlikely]]
    swap_rows<One>(a, b, width);
  else
    swap_rows<Px>(a, b, width);
}

void half_turn(const AreaPair& n) {
  constexpr ptrdiff_t lanes = Px::lanes;
  const uint8_t* src = n.src;
  uint8_t* dst = n.dst + n.dst_pitch * (n.height - 1) + 4 * n.width;  // behind the row
  for (ptrdiff_t y = 0; y < n.height; ++y, src += n.src_pitch, dst -= n.dst_pitch) {
    ptrdiff_t x = 0;
    for (; x + lanes <= n.width; x += lanes) reversed(Px::load(src + 4 * x)).store(dst - 4 * (x + lanes));
    for (; x < n.width; ++x) One::load(src + 4 * x).store(dst - 4 * (x + 1));
  }
}

// A tile of at most lanes x lanes pixels.
TESSARO_INLINE void transpose_tile(uint8_t* dst, ptrdiff_t dst_pitch, const uint8_t* src, ptrdiff_t src_pitch,
                                   size_t width, size_t height) {
  constexpr size_t lanes = Px::lanes;
  Px rows[lanes];
  if (width == lanes && height == lanes) {
    for (size_t i = 0; i < lanes; ++i) rows[i] = Px::load(src + static_cast<ptrdiff_t>(i) * src_pitch);
    transpose_square(rows);
    for (size_t i = 0; i < lanes; ++i) rows[i].store(dst + static_cast<ptrdiff_t>(i) * dst_pitch);
  } else {
    for (size_t i = 0; i < lanes; ++i)
      rows[i] = i >= height      ? Px::splat(0)
                : width == lanes ? Px::load(src + static_cast<ptrdiff_t>(i) * src_pitch)
                                 : Px::load(src + static_cast<ptrdiff_t>(i) * src_pitch, width);
    transpose_square(rows);
    for (size_t i = 0; i < width; ++i) {
      if (height == lanes)
        rows[i].store(dst + static_cast<ptrdiff_t>(i) * dst_pitch);
      else
        rows[i].store(dst + static_cast<ptrdiff_t>(i) * dst_pitch, height);
    }
  }
}

// Blocks keep the pages of all their rows within reach; tiles write whole cache lines.
void transpose(const AreaPair& n) {
  constexpr ptrdiff_t lanes = Px::lanes, block = 64;
  const auto least = [](ptrdiff_t a, ptrdiff_t b) { return a < b ? a : b; };
  for (ptrdiff_t y0 = 0; y0 < n.height; y0 += block)
    for (ptrdiff_t x0 = 0; x0 < n.width; x0 += block) {
      const ptrdiff_t y1 = least(y0 + block, n.height), x1 = least(x0 + block, n.width);
      for (ptrdiff_t x = x0; x < x1; x += lanes)
        for (ptrdiff_t y = y0; y < y1; y += lanes)
          transpose_tile(n.dst + x * n.dst_pitch + 4 * y, n.dst_pitch, n.src + y * n.src_pitch + 4 * x,
                         n.src_pitch, static_cast<size_t>(least(lanes, x1 - x)),
                         static_cast<size_t>(least(lanes, y1 - y)));
    }
}

}  // namespace

TESSARO_KERNELS(TurnKernels){
    .mirror = mirror,
    .swap_rows = [](uint8_t* a, uint8_t* b, size_t width) { swap_rows(a, b, width); },
    .half_turn = half_turn,
    .transpose = transpose,
};
