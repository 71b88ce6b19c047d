// Picture files, transforms and stream formats: what they make of a photograph, and what their decoders make of that.
#include <algorithm>
#include <chrono>
#include <vector>

#include "media.hpp"
#include "sections.hpp"
#include "text.hpp"

namespace gallery {
namespace {

using Bytes = std::vector<uint8_t>;

// Bytes as grey pixels, the first one at the upper left.
void as_grey(Picture& to, const uint8_t* bytes) {
  static const std::vector<uint32_t> greys = [] {
    std::vector<uint32_t> all(256);
    for (uint32_t v = 0; v < 256; ++v) all[v] = 0xFF000000 | v * 0x010101;
    return all;
  }();
  const int w = to.width();
  BBIBltTo32from8(to, bytes + (to.height() - 1) * w, greys.data(), -w);
}

// Channel after channel, each byte as its difference to the one before: what several formats are made for.
Bytes prepared(const Picture& photo) {
  Bytes planes(photo.bytes()), differences(photo.bytes());
  uint32_t written;
  ichshift4Encoder(photo.pixels(), planes.data(), photo.bytes(), &written);
  iwave11Encoder(planes.data(), differences.data(), photo.bytes(), &written);
  return differences;
}
// The picture again, of as many bytes as came back.
void restored(Picture& to, const Bytes& differences) {
  Bytes planes(to.bytes());
  iwave11Decoder(differences.data(), planes.data(), to.bytes());
  ichshift4Decoder(planes.data(), to.pixels(), to.bytes());
}

// Areas of one colour.
Picture poster(const Picture& photo) {
  Picture flat = photo;
  BBIBltHalfSize(flat, photo, 0, 0, photo.width() / 2, photo.height() / 2, 0, 0);
  BBIExpandBlt(flat, flat.cut(0, 0, photo.width() / 2, photo.height() / 2), 0, 0, photo.width(),
               photo.height(), 0, 0, photo.width() / 2, photo.height() / 2, 1);
  BBIClearMask(flat, 0, 0, 0, 255, 0x00C0C0C0);
  return flat;
}

}  // namespace

void show_picture_files(Gallery& page) {
  page.section("Picture files",
               "JPEG, PNG, GIF and bitmap files lie in memory as on disk, and are drawn into an image.");
  const std::string jpeg = contents_of(GALLERY_MEDIA "/coffee.jpg"),
                    png = contents_of(GALLERY_MEDIA "/cat.png");
  const auto jpeg_size = static_cast<int32_t>(jpeg.size()), png_size = static_cast<int32_t>(png.size());
  int32_t width, height;
  const Picture coffee = load_picture(GALLERY_MEDIA "/coffee.jpg"),
                cat = load_picture(GALLERY_MEDIA "/cat.png");
  Picture dst(coffee.width(), coffee.height());
  page.show(
      "A JPEG file", dst,
      CALL(DecodeImageHead(jpeg.data(), jpeg_size, &width, &height);
           DecodeImage(dst, jpeg.data(), jpeg_size)),
      "The head tells the size first, in hundredths of a millimetre at 96 pixels an inch: the host makes an "
      "image of it.");
  page.show("Half of the file", dst, CALL(DecodeImage(dst, jpeg.data(), jpeg_size / 2)),
            "What a damaged file does not give is not drawn.");
  dst = Picture(cat.width(), cat.height());
  page.show("A PNG file", dst, CALL(DecodeImage(dst, png.data(), png_size)),
            "Told by its content, not by a name.");
}

void show_transforms(Gallery& page) {
  page.section(
      "Differences and planes",
      "Reversible transforms make small numbers and long runs of what is smooth, for the stream formats "
      "behind them. The last picture of each entry is what the decoder restores.");
  const Picture photo = page.photo(0).fitted(240, 180);
  const int w = photo.width(), h = photo.height(), n = photo.count();
  const uint32_t bytes = photo.bytes(), size = bytes / 4;
  uint32_t written;
  Picture back(w, h), first(w, h), second(w, h), third(w, h), fourth(w, h), wide(2 * w, h);
  Bytes coded(bytes), decoded(bytes), source(bytes);

  Picture differences(w, h);
  page.show(
      "Differences of pixels", Shown{&differences, &back},
      CALL(iwave32Encoder(photo.pixels(), differences.pixels(), bytes, &written);
           iwave32Decoder(differences.pixels(), back.pixels(), bytes)),
      "Each byte against the one four places before, which is the same channel of the pixel before: smooth "
      "places are dark.");
  BBIBltTo8AsGray(source.data(), photo.pixels(), n);
  page.show("Differences of bytes", Shown{&first, &back},
            CALL(iwave11Encoder(source.data(), coded.data(), size, &written); as_grey(first, coded.data());
                 iwave11Decoder(coded.data(), decoded.data(), size); as_grey(back, decoded.data())),
            "A grey picture of one byte a pixel. Differences are folded to 0, -1, 1, -2, 2 = 0, 1, 2, 3, 4.");
  Bytes packed(bytes);
  BBIBltTo16As565(packed.data(), photo.pixels(), n);
  page.show(
      "Differences of pairs", Shown{&wide, &back},
      CALL(iwave12Encoder(packed.data(), coded.data(), 2 * size, &written); as_grey(wide, coded.data());
           iwave12Decoder(coded.data(), decoded.data(), 2 * size);
           BBIBltToBBIGet(back.pixels(), decoded.data(), n, TESSARO_FORMAT_565)),
      "Pixels of the 565 format, low bytes against low bytes and high against high: left and right columns "
      "of each pair are told apart by their noise.");
  page.show(
      "Two planes", Shown{&first, &second, &back},
      CALL(ichshift2Encoder(packed.data(), coded.data(), 2 * size, &written); as_grey(first, coded.data());
           as_grey(second, coded.data() + n); ichshift2Decoder(coded.data(), decoded.data(), 2 * size);
           BBIBltToBBIGet(back.pixels(), decoded.data(), n, TESSARO_FORMAT_565)),
      "The low and the high bytes of the 565 format, apart.");
  BBIBltTo24As888(packed.data(), photo.pixels(), n);
  page.show(
      "Three planes", Shown{&first, &second, &third, &back},
      CALL(ichshift3Encoder(packed.data(), coded.data(), 3 * size, &written); as_grey(first, coded.data());
           as_grey(second, coded.data() + n); as_grey(third, coded.data() + 2 * n);
           ichshift3Decoder(coded.data(), decoded.data(), 3 * size);
           BBIBltToBBIGet(back.pixels(), decoded.data(), n, TESSARO_FORMAT_888)),
      "Blue, green and red of three bytes a pixel.");
  const Picture soft =
      with_alpha(photo, [](double x, double y) { return 1.4 - 3 * (x - 0.5) * (x - 0.5) - y; });
  page.show("Four planes", over_checks(Shown{&first, &second, &third, &fourth, &back}),
            CALL(ichshift4Encoder(soft.pixels(), coded.data(), bytes, &written); as_grey(first, coded.data());
                 as_grey(second, coded.data() + n); as_grey(third, coded.data() + 2 * n);
                 as_grey(fourth, coded.data() + 3 * n); ichshift4Decoder(coded.data(), back.pixels(), bytes)),
            "Blue, green, red and a soft alpha of whole pixels.");

  const Sound stereo = page.voice().as(TESSARO_BITS_16, TESSARO_STEREO),
              mono = stereo.as(TESSARO_BITS_16, TESSARO_MONO);
  Sound made = stereo.silence(), again = stereo.silence(), one = mono.silence();
  const auto length = static_cast<uint32_t>(stereo.size_bytes());
  page.play("Differences of stereo samples", made,
            CALL(iwave22Encoder(stereo.data(), made.data(), length, &written)),
            "Each 16-bit sample against the one before in its channel, as it sounds and looks when taken for "
            "samples: folded, the small ones on one side.");
  page.play("Stereo samples restored", again,
            CALL(iwave22Encoder(stereo.data(), made.data(), length, &written);
                 iwave22Decoder(made.data(), again.data(), length)),
            "The voice again, every bit of it.");
  page.play("Differences of mono samples", one,
            CALL(iwave21Encoder(mono.data(), one.data(), length / 2, &written)),
            "The same against the sample before, for one channel.");
  page.play("Mono samples restored", one,
            CALL(iwave21Encoder(mono.data(), one.data(), length / 2, &written);
                 iwave21Decoder(one.data(), one.data(), length / 2)),
            "The decoder works in place as well.");
}

namespace {

// Millions of bytes a second, by the fastest of a few calls.
template <class Call>
std::string rate(size_t bytes, Call call) {
  double best = 1e9;
  for (int i = 0; i < 5; ++i) {
    const auto start = std::chrono::steady_clock::now();
    call();
    best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  return format("%.0f", static_cast<double>(bytes) / best / 1e6);
}

using Rows = std::vector<std::vector<std::string>>;
void add_rows(Rows& rows, const std::string& name, const void* source, uint32_t size) {
  for (int i = 0; i <= static_cast<int>(tessaro::Codec::c2f); ++i) {
    const auto codec = static_cast<tessaro::Codec>(i);
    const tessaro::CodecFunctions& functions = tessaro::functions_of(codec);
    Bytes room(size + size / 32 + 64), back(size);
    uint32_t written = 0;
    const std::string encoding = rate(size, [&] { functions.encode(source, room.data(), size, &written); });
    const auto stream = tessaro::encode(codec, tessaro::Bytes(source, size));
    std::string percent = "not coded", decoding = "-";
    if (stream) {
      decoding = rate(size, [&] {
        functions.decode(stream->data(), back.data(), static_cast<uint32_t>(stream->size()), size);
      });
      percent = dllComp(source, back.data(), static_cast<int32_t>(size)) != 0
                    ? "NOT RESTORED"
                    : format("%.1f %%", 100.0 * static_cast<double>(stream->size()) / size);
    }
    rows.push_back({name, functions.name, percent, encoding, decoding});
  }
}

using Encoder = decltype(iEncoder);
constexpr int tile_width = 64, tile_height = 32;

// Each whole tile coded by itself; its brightness is the share of its bytes that are needed, red if it gets no shorter.
void costs(Picture& map, const Picture& photo, Encoder encode, bool of_differences = false) {
  for (int y = 0; y + tile_height <= photo.height(); y += tile_height)
    for (int x = 0; x + tile_width <= photo.width(); x += tile_width) {
      const Picture tile = photo.cut(x, y, tile_width, tile_height);
      const Bytes differences = prepared(tile);
      Bytes stream(2 * tile.bytes());
      uint32_t written = 0;
      const void* source = tile.pixels();
      if (of_differences) source = differences.data();
      const bool coded = encode(source, stream.data(), tile.bytes(), &written) == 0;
      const uint32_t cost = std::min(255u, written * 255 / tile.bytes());
      BBIDrawColorFill(map, x, y, tile_width, tile_height, 0,
                       coded ? 0xFF000000 | cost * 0x010101 : 0xFFC04040);
    }
}

}  // namespace

void show_streams(Gallery& page) {
  page.section(
      "Stream formats",
      "Lossless codecs for bytes and 32-bit pixels. Each entry shows the stream that the encoder makes, "
      "its bytes as pixels; what the trusting decoder makes of it, the source again; and what the safe "
      "decoder makes of the first two thirds of the stream. Some take a photograph as it is, some a "
      "poster of flat areas, and some the differences of its planes, as prepared by ichshift4Encoder and "
      "iwave11Encoder.");
  const Picture photo = page.photo(0).fitted(300, 225), flat = poster(photo);
  const int w = photo.width(), h = photo.height();
  const uint32_t bytes = photo.bytes();
  const Bytes source = prepared(photo);
  Bytes made(bytes), partly(bytes);
  uint32_t size = 0;
  Picture stream(w, h), whole(w, h), part(w, h);
  const Shown shown{&stream, &whole, &part};
  page.show("i", shown, CALL(if (iEncoder(source.data(), stream.pixels(), bytes, &size) == 0) {
              iDecoder(stream.pixels(), made.data(), bytes);
              iDecoderSafe(stream.pixels(), partly.data(), size * 2 / 3, bytes);
              restored(whole, made);
              restored(part, partly);
            }),
            "Pairs of bytes against the pair before, of differences of planes: the third of them, "
            "red, stops where the stream does.");
  page.show("io", shown, CALL(if (ioEncoder(flat.pixels(), stream.pixels(), bytes, &size) == 0) {
              ioDecoder(stream.pixels(), whole.pixels(), bytes);
              ioDecoderSafe(stream.pixels(), part.pixels(), size * 2 / 3, bytes);
            }),
            "Pixels of a poster: only exact repeats of the pixel before cost less.");
  page.show("ib18", shown, CALL(if (ib18Encoder(flat.pixels(), stream.pixels(), bytes, &size) == 0) {
              ib18Decoder(stream.pixels(), whole.pixels(), bytes);
              ib18DecoderSafe(stream.pixels(), part.pixels(), size * 2 / 3, bytes);
            }),
            "Each byte of a poster against the one that usually follows the byte before.");
  page.show(
      "ib18, channel by channel", shown,
      CALL(if (ib18EncoderEx(flat.pixels(), stream.pixels(), bytes, &size) == 0) {
        ib18DecoderEx(stream.pixels(), whole.pixels(), bytes);
        ib18DecoderExSafe(stream.pixels(), part.pixels(), size * 2 / 3, bytes);
      }),
      "The same, one channel after another: from part of a stream the blue comes first, then the green.");
  page.show("iabr", shown, CALL(if (iabrEncoder(source.data(), stream.pixels(), bytes, &size) == 0) {
              iabrDecoder(stream.pixels(), made.data(), bytes);
              iabrDecoderSafe(stream.pixels(), partly.data(), size * 2 / 3, bytes);
              restored(whole, made);
              restored(part, partly);
            }),
            "Groups of bytes that share their top bits, of differences of planes.");
  page.show("inabe", shown, CALL(if (inabeEncoder(source.data(), stream.pixels(), bytes, &size) == 0) {
              inabeDecoder(stream.pixels(), made.data(), bytes);
              inabeDecoderSafe(stream.pixels(), partly.data(), size * 2 / 3, bytes);
              restored(whole, made);
              restored(part, partly);
            }),
            "A width for every group and an escape: the shortest streams of photographs.");
  page.show("inabe, transforms undone", shown,
            CALL(if (inabeEncoder(source.data(), stream.pixels(), bytes, &size) == 0) {
              inabeDecoderEx(stream.pixels(), whole.pixels(), bytes);
              inabeDecoderExSafe(stream.pixels(), part.pixels(), size * 2 / 3, bytes);
            }),
            "Decoder, differences and planes in one pass, straight to pixels.");
  page.show("imist", shown, CALL(if (imistEncoder(photo.pixels(), stream.pixels(), bytes, &size) == 0) {
              imistDecoder(stream.pixels(), whole.pixels(), bytes);
              imistDecoderSafe(stream.pixels(), part.pixels(), size * 2 / 3, bytes);
            }),
            "Pixels against the pixel before, two channels at a time.");
  page.show("inda", shown, CALL(if (indaEncoder(photo.pixels(), stream.pixels(), bytes, &size) == 0) {
              indaDecoder(stream.pixels(), whole.pixels(), bytes);
              indaDecoderSafe(stream.pixels(), part.pixels(), size * 2 / 3, bytes);
            }),
            "Blocks of eight bytes against bytes up to eight places back.");
  page.show("ica", shown, CALL(if (icaEncoder(photo.pixels(), stream.pixels(), bytes, &size) == 0) {
              icaDecoder(stream.pixels(), whole.pixels(), bytes);
              icaDecoderSafe(stream.pixels(), part.pixels(), size * 2 / 3, bytes);
            }),
            "Pixels whose bytes are cut one by one: close to imist.");
  Bytes roomy(bytes + bytes / 32 + 3);
  page.show(
      "c2f", shown,
      CALL(c2fEncoder(flat.pixels(), roomy.data(), bytes, &size);
           BBIBltTo32from32(stream, roomy.data() + bytes - 4 * w, -4 * w);
           c2fDecoder(roomy.data(), whole.pixels(), size, bytes);
           c2fDecoder(roomy.data(), part.pixels(), size * 2 / 3, bytes)),
      "A channel that stays for eight pixels is free. A stream may be longer than its source, and the only "
      "decoder is a safe one.");

  const Picture& large = page.photo(0);
  Picture map =
      large.cut(0, 0, large.width() / tile_width * tile_width, large.height() / tile_height * tile_height);
  page.show(
      "Where i of differences spends its bits", map, CALL(costs(map, large, iEncoder, true)),
      "The photograph in tiles of 64 x 32 pixels, each coded by itself: black tiles cost nothing, white ones "
      "all of their bytes, and red ones do not get shorter.");
  page.show("Where iabr of differences spends them", map, CALL(costs(map, large, iabrEncoder, true)),
            "The bits follow the detail.");
  page.show("Where inabe of differences spends them", map, CALL(costs(map, large, inabeEncoder, true)),
            "The darkest map of all on photographs.");
  page.show("Where imist spends them", map, CALL(costs(map, large, imistEncoder)), "Pixels as they are.");
  page.show("Where inda spends them", map, CALL(costs(map, large, indaEncoder)), "Bytes as they are.");
  page.show("Where ica spends them", map, CALL(costs(map, large, icaEncoder)), "Much as imist does.");
  page.show("Where c2f spends them", map, CALL(costs(map, large, c2fEncoder)),
            "With a constant alpha hardly an area costs more than three quarters.");

  Rows rows{{"Source", "Format", "Size", "Encoder, MB/s", "Safe decoder, MB/s"}};
  const Bytes differences = prepared(large);
  const Picture flats = poster(large);
  add_rows(rows, "photograph", large.pixels(), large.bytes());
  add_rows(rows, "its differences", differences.data(), large.bytes());
  add_rows(rows, "poster", flats.pixels(), flats.bytes());
  page.table(
      "Sizes and speeds", rows,
      "Speeds count bytes of pixels, on this processor, now. A format that does not make its source shorter "
      "says so early: the host then keeps the pixels.");
}

}  // namespace gallery
