// One decoder under libFuzzer: the first two bytes are the count, the rest is the stream. DECODER is the decoder that trusts
// its stream, SAFE_DECODER the one that does not.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "tessaro/codec.h"

// Between heap blocks of exactly the stated sizes. Where the one for streams from elsewhere finds the stream long enough, the
// other must make the same of it without reading more.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const uint32_t count = data[0] | uint32_t{data[1]} << 8;
  const std::unique_ptr<uint8_t[]> stream(new uint8_t[size - 2]), out(new uint8_t[count]),
      again(new uint8_t[count]);
  if (size > 2) std::memcpy(stream.get(), data + 2, size - 2);
  if (SAFE_DECODER(stream.get(), out.get(), static_cast<uint32_t>(size - 2), count) != 0) return 0;
  if (DECODER(stream.get(), again.get(), count) != 0 || std::memcmp(out.get(), again.get(), count) != 0)
    std::abort();
  return 0;
}
