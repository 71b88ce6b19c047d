// kernels: MapKernels for scalar sse2 avx512
#include "mapping/maps.hpp"
#include "simd/permutes.hpp"

namespace {

using tessaro::AreaPair;
using tessaro::map_block;
using tessaro::MapByValue;

TESSARO_INLINE uint32_t pixel_at(const uint8_t* at) {
  uint32_t v;
  std::memcpy(&v, at, 4);
  return v;
}

// The four bytes of `columns`, each looked up in its own channel of the map row.
TESSARO_INLINE uint32_t look_up(const uint8_t* row, uint32_t columns) {
  return (pixel_at(row + 4 * (columns & 255)) & 0x000000FF) |
         (pixel_at(row + 4 * (columns >> 8 & 255)) & 0x0000FF00) |
         (pixel_at(row + 4 * (columns >> 16 & 255)) & 0x00FF0000) |
         (pixel_at(row + 4 * (columns >> 24)) & 0xFF000000);
}

TESSARO_INLINE uint32_t value_of(uint32_t pixel, bool by_sum) {
  return by_sum ? (pixel & 255) + (pixel >> 8 & 255) + (pixel >> 16 & 255) : pixel >> 24;
}

void plain_by_one_row(uint8_t* dst, const uint8_t* src, size_t width, const uint8_t* row) {
  for (size_t x = 0; x < 4 * width; x += 4) {
    const uint32_t out = look_up(row, pixel_at(src + x));
    std::memcpy(dst + x, &out, 4);
  }
}

#ifdef __AVX512BW__

// Sixteen pixels, each through the map row at an offset of its own.
TESSARO_INLINE __m512i gather_pixels(const uint8_t* map, __m512i offsets, __m512i columns, __mmask16 some) {
  const __m512i none = _mm512_setzero_si512(), byte = _mm512_set1_epi32(0x3FC);
  const auto fetch = [&](__m512i column_times_4) {
    const __m512i at = _mm512_add_epi32(offsets, _mm512_and_si512(column_times_4, byte));
    return _mm512_mask_i32gather_epi32(none, some, at, map, 1);
  };
  const __m512i b = fetch(_mm512_slli_epi32(columns, 2)), g = fetch(_mm512_srli_epi32(columns, 6)),
                r = fetch(_mm512_srli_epi32(columns, 14)), a = fetch(_mm512_srli_epi32(columns, 22));
  constexpr __mmask64 first = 0x1111111111111111;
  const __m512i bg = _mm512_mask_blend_epi8(first, g, b), ra = _mm512_mask_blend_epi8(first << 2, a, r);
  return _mm512_mask_blend_epi16(0x55555555, ra, bg);
}

void gather_by_column(uint8_t* dst, const uint8_t* src, size_t width, const uint8_t* map,
                      const int32_t* offsets) {
  for (size_t x = 0; x < width; x += 16) {
    const auto some = static_cast<__mmask16>(width - x < 16 ? (1u << (width - x)) - 1 : 0xFFFF);
    const __m512i out = gather_pixels(map, _mm512_maskz_loadu_epi32(some, offsets + x),
                                      _mm512_maskz_loadu_epi32(some, src + 4 * x), some);
    _mm512_mask_storeu_epi32(dst + 4 * x, some, out);
  }
}

template <bool by_sum, bool from_dest, bool keep_alpha>
void gather_by_value(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  const __m512i byte = _mm512_set1_epi32(255), alpha = _mm512_set1_epi32(static_cast<int>(0xFF000000));
  for (size_t x = 0; x < width; x += 16) {
    const auto some = static_cast<__mmask16>(width - x < 16 ? (1u << (width - x)) - 1 : 0xFFFF);
    const __m512i s = _mm512_maskz_loadu_epi32(some, src + 4 * x);
    const __m512i d = from_dest || keep_alpha ? _mm512_maskz_loadu_epi32(some, dst + 4 * x) : s;
    __m512i value = _mm512_srli_epi32(s, 24);
    if (by_sum)
      value = _mm512_add_epi32(
          _mm512_add_epi32(_mm512_and_si512(s, byte), _mm512_and_si512(_mm512_srli_epi32(s, 8), byte)),
          _mm512_and_si512(_mm512_srli_epi32(s, 16), byte));
    const __m512i offsets = _mm512_mask_i32gather_epi32(_mm512_setzero_si512(), some, value, m.offsets, 4);
    __m512i out = gather_pixels(m.map, offsets, from_dest ? d : s, some);
    if (keep_alpha) out = _mm512_ternarylogic_epi32(d, out, alpha, 0xE4);  // the third chooses d where set
    _mm512_mask_storeu_epi32(dst + 4 * x, some, out);
  }
}

// 64 pixels, one register a channel.
struct Planes {
  __m512i channel[4];
};

TESSARO_INLINE __m512i by_channel(__m512i pixels) {  // within each 128 bits; its own inverse
  return _mm512_shuffle_epi8(pixels, _mm512_set4_epi32(0x0F0B0703, 0x0E0A0602, 0x0D090501, 0x0C080400));
}
TESSARO_INLINE __m512i evens() {  // words 0, 4, 8, 12 of two registers, then words 1, 5, 9, 13
  return _mm512_setr_epi32(0, 4, 8, 12, 16, 20, 24, 28, 1, 5, 9, 13, 17, 21, 25, 29);
}
TESSARO_INLINE __m512i odds() { return _mm512_add_epi32(evens(), _mm512_set1_epi32(2)); }

TESSARO_INLINE Planes split(const uint8_t* at, const __mmask16 (&part)[4]) {
  __m512i v[4];
  for (int i = 0; i < 4; ++i) v[i] = by_channel(_mm512_maskz_loadu_epi32(part[i], at + 64 * i));
  const __m512i bg0 = _mm512_permutex2var_epi32(v[0], evens(), v[1]);
  const __m512i bg1 = _mm512_permutex2var_epi32(v[2], evens(), v[3]);
  const __m512i ra0 = _mm512_permutex2var_epi32(v[0], odds(), v[1]);
  const __m512i ra1 = _mm512_permutex2var_epi32(v[2], odds(), v[3]);
  return {_mm512_shuffle_i64x2(bg0, bg1, 0x44), _mm512_shuffle_i64x2(bg0, bg1, 0xEE),
          _mm512_shuffle_i64x2(ra0, ra1, 0x44), _mm512_shuffle_i64x2(ra0, ra1, 0xEE)};
}
TESSARO_INLINE void join_planes(const Planes& p, uint8_t* at, const __mmask16 (&part)[4], bool keep_alpha) {
  const __m512i first = _mm512_setr_epi32(0, 8, 16, 24, 1, 9, 17, 25, 2, 10, 18, 26, 3, 11, 19, 27);
  const __m512i second = _mm512_add_epi32(first, _mm512_set1_epi32(4));
  for (int half = 0; half < 2; ++half) {
    const __m512i bg = half ? _mm512_shuffle_i64x2(p.channel[0], p.channel[1], 0xEE)
                            : _mm512_shuffle_i64x2(p.channel[0], p.channel[1], 0x44);
    const __m512i ra = half ? _mm512_shuffle_i64x2(p.channel[2], p.channel[3], 0xEE)
                            : _mm512_shuffle_i64x2(p.channel[2], p.channel[3], 0x44);
    const __m512i v[2] = {by_channel(_mm512_permutex2var_epi32(bg, first, ra)),
                          by_channel(_mm512_permutex2var_epi32(bg, second, ra))};
    for (int i = 0; i < 2; ++i) {
      uint8_t* there = at + 128 * half + 64 * i;
      const __mmask16 some = part[2 * half + i];
      if (keep_alpha)
        _mm512_mask_storeu_epi8(
            there, _mm512_movepi8_mask(_mm512_maskz_mov_epi32(some, _mm512_set1_epi32(0x00808080))), v[i]);
      else
        _mm512_mask_storeu_epi32(there, some, v[i]);
    }
  }
}

// A map row as four tables of 256 bytes.
struct RowTables {
  __m512i part[4][4];  // of each channel, 64 entries
  TESSARO_INLINE void load(const uint8_t* row) {
    const __mmask16 all[4] = {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF};
    for (int i = 0; i < 4; ++i) {
      const Planes p = split(row + 256 * i, all);
      for (int k = 0; k < 4; ++k) part[k][i] = p.channel[k];
    }
  }
};
TESSARO_VBMI inline void look_up(const RowTables& t, Planes& p) {
  for (int k = 0; k < 4; ++k) {
    const __m512i i = p.channel[k];
    const __m512i low = _mm512_permutex2var_epi8(t.part[k][0], i, t.part[k][1]);
    const __m512i high = _mm512_permutex2var_epi8(t.part[k][2], i, t.part[k][3]);
    p.channel[k] = _mm512_mask_blend_epi8(_mm512_movepi8_mask(i), low, high);
  }
}
struct BlockMask {
  __mmask16 part[4];
  TESSARO_INLINE explicit BlockMask(size_t pixels) {
    for (size_t i = 0; i < 4; ++i) {
      const size_t n = pixels > 16 * i ? pixels - 16 * i : 0;
      part[i] = static_cast<__mmask16>(n < 16 ? (1u << n) - 1 : 0xFFFF);
    }
  }
};

TESSARO_VBMI void permute_by_one_row(const AreaPair& n, const uint8_t* row) {
  RowTables tables;
  tables.load(row);
  uint8_t* dst = n.dst;
  const uint8_t* src = n.src;
  for (ptrdiff_t y = 0; y < n.height; ++y, dst += n.dst_pitch, src += n.src_pitch) {
    const auto width = static_cast<size_t>(n.width);
    for (size_t x = 0; x < width; x += map_block) {
      const BlockMask mask(width - x);
      Planes p = split(src + 4 * x, mask.part);
      look_up(tables, p);
      join_planes(p, dst + 4 * x, mask.part, false);
    }
  }
}

// Pixels whose rows differ gather; blocks of one value go by permutes, with the tables of the last such row.
template <bool by_sum, bool from_dest, bool keep_alpha>
TESSARO_VBMI void permute_by_value(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  RowTables tables;
  bool loaded = false;
  int32_t loaded_offset = 0;
  for (size_t x = 0; x < width; x += map_block) {
    const size_t n = width - x < map_block ? width - x : map_block;
    const uint32_t first = pixel_at(src + 4 * x);
    const BlockMask mask(n);
    __m512i unlike = _mm512_setzero_si512();
    for (size_t i = 0; i < 4; ++i) {
      const __m512i s = _mm512_maskz_loadu_epi32(mask.part[i], src + 4 * x + 64 * i);
      unlike = _mm512_or_si512(
          unlike, _mm512_maskz_xor_epi32(mask.part[i], s, _mm512_set1_epi32(static_cast<int>(first))));
    }
    constexpr int deciding = by_sum ? 0x00FFFFFF : static_cast<int>(0xFF000000);
    if (_mm512_test_epi32_mask(unlike, _mm512_set1_epi32(deciding)) != 0) {
      gather_by_value<by_sum, from_dest, keep_alpha>(dst + 4 * x, src + 4 * x, n, m);
      continue;
    }
    const int32_t offset = m.offsets[value_of(first, by_sum)];
    if (!loaded || offset != loaded_offset) {
      tables.load(m.map + offset);
      loaded = true;
      loaded_offset = offset;
    }
    Planes p = split((from_dest ? dst : src) + 4 * x, mask.part);
    look_up(tables, p);
    join_planes(p, dst + 4 * x, mask.part, keep_alpha);
  }
}

#else

template <bool by_sum, bool from_dest, bool keep_alpha>
void plain_by_value(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  for (size_t x = 0; x < 4 * width; x += 4) {
    const uint32_t s = pixel_at(src + x), d = pixel_at(dst + x);
    uint32_t out = look_up(m.map + m.offsets[value_of(s, by_sum)], from_dest ? d : s);
    if (keep_alpha) out = (out & 0x00FFFFFF) | (d & 0xFF000000);
    std::memcpy(dst + x, &out, 4);
  }
}

void plain_by_column(uint8_t* dst, const uint8_t* src, size_t width, const uint8_t* map,
                     const int32_t* offsets) {
  for (size_t x = 0; x < width; ++x) {
    const uint32_t out = look_up(map + offsets[x], pixel_at(src + 4 * x));
    std::memcpy(dst + 4 * x, &out, 4);
  }
}

#endif

void by_one_row(const AreaPair& n, const uint8_t* row) {
#ifdef __AVX512BW__
  if (has_byte_permutes()) return permute_by_one_row(n, row);
#endif
  for (ptrdiff_t y = 0; y < n.height; ++y)
    plain_by_one_row(n.dst + y * n.dst_pitch, n.src + y * n.src_pitch, static_cast<size_t>(n.width), row);
}

template <bool by_sum, bool from_dest, bool keep_alpha>
void by_value_of(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
#ifdef __AVX512BW__
  if (has_byte_permutes())
    permute_by_value<by_sum, from_dest, keep_alpha>(dst, src, width, m);
  else
    gather_by_value<by_sum, from_dest, keep_alpha>(dst, src, width, m);
#else
  plain_by_value<by_sum, from_dest, keep_alpha>(dst, src, width, m);
#endif
}

void by_value(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  if (m.by_sum)
    (m.from_dest ? by_value_of<true, true, false> : by_value_of<true, false, false>)(dst, src, width, m);
  else if (m.keep_alpha)
    (m.from_dest ? by_value_of<false, true, true> : by_value_of<false, false, true>)(dst, src, width, m);
  else
    (m.from_dest ? by_value_of<false, true, false> : by_value_of<false, false, false>)(dst, src, width, m);
}

}  // namespace

#ifdef __AVX512BW__
TESSARO_KERNELS(MapKernels){.by_one_row = by_one_row, .by_column = gather_by_column, .by_value = by_value};
#else
TESSARO_KERNELS(MapKernels){.by_one_row = by_one_row, .by_column = plain_by_column, .by_value = by_value};
#endif
