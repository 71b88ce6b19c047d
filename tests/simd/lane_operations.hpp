// Every operation of the lanes as a function from bytes to bytes, for each back end.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

enum class LaneInput { bytes, doubles, products };  // products: of 16 bits, no two of which exceed 32

struct LaneOperation {
  const char* name;
  LaneInput takes;
  void (*run)(const uint8_t* in, uint8_t* out);
};
inline constexpr size_t lane_room = 256;  // bytes that an operation may read, and write

struct LaneKernels {
  const LaneOperation* begin;
  const LaneOperation* end;
};
TESSARO_DECLARE_KERNELS(LaneKernels);

}  // namespace tessaro
