// Permutes over tables of bytes in registers: an extension of AVX-512 of its own, asked for at run time.
#pragma once

#include "simd/vocabulary.hpp"

#if TESSARO_LANES == 16
#define TESSARO_VBMI [[gnu::target("avx512vbmi")]]

namespace {

TESSARO_INLINE bool has_byte_permutes() { return __builtin_cpu_supports("avx512vbmi"); }

// 256 bytes, and the one of them for each byte of i.
struct ByteTable {
  __m512i part[4];
};
TESSARO_VBMI inline __m512i look_up(const ByteTable& table, __m512i i) {
  const __m512i low = _mm512_permutex2var_epi8(table.part[0], i, table.part[1]);
  const __m512i high = _mm512_permutex2var_epi8(table.part[2], i, table.part[3]);
  return _mm512_mask_blend_epi8(_mm512_movepi8_mask(i), low, high);
}

}  // namespace
#endif
