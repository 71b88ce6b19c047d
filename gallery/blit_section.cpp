// Every unscaled blit on two photographs.
#include <algorithm>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

// Alpha 0 at the rim to 255 in the middle: a soft round sprite of a photograph.
Picture soft_disc(const Picture& of, int size) {
  Picture disc = of.middle(size, size);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      const int u = 2 * x - size + 1, v = 2 * y - size + 1;
      const int far = (u * u + v * v) * 320 / (size * size);
      const int alpha = far > 320 ? 0 : far < 65 ? 255 : 320 - far;
      uint32_t& pixel = disc.pixels()[y * size + x];
      pixel = (pixel & 0xFFFFFF) | static_cast<uint32_t>(alpha) << 24;
    }
  return disc;
}

void show_blits(Gallery& gallery) {
  const int w = std::min(gallery.photo(0).width(), gallery.photo(1).width());
  const int h = std::min(gallery.photo(0).height(), gallery.photo(1).height());
  const Picture first = gallery.photo(0).cut(0, 0, w, h), second = gallery.photo(1).cut(0, 0, w, h);

  gallery.heading(
      "Unscaled blits",
      "A rectangle of one image is combined with a rectangle of another, pixel by pixel. In each call dst "
      "starts as the first photograph and src is the second; rectangles are clipped against both images.");

  using Blit =
      int32_t (*)(ImageRecord*, const ImageRecord*, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t);
  const auto two = [&](const char* title, const char* name, Blit blit, const char* notice) {
    Picture dst = first;
    gallery.show(title, std::string(name) + "(dst, src, 0, 0, w, h, 0, 0);", notice, dst,
                 [&] { blit(dst, second, 0, 0, w, h, 0, 0); });
  };
  {
    Picture dst = first;
    gallery.show(
        "Copy", "BBIBlt(dst, src, w / 3, h / 4, w, h, 0, 0);",
        "The rectangle is larger than what is left of dst at the right and below: it is cut, nothing is "
        "scaled, and the rest of dst stays.",
        dst, [&] { BBIBlt(dst, second, w / 3, h / 4, w, h, 0, 0); });
  }
  two("Add", "BBIBltAdd", BBIBltAdd, "min(d + s, 255): light adds up, and bright places saturate to white.");
  two("Multiply", "BBIBltMul", BBIBltMul,
      "(d * s + 255) >> 8: like two slides laid on each other. White keeps the other picture, black stays "
      "black.");
  two("Subtract", "BBIBltSub", BBIBltSub, "max(d - s, 0): what is bright in src is taken out of dst.");
  two("Absolute difference", "BBIBltXor", BBIBltXor,
      "|d - s|: black where the photographs agree. Despite its name no exclusive-or.");
  two("Difference around grey", "BBIBltXor2", BBIBltXor2,
      "(d - s + 128) modulo 256: equal places are mid grey, large differences wrap round.");
  {
    Picture dst = first;
    gallery.show(
        "… and back", "BBIBltXor2(dst, src, 0, 0, w, h, 0, 0);\nBBIBltXor3(dst, src, 0, 0, w, h, 0, 0);",
        "(d + s - 128) modulo 256 undoes the difference: the first photograph is back, every bit of it.", dst,
        [&] {
          BBIBltXor2(dst, second, 0, 0, w, h, 0, 0);
          BBIBltXor3(dst, second, 0, 0, w, h, 0, 0);
        });
  }
  two("Negative", "BBIBltNot", BBIBltNot, "~s: the negative of src.");
  two("Darker of the two", "BBIBltMin", BBIBltMin, "min(d, s), for each channel by itself.");
  two("Lighter of the two", "BBIBltMax", BBIBltMax,
      "max(d, s), for each channel by itself: colours appear that neither photograph has.");
  two("Half and half", "BBIBltHalfBlend", BBIBltHalfBlend,
      "(s >> 1) + (d >> 1): a double exposure. Two odd bytes lose one.");

  gallery.heading("Sprites and keys",
                  "The source decides which of its pixels are seen, by its alpha or by a key colour.");
  const int size = std::min(w, h) * 7 / 8;
  const Picture disc = soft_disc(second, size);
  {
    Picture dst = disc;
    gallery.show(
        "A sprite", "// alpha 255 in the middle, 0 at the rim",
        "The sprite of the next entries: the middle of the second photograph, with alpha falling off.", dst,
        {}, true);
  }
  {
    Picture dst = first;
    gallery.show(
        "Blend by alpha", "BBIBltBlend(dst, sprite, (w - size) / 2, (h - size) / 2, size, size, 0, 0, 1);",
        "Every pixel is mixed into dst by its own alpha; the rim is soft, the corners are untouched.", dst,
        [&] { BBIBltBlend(dst, disc, (w - size) / 2, (h - size) / 2, size, size, 0, 0, 1); });
  }
  {
    Picture dst = disc;
    gallery.show("Alpha into all channels", "BBIBltShiftAlpha(dst, sprite, 0, 0, size, size, 0, 0);",
                 "The sprite's alpha seen as grey: 0 is black, 255 white.", dst,
                 [&] { BBIBltShiftAlpha(dst, disc, 0, 0, size, size, 0, 0); });
  }
  {
    Picture dst = first.middle(size, size);
    gallery.show(
        "Alpha alone", "BBIBltAlpha(dst, sprite, 0, 0, size, size, 0, 0, 0, 0, 1, 0);",
        "dst keeps its colours and takes the sprite's alpha, inverted by a flag: a hole in the first "
        "photograph, "
        "with the checkerboard behind it.",
        dst, [&] { BBIBltAlpha(dst, disc, 0, 0, size, size, 0, 0, 0, 0, 1, 0); }, true);
  }
  // A key colour needs a flat background, as a studio would have it.
  Picture keyed = second.cut(0, 0, size, size);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x)
      if (disc.pixels()[y * size + x] >> 24 < 128) keyed.pixels()[y * size + x] = 0xFF00B140;
  {
    Picture dst = keyed;
    gallery.show("A keyed picture", "// the pixel at (0, 0) is the key",
                 "The source of the next two entries: a flat green surrounds what is to be seen.", dst, {});
  }
  {
    Picture dst = first;
    gallery.show("Keying", "BBIBltKeying(dst, keyed, (w - size) / 2, (h - size) / 2, size, size, 0, 0);",
                 "Pixels equal to the source's first pixel are left out; every other one is copied whole, so "
                 "the rim is "
                 "hard.",
                 dst, [&] { BBIBltKeying(dst, keyed, (w - size) / 2, (h - size) / 2, size, size, 0, 0); });
  }
  {
    Picture dst = first;
    gallery.show("Keyed cross-fade",
                 "BBIBltKeyingFX(dst, keyed, (w - size) / 2, (h - size) / 2, size, size, 0, 0, 1, 128);",
                 "The same at level 128 of 256: half of each, and still nothing of the green.", dst, [&] {
                   BBIBltKeyingFX(dst, keyed, (w - size) / 2, (h - size) / 2, size, size, 0, 0, 1, 128);
                 });
  }
  {
    Picture dst = first, marks(w, h);
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) marks.pixels()[y * w + x] = x / 24 % 2 == y / 24 % 2 ? 129 : 128;
    gallery.show(
        "Marking blocks", "BBIBltShiftBlock(dst, marks, 0, 0, w, h, 0, 0);",
        "Where the source word is above 128 (every other field here) dst becomes a coarse, bluish-red "
        "negative: (~d & 0x007FC0C0) | 0x00800000.",
        dst, [&] { BBIBltShiftBlock(dst, marks, 0, 0, w, h, 0, 0); });
  }

  gallery.heading("Colour into a rectangle", "One image and one colour.");
  {
    Picture dst = first;
    gallery.show("Fill", "BBIBltColor(dst, w / 4, h / 4, w / 2, h / 2, 0, 0, 0xFF0B6E75);",
                 "Mask 0 lets nothing of the old pixels through.", dst,
                 [&] { BBIBltColor(dst, w / 4, h / 4, w / 2, h / 2, 0, 0, 0xFF0B6E75); });
  }
  {
    Picture dst = first;
    gallery.show(
        "Fill through a mask",
        "BBIBltColor(dst, w / 4, h / 4, w / 2, h / 2, 0xFFFFFF00, 0x00FFFF00, 0x000000C0);",
        "Red and green pass the mask and are flipped, blue is replaced by 0xC0: (d ^ flip) & mask | colour & "
        "~mask.",
        dst, [&] { BBIBltColor(dst, w / 4, h / 4, w / 2, h / 2, 0xFFFFFF00, 0x00FFFF00, 0x000000C0); });
  }
  {
    Picture dst = first;
    gallery.show("Tint", "BBIBltColorBlend(dst, 0, 0, w, h, 0xFFD08030, 0.4f);",
                 "Forty per cent of one colour over everything: contrast falls, the hue shifts.", dst,
                 [&] { BBIBltColorBlend(dst, 0, 0, w, h, 0xFFD08030, 0.4f); });
  }
}

const gallery::Section section(100, "Unscaled blits", show_blits);

}  // namespace
