// Every operation of the vocabulary as a function over runs of pixels, for each back end.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/dispatch.hpp"

namespace tessaro {

// Which words an operation takes.
enum class Takes { any, bytes_in_halves, sums, lengths, lowest_byte };

struct Operation {
  const char* name;
  Takes takes;
  void (*run)(const uint32_t* a, const uint32_t* b, const uint32_t* c, uint32_t* out, size_t pixels);
};
inline constexpr size_t run_pixels = 64;  // a multiple of all vectors and of what the packed stores take

struct VocabularyKernels {
  size_t lanes;
  const Operation* begin;
  const Operation* end;
  // What mixes lanes, for one or two vectors.
  void (*part)(const uint32_t* exact, const uint32_t* in, size_t n, uint32_t* out);
  void (*unzip)(const uint32_t* in, uint32_t* out);
  void (*halve)(const uint32_t* in, uint32_t* out);  // the means of neighbours
  void (*quads)(const uint32_t* in, uint16_t* out);  // pixel 0 times the halves of pixels 2 and 3, plus 40000
  void (*reverse)(const uint32_t* in, uint32_t* out);
  uint32_t (*zeros)(const uint32_t* in);           // P::bits of the pixels that are 0
  void (*bits)(const uint32_t* in, uint8_t* out);  // of four vectors
  void (*transpose)(uint32_t* square);
  void (*pick)(const uint32_t* in, const uint32_t* where, uint32_t* out);  // of one, then of two vectors
  void (*look_up)(const uint8_t* table, const uint32_t* in, uint32_t* out);
};
TESSARO_DECLARE_KERNELS(VocabularyKernels);

}  // namespace tessaro
