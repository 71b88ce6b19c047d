// Kernels of the maps: each channel of a pixel is looked up in one column of a map image.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

inline constexpr size_t map_block = 64;  // pixels that a kernel may read before it writes the first of them

struct MapByValue {
  const uint8_t* map;
  const int32_t* offsets;  // from the map's first row to that of an alpha, or of a sum of blue, green and red
  bool by_sum, from_dest, keep_alpha;
};

struct MapKernels {
  // All pixels through one map row.
  void (*by_one_row)(const AreaPair&, const uint8_t* map_row);
  // Each pixel through the row at its column's offset.
  void (*by_column)(uint8_t* dst, const uint8_t* src, size_t width, const uint8_t* map,
                    const int32_t* offsets);
  // Each pixel through the row of its source pixel's value.
  void (*by_value)(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue&);
  // The two below may be missing.
  // A map row as four tables of 256 bytes, one a channel.
  void (*split_row)(const uint8_t* map_row, uint8_t* table);
  // Each pixel through its column's table, given by its place among the tables; the last place is repeated up
  // to a multiple of 16 columns. The areas are one, or share no memory.
  void (*by_tables)(const AreaPair&, const uint8_t* tables, const int32_t* table_of_column);
};
TESSARO_DECLARE_KERNELS(MapKernels);

}  // namespace tessaro
