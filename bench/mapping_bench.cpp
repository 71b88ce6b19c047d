// Maps and stencils. The pictures are noise in every byte, alpha included, unless a row says "opaque": a map row
// that stays the same from pixel to pixel is what photographs have, and noise is the worst that can happen.
#include "bench.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_LIBYUV
#include <libyuv.h>
#endif
#if TESSARO_BENCH_HAS_OPENCV
#include <opencv2/core.hpp>
#endif

using namespace tessaro::bench;

namespace {

void make_opaque(const Picture& p) {
  for (size_t at = 3; at < p.bytes(); at += 4) p.pixels()[at] = 255;
}

using Map = int32_t (*)(ImageRecord*, const ImageRecord*, const ImageRecord*, int32_t, int32_t, int32_t,
                        int32_t, int32_t, int32_t);
bool map(const std::string& name, Map own, bool opaque = false, bool peers = false) {
  for (const int size : image_sizes)
    compare(
        {name + (opaque ? ", opaque/" : "/") + std::to_string(size), static_cast<double>(size) * size,
         "pixel", [=] {
           const Picture dst(size, size), src(size, size, 2), table(256, 256, 3);
           if (opaque) make_opaque(src);
           std::vector<Contender> all{
               {"tessaro", [=] { own(dst.record(), src.record(), table.record(), 0, 0, size, size, 0, 0); }},
               {"limit", [=] { limit_copy(dst.pixels(), src.pixels(), src.bytes()); }}};
           if (!peers) return all;
#if TESSARO_BENCH_HAS_LIBYUV
           all.push_back({"libyuv", [=] {
                            libyuv::ARGBColorTable(dst.pixels(), 4 * size, table.pixels(), 0, 0, size, size);
                          }});
#endif
#if TESSARO_BENCH_HAS_OPENCV
           const auto mat = [](const Picture& p, int w, int h) { return cv::Mat(h, w, CV_8UC4, p.pixels()); };
           all.push_back({"OpenCV", [=, to = mat(dst, size, size), from = mat(src, size, size),
                                     lut = mat(table, 256, 1)]() mutable { cv::LUT(from, lut, to); }});
#endif
           return all;
         }});
  return true;
}
const bool maps_registered[] = {
    map("BBIMapUC", BBIMapUC, false, true),  map("BBIMapUCVA", BBIMapUCVA),
    map("BBIMapUCVA", BBIMapUCVA, true),     map("BBIMapUDVA", BBIMapUDVA),
    map("BBIMapUDVA", BBIMapUDVA, true),     map("BBIMapMCUCVA", BBIMapMCUCVA),
    map("BBIMapMCUCVA", BBIMapMCUCVA, true), map("BBIMapMCUDVA", BBIMapMCUDVA),
    map("BBIMapUCVC", BBIMapUCVC),           map("BBIMapUDVC", BBIMapUDVC),
    map("BBIMapUCVX", BBIMapUCVX),           map("BBIMapUCVY", BBIMapUCVY),
};

bool stencils() {
  for (const int size : image_sizes)
    for (const auto& [form, softness] :
         {std::pair{"hard", 0.0f}, std::pair{"soft", 0.4f}, std::pair{"cross-fade", 1000.0f}}) {
      const float s = softness;
      const auto add = [&](const std::string& name, auto call, bool two) {
        compare({name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel", [=] {
                   const Picture dst(size, size), a(size, size, 2), b(size, size, 3), stencil(size, size, 4);
                   std::vector<Contender> all{{"tessaro", [=] { call(dst, a, b, stencil); }}};
                   all.push_back({"limit", [=] {
                                    if (two)
                                      limit_combine(dst.pixels(), a.pixels(), a.bytes());
                                    else
                                      limit_combine3(dst.pixels(), a.pixels(), b.pixels(), a.bytes());
                                  }});
                   return all;
                 }});
      };
      add(
          std::string("BBIStencilFlip, ") + form,
          [=](auto& d, auto& a, auto& b, auto&) {
            BBIStencilFlip(d.record(), a.record(), b.record(), 0, 0, size, size, 0, 0, 0.4f, s, 1);
          },
          false);
      add(
          std::string("BBIStencilFlipLE, ") + form,
          [=](auto& d, auto& a, auto& b, auto& m) {
            BBIStencilFlipLE(d.record(), a.record(), b.record(), m.record(), 0, 0, size, size, 0, 0, 0.4f, s);
          },
          false);
      if (s == 0)
        add(
            "BBIStencilAddsigned",
            [=](auto& d, auto& a, auto&, auto&) {
              BBIStencilAddsigned(d.record(), a.record(), 0, 0, size, size, 0, 0, 0.7f, 0x90A060);
            },
            true);
    }
  return true;
}
const bool stencils_registered = stencils();

}  // namespace
