// Transforms that go before a codec: differences to an earlier sample, and channels into planes.
#include "codec/transforms.hpp"

#include "core/numbers.hpp"
#include "tessaro/codec.h"

using namespace tessaro;

namespace {

enum class Way { encode, decode };
using Kernels = TransformKernels;

// The kernels of this processor, or one sample after another where a sample that is still to be read would be
// overwritten within a block.
template <Way way>
int32_t run(Kernels::Pair Kernels::*which, bool any_order, const void* source, void* destination, size_t n) {
  const auto* in = static_cast<const uint8_t*>(source);
  auto* out = static_cast<uint8_t*>(destination);
  const auto ahead = reinterpret_cast<uintptr_t>(out) - reinterpret_cast<uintptr_t>(in);
  const bool wide = any_order ? ahead == 0 || ahead >= transform_block  // a negative distance is a large one
                              : ahead >= n && 0 - ahead >= n;
  const Kernels::Pair& pair = (wide ? kernels<Kernels>() : KernelTables<Kernels>::scalar).*which;
  (way == Way::encode ? pair.encode : pair.decode)(in, out, n);
  return 0;
}

}  // namespace

#define TESSARO_TRANSFORM(name, kernel, in_place, unit)                                                   \
  extern "C" int32_t TESSARO_CALL name##Encoder(const void* source, void* destination, uint32_t length,   \
                                                uint32_t* written) {                                      \
    store(written, length / unit * unit);                                                                 \
    return run<Way::encode>(&Kernels::kernel, in_place, source, destination, length / unit * unit);       \
  }                                                                                                       \
  extern "C" int32_t TESSARO_CALL name##Decoder(const void* source, void* destination, uint32_t length) { \
    return run<Way::decode>(&Kernels::kernel, in_place, source, destination, length / unit * unit);       \
  }
TESSARO_TRANSFORM(iwave11, bytes1, true, 1u)
TESSARO_TRANSFORM(iwave12, bytes2, true, 1u)
TESSARO_TRANSFORM(iwave32, bytes4, true, 1u)
TESSARO_TRANSFORM(iwave21, words1, true, 2u)
TESSARO_TRANSFORM(iwave22, words2, true, 2u)
TESSARO_TRANSFORM(ichshift2, planes2, false, 1u)
TESSARO_TRANSFORM(ichshift3, planes3, false, 1u)
TESSARO_TRANSFORM(ichshift4, planes4, false, 1u)
