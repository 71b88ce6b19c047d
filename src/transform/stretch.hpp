// A source area stretched onto a destination area: the clipped call that exports make and kernels walk.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "core/heap.hpp"

namespace tessaro {

// A source area stretched onto a destination area. Destination pixel (j, i) shows source pixel
// (floor(j * sw / dw), floor(i * sh / dh)).
struct Stretch {
  uint8_t* dst;
  ptrdiff_t dst_pitch;
  const uint8_t* src;
  ptrdiff_t src_pitch;
  int32_t dw, dh, sw, sh;
  // The areas have bytes in common, or rows of the destination run into one another: one pixel after another.
  bool shared;
  // Room for columns_room(dw) numbers: the source columns. Null where there is none, and where none is of
  // use: areas share memory, or columns stand one below the other.
  int32_t* columns;
};

// The clip and the size checks of every stretched blit. Leaves the clipped rectangles in `rect`; false when
// nothing is to be drawn.
bool clip_stretch(const ImageView& dst, const ImageView& src, ScaledBlit& rect);

// The clipped call, its columns to be given room.
Stretch stretch_of(const ImageView& dst, const ImageView& src, const ScaledBlit& rect);
// A column for each pixel, and one for each vector of at least eight; and what it takes to start on a line of
// the cache, without which every vector of columns would be read from two. Small rectangles stay off the
// heap.
inline size_t columns_room(int32_t dw) { return static_cast<size_t>(dw) + static_cast<size_t>(dw) / 8 + 16; }
using Columns = ScratchArray<int32_t, 256>;
inline int32_t* aligned_columns(Columns& columns) {
  return columns ? columns.data() + -reinterpret_cast<uintptr_t>(columns.data()) / 4 % 16 : nullptr;
}
// Gives a clipped call room for its columns, where they are of use, and runs it.
template <class Run>
void run_stretch(const ImageView& dst, const ImageView& src, const ScaledBlit& rect, Run run) {
  Stretch n = stretch_of(dst, src, rect);
  const bool of_use = n.dw != n.sw && !n.shared;
  Columns columns(of_use ? columns_room(n.dw) : 0);
  if (of_use) n.columns = aligned_columns(columns);
  run(n);
}

}  // namespace tessaro
