#include "transform/blur.hpp"

#include <emmintrin.h>

#include <array>
#include <cstring>

#include "core/heap.hpp"
#include "pixel/blit.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

constexpr Divider divider_of(uint32_t count) {
  uint32_t k = 0;
  while (2u << k <= count) ++k;
  const auto exact = [&](Divider by) {
    for (uint32_t q = 0; q <= 255; ++q)
      if (by.divide(q * count) != q || (q < 255 && by.divide(q * count + count - 1) != q)) return false;
    return true;
  };
  const uint64_t scaled = uint64_t{65536} << k;
  const auto second = static_cast<uint16_t>(65536u >> k);
  // A power of two would need 65536; one less serves with the bias.
  const Divider down{static_cast<uint16_t>(scaled / count < 65535 ? scaled / count : 65535), second, 1};
  const Divider up{static_cast<uint16_t>(scaled / count + 1), second, 0};
  return exact(down) ? down : exact(up) ? up : Divider{0, 0, 0};
}

// The dividers of the counts 0..255 in rising order and, behind them, in falling order, four lanes a count, so that
// the shortened windows at both ends of a row find theirs side by side.
struct Dividers {
  std::array<uint16_t, 2048> first{}, second{}, bias{};
  constexpr Dividers() {
    for (uint32_t count = 2; count < 256; ++count) {
      const Divider by = divider_of(count);
      for (uint32_t lane = 0; lane < 4; ++lane)
        for (const uint32_t at : {4 * count + lane, 4 * (511 - count) + lane}) {
          first[at] = by.first;
          second[at] = by.second;
          bias[at] = by.bias;
        }
    }
  }
  constexpr Divider of(size_t count) const { return {first[4 * count], second[4 * count], bias[4 * count]}; }
};
constexpr Dividers dividers;
static_assert([] {
  for (size_t count = 2; count < 256; ++count)
    if (dividers.of(count).first == 0) return false;
  return true;
}());

// The four channels of a pixel in the 16-bit lanes of a word.
constexpr uint64_t widened(uint32_t pixel) {
  const uint64_t halves = (pixel | static_cast<uint64_t>(pixel) << 16) & 0x0000FFFF0000FFFFu;
  return (halves | halves << 8) & 0x00FF00FF00FF00FFu;
}
uint32_t divided(uint64_t sums, Divider by) {
  const auto all = [](uint16_t v) { return _mm_set1_epi16(static_cast<short>(v)); };
  const __m128i biased =
      _mm_add_epi16(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(&sums)), all(by.bias));
  const __m128i means = _mm_mulhi_epu16(_mm_mulhi_epu16(biased, all(by.first)), all(by.second));
  return static_cast<uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(means, means)));
}

// A blur of one row or column, pixel after pixel: what the faster forms must equal, and what overlapping memory gets.
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

// How far the destination lies ahead of its source, as far as memory that they share goes.
ptrdiff_t distance(const AreaPair& n) {
  return static_cast<ptrdiff_t>(reinterpret_cast<uintptr_t>(n.dst) - reinterpret_cast<uintptr_t>(n.src));
}
bool rows_meet(const AreaPair& n) {
  const auto ahead = static_cast<uintptr_t>(distance(n)), row = 4 * static_cast<uintptr_t>(n.width);
  return ahead < row || 0 - ahead < row;
}

// Rows: sums from the start of the row, then differences of them.
void blur_rows(AreaPair n, ptrdiff_t r, bool loop) {
  const BlurKernels& k = kernels<BlurKernels>();
  const auto width = static_cast<size_t>(n.width), radius = static_cast<size_t>(r);
  // Room for the window that hangs over at both ends.
  HeapArray<uint16_t> sums(4 * (width + 2 * radius + 1));
  const Divider full = dividers.of(2 * radius + 1);
  for (; n.height > 0; --n.height, n.dst += n.dst_pitch, n.src += n.src_pitch) {
    // A whole row is read before it is written. In order, pixel i + r is read before pixel i is written, so that only
    // a destination further ahead of its source than that, or one that a loop comes back to, makes a difference.
    if (!sums || (rows_meet(n) && (loop || distance(n) > 4 * r))) {
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

// True where no row of the destination runs into another and each of its columns meets no column of the source but its own,
// so that all columns may move down together.
bool columns_apart(const AreaPair& n) {
  if (!rows_apart(dst_of(n))) return false;
  return !share_memory(dst_of(n), src_of(n)) ||
         (n.dst_pitch == n.src_pitch && distance(n) % n.dst_pitch == 0);
}

// Columns: one running sum each, all of them moving down a row at a time. False when there is no memory for it.
bool blur_columns(const AreaPair& n, ptrdiff_t r, bool loop) {
  const BlurKernels& k = kernels<BlurKernels>();
  const auto lanes = static_cast<size_t>(4 * n.width);
  // Rows that may be overwritten before they leave the window are kept.
  const bool keep = share_memory(dst_of(n), src_of(n));
  const ptrdiff_t slots = 2 * r + 1;
  HeapArray<uint16_t> sums(lanes, true);
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

// Rescaling by num / den within the same length. A source pixel lasts num sub-steps and a destination pixel averages
// den of them; calls take(source index, sub-steps) for each stretch and put(destination index) when a pixel is full.
// Runs from the first pixel when shrinking and from the last when enlarging, so that nothing is overwritten unread.
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

// Rows: a destination pixel is the difference of two sums of all sub-steps so far, which are those of whole source pixels
// and a part of the next one. The places are the same in every row.
void scale_rows(AreaPair n, int32_t num, int32_t den) {
  const BlurKernels& k = kernels<BlurKernels>();
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
    // A whole row is read before it is written. In order, every pixel is read before its own place is written, so that
    // only a destination on the side where reading has yet to come makes a difference.
    if (!sums || !parts || !places || (rows_meet(n) && (backward ? distance(n) < 0 : distance(n) > 0))) {
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
  const BlurKernels& k = kernels<BlurKernels>();
  const auto lanes = static_cast<size_t>(4 * n.width);
  const Divider by = dividers.of(static_cast<size_t>(den));
  const bool keep = share_memory(dst_of(n), src_of(n));
  HeapArray<uint16_t> sums(lanes, true);
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
        std::memset(sums.data(), 0, 2 * lanes);
      });
  return true;
}

int32_t scale(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w, int32_t h,
              int32_t sx, int32_t sy, int32_t num, int32_t den, Axis axis) {
  AreaPair n;
  if (!clip_two(dst, src, dx, dy, w, h, sx, sy, n)) return status_nothing;
  if (num > 128) num = 128;
  if (den > 128) den = 128;
  if (num < 1 || den < 1) return status_nothing;
  if (den == 1) {  // the same ratio with a divisor that the dividers serve
    num *= 2;
    den = 2;
  }
  if (axis == Axis::rows)
    scale_rows(n, num, den);
  else if (!columns_apart(n) || !scale_columns(n, num, den))
    for (ptrdiff_t x = 0; x < n.width; ++x)
      scale_in_order(n.dst + 4 * x, n.dst_pitch, n.src + 4 * x, n.src_pitch, n.height, num, den);
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

int32_t TESSARO_CALL BBIBltUScale(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                                  int32_t h, int32_t sx, int32_t sy, int32_t num, int32_t den) {
  return scale(dst, src, dx, dy, w, h, sx, sy, num, den, Axis::rows);
}
int32_t TESSARO_CALL BBIBltVScale(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t w,
                                  int32_t h, int32_t sx, int32_t sy, int32_t num, int32_t den) {
  return scale(dst, src, dx, dy, w, h, sx, sy, num, den, Axis::columns);
}

int32_t TESSARO_CALL BBIBltHalfSize(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                    int32_t w, int32_t h, int32_t sx, int32_t sy) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  const auto beyond = [](int32_t at, int64_t size, int32_t limit) { return at < 0 || at + size > limit; };
  if (d.width < 1 || d.height < 1 || s.width < 1 || s.height < 1 || w < 1 || h < 1 ||
      beyond(dx, w, d.width) || beyond(dy, h, d.height) || beyond(sx, 2 * int64_t{w}, s.width) ||
      beyond(sy, 2 * int64_t{h}, s.height))
    return status_nothing;
  for (int32_t y = 0; y < h; ++y)
    kernels<BlurKernels>().halve(d.at(dx, dy + y), s.at(sx, sy + 2 * y), s.at(sx, sy + 2 * y + 1),
                                 static_cast<size_t>(w));
  return status_done;
}

}  // extern "C"
