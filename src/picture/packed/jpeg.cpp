// JPEG files through libjpeg-turbo.
#include <cstdio>
#include <cstring>
//
#include <jerror.h>
#include <jpeglib.h>

#include "picture/packed/packed.hpp"
#include "picture/packed/until_error.hpp"

namespace tessaro::platform {
namespace {

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

// A small file may claim any number of passes over a large picture. Where they are arithmetically coded they
// cost several times as much, and more for each component, without needing any data.
void jpeg_progress(j_common_ptr info) {
  const auto* reader = reinterpret_cast<j_decompress_ptr>(info);
  const int64_t pixels = static_cast<int64_t>(reader->image_width) * reader->image_height;
  const int64_t price = reader->arith_code ? 2 * reader->num_components : 1;
  if (reader->input_scan_number > 500 || reader->input_scan_number * pixels * price > int64_t{3} << 29)
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

}  // namespace tessaro::platform
