// Pixels from and to the formats of other memory.
#include "pixel/format.hpp"

#include "core/clip.hpp"
#include "core/overlap.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace tessaro {

PixelFormat format_of(int32_t code) {
  switch (code) {
    case 8888:
      return format_8888;
    case 888:
      return format_888;
    case 565:
      return format_565;
    case 555:
      return format_555;
    case 1555:
      return format_1555;
    case 4444:
      return format_4444;
    default:
      return format_count;
  }
}

}  // namespace tessaro

namespace {

const FormatKernels& rows() { return kernels<FormatKernels>(); }
uint8_t* bytes(void* at) { return static_cast<uint8_t*>(at); }
const uint8_t* bytes(const void* at) { return static_cast<const uint8_t*>(at); }

int32_t run(void* dst, const void* src, int32_t count, FormatKernels::Run kernel) {
  if (count > 0) kernel(bytes(dst), bytes(src), static_cast<size_t>(count));
  return status_done;
}

// Calls row(dst, src, width) for every row of an image that a bottom-up buffer fills.
template <class Row>
int32_t fill_bottom_up(ImageRecord* image, const void* bits, int32_t stride, const Row& row) {
  const ImageView view = ImageView::of(image);
  if (view.width < 1) return status_done;
  for (int32_t y = 0; y < view.height; ++y) {
    const auto below = static_cast<uintptr_t>(view.height - 1 - y) * static_cast<uintptr_t>(stride);
    row(view.at(0, y), reinterpret_cast<const uint8_t*>(reinterpret_cast<uintptr_t>(bits) + below),
        static_cast<size_t>(view.width));
  }
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIBltTo32from1(ImageRecord* image, const void* bits, const uint32_t* palette,
                                     int32_t stride) {
  return fill_bottom_up(image, bits, stride, [palette](uint8_t* dst, const uint8_t* src, size_t width) {
    rows().from_bits(dst, src, width, bytes(static_cast<const void*>(palette)));
  });
}

int32_t TESSARO_CALL BBIBltTo32from8(ImageRecord* image, const void* bits, const uint32_t* palette,
                                     int32_t stride) {
  return fill_bottom_up(image, bits, stride, [palette](uint8_t* dst, const uint8_t* src, size_t width) {
    rows().from_bytes(dst, src, width, bytes(static_cast<const void*>(palette)));
  });
}

int32_t TESSARO_CALL BBIBltTo32from24(ImageRecord* image, const void* bits, int32_t stride) {
  return fill_bottom_up(image, bits, stride, rows().from[format_888]);
}

int32_t TESSARO_CALL BBIBltTo32from32(ImageRecord* image, const void* bits, int32_t stride) {
  return fill_bottom_up(image, bits, stride, rows().from[format_8888]);
}

int32_t TESSARO_CALL BBIBltToBBIGet(uint32_t* dst, const void* src, int32_t count, int32_t format) {
  const PixelFormat f = format_of(format);
  return f == format_count ? status_done : run(dst, src, count, rows().from[f]);
}

int32_t TESSARO_CALL BBIBltTo24As888(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to[format_888]);
}
int32_t TESSARO_CALL BBIBltTo16As444(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to[format_4444]);
}
int32_t TESSARO_CALL BBIBltTo16As565(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to[format_565]);
}
int32_t TESSARO_CALL BBIBltTo16As555(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to[format_555]);
}
int32_t TESSARO_CALL BBIBltTo16As1555(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to[format_1555]);
}
int32_t TESSARO_CALL BBIBltTo8AsGray(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to_gray);
}
int32_t TESSARO_CALL BBIBltTo8AsAlpha(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to_alpha);
}
int32_t TESSARO_CALL BBIBltTo1(void* dst, const uint32_t* src, int32_t count) {
  return run(dst, src, count, rows().to_bits);
}

int32_t TESSARO_CALL BBIBltToX(void* dst, const uint32_t* src, int32_t count, int32_t format, uint32_t colour,
                               float factor) {
  const PixelFormat f = format_of(format);
  if (f != format_count && count > 0)
    rows().mixed_with_colour[f](bytes(dst), bytes(static_cast<const void*>(src)), static_cast<size_t>(count),
                                colour, weight_of(factor));
  return status_done;
}

int32_t TESSARO_CALL BBIBltToXF(void* dst, const uint32_t* a, const uint32_t* b, int32_t count,
                                int32_t format, float factor) {
  const PixelFormat f = format_of(format);
  if (f == format_count) return status_nothing;
  if (count > 0)
    rows().mixed[f](bytes(dst), bytes(static_cast<const void*>(a)), bytes(static_cast<const void*>(b)),
                    static_cast<size_t>(count), weight_of(factor));
  return status_done;
}

int32_t TESSARO_CALL BBIBltToF(void* dst, const uint32_t* src, int32_t count, int32_t format, uint32_t colour,
                               float factor, float saturation, int32_t use_table, const void* table) {
  static constexpr size_t format_bytes[format_count] = {4, 3, 2, 2, 2, 2};
  const PixelFormat f = format_of(format);
  if (f == format_count) return status_nothing;
  if (count < 1) return status_done;

  const bool saturate = saturation != 1.0f;
  const SaturationParts parts = SaturationParts::of(saturation);
  const uint32_t weight = weight_of(factor);
  const FormatKernels& k = rows();

  auto* to = bytes(dst);
  auto* from = bytes(static_cast<const void*>(src));
  auto left = static_cast<size_t>(count);
  if (!saturate && !use_table) {
    k.mixed_with_colour[f](to, from, left, colour, weight);
    return status_done;
  }
  if (!use_table && k.saturated_to[f]) {
    k.saturated_to[f](to, from, left, parts, colour, weight);
    return status_done;
  }
  const size_t whole = left * format_bytes[f];
  const bool free_table = !(use_table && share_memory(to, whole, table, 768));
  if (use_table && free_table && k.looked_up_to[f] &&
      k.looked_up_to[f](to, from, left, parts, bytes(table), colour, weight))
    return status_done;
  // Through a piece of memory that stays in cache; pixel by pixel where a write may reach what is still to be
  // read.
  uint8_t piece[4 * 512];
  const bool apart = free_table && !share_memory(to, whole, from, 4 * left);
  const size_t most = apart ? 512 : 1;
  while (left > 0) {
    const size_t n = left < most ? left : most;
    const uint8_t* at = from;
    if (saturate) k.saturated(piece, at, n, parts), at = piece;
    if (use_table) k.looked_up(piece, at, n, bytes(table)), at = piece;
    k.mixed_with_colour[f](to, at, n, colour, weight);
    left -= n;
    from += 4 * n;
    to += n * format_bytes[f];
  }
  return status_done;
}

}  // extern "C"
