// The platform's picture loader: a picture file in memory, whatever its format. win32/ and posix/ implement
// it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessaro::platform {

// Extents are in HIMETRIC units, hundredths of a millimetre.
struct PictureExtent {
  int32_t width = 0;
  int32_t height = 0;
};

// Both return false when there is no memory for the file, and true otherwise, also when it holds no bitmap:
// then the extent stays 0 x 0 and nothing is drawn.
bool picture_extent(const uint8_t* file, size_t size, PictureExtent& extent);
// Draws at (0, 0) of the device context a rectangle whose width in pixels is the number of the picture's
// HIMETRIC height, and whose height is that of its width.
bool draw_picture(void* device, const uint8_t* file, size_t size);

}  // namespace tessaro::platform
