// Key colours as transparency.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

struct KeyingKernels {
  void (*key_out)(const Area&, uint32_t key);
  void (*fill_keyed)(const Area&);
};
TESSARO_DECLARE_KERNELS(KeyingKernels);

}  // namespace tessaro
