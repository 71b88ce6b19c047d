// The one place that knows the layout of an image record.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/numbers.hpp"
#include "tessaro/types.h"

namespace tessaro {

struct ImageView {
  int32_t width;
  int32_t height;
  ptrdiff_t pitch;  // bytes; may be negative, and need not be a multiple of 4
  uint8_t* pixels;  // column 0, row 0

  // Records are handed in as const where the pixels are only read; what a view may write follows from the
  // call.
  static ImageView of(const ImageRecord* record) {
    auto* base = reinterpret_cast<uint8_t*>(const_cast<ImageRecord*>(record));
    const uint8_t* dims = base + load<int16_t>(base);
    return {load<int16_t>(dims), load<int16_t>(dims + 2), load<int16_t>(dims + 4),
            base + load<int16_t>(base + 2)};
  }

  uint8_t* at(int64_t x, int64_t y) const {
    return pixels + static_cast<ptrdiff_t>(y) * pitch + 4 * static_cast<ptrdiff_t>(x);
  }
  uint32_t get(int64_t x, int64_t y) const { return load<uint32_t>(at(x, y)); }
  void set(int64_t x, int64_t y, uint32_t v) const { store<uint32_t>(at(x, y), v); }
  bool contains(int64_t x, int64_t y) const { return x >= 0 && y >= 0 && x < width && y < height; }
};

}  // namespace tessaro
