// Any bytes as a picture file: the calls return, and write only into the destination.
#include <zlib.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "tessaro/tessaro.h"

namespace {

// A changed byte in the header or the palette of a PNG file would end its reading at the checksum: they are put right.
void mend_checksums(std::vector<uint8_t>& file) {
  if (std::memcmp(file.data(), "\x89PNG", 4) != 0) return;
  for (size_t at = 8; file.size() - at >= 12;) {
    uint8_t* chunk = &file[at];
    const size_t length = size_t{chunk[0]} << 24 | size_t{chunk[1]} << 16 | size_t{chunk[2]} << 8 | chunk[3];
    if (length > file.size() - at - 12) return;
    const auto sum = static_cast<uint32_t>(crc32(0, chunk + 4, static_cast<uInt>(length + 4)));
    for (size_t i = 0; i < 4; ++i) chunk[8 + length + i] = static_cast<uint8_t>(sum >> (24 - 8 * i));
    at += 12 + length;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 64 || size > 1 << 16) return 0;
  std::vector<uint8_t> file(data, data + size);
  mend_checksums(file);
  struct Image {
    ImageRecord record{sizeof(ImageRecord), sizeof(ImageRecord) + sizeof(ImageDims)};
    ImageDims dims{37, 29, 4 * 37};
    uint8_t pixels[29][4 * 37] = {};
  };
  // On the heap and of exact size, for the sanitizer.
  auto* image = new Image;
  int32_t width = -1, height = -1;
  const auto count = static_cast<int32_t>(size);
  const int32_t head = DecodeImageHead(file.data(), count, &width, &height);
  const int32_t drawn = DecodeImage(&image->record, file.data(), count);
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
