// kernels: MapKernels -avx2 -avx512 +avx512vbmi
// Single bytes (see look_up): gathers are no faster in noise, and slower where the entries lie near one
// another. Where bytes are permuted over tables in registers, the engine in maps.avx512vbmi.hpp stands for
// this file.
#include "mapping/lookups.hpp"

namespace {

void by_one_row(const AreaPair& n, const uint8_t* row) {
  for (ptrdiff_t y = 0; y < n.height; ++y) {
    uint8_t* dst = n.dst + y * n.dst_pitch;
    const uint8_t* src = n.src + y * n.src_pitch;
    const auto bytes = 4 * static_cast<size_t>(n.width);
    for (size_t x = 0; x < bytes; x += 4) look_up(dst + x, row, src + x);
  }
}

void by_value(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  with_kind(
      m, [&]<bool... kind>() { plain_by_value<kind...>(dst, src, width, m); });
}

}  // namespace

TESSARO_KERNELS(MapKernels){
    .by_one_row = by_one_row,
    .by_column = by_column,
    .by_value = by_value,
    .split_row = nullptr,
    .by_tables = nullptr,
};
