// Pictures as the peers see them, and blits between two of them.
#pragma once

#include "bench.hpp"

#if TESSARO_BENCH_HAS_OPENCV
#include <opencv2/core.hpp>
#endif
#if TESSARO_BENCH_HAS_PIXMAN
#include <pixman.h>
#endif
#if TESSARO_BENCH_HAS_SDL2
#include <SDL.h>
#endif

namespace tessaro::bench {

// Two images and the part of them that a call works on: of the destination, where the source is scaled onto
// it.
struct Pair {
  Picture dst, src;
  int width, height;
  int pitch() const { return 4 * dst.width(); }
  size_t bytes() const { return dst.bytes(); }
};
using Call = std::function<void(const Pair&)>;
struct Named {
  std::string name;
  std::function<std::function<void()>(const Pair&)> make;  // set-up, then the call to be measured
};
using Peers = std::vector<Named>;

inline Named plain(std::string name, Call call) {
  return {std::move(name), [call](const Pair& p) { return [=] { call(p); }; }};
}

#if TESSARO_BENCH_HAS_OPENCV
inline cv::Mat mat_of(const Picture& p, int width, int height, int type = CV_8UC4) {
  return {height, width, type, p.pixels(), static_cast<size_t>(4 * p.width())};
}
inline cv::Mat mat_of(const Picture& p, int type = CV_8UC4) { return mat_of(p, p.width(), p.height(), type); }
#endif
#if TESSARO_BENCH_HAS_PIXMAN
inline std::shared_ptr<pixman_image_t> pixman_of(const Picture& p) {
  return {pixman_image_create_bits(PIXMAN_a8r8g8b8, p.width(), p.height(),
                                   reinterpret_cast<uint32_t*>(p.pixels()), 4 * p.width()),
          pixman_image_unref};
}
#endif
#if TESSARO_BENCH_HAS_SDL2
inline std::shared_ptr<SDL_Surface> surface_of(const Picture& p) {
  return {SDL_CreateRGBSurfaceWithFormatFrom(p.pixels(), p.width(), p.height(), 32, 4 * p.width(),
                                             SDL_PIXELFORMAT_ARGB8888),
          SDL_FreeSurface};
}
#endif

}  // namespace tessaro::bench
