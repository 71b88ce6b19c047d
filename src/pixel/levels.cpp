// Automatic levels: measure where a picture's levels begin and end, and stretch them.
#include "core/clip.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

// How often each level occurs.
struct Histogram {
  uint64_t count[256];
};
struct Histograms {
  Histogram blue, green, red;
};

Histograms measure(const Area& area) {
  // Neighbours often have equal levels: counting them in different tables keeps one from waiting for the
  // other.
  constexpr ptrdiff_t turns = 4;
  uint32_t counts[turns][3][256] = {};
  const uint8_t* row = area.at;
  for (ptrdiff_t y = 0; y < area.height; ++y, row += area.pitch) {
    const auto count = [&](ptrdiff_t x, ptrdiff_t turn) {
      const auto p = load<uint32_t>(row + 4 * x);
      ++counts[turn][0][p & 255];
      ++counts[turn][1][p >> 8 & 255];
      ++counts[turn][2][p >> 16 & 255];
    };
    ptrdiff_t x = 0;
    for (; x + turns <= area.width; x += turns)
      for (ptrdiff_t turn = 0; turn < turns; ++turn) count(x + turn, turn);
    for (; x < area.width; ++x) count(x, 0);
  }
  Histograms h = {};
  for (const auto& turn : counts)
    for (int v = 0; v < 256; ++v) {
      h.blue.count[v] += turn[0][v];
      h.green.count[v] += turn[1][v];
      h.red.count[v] += turn[2][v];
    }
  return h;
}

// The levels at which more than `threshold` pixels have been passed, from below and from above.
struct Bounds {
  uint32_t low, high;
};
Bounds bounds_of(const Histogram& h, int32_t threshold) {
  const auto exceeds = [threshold](uint64_t total) { return static_cast<int64_t>(total) > threshold; };
  Bounds b = {0, 255};
  uint64_t below = 0, above = 0;
  for (uint32_t v = 0; v < 256; ++v)
    if (below += h.count[v]; exceeds(below)) {
      b.low = v;
      break;
    }
  for (uint32_t v = 256; v-- > 0;)
    if (above += h.count[v]; exceeds(above)) {
      b.high = v;
      break;
    }
  return b;
}

uint32_t packed(uint32_t blue, uint32_t green, uint32_t red) { return blue | green << 8 | red << 16; }

// combine(blue, green, red, low, high) makes the two packed bounds from those of the channels.
template <class Combine>
int32_t stretch_levels(ImageRecord* image, int32_t threshold, const Combine& combine) {
  Area area;
  if (!clip_whole(image, area)) return status_nothing;
  uint32_t low, high;
  combine(measure(area), threshold, low, high);
  const auto width = static_cast<int32_t>(area.width), height = static_cast<int32_t>(area.height);
  BBIExpandChooseBlt(image, image, 0, 0, width, height, 0, 0, width, height, 1.0f, 1.0f, low, high, 0,
                     0xFFFFFFFF, 0, 0, 0, 0, 0, 0);
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIAutoLevelRGB(ImageRecord* image, int32_t threshold) {
  return stretch_levels(image, threshold, [](const Histograms& h, int32_t t, uint32_t& low, uint32_t& high) {
    const Bounds blue = bounds_of(h.blue, t), green = bounds_of(h.green, t), red = bounds_of(h.red, t);
    low = packed(red.low, green.low, blue.low);  // crossed: hosts know it this way
    high = packed(red.high, green.high, blue.high);
  });
}

int32_t TESSARO_CALL BBIAutoLevelRGBRev(ImageRecord* image, int32_t threshold) {
  return stretch_levels(image, threshold, [](const Histograms& h, int32_t t, uint32_t& low, uint32_t& high) {
    const Bounds b = bounds_of(h.blue, t), g = bounds_of(h.green, t), r = bounds_of(h.red, t);
    low = packed((g.low + r.low) / 2, (b.low + r.low) / 2, (b.low + g.low) / 2);
    high = packed((g.high + r.high) / 2, (b.high + r.high) / 2, (b.high + g.high) / 2);
  });
}

int32_t TESSARO_CALL BBIAutoLevelRGBMul(ImageRecord* image, int32_t threshold) {
  return stretch_levels(image, threshold, [](const Histograms& h, int32_t t, uint32_t& low, uint32_t& high) {
    const Bounds b = bounds_of(h.blue, t), g = bounds_of(h.green, t), r = bounds_of(h.red, t);
    low = packed((g.low + r.low) / 8, (b.low + r.low) / 8, (b.low + g.low) / 8);
    high = packed(b.high, g.high, r.high);
  });
}

int32_t TESSARO_CALL BBIAutoLevelWB(ImageRecord* image, int32_t threshold) {
  return stretch_levels(image, threshold, [](const Histograms& h, int32_t t, uint32_t& low, uint32_t& high) {
    Histogram all;
    for (int v = 0; v < 256; ++v) all.count[v] = h.blue.count[v] + h.green.count[v] + h.red.count[v];
    const Bounds b = bounds_of(all, t);
    low = packed(b.low, b.low, b.low);
    high = packed(b.high, b.high, b.high);
  });
}

}  // extern "C"
