// The formats that are read through libraries of others: JPEG, PNG and GIF.
#pragma once

#include "picture/posix/canvas.hpp"

namespace tessaro::platform {

void read_jpeg(const PictureFile& file, Canvas& canvas);
void read_png(const PictureFile& file, Canvas& canvas);
void read_gif(const PictureFile& file, Canvas& canvas);

}  // namespace tessaro::platform

// Reads whichever of them the file is. The name counts the forms that Canvas and PictureFile have had, so
// that a library and a module of different versions do not meet.
extern "C" [[gnu::visibility("default")]] void tessaro_read_packed_1(
    const tessaro::platform::PictureFile& file, tessaro::platform::Canvas& canvas);
#define TESSARO_READ_PACKED "tessaro_read_packed_1"
