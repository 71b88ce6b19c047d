// Maps and stencils. The pictures are noise in every byte, alpha included: the worst that can happen, because
// the map row changes from pixel to pixel. Rows that say "opaque" have one alpha, rows that say "cut out" a
// photograph that fades towards the edge of a disc.
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>

#include "peers.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_LIBYUV
#include <libyuv.h>
#endif

using namespace tessaro::bench;

namespace {

enum class Form { noise, opaque, cut_out };
Picture picture(int size, Form form) {
  Picture all(size, size, 2);
  if (form == Form::noise) return all;
  const Picture photo(640, 427);
  std::ifstream file(BENCH_MEDIA "/rocket.jpg", std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(file), {}};
  if (DecodeImage(photo.record(), content.data(), static_cast<int32_t>(content.size())) != 0)
    std::fprintf(stderr, "no photograph: noise takes its place\n");
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      uint8_t* at = all.pixels() + 4 * (static_cast<ptrdiff_t>(y) * size + x);
      if (form == Form::cut_out)
        std::memcpy(at, photo.pixels() + 4 * (y % photo.height() * photo.width() + x % photo.width()), 3);
      const double rest =
          0.5 - std::hypot(x - size / 2, y - size / 2) / size;  // to the edge; it is soft for 0.2
      at[3] = form == Form::opaque || rest > 0.2 ? 255 : rest < 0 ? 0 : static_cast<uint8_t>(rest * 5 * 255);
    }
  return all;
}

using Map = int32_t (*)(ImageRecord*, const ImageRecord*, const ImageRecord*, int32_t, int32_t, int32_t,
                        int32_t, int32_t, int32_t);
bool map(const std::string& name, Map own, Form form = Form::noise, bool peers = false) {
  static const char* const forms[] = {"", ", opaque", ", cut out"};
  for (const int size : image_sizes)
    compare(
        {name + forms[static_cast<int>(form)] + "/" + std::to_string(size), static_cast<double>(size) * size,
         "pixel", [=] {
           const Picture dst(size, size), src = picture(size, form), table(256, 256, 3);
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
           all.push_back({"OpenCV", [=, to = mat_of(dst), from = mat_of(src),
                                     lut = cv::Mat(256, 1, CV_8UC4, table.pixels())]() mutable {
                            cv::LUT(from, lut, to);
                          }});
#endif
           return all;
         }});
  return true;
}
const bool maps_registered[] = {
    map("BBIMapUC", BBIMapUC, Form::noise, true),
    map("BBIMapUCVA", BBIMapUCVA),
    map("BBIMapUCVA", BBIMapUCVA, Form::opaque),
    map("BBIMapUCVA", BBIMapUCVA, Form::cut_out),
    map("BBIMapUDVA", BBIMapUDVA),
    map("BBIMapUDVA", BBIMapUDVA, Form::opaque),
    map("BBIMapMCUCVA", BBIMapMCUCVA),
    map("BBIMapMCUCVA", BBIMapMCUCVA, Form::opaque),
    map("BBIMapMCUCVA", BBIMapMCUCVA, Form::cut_out),
    map("BBIMapMCUDVA", BBIMapMCUDVA),
    map("BBIMapUCVC", BBIMapUCVC),
    map("BBIMapUCVC", BBIMapUCVC, Form::cut_out),
    map("BBIMapUDVC", BBIMapUDVC),
    map("BBIMapUCVX", BBIMapUCVX),
    map("BBIMapUCVY", BBIMapUCVY),
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
