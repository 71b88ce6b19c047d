// The pixel write of the one-colour operations.
#pragma once

#include "core/image.hpp"
#include "pixel/blit.hpp"

namespace tessaro {

// Bits set in the mask keep the image's, clear ones take the colour's.
struct Pen {
  uint32_t keep, ink;
  Pen(uint32_t mask, uint32_t colour) : keep(mask), ink(colour & ~mask) {}
  void put(uint8_t* at) const { store<uint32_t>(at, (load<uint32_t>(at) & keep) | ink); }
};

// The two colours of a line, from the first two pixels of an image; false where it has fewer.
struct ColourPair {
  uint32_t c0 = 0, c1 = 0;
  bool read(const ImageRecord* image) {
    const ImageView view = ImageView::of(image);
    if (view.width < 2 || view.height < 1) return false;
    c0 = view.get(0, 0);
    c1 = view.get(1, 0);
    return true;
  }
};

// (to * weight + from * (256 - weight)) >> 8 of each byte.
inline uint32_t mixed(uint32_t from, uint32_t to, uint32_t weight) {
  constexpr uint32_t pair = 0x00FF00FF;
  const uint32_t low = (to & pair) * weight + (from & pair) * (256 - weight);
  const uint32_t high = (to >> 8 & pair) * weight + (from >> 8 & pair) * (256 - weight);
  return (low >> 8 & pair) | (high & ~pair);
}

inline void fill(const Area& area, uint32_t mask, uint32_t colour) {
  if (mask == 0)
    kernels<BlitKernels>().fill(area, colour);
  else
    kernels<BlitKernels>().masked_fill(area, mask, 0, colour);
}

}  // namespace tessaro
