// Bitmap files (.bmp): uncompressed, of 1, 4, 8, 16, 24 or 32 bits a pixel, rows from the bottom or from the top.
#include <cstring>

#include "picture/posix/canvas.hpp"

namespace tessaro::platform {
namespace {

constexpr size_t file_header = 14;  // before the information header, whose length is its first field

// One channel of a pixel, stretched to a byte and rounded to nearest; 0 where the mask is.
struct Channel {
  uint32_t mask;
  uint32_t of(uint32_t pixel) const {
    if (mask == 0) return 0;
    const int shift = __builtin_ctz(mask);
    const uint64_t most = mask >> shift, value = (pixel & mask) >> shift;
    return static_cast<uint32_t>((value * 255 + most / 2) / most);
  }
};

struct Layout {
  uint32_t bits;
  bool whole;  // 32 bits without masks: the fourth byte is copied with the others, whatever it holds
  uint32_t palette[256];
  Channel red, green, blue, alpha;

  void convert(const uint8_t* from, uint32_t* to, size_t width) const {
    if (bits <= 8) {
      for (size_t x = 0; x < width; ++x) {
        const size_t bit = x * bits;
        to[x] = palette[from[bit / 8] >> (8 - bits - bit % 8) & ((1u << bits) - 1)];
      }
    } else if (bits == 24) {
      for (size_t x = 0; x < width; ++x, from += 3)
        to[x] = static_cast<uint32_t>(from[0] | from[1] << 8 | from[2] << 16);
    } else if (whole) {
      std::memcpy(to, from, 4 * width);
    } else {
      for (size_t x = 0; x < width; ++x, from += bits / 8) {
        const PictureFile pixel{from, bits / 8};
        const uint32_t v = pixel.field(0, bits / 8);
        to[x] = alpha.of(v) << 24 | red.of(v) << 16 | green.of(v) << 8 | blue.of(v);
      }
    }
  }
};

}  // namespace

void read_bitmap_file(const PictureFile& file, Canvas& canvas) {
  const size_t header = file.field(file_header, 4);
  const bool old = header == 12;
  if (!old && header < 40) return;
  const auto word = [&](size_t at) { return static_cast<int32_t>(file.field(at, old ? 2 : 4)); };
  const int64_t width = word(18), stated_height = word(old ? 20 : 22);
  const bool top_down = stated_height < 0;
  const int64_t height = top_down ? -stated_height : stated_height;
  const uint32_t compression = old ? 0 : file.field(30, 4), colours = old ? 0 : file.field(46, 4);
  const bool masks = compression == 3 || compression == 6;

  Layout layout{};
  layout.bits = file.field(old ? 24 : 28, 2);
  switch (layout.bits) {
    case 1:
    case 4:
    case 8:
    case 24:
      if (compression != 0) return;
      break;
    case 16:
    case 32:
      if (compression != 0 && !masks) return;
      break;
    default:
      return;
  }

  // Masks of 40-byte headers follow the header, those of longer ones are part of it: at the same place.
  constexpr size_t masks_at = file_header + 40;
  const size_t palette_at = file_header + header + (masks && header == 40 ? (compression == 6 ? 16 : 12) : 0);
  layout.whole = layout.bits == 32 && !masks;
  layout.red = {masks ? file.field(masks_at, 4) : 0x7C00};
  layout.green = {masks ? file.field(masks_at + 4, 4) : 0x03E0};
  layout.blue = {masks ? file.field(masks_at + 8, 4) : 0x001F};
  layout.alpha = {masks && (header >= 56 || compression == 6) ? file.field(masks_at + 12, 4) : 0};
  size_t used = 0;
  if (layout.bits <= 8) {
    const size_t all = size_t{1} << layout.bits, entry = old ? 3 : 4;
    used = colours == 0 || colours > all ? all : colours;
    for (size_t i = 0; i < used; ++i) layout.palette[i] = file.field(palette_at + i * entry, 3);
    used *= entry;
  }

  if (!canvas.open(width, height)) return;
  const size_t stated = file.field(10, 4), at = stated ? stated : palette_at + used;
  const size_t step = (static_cast<size_t>(width) * layout.bits + 31) / 32 * 4;
  const size_t row = (static_cast<size_t>(width) * layout.bits + 7) / 8;  // the last row may lack its padding
  for (int32_t y = 0; y < canvas.rows; ++y) {
    const size_t from = at + static_cast<size_t>(top_down ? y : height - 1 - y) * step;
    if (from > file.size || file.size - from < row) continue;
    layout.convert(file.bytes + from, canvas.row(y), static_cast<size_t>(width));
    if (canvas.last == 0) canvas.first = y;
    canvas.last = y + 1;
  }
}

}  // namespace tessaro::platform
