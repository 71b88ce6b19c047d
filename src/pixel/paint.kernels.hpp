// kernels: PaintKernels for scalar sse2 avx2 avx512
#include "pixel/paint.hpp"

#include "simd/walk.hpp"

namespace {

using tessaro::Paint;
using tessaro::PaintSpan;

TESSARO_INLINE uint32_t lanes_mask(size_t n) { return (1u << n) - 1; }

TESSARO_INLINE Px load_some(const uint8_t* at, size_t n) {
  return n == Px::lanes ? Px::load(at) : Px::load(at, n);
}

// The first pixel from x on, below end, that is the old colour, or is not; end if there is none.
template <bool wanted>
TESSARO_INLINE int32_t find(const uint8_t* row, int32_t x, int32_t end, uint32_t old) {
  constexpr auto lanes = static_cast<int32_t>(Px::lanes);
  const Px o = Px::splat(old);
  for (; x < end; x += lanes) {
    const auto n = static_cast<size_t>(end - x < lanes ? end - x : lanes);
    const uint32_t hits = (wanted ? 0 : ~0u) ^ Px::bits(equal(load_some(row + 4 * x, n), o));
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
  row1<Px>(row + 4 * begin, static_cast<size_t>(end - begin), Colour<Px>{Px::splat(colour)});
}

// Follows rows in which the old colour has exactly the place of this span, filling them, and returns the last one. A
// corridor costs one look and one store a row, and the next row's address does not depend on what this one holds, so
// that the processor works on several at once.
TESSARO_INLINE int32_t follow(const Paint& p, PaintSpan span, int32_t step) {
  const int32_t begin = span.left > 0 ? span.left - 1 : 0;
  const int32_t end = span.right + 2 < p.image.width ? span.right + 2 : p.image.width;
  const auto n = static_cast<size_t>(end - begin);
  int32_t y = span.y;
  if (n > Px::lanes) return y;
  const uint32_t expected = lanes_mask(static_cast<size_t>(span.right - span.left + 1))
                            << (span.left - begin);
  const Px old = Px::splat(p.old);
  for (; y + step >= 0 && y + step < p.image.height; y += step) {
    uint8_t* row = p.image.at(0, y + step);
    constexpr ptrdiff_t rows_ahead = 16;
    __builtin_prefetch(
        reinterpret_cast<const void*>(reinterpret_cast<uintptr_t>(row + 4 * begin) +
                                      static_cast<uintptr_t>(rows_ahead * step * p.image.pitch)),
        1);
    if ((Px::bits(equal(load_some(row + 4 * begin, n), old)) & lanes_mask(n)) != expected) break;
    fill(row, span.left, span.right + 1, p.colour);
  }
  return y;
}

void flood(Paint& p) {
  size_t pending = 0;
  // Spans are filled when they are found, so that none is found twice.
  const auto take = [&](uint8_t* row, int32_t y, int32_t begin, int32_t end) {
    fill(row, begin, end, p.colour);
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
