// What the readers of picture files have in common.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace tessaro::platform {

// A picture file in memory. Fields that lie past its end read as 0.
struct PictureFile {
  const uint8_t* bytes;
  size_t size;

  uint32_t field(size_t at, size_t count) const {
    uint32_t v = 0;
    for (size_t i = 0; i < count && at + i < size; ++i) v |= static_cast<uint32_t>(bytes[at + i]) << 8 * i;
    return v;
  }
  bool starts_with(const char* text, size_t count) const {
    for (size_t i = 0; i < count; ++i)
      if (i >= size || bytes[i] != static_cast<uint8_t>(text[i])) return false;
    return true;
  }
};

// Where a reader puts its picture: rows of 0xAARRGGBB from the top, alpha 0 where the file has none. Rows
// that a damaged file does not give are not drawn.
class Canvas {
 public:
  // No more rows than `wanted` are kept, so that a picture costs what is seen of it. With none, nothing but
  // the size is asked for.
  explicit Canvas(int32_t wanted) : wanted_(wanted) {}
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas() { std::free(pixels_); }

  static constexpr int64_t most_bytes = int64_t{512} << 20;
  // Whether an area is small enough to be decoded. Everything that takes time has to be: what lies outside
  // the picture too.
  static bool fits(int64_t width, int64_t height) {
    constexpr int64_t edge = 32767;
    return width >= 1 && height >= 1 && width <= edge && height <= edge && width * height * 4 <= most_bytes;
  }

  // Called once, when the size is known. False when the reader is to stop: the picture is too large, there is
  // no memory for it, or its size was all that was wanted.
  bool open(int64_t width, int64_t height) {
    if (!fits(width, height)) return false;
    this->width = static_cast<int32_t>(width);
    this->height = static_cast<int32_t>(height);
    rows = this->height < wanted_ ? this->height : wanted_;
    if (rows < 1) return false;
    pixels_ = static_cast<uint32_t*>(std::calloc(static_cast<size_t>(width) * static_cast<size_t>(rows), 4));
    return pixels_ != nullptr;
  }
  uint32_t* row(int64_t y) { return pixels_ + y * width; }

  int32_t width = 0, height = 0;
  int32_t rows = 0;             // those kept: 0 <= y < rows
  int32_t first = 0, last = 0;  // the rows that were decoded: first <= y < last

 private:
  int32_t wanted_;
  uint32_t* pixels_ = nullptr;
};

void read_bitmap_file(const PictureFile& file, Canvas& canvas);
// JPEG, PNG and GIF files; nothing where their readers are missing.
void read_packed(const PictureFile& file, Canvas& canvas);

}  // namespace tessaro::platform
