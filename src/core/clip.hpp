// Clipping of rectangles against images. Values are carried in 64 bits, so that no 32-bit argument overflows.
#pragma once

#include <cstdint>

#include "core/image.hpp"
#include "core/overlap.hpp"

namespace tessaro {

inline constexpr int32_t status_done = 0;
inline constexpr int32_t status_nothing = 1;

// Clips the rectangle against width x height and moves the companion position by what is cut at the left and
// top. Returns 1 when nothing is left.
int32_t ClipRect(int64_t width, int64_t height, int64_t& x, int64_t& y, int64_t& w, int64_t& h,
                 int64_t& other_x, int64_t& other_y);

// Clips the rectangle and shortens the companion rectangle in proportion, truncating each product. Returns 1
// for a rectangle without width or height; negative sizes pass, and so does a rectangle that ends up outside.
int32_t ClipScaledRect(int32_t width, int32_t height, int64_t& x, int64_t& y, int64_t& w, int64_t& h,
                       int64_t& other_x, int64_t& other_y, int64_t& other_w, int64_t& other_h);

struct ScaledBlit {
  int64_t dx, dy, dw, dh, sx, sy, sw, sh;
};
// Clips the source against its image first and the destination second. Returns 1 when nothing is to be drawn.
// The rectangles that remain may still be negative in size or, after truncation, reach past the source: a
// caller that walks them must check.
int32_t ClipScaledBlit(const ImageView& dst, const ImageView& src, ScaledBlit& blit);

// The clip of every one-image operation; false when nothing is left.
bool clip_one(const ImageRecord* image, int32_t x, int32_t y, int32_t w, int32_t h, Area& area);
// All of an image, for operations without a rectangle.
bool clip_whole(const ImageRecord* image, Area& area);
// The clip of every unscaled two-image operation: the destination first, then the source, with one shared
// size.
bool clip_two(const ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
              int32_t sx, int32_t sy, AreaPair& areas);

}  // namespace tessaro
