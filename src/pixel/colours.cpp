// The colours of an image, counted and collected.
#include "core/clip.hpp"
#include "core/heap.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

constexpr uint32_t colour_bits = 0x00FFFFFF;
constexpr uint32_t taken =
    0xFF000000;  // marks a used place of a hash table, so that black differs from nothing

// The place of a colour in a table of 2^bits places, of which one at least stays free: where it is, or where
// it would go.
uint32_t place_of(const uint32_t* table, int bits, uint32_t entry) {
  uint32_t at = (entry & colour_bits) * 0x9E3779B1u >> (32 - bits);
  while (table[at] != entry && table[at] != 0) at = (at + 1) & ((1u << bits) - 1);
  return at;
}

template <class Visit>
void for_pixels(const Area& n, const Visit& visit) {
  uint8_t* row = n.at;
  for (ptrdiff_t y = 0; y < n.height; ++y, row += n.pitch)
    for (ptrdiff_t x = 0; x < n.width; ++x) visit(row + 4 * x);
}

// For images with far fewer pixels than there are colours: clearing a bit for every colour would take longer
// than looking at the pixels.
int32_t count_few(const Area& area) {
  int bits = 6;
  while (ptrdiff_t{1} << bits < 2 * area.width * area.height) ++bits;
  HeapArray<uint32_t> table(size_t{1} << bits, true);
  if (!table) return 0;
  int32_t count = 0;
  for_pixels(area, [&](const uint8_t* p) {
    const uint32_t entry = load<uint32_t>(p) | taken;
    uint32_t& place = table[place_of(table.data(), bits, entry)];
    count += place == 0;
    place = entry;
  });
  return count;
}

int32_t count_many(const Area& area) {
  HeapArray<uint32_t> seen((colour_bits + 1) / 32, true);
  if (!seen) return 0;
  int32_t count = 0;
  for_pixels(area, [&](const uint8_t* p) {
    const uint32_t colour = load<uint32_t>(p) & colour_bits, bit = 1u << (colour & 31);
    // Most pixels of most pictures have been seen: a branch lets the next one start without waiting for a
    // store.
    if (uint32_t& word = seen[colour >> 5]; !(word & bit)) {
      word |= bit;
      ++count;
    }
  });
  return count;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIColorCount(const ImageRecord* image, int32_t flag) {
  Area area;
  if (flag != 0 || !clip_whole(image, area)) return 0;
  constexpr ptrdiff_t few = 1 << 15;
  return area.width * area.height <= few ? count_few(area) : count_many(area);
}

int32_t TESSARO_CALL BBIColorPalette(ImageRecord* image, uint32_t* palette, int32_t max) {
  Area area;
  if (max < 0 || max > 256 || !clip_whole(image, area)) return 0;
  // Colours beyond the palette are not remembered, so that at most 256 are looked up and a small table
  // serves.
  constexpr int bits = 11;
  uint32_t colours[1 << bits] = {};
  uint8_t index[1 << bits] = {};  // 0 for a colour that is not there
  int32_t count = 0;
  for_pixels(area, [&](uint8_t* p) {
    const uint32_t colour = load<uint32_t>(p) & colour_bits;
    const uint32_t at = place_of(colours, bits, colour | taken);
    if (colours[at] == 0) {
      ++count;
      if (count <= max) {
        colours[at] = colour | taken;
        index[at] = static_cast<uint8_t>(count - 1);
        store(palette + (count - 1), colour);
      }
    }
    store(p, static_cast<uint32_t>(index[at]) << 24 | colour);
  });
  return count;
}

}  // extern "C"
