// Conversion of runs of pixels between 32-bit words and the packed layouts of bitmaps and textures.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/weights.hpp"
#include "simd/dispatch.hpp"

namespace tessaro {

enum PixelFormat { format_8888, format_888, format_565, format_555, format_1555, format_4444, format_count };

// The format of a code like 565; format_count for any other number.
PixelFormat format_of(int32_t code);

// Every kernel takes runs of count pixels at any alignment. Runs may overlap: results are those of one pixel
// after another.
struct FormatKernels {
  using Run = void (*)(uint8_t* dst, const uint8_t* src, size_t count);
  Run to_gray, to_alpha, to_bits;
  Run to[format_count], from[format_count];
  // The source has this weight of 256, the colour the rest.
  void (*mixed_with_colour[format_count])(uint8_t* dst, const uint8_t* src, size_t count, uint32_t colour,
                                          uint32_t weight);
  // b has this weight of 256, a the rest.
  void (*mixed[format_count])(uint8_t* dst, const uint8_t* a, const uint8_t* b, size_t count,
                              uint32_t weight);
  void (*saturated)(uint8_t* dst, const uint8_t* src, size_t count, SaturationParts parts);
  // Saturation, then mixed_with_colour; null where the two in turn are as fast.
  void (*saturated_to[format_count])(uint8_t* dst, const uint8_t* src, size_t count, SaturationParts parts,
                                     uint32_t colour, uint32_t weight);
  // dst[i] = palette[bit or byte i of src]; bits come most significant first.
  void (*from_bits)(uint8_t* dst, const uint8_t* src, size_t count, const uint8_t* palette);
  void (*from_bytes)(uint8_t* dst, const uint8_t* src, size_t count, const uint8_t* palette);
  // table: 256 bytes each for blue, green and red; alpha stays. Neither the table nor src may meet dst,
  // except that src may be dst, and that a run of one pixel may meet anything.
  void (*looked_up)(uint8_t* dst, const uint8_t* src, size_t count, const uint8_t* table);
  // Saturation, looked_up and mixed_with_colour, where the table does not meet dst. False, and nothing is
  // done, where the three in turn are to be called; null likewise.
  using LookedUp = bool (*)(uint8_t* dst, const uint8_t* src, size_t count, SaturationParts parts,
                            const uint8_t* table, uint32_t colour, uint32_t weight);
  LookedUp looked_up_to[format_count];
};
TESSARO_DECLARE_KERNELS(FormatKernels);

}  // namespace tessaro
