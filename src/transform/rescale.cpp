// Rows and columns rescaled within the same length.
#include <cstring>

#include "core/heap.hpp"
#include "tessaro/tessaro.h"
#include "transform/means.hpp"

using namespace tessaro;

namespace {

// Rescaling by num / den within the same length. A source pixel lasts num sub-steps and a destination pixel
// averages den of them; calls take(source index, sub-steps) for each stretch and put(destination index) when
// a pixel is full. Runs from the first pixel when shrinking and from the last when enlarging, so that nothing
// is overwritten unread.
template <class Take, class Put>
void rescale(ptrdiff_t length, int32_t num, int32_t den, Take take, Put put) {
  const bool backward = num >= den;
  ptrdiff_t from = backward ? length * den / num - 1 : 0;
  if (from < 0) from = 0;
  const ptrdiff_t last = backward ? 0 : length - 1;
  int32_t left = num;  // of the current source pixel; the last one stays when it is used up
  for (ptrdiff_t i = 0; i < length; ++i) {
    for (int32_t missing = den; missing > 0;) {
      if (left == 0 && from != last) {
        from += backward ? -1 : 1;
        left = num;
      }
      const int32_t run = left == 0 || left > missing ? missing : left;
      take(from, run);
      missing -= run;
      if (left > 0) left -= run;
    }
    put(backward ? length - 1 - i : i);
  }
}

void scale_in_order(uint8_t* dst, ptrdiff_t dst_step, const uint8_t* src, ptrdiff_t src_step,
                    ptrdiff_t length, int32_t num, int32_t den) {
  const Divider by = dividers.of(static_cast<size_t>(den));
  uint64_t sums = 0, pixel = 0;
  ptrdiff_t current = -1;
  rescale(
      length, num, den,
      [&](ptrdiff_t from, int32_t run) {
        if (from != current) pixel = widened(load<uint32_t>(src + from * src_step));
        current = from;
        sums += pixel * static_cast<uint64_t>(run);
      },
      [&](ptrdiff_t to) {
        store(dst + to * dst_step, divided(sums, by));
        sums = 0;
      });
}

// Rows: a destination pixel is the difference of two sums of all sub-steps so far, which are those of whole
// source pixels and a part of the next one. The places are the same in every row.
void scale_rows(AreaPair n, int32_t num, int32_t den) {
  const MeanKernels& k = kernels<MeanKernels>();
  const auto width = static_cast<size_t>(n.width);
  const bool backward = num >= den;
  ptrdiff_t used = backward ? n.width * den / num : n.width;  // source pixels, from the left
  if (used < 1) used = 1;
  HeapArray<uint16_t> sums(4 * (width + 1)), parts(4 * (width + 1));
  HeapArray<StepSum> places(width + 1);
  if (sums && parts && places)
    for (ptrdiff_t x = 0; x <= n.width; ++x) {
      const ptrdiff_t steps = (backward ? n.width - x : x) * den;
      const ptrdiff_t whole = steps / num < used ? steps / num : used;
      const ptrdiff_t next = whole < used ? whole : used - 1;
      const ptrdiff_t part = steps - whole * num;
      places[static_cast<size_t>(x)] = {
          static_cast<int32_t>(backward ? used - whole : whole),
          static_cast<int32_t>(backward ? used - 1 - next : next),
          static_cast<uint16_t>(backward ? -part : part),
      };
    }
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    // A whole row is read before it is written. In order, every pixel is read before its own place is
    // written, so that only a destination on the side where reading has yet to come makes a difference.
    if (!sums || !parts || !places ||
        (backward ? reads_own_writes(n.src, n.dst, 4 * width) : reads_own_writes(n.dst, n.src, 4 * width))) {
      scale_in_order(n.dst, 4, n.src, 4, n.width, num, den);
      continue;
    }
    std::memset(sums.data(), 0, 8);
    k.running_sums(sums.data(), n.src, static_cast<size_t>(used));
    k.step_sums(parts.data(), sums.data(), n.src, places.data(), width + 1, static_cast<uint16_t>(num));
    k.means(n.dst, parts.data() + 4, parts.data(), 4 * width, dividers.of(static_cast<size_t>(den)));
  }
}

// All columns together, as blur_columns.
bool scale_columns(const AreaPair& n, int32_t num, int32_t den) {
  const MeanKernels& k = kernels<MeanKernels>();
  const auto lanes = static_cast<size_t>(4 * n.width);
  const Divider by = dividers.of(static_cast<size_t>(den));
  const bool keep = share_memory(dst_of(n), src_of(n));
  HeapArray<uint16_t> sums(column_room(lanes), true);
  HeapArray<uint8_t> kept(keep ? lanes : 0);
  if (!sums || !kept) return false;
  ptrdiff_t current = -1;
  rescale(
      n.height, num, den,
      [&](ptrdiff_t from, int32_t run) {
        const uint8_t* row = n.src + from * n.src_pitch;
        if (keep && from != current) std::memcpy(kept.data(), row, lanes);
        current = from;
        k.accumulate(sums.data(), keep ? kept.data() : row, lanes, static_cast<uint16_t>(run));
      },
      [&](ptrdiff_t to) {
        k.divide(n.dst + to * n.dst_pitch, sums.data(), lanes, by);
        std::memset(sums.data(), 0, 2 * column_room(lanes));
      });
  return true;
}

int32_t scale(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w, int32_t h,
              int32_t sx, int32_t sy, int32_t num, int32_t den, bool rows) {
  AreaPair n;
  if (!clip_two(dst, src, dx, dy, w, h, sx, sy, n)) return status_nothing;
  if (num > 128) num = 128;
  if (den > 128) den = 128;
  if (num < 1 || den < 1) return status_nothing;
  if (den == 1) {  // the same ratio with a divisor that the dividers serve
    num *= 2;
    den = 2;
  }
  if (rows)
    scale_rows(n, num, den);
  else if (!columns_apart(n) || !scale_columns(n, num, den))
    for (ptrdiff_t x = 0; x < n.width; ++x)
      scale_in_order(n.dst + 4 * x, n.dst_pitch, n.src + 4 * x, n.src_pitch, n.height, num, den);
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIBltUScale(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                                  int32_t h, int32_t sx, int32_t sy, int32_t num, int32_t den) {
  return scale(dst, src, dx, dy, w, h, sx, sy, num, den, true);
}
int32_t TESSARO_CALL BBIBltVScale(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                                  int32_t h, int32_t sx, int32_t sy, int32_t num, int32_t den) {
  return scale(dst, src, dx, dy, w, h, sx, sy, num, den, false);
}

}  // extern "C"
