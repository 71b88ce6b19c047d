// Lookups of single pixels, for every form of the maps' kernels.
#pragma once

#include "mapping/maps.hpp"
#include "simd/scalar.hpp"

namespace {

using tessaro::AreaPair;
using tessaro::map_block;
using tessaro::MapByValue;

// Each byte of the pixel at `columns`, looked up in its own channel of the map row. Single bytes are read and
// written: four lookups are most of the work wherever the row changes, and putting words together would add
// to it.
template <bool keep_alpha = false>
TESSARO_INLINE void look_up(uint8_t* dst, const uint8_t* row, const uint8_t* columns) {
  const uint8_t b = row[4 * columns[0]], g = row[4 * columns[1] + 1], r = row[4 * columns[2] + 2],
                a = row[4 * columns[3] + 3];
  dst[0] = b, dst[1] = g, dst[2] = r;
  if (!keep_alpha) dst[3] = a;
}

TESSARO_INLINE int value_of(const uint8_t* pixel, bool by_sum) {
  return by_sum ? pixel[0] + pixel[1] + pixel[2] : pixel[3];
}

void by_column(uint8_t* dst, const uint8_t* src, size_t width, const uint8_t* map, const int32_t* offsets) {
  for (size_t x = 0; x < width; ++x) look_up(dst + 4 * x, map + offsets[x], src + 4 * x);
}

template <bool by_sum, bool from_dest, bool keep_alpha>
TESSARO_INLINE void look_up_by_value(uint8_t* dst, const uint8_t* src, const MapByValue& m) {
  look_up<keep_alpha>(dst, m.map + m.offsets[value_of(src, by_sum)], from_dest ? dst : src);
}
template <bool by_sum, bool from_dest, bool keep_alpha>
void plain_by_value(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  for (size_t x = 0; x < 4 * width; x += 4)
    look_up_by_value<by_sum, from_dest, keep_alpha>(dst + x, src + x, m);
}

// Calls run<by_sum, from_dest, keep_alpha>() for what the call asks.
template <class Run>
TESSARO_INLINE void with_kind(const MapByValue& m, const Run& run) {
  if (m.by_sum)
    m.from_dest ? run.template operator()<true, true, false>()
                : run.template operator()<true, false, false>();
  else if (m.keep_alpha)
    m.from_dest ? run.template operator()<false, true, true>()
                : run.template operator()<false, false, true>();
  else
    m.from_dest ? run.template operator()<false, true, false>()
                : run.template operator()<false, false, false>();
}

}  // namespace
