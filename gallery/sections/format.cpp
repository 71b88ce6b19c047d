// What the packed formats keep of a photograph.
#include <vector>

#include "sections.hpp"

namespace gallery {

void show_formats(Gallery& page) {
  page.section(
      "Pixel formats",
      "A photograph is packed into a smaller format and unpacked again. Packing drops low bits without "
      "rounding, so that pictures darken a little and soft gradients turn into steps.");
  const Picture photo = page.photo(0).fitted(480, 360);
  const int w = photo.width(), h = photo.height(), n = photo.count();
  const uint32_t* const pixels = photo.pixels();
  std::vector<uint8_t> packed(photo.bytes());
  uint8_t* const bytes = packed.data();
  Picture dst(w, h);

  page.show(
      "Three bytes", dst,
      CALL(BBIBltTo24As888(bytes, pixels, n); BBIBltToBBIGet(dst.pixels(), bytes, n, TESSARO_FORMAT_888)),
      "888: every bit of the colours, and no alpha.");
  page.show(
      "565, two bytes", dst,
      CALL(BBIBltTo16As565(bytes, pixels, n); BBIBltToBBIGet(dst.pixels(), bytes, n, TESSARO_FORMAT_565)),
      "Six bits of green, five of red and blue: look for steps in the background.");
  page.show(
      "555, two bytes", dst,
      CALL(BBIBltTo16As555(bytes, pixels, n); BBIBltToBBIGet(dst.pixels(), bytes, n, TESSARO_FORMAT_555)),
      "Five bits each; greys stay grey, where 565 tints them.");
  const Picture soft = with_alpha(photo, [](double x, double y) { return 1.5 * (1 - x) + y - 0.6; });
  page.show("1555, two bytes", over_checks(dst),
            CALL(BBIBltTo16As1555(bytes, soft.pixels(), n);
                 BBIBltToBBIGet(dst.pixels(), bytes, n, TESSARO_FORMAT_1555)),
            "The same with one bit of a soft alpha: it comes back as 128 or 0.");
  page.show("4444, two bytes", over_checks(dst),
            CALL(BBIBltTo16As444(bytes, soft.pixels(), n);
                 BBIBltToBBIGet(dst.pixels(), bytes, n, TESSARO_FORMAT_4444)),
            "Sixteen levels a channel: contours everywhere. What it gains is four bits of alpha.");
  page.show("Any format, towards a colour", dst,
            CALL(BBIBltToX(bytes, pixels, n, TESSARO_FORMAT_565, 0xFF16264F, 0.6f);
                 BBIBltToBBIGet(dst.pixels(), bytes, n, TESSARO_FORMAT_565)),
            "The format is an argument; 40 % of a dark blue is mixed in on the way.");
  const Picture other = page.photo(1).resized(w, h);
  page.show("Two pictures into one format", dst,
            CALL(BBIBltToXF(bytes, pixels, other.pixels(), n, TESSARO_FORMAT_555, 0.5f);
                 BBIBltToBBIGet(dst.pixels(), bytes, n, TESSARO_FORMAT_555)),
            "Half of each photograph, mixed and packed in one pass.");

  const int stride = (w + 7) / 8;
  const uint32_t ink[2] = {0xFF203040, 0xFFF0E8D0};
  page.show("One bit", dst, CALL(for (int y = 0; y < h; ++y) {
              BBIBltTo1(bytes + (h - 1 - y) * stride, photo.row(y), w);
            } BBIBltTo32from1(dst, bytes, ink, stride)),
            "1 where the blue byte is at least 128, shown through a palette of two colours. The bitmap is "
            "bottom-up.");
  std::vector<uint32_t> fire(256), greys(256);
  for (uint32_t v = 0; v < 256; ++v) {
    fire[v] = 0xFF000000 | v << 16 | (v * v / 255) << 8 | (v * v / 255 * v / 255);
    greys[v] = 0xFF000000 | v * 0x010101;
  }
  page.show(
      "One byte, and a palette", dst,
      CALL(BBIBltTo8AsGray(bytes, pixels, n); BBIBltTo32from8(dst, bytes + (h - 1) * w, fire.data(), -w)),
      "The blue channel through a palette from black over red to white. The negative stride reads a "
      "top-down bitmap.");
  page.show("The alpha in a byte", dst,
            CALL(BBIBltTo8AsAlpha(bytes, soft.pixels(), n);
                 BBIBltTo32from8(dst, bytes + (h - 1) * w, greys.data(), -w)),
            "A soft alpha by itself, through a palette of greys.");
  page.show("A bitmap of three bytes", dst,
            CALL(BBIBltTo24As888(bytes, pixels, n); BBIBltTo32from24(dst, bytes, 3 * w)),
            "Bitmaps begin with the lowest row. This one was packed from the highest: the picture stands on "
            "its head.");
  page.show("A bitmap of four bytes", dst, CALL(BBIBltTo32from32(dst, pixels + (h - 1) * w, -4 * w)),
            "Whole words, alpha included, taken over from top-down memory.");

  page.show("Colourless", dst,
            CALL(BBIBltToF(dst.pixels(), pixels, n, TESSARO_FORMAT_8888, 0, 1, 0, 0, nullptr)),
            "Saturation 0: each pixel becomes the mean of its colours, and a little darker.");
  page.show("Vivid", dst,
            CALL(BBIBltToF(dst.pixels(), pixels, n, TESSARO_FORMAT_8888, 0, 1, 2.5f, 0, nullptr)),
            "Saturation 2.5 pushes the channels apart until they meet 0 or 255.");
  uint8_t curves[768];
  for (int v = 0; v < 256; ++v) {
    curves[v] = static_cast<uint8_t>(64 + v / 2);
    curves[256 + v] = static_cast<uint8_t>(v);
    curves[512 + v] = static_cast<uint8_t>(v < 128 ? v * v / 128 : 255 - (255 - v) * (255 - v) / 127);
  }
  page.show(
      "Cross-processed", dst,
      CALL(BBIBltToF(dst.pixels(), pixels, n, TESSARO_FORMAT_8888, 0xFF102050, 0.85f, 1, 1, curves)),
      "A curve for each channel, then 15 % of dark blue: faded blue shadows and steep reds, in one pass.");
}

}  // namespace gallery
