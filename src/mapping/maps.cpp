// Pixels looked up in a map image.
#include "mapping/maps.hpp"

#include "core/clip.hpp"
#include "core/heap.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// What selects the map row of a pixel.
enum class Rows { first, alpha, sum, column, row };

struct Mapping {
  AreaPair areas;
  ImageView map;
  Rows rows;
  bool from_dest, keep_alpha;
  double factor;

  int32_t row_of(int64_t quantity) const { return trunc32(static_cast<double>(quantity) * factor); }
  const uint8_t* at(int64_t quantity) const { return map.at(0, row_of(quantity)); }
  int32_t offset(int64_t quantity) const { return static_cast<int32_t>(at(quantity) - map.pixels); }

  // One channel after another, each read where the walk stands: for memory that is written while it is still
  // to be read.
  void literal(uint8_t* dst, const uint8_t* src, ptrdiff_t x, ptrdiff_t y) const {
    const int64_t quantity = rows == Rows::alpha    ? src[3]
                             : rows == Rows::sum    ? src[0] + src[1] + src[2]
                             : rows == Rows::column ? 4 * x
                             : rows == Rows::row    ? y
                                                    : 0;
    const uint8_t* row = at(quantity);
    for (int k = 0; k < (keep_alpha ? 3 : 4); ++k) dst[k] = row[4 * (from_dest ? dst : src)[k] + k];
  }
  void literal_row(ptrdiff_t y) const {
    uint8_t* dst = areas.dst + y * areas.dst_pitch;
    const uint8_t* src = areas.src + y * areas.src_pitch;
    for (ptrdiff_t x = 0; x < areas.width; ++x) literal(dst + 4 * x, src + 4 * x, x, y);
  }
};

bool runs_into_itself(const Mapping& m, ptrdiff_t y) {
  const uint8_t* dst = m.areas.dst + y * m.areas.dst_pitch;
  const uint8_t* src = m.areas.src + y * m.areas.src_pitch;
  return dst != src &&
         reads_own_writes(dst + 4, src, 4 * (map_block + 1));  // less than a pixel behind counts too
}

// The rows at the top that go through tables, one for every map row in use: how many they are. Building the
// tables and transposing tiles take a good many rows to pay; then they do by far (BBIMapUCVX/512: 4.5 times
// single bytes).
ptrdiff_t by_tables(const Mapping& m, const int32_t* offsets) {
  constexpr ptrdiff_t tile = 64, worth = 24;
  AreaPair n = m.areas;
  const MapKernels& k = kernels<MapKernels>();
  if (n.height % tile < worth) n.height -= n.height % tile;
  if (n.height == 0 || n.width < worth || !k.by_tables) return 0;
  const auto width = static_cast<size_t>(n.width);
  size_t count = 1;
  for (size_t x = 1; x < width; ++x) count += offsets[x] != offsets[x - 1];
  constexpr size_t line = 64, table = 1024;
  HeapArray<uint8_t> memory(table * count + line);
  HeapArray<int32_t> places(width + 15);
  if (!memory || !places) return 0;
  uint8_t* tables = memory.data() + (line - reinterpret_cast<uintptr_t>(memory.data()) % line);
  int32_t place = -static_cast<int32_t>(table);
  for (size_t x = 0; x < width + 15; ++x) {
    if (x == 0 || (x < width && offsets[x] != offsets[x - 1])) {
      place += static_cast<int32_t>(table);
      k.split_row(m.map.pixels + offsets[x], tables + place);
    }
    places[x] = place;
  }
  k.by_tables(n, tables, places.data());
  return n.height;
}

// Columns of one map row together where they fill a block; others in tiles of so few map rows, of 1 KiB each,
// that these stay in the nearest cache, of 32 KiB or more, and so low that the pages of both images stay
// known to the processor, which keeps 64 or more in mind.
void by_columns(const Mapping& m, const int32_t* offsets) {
  constexpr ptrdiff_t few = 24, low = 32, many = 64;
  const AreaPair& n = m.areas;
  const MapKernels& k = kernels<MapKernels>();
  for (ptrdiff_t top = by_tables(m, offsets); top < n.height; top += low) {
    const ptrdiff_t rows = n.height - top < low ? n.height - top : low;
    for (ptrdiff_t x = 0, end; x < n.width; x = end) {
      const auto next = [&](ptrdiff_t from) {
        while (++from < n.width && offsets[from] == offsets[from - 1]) {
        }
        return from;
      };
      AreaPair part{n.dst + top * n.dst_pitch + 4 * x,
                    n.dst_pitch,
                    n.src + top * n.src_pitch + 4 * x,
                    n.src_pitch,
                    0,
                    rows};
      end = next(x);
      if (end - x >= many) {
        part.width = end - x;
        k.by_one_row(part, m.map.pixels + offsets[x]);
        continue;
      }
      for (ptrdiff_t taken = 1; taken < few && end < n.width; ++taken) end = next(end);
      for (; part.height > 0; --part.height, part.dst += n.dst_pitch, part.src += n.src_pitch)
        k.by_column(part.dst, part.src, static_cast<size_t>(end - x), m.map.pixels, offsets + x);
    }
  }
}

void run(const Mapping& m) {
  const AreaPair& n = m.areas;
  const MapKernels& k = kernels<MapKernels>();
  const bool over_map = share_memory(dst_of(n), {m.map.pixels, m.map.pitch, 256, m.map.height});
  // What a call has to build before its first pixel pays from so many pixels on: there it takes a fifth fewer
  // instructions than pixels one after another (AVX2).
  const ptrdiff_t table_cost = m.rows == Rows::sum ? 320 : m.rows == Rows::alpha ? 112 : 16;
  const bool tiny = n.width * n.height < table_cost;
  const bool by_value = m.rows == Rows::alpha || m.rows == Rows::sum;
  HeapArray<int32_t> offsets(by_value ? 766 : m.rows == Rows::column ? static_cast<size_t>(n.width) : 0);
  if (over_map || tiny || !offsets) {
    for (ptrdiff_t y = 0; y < n.height; ++y) m.literal_row(y);
    return;
  }
  if (by_value)
    for (int32_t v = 0; v <= (m.rows == Rows::sum ? 765 : 255); ++v)
      offsets[static_cast<size_t>(v)] = m.offset(v);
  else if (m.rows == Rows::column)
    for (ptrdiff_t x = 0; x < n.width; ++x) offsets[static_cast<size_t>(x)] = m.offset(4 * int64_t{x});

  const bool in_place = n.dst == n.src && n.dst_pitch == n.src_pitch;
  if (m.rows == Rows::column && rows_apart(dst_of(n)) && (in_place || !share_memory(dst_of(n), src_of(n))))
    return by_columns(m, offsets.data());

  const MapByValue values{m.map.pixels, offsets.data(), m.rows == Rows::sum, m.from_dest, m.keep_alpha};
  const auto width = static_cast<size_t>(n.width);
  if (m.rows == Rows::first && n.dst_pitch == n.src_pitch && !runs_into_itself(m, 0))
    return k.by_one_row(n, m.map.pixels);
  for (ptrdiff_t y = 0; y < n.height; ++y) {
    const AreaPair line{
        n.dst + y * n.dst_pitch, n.dst_pitch, n.src + y * n.src_pitch, n.src_pitch, n.width, 1};
    if (runs_into_itself(m, y)) [[unlikely]]
      m.literal_row(y);
    else if (by_value)
      k.by_value(line.dst, line.src, width, values);
    else if (m.rows == Rows::column)
      k.by_column(line.dst, line.src, width, m.map.pixels, offsets.data());
    else if (m.rows == Rows::row)
      k.by_one_row(line, m.at(y));
    else
      k.by_one_row(line, m.map.pixels);
  }
}

int32_t map_area(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map, int32_t dx, int32_t dy,
                 int32_t w, int32_t h, int32_t sx, int32_t sy, Rows rows, bool from_dest = false,
                 bool keep_alpha = false) {
  Mapping m{{}, ImageView::of(map), rows, from_dest, keep_alpha, 0.0};
  if (!clip_two(dst, src, dx, dy, w, h, sx, sy, m.areas)) return status_nothing;
  if (m.map.width < 256 || m.map.height < (keep_alpha ? 256 : 1)) return status_nothing;
  // The factor is kept in single precision, even where the last column or row then falls just short of the
  // last map row.
  const double last = m.map.height - 1;
  const auto width = static_cast<double>(m.areas.width), height = static_cast<double>(m.areas.height);
  double factor = 0.0;
  if (rows == Rows::alpha) factor = last * static_cast<double>(0.003921569f);
  if (rows == Rows::sum) factor = last * static_cast<double>(0.0013071896f);
  if (rows == Rows::column) factor = last / (width < 2 ? 1.0 : (width - 1) * 4.0);
  if (rows == Rows::row) factor = last / (height < 2 ? 1.0 : height - 1);
  m.factor = static_cast<float>(factor);
  if (m.map.height == 1) {  // the row is always the first, and only the columns' image matters
    m.rows = Rows::first;
    if (from_dest) m.areas.src = m.areas.dst, m.areas.src_pitch = m.areas.dst_pitch;
  }
  run(m);
  return status_done;
}

}  // namespace

extern "C" {

#define TESSARO_MAP(Name, ...)                                                                            \
  int32_t TESSARO_CALL Name(ImageRecord* dst, const ImageRecord* src, const ImageRecord* map, int32_t dx, \
                            int32_t dy, int32_t w, int32_t h, int32_t sx, int32_t sy) {                   \
    return map_area(dst, src, map, dx, dy, w, h, sx, sy, __VA_ARGS__);                                    \
  }
TESSARO_MAP(BBIMapUC, Rows::first)
TESSARO_MAP(BBIMapUCVA, Rows::alpha)
TESSARO_MAP(BBIMapUDVA, Rows::alpha, true)
TESSARO_MAP(BBIMapMCUCVA, Rows::alpha, false, true)
TESSARO_MAP(BBIMapMCUDVA, Rows::alpha, true, true)
TESSARO_MAP(BBIMapUCVC, Rows::sum)
TESSARO_MAP(BBIMapUDVC, Rows::sum, true)
TESSARO_MAP(BBIMapUCVX, Rows::column)
TESSARO_MAP(BBIMapUCVY, Rows::row)
#undef TESSARO_MAP

}  // extern "C"
