// Operations on whole images. OpenCV's transpose and floodFill, and libyuv's mirrors and rotations, do the
// same work.
#include <cmath>
#include <cstring>

#include "peers.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_LIBYUV
#include <libyuv.h>
#endif
#if TESSARO_BENCH_HAS_OPENCV
#include <opencv2/imgproc.hpp>
#endif

using namespace tessaro::bench;

namespace {

using Contenders = std::vector<Contender>;
using Setup = std::function<Contenders(const Picture& dst, const Picture& src)>;

bool whole(const std::string& name, Setup setup, std::vector<int> sizes = {512, 4096}) {
  for (const int size : sizes)
    compare({name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel",
             [=] { return setup(Picture(size, size, 1), Picture(size, size, 2)); }});
  return true;
}

Contender reading(const Picture& a, size_t images) {
  return {"limit", [=] {
            for (size_t i = 0; i < images; ++i) limit_read(a.pixels(), a.bytes());
          }};
}

// Two equal images pass every test to their last pixel.
bool comparison(const std::string& name, int mode, uint32_t fill) {
  return whole(name, [=](const Picture& a, const Picture& b) {
    BBIClearMask(a.record(), fill >> 16 & 255, fill >> 8 & 255, fill & 255, static_cast<int32_t>(fill >> 24),
                 0);
    BBIBlt(b.record(), a.record(), 0, 0, a.width(), a.height(), 0, 0);
    const bool two = mode < 3;
    return Contenders{{"tessaro", [=] { BBICompare(a.record(), b.record(), mode); }},
                      {"limit", [=] {
                         limit_read(a.pixels(), a.bytes());
                         if (two) limit_read(b.pixels(), b.bytes());
                       }}};
  });
}

Contenders turned(const Picture& dst, const Picture& src, int mode) {
  Contenders all{{"tessaro", [=] { BBIRotation(dst.record(), src.record(), mode); }},
                 {"limit", [=] { limit_copy(dst.pixels(), src.pixels(), src.bytes()); }}};
#if TESSARO_BENCH_HAS_OPENCV
  if (mode != 1)
    all.push_back(
        {"OpenCV transpose", [d = mat_of(dst), s = mat_of(src)]() mutable { cv::transpose(s, d); }});
  all.push_back({"OpenCV", [mode, d = mat_of(dst), s = mat_of(src)]() mutable {
                   cv::rotate(s, d,
                              mode == 0   ? cv::ROTATE_90_CLOCKWISE
                              : mode == 1 ? cv::ROTATE_180
                                          : cv::ROTATE_90_COUNTERCLOCKWISE);
                 }});
#endif
#if TESSARO_BENCH_HAS_LIBYUV
  all.push_back({"libyuv", [=] {
                   const int pitch = 4 * src.width();
                   libyuv::ARGBRotate(src.pixels(), pitch, dst.pixels(), pitch, src.width(), src.height(),
                                      mode == 0   ? libyuv::kRotate90
                                      : mode == 1 ? libyuv::kRotate180
                                                  : libyuv::kRotate270);
                 }});
#endif
  return all;
}

// Slow changes of light and hue with a sensor's noise.
void photograph(const Picture& p) {
  uint32_t noise = 1;
  for (int y = 0; y < p.height(); ++y)
    for (int x = 0; x < p.width(); ++x) {
      uint32_t colour = 0;
      for (int c = 0; c < 3; ++c) {
        noise = noise * 1664525u + 1013904223u;
        const double light = 128 + 70 * std::sin(x * (0.002 + 0.001 * c)) + 45 * std::cos(y * 0.003 + c);
        colour |= static_cast<uint32_t>(light + static_cast<double>(noise >> 28)) << 8 * c;
      }
      std::memcpy(p.pixels() + 4 * (static_cast<ptrdiff_t>(y) * p.width() + x), &colour, 4);
    }
}

bool colours(const std::string& name, std::function<void(const Picture&)> own) {
  return whole(name,
               [=](const Picture& image, const Picture&) {
                 photograph(image);
                 return Contenders{{"tessaro", [=] { own(image); }},
                                   // A histogram of one channel, as a loop counts it.
                                   {"histogram loop", [=] {
                                      uint32_t counts[256] = {};
                                      for (size_t i = 0; i < image.bytes(); i += 4)
                                        ++counts[image.pixels()[i]];
                                      volatile uint32_t kept = counts[0];
                                      (void)kept;
                                    }}};
               },
               {64, 512, 4096});
}

// Draws the ground that a fill from its first pixel covers, and returns how many pixels that are.
using Ground = std::function<double(uint32_t* pixels, int size)>;
double open_ground(uint32_t* pixels, int size) {
  for (int i = 0; i < size * size; ++i) pixels[i] = 1;
  return static_cast<double>(size) * size;
}
// A corridor of one width between walls of one pixel, from the corner round and round to the middle.
double spiral(uint32_t* pixels, int size, int wide) {
  const int step = wide + 1;
  for (int i = 0; i < size * size; ++i) pixels[i] = 2;
  const int cells = size / step;
  std::vector<uint8_t> been(static_cast<size_t>(cells) * static_cast<size_t>(cells));
  double filled = 0;
  const auto open = [&](int x, int y) {
    uint32_t& p = pixels[y * size + x];
    filled += p == 2;
    p = 1;
  };
  int x = 0, y = 0, dx = 1, dy = 0;
  const auto free = [&](int cx, int cy) {
    return cx >= 0 && cy >= 0 && cx < cells && cy < cells && !been[static_cast<size_t>(cy * cells + cx)];
  };
  for (;;) {
    been[static_cast<size_t>(y * cells + x)] = 1;
    for (int v = 0; v < wide; ++v)
      for (int u = 0; u < wide; ++u) open(x * step + u, y * step + v);
    if (!free(x + dx, y + dy)) {
      const int turn = dx;
      dx = -dy, dy = turn;
      if (!free(x + dx, y + dy)) return filled;
    }
    // The wall between two cells of the way.
    for (int u = 0; u < wide; ++u)
      open(dx ? (dx > 0 ? x * step + wide : x * step - 1) : x * step + u,
           dy ? (dy > 0 ? y * step + wide : y * step - 1) : y * step + u);
    x += dx, y += dy;
  }
}
double stones(uint32_t* pixels, int size) {
  uint32_t noise = 1;
  double free = 0;
  for (int i = 0; i < size * size; ++i) {
    noise = noise * 1664525u + 1013904223u;
    pixels[i] = i > 0 && noise >> 28 < 4 ? 2 : 1;  // open enough for nearly all of it to be connected
    free += pixels[i] == 1;
  }
  return free;
}

bool paint(const std::string& name, Ground ground) {
  for (const int size : image_sizes) {
    compare({"BBIPaint/" + name + "/" + std::to_string(size), 0, "pixel", [=] {
               const Picture a(size, size), b(size, size);
               const double work = ground(reinterpret_cast<uint32_t*>(a.pixels()), size);
               ground(reinterpret_cast<uint32_t*>(b.pixels()), size);
               Contenders all{{"tessaro", [a, colour = 1u]() mutable {
                                 int32_t box[4];
                                 colour ^= 0x100;
                                 BBIPaint(a.record(), 0, 0, colour, box, box + 1, box + 2, box + 3);
                               }}};
#if TESSARO_BENCH_HAS_OPENCV
               all.push_back({"OpenCV", [m = mat_of(b, CV_32SC1), b, colour = 1]() mutable {
                                colour ^= 0x100;
                                cv::floodFill(m, {0, 0}, cv::Scalar(colour), nullptr, {}, {}, 4);
                              }});
#endif
               return Prepared(all, "", work);
             }});
  }
  return true;
}

[[maybe_unused]] const bool registered[] = {
    whole("BBIMirror",
          [](const Picture& a, const Picture&) {
            Contenders all{{"tessaro", [=] { BBIMirror(a.record()); }},
                           {"limit", [=] { limit_update(a.pixels(), a.bytes()); }}};
#if TESSARO_BENCH_HAS_OPENCV
            all.push_back({"OpenCV", [m = mat_of(a)]() mutable { cv::flip(m, m, 1); }});
#endif
            return all;
          }),
    whole("BBIVMirror",
          [](const Picture& a, const Picture&) {
            Contenders all{{"tessaro", [=] { BBIVMirror(a.record()); }},
                           {"limit", [=] { limit_update(a.pixels(), a.bytes()); }}};
#if TESSARO_BENCH_HAS_OPENCV
            all.push_back({"OpenCV", [m = mat_of(a)]() mutable { cv::flip(m, m, 0); }});
#endif
            return all;
          }),
    whole("BBIRotation/clockwise", [](auto& d, auto& s) { return turned(d, s, 0); }, {500, 512, 4000, 4096}),
    whole("BBIRotation/half", [](auto& d, auto& s) { return turned(d, s, 1); }),
    whole("BBIRotation/counter-clockwise", [](auto& d, auto& s) { return turned(d, s, 2); },
          {500, 512, 4000, 4096}),
    comparison("BBICompare/equal", 0, 0x12345678),
    comparison("BBICompare/opaque", 5, 0xFF345678),
    comparison("BBICompare/grey", 7, 0x55222222),
    whole("BBICompareAny",
          [](const Picture& a, const Picture& b) {
            return Contenders{{"tessaro", [=] { BBICompareAny(a.record(), b.record(), 0xFFFFFF, 20); }},
                              {"limit", [=] {
                                 limit_read(a.pixels(), a.bytes());
                                 limit_read(b.pixels(), b.bytes());
                               }}};
          }),
    whole("BBITrim/empty",
          [](const Picture& a, const Picture&) {
            BBIClear(a.record(), 1, 2, 3, 4);
            return Contenders{{"tessaro",
                               [=] {
                                 int32_t box[4];
                                 BBITrim(a.record(), 0, 0xFFFFFF, 0x010203, box, box + 1, box + 2, box + 3);
                               }},
                              reading(a, 1)};
          }),
    whole("BBIClear",
          [](const Picture& a, const Picture&) {
            return Contenders{{"tessaro", [=] { BBIClear(a.record(), 1, 2, 3, 4); }},
                              {"limit", [=] { limit_fill(a.pixels(), a.bytes()); }}};
          }),
    whole("BBIClearRGB",
          [](const Picture& a, const Picture&) {
            return Contenders{{"tessaro", [=] { BBIClearRGB(a.record(), 1, 2, 3); }},
                              {"limit", [=] { limit_update(a.pixels(), a.bytes()); }}};
          }),
    whole("BBIKeying",
          [](const Picture& a, const Picture&) {
            return Contenders{{"tessaro", [=] { BBIKeying(a.record(), 0x010203); }},
                              {"limit", [=] { limit_update(a.pixels(), a.bytes()); }}};
          }),
    whole("BBIKeyingFilter",
          [](const Picture& a, const Picture&) {
            for (size_t i = 3; i < a.bytes(); i += 4)  // clear and covered areas, 32 pixels wide
              a.pixels()[i] = i >> 7 & 1 ? 255 : 0;
            return Contenders{{"tessaro", [=] { BBIKeyingFilter(a.record()); }},
                              {"limit", [=] { limit_update(a.pixels(), a.bytes()); }}};
          }),
    colours("BBIColorCount", [](const Picture& a) { BBIColorCount(a.record(), 0); }),
    colours("BBIColorPalette",
            [](const Picture& a) {
              uint32_t palette[256];
              BBIColorPalette(a.record(), palette, 256);
            }),
    paint("open", open_ground),
    paint("spiral", [](uint32_t* p, int size) { return spiral(p, size, 1); }),
    paint("wide spiral", [](uint32_t* p, int size) { return spiral(p, size, 7); }),
    paint("stones", stones),
};

}  // namespace
