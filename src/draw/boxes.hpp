// Row kernels of the boxes.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

// What the rows of a tiled area repeat.
struct TileRows {
  const uint32_t *even, *odd;
  ptrdiff_t width;
};

// The colours at the left and the right of a row.
struct RowEnds {
  uint32_t left, right;
};

struct BoxKernels {
  // Rows from y on, tile_height of them from the one pattern row, as many from the other. With a mask, the
  // patterns' bits inside it are clear.
  void (*tiles)(const Area&, const TileRows&, int64_t y, int64_t tile_height, uint32_t mask);
  // Mixes from left to right, between the ends of each row; weights are 0..256 in both halves of a word. The
  // area is part of a box of so many pixels.
  void (*gradient)(const Area&, const uint32_t* weights, const RowEnds* ends, uint32_t mask,
                   ptrdiff_t pixels);
  // (1 - u) * left + u * right of each of four bytes, truncated.
  void (*corners)(uint8_t* row, const double* u, size_t width, const float (&left)[4],
                  const float (&right)[4]);
  // The colours of the columns combined with the one of the row.
  void (*multiply)(uint8_t* row, const uint32_t* columns, size_t width, uint32_t colour);
  void (*exclusive)(uint8_t* row, const uint32_t* columns, size_t width, uint32_t colour);
};
TESSARO_DECLARE_KERNELS(BoxKernels);

}  // namespace tessaro
