// Stretched, interpolated and cross-faded copies beside the limit and the libraries that scale. What differs:
// OpenCV's nearest sample is floor(x * scale) as here, those of libyuv and pixman are centred; the bilinear
// filters round each in its own way; pixman blends premultiplied colours.
#include "peers.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_LIBYUV
#include <libyuv.h>
#endif
#if TESSARO_BENCH_HAS_OPENCV
#include <opencv2/imgproc.hpp>
#endif

#include <cmath>

using namespace tessaro::bench;

namespace {

#if TESSARO_BENCH_HAS_LIBYUV
Named libyuv_scale(libyuv::FilterMode mode) {
  return {"libyuv", [mode](const Pair& p) -> std::function<void()> {
            return [p, mode] {
              libyuv::ARGBScale(p.src.pixels(), 4 * p.src.width(), p.src.width(), p.src.height(),
                                p.dst.pixels(), 4 * p.dst.width(), p.dst.width(), p.dst.height(), mode);
            };
          }};
}
#endif
#if TESSARO_BENCH_HAS_OPENCV
Named opencv_scale(int mode) {
  return {"OpenCV", [mode](const Pair& p) -> std::function<void()> {
            return [p, mode, src = mat_of(p.src), dst = mat_of(p.dst)]() mutable {
              cv::resize(src, dst, dst.size(), 0, 0, mode);
            };
          }};
}
#endif
#if TESSARO_BENCH_HAS_PIXMAN
Named pixman_scale(pixman_op_t op, pixman_filter_t filter) {
  return {"pixman", [op, filter](const Pair& p) -> std::function<void()> {
            return [p, op, filter, dst = pixman_of(p.dst), src = pixman_of(p.src)] {
              pixman_transform_t transform;
              pixman_transform_init_scale(&transform,
                                          pixman_double_to_fixed(1.0 * p.src.width() / p.dst.width()),
                                          pixman_double_to_fixed(1.0 * p.src.height() / p.dst.height()));
              pixman_image_set_transform(src.get(), &transform);
              pixman_image_set_filter(src.get(), filter, nullptr, 0);
              pixman_image_composite32(op, src.get(), nullptr, dst.get(), 0, 0, 0, 0, 0, 0, p.dst.width(),
                                       p.dst.height());
            };
          }};
}
#endif

Peers nearest() {
  return {
#if TESSARO_BENCH_HAS_LIBYUV
    libyuv_scale(libyuv::kFilterNone),
#endif
#if TESSARO_BENCH_HAS_OPENCV
        opencv_scale(cv::INTER_NEAREST),
#endif
#if TESSARO_BENCH_HAS_PIXMAN
        pixman_scale(PIXMAN_OP_SRC, PIXMAN_FILTER_NEAREST),
#endif
  };
}
Peers blended() {
  return {
#if TESSARO_BENCH_HAS_PIXMAN
    pixman_scale(PIXMAN_OP_OVER, PIXMAN_FILTER_NEAREST),
#endif
  };
}
Peers bilinear() {
  return {
#if TESSARO_BENCH_HAS_LIBYUV
    libyuv_scale(libyuv::kFilterBilinear),
#endif
#if TESSARO_BENCH_HAS_OPENCV
        opencv_scale(cv::INTER_LINEAR),
#endif
#if TESSARO_BENCH_HAS_PIXMAN
        pixman_scale(PIXMAN_OP_SRC, PIXMAN_FILTER_BILINEAR),
#endif
  };
}
Peers cubic() {
  return {
#if TESSARO_BENCH_HAS_OPENCV
    opencv_scale(cv::INTER_CUBIC),
#endif
  };
}
Peers faded() {
  return {
#if TESSARO_BENCH_HAS_LIBYUV
    plain("libyuv", [](const Pair& p) {
      libyuv::ARGBInterpolate(p.dst.pixels(), p.pitch(), p.src.pixels(), p.pitch(), p.dst.pixels(), p.pitch(),
                              p.width, p.height, 100);
    }),
#endif
  };
}
Peers composited() {
  return {
#if TESSARO_BENCH_HAS_LIBYUV
    plain("libyuv", [](const Pair& p) {
      libyuv::ARGBBlend(p.src.pixels(), p.pitch(), p.dst.pixels(), p.pitch(), p.dst.pixels(), p.pitch(),
                        p.width, p.height);
    }),
#endif
  };
}

// As if the source had the destination's size.
using Limit = void (*)(const Picture& dst, const Picture& src);
void filling(const Picture& d, const Picture&) { limit_fill(d.pixels(), d.bytes()); }
void combining(const Picture& d, const Picture& s) { limit_combine(d.pixels(), s.pixels(), d.bytes()); }

bool scale(const std::string& name, std::vector<int> sizes, double factor, Limit limit, const Peers& peers,
           Call own) {
  for (const int size : sizes) {
    compare({name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel", [=] {
               const int from = static_cast<int>(std::lround(size / factor));
               const Pair pair{{size, size, 1}, {from, from, 2}, size, size};
               std::vector<Contender> all{{"tessaro", [=] { own(pair); }}};
               if (limit)
                 all.push_back({"limit", [=, like = Picture(size, size, 3)] { limit(pair.dst, like); }});
               for (const Named& peer : peers) all.push_back({peer.name, peer.make(pair)});
               return all;
             }});
  }
  return true;
}

template <class F, class... More>
Call scaled(F f, More... more) {
  return [=](const Pair& p) {
    f(p.dst.record(), p.src.record(), 0, 0, p.dst.width(), p.dst.height(), 0, 0, p.src.width(),
      p.src.height(), more...);
  };
}
template <class F, class... More>
Call unscaled(F f, More... more) {
  return [=](const Pair& p) {
    f(p.dst.record(), p.src.record(), 0, 0, p.dst.width(), p.dst.height(), 0, 0, more...);
  };
}

// The width of an image times 4 fits 16 bits, so that sources of reductions bound the destination.
const std::vector<int> both = {512, 4096}, halves = {512, 4095};

[[maybe_unused]] const bool registered[] = {
    scale("BBIExpandBlt/x2", both, 2, filling, nearest(), scaled(BBIExpandBlt, 1.0f)),
    scale("BBIExpandBlt/x3", {513, 4095}, 3, filling, nearest(), scaled(BBIExpandBlt, 1.0f)),
    scale("BBIExpandBlt/x1.37", both, 1.37, filling, nearest(), scaled(BBIExpandBlt, 1.0f)),
    scale("BBIExpandBlt/x0.5", halves, 0.5, filling, nearest(), scaled(BBIExpandBlt, 1.0f)),
    scale("BBIExpandBlt/x0.3", {512, 2400}, 0.3, filling, nearest(), scaled(BBIExpandBlt, 1.0f)),
    scale("BBIExpandBlt/x1.37 opacity", both, 1.37, combining, {}, scaled(BBIExpandBlt, 0.4f)),
    scale("BBIExpandBlt/x0.8 opacity", both, 0.8, combining, {}, scaled(BBIExpandBlt, 0.4f)),
    scale("BBIExpandBlendBlt/x1.37", both, 1.37, combining, blended(), scaled(BBIExpandBlendBlt, 1.0f)),
    scale("BBIExpandBlendBlt/x0.8", both, 0.8, combining, blended(), scaled(BBIExpandBlendBlt, 1.0f)),
    scale("BBIExpandBlendBlt/sprite", {8, 32}, 0.8, nullptr, blended(), scaled(BBIExpandBlendBlt, 1.0f)),
    scale("BBIExpandBlendBlt/sprite opacity", {8, 32}, 0.8, nullptr, blended(),
          scaled(BBIExpandBlendBlt, 0.7f)),
    scale("BBIExpandBlt/sprite", {8, 32}, 0.8, nullptr, nearest(), scaled(BBIExpandBlt, 1.0f)),
    scale("BBIExpandColorBlt/x1.37", both, 1.37, combining, {},
          scaled(BBIExpandColorBlt, 0.7f, 0u, 0xFF00FF00u, 0x11223344u, 0x8899AABBu, 0xFF0080FFu, 0x01020304u,
                 1)),
    scale("BBIExpandChooseBlt/all on, x1", both, 1, combining, {},
          scaled(BBIExpandChooseBlt, 0.7f, 1.4f, 0x00101820u, 0x00E0F0C0u, 0x00030303u, 0xFFF0F0F0u,
                 0x00000505u, 0x00000A00u, 1, 1, 1, 0)),
    scale("BBIExpandChooseBlt/all on, x1.37", both, 1.37, combining, {},
          scaled(BBIExpandChooseBlt, 0.7f, 1.4f, 0x00101820u, 0x00E0F0C0u, 0x00030303u, 0xFFF0F0F0u,
                 0x00000505u, 0x00000A00u, 1, 1, 1, 0)),
    scale("BBIExpandChooseBlt/levels", both, 1, combining, {},
          scaled(BBIExpandChooseBlt, 1.0f, 1.0f, 0x00101820u, 0x00E0F0C0u, 0u, 0xFFFFFFFFu, 0u, 0u, 0, 0, 0,
                 0)),
    scale("BBILinearBlt/x1.6", both, 1.6, filling, bilinear(), scaled(BBILinearBlt)),
    scale("BBILinearBlt/x2", both, 2, filling, bilinear(), scaled(BBILinearBlt)),
    scale("BBILinearBlt/x0.625", both, 0.625, filling, bilinear(), scaled(BBILinearBlt)),
    scale("BBILinearBlt/x0.3", {512, 2400}, 0.3, filling, bilinear(), scaled(BBILinearBlt)),
    scale("BBILinearRender/x1.6", both, 1.6, combining, {},
          [table =
               [] {
                 std::vector<uint32_t> weights(256);
                 BBIAlphaTableCreate(weights.data(), 0.7f, 1);
                 return weights;
               }()](const Pair& p) { scaled(BBILinearRender, table.data(), 1, 1, 0u)(p); }),
    scale("BBILinearBltTest/x0.5", {512}, 0.5, filling, {}, scaled(BBILinearBltTest)),
    scale("BBILinear/x1.6", {512}, 1.6, filling, cubic(),
          [](const Pair& p) { BBILinear(p.dst.record(), p.src.record()); }),
    scale("BBIFlip", both, 1, combining, faded(), unscaled(BBIFlip, 0.4f)),
    scale("BBIFlipBlend", both, 1, combining, composited(), unscaled(BBIFlipBlend, 0.9f)),
    scale("BBIDepth", both, 1, combining, {}, unscaled(BBIDepth)),
    scale("BBIDepthMask", both, 1, combining, {}, unscaled(BBIDepthMask, 0x00FFFF00u)),
};

}  // namespace
