// Colour reduction with ordered dithering, and routing of channels between two images.
#pragma once

#include <cstdint>

#include "core/clip.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

// Thresholds of one row, repeated in blue, green and red: as many as the longest vector.
struct DitherRow {
  uint32_t at[16];
};

// Where the colour and the alpha of a pixel come from.
struct ChooseRows {
  uint8_t* dst;
  const uint8_t* colour;
  const uint8_t* alpha;
};
enum class AlphaFrom { alpha, mean, weights };
// Of the colours in a brightness, and those that are fixed.
struct Weights {
  double green, blue, red;
};
inline constexpr Weights luma = {0.7154, 0.0721, 0.2125};
// Weights in units of 2 to the -29, below 2: the upper 15 bits and the lower 15, blue's and red's, green's
// and alpha's in two halves of a word.
struct IntegerWeights {
  bool usable;      // they give what doubles give
  bool rounded_up;  // but where the sum is a whole number or hardly more
  uint32_t upper_even, upper_odd, lower_even, lower_odd;
};
// How a pixel is put together from one pixel for its colour and one for its alpha.
struct Assembly {
  bool grey;  // the colour is the alpha of its pixel
  AlphaFrom alpha;
  Weights weights;  // for AlphaFrom::weights
  IntegerWeights integer;
};
// For each output byte, blue first: the image and the byte of its pixel.
struct Routing {
  bool from_dest[4];
  int channel[4];
};

struct ReduceKernels {
  void (*to_1555)(uint8_t* row, size_t width, const DitherRow&);
  void (*to_4444)(uint8_t* row, size_t width, const DitherRow&);
  void (*to_1111)(uint8_t* row, size_t width, const DitherRow&);
  void (*choose)(ChooseRows, size_t width, const Assembly&);
  void (*route)(const AreaPair&, const Routing&);
};
TESSARO_DECLARE_KERNELS(ReduceKernels);

}  // namespace tessaro
