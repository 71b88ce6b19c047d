// Every unscaled blit on two photographs.
#include <algorithm>

#include "sections.hpp"

namespace gallery {
namespace {

// The parts of the first two photographs that have one size.
struct Pair {
  Picture first, second;
  explicit Pair(const Gallery& page) : first(page.photo(0)), second(page.photo(1)) {
    const int w = std::min(first.width(), second.width()), h = std::min(first.height(), second.height());
    first = first.cut(0, 0, w, h);
    second = second.cut(0, 0, w, h);
  }
};

}  // namespace

void show_blits(Gallery& page) {
  page.section(
      "Unscaled blits",
      "A rectangle of one image is combined with a rectangle of another, pixel by pixel. In each call "
      "dst starts as the first photograph and src is the second; rectangles are clipped against both.");
  const Pair pair(page);
  Picture dst = pair.first;
  const Picture& src = pair.second;
  const int w = dst.width(), h = dst.height();
  page.show("Copy", dst, CALL(BBIBlt(dst, src, w / 3, h / 4, w, h, 0, 0)),
            "The rectangle is larger than what is left of dst at the right and below: it is cut, nothing is "
            "scaled, and the rest of dst stays.");
  page.show("Add", dst, CALL(BBIBltAdd(dst, src, 0, 0, w, h, 0, 0)),
            "min(d + s, 255): light adds up, and bright places saturate to white.");
  page.show(
      "Multiply", dst, CALL(BBIBltMul(dst, src, 0, 0, w, h, 0, 0)),
      "(d * s + 255) >> 8, like two slides laid on each other: white keeps the other picture, black stays "
      "black.");
  page.show("Subtract", dst, CALL(BBIBltSub(dst, src, 0, 0, w, h, 0, 0)),
            "max(d - s, 0): what is bright in src is taken out of dst.");
  page.show("Absolute difference", dst, CALL(BBIBltXor(dst, src, 0, 0, w, h, 0, 0)),
            "|d - s|: black where the photographs agree. Despite its name no exclusive-or.");
  page.show("Difference around grey", dst, CALL(BBIBltXor2(dst, src, 0, 0, w, h, 0, 0)),
            "(d - s + 128) modulo 256: equal places are mid grey, large differences wrap round.");
  Picture back(w, h);
  page.show("… and back", back,
            CALL(BBIBlt(back, dst, 0, 0, w, h, 0, 0); BBIBltXor2(back, src, 0, 0, w, h, 0, 0);
                 BBIBltXor3(back, src, 0, 0, w, h, 0, 0)),
            "(d + s - 128) modulo 256 undoes the difference: the first photograph is back, every bit of it.");
  page.show("Negative", dst, CALL(BBIBltNot(dst, src, 0, 0, w, h, 0, 0)), "~s: the negative of src.");
  page.show("Darker of the two", dst, CALL(BBIBltMin(dst, src, 0, 0, w, h, 0, 0)),
            "min(d, s), for each channel by itself.");
  page.show("Lighter of the two", dst, CALL(BBIBltMax(dst, src, 0, 0, w, h, 0, 0)),
            "max(d, s), for each channel by itself: colours appear that neither photograph has.");
  page.show("Half and half", dst, CALL(BBIBltHalfBlend(dst, src, 0, 0, w, h, 0, 0)),
            "(s >> 1) + (d >> 1): a double exposure. Two odd bytes lose one.");
  page.show(
      "Exclusive-or of memory", dst, CALL(CopyMemoryEx(dst.pixels(), src.pixels(), w, h / 2, dst.pitch())),
      "Bit by bit, here in the upper half: the same call a second time would bring the photograph back.");
}

void show_sprites(Gallery& page) {
  page.section("Sprites and keys",
               "The source decides which of its pixels are seen, by its alpha or by a key colour.");
  const Pair pair(page);
  Picture dst = pair.first;
  const Picture& other = pair.second;
  const int w = dst.width(), h = dst.height();
  const int size = std::min(w, h) * 7 / 8, x = (w - size) / 2, y = (h - size) / 2;
  Picture sprite = with_alpha(other.middle(size, size), [](double u, double v) {
    return 1.25 - 5 * ((u - 0.5) * (u - 0.5) + (v - 0.5) * (v - 0.5));
  });
  page.look(
      "A sprite", over_checks(sprite),
      "The sprite of the next entries: the middle of the second photograph, with alpha falling off from "
      "255 to 0.");
  page.show("Blend by alpha", dst, CALL(BBIBltBlend(dst, sprite, x, y, size, size, 0, 0, 1)),
            "Every pixel is mixed into dst by its own alpha; the rim is soft, the corners are untouched.");
  Picture grey(size, size);
  page.show("Alpha into all channels", grey, CALL(BBIBltShiftAlpha(grey, sprite, 0, 0, size, size, 0, 0)),
            "The sprite's alpha seen as grey: 0 is black, 255 white.");
  Picture hole = dst.middle(size, size);
  page.show("Alpha alone", over_checks(hole),
            CALL(BBIBltAlpha(hole, sprite, 0, 0, size, size, 0, 0, 0, 0, 1, 0)),
            "The image keeps its colours and takes the sprite's alpha, inverted by a flag: a hole with the "
            "checkerboard behind it.");
  // A key colour needs a flat background, as a studio would have it.
  Picture keyed = other.cut(0, 0, size, size);
  for (int i = 0; i < keyed.count(); ++i)
    if (sprite.pixels()[i] >> 24 < 128) keyed.pixels()[i] = 0xFF00B140;
  page.look("A keyed picture", keyed,
            "The source of the next two entries: a flat green, the colour of the pixel at (0, 0), surrounds "
            "what is to be seen.");
  page.show(
      "Keying while copying", dst, CALL(BBIBltKeying(dst, keyed, x, y, size, size, 0, 0)),
      "Pixels equal to the source's first pixel are left out; every other one is copied whole, so the rim "
      "is hard.");
  page.show("Keyed cross-fade", dst, CALL(BBIBltKeyingFX(dst, keyed, x, y, size, size, 0, 0, 1, 128)),
            "The same at level 128 of 256: half of each, and still nothing of the green.");
  Picture marks(w, h);
  for (int i = 0; i < marks.count(); ++i) marks.pixels()[i] = i % w / 24 % 2 == i / w / 24 % 2 ? 129 : 128;
  page.show("Marking blocks", dst, CALL(BBIBltShiftBlock(dst, marks, 0, 0, w, h, 0, 0)),
            "Where the source word is above 128 (every other field here) dst becomes a coarse, bluish-red "
            "negative: (~d & 0x007FC0C0) | 0x00800000.");
}

void show_colours(Gallery& page) {
  page.section("Colour into a rectangle", "One image and one colour.");
  Picture dst = page.photo(0);
  const int w = dst.width(), h = dst.height();
  page.show("Fill", dst, CALL(BBIBltColor(dst, w / 4, h / 4, w / 2, h / 2, 0, 0, 0xFF0B6E75)),
            "Mask 0 lets nothing of the old pixels through.");
  page.show("Fill through a mask", dst,
            CALL(BBIBltColor(dst, w / 4, h / 4, w / 2, h / 2, 0xFFFFFF00, 0x00FFFF00, 0x000000C0)),
            "Red and green pass the mask and are flipped, blue is replaced by 0xC0: (d ^ invert) & mask | "
            "colour & ~mask.");
  page.show("Tint", dst, CALL(BBIBltColorBlend(dst, 0, 0, w, h, 0xFFD08030, 0.4f)),
            "Forty per cent of one colour over everything: contrast falls, the hue shifts.");
  page.show("Cleared", dst, CALL(BBIClear(dst, 192, 128, 64, 255)), "One colour everywhere.");
  Picture soft = with_alpha(dst, [](double u, double v) { return u * v * 2; });
  page.show("Cleared but for the alpha", over_checks(soft), CALL(BBIClearRGB(soft, 192, 128, 64)),
            "The colours go; an alpha that rises to the lower right corner stays.");
  page.show("Cleared by bits", dst, CALL(BBIClearMask(dst, 0, 0, 0, 0, 0xFFC0C0C0)),
            "Bits that the mask has set stay: two bits a channel are left.");
  Picture ramp(w, 60);
  page.show("Between two colours", ramp, CALL(for (int x = 0; x < w; ++x) {
              BBIFlipLineY(ramp, x, 0, 60, dwColorBlend(0xFF16264F, 0xFFF4C98A, float(x) / float(w)));
            }),
            "dwColorBlend mixes two colours by a factor: here one for each column.");
  Picture noise(w, 120);
  page.show("Random numbers", noise,
            CALL(for (int i = 0; i < noise.count(); ++i) { noise.pixels()[i] = GetRandom(0x1000000); }),
            "Each pixel a number below 0x1000000: no pattern to be seen.");
}

}  // namespace gallery
