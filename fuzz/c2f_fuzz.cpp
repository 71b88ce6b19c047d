// The first two bytes are the size of the destination, the rest is the stream. What decodes is coded again and must come
// back, whatever the stream looked like.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "tessaro/codec.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const uint32_t count = data[0] | uint32_t{data[1]} << 8;
  const auto stream_size = static_cast<uint32_t>(size - 2);
  const std::unique_ptr<uint8_t[]> stream(new uint8_t[stream_size]), out(new uint8_t[count]());
  if (stream_size) std::memcpy(stream.get(), data + 2, stream_size);
  if (c2fDecoder(stream.get(), out.get(), stream_size, count) != 0) return 0;
  const std::unique_ptr<uint8_t[]> coded(new uint8_t[count + count / 32 + 4]), again(new uint8_t[count]());
  uint32_t written;
  c2fEncoder(out.get(), coded.get(), count, &written);
  if (written > count + count / 32 + 4 || c2fDecoder(coded.get(), again.get(), written, count) != 0 ||
      std::memcmp(out.get(), again.get(), count) != 0)
    std::abort();
  return 0;
}
