// ichshift: interleaved channels into planes.
#include "codec/planes.hpp"

#include "core/numbers.hpp"
#include "core/overlap.hpp"
#include "tessaro/codec.h"

using namespace tessaro;

namespace {

// The kernels of this processor, or one byte after another where the memories overlap.
const PlaneKernels& kernels_for(const void* source, const void* destination, size_t n) {
  return kernels<PlaneKernels>(share_memory(source, n, destination, n) ? Backend::scalar : active_backend);
}

}  // namespace

#define TESSARO_PLANES(name, kernel)                                                                      \
  extern "C" int32_t TESSARO_CALL name##Encoder(const void* source, void* destination, uint32_t length,   \
                                                uint32_t* written) {                                      \
    store(written, length);                                                                               \
    kernels_for(source, destination, length)                                                              \
        .kernel.encode(static_cast<const uint8_t*>(source), static_cast<uint8_t*>(destination), length);  \
    return 0;                                                                                             \
  }                                                                                                       \
  extern "C" int32_t TESSARO_CALL name##Decoder(const void* source, void* destination, uint32_t length) { \
    kernels_for(source, destination, length)                                                              \
        .kernel.decode(static_cast<const uint8_t*>(source), static_cast<uint8_t*>(destination), length);  \
    return 0;                                                                                             \
  }
TESSARO_PLANES(ichshift2, of2)
TESSARO_PLANES(ichshift3, of3)
TESSARO_PLANES(ichshift4, of4)
