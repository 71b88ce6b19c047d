// The 512-bit back end of processors that permute bytes over whole registers: tables of 256 bytes in four of
// them.
#pragma once

#include "simd/avx512.hpp"

namespace {

template <>
inline constexpr bool byte_tables<Px> = true;
template <>
struct ByteTable<Px> {
  __m512i part[4];
  TESSARO_INLINE static ByteTable load(const uint8_t* from) {
    ByteTable table;
    for (int i = 0; i < 4; ++i) table.part[i] = Px::load(from + 64 * i).v;
    return table;
  }
};
template <>
TESSARO_INLINE Px look_up(const ByteTable<Px>& table, Px a) {
  // The upper bit of a byte chooses between the lower and the upper two registers.
  const __m512i low = _mm512_permutex2var_epi8(table.part[0], a.v, table.part[1]);
  const __m512i high = _mm512_permutex2var_epi8(table.part[2], a.v, table.part[3]);
  return {_mm512_mask_blend_epi8(_mm512_movepi8_mask(a.v), low, high)};
}
static_assert(LookedUpBytes<Px>);

}  // namespace
