// The unscaled blits beside the limit and the libraries that do comparable work. What differs in their
// arithmetic: pixman and libyuv blend premultiplied colours, SDL straight alpha; libyuv's product rounds in
// its own way.
#include "peers.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_LIBYUV
#include <libyuv.h>
#endif

using namespace tessaro::bench;

namespace {

#if TESSARO_BENCH_HAS_LIBYUV
template <class F>
Named yuv2(F f) {  // f(src, pitch, dst, pitch, width, height)
  return plain("libyuv", [f](const Pair& p) {
    f(p.src.pixels(), p.pitch(), p.dst.pixels(), p.pitch(), p.width, p.height);
  });
}
template <class F>
Named yuv3(F f) {  // f(a, pitch, b, pitch, dst, pitch, width, height)
  return plain("libyuv", [f](const Pair& p) {
    f(p.src.pixels(), p.pitch(), p.dst.pixels(), p.pitch(), p.dst.pixels(), p.pitch(), p.width, p.height);
  });
}
#endif

#if TESSARO_BENCH_HAS_PIXMAN
Named pixman(pixman_op_t op) {
  return {"pixman", [op](const Pair& p) -> std::function<void()> {
            return [p, op, dst = pixman_of(p.dst), src = pixman_of(p.src)] {
              pixman_image_composite32(op, src.get(), nullptr, dst.get(), 0, 0, 0, 0, 0, 0, p.width,
                                       p.height);
            };
          }};
}
#endif

#if TESSARO_BENCH_HAS_SDL2
Named sdl(SDL_BlendMode mode) {
  return {"SDL2", [mode](const Pair& p) -> std::function<void()> {
            auto src = surface_of(p.src);
            SDL_SetSurfaceBlendMode(src.get(), mode);
            return [p, src, dst = surface_of(p.dst)] {
              SDL_Rect from{0, 0, p.width, p.height}, to = from;
              SDL_BlitSurface(src.get(), &from, dst.get(), &to);
            };
          }};
}
#endif

#if TESSARO_BENCH_HAS_OPENCV
template <class F>
Named opencv(F f) {  // f(src, dst) into dst
  return {"OpenCV", [f](const Pair& p) -> std::function<void()> {
            return [p, f, src = mat_of(p.src, p.width, p.height),
                    dst = mat_of(p.dst, p.width, p.height)]() mutable { f(src, dst); };
          }};
}
#endif

using Limit = void (*)(const Pair&);
void copying(const Pair& p) { limit_copy(p.dst.pixels(), p.src.pixels(), p.bytes()); }
void filling(const Pair& p) { limit_fill(p.dst.pixels(), p.bytes()); }
void updating(const Pair& p) { limit_update(p.dst.pixels(), p.bytes()); }
void combining(const Pair& p) { limit_combine(p.dst.pixels(), p.src.pixels(), p.bytes()); }

// Small areas lie in larger images, where a row ends long before the next begins; no limit is stated for
// them.
bool blit(const std::string& name, Limit limit, Call own, const Peers& peers, bool small = false) {
  const auto add = [&](int size, int image) {
    compare({name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel", [=] {
               const Pair pair{{image, image, 1}, {image, image, 2}, size, size};
               std::vector<Contender> all{{"tessaro", [=] { own(pair); }}};
               if (size == image) all.push_back({"limit", [=] { limit(pair); }});
               for (const Named& peer : peers) all.push_back({peer.name, peer.make(pair)});
               return all;
             }});
  };
  for (const int size : image_sizes) add(size, size);
  if (small)
    for (const int size : {31, 63}) add(size, 512);
  return true;
}

template <class F, class... More>
Call call(F f, More... more) {
  return [=](const Pair& p) { f(p.dst.record(), p.src.record(), 0, 0, p.width, p.height, 0, 0, more...); };
}

[[maybe_unused]] const bool registered[] = {
    blit(
        "BBIBlt", copying, call(BBIBlt),
        {
#if TESSARO_BENCH_HAS_LIBYUV
          yuv2(libyuv::ARGBCopy),
#endif
#if TESSARO_BENCH_HAS_PIXMAN
              pixman(PIXMAN_OP_SRC),
#endif
#if TESSARO_BENCH_HAS_SDL2
              sdl(SDL_BLENDMODE_NONE),
#endif
#if TESSARO_BENCH_HAS_OPENCV
              opencv([](cv::Mat& src, cv::Mat& dst) { src.copyTo(dst); }),
#endif
        },
        true),
    blit(
        "BBIBltColor/fill", filling,
        [](const Pair& p) { BBIBltColor(p.dst.record(), 0, 0, p.width, p.height, 0, 0, 0x80402010); },
        {
#if TESSARO_BENCH_HAS_LIBYUV
          plain("libyuv",
                [](const Pair& p) {
                  libyuv::ARGBRect(p.dst.pixels(), p.pitch(), 0, 0, p.width, p.height, 0x80402010);
                }),
#endif
#if TESSARO_BENCH_HAS_PIXMAN
              plain("pixman",
                    [](const Pair& p) {
                      pixman_fill(reinterpret_cast<uint32_t*>(p.dst.pixels()), p.pitch() / 4, 32, 0, 0,
                                  p.width, p.height, 0x80402010);
                    }),
#endif
#if TESSARO_BENCH_HAS_SDL2
              {"SDL2",
               [](const Pair& p) -> std::function<void()> {
                 return [p, dst = surface_of(p.dst)] {
                   const SDL_Rect area{0, 0, p.width, p.height};
                   SDL_FillRect(dst.get(), &area, 0x80402010);
                 };
               }},
#endif
#if TESSARO_BENCH_HAS_OPENCV
              opencv([](cv::Mat&, cv::Mat& dst) { dst.setTo(cv::Scalar(16, 32, 64, 128)); }),
#endif
        },
        true),
    blit("BBIBltColor/masked", updating,
         [](const Pair& p) {
           BBIBltColor(p.dst.record(), 0, 0, p.width, p.height, 0x00FF00FF, 0x0000FF0F, 0x80402010);
         },
         {}),
    blit(
        "BBIBltColorBlend", updating,
        [](const Pair& p) { BBIBltColorBlend(p.dst.record(), 0, 0, p.width, p.height, 0x80402010, 0.3f); },
        {
#if TESSARO_BENCH_HAS_PIXMAN
          {"pixman", [](const Pair& p) -> std::function<void()> {
             const pixman_color_t colour{0x1000, 0x2000, 0x3000, 0x5000};
             std::shared_ptr<pixman_image_t> solid(pixman_image_create_solid_fill(&colour),
                                                   pixman_image_unref);
             return [p, solid, dst = pixman_of(p.dst)] {
               pixman_image_composite32(PIXMAN_OP_OVER, solid.get(), nullptr, dst.get(), 0, 0, 0, 0, 0, 0,
                                        p.width, p.height);
             };
           }},
#endif
        }),
    blit("BBIBltAlpha", combining, call(BBIBltAlpha, 0, 0, 0, 0),
         {
#if TESSARO_BENCH_HAS_LIBYUV
           yuv2(libyuv::ARGBCopyAlpha),
#endif
         }),
    blit("BBIBltAlpha/all", combining, call(BBIBltAlpha, 1, 1, 1, 1), {}),
    blit(
        "BBIBltAdd", combining, call(BBIBltAdd),
        {
#if TESSARO_BENCH_HAS_LIBYUV
          yuv3(libyuv::ARGBAdd),
#endif
#if TESSARO_BENCH_HAS_PIXMAN
              pixman(PIXMAN_OP_ADD),
#endif
#if TESSARO_BENCH_HAS_OPENCV
              opencv([](cv::Mat& src, cv::Mat& dst) { cv::add(dst, src, dst); }),
#endif
        },
        true),
    blit("BBIBltMul", combining, call(BBIBltMul),
         {
#if TESSARO_BENCH_HAS_LIBYUV
           yuv3(libyuv::ARGBMultiply),
#endif
#if TESSARO_BENCH_HAS_OPENCV
               opencv([](cv::Mat& src, cv::Mat& dst) { cv::multiply(dst, src, dst, 1.0 / 256); }),
#endif
         }),
    blit("BBIBltSub", combining, call(BBIBltSub),
         {
#if TESSARO_BENCH_HAS_LIBYUV
           plain("libyuv",
                 [](const Pair& p) {
                   libyuv::ARGBSubtract(p.dst.pixels(), p.pitch(), p.src.pixels(), p.pitch(), p.dst.pixels(),
                                        p.pitch(), p.width, p.height);
                 }),
#endif
#if TESSARO_BENCH_HAS_OPENCV
               opencv([](cv::Mat& src, cv::Mat& dst) { cv::subtract(dst, src, dst); }),
#endif
         }),
    blit("BBIBltXor", combining, call(BBIBltXor),
         {
#if TESSARO_BENCH_HAS_OPENCV
           opencv([](cv::Mat& src, cv::Mat& dst) { cv::absdiff(dst, src, dst); }),
#endif
         }),
    blit("BBIBltXor2", combining, call(BBIBltXor2), {}),
    blit("BBIBltXor3", combining, call(BBIBltXor3), {}),
    blit("BBIBltNot", combining, call(BBIBltNot),
         {
#if TESSARO_BENCH_HAS_OPENCV
           opencv([](cv::Mat& src, cv::Mat& dst) { cv::bitwise_not(src, dst); }),
#endif
         }),
    blit("BBIBltMin", combining, call(BBIBltMin),
         {
#if TESSARO_BENCH_HAS_OPENCV
           opencv([](cv::Mat& src, cv::Mat& dst) { cv::min(dst, src, dst); }),
#endif
         }),
    blit("BBIBltMax", combining, call(BBIBltMax),
         {
#if TESSARO_BENCH_HAS_OPENCV
           opencv([](cv::Mat& src, cv::Mat& dst) { cv::max(dst, src, dst); }),
#endif
         }),
    blit("BBIBltKeying", combining, call(BBIBltKeying),
         {
#if TESSARO_BENCH_HAS_SDL2
           {"SDL2", [](const Pair& p) -> std::function<void()> {
              auto src = surface_of(p.src);
              SDL_SetSurfaceBlendMode(src.get(), SDL_BLENDMODE_NONE);
              SDL_SetColorKey(src.get(), SDL_TRUE, *reinterpret_cast<const uint32_t*>(p.src.pixels()));
              return [p, src, dst = surface_of(p.dst)] {
                SDL_Rect from{0, 0, p.width, p.height}, to = from;
                SDL_BlitSurface(src.get(), &from, dst.get(), &to);
              };
            }},
#endif
         }),
    blit("BBIBltKeyingFX/mix", combining, call(BBIBltKeyingFX, 0, 100),
         {
#if TESSARO_BENCH_HAS_LIBYUV
           plain("libyuv",
                 [](const Pair& p) {
                   libyuv::ARGBInterpolate(p.dst.pixels(), p.pitch(), p.src.pixels(), p.pitch(),
                                           p.dst.pixels(), p.pitch(), p.width, p.height, 100);
                 }),
#endif
#if TESSARO_BENCH_HAS_OPENCV
               opencv([](cv::Mat& src, cv::Mat& dst) {
                 cv::addWeighted(src, 100.0 / 256, dst, 156.0 / 256, 0, dst);
               }),
#endif
         }),
    blit("BBIBltKeyingFX/keyed", combining, call(BBIBltKeyingFX, 1, 100), {}),
    blit(
        "BBIBltBlend", combining, call(BBIBltBlend, 0),
        {
#if TESSARO_BENCH_HAS_LIBYUV
          yuv3(libyuv::ARGBBlend),
#endif
#if TESSARO_BENCH_HAS_PIXMAN
              pixman(PIXMAN_OP_OVER),
#endif
#if TESSARO_BENCH_HAS_SDL2
              sdl(SDL_BLENDMODE_BLEND),
#endif
        },
        true),
    blit("BBIBltBlend/wide", combining, call(BBIBltBlend, 1), {}),
    blit("BBIBltHalfBlend", combining, call(BBIBltHalfBlend),
         {
#if TESSARO_BENCH_HAS_LIBYUV
           plain("libyuv", [](const Pair& p) {
             libyuv::ARGBInterpolate(p.dst.pixels(), p.pitch(), p.src.pixels(), p.pitch(), p.dst.pixels(),
                                     p.pitch(), p.width, p.height, 128);
           }),
#endif
         }),
    blit("BBIBltShiftAlpha", combining, call(BBIBltShiftAlpha), {}),
    blit("BBIBltShiftBlock", combining, call(BBIBltShiftBlock), {}),
};

}  // namespace
