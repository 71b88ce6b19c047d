// Blurs of rows and of columns by a sliding window.
#include <array>
#include <cstring>

#include "core/heap.hpp"
#include "pixel/blit.hpp"
#include "tessaro/tessaro.h"
#include "transform/means.hpp"

using namespace tessaro;

namespace {

// A blur of one row or column, pixel after pixel: what the faster forms must equal, and what overlapping
// memory gets.
void blur_in_order(uint8_t* dst, ptrdiff_t dst_step, const uint8_t* src, ptrdiff_t src_step, ptrdiff_t n,
                   ptrdiff_t r, bool loop) {
  std::array<uint32_t, 256> ring;
  uint8_t newest = 0, oldest = 0;  // both wrap with the ring
  uint64_t sums = 0;
  size_t count = 0;
  for (ptrdiff_t i = loop ? -2 * r : -r; i < n; ++i) {
    if (loop || i < n - r) {
      const ptrdiff_t from = i + r < 0 ? i + r + n : i + r < n ? i + r : i + r - n;
      const auto pixel = load<uint32_t>(src + from * src_step);
      ring[newest++] = pixel;
      sums += widened(pixel);
      ++count;
    }
    if (i >= 0) store(dst + i * dst_step, divided(sums, dividers.of(count)));
    if (i >= (loop ? 0 : r)) {
      sums -= widened(ring[oldest++]);
      --count;
    }
  }
}

// Rows: sums from the start of the row, then differences of them.
void blur_rows(AreaPair n, ptrdiff_t r, bool loop) {
  const MeanKernels& k = kernels<MeanKernels>();
  const auto width = static_cast<size_t>(n.width), radius = static_cast<size_t>(r);
  const size_t row = 4 * width;
  // Room for the window that hangs over at both ends.
  HeapArray<uint16_t> sums(4 * (width + 2 * radius + 1));
  const Divider full = dividers.of(2 * radius + 1);
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    // A whole row is read before it is written. In order, pixel i + r is read before pixel i is written, so
    // that only a destination further ahead of its source than that, or one that a loop comes back to, makes
    // a difference.
    if (!sums || (share_memory(n.dst, row, n.src, row) && (loop || distance(n) > 4 * r))) {
      blur_in_order(n.dst, 4, n.src, 4, n.width, r, loop);
      continue;
    }
    uint16_t* at = sums.data();
    if (loop) {
      std::memset(at, 0, 8);
      k.running_sums(at, n.src + 4 * (n.width - r), radius);
      k.running_sums(at + 4 * radius, n.src, width);
      k.running_sums(at + 4 * (radius + width), n.src, radius);
      k.means(n.dst, at + 4 * (2 * radius + 1), at, 4 * width, full);
      continue;
    }
    std::memset(at, 0, 8 * (radius + 1));
    k.running_sums(at + 4 * radius, n.src, width);
    const uint16_t* total = at + 4 * (radius + width);
    for (size_t i = 1; i <= radius; ++i) std::memcpy(at + 4 * (radius + width + i), total, 8);
    const auto tapered = [&](size_t x, size_t from) {
      k.tapered_means(n.dst + 4 * x, at + 4 * (x + 2 * radius + 1), at + 4 * x, 4 * radius,
                      &dividers.first[4 * from], &dividers.second[4 * from], &dividers.bias[4 * from]);
    };
    tapered(0, radius + 1);
    k.means(n.dst + 4 * radius, at + 4 * (3 * radius + 1), at + 4 * radius, 4 * (width - 2 * radius), full);
    tapered(width - radius, 511 - 2 * radius);
  }
}

// Columns: one running sum each, all of them moving down a row at a time. False when there is no memory for
// it.
bool blur_columns(const AreaPair& n, ptrdiff_t r, bool loop) {
  const MeanKernels& k = kernels<MeanKernels>();
  const auto lanes = static_cast<size_t>(4 * n.width);
  // Rows that may be overwritten before they leave the window are kept.
  const bool keep = share_memory(dst_of(n), src_of(n));
  const ptrdiff_t slots = 2 * r + 1;
  HeapArray<uint16_t> sums(column_room(lanes), true);
  HeapArray<uint8_t> kept(keep ? static_cast<size_t>(slots) * lanes : 0);
  if (!sums || !kept) return false;
  const auto slot = [&](ptrdiff_t i) {
    return kept.data() + static_cast<size_t>((i + slots) % slots) * lanes;
  };
  const auto row = [&](ptrdiff_t i) {
    return n.src + (i < 0 ? i + n.height : i < n.height ? i : i - n.height) * n.src_pitch;
  };
  size_t count = 0;
  for (ptrdiff_t i = loop ? -2 * r : -r; i < n.height; ++i) {
    const uint8_t *add = nullptr, *remove = nullptr;
    if (loop || i < n.height - r) {
      add = row(i + r);
      if (keep) add = static_cast<const uint8_t*>(std::memcpy(slot(i + r), add, lanes));
      ++count;
    }
    if (i >= (loop ? 0 : r)) remove = keep ? slot(i - r) : row(i - r);
    uint8_t* out = n.dst + i * n.dst_pitch;
    if (add && remove) {
      k.slide(out, sums.data(), add, remove, lanes, dividers.of(count));
    } else {
      if (add) k.accumulate(sums.data(), add, lanes, 1);
      if (i >= 0) k.divide(out, sums.data(), lanes, dividers.of(count));
      if (remove) k.subtract(sums.data(), remove, lanes);
    }
    if (remove) --count;
  }
  return true;
}

enum class Axis { rows, columns };

int32_t blur(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w, int32_t h,
             int32_t sx, int32_t sy, int32_t radius, Axis axis, bool loop) {
  AreaPair n;
  if (!clip_two(dst, src, dx, dy, w, h, sx, sy, n)) return status_nothing;
  const ptrdiff_t length = axis == Axis::rows ? n.width : n.height;
  ptrdiff_t r = radius;
  if (r > length / 2 - 1) r = length / 2 - 1;
  if (r > 127) r = 127;
  if (r < 1) {
    kernels<BlitKernels>().copy(n);
    return status_done;
  }
  if (axis == Axis::rows)
    blur_rows(n, r, loop);
  else if (!columns_apart(n) || !blur_columns(n, r, loop))
    for (ptrdiff_t x = 0; x < n.width; ++x)
      blur_in_order(n.dst + 4 * x, n.dst_pitch, n.src + 4 * x, n.src_pitch, n.height, r, loop);
  return status_done;
}

}  // namespace

extern "C" {

#define TESSARO_BLUR(Name, axis, loop)                                                                   \
  int32_t TESSARO_CALL Name(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w, \
                            int32_t h, int32_t sx, int32_t sy, int32_t radius) {                         \
    return blur(dst, src, dx, dy, w, h, sx, sy, radius, axis, loop);                                     \
  }
TESSARO_BLUR(BBIBltUBlur, Axis::rows, false)
TESSARO_BLUR(BBIBltVBlur, Axis::columns, false)
TESSARO_BLUR(BBIBltUBlurLoop, Axis::rows, true)
TESSARO_BLUR(BBIBltVBlurLoop, Axis::columns, true)
#undef TESSARO_BLUR

}  // extern "C"
