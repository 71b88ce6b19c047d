// kernels: PaintKernels
#include "pixel/paint.hpp"

#include "simd/walk.hpp"

namespace {

using tessaro::Paint;
using tessaro::PaintSpan;

TESSARO_INLINE uint32_t lanes_mask(size_t n) { return (1u << n) - 1; }

// The first pixel from x on, below end, that is the old colour, or is not; end if there is none.
template <bool wanted>
TESSARO_INLINE int32_t find(const uint8_t* row, int32_t x, int32_t end, uint32_t old) {
  constexpr auto lanes = static_cast<int32_t>(Px::lanes);
  const Px o = Px::splat(old);
  for (; x < end; x += lanes) {
    const auto n = static_cast<size_t>(end - x < lanes ? end - x : lanes);
    const uint32_t hits = (wanted ? 0 : ~0u) ^ Px::bits(equal(load_some<Px>(row + 4 * x, n), o));
    if (hits & lanes_mask(n)) return x + __builtin_ctz(hits & lanes_mask(n));
  }
  return end;
}

// How far to the left of x the old colour reaches.
TESSARO_INLINE int32_t find_left(const uint8_t* row, int32_t x, uint32_t old) {
  constexpr auto lanes = static_cast<int32_t>(Px::lanes);
  for (; x >= lanes; x -= lanes) {
    const uint32_t misses =
        ~Px::bits(equal(Px::load(row + 4 * (x - lanes)), Px::splat(old))) & lanes_mask(Px::lanes);
    if (misses) return x - lanes + 32 - __builtin_clz(misses);
  }
  while (x > 0 && One::load(row + 4 * (x - 1)).v == old) --x;
  return x;
}

template <class P>
struct Colour {
  P colour;
  TESSARO_INLINE P operator()(P) const { return colour; }
};
TESSARO_INLINE void fill(uint8_t* row, int32_t begin, int32_t end, uint32_t colour) {
  walk_row<Px>(row + 4 * begin, static_cast<size_t>(end - begin), Colour<Px>{Px::splat(colour)});
}

// Follows rows in which the old colour has exactly the place of this span, filling them, and returns the last
// one. The next row's address does not depend on what this one holds, so that the processor works on several
// at once.
TESSARO_INLINE int32_t follow(const Paint& p, PaintSpan span, int32_t step) {
  const int32_t begin = span.left, end = span.right + 1;
  const bool at_left = begin == 0, at_right = end == p.image.width;
  // A span that fits into a vector together with its neighbours takes one look.
  const int32_t from = at_left ? begin : begin - 1, to = at_right ? end : end + 1;
  const auto n = static_cast<size_t>(to - from);
  const bool narrow = n <= Px::lanes;
  const uint32_t all = narrow ? lanes_mask(n) : 0;
  const uint32_t expected = narrow ? lanes_mask(static_cast<size_t>(end - begin)) << (begin - from) : 0;
  const Px old = Px::splat(p.old);
  const auto is_old = [&](const uint8_t* at) { return One::load(at).v == p.old; };
  const auto goes_on = [&](const uint8_t* row) {
    if (narrow) return (Px::bits(equal(load_some<Px>(row + 4 * from, n), old)) & all) == expected;
    return (at_left || !is_old(row + 4 * from)) && (at_right || !is_old(row + 4 * end)) &&
           find<false>(row, begin, end, p.old) == end;
  };
  // What the processor does not fetch by itself: rows further on, of which the first lines are all in a
  // narrow span.
  constexpr ptrdiff_t rows_ahead = 16;
  const ptrdiff_t ahead = rows_ahead * step * p.image.pitch;
  int32_t y = span.y;
  for (; y + step >= 0 && y + step < p.image.height; y += step) {
    uint8_t* row = p.image.at(0, y + step);
    const auto later = reinterpret_cast<uintptr_t>(row) + static_cast<uintptr_t>(ahead);
    for (int32_t x = begin; x < end && x < begin + 64; x += 16)
      __builtin_prefetch(reinterpret_cast<const void*>(later + 4 * static_cast<uintptr_t>(x)), 1);
    if (!goes_on(row)) break;
    fill(row, begin, end, p.colour);
  }
  return y;
}

void flood(Paint& p) {
  size_t pending = 0;
  // Spans are filled when they are found, so that none is found twice.
  const auto take = [&](uint8_t* row, int32_t y, int32_t begin, int32_t end) {
    fill(row, begin, end, p.colour);
    // Only rows that run into one another make more spans than there is room for: filling one may uncover
    // others again.
    if (pending < p.room)
      p.pending[pending++] = {static_cast<uint16_t>(y), static_cast<uint16_t>(begin),
                              static_cast<uint16_t>(end - 1)};
    if (begin < p.left) p.left = begin;
    if (end - 1 > p.right) p.right = end - 1;
  };
  const auto reach = [&](int32_t y) {
    if (y < p.top) p.top = y;
    if (y > p.bottom) p.bottom = y;
  };
  p.left = p.right = p.x;
  p.top = p.bottom = p.y;
  uint8_t* seed = p.image.at(0, p.y);
  take(seed, p.y, find_left(seed, p.x, p.old), find<false>(seed, p.x, p.image.width, p.old));
  while (pending > 0) {
    const PaintSpan span = p.pending[--pending];
    for (int32_t step = 1; step >= -1; step -= 2) {
      const int32_t y = follow(p, span, step) + step;
      reach(y - step);
      if (y < 0 || y >= p.image.height) continue;
      uint8_t* row = p.image.at(0, y);
      const int32_t beyond = span.right + 1;
      for (int32_t x = find<true>(row, span.left, beyond, p.old); x < beyond;) {
        const int32_t begin = x == span.left ? find_left(row, x, p.old) : x;
        const int32_t end = find<false>(row, x, p.image.width, p.old);
        take(row, y, begin, end);
        x = find<true>(row, end, beyond, p.old);
      }
    }
  }
}

}  // namespace

TESSARO_KERNELS(PaintKernels){.flood = flood};
