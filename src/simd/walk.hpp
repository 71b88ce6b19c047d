// The loops that run a rule over an area. A rule is a class template over the vector type, built once per
// call from its arguments; its call operator holds the arithmetic.
//
// Results are those of one pixel after another, left to right, top to bottom. Within a row that differs from
// whole vectors only where the destination lies ahead of a source by less than one vector: the vector would
// read pixels that the one-pixel form has already written. The walkers notice that.
#pragma once

#include "core/clip.hpp"
#include "simd/vocabulary.hpp"

namespace {

// True where a vector of so many bytes must not be read ahead of the writes of the pixels before it.
TESSARO_INLINE bool reads_own_writes(const void* dst, const void* src, size_t bytes) {
  const uintptr_t ahead = reinterpret_cast<uintptr_t>(dst) - reinterpret_cast<uintptr_t>(src);
  return ahead != 0 && ahead < bytes;
}

// dst[x] = rule(dst[x])
template <class P, class Rule>
TESSARO_INLINE void row1(uint8_t* dst, size_t width, const Rule& rule) {
  size_t x = 0;
  for (; x + P::lanes <= width; x += P::lanes) rule(P::load(dst + 4 * x)).store(dst + 4 * x);
  if (const size_t rest = width - x) rule(P::load(dst + 4 * x, rest)).store(dst + 4 * x, rest);
}

// dst[x] = rule(dst[x], src[x])
template <class P, class Rule>
TESSARO_INLINE void row2(uint8_t* dst, const uint8_t* src, size_t width, const Rule& rule) {
  size_t x = 0;
  for (; x + P::lanes <= width; x += P::lanes)
    rule(P::load(dst + 4 * x), P::load(src + 4 * x)).store(dst + 4 * x);
  if (const size_t rest = width - x)
    rule(P::load(dst + 4 * x, rest), P::load(src + 4 * x, rest)).store(dst + 4 * x, rest);
}

// dst[x] = rule(dst[x], a[x], b[x])
template <class P, class Rule>
TESSARO_INLINE void row3(uint8_t* dst, const uint8_t* a, const uint8_t* b, size_t width, const Rule& rule) {
  size_t x = 0;
  for (; x + P::lanes <= width; x += P::lanes)
    rule(P::load(dst + 4 * x), P::load(a + 4 * x), P::load(b + 4 * x)).store(dst + 4 * x);
  if (const size_t rest = width - x)
    rule(P::load(dst + 4 * x, rest), P::load(a + 4 * x, rest), P::load(b + 4 * x, rest))
        .store(dst + 4 * x, rest);
}

// The rule of every copy.
template <class P>
struct Replace {
  TESSARO_INLINE P operator()(P, P s) const { return s; }
};

// A frame without gaps between its rows is one long row.
template <template <class> class Rule, class... Args>
TESSARO_INLINE void walk1(tessaro::Area n, Args... args) {
  if (n.pitch == 4 * n.width) {
    n.width *= n.height;
    n.height = 1;
  }
  const Rule<Px> rule{args...};
  for (; n.height > 0; --n.height, n.at += n.pitch) row1<Px>(n.at, static_cast<size_t>(n.width), rule);
}

template <template <class> class Rule, class... Args>
TESSARO_INLINE void walk2(tessaro::AreaPair n, Args... args) {
  if (n.dst_pitch == 4 * n.width && n.src_pitch == 4 * n.width) {
    n.width *= n.height;
    n.height = 1;
  }
  const Rule<Px> rule{args...};
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    if (reads_own_writes(n.dst, n.src, 4 * Px::lanes)) [[unlikely]]
      row2<One>(n.dst, n.src, static_cast<size_t>(n.width), Rule<One>{args...});
    else
      row2<Px>(n.dst, n.src, static_cast<size_t>(n.width), rule);
  }
}

}  // namespace
