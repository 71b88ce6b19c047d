// iwave: each sample as its folded difference to an earlier one.
#include "codec/differences.hpp"

#include "core/numbers.hpp"
#include "core/overlap.hpp"
#include "tessaro/codec.h"

using namespace tessaro;

namespace {

// The kernels of this processor, or one sample after another where a sample that is still to be read would be
// overwritten within a block.
const DifferenceKernels& kernels_for(const void* source, const void* destination) {
  return kernels<DifferenceKernels>(reads_own_writes(destination, source, difference_block) ? Backend::scalar
                                                                                            : active_backend);
}

}  // namespace

// Of bytes or words: what does not fill a sample is neither read nor counted.
#define TESSARO_DIFFERENCES(name, kernel, bytes)                                                          \
  extern "C" int32_t TESSARO_CALL name##Encoder(const void* source, void* destination, uint32_t length,   \
                                                uint32_t* written) {                                      \
    length -= length % bytes;                                                                             \
    store(written, length);                                                                               \
    kernels_for(source, destination)                                                                      \
        .kernel.encode(static_cast<const uint8_t*>(source), static_cast<uint8_t*>(destination), length);  \
    return 0;                                                                                             \
  }                                                                                                       \
  extern "C" int32_t TESSARO_CALL name##Decoder(const void* source, void* destination, uint32_t length) { \
    length -= length % bytes;                                                                             \
    kernels_for(source, destination)                                                                      \
        .kernel.decode(static_cast<const uint8_t*>(source), static_cast<uint8_t*>(destination), length);  \
    return 0;                                                                                             \
  }
TESSARO_DIFFERENCES(iwave11, bytes1, 1)
TESSARO_DIFFERENCES(iwave12, bytes2, 1)
TESSARO_DIFFERENCES(iwave32, bytes4, 1)
TESSARO_DIFFERENCES(iwave21, words1, 2)
TESSARO_DIFFERENCES(iwave22, words2, 2)
