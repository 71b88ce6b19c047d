// Stretched blits by nearest sample: the clipped call, and the kernels behind the exports.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "core/heap.hpp"
#include "simd/dispatch.hpp"

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
  int32_t* columns;  // room for columns_room(dw) numbers: the source columns; null where there is none
};

// The clip and the size checks of every stretched blit. Leaves the clipped rectangles in `rect`; false when nothing is to
// be drawn.
bool clip_stretch(const ImageView& dst, const ImageView& src, ScaledBlit& rect);

// The clipped call, its columns to be given room.
Stretch stretch_of(const ImageView& dst, const ImageView& src, const ScaledBlit& rect);
// A column for each pixel, and one for each vector of at least eight; and what it takes to start on a line of the cache,
// without which every vector of columns would be read from two. Small rectangles stay off the heap.
inline size_t columns_room(int32_t dw) { return static_cast<size_t>(dw) + static_cast<size_t>(dw) / 8 + 16; }
using Columns = ScratchArray<int32_t, 256>;
inline int32_t* aligned_columns(Columns& columns) {
  return columns ? columns.data() + -reinterpret_cast<uintptr_t>(columns.data()) / 4 % 16 : nullptr;
}
// Gives a clipped call room for its columns, where they are of use, and runs it.
template <class Run>
void run_stretch(const ImageView& dst, const ImageView& src, const ScaledBlit& rect, Run run) {
  Stretch n = stretch_of(dst, src, rect);
  Columns columns(n.dw == n.sw || n.shared ? 0 : columns_room(n.dw));
  n.columns = aligned_columns(columns);
  run(n);
}

inline constexpr int32_t status_color_filled = 0x201;
inline constexpr int32_t status_chosen = 2;

// A colour for each corner of the destination.
struct Gradient {
  uint32_t keep, mask;
  uint32_t top_left, top_right, bottom_left, bottom_right;
  bool by_alpha;
  uint32_t weight, factor;         // the constant weight; alpha_factor
  const uint32_t* column_weights;  // of the right colours, in both halves of a word
};

// t * 255 / range for t of 0..range, without a division: ((t << 8 | bias) * factor >> 16) * shift >> 16.
struct LevelFactor {
  uint32_t bias, factor, shift;
  constexpr bool is_exact(uint32_t range) const {
    for (uint32_t t = 0; t <= range; ++t)
      if (((t << 8 | bias) * factor >> 16) * shift >> 16 != t * 255 / range) return false;
    return true;
  }
};

// The levels of a colour: range is what lies between the ends, 0 where nothing lies above the low one.
struct LevelRange {
  uint32_t low, range;
  LevelFactor by;
  bool equal_ends;
};

// What happens to a sample on its way into the destination.
struct Choice {
  uint32_t keep = 0, mask = 0xFFFFFFFF, color = 0, invert = 0;
  bool by_alpha = false;
  uint32_t weight = 0, factor = 0;
  bool saturated = false;
  int32_t saturation = 0, grey = 0;  // of a channel, and of the sum of all three; in units of 1 / 1024
  bool levelled = false;
  LevelRange levels[3] = {};  // blue, green, red
  bool add_color = false, add_alpha = false, source_is_base = false;
};

struct ExpandKernels {
  void (*copy)(const Stretch&);
  void (*mix)(const Stretch&, uint32_t weight);
  void (*blend)(const Stretch&, uint32_t factor);
  void (*gradient)(const Stretch&, const Gradient&);
  void (*choose)(const Stretch&, const Choice&);
  void (*fill_by_alpha)(const AreaPair&, uint32_t color, uint32_t factor);
};
TESSARO_DECLARE_KERNELS(ExpandKernels);

// The weight, 0..256, of the far end at place `at` on a way from 0 to `last`.
inline uint32_t way_weight(int32_t at, int32_t last) {
  const auto way = static_cast<float>(static_cast<double>(at) / static_cast<double>(last));
  return !(way >= 0.0f) ? 0 : way > 1.0f ? 256 : static_cast<uint32_t>(static_cast<int32_t>(way * 256.0f));
}

}  // namespace tessaro
