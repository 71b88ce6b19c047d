// The transforms beside memcpy, and every stream format beside QOI, LZ4, zstd -1 and zlib -1 on the same
// pixels: a photograph, a screen of text and flat areas, a sprite with alpha. Names end with the size that
// the format reaches, in percent of the source; peers carry theirs in brackets.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

#include "bench.hpp"
#include "tessaro/tessaro.h"

#if TESSARO_BENCH_HAS_QOI
// It allocates what it makes; here it is given the same memory every time, so that none of that is measured.
static void* same_memory(size_t bytes) {
  static std::vector<uint8_t> memory;
  if (memory.size() < bytes) memory.resize(bytes);
  return memory.data();
}
#define QOI_MALLOC(bytes) same_memory(static_cast<size_t>(bytes))
#define QOI_FREE(memory) static_cast<void>(memory)
#define QOI_IMPLEMENTATION
#define QOI_NO_STDIO
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#include <qoi.h>
#pragma GCC diagnostic pop
#endif
#if TESSARO_BENCH_HAS_LZ4
#include <lz4.h>
#endif
#if TESSARO_BENCH_HAS_ZSTD
#include <zstd.h>
#endif
#if TESSARO_BENCH_HAS_ZLIB
#include <zlib.h>
#endif

using namespace tessaro::bench;

namespace {

using Bytes = std::vector<uint8_t>;
using Encoder = decltype(&iEncoder);
using Decoder = decltype(&iDecoder);
using SafeDecoder = decltype(&iDecoderSafe);

constexpr int width = 640, height = 427;

constexpr uint32_t size = 4 * width * height;  // bytes of a picture

using Shared = std::shared_ptr<Bytes>;

// The gallery's first photograph, opaque.
const Shared& photograph() {
  static const Shared made = [] {
    std::ifstream file(BENCH_MEDIA "/rocket.jpg", std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    const Picture picture(width, height);
    if (content.empty()) std::fprintf(stderr, "no photograph: noise takes its place\n");
    DecodeImage(picture.record(), content.data(), static_cast<int32_t>(content.size()));
    auto bytes = std::make_shared<Bytes>(picture.pixels(), picture.pixels() + picture.bytes());
    for (size_t i = 3; i < bytes->size(); i += 4) (*bytes)[i] = 255;
    return bytes;
  }();
  return made;
}

template <class Pixel>
Shared drawn(Pixel pixel) {
  auto bytes = std::make_shared<Bytes>(size);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const uint32_t p = pixel(x, y);
      std::memcpy(bytes->data() + 4 * (y * width + x), &p, 4);
    }
  return bytes;
}

// Windows with title bars, and lines of small marks instead of letters.
Shared screen() {
  return drawn([](int x, int y) -> uint32_t {
    const int wx = x % 320, wy = y % 214;
    if (wx < 8 || wy < 8) return 0xFF3A6EA5;
    if (wy < 26) return 0xFF0A246A;
    if (wx > 300) return 0xFFD4D0C8;
    const int line = wy % 14, letter = wx / 7;
    const unsigned mark =
        static_cast<unsigned>(letter * 2654435761u + static_cast<unsigned>(wy / 14) * 40503u) >> 7;
    const bool ink = line < 9 && wx % 7 < 5 && letter % 6 != 0 && letter < 30 + wy / 14 * 5 % 11 &&
                     (mark >> (line * 5 + wx % 7) % 23 & 1);
    return ink ? 0xFF000000 : 0xFFFFFFFF;
  });
}

// A disc cut out of the photograph with a soft edge, nothing around it.
Shared sprite() {
  const Shared& photo = photograph();
  return drawn([&](int x, int y) -> uint32_t {
    const int dx = x - width / 2, dy = y - height / 2, far = (dx * dx + dy * dy) / 100;
    const int alpha = far < 300 ? 255 : far < 400 ? 255 * (400 - far) / 100 : 0;
    if (alpha == 0) return 0;
    uint32_t p;
    std::memcpy(&p, photo->data() + 4 * (y * width + x), 4);
    return (p & 0xFFFFFF) | static_cast<uint32_t>(alpha) << 24;
  });
}

struct Data {
  std::string name;
  Shared (*make)();
};
const Data pictures[] = {{"photograph", [] { return photograph(); }}, {"screen", screen}, {"sprite", sprite}};

std::string percent(size_t part, size_t whole) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f%%", 100.0 * static_cast<double>(part) / static_cast<double>(whole));
  return text;
}

struct Peer {
  std::string name;
  std::function<void()> encode, decode;
};
std::vector<Peer> peers(const Shared& source) {
  std::vector<Peer> all;
  const auto back = std::make_shared<Bytes>(size);
  [[maybe_unused]] const auto add = [&](const char* name, const Shared& stream, auto encode, auto decode) {
    stream->resize(encode());
    all.push_back({name + (" (" + percent(stream->size(), size)) + ")", [=] { encode(); }, decode});
  };
#if TESSARO_BENCH_HAS_QOI
  {
    const qoi_desc shape{width, height, 4, QOI_SRGB};
    int length = 0;
    auto* made = static_cast<uint8_t*>(qoi_encode(source->data(), &shape, &length));
    const auto stream = std::make_shared<Bytes>(made, made + length);
    all.push_back({"QOI (" + percent(stream->size(), size) + ")",
                   [=] {
                     int n;
                     qoi_encode(source->data(), &shape, &n);
                   },
                   [=] {
                     qoi_desc read;
                     qoi_decode(stream->data(), static_cast<int>(stream->size()), &read, 4);
                   }});
  }
#endif
#if TESSARO_BENCH_HAS_LZ4
  {
    const auto stream = std::make_shared<Bytes>(LZ4_compressBound(static_cast<int>(size)));
    const int room = static_cast<int>(stream->size());
    add(
        "LZ4", stream,
        [=] {
          return static_cast<size_t>(LZ4_compress_default(reinterpret_cast<const char*>(source->data()),
                                                          reinterpret_cast<char*>(stream->data()),
                                                          static_cast<int>(size), room));
        },
        [=] {
          LZ4_decompress_safe(reinterpret_cast<const char*>(stream->data()),
                              reinterpret_cast<char*>(back->data()), static_cast<int>(stream->size()),
                              static_cast<int>(size));
        });
  }
#endif
#if TESSARO_BENCH_HAS_ZSTD
  {
    const size_t room = ZSTD_compressBound(size);
    const auto stream = std::make_shared<Bytes>(room);
    add(
        "zstd -1", stream, [=] { return ZSTD_compress(stream->data(), room, source->data(), size, 1); },
        [=] { ZSTD_decompress(back->data(), size, stream->data(), stream->size()); });
  }
#endif
#if TESSARO_BENCH_HAS_ZLIB
  {
    const auto room = compressBound(static_cast<uLong>(size));
    const auto stream = std::make_shared<Bytes>(room);
    add(
        "zlib -1", stream,
        [=] {
          uLongf length = room;
          compress2(stream->data(), &length, source->data(), static_cast<uLong>(size), 1);
          return static_cast<size_t>(length);
        },
        [=] {
          auto length = static_cast<uLongf>(size);
          uncompress(back->data(), &length, stream->data(), static_cast<uLong>(stream->size()));
        });
  }
#endif
  return all;
}

struct Format {
  const char* name;
  Encoder encoder;
  Decoder decoder;
  SafeDecoder safe;
  // The pixels are separated into channels and differences first; inabeDecoderEx undoes that.
  bool prepared = false;
};
const Format formats[] = {
    {"i", iEncoder, iDecoder, iDecoderSafe},
    {"i/of differences", iEncoder, iDecoder, iDecoderSafe, true},
    {"io", ioEncoder, ioDecoder, ioDecoderSafe},
    {"ib18", ib18Encoder, ib18Decoder, ib18DecoderSafe},
    {"ib18Ex", ib18EncoderEx, ib18DecoderEx, ib18DecoderExSafe},
    {"iabr", iabrEncoder, iabrDecoder, iabrDecoderSafe},
    {"iabr/of differences", iabrEncoder, iabrDecoder, iabrDecoderSafe, true},
    {"inabe", inabeEncoder, inabeDecoder, inabeDecoderSafe},
    {"inabe/of differences", inabeEncoder, inabeDecoder, inabeDecoderSafe, true},
    {"inabeEx", inabeEncoder, inabeDecoderEx, inabeDecoderExSafe, true},
    {"imist", imistEncoder, imistDecoder, imistDecoderSafe},
    {"inda", indaEncoder, indaDecoder, indaDecoderSafe},
    {"ica", icaEncoder, icaDecoder, icaDecoderSafe},
    {"c2f", c2fEncoder, nullptr, c2fDecoder},
};

// What a format makes of a picture. Its size stands behind the name of the row.
struct Coded {
  Shared picture, source, stream;
  std::string note;
  bool good;
};
Coded coded(const Format& format, const Data& data) {
  Coded c{data.make(), nullptr, std::make_shared<Bytes>(size + size / 32 + 64), "", false};
  c.source = c.picture;
  uint32_t n = 0;
  if (format.prepared) {
    Bytes planes(size);
    c.source = std::make_shared<Bytes>(size);
    ichshift4Encoder(c.picture->data(), planes.data(), size, &n);
    iwave11Encoder(planes.data(), c.source->data(), size, &n);
  }
  c.good = format.encoder(c.source->data(), c.stream->data(), size, &n) == 0;
  c.note = "/" + (c.good ? percent(n, size) : "given up");
  if (c.good) c.stream->resize(n);
  return c;
}

void add(const Format& format, const Data& data) {
  const std::string name = format.name;
  const size_t slash = std::min(name.find('/'), name.size());
  const auto title = [&](const char* way) {
    return name.substr(0, slash) + way + name.substr(slash) + "/" + data.name;
  };
  compare({title("Encoder"), size, "byte", [=] {
             const Coded c = coded(format, data);
             const auto room = std::make_shared<Bytes>(size + size / 32 + 64);
             std::vector<Contender> all{{"tessaro", [=] {
                                           uint32_t n;
                                           format.encoder(c.source->data(), room->data(), size, &n);
                                         }}};
             for (const Peer& peer : peers(c.picture)) all.push_back({peer.name, peer.encode});
             return Prepared(all, c.note);
           }});
  compare({title("Decoder"), size, "byte", [=] {
             std::vector<Contender> all;
             const Coded c = coded(format, data);
             if (!c.good) return Prepared(all);
             const auto back = std::make_shared<Bytes>(size);
             const auto safe = [=] {
               format.safe(c.stream->data(), back->data(), static_cast<uint32_t>(c.stream->size()), size);
             };
             if (format.decoder) {
               all.push_back({"tessaro", [=] { format.decoder(c.stream->data(), back->data(), size); }});
               all.push_back({"hardened", safe});
             } else {
               all.push_back({"tessaro", safe});
             }
             for (const Peer& peer : peers(c.picture)) all.push_back({peer.name, peer.decode});
             return Prepared(all, c.note);
           }});
}

struct Transform {
  const char* name;
  Encoder encoder;
  Decoder decoder;
};
const Transform transforms[] = {
    {"iwave11", iwave11Encoder, iwave11Decoder},       {"iwave12", iwave12Encoder, iwave12Decoder},
    {"iwave32", iwave32Encoder, iwave32Decoder},       {"iwave21", iwave21Encoder, iwave21Decoder},
    {"iwave22", iwave22Encoder, iwave22Decoder},       {"ichshift2", ichshift2Encoder, ichshift2Decoder},
    {"ichshift3", ichshift3Encoder, ichshift3Decoder}, {"ichshift4", ichshift4Encoder, ichshift4Decoder},
};

void add(const Transform& transform, int edge) {
  const auto bytes = static_cast<uint32_t>(4 * edge * edge);
  for (bool encode : {true, false})
    compare({std::string(transform.name) + (encode ? "Encoder/" : "Decoder/") + std::to_string(edge),
             static_cast<double>(bytes), "byte", [=] {
               const Picture src(edge, edge, 1), dst(edge, edge, 2);
               const auto run = [=] {
                 uint32_t n;
                 if (encode)
                   transform.encoder(src.pixels(), dst.pixels(), bytes, &n);
                 else
                   transform.decoder(src.pixels(), dst.pixels(), bytes);
               };
               return std::vector<Contender>{
                   {"tessaro", run}, {"limit", [=] { limit_copy(dst.pixels(), src.pixels(), bytes); }}};
             }});
}

const bool registered = [] {
  for (const Transform& transform : transforms)
    for (int edge : image_sizes) add(transform, edge);
  for (const Data& data : pictures)
    for (const Format& format : formats) add(format, data);
  return true;
}();

}  // namespace
