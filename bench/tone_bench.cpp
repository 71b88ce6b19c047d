// Tone transfer, true blend and automatic levels.
#include "peers.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_OPENCV
#include <opencv2/imgproc.hpp>
#endif

using namespace tessaro::bench;

namespace {

template <class F, class... More>
bool blit(const std::string& name, F f, More... more) {
  for (const int size : image_sizes)
    compare({name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel", [=] {
               const Picture dst(size, size, 1), src(size, size, 2);
               return std::vector<Contender>{
                   {"tessaro", [=] { f(dst.record(), src.record(), 0, 0, size, size, 0, 0, more...); }},
                   {"limit", [=] { limit_combine(dst.pixels(), src.pixels(), dst.bytes()); }}};
             }});
  return true;
}

// OpenCV measures one histogram a channel and looks every byte up in a table. Its result goes elsewhere: both
// measure a picture of many levels in every run. The library stretches in place, which after the first run
// changes few pixels and costs the same.
bool levels(const std::string& name, int32_t (*f)(ImageRecord*, int32_t)) {
  for (const int size : image_sizes)
    compare({name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel", [=] {
               const Picture image(size, size, 1), same(size, size, 1), out(size, size, 2);
               for (const Picture& p : {image, same})
                 BBIBltColorBlend(p.record(), 0, 0, size, size, 0xFF606060, 0.5f);
               std::vector<Contender> all{{"tessaro", [=] { f(image.record(), size * size / 100); }},
                                          {"limit", [=] { limit_update(image.pixels(), image.bytes()); }}};
#if TESSARO_BENCH_HAS_OPENCV
               all.push_back({"OpenCV calcHist + LUT",
                              [same, out, m = mat_of(same), to = mat_of(out),
                               table = cv::Mat(1, 256, CV_8UC4, cv::Scalar(9, 9, 9, 9))]() mutable {
                                const int bins = 256;
                                const float range[] = {0, 256};
                                const float* ranges = range;
                                cv::Mat histogram;
                                for (const int channel : {0, 1, 2})
                                  cv::calcHist(&m, 1, &channel, cv::noArray(), histogram, 1, &bins, &ranges);
                                cv::LUT(m, table, to);
                              }});
#endif
               return all;
             }});
  return true;
}

[[maybe_unused]] const bool registered[] = {
    blit("BBIBltTone", BBIBltTone),
    blit("BBIBltToneWB", BBIBltToneWB, 1.0f),
    blit("BBIBltTrueBlend", BBIBltTrueBlend, 0.7f),
    levels("BBIAutoLevelRGB", BBIAutoLevelRGB),
    levels("BBIAutoLevelWB", BBIAutoLevelWB),
};

}  // namespace
