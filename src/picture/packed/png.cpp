// PNG files through libpng.
#include <cstring>
//
#include <png.h>

#include "picture/packed/packed.hpp"
#include "picture/packed/until_error.hpp"

namespace tessaro::platform {
namespace {

struct PngSource {
  const PictureFile* file;
  size_t at;
  jmp_buf out;
};
void png_failed(png_structp png, png_const_charp) {
  std::longjmp(static_cast<PngSource*>(png_get_error_ptr(png))->out, 1);
}
void png_silent(png_structp, png_const_charp) {}
void png_take(png_structp png, png_bytep to, size_t count) {
  auto* source = static_cast<PngSource*>(png_get_io_ptr(png));
  if (source->file->size - source->at < count) png_error(png, "cut");
  std::memcpy(to, source->file->bytes + source->at, count);
  source->at += count;
}

}  // namespace

void read_png(const PictureFile& file, Canvas& canvas) {
  PngSource source{&file, 0, {}};
  png_structp png = nullptr;
  png_infop info = nullptr;
  until_error(source.out, [&] {
    png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &source, png_failed, png_silent);
    if (!png) return;
    info = png_create_info_struct(png);
    if (!info) return;
    png_set_user_limits(png, 32767, 32767);
    png_set_keep_unknown_chunks(png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
    png_set_read_fn(png, &source, png_take);
    png_read_info(png, info);
    const int64_t width = png_get_image_width(png, info), height = png_get_image_height(png, info);
    // A row of 16-bit samples costs several times as much as its pixels.
    if ((static_cast<int64_t>(png_get_rowbytes(png, info)) + 4 * width) * height > Canvas::most_bytes) return;
    if (!canvas.open(width, height)) return;
    png_set_expand(png);
    png_set_scale_16(png);
    png_set_gray_to_rgb(png);
    png_set_bgr(png);
    png_set_filler(png, 0, PNG_FILLER_AFTER);
    const int passes = png_set_interlace_handling(png);
    png_read_update_info(png, info);
    if (png_get_rowbytes(png, info) != 4 * static_cast<size_t>(canvas.width)) return;
    for (int pass = 0; pass < passes; ++pass) {
      const bool last = pass == passes - 1;
      for (int32_t y = 0; y < (last ? canvas.rows : canvas.height); ++y) {
        png_read_row(png, y < canvas.rows ? reinterpret_cast<png_bytep>(canvas.row(y)) : nullptr, nullptr);
        if (last) canvas.last = y + 1;
      }
    }
  });
  png_destroy_read_struct(&png, &info, nullptr);
}

}  // namespace tessaro::platform
