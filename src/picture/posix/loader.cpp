// Pictures where the platform has no loader of its own. The device context is an image record.
#include "picture/loader.hpp"

#include <cstring>

#include "core/image.hpp"
#include "picture/posix/canvas.hpp"

namespace tessaro::platform {
namespace {

void read(const PictureFile& file, Canvas& canvas) {
  if (file.starts_with("BM", 2))
    read_bitmap_file(file, canvas);
  else
    read_packed(file, canvas);
  // Icons, cursors and metafiles are pictures without a bitmap and report as little as what is no picture.
}

// At 96 pixels an inch, to nearest.
int32_t himetric(int32_t pixels) { return static_cast<int32_t>((int64_t{2540} * pixels + 48) / 96); }

int32_t least(int32_t a, int32_t b, int32_t c) { return a < b ? (a < c ? a : c) : (b < c ? b : c); }

}  // namespace

bool picture_extent(const uint8_t* file, size_t size, PictureExtent& extent) {
  Canvas canvas(0);
  read({file, size}, canvas);
  extent = {himetric(canvas.width), himetric(canvas.height)};
  return true;
}

bool draw_picture(void* device, const uint8_t* file, size_t size) {
  if (!device) return true;
  const ImageView dst = ImageView::of(static_cast<const ImageRecord*>(device));
  Canvas canvas(dst.width > 0 ? dst.height : 0);
  read({file, size}, canvas);
  const int32_t width = least(himetric(canvas.height), canvas.width, dst.width);
  const int32_t height = least(himetric(canvas.width), canvas.last, canvas.rows);
  for (int32_t y = canvas.first; y < height; ++y)
    std::memcpy(dst.at(0, y), canvas.row(y), 4 * static_cast<size_t>(width));
  return true;
}

}  // namespace tessaro::platform
