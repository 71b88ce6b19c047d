// Drawing beside what memory allows and beside the libraries that draw the same shapes. Lines differ in the
// pixels that they choose, not in how many.
#include <algorithm>
#include <cstdlib>

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

using Draw = std::function<void(const Picture& dst, const Picture& pattern)>;
using Limit = void (*)(void* dst, size_t bytes);

// One call over the whole of a square image; the pattern has 256 x 256 pixels.
bool shape(const std::string& name, int size, double share, Limit limit, Draw own,
           std::vector<std::pair<std::string, Draw>> peers = {}) {
  return compare({name + "/" + std::to_string(size), static_cast<double>(size) * size * share, "pixel", [=] {
                    const Picture dst(size, size), pattern(256, 256, 2);
                    std::vector<Contender> all{{"tessaro", [=] { own(dst, pattern); }}};
                    if (limit) all.push_back({"limit", [=] { limit(dst.pixels(), dst.bytes()); }});
                    for (const auto& [peer, call] : peers)
                      all.push_back({peer, [=, run = call] { run(dst, pattern); }});
                    return all;
                  }});
}

bool boxes() {
  for (const int n : image_sizes) {
    shape(
        "BBIDrawColorFill", n, 1, limit_fill,
        [n](auto& d, auto&) { BBIDrawColorFill(d.record(), 0, 0, n, n, 0, 0x12345678); },
        {
#if TESSARO_BENCH_HAS_LIBYUV
          {"libyuv", [n](auto& d, auto&) { libyuv::ARGBRect(d.pixels(), 4 * n, 0, 0, n, n, 0x12345678); }},
#endif
        });
    shape("BBIDrawColorFill, masked", n, 1, limit_update,
          [n](auto& d, auto&) { BBIDrawColorFill(d.record(), 0, 0, n, n, 0xFF000000, 0x12345678); });
    for (const int tile : {1, 16})
      for (const uint32_t mask : {0u, 0xFF000000u})
        shape(std::string("BBIDrawColorTile, ") + (mask ? "masked, " : "") + std::to_string(tile) + " pixels",
              n, 1, mask ? limit_update : limit_fill, [=](auto& d, auto&) {
                BBIDrawColorTile(d.record(), 0, 0, n, n, mask, tile, tile, 1, 0x10203040, 0x50607080, 4);
              });
  }
  for (const int n : {512, 1024, 4096}) {
    shape("BBIDrawBox", n, 1, limit_fill, [n](auto& d, auto&) {
      BBIDrawBox(d.record(), 0, 0, n, n, 0, 0, 0xFF0000FF, 0x80FF0000, 0xFFFFFFFF);
    });
    shape("BBIDrawBox, masked", n, 1, limit_update, [n](auto& d, auto&) {
      BBIDrawBox(d.record(), 0, 0, n, n, 0xFF000000, 0, 0xFF0000FF, 0x80FF0000, 0xFFFFFFFF);
    });
  }
  for (const int n : image_sizes) {
    shape("BBIDrawGradationBox", n, 1, limit_fill,
          [n](auto& d, auto& p) { BBIDrawGradationBox(d.record(), p.record(), 0, 0, n - 1, n - 1); });
    shape("BBIDrawMultiplyLineBox", n, 1, limit_fill,
          [n](auto& d, auto& p) { BBIDrawMultiplyLineBox(d.record(), p.record(), 0, 0, n - 1, n - 1); });
    shape("BBIDrawExclusiveLineBox", n, 1, limit_fill,
          [n](auto& d, auto& p) { BBIDrawExclusiveLineBox(d.record(), p.record(), 0, 0, n - 1, n - 1); });
  }
  return true;
}
const bool boxes_registered = boxes();

bool solids() {
  for (const int n : {32, 1024}) {
    for (const bool edges : {false, true})
      shape(
          edges ? "BBIDrawTriangleA" : "BBIDrawTriangle", n, 0.5, nullptr,
          [=](auto& d, auto&) {
            (edges ? BBIDrawTriangleA : BBIDrawTriangle)(d.record(), 0, n - 1, n / 2, 0, n - 1, n - 1, 0,
                                                         0x12345678);
          },
          {
#if TESSARO_BENCH_HAS_OPENCV
            {"OpenCV", [n](auto& d, auto&) {
               const cv::Point corners[] = {{0, n - 1}, {n / 2, 0}, {n - 1, n - 1}};
               auto mat = mat_of(d);
               cv::fillConvexPoly(mat, corners, 3, cv::Scalar(0x78, 0x56, 0x34, 0x12));
             }},
#endif
          });
  }
  for (const int n : {64, 1024}) {
    constexpr double disc = 0.785;
    shape("BBIDrawLineCircle", n, disc, nullptr,
          [n](auto& d, auto& p) { BBIDrawLineCircle(d.record(), p.record(), 0, 0, n - 1, n - 1); });
    shape("BBIDrawPolaCircle", n, disc, nullptr,
          [n](auto& d, auto& p) { BBIDrawPolaCircle(d.record(), p.record(), 0, 0, n - 1, n - 1); });
  }
  return true;
}
const bool solids_registered = solids();

struct Ends {
  int x0, y0, x1, y1;
};
std::vector<Ends> some_lines(int reach) {
  std::vector<Ends> all;
  uint32_t state = 1;
  const auto below = [&](int n) {
    state = state * 1664525u + 1013904223u;
    return static_cast<int>((state >> 8) % static_cast<uint32_t>(n));
  };
  for (int i = 0; i < 256; ++i) {
    const int x = below(1024 - reach), y = below(1024 - reach);
    all.push_back({x + below(reach), y + below(reach), x + below(reach), y + below(reach)});
  }
  return all;
}
using Line = std::function<void(const Picture&, const Picture&, const Ends&)>;

bool lines(const std::string& name, Line own, bool peers) {
  for (const int reach : {16, 1000}) {
    const auto ends = some_lines(reach);
    double pixels = 0;
    for (const Ends& e : ends) pixels += std::max(std::abs(e.x1 - e.x0), std::abs(e.y1 - e.y0));
    compare({name + ", within /" + std::to_string(reach), pixels, "pixel", [=] {
               const Picture dst(1024, 1024), pair(2, 1, 3);
               std::vector<Contender> all{{"tessaro", [=] {
                                             for (const Ends& e : ends) own(dst, pair, e);
                                           }}};
               if (!peers) return all;
#if TESSARO_BENCH_HAS_OPENCV
               all.push_back(
                   {"OpenCV", [=, mat = mat_of(dst)]() mutable {
                      for (const Ends& e : ends)
                        cv::line(mat, {e.x0, e.y0}, {e.x1, e.y1}, cv::Scalar(0x78, 0x56, 0x34, 0x12));
                    }});
#endif
#if TESSARO_BENCH_HAS_SDL2
               const auto surface = surface_of(dst);
               std::shared_ptr<SDL_Renderer> renderer(SDL_CreateSoftwareRenderer(surface.get()),
                                                      SDL_DestroyRenderer);
               all.push_back({"SDL2", [ends, surface, renderer] {
                                SDL_SetRenderDrawColor(renderer.get(), 0x34, 0x56, 0x78, 0x12);
                                for (const Ends& e : ends)
                                  SDL_RenderDrawLine(renderer.get(), e.x0, e.y0, e.x1, e.y1);
                                SDL_RenderFlush(renderer.get());
                              }});
#endif
               return all;
             }});
  }
  return true;
}
const bool lines_registered[] = {
    lines(
        "BBIDrawLine",
        [](auto& d, auto&, auto& e) { BBIDrawLine(d.record(), e.x0, e.y0, e.x1, e.y1, 0, 0x12345678); },
        true),
    lines(
        "BBIDrawLine, masked",
        [](auto& d, auto&, auto& e) { BBIDrawLine(d.record(), e.x0, e.y0, e.x1, e.y1, 0xFF, 0x12345678); },
        false),
    lines(
        "BBIDotThick",
        [](auto& d, auto&, auto& e) { BBIDotThick(d.record(), e.x0, e.y0, e.x1, e.y1, 0, 0x12345678); },
        false),
    lines(
        "BBILineThick, 4 pixels",
        [](auto& d, auto&, auto& e) { BBILineThick(d.record(), e.x0, e.y0, e.x1, e.y1, 0, 0x12345678, 4); },
        false),
    lines(
        "BBIDrawGradationLine",
        [](auto& d, auto& p, auto& e) {
          BBIDrawGradationLine(d.record(), p.record(), e.x0, e.y0, e.x1, e.y1);
        },
        false),
    lines(
        "BBIDrawAlphaLine",
        [](auto& d, auto& p, auto& e) { BBIDrawAlphaLine(d.record(), p.record(), e.x0, e.y0, e.x1, e.y1); },
        false),
};

}  // namespace
