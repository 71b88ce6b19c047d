// Pixel formats, row by row over whole pictures, beside a copy that moves as many bytes and libyuv.
#include "bench.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_LIBYUV
#include <libyuv.h>
#endif

using namespace tessaro::bench;

namespace {

using Rows = std::function<void(uint8_t* dst, const uint8_t* src, int pixels)>;

// A contender converts `pixels` pixels in rows of `size`, as hosts do.
bool convert(const std::string& name, int dst_bytes, int src_bytes, Rows own, Rows libyuv = nullptr) {
  for (const int size : image_sizes)
    compare({name + "/" + std::to_string(size), static_cast<double>(size) * size, "pixel", [=] {
               const Picture dst(size, size, 1), src(size, size, 2);
               const auto by_rows = [=](const Rows& rows) {
                 return [=] {
                   for (int y = 0; y < size; ++y)
                     rows(dst.pixels() + static_cast<ptrdiff_t>(y) * size * dst_bytes,
                          src.pixels() + static_cast<ptrdiff_t>(y) * size * src_bytes, size);
                 };
               };
               const size_t moved = dst.bytes() / 4 * static_cast<size_t>(dst_bytes + src_bytes) / 2;
               std::vector<Contender> all{{"tessaro", by_rows(own)},
                                          {"limit", [=] { limit_copy(dst.pixels(), src.pixels(), moved); }}};
               if (libyuv) all.push_back({"libyuv", by_rows(libyuv)});
               return all;
             }});
  return true;
}

const uint32_t* words(const uint8_t* p) { return reinterpret_cast<const uint32_t*>(p); }
template <class F>
Rows pack(F f) {
  return [f](uint8_t* dst, const uint8_t* src, int n) { f(dst, words(src), n); };
}
Rows unpack(int format) {
  return [format](uint8_t* dst, const uint8_t* src, int n) {
    BBIBltToBBIGet(reinterpret_cast<uint32_t*>(dst), src, n, format);
  };
}
#if TESSARO_BENCH_HAS_LIBYUV
template <class F>
Rows yuv(F f) {
  return [f](uint8_t* dst, const uint8_t* src, int n) { f(src, 4 * n, dst, 4 * n, n, 1); };
}
#else
#define yuv(f) nullptr
#endif

uint8_t curve[768];
Rows styled(int format, float saturation, int tables) {
  return [=](uint8_t* dst, const uint8_t* src, int n) {
    BBIBltToF(dst, words(src), n, format, 0x80402010, 0.7f, saturation, tables, curve);
  };
}

[[maybe_unused]] const bool registered[] = {
    convert("BBIBltTo24As888", 3, 4, pack(BBIBltTo24As888), yuv(libyuv::ARGBToRGB24)),
    convert("BBIBltTo16As565", 2, 4, pack(BBIBltTo16As565), yuv(libyuv::ARGBToRGB565)),
    convert("BBIBltTo16As555", 2, 4, pack(BBIBltTo16As555)),
    convert("BBIBltTo16As1555", 2, 4, pack(BBIBltTo16As1555), yuv(libyuv::ARGBToARGB1555)),
    convert("BBIBltTo16As444", 2, 4, pack(BBIBltTo16As444), yuv(libyuv::ARGBToARGB4444)),
    convert("BBIBltTo8AsGray", 1, 4, pack(BBIBltTo8AsGray), yuv(libyuv::ARGBToI400)),
    convert("BBIBltTo8AsAlpha", 1, 4, pack(BBIBltTo8AsAlpha), yuv(libyuv::ARGBExtractAlpha)),
    convert("BBIBltTo1", 1, 4, pack(BBIBltTo1)),
    convert("BBIBltToBBIGet/888", 4, 3, unpack(888), yuv(libyuv::RGB24ToARGB)),
    convert("BBIBltToBBIGet/565", 4, 2, unpack(565), yuv(libyuv::RGB565ToARGB)),
    convert("BBIBltToBBIGet/555", 4, 2, unpack(555)),
    convert("BBIBltToBBIGet/1555", 4, 2, unpack(1555), yuv(libyuv::ARGB1555ToARGB)),
    convert("BBIBltToBBIGet/4444", 4, 2, unpack(4444), yuv(libyuv::ARGB4444ToARGB)),
    convert("BBIBltToX/8888", 4, 4,
            [](uint8_t* dst, const uint8_t* src, int n) {
              BBIBltToX(dst, words(src), n, 8888, 0x80402010, 0.7f);
            }),
    convert("BBIBltToX/565", 2, 4,
            [](uint8_t* dst, const uint8_t* src, int n) {
              BBIBltToX(dst, words(src), n, 565, 0x80402010, 0.7f);
            }),
    convert("BBIBltToXF/888", 3, 4,
            [](uint8_t* dst, const uint8_t* src, int n) {
              BBIBltToXF(dst, words(src), words(src), n, 888, 0.7f);
            }),
    convert("BBIBltToF/565 saturation", 2, 4, styled(565, 1.5f, 0)),
    convert("BBIBltToF/8888 tables", 4, 4, styled(8888, 1.0f, 1)),
    convert("BBIBltToF/8888 saturation, tables", 4, 4, styled(8888, 1.5f, 1)),
};

}  // namespace
