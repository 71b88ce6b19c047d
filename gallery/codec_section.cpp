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
  decltype(&iDecoder) decode;  // null: the decoder takes both sizes, as the checked ones do
  decltype(&iDecoderSafe) decode_checked;
  bool prepared;  // behind ichshift4 and iwave11
  uint32_t head;  // bytes at the front of every stream
  const char* notice;
};
const Format formats[] = {
    {"i", "iEncoder", iEncoder, iDecoder, iDecoderSafe, false, 0,
     "Pairs of bytes against the pair before. Blue and green are compared with red and alpha, so only flat "
     "greys are "
     "cheap."},
    {"i of differences", "iEncoder", iEncoder, iDecoder, iDecoderSafe, true, 0,
     "The same behind ichshift4 and iwave11: smooth areas become small numbers, and cheap."},
    {"io", "ioEncoder", ioEncoder, ioDecoder, ioDecoderSafe, false, 0,
     "Only exact repeats of a pixel cost less: the map shows the flat areas in black and everything else in "
     "full."},
    {"ib18Ex", "ib18EncoderEx", ib18EncoderEx, ib18DecoderEx, ib18DecoderExSafe, false, 256,
     "Channels one after another, each byte against the one that usually follows the byte before."},
    {"iabr", "iabrEncoder", iabrEncoder, iabrDecoder, iabrDecoderSafe, false, 0,
     "Groups of bytes that share their top bits. Interleaved channels share few."},
    {"iabr of differences", "iabrEncoder", iabrEncoder, iabrDecoder, iabrDecoderSafe, true, 0,
     "Behind the transforms the groups are long, and the bits follow the detail."},
    {"inabe of differences", "inabeEncoder", inabeEncoder, inabeDecoder, inabeDecoderSafe, true, 0,
     "A width for every group and an escape: the darkest map of all on photographs."},
    {"imist", "imistEncoder", imistEncoder, imistDecoder, imistDecoderSafe, false, 0,
     "Pixels against the pixel before, two channels at a time: edges light up."},
    {"inda", "indaEncoder", indaEncoder, indaDecoder, indaDecoderSafe, false, 0,
     "Blocks of eight bytes against bytes up to eight places back."},
    {"ica", "icaEncoder", icaEncoder, icaDecoder, icaDecoderSafe, false, 0,
     "Pixels whose bytes are cut one by one: close to imist, with other edges."},
    {"c2f", "c2fEncoder", c2fEncoder, nullptr, c2fDecoder, false, 0,
     "A channel that stays for eight pixels is free. Alpha always is: hardly an area costs more "
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

// A copy with alpha 255, as hosts keep photographs.
Picture opaque(const Picture& photo) {
  Picture copy = photo;
  for (int i = 0; i < copy.width() * copy.height(); ++i) copy.pixels()[i] |= 0xFF000000;
  return copy;
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
      decoding =
          format.decode ? rate(size, [&] { format.decode(stream.data(), back.data(), size); }) : checked;
      char text[32];
      std::snprintf(text, sizeof text, "%.1f %%", 100.0 * stream_size / size);
      percent = back == source ? text : "NOT RESTORED";
    }
    rows.push_back({picture, format.name, percent, encoding, decoding, checked});
  }
}

constexpr int tile_width = 32, tile_height = 8;

// Each whole tile coded by itself; its brightness is the share of its bytes that are needed.
void draw_costs(const Format& format, const Picture& photo, Picture& map) {
  constexpr uint32_t bytes = 4 * tile_width * tile_height;
  for (int y = 0; y + tile_height <= photo.height(); y += tile_height)
    for (int x = 0; x + tile_width <= photo.width(); x += tile_width) {
      Bytes tile(bytes), stream;
      for (int row = 0; row < tile_height; ++row)
        std::copy_n(reinterpret_cast<const uint8_t*>(photo.pixels() + (y + row) * photo.width() + x),
                    4 * tile_width, tile.begin() + 4 * tile_width * row);
      const bool coded = encode(format, source_of(format, tile.data(), bytes), stream) == 0;
      const auto cost =
          coded ? std::min<uint32_t>(255, (static_cast<uint32_t>(stream.size()) - format.head) * 255 / bytes)
                : 255;
      const uint32_t colour = coded ? 0xFF000000 | cost * 0x010101 : 0xFFC04040;
      BBIDrawColorFill(map, x, y, tile_width, tile_height, 0, colour);
    }
}

void show_codecs(Gallery& page) {
  page.heading(
      "Stream formats",
      "Lossless codecs for bytes and 32-bit pixels. None wins everywhere: that is why a host can choose.");
  std::vector<std::vector<std::string>> rows{
      {"Picture", "Format", "Size", "Encoder, MB/s", "Decoder, MB/s", "Checked decoder, MB/s"}};
  const Picture first = opaque(page.photo(0));
  for (int i = 0; i < 2; ++i) {
    const Picture photo = opaque(page.photo(i));
    add_rows(rows, i == 0 ? "first photograph" : "second photograph",
             reinterpret_cast<const uint8_t*>(photo.pixels()),
             static_cast<uint32_t>(4 * photo.width() * photo.height()));
  }
  Picture flat(first.width(), first.height(), 0xFFF0F0F0);
  for (int k = 0; k < 12; ++k)
    BBIDrawColorFill(flat, 20 + 45 * k, 15 + 30 * k, 90, 60, 0,
                     0xFF000000 | static_cast<uint32_t>(k) * 0x153045);
  add_rows(rows, "flat areas", reinterpret_cast<const uint8_t*>(flat.pixels()),
           static_cast<uint32_t>(4 * flat.width() * flat.height()));
  page.table(
      "Sizes and speeds",
      "Speeds count bytes of pixels, on this processor, now. A format that does not make its source shorter "
      "says so early: the host then keeps the pixels. The checked decoders are for files from elsewhere.",
      rows);
  for (const Format& format : formats) {
    Picture map(first.width() / tile_width * tile_width, first.height() / tile_height * tile_height);
    page.show(
        std::string("Where ") + format.name + " spends its bits",
        std::string(format.call) + "(tile, stream, 1024, &written)",
        std::string("Black tiles cost nothing, white ones all of their bytes, red ones do not compress. ") +
            format.notice,
        map, [&] { draw_costs(format, first, map); });
  }
}

const Section section(600, "stream formats", show_codecs);

}  // namespace
}  // namespace gallery
