// The maps' engine for processors that permute bytes over tables in registers: 64 pixels are taken apart into
// one register a channel, each is looked up in four registers that hold its column of the map row, and they
// are put together again. Nothing of it can be said in the vocabulary, whose vectors hold pixels, so it is
// written for its one back end.
#include <immintrin.h>

#include "mapping/lookups.hpp"

namespace {

// 64 pixels, one register a channel. From 16 pixels a register, four in each 128 bits, it takes three steps:
//   by_channel       bgra bgra bgra bgra -> bbbb gggg rrrr aaaa: words B G R A, each of one channel of four pixels
//   evens, odds      BGRA BGRA BGRA BGRA of two registers -> BBBBBBBB GGGGGGGG, RRRRRRRR AAAAAAAA
//   shuffle_i64x2    of two such: the lower halves are one channel of 64 pixels (0x44), the upper ones the next (0xEE)
// and the same steps backwards put them together again.
struct Planes {
  __m512i channel[4];
};

TESSARO_INLINE __m512i by_channel(__m512i pixels) {  // its own inverse
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
constexpr __mmask16 all_parts[4] = {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF};
struct RowTables {
  ByteTable<Px> channel[4];
  TESSARO_INLINE void load(const uint8_t* row) {
    for (int i = 0; i < 4; ++i) {
      const Planes p = split(row + 256 * i, all_parts);
      for (int k = 0; k < 4; ++k) channel[k].part[i] = p.channel[k];
    }
  }
};
TESSARO_INLINE void look_up(const RowTables& t, Planes& p) {
  for (int k = 0; k < 4; ++k) p.channel[k] = look_up(t.channel[k], Px{p.channel[k]}).v;
}
struct BlockMask {
  __mmask16 part[4];
  TESSARO_INLINE explicit BlockMask(uint64_t pixels) {  // one bit a pixel
    for (size_t i = 0; i < 4; ++i) part[i] = static_cast<__mmask16>(pixels >> 16 * i);
  }
  TESSARO_INLINE static uint64_t first(size_t pixels) {
    return pixels < map_block ? (uint64_t{1} << pixels) - 1 : ~uint64_t{0};
  }
};

void by_one_row(const AreaPair& n, const uint8_t* row) {
  RowTables tables;
  tables.load(row);
  uint8_t* dst = n.dst;
  const uint8_t* src = n.src;
  for (ptrdiff_t y = 0; y < n.height; ++y, dst += n.dst_pitch, src += n.src_pitch) {
    const auto width = static_cast<size_t>(n.width);
    for (size_t x = 0; x < width; x += map_block) {
      const BlockMask mask(BlockMask::first(width - x));
      Planes p = split(src + 4 * x, mask.part);
      look_up(tables, p);
      join_planes(p, dst + 4 * x, mask.part, false);
    }
  }
}

// A block of several rows: the pixels of each row that is there often go together by permutes, the others one
// by one, and all of them where hardly two neighbours agree.
template <bool by_sum, bool from_dest, bool keep_alpha>
[[gnu::noinline]] void permute_mixed(uint8_t* dst, const uint8_t* src, uint64_t all, const MapByValue& m) {
  // Tables of a row are 1 KiB to be read and sorted by channels, however few its pixels; and where the row
  // changes often, most rows of a block have few. The rows of BBIMapUCVA in the benchmarks that say "cut out"
  // live by both bounds.
  constexpr int few = 6;     // pixels of one row that are not worth its tables
  constexpr int often = 12;  // changes of the row from pixel to pixel
  const __m512i deciding = _mm512_set1_epi32(by_sum ? 0x00FFFFFF : static_cast<int>(0xFF000000));
  const BlockMask mask(all);
  __m512i s[4];
  uint64_t changes = 0;
  for (int i = 0; i < 4; ++i) {
    s[i] = _mm512_maskz_loadu_epi32(mask.part[i], src + 64 * i);
    const __m512i change = _mm512_xor_si512(s[i], _mm512_alignr_epi32(s[i], s[i], 1));
    changes |= uint64_t{_mm512_test_epi32_mask(change, deciding)} << 16 * i;
  }
  if (__builtin_popcountll(changes) > often) {
    plain_by_value<by_sum, from_dest, keep_alpha>(dst, src, static_cast<size_t>(__builtin_popcountll(all)),
                                                  m);
    return;
  }
  // Nothing is written before all is read: the destination may lie a little before its source.
  const Planes columns = split(from_dest ? dst : src, mask.part);
  Planes found = columns;
  uint64_t alone = 0;
  for (uint64_t left = all; left != 0;) {
    const uint8_t* first = src + 4 * __builtin_ctzll(left);
    const __m512i like = _mm512_set1_epi32(static_cast<int>(One::load(first).v));
    uint64_t same = 0;
    for (int i = 0; i < 4; ++i)
      same |= uint64_t{_mm512_testn_epi32_mask(_mm512_xor_si512(s[i], like), deciding)} << 16 * i;
    same &= left;
    left ^= same;
    if (__builtin_popcountll(same) < few) {
      alone |= same;
      continue;
    }
    RowTables tables;
    tables.load(m.map + m.offsets[value_of(first, by_sum)]);
    Planes p = columns;
    look_up(tables, p);
    for (int k = 0; k < 4; ++k) found.channel[k] = _mm512_mask_mov_epi8(found.channel[k], same, p.channel[k]);
  }
  for (uint64_t left = alone; left != 0; left &= left - 1) {
    const int at = 4 * __builtin_ctzll(left);
    look_up_by_value<by_sum, from_dest, keep_alpha>(dst + at, src + at, m);
  }
  join_planes(found, dst, BlockMask(all ^ alone).part, keep_alpha);
}

// Blocks of one row keep the tables of the last such row.
template <bool by_sum, bool from_dest, bool keep_alpha>
void by_value_of(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  RowTables tables;
  bool loaded = false;
  int32_t loaded_offset = 0;
  for (size_t x = 0; x < width; x += map_block) {
    const uint64_t all = BlockMask::first(width - x);
    const __m512i first = _mm512_set1_epi32(static_cast<int>(One::load(src + 4 * x).v));
    const BlockMask mask(all);
    __m512i unlike = _mm512_setzero_si512();
    for (size_t i = 0; i < 4; ++i) {
      const __m512i s = _mm512_maskz_loadu_epi32(mask.part[i], src + 4 * x + 64 * i);
      unlike = _mm512_or_si512(unlike, _mm512_maskz_xor_epi32(mask.part[i], s, first));
    }
    constexpr int deciding = by_sum ? 0x00FFFFFF : static_cast<int>(0xFF000000);
    if (_mm512_test_epi32_mask(unlike, _mm512_set1_epi32(deciding)) != 0) {
      permute_mixed<by_sum, from_dest, keep_alpha>(dst + 4 * x, src + 4 * x, all, m);
      continue;
    }
    const int32_t offset = m.offsets[value_of(src + 4 * x, by_sum)];
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

// The place may lie outside the image.
TESSARO_INLINE void prefetch(const uint8_t* at, uintptr_t ahead) {
  _mm_prefetch(reinterpret_cast<const char*>(reinterpret_cast<uintptr_t>(at) + ahead), _MM_HINT_T1);
}

// Transposes the bytes of sixteen rows of sixteen, within each 128 bits. Row i and row i + 8 are interleaved,
// four times over: each round brings one bit of the row's number down into the column's.
TESSARO_INLINE void transpose(__m512i (&v)[16]) {
  for (int round = 0; round < 4; ++round) {
    __m512i t[16];
    for (int i = 0; i < 8; ++i) {
      t[2 * i] = _mm512_unpacklo_epi8(v[i], v[i + 8]);
      t[2 * i + 1] = _mm512_unpackhi_epi8(v[i], v[i + 8]);
    }
    for (int i = 0; i < 16; ++i) v[i] = t[i];
  }
}
// Transposes four rows of four times 128 bits.
TESSARO_INLINE void transpose(__m512i (&v)[4]) {
  const __m512i a = _mm512_shuffle_i64x2(v[0], v[1], 0x44), b = _mm512_shuffle_i64x2(v[0], v[1], 0xEE);
  const __m512i c = _mm512_shuffle_i64x2(v[2], v[3], 0x44), d = _mm512_shuffle_i64x2(v[2], v[3], 0xEE);
  v[0] = _mm512_shuffle_i64x2(a, c, 0x88), v[1] = _mm512_shuffle_i64x2(a, c, 0xDD);
  v[2] = _mm512_shuffle_i64x2(b, d, 0x88), v[3] = _mm512_shuffle_i64x2(b, d, 0xDD);
}

// 16 columns of 64 rows, transposed so that a register holds one channel of one column, and back. At the
// edges of the area there are fewer: then the last row stands for those that are missing.
template <bool whole>
TESSARO_INLINE void tile_by_tables(const AreaPair& n, const uint8_t* tables, const int32_t* table_of_column,
                                   bool more) {
  alignas(64) __m512i tile[4][16];  // of each line, 16 bytes of four rows: the first 16, the second ...
  const auto some = static_cast<__mmask16>(whole || n.width >= 16 ? 0xFFFF : (1u << n.width) - 1);
  __m512i v[4], w[16];
  for (ptrdiff_t i = 0; i < 16; ++i) {
    for (ptrdiff_t j = 0; j < 4; ++j) {
      const ptrdiff_t row = whole || i + 16 * j < n.height ? i + 16 * j : n.height - 1;
      const uint8_t* src = n.src + row * n.src_pitch;
      v[j] = whole ? _mm512_loadu_si512(src) : _mm512_maskz_loadu_epi32(some, src);
      if (more) prefetch(src, 256);
    }
    transpose(v);
    for (int j = 0; j < 4; ++j) tile[j][i] = v[j];
  }
  for (int j = 0; j < 4; ++j) {
    for (int i = 0; i < 16; ++i) w[i] = tile[j][i];
    transpose(w);
    for (int x = 0; x < 4; ++x) {
      const uint8_t* table = tables + table_of_column[4 * j + x];
      for (int k = 0; k < 4; ++k, table += 256) {
        w[4 * x + k] = look_up(ByteTable<Px>::load(table), Px{w[4 * x + k]}).v;
      }
    }
    transpose(w);
    for (int i = 0; i < 16; ++i) tile[j][i] = w[i];
  }
  for (ptrdiff_t i = 0; i < 16; ++i) {
    for (int j = 0; j < 4; ++j) v[j] = tile[j][i];
    transpose(v);
    for (ptrdiff_t j = 0; j < 4; ++j) {
      const ptrdiff_t row = i + 16 * j;
      if (!whole && row >= n.height) break;
      uint8_t* dst = n.dst + row * n.dst_pitch;
      if (!whole) {
        _mm512_mask_storeu_epi32(dst, some, v[j]);
        continue;
      }
      _mm512_storeu_si512(dst, v[j]);
      if (more) prefetch(dst, 64);
    }
  }
}
void by_tables(const AreaPair& n, const uint8_t* tables, const int32_t* table_of_column) {
  for (ptrdiff_t y = 0; y < n.height; y += 64)
    for (ptrdiff_t x = 0; x < n.width; x += 16) {
      const AreaPair rest{n.dst + y * n.dst_pitch + 4 * x,
                          n.dst_pitch,
                          n.src + y * n.src_pitch + 4 * x,
                          n.src_pitch,
                          n.width - x,
                          n.height - y};
      const bool more = rest.width > 64;
      if (rest.width >= 16 && rest.height >= 64)
        tile_by_tables<true>(rest, tables, table_of_column + x, more);
      else
        tile_by_tables<false>(rest, tables, table_of_column + x, more);
    }
}

void split_row(const uint8_t* row, uint8_t* table) {
  RowTables tables;
  tables.load(row);
  for (int k = 0; k < 4; ++k)
    for (int i = 0; i < 4; ++i) _mm512_storeu_si512(table + 256 * k + 64 * i, tables.channel[k].part[i]);
}

void by_value(uint8_t* dst, const uint8_t* src, size_t width, const MapByValue& m) {
  with_kind(
      m, [&]<bool... kind>() { by_value_of<kind...>(dst, src, width, m); });
}

}  // namespace

TESSARO_KERNELS(MapKernels){
    .by_one_row = by_one_row,
    .by_column = by_column,
    .by_value = by_value,
    .split_row = split_row,
    .by_tables = by_tables,
};
