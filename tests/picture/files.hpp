// Picture files for tests: small ones of every kind, and those that ask a reader for the most work it does.
#pragma once

#ifndef _WIN32
#include <zlib.h>
#endif

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <vector>

namespace tessaro::test {

using Bytes = std::vector<uint8_t>;
using Pixels = std::function<uint32_t(int32_t x, int32_t y)>;

inline void put(Bytes& to, std::initializer_list<int32_t> bytes) {
  for (const int32_t b : bytes) to.push_back(static_cast<uint8_t>(b));
}
inline void put(Bytes& to, const Bytes& bytes) { to.insert(to.end(), bytes.begin(), bytes.end()); }
inline void put_low(Bytes& to, uint32_t value, int32_t bytes = 4) {
  for (int32_t i = 0; i < bytes; ++i) to.push_back(static_cast<uint8_t>(value >> 8 * i));
}
inline void put_high(Bytes& to, uint32_t value, int32_t bytes = 4) {
  for (int32_t i = bytes; i-- > 0;) to.push_back(static_cast<uint8_t>(value >> 8 * i));
}

// ---- Bitmap files

struct BitmapHead {
  int32_t bits, width, height;  // negative heights store rows from the top
  uint32_t compression = 0;
  std::vector<uint32_t> masks = {}, palette = {};
  uint32_t size =
      40;  // 12: an old header, whose palette has three bytes an entry; above 40 it holds the masks
  bool offset_without_palette = false;
  size_t coded = 0;  // the length of the codes; Windows wants to know it
};
inline Bytes bitmap_head(const BitmapHead& head) {
  const auto u = [](auto v) { return static_cast<uint32_t>(v); };
  const bool old = head.size == 12;
  Bytes info, palette;
  put_low(info, head.size);
  for (const int32_t edge : {head.width, head.height}) put_low(info, u(edge), old ? 2 : 4);
  put_low(info, 1 | u(head.bits) << 16);
  if (!old)
    for (const uint32_t v : {head.compression, u(head.coded), 0u, 0u, u(head.palette.size()), 0u})
      put_low(info, v);
  for (const uint32_t v : head.masks) put_low(info, v);
  info.resize(std::max<size_t>(info.size(), head.size));
  for (const uint32_t v : head.palette) put_low(palette, v, old ? 3 : 4);
  Bytes file{'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0};
  put_low(file, u(14 + info.size() + (head.offset_without_palette ? 0 : palette.size())));
  put(file, info);
  put(file, palette);
  return file;
}

// pixel(x, y) is an index or a value of so many bits.
inline Bytes bitmap_file(const BitmapHead& head, const Pixels& pixel) {
  Bytes file = bitmap_head(head);
  const int32_t bits = head.bits, rows = std::abs(head.height);
  for (int32_t row = 0; row < rows; ++row) {
    const size_t line = file.size();
    file.resize(line + static_cast<size_t>((head.width * bits + 31) / 32 * 4));
    for (int32_t x = 0; x < head.width; ++x)
      for (int32_t b = 0; b < bits; ++b) {
        // Below a byte the leftmost pixel is in the highest bits; above it bytes go upwards.
        const int32_t at = bits < 8 ? x * bits + (bits - 1 - b) : x * bits + b;
        uint8_t& byte = file[line + static_cast<size_t>(at / 8)];
        const uint32_t bit = pixel(x, head.height < 0 ? row : rows - 1 - row) >> b & 1;
        byte = static_cast<uint8_t>(byte | bit << (bits < 8 ? 7 - at % 8 : at % 8));
      }
  }
  return file;
}

#ifndef _WIN32

// ---- PNG

struct PngHead {
  int32_t width, height, depth, colour;  // colour 0 grey, 2 RGB, 3 palette, 4 and 6 the first two with alpha
  bool interlaced;
  int32_t bits() const { return depth * (colour == 2 ? 3 : colour == 4 ? 2 : colour == 6 ? 4 : 1); }
};

inline Bytes packed(const Bytes& plain, uint32_t& sum) {
  Bytes out(plain.size() + 64);
  z_stream z{};
  deflateInit2(&z, 9, Z_DEFLATED, -15, 9, Z_DEFAULT_STRATEGY);
  z.next_in = const_cast<uint8_t*>(plain.data());
  z.avail_in = static_cast<uInt>(plain.size());
  z.next_out = out.data();
  z.avail_out = static_cast<uInt>(out.size());
  deflate(&z, Z_FULL_FLUSH);  // so that more may follow, and the same bytes again
  out.resize(z.total_out);
  deflateEnd(&z);
  sum = static_cast<uint32_t>(adler32(sum, plain.data(), static_cast<uInt>(plain.size())));
  return out;
}

// rows(sum, columns, rows, x, y, across, down) gives the compressed form of one pass: of these columns and rows, the first of
// them at x, y and the others so far across and down from it; its bytes are added to the sum.
template <class Rows>
Bytes png_of_passes(const PngHead& head, const Rows& rows) {
  const auto chunk = [](Bytes& to, const char* type, const Bytes& content) {
    Bytes named(type, type + 4);
    put(named, content);
    put_high(to, static_cast<uint32_t>(content.size()));
    put(to, named);
    put_high(to, static_cast<uint32_t>(crc32(0, named.data(), static_cast<uInt>(named.size()))));
  };
  constexpr int32_t passes[7][4] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                    {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
  Bytes file{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}, first, data{0x78, 0x01};
  uint32_t sum = 1;
  put_high(first, static_cast<uint32_t>(head.width));
  put_high(first, static_cast<uint32_t>(head.height));
  put(first, {head.depth, head.colour, 0, 0, head.interlaced});
  chunk(file, "IHDR", first);
  if (head.colour == 3) chunk(file, "PLTE", Bytes(768, 9));
  if (!head.interlaced) put(data, rows(sum, head.width, head.height, 0, 0, 1, 1));
  for (int32_t pass = 0; pass < (head.interlaced ? 7 : 0); ++pass) {
    const auto& [x, y, across, down] = passes[pass];
    const int32_t columns = (head.width - x + across - 1) / across,
                  count = (head.height - y + down - 1) / down;
    if (columns > 0 && count > 0) put(data, rows(sum, columns, count, x, y, across, down));
  }
  put(data, {3, 0});  // an empty last block
  put_high(data, sum);
  chunk(file, "IDAT", data);
  chunk(file, "IEND", {});
  return file;
}

// sample(x, y, channel), for depths of 8 and 16.
inline Bytes png_file(const PngHead& head, const std::function<uint32_t(int32_t, int32_t, int32_t)>& sample) {
  const int32_t channels = head.bits() / head.depth;
  return png_of_passes(head, [&](uint32_t& sum, int32_t columns, int32_t rows, int32_t x, int32_t y,
                                 int32_t across, int32_t down) {
    Bytes plain;
    for (int32_t r = 0; r < rows; ++r) {
      plain.push_back(0);
      for (int32_t i = 0; i < columns * channels; ++i)
        put_high(plain, sample(x + i / channels * across, y + r * down, i % channels), head.depth / 8);
    }
    return packed(plain, sum);
  });
}

// Rows of zeros through the slowest filter. The compressed form of a few rows serves for all of them, but for the sum.
inline Bytes hostile_png(const PngHead& head) {
  return png_of_passes(head,
                       [&](uint32_t& sum, int32_t columns, int32_t rows, int32_t, int32_t, int32_t, int32_t) {
                         const auto some = [&](int32_t count) {
                           const size_t step = 1 + static_cast<size_t>((columns * head.bits() + 7) / 8);
                           Bytes plain(step * static_cast<size_t>(count));
                           for (size_t at = 0; at < plain.size(); at += step) plain[at] = 4;
                           return packed(plain, sum);
                         };
                         const Bytes group = some(256);
                         Bytes all;
                         for (int32_t i = 0; i < rows / 256; ++i) put(all, group);
                         put(all, some(rows % 256));
                         return all;
                       });
}

// ---- GIF

// An image of one colour: each code stands for one pixel more than the one before.
inline Bytes hostile_gif(int32_t screen_width, int32_t screen_height, int32_t width, int32_t height,
                         bool interlaced) {
  const auto edges = [](Bytes& to, int32_t w, int32_t h) { put_low(to, static_cast<uint32_t>(w | h << 16)); };
  Bytes file{'G', 'I', 'F', '8', '9', 'a'}, codes;
  edges(file, screen_width, screen_height);
  put(file, {0x80, 0, 0, 1, 2, 3, 4, 5, 6, 0x2C, 0, 0, 0, 0});
  edges(file, width, height);
  put(file, {interlaced ? 0x40 : 0, 2});
  uint32_t bits = 0, held = 0;
  const auto code = [&](uint32_t value, uint32_t length) {
    for (bits |= value << held, held += length; held >= 8; held -= 8, bits >>= 8)
      codes.push_back(static_cast<uint8_t>(bits));
  };
  code(4, 3);
  code(0, 3);
  uint32_t next = 6, length = 3;
  for (int64_t pixels = 1; pixels < int64_t{width} * height; next += next < 4095) {
    while (next >> length) ++length;
    code(next, length);
    pixels += next - 4;  // as many as it stands for
  }
  code(0, 16);
  for (size_t at = 0; at < codes.size(); at += 255) {
    const size_t end = std::min(codes.size(), at + 255);
    file.push_back(static_cast<uint8_t>(end - at));
    for (size_t i = at; i < end; ++i) file.push_back(codes[i]);
  }
  put(file, {0, 0x3B});
  return file;
}

// ---- JPEG

struct JpegHead {
  int32_t frame;  // C0 baseline, C2 progressive, CA progressive with arithmetic coding
  int32_t width, height, components, scans;
};
// Every block says "as before" in one or two bits, or with arithmetic coding in none, so that the data are zero bytes.
// Of several scans each adds a bit to the averages of blocks.
inline Bytes hostile_jpeg(const JpegHead& head) {
  const int32_t n = head.components;
  Bytes file{0xFF, 0xD8, 0xFF, 0xDB, 0, 67, 0};
  file.insert(file.end(), 64, 1);
  put(file, {0xFF, head.frame, 0, 8 + 3 * n, 8});
  put_high(file, static_cast<uint32_t>(head.height << 16 | head.width));
  put(file, {n});
  for (int32_t i = 1; i <= n; ++i) put(file, {i, 0x11, 0});
  for (const int32_t table : {0x00, 0x10}) {  // one code of one bit, for 0
    put(file, {0xFF, 0xC4, 0, 20, table, 1});
    file.insert(file.end(), 16, 0);
  }
  const int64_t bits =
      int64_t{(head.width + 7) / 8} * ((head.height + 7) / 8) * n * (head.frame == 0xC0 ? 2 : 1);
  for (int32_t scan = 0; scan < head.scans; ++scan) {
    put(file, {0xFF, 0xDA, 0, 6 + 2 * n, n});
    for (int32_t i = 1; i <= n; ++i) put(file, {i, 0});
    const int32_t low = std::max(0, 13 - scan);
    put(file, {0, head.frame == 0xC0 ? 63 : 0,
               head.frame == 0xC0 ? 0
               : scan == 0        ? low
                                  : (low + 1) << 4 | low});
    if (head.frame != 0xCA) file.insert(file.end(), static_cast<size_t>(bits / 8 + 1), 0);
  }
  put(file, {0xFF, 0xD9});
  return file;
}

#endif

}  // namespace tessaro::test
