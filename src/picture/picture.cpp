// Picture files: the limits and results of the exports; the loading is the platform's.
#include "core/numbers.hpp"
#include "picture/loader.hpp"
#include "tessaro/codec.h"

using namespace tessaro;

namespace {

bool acceptable(int32_t size) { return size >= 64 && size <= 8 << 20; }

}  // namespace

extern "C" {

int32_t TESSARO_CALL DecodeImageHead(const void* file, int32_t size, int32_t* width, int32_t* height) {
  store<int32_t>(width, 0);
  store<int32_t>(height, 0);
  if (!acceptable(size)) return 1;
  platform::PictureExtent extent;
  if (!platform::picture_extent(static_cast<const uint8_t*>(file), static_cast<size_t>(size), extent))
    return 1;
  store(width, extent.width);
  store(height, extent.height);
  return 0;
}

int32_t TESSARO_CALL DecodeImage(void* device, const void* file, int32_t size) {
  if (!acceptable(size)) return 1;
  return !platform::draw_picture(device, static_cast<const uint8_t*>(file), static_cast<size_t>(size));
}

}  // extern "C"
