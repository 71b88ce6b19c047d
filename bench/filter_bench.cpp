// Blurs, halving, colour reduction, channel routing and region paint beside the limit and OpenCV's filters.
#include "peers.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_OPENCV
#include <opencv2/imgproc.hpp>
#endif
#if TESSARO_BENCH_HAS_LIBYUV
#include <libyuv.h>
#endif

using namespace tessaro::bench;

namespace {

void add_blur(const std::string& name, decltype(&BBIBltUBlur) blur, int size, int radius, bool columns) {
  compare({name + "/r" + std::to_string(radius) + "/" + std::to_string(size),
           static_cast<double>(size) * size, "pixel", [=] {
             const Picture dst(size, size, 1), src(size, size, 2);
             std::vector<Contender> all = {
                 {"tessaro", [=] { blur(dst.record(), src.record(), 0, 0, size, size, 0, 0, radius); }},
                 {"limit", [=] { limit_copy(dst.pixels(), src.pixels(), dst.bytes()); }}};
#if TESSARO_BENCH_HAS_OPENCV
             all.push_back({"OpenCV", [=] {
                              cv::Mat to = mat_of(dst);
                              cv::boxFilter(
                                  mat_of(src), to, -1,
                                  columns ? cv::Size(1, 2 * radius + 1) : cv::Size(2 * radius + 1, 1),
                                  {-1, -1}, true, cv::BORDER_REPLICATE);
                            }});
#endif
             return all;
           }});
}

void add_paint(const std::string& name, int size, std::function<bool(int x, int y)> is_key, uint32_t op) {
  compare(
      {"BBIPaintChoose/" + name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel", [=] {
         // Painted regions are keys no longer: each run begins with a copy of the drawing, as the limit does.
         const Picture image(size, size, 1), drawing(size, size, 2);
         constexpr uint32_t key = 0xFF00FF00;
         for (int y = 0; y < size; ++y)
           for (int x = 0; x < size; ++x)
             reinterpret_cast<uint32_t*>(drawing.pixels())[y * size + x] = is_key(x, y) ? key : 0xFF000000;
         return std::vector<Contender>{{"tessaro",
                                        [=] {
                                          limit_copy(image.pixels(), drawing.pixels(), drawing.bytes());
                                          BBIPaintChoose(image.record(), op, key, key, 5, 0);
                                        }},
                                       {"limit", [=] {
                                          limit_copy(image.pixels(), drawing.pixels(), drawing.bytes());
                                          limit_read(image.pixels(), image.bytes());
                                        }}};
       }});
}

// A square spiral of one-pixel corridors.
bool on_spiral(int size, int x, int y) {
  int ring = std::min(std::min(x, y), std::min(size - 1 - x, size - 1 - y));
  if (x == ring && y == ring + 1) ring += 1;  // the step inwards
  return ring % 2 == 0;
}

const bool registered = [] {
  for (const int size : image_sizes) {
    for (const int radius : {3, 8, 100}) {
      add_blur("BBIBltUBlur", BBIBltUBlur, size, radius, false);
      add_blur("BBIBltVBlur", BBIBltVBlur, size, radius, true);
    }
    add_blur("BBIBltUBlurLoop", BBIBltUBlurLoop, size, 8, false);
    add_blur("BBIBltVBlurLoop", BBIBltVBlurLoop, size, 8, true);
    const double pixels = static_cast<double>(size) * size;
    const std::string at = "/" + std::to_string(size);
    compare({"BBIBltHalfSize" + at, pixels, "pixel", [=] {
               const Picture dst(size / 2, size / 2, 1), src(size, size, 2);
               std::vector<Contender> all = {
                   {"tessaro",
                    [=] { BBIBltHalfSize(dst.record(), src.record(), 0, 0, size / 2, size / 2, 0, 0); }},
                   {"limit", [=] {
                      limit_read(src.pixels(), src.bytes());
                      limit_fill(dst.pixels(), dst.bytes());
                    }}};
#if TESSARO_BENCH_HAS_OPENCV
               all.push_back({"OpenCV", [=] {
                                cv::Mat to = mat_of(dst);
                                cv::resize(mat_of(src), to, to.size(), 0, 0, cv::INTER_AREA);
                              }});
#endif
#if TESSARO_BENCH_HAS_LIBYUV
               all.push_back({"libyuv", [=] {
                                libyuv::ARGBScale(src.pixels(), 4 * size, size, size, dst.pixels(), 2 * size,
                                                  size / 2, size / 2, libyuv::kFilterBox);
                              }});
#endif
               return all;
             }});
    for (const auto& [name, scale] :
         {std::pair{"BBIBltUScale", &BBIBltUScale}, {"BBIBltVScale", &BBIBltVScale}})
      compare({name + at, pixels, "pixel", [=, scale = scale] {
                 const Picture dst(size, size, 1), src(size, size, 2);
                 return std::vector<Contender>{
                     {"tessaro", [=] { scale(dst.record(), src.record(), 0, 0, size, size, 0, 0, 3, 5); }},
                     {"limit", [=] { limit_copy(dst.pixels(), src.pixels(), dst.bytes()); }}};
               }});
    for (const auto& [name, run] : {std::pair{"BBIColorCutDown1555", &BBIColorCutDown1555},
                                    {"BBIColorCutDown4444", &BBIColorCutDown4444},
                                    {"BBIColorCutDown1111", &BBIColorCutDown1111}})
      compare({name + at, pixels, "pixel", [=, run = run] {
                 const Picture image(size, size, 1);
                 return std::vector<Contender>{
                     {"tessaro", [=] { run(image.record()); }},
                     {"limit", [=] { limit_update(image.pixels(), image.bytes()); }}};
               }});
    const std::pair<const char*, std::function<void(ImageRecord*, ImageRecord*)>> chooses[] = {
        {"BBIChooseCA", [](ImageRecord* d, ImageRecord* s) { BBIChooseCA(d, s, 2, 0); }},
        {"BBIChooseCATR", [](ImageRecord* d, ImageRecord* s) { BBIChooseCATR(d, s, 2, 0); }},
        {"BBIChooseCATS",
         [](ImageRecord* d, ImageRecord* s) { BBIChooseCATS(d, s, 2, 0, 0.3f, 0.5f, 0.2f); }},
        {"BBIChooseRGBA", [](ImageRecord* d, ImageRecord* s) { BBIChooseRGBA(d, s, 2, 5, 0, 7); }}};
    for (const auto& [name, run] : chooses)
      compare({name + at, pixels, "pixel", [=, run = run] {
                 const Picture dst(size, size, 1), src(size, size, 2);
                 return std::vector<Contender>{
                     {"tessaro", [=] { run(dst.record(), src.record()); }},
                     {"limit", [=] { limit_combine(dst.pixels(), src.pixels(), dst.bytes()); }}};
               }});
  }
  for (const int size : {1024, 2048}) {  // twice the side, four times the pixels: the rate must stay
    add_paint(
        "regions/spiral", size, [=](int x, int y) { return on_spiral(size, x, y); }, 5);
    add_paint(
        "regions/comb", size, [](int x, int y) { return y == 0 || x % 2 == 0; }, 5);
    add_paint(
        "regions/specks", size, [](int x, int y) { return (x * 7 + y * 13) % 5 == 0; }, 5);
    add_paint(
        "outline", size, [](int x, int y) { return (x / 30 + y / 50) % 3 == 0; }, 2);
  }
  return true;
}();

}  // namespace
