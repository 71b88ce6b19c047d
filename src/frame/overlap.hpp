// Whether an operation writes what it still has to read.
#pragma once

#include "frame/clip.hpp"

namespace tessaro {

struct ByteRange {
  uintptr_t first, end;
  static ByteRange of(const uint8_t* at, ptrdiff_t pitch, ptrdiff_t width, ptrdiff_t height) {
    const auto start = reinterpret_cast<uintptr_t>(at),
               last = reinterpret_cast<uintptr_t>(at + (height - 1) * pitch);
    const uintptr_t row = 4 * static_cast<uintptr_t>(width);
    return pitch < 0 ? ByteRange{last, start + row} : ByteRange{start, last + row};
  }
  bool meets(ByteRange other) const { return first < other.end && other.first < end; }
};

}  // namespace tessaro
