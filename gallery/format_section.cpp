// What the packed formats keep of a photograph.
#include <cstring>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

int32_t pixels_of(const Picture& p) { return p.width() * p.height(); }

// Packs a picture and unpacks it again.
void there_and_back(const Picture& photo, std::vector<uint8_t>& packed, Picture& shown, int32_t format) {
  BBIBltToX(packed.data(), photo.pixels(), pixels_of(photo), format, 0, 1.0f);
  BBIBltToBBIGet(shown.pixels(), packed.data(), pixels_of(photo), format);
}

void show_formats(Gallery& gallery) {
  const Picture photo = gallery.photo(0).fitted(480, 360);
  const int32_t n = pixels_of(photo);
  gallery.heading(
      "Pixel formats",
      "Each photograph has been packed into a smaller format and unpacked again. Packing drops low bits "
      "without rounding, so that pictures darken a little and soft gradients turn into steps.");
  const struct {
    int32_t format;
    const char *title, *notice;
  } formats[] = {
      {8888, "8888, four bytes", "The original, every bit of it."},
      {565, "565, two bytes", "Six bits of green, five of red and blue: look for steps in the background."},
      {555, "555, two bytes", "Five bits each; greys stay grey, where 565 tints them."},
      {4444, "4444, two bytes",
       "Sixteen levels a channel: contours everywhere. What it gains is four bits of alpha."}};
  std::vector<uint8_t> packed(static_cast<size_t>(n) * 4);
  for (const auto& f : formats) {
    Picture shown = photo;
    gallery.show(f.title,
                 "BBIBltToX(packed, pixels, n, " + std::to_string(f.format) +
                     ", 0, 1);\nBBIBltToBBIGet(pixels, packed, n, " + std::to_string(f.format) + ");",
                 f.notice, shown, [&] { there_and_back(photo, packed, shown, f.format); });
  }
  {
    Picture shown = photo;
    const int stride = (photo.width() + 7) / 8;
    std::vector<uint8_t> bits(static_cast<size_t>(stride * photo.height()));
    const uint32_t palette[2] = {0xFF203040, 0xFFF0E8D0};
    gallery.show(
        "One bit", "BBIBltTo1(bits, pixels, w);  // each row\nBBIBltTo32from1(image, bits, palette, stride);",
        "1 where the blue byte is at least 128, shown through a palette of two colours.", shown, [&] {
          for (int y = 0; y < photo.height(); ++y)  // the buffer is bottom-up
            BBIBltTo1(bits.data() + (photo.height() - 1 - y) * stride, photo.pixels() + y * photo.width(),
                      photo.width());
          BBIBltTo32from1(shown, bits.data(), palette, stride);
        });
  }
  {
    Picture shown = photo;
    std::vector<uint8_t> grey(static_cast<size_t>(n));
    uint32_t palette[256];
    for (uint32_t v = 0; v < 256; ++v)
      palette[v] = 0xFF000000 | v << 16 | (v * v / 255) << 8 | (v * v / 255 * v / 255);
    gallery.show("One byte, and a palette",
                 "BBIBltTo8AsGray(bytes, pixels, n);\nBBIBltTo32from8(image, bytes, palette, w);",
                 "The blue channel of the photograph through a palette from black over red to white. The "
                 "buffer is read "
                 "bottom-up, which turns the picture over.",
                 shown, [&] {
                   BBIBltTo8AsGray(grey.data(), photo.pixels(), n);
                   BBIBltTo32from8(shown, grey.data(), palette, photo.width());
                 });
  }
  {
    Picture shown = photo;
    gallery.show("Colourless", "BBIBltToF(dst, pixels, n, 8888, 0, 1, 0, 0, NULL);",
                 "Saturation 0: each pixel becomes the mean of its colours, and a little darker.", shown,
                 [&] { BBIBltToF(shown.pixels(), photo.pixels(), n, 8888, 0, 1.0f, 0.0f, 0, nullptr); });
  }
  {
    Picture shown = photo;
    gallery.show("Vivid", "BBIBltToF(dst, pixels, n, 8888, 0, 1, 2.5, 0, NULL);",
                 "Saturation 2.5 pushes the channels apart until they meet 0 or 255.", shown,
                 [&] { BBIBltToF(shown.pixels(), photo.pixels(), n, 8888, 0, 1.0f, 2.5f, 0, nullptr); });
  }
  {
    Picture shown = photo;
    uint8_t table[768];
    for (int v = 0; v < 256; ++v) {
      table[v] = static_cast<uint8_t>(64 + v / 2);
      table[256 + v] = static_cast<uint8_t>(v);
      table[512 + v] = static_cast<uint8_t>(v < 128 ? v * v / 128 : 255 - (255 - v) * (255 - v) / 127);
    }
    gallery.show(
        "Cross-processed", "BBIBltToF(dst, pixels, n, 8888, 0xFF102050, 0.85, 1, 1, table);",
        "A curve for each channel, then 15 % of dark blue: faded blue shadows and steep reds, in one pass.",
        shown,
        [&] { BBIBltToF(shown.pixels(), photo.pixels(), n, 8888, 0xFF102050, 0.85f, 1.0f, 1, table); });
  }
}

const gallery::Section section(120, "pixel formats", show_formats);

}  // namespace
