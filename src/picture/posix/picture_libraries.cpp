// JPEG, PNG and GIF files through libjpeg-turbo, libpng and giflib.
#include <csetjmp>
#include <cstdio>
#include <cstring>
//
#include <gif_lib.h>
#include <jerror.h>
#include <jpeglib.h>
#include <png.h>

#include "picture/posix/canvas.hpp"

namespace tessaro::platform {
namespace {

// libjpeg and libpng report errors through a function that must not return. This is the only place to which they jump;
// nothing with a destructor may live in `body`, and what it changes must lie outside.
template <class Body>
[[gnu::noinline]] void until_error(jmp_buf& out, const Body& body) {
  if (!setjmp(out)) body();
}

// ---- JPEG

struct JpegErrors : jpeg_error_mgr {
  jmp_buf out;
  bool drained = false;  // the entropy-coded data has ended, what follows is filled in
};
void jpeg_failed(j_common_ptr info) { std::longjmp(static_cast<JpegErrors*>(info->err)->out, 1); }
void jpeg_message(j_common_ptr info, int level) {
  auto* errors = static_cast<JpegErrors*>(info->err);
  constexpr int end_of_image = 0xD9;
  if (level < 0 && errors->msg_code == JWRN_HIT_MARKER &&
      reinterpret_cast<j_decompress_ptr>(info)->unread_marker == end_of_image)
    errors->drained = true;
}
void jpeg_silent(j_common_ptr) {}

// A small file may claim any number of passes over a large picture.
void jpeg_progress(j_common_ptr info) {
  const auto* reader = reinterpret_cast<j_decompress_ptr>(info);
  const int64_t pixels = static_cast<int64_t>(reader->image_width) * reader->image_height;
  if (reader->input_scan_number > 500 || reader->input_scan_number * pixels > int64_t{1} << 31)
    jpeg_failed(info);
}

// Files with an Adobe marker store inks inverted.
void jpeg_from_inks(uint32_t* row, size_t width, bool inverted) {
  for (size_t x = 0; x < width; ++x) {
    uint8_t ink[4];
    std::memcpy(ink, row + x, 4);
    for (uint8_t& v : ink) v = inverted ? v : static_cast<uint8_t>(255 - v);
    const auto channel = [&](int i) { return static_cast<uint32_t>((ink[i] * ink[3] + 127) / 255); };
    row[x] = channel(0) << 16 | channel(1) << 8 | channel(2);
  }
}

// ---- PNG

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

void read_jpeg(const PictureFile& file, Canvas& canvas) {
  jpeg_decompress_struct reader{};
  jpeg_progress_mgr progress{};
  JpegErrors errors{};
  reader.err = jpeg_std_error(&errors);
  errors.error_exit = jpeg_failed;
  errors.emit_message = jpeg_message;
  errors.output_message = jpeg_silent;
  progress.progress_monitor = jpeg_progress;
  until_error(errors.out, [&] {
    jpeg_create_decompress(&reader);
    reader.progress = &progress;
    reader.mem->max_memory_to_use = long{512} << 20;
    jpeg_mem_src(&reader, file.bytes, static_cast<unsigned long>(file.size));
    jpeg_read_header(&reader, TRUE);
    if (!canvas.open(reader.image_width, reader.image_height)) return;
    const bool inks = reader.num_components == 4;
    reader.out_color_space = inks ? JCS_CMYK : JCS_EXT_BGRX;
    jpeg_start_decompress(&reader);
    const size_t width = static_cast<size_t>(canvas.width);
    // Of several passes all were read before the first row; with one, rows come as they are read.
    const bool passes = jpeg_has_multiple_scans(&reader);
    while (canvas.last < canvas.rows && (passes || !errors.drained)) {
      uint32_t* row = canvas.row(canvas.last);
      auto* bytes = reinterpret_cast<JSAMPROW>(row);
      jpeg_read_scanlines(&reader, &bytes, 1);
      if (inks)
        jpeg_from_inks(row, width, reader.saw_Adobe_marker);
      else
        for (size_t x = 0; x < width; ++x) row[x] &= 0xFFFFFF;
      ++canvas.last;
    }
  });
  jpeg_destroy_decompress(&reader);
}

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
    if (!canvas.open(png_get_image_width(png, info), png_get_image_height(png, info))) return;
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

// ---- GIF: the first image on its screen

namespace {

struct GifSource {
  const PictureFile* file;
  size_t at;
};
int gif_take(GifFileType* gif, GifByteType* to, int count) {
  auto* source = static_cast<GifSource*>(gif->UserData);
  const size_t rest = source->file->size - source->at;
  const size_t taken = static_cast<size_t>(count) < rest ? static_cast<size_t>(count) : rest;
  std::memcpy(to, source->file->bytes + source->at, taken);
  source->at += taken;
  return static_cast<int>(taken);
}

// Goes on to the first image; the transparent index of the extension before it, or NO_TRANSPARENT_COLOR.
bool gif_find_image(GifFileType* gif, int& transparent) {
  for (;;) {
    GifRecordType type = UNDEFINED_RECORD_TYPE;
    if (DGifGetRecordType(gif, &type) == GIF_ERROR) return false;
    if (type == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(gif) != GIF_ERROR;
    if (type != EXTENSION_RECORD_TYPE) return false;
    int code = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(gif, &code, &block) == GIF_ERROR) return false;
    GraphicsControlBlock control{};
    if (block && code == GRAPHICS_EXT_FUNC_CODE &&
        DGifExtensionToGCB(block[0], block + 1, &control) != GIF_ERROR)
      transparent = control.TransparentColor;
    while (block)
      if (DGifGetExtensionNext(gif, &block) == GIF_ERROR) return false;
  }
}

void gif_read_image(GifFileType* gif, Canvas& canvas) {
  int transparent = NO_TRANSPARENT_COLOR;
  if (!gif_find_image(gif, transparent)) return;
  const GifImageDesc& image = gif->Image;
  const ColorMapObject* map = image.ColorMap ? image.ColorMap : gif->SColorMap;
  if (!map || image.Width < 1 || image.Height < 1 || !canvas.open(gif->SWidth, gif->SHeight)) return;

  uint32_t palette[256] = {};
  const uint32_t opaque = transparent == NO_TRANSPARENT_COLOR ? 0 : 0xFF000000;
  for (int i = 0; i < map->ColorCount && i < 256; ++i) {
    const GifColorType& c = map->Colors[i];
    palette[i] = opaque | static_cast<uint32_t>(c.Red << 16 | c.Green << 8 | c.Blue);
  }
  if (transparent >= 0 && transparent < 256) palette[transparent] &= 0xFFFFFF;

  const int32_t right = image.Left + image.Width < canvas.width ? image.Width : canvas.width - image.Left;
  GifByteType line[65536];  // a width has 16 bits
  constexpr int first[] = {0, 4, 2, 1}, step[] = {8, 8, 4, 2};
  for (int pass = 0; pass < (image.Interlace ? 4 : 1); ++pass)
    for (int32_t y = image.Interlace ? first[pass] : 0; y < image.Height;
         y += image.Interlace ? step[pass] : 1) {
      if (DGifGetLine(gif, line, image.Width) == GIF_ERROR) return;
      const int32_t at = image.Top + y;
      if (at < canvas.rows)
        for (int32_t x = 0; x < right; ++x) canvas.row(at)[image.Left + x] = palette[line[x]];
      else if (!image.Interlace)
        break;
      if (!image.Interlace) canvas.last = at + 1;
    }
  canvas.last = canvas.rows;
}

}  // namespace

void read_gif(const PictureFile& file, Canvas& canvas) {
  GifSource source{&file, 0};
  GifFileType* gif = DGifOpen(&source, gif_take, nullptr);
  if (!gif) return;
  gif_read_image(gif, canvas);
  DGifCloseFile(gif, nullptr);
}

}  // namespace tessaro::platform
