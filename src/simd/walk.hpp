// The loops that run a rule over an area. A rule is a class template over the vector type, built once per
// call from its arguments; its call operator holds the arithmetic.
//
// Results are those of one pixel after another, left to right, top to bottom: where a vector would read its
// own writes, rows take the one-pixel form (core/overlap.hpp).
#pragma once

#include "core/overlap.hpp"
#include "simd/scalar.hpp"

namespace {

using tessaro::may_read_ahead;
using tessaro::reads_own_writes;

// dst[x] = rule(dst[x], sources[x]...) for the first n pixels of a vector.
template <class P, class Rule, class... Sources>
TESSARO_INLINE void part_step(uint8_t* dst, size_t x, size_t n, const Rule& rule, const Sources*... sources) {
  rule(P::load(dst + 4 * x, n), P::load(sources + 4 * x, n)...).store(dst + 4 * x, n);
}

// Four turns of the next loop as one. Written out they would keep compilers from asking a rule's questions
// about its arguments once, before the loop.
#if defined(__clang__)
#define TESSARO_FOUR_A_TURN _Pragma("clang loop unroll_count(4)")
#else
#define TESSARO_FOUR_A_TURN _Pragma("GCC unroll 4")
#endif

// The same for a row. Loops of one vector a turn would depend on where the linker puts them.
template <class P, class Rule, class... Sources>
TESSARO_INLINE void walk_row(uint8_t* dst, size_t width, const Rule& rule, const Sources*... sources) {
  size_t x = 0;
  TESSARO_FOUR_A_TURN
  for (; x + P::lanes <= width; x += P::lanes)
    rule(P::load(dst + 4 * x), P::load(sources + 4 * x)...).store(dst + 4 * x);
  if (const size_t rest = width - x) part_step<P>(dst, x, rest, rule, sources...);
}

// The rule of every copy.
template <class P>
struct Replace {
  TESSARO_INLINE P operator()(P, P s) const { return s; }
};

// An area without gaps between its rows is one long row.
TESSARO_INLINE tessaro::Area flattened(tessaro::Area n) {
  if (n.pitch != 4 * n.width) return n;
  return {n.at, n.pitch, n.width * n.height, 1};
}
TESSARO_INLINE tessaro::AreaPair flattened(tessaro::AreaPair n) {
  if (n.dst_pitch != 4 * n.width || n.src_pitch != 4 * n.width) return n;
  return {n.dst, n.dst_pitch, n.src, n.src_pitch, n.width * n.height, 1};
}

template <template <class> class Rule, class... Args>
TESSARO_INLINE void walk1(tessaro::Area n, Args... args) {
  n = flattened(n);
  const Rule<Px> rule{args...};
  for (; n.height > 0; --n.height, n.at += n.pitch) walk_row<Px>(n.at, static_cast<size_t>(n.width), rule);
}

template <template <class> class Rule, class... Args>
TESSARO_INLINE void walk2(tessaro::AreaPair n, Args... args) {
  n = flattened(n);
  const Rule<Px> rule{args...};
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    const auto width = static_cast<size_t>(n.width);
    if (reads_own_writes(n.dst, n.src, 4 * Px::lanes)) [[unlikely]]
      walk_row<One>(n.dst, width, Rule<One>{args...}, n.src);
    else
      walk_row<Px>(n.dst, width, rule, n.src);
  }
}

}  // namespace
