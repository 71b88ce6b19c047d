// Rows that are written without being read, and only copied from what lies ready elsewhere.
#pragma once

#include "simd/dispatch.hpp"
#include "simd/walk.hpp"

namespace {

// From here on string instructions fill faster than vectors: they need not fetch the lines that they
// overwrite. Where areas are not streamed, the C library's memmove copies faster too.
constexpr ptrdiff_t long_row = 4096;

// From this width on rows are worth a start of their own that aligns their stores.
constexpr ptrdiff_t aligned_width = 4 * Px::lanes;

// Whether an area is so large that its rows are written past the caches: lives as long as they are.
class Streaming {
 public:
  TESSARO_INLINE Streaming(ptrdiff_t pixels, ptrdiff_t width)
      : on_(pixels >= tessaro::streamed_area && width >= aligned_width) {}
  TESSARO_INLINE ~Streaming() {
    if (on_) Px::fence();
  }
  Streaming(const Streaming&) = delete;
  Streaming& operator=(const Streaming&) = delete;
  TESSARO_INLINE bool on() const { return on_; }

 private:
  bool on_;
};

// Pixels may start at any byte; where they can be aligned, so many stand before the first aligned vector.
TESSARO_INLINE bool can_align(const uint8_t* row) { return reinterpret_cast<uintptr_t>(row) % 4 == 0; }
TESSARO_INLINE size_t pixels_to_align(const uint8_t* row) {
  return -reinterpret_cast<uintptr_t>(row) / 4 % Px::lanes;
}

// dst[x] = rule(dst[x], sources[x]...) for a row that is not read: past the caches from the first aligned
// vector to the last whole one. The pixels must be such that can be aligned.
template <class P, class Rule, class... Sources>
TESSARO_INLINE void stream_row(uint8_t* dst, size_t width, const Rule& rule, const Sources*... sources) {
  size_t x = pixels_to_align(dst);
  if (x > width) x = width;
  if (x != 0) part_step<P>(dst, 0, x, rule, sources...);
  for (; x + P::lanes <= width; x += P::lanes)
    rule(P::splat(0), P::load(sources + 4 * x)...).stream(dst + 4 * x);
  if (const size_t rest = width - x) part_step<P>(dst, x, rest, rule, sources...);
}

// Copies rows of an area; chosen once for all its rows. Source and destination share no memory, or the
// destination lies before its source.
class RowWriter {
 public:
  TESSARO_INLINE RowWriter(ptrdiff_t width, ptrdiff_t height)
      : streaming_(width * height, width), moves_(tessaro::string_moves && width >= long_row) {}
  // Rows pay that are prepared in the nearest cache and written from there.
  TESSARO_INLINE bool passes_caches() const { return streaming_.on(); }

  TESSARO_INLINE void operator()(uint8_t* dst, const uint8_t* src, size_t width) const {
    if (moves_) {
      __builtin_memmove(dst, src, 4 * width);
      return;
    }
    if (streaming_.on() && can_align(dst)) return stream_row<Px>(dst, width, Replace<Px>{}, src);
    // Aligned stores: where the pitch is no multiple of a vector, others would cross two lines of the cache
    // each.
    if (const size_t ahead = pixels_to_align(dst); ahead != 0 && width >= aligned_width) {
      Px::load(src, ahead).store(dst, ahead);
      dst += 4 * ahead;
      src += 4 * ahead;
      width -= ahead;
    }
    walk_row<Px>(dst, width, Replace<Px>{}, src);
  }

 private:
  Streaming streaming_;
  bool moves_;
};

}  // namespace
