// One decoder under libFuzzer: the first two bytes are the count, the rest is the stream.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "tessaro/codec.h"

// The decoder for streams from elsewhere, between heap blocks of exactly the stated sizes. Where it finds the stream long
// enough, the classic decoder must make the same of it without reading more.
inline int fuzz_decoder(const uint8_t* data, size_t size, decltype(&iDecoderSafe) safe,
                        decltype(&iDecoder) classic) {
  if (size < 2) return 0;
  const uint32_t count = data[0] | uint32_t{data[1]} << 8;
  const std::unique_ptr<uint8_t[]> stream(new uint8_t[size - 2]), out(new uint8_t[count]),
      again(new uint8_t[count]);
  if (size > 2) std::memcpy(stream.get(), data + 2, size - 2);
  if (safe(stream.get(), out.get(), static_cast<uint32_t>(size - 2), count) != 0) return 0;
  if (classic(stream.get(), again.get(), count) != 0 || std::memcmp(out.get(), again.get(), count) != 0)
    std::abort();
  return 0;
}

#define TESSARO_FUZZ_DECODER(safe, classic)                                 \
  extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);  \
  extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) { \
    return fuzz_decoder(data, size, safe, classic);                         \
  }
