// Bitmap files (.bmp): of 1, 4, 8, 16, 24 or 32 bits a pixel, rows from the bottom or from the top; of 4 and
// 8 bits also run-length coded, then from the bottom only.
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

enum Compression : uint32_t { plain = 0, runs_of_8 = 1, runs_of_4 = 2, three_masks = 3, four_masks = 6 };

// Pairs of bytes: a count and what is repeated, or 0 and a code. Pixels that are skipped stay 0, whatever
// colour the palette begins with; they are part of the picture, so only where the codes end too early are the
// rows above missing.
void read_runs(const PictureFile& file, size_t at, const Layout& layout, Canvas& canvas) {
  enum Code : uint32_t { end_of_row = 0, end_of_picture = 1, skip = 2 };  // and above: so many pixels follow
  int32_t x = 0, y = canvas.height - 1;
  // One byte or one of its halves, the left one first; pixels to the right of the picture are left out.
  const auto put = [&](const uint8_t* from, uint32_t count, bool repeated) {
    for (uint32_t i = 0; i < count && x < canvas.width; ++i, ++x) {
      const uint8_t byte = from[repeated ? 0 : i * layout.bits / 8];
      const uint32_t index = layout.bits == 8 ? byte : i % 2 ? byte & 15u : byte >> 4;
      if (y < canvas.rows) canvas.row(y)[x] = layout.palette[index];
    }
  };
  canvas.first = canvas.last = canvas.rows;
  for (; y >= 0 && at <= file.size && file.size - at >= 2;
       canvas.first = y + 1 < canvas.rows ? y + 1 : canvas.rows) {
    const uint32_t count = file.bytes[at], code = file.bytes[at + 1];
    at += 2;
    if (count != 0) {
      put(file.bytes + at - 1, count, true);
    } else if (code == end_of_row) {
      x = 0;
      --y;
    } else if (code == end_of_picture) {
      y = -1;
    } else if (code == skip) {
      if (file.size - at < 2) break;
      x = x + file.bytes[at] < canvas.width ? x + file.bytes[at] : canvas.width;
      y = y >= file.bytes[at + 1] ? y - file.bytes[at + 1] : -1;
      at += 2;
    } else {
      const size_t bytes = (code * layout.bits + 7) / 8;
      if (file.size - at < bytes) break;
      put(file.bytes + at, code, false);
      at += bytes + bytes % 2;
    }
  }
}

}  // namespace

void read_bitmap_file(const PictureFile& file, Canvas& canvas) {
  const size_t header = file.field(file_header, 4);
  const bool old = header == 12;
  if (!old && header < 40) return;
  const auto word = [&](size_t at) { return static_cast<int32_t>(file.field(at, old ? 2 : 4)); };
  const int64_t width = word(18), stated_height = word(old ? 20 : 22);
  const bool top_down = stated_height < 0;
  const int64_t height = top_down ? -stated_height : stated_height;
  const uint32_t compression = old ? plain : file.field(30, 4), colours = old ? 0 : file.field(46, 4);
  const bool masks = compression == three_masks || compression == four_masks;
  const bool runs = compression == runs_of_8 || compression == runs_of_4;

  Layout layout{};
  layout.bits = file.field(old ? 24 : 28, 2);
  switch (layout.bits) {
    case 1:
    case 24:
      if (compression != plain) return;
      break;
    case 4:
    case 8:
      if (compression != plain && compression != (layout.bits == 8 ? runs_of_8 : runs_of_4)) return;
      if (runs && top_down) return;
      break;
    case 16:
    case 32:
      if (compression != plain && !masks) return;
      break;
    default:
      return;
  }

  // Masks of 40-byte headers follow the header, those of longer ones are part of it: at the same place.
  constexpr size_t masks_at = file_header + 40;
  const size_t palette_at =
      file_header + header + (masks && header == 40 ? (compression == four_masks ? 16 : 12) : 0);
  layout.whole = layout.bits == 32 && !masks;
  layout.red = {masks ? file.field(masks_at, 4) : 0x7C00};
  layout.green = {masks ? file.field(masks_at + 4, 4) : 0x03E0};
  layout.blue = {masks ? file.field(masks_at + 8, 4) : 0x001F};
  layout.alpha = {masks && (header >= 56 || compression == four_masks) ? file.field(masks_at + 12, 4) : 0};
  size_t used = 0;
  if (layout.bits <= 8) {
    const size_t all = size_t{1} << layout.bits, entry = old ? 3 : 4;
    used = colours == 0 || colours > all ? all : colours;
    for (size_t i = 0; i < used; ++i) layout.palette[i] = file.field(palette_at + i * entry, 3);
    used *= entry;
  }

  if (!canvas.open(width, height)) return;
  // Some writers forget the palette when they state where the pixels begin.
  const size_t stated = file.field(10, 4);
  const size_t at = stated == 0 || stated == palette_at ? palette_at + used : stated;
  if (runs) return read_runs(file, at, layout, canvas);
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
