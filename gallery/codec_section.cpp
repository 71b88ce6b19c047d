// The stream formats: sizes and speeds on the photographs, and where each format spends its bits.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "page.hpp"

namespace gallery {
namespace {

using Bytes = std::vector<uint8_t>;

struct Format {
  const char *name, *call;
  decltype(&iEncoder) encode;
  decltype(&iDecoder) decode;  // null: only the checked one exists
  decltype(&iDecoderSafe) decode_checked;
  bool prepared;  // behind ichshift4 and iwave11
  const char* notice;
};
const Format formats[] = {
    {"i", "iEncoder", iEncoder, iDecoder, iDecoderSafe, false,
     "Pairs of bytes against the pair before. Blue and green are compared with red and alpha, so only flat "
     "greys are "
     "cheap."},
    {"i of differences", "iEncoder", iEncoder, iDecoder, iDecoderSafe, true,
     "i behind ichshift4 and iwave11: smooth areas become small numbers, and cheap."},
    {"io", "ioEncoder", ioEncoder, ioDecoder, ioDecoderSafe, false,
     "Only exact repeats of a pixel cost less."},
    {"ib18Ex", "ib18EncoderEx", ib18EncoderEx, ib18DecoderEx, ib18DecoderExSafe, false,
     "Channels one after another, each byte against the one that usually follows the byte before."},
    {"iabr", "iabrEncoder", iabrEncoder, iabrDecoder, iabrDecoderSafe, false,
     "Groups of bytes that share their top bits. Interleaved channels share few."},
    {"iabr of differences", "iabrEncoder", iabrEncoder, iabrDecoder, iabrDecoderSafe, true,
     "Behind the transforms the groups are long, and the bits follow the detail."},
    {"inabe of differences", "inabeEncoder", inabeEncoder, inabeDecoder, inabeDecoderSafe, true,
     "A width for every group and an escape: the darkest map of all on photographs."},
    {"imist", "imistEncoder", imistEncoder, imistDecoder, imistDecoderSafe, false,
     "Pixels against the pixel before, two channels at a time."},
    {"inda", "indaEncoder", indaEncoder, indaDecoder, indaDecoderSafe, false,
     "Blocks of eight bytes against bytes up to eight places back."},
    {"ica", "icaEncoder", icaEncoder, icaDecoder, icaDecoderSafe, false,
     "Pixels whose bytes are cut one by one: close to imist."},
    {"c2f", "c2fEncoder", c2fEncoder, nullptr, c2fDecoder, false,
     "A channel that stays for eight pixels is free: with a constant alpha hardly an area costs more "
     "than three quarters."},
};

Bytes prepared(const uint8_t* pixels, uint32_t size) {
  Bytes planes(size), differences(size);
  uint32_t written;
  ichshift4Encoder(pixels, planes.data(), size, &written);
  iwave11Encoder(planes.data(), differences.data(), size, &written);
  return differences;
}
Bytes source_of(const Format& format, const uint8_t* pixels, uint32_t size) {
  return format.prepared ? prepared(pixels, size) : Bytes(pixels, pixels + size);
}
// The result; `stream` keeps what was written.
int32_t encode(const Format& format, const Bytes& source, Bytes& stream) {
  stream.resize(source.size() + source.size() / 32 + 64);
  uint32_t written = 0;
  const int32_t result =
      format.encode(source.data(), stream.data(), static_cast<uint32_t>(source.size()), &written);
  stream.resize(written);
  return result;
}

// Millions of bytes a second, by the fastest of a few calls.
template <class Call>
std::string rate(size_t bytes, Call call) {
  double best = 1e9;
  for (int i = 0; i < 5; ++i) {
    const auto start = std::chrono::steady_clock::now();
    call();
    best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  char text[32];
  std::snprintf(text, sizeof text, "%.0f", static_cast<double>(bytes) / best / 1e6);
  return text;
}

void add_rows(std::vector<std::vector<std::string>>& rows, const std::string& picture, const uint8_t* pixels,
              uint32_t size) {
  for (const Format& format : formats) {
    const Bytes source = source_of(format, pixels, size);
    Bytes stream, back(size);
    const bool coded = encode(format, source, stream) == 0;
    const auto stream_size = static_cast<uint32_t>(stream.size());
    Bytes room(source.size() + source.size() / 32 + 64);
    const std::string encoding = rate(size, [&] {
      uint32_t written;
      format.encode(source.data(), room.data(), size, &written);
    });
    std::string decoding = "-", checked = "-", percent = "not coded";
    if (coded) {
      checked = rate(size, [&] { format.decode_checked(stream.data(), back.data(), stream_size, size); });
      if (format.decode) decoding = rate(size, [&] { format.decode(stream.data(), back.data(), size); });
      char text[32];
      std::snprintf(text, sizeof text, "%.1f %%", 100.0 * stream_size / size);
      percent = back == source ? text : "NOT RESTORED";
    }
    rows.push_back({picture, format.name, percent, encoding, decoding, checked});
  }
}

constexpr int tile_width = 64, tile_height = 32;

// Each whole tile coded by itself; its brightness is the share of its bytes that are needed. False if none is coded.
bool draw_costs(const Format& format, const Picture& photo, Picture& map) {
  constexpr uint32_t bytes = 4 * tile_width * tile_height;
  bool any = false;
  for (int y = 0; y + tile_height <= photo.height(); y += tile_height)
    for (int x = 0; x + tile_width <= photo.width(); x += tile_width) {
      const Picture tile = photo.cut(x, y, tile_width, tile_height);
      Bytes stream;
      const Bytes source = source_of(format, reinterpret_cast<const uint8_t*>(tile.pixels()), bytes);
      const bool coded = encode(format, source, stream) == 0;
      const auto cost = std::min<uint32_t>(255, static_cast<uint32_t>(stream.size()) * 255 / bytes);
      BBIDrawColorFill(map, x, y, tile_width, tile_height, 0,
                       coded ? 0xFF000000 | cost * 0x010101 : 0xFFC04040);
      any |= coded;
    }
  return any;
}

void show_codecs(Gallery& page) {
  page.heading("Stream formats",
               "Lossless codecs for bytes and 32-bit pixels. The one with the smallest streams is not the "
               "fastest: that is why a host can choose.");
  std::vector<std::vector<std::string>> rows{
      {"Picture", "Format", "Size", "Encoder, MB/s", "Decoder, MB/s", "Checked decoder, MB/s"}};
  const Picture& first = page.photo(0);
  Picture flat(first.width(), first.height(), 0xFFF0F0F0);
  for (int k = 0; k < 12; ++k)
    BBIDrawColorFill(flat, 20 + 45 * k, 15 + 30 * k, 90, 60, 0,
                     0xFF000000 | static_cast<uint32_t>(k) * 0x153045);
  for (const auto& [name, picture] : {std::pair<const char*, const Picture*>{"first photograph", &first},
                                      {"second photograph", &page.photo(1)},
                                      {"flat areas", &flat}})
    add_rows(rows, name, reinterpret_cast<const uint8_t*>(picture->pixels()),
             static_cast<uint32_t>(4 * picture->width() * picture->height()));
  page.table(
      "Sizes and speeds",
      "Speeds count bytes of pixels, on this processor, now; \"of differences\" means behind ichshift4 and "
      "iwave11, whose time is not counted. A format that does not make its source shorter says so early: the "
      "host then keeps the pixels. The checked decoders are for files from elsewhere.",
      rows);
  page.heading(
      "Where the bits go",
      "The first photograph in tiles of 64 x 32 pixels, each coded by itself: black tiles cost nothing, "
      "white ones all of their bytes, and red ones do not get shorter. Formats that code no tile are left "
      "out.");
  for (const Format& format : formats) {
    Picture map(first.width() / tile_width * tile_width, first.height() / tile_height * tile_height);
    if (draw_costs(format, first, map))
      page.show(format.name, std::string(format.call) + "(tile, stream, 8192, &written)", format.notice, map,
                {});
  }
}

const Section section(600, "stream formats", show_codecs);

}  // namespace
}  // namespace gallery
