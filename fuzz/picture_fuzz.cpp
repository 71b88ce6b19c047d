// Any bytes as a picture file: the calls return, and write only into the destination.
#include <cstdint>
#include <cstdlib>

#include "tessaro/tessaro.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 64 || size > 1 << 16) return 0;
  struct Image {
    ImageRecord record{sizeof(ImageRecord), sizeof(ImageRecord) + sizeof(ImageDims)};
    ImageDims dims{37, 29, 4 * 37};
    uint8_t pixels[29][4 * 37] = {};
  };
  // On the heap and of exact size, for the sanitizer.
  auto* image = new Image;
  int32_t width = -1, height = -1;
  const auto count = static_cast<int32_t>(size);
  const int32_t head = DecodeImageHead(data, count, &width, &height);
  const int32_t drawn = DecodeImage(&image->record, data, count);
  bool blank = true;
  for (const auto& row : image->pixels)
    for (const uint8_t byte : row) blank = blank && byte == 0;
  // What has no extent draws nothing.
  if (head != 0 || drawn != 0 || width < 0 || height < 0 || (width == 0) != (height == 0) ||
      (width == 0 && !blank))
    std::abort();
  delete image;
  return 0;
}
