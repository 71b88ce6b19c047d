// Blurs, one-axis scaling, halving, dithering, channel routing and region paint.
#include <algorithm>

#include "sections.hpp"

namespace gallery {

void show_blurs(Gallery& page) {
  page.section("Blur and one-axis scaling", "Box filters along the rows or the columns.");
  Picture image = page.photo(0).fitted(480, 360);
  const Picture src = image;
  const int w = image.width(), h = image.height();
  page.show("Along the rows, radius 4", image, CALL(BBIBltUBlur(image, image, 0, 0, w, h, 0, 0, 4)),
            "In place. The window is cut at the ends, so that the rim neither darkens nor smears.");
  page.show("Along the rows, radius 100", image, CALL(BBIBltUBlur(image, image, 0, 0, w, h, 0, 0, 100)),
            "201 pixels a window instead of 9: the time hardly changes.");
  page.show("Along the columns", image, CALL(BBIBltVBlur(image, image, 0, 0, w, h, 0, 0, 20)),
            "The same downward, a row of sums at a time.");
  page.show("Soft focus", image, CALL(for (int i = 0; i < 3; ++i) {
              BBIBltUBlur(image, image, 0, 0, w, h, 0, 0, 6);
              BBIBltVBlur(image, image, 0, 0, w, h, 0, 0, 6);
            }),
            "Three rounds of both come close to a Gaussian blur: no boxes are left to see.");
  {
    const int n = std::min({120, w, h});
    const Picture tile = src.middle(n, n);
    const auto four_times = [n](Picture& of) {
      BBIBlt(of, of, n, 0, n, n, 0, 0);
      BBIBlt(of, of, 0, n, 2 * n, n, 0, 0);
    };
    Picture half(n, n), cut(2 * n, 2 * n), looped(2 * n, 2 * n);
    page.show(
        "A tile that still tiles", Shown{&cut, &looped},
        CALL(BBIBltUBlur(half, tile, 0, 0, n, n, 0, 0, 12); BBIBltVBlur(cut, half, 0, 0, n, n, 0, 0, 12);
             BBIBltUBlurLoop(half, tile, 0, 0, n, n, 0, 0, 12);
             BBIBltVBlurLoop(looped, half, 0, 0, n, n, 0, 0, 12); four_times(cut); four_times(looped)),
        "Left: the window is cut at the ends, and the seams between four copies show. Right: it wraps "
        "round, and they are gone.");
  }
  page.show("Squeezed to half within its rectangle", image,
            CALL(BBIBltUScale(image, image, 0, 0, w, h, 0, 0, 1, 2)),
            "Box filtered; what is left over at the right repeats the last pixel.");
  page.show("Stretched by 3 : 2 downward", image, CALL(BBIBltVScale(image, image, 0, 0, w, h, 0, 0, 3, 2)),
            "Starts at the last row and works upward, so that it runs in place.");
  const int below = h / 2 + 1, last = below + h / 4 + 1;
  Picture dst(w / 2, last + h / 8);
  page.show("A pyramid", over_checks(dst),
            CALL(BBIBltHalfSize(dst, src, 0, 0, w / 2, h / 2, 0, 0);
                 BBIBltHalfSize(dst, dst, 0, below, w / 4, h / 4, 0, 0);
                 BBIBltHalfSize(dst, dst, 0, last, w / 8, h / 8, 0, below)),
            "The mean of 2 x 2 pixels, again and again.");
}

void show_reduction(Gallery& page) {
  page.section("Dithering and channel routing",
               "Fewer levels a channel with an ordered pattern instead of bands; and channels taken from "
               "wherever they are.");
  Picture image = page.photo(1).fitted(480, 360);
  const int w = image.width(), h = image.height();
  const Picture src = image, other = page.photo(0).resized(w, h);
  page.show("Five bits a channel", image, CALL(BBIColorCutDown1555(image)),
            "Hardly to be told from the original.");
  page.show("Four bits a channel", image, CALL(BBIColorCutDown4444(image)),
            "A fine grain in the sky, no bands.");
  page.show("One bit a channel", image, CALL(BBIColorCutDown1111(image)),
            "Eight colours and a clustered screen of 8 x 8, as in print.");
  Picture dst = image;
  page.show("Red and blue exchanged", dst,
            CALL(BBIChooseRGBA(dst, src, TESSARO_FROM_BLUE, TESSARO_FROM_GREEN, TESSARO_FROM_RED,
                               TESSARO_FROM_ALPHA)),
            "Each output channel names its source.");
  page.show("Red and green from one photograph, blue from the other", dst,
            CALL(BBIChooseRGBA(dst, other, TESSARO_FROM_RED + TESSARO_FROM_DST,
                               TESSARO_FROM_GREEN + TESSARO_FROM_DST, TESSARO_FROM_BLUE, TESSARO_FROM_ALPHA)),
            "Selectors with TESSARO_FROM_DST added take the destination's own channels.");
  page.show("Alpha from the mean", over_checks(dst),
            CALL(BBIChooseCA(dst, src, TESSARO_CHOOSE_COLOUR, TESSARO_CHOOSE_COLOUR)),
            "Dark places become transparent.");
  page.show("Alpha from luminance", over_checks(dst),
            CALL(BBIChooseCATR(dst, src, TESSARO_CHOOSE_COLOUR, TESSARO_CHOOSE_COLOUR)),
            "Green counts most, as for the eye.");
  page.show("A grey of any weights", dst,
            CALL(BBIChooseCATS(dst, src, TESSARO_CHOOSE_COLOUR, TESSARO_CHOOSE_COLOUR, 1, 0, 0);
                 BBIChooseCA(dst, dst, TESSARO_CHOOSE_ALPHA, TESSARO_CHOOSE_ALPHA)),
            "First alpha from red alone, then that alpha as a grey.");
}

void show_region_paint(Gallery& page) {
  page.section("Region paint",
               "Clean-up of areas in a key colour, here a pure green. One export, eleven operations.");
  constexpr uint32_t key = 0xFF00FF00;
  Picture photo = page.photo(0).fitted(360, 270);
  const int w = photo.width(), h = photo.height();
  // Dark places become key: a ragged area with holes and specks.
  Picture image = photo;
  for (int i = 0; i < image.count(); ++i) {
    uint32_t& p = image.pixels()[i];
    p = (p & 255) + (p >> 8 & 255) + (p >> 16 & 255) < 230 ? key : p | 0xFF000000;
  }
  page.look("The keyed photograph", image,
            "Dark places in the key colour: this is what the others start from.");
  page.show("Replace the key", image, CALL(BBIPaintChoose(image, TESSARO_PAINT_KEY, 0xFF203060, key, 0, 0)),
            "Exactly the key pixels change.");
  page.show("Replace all but the key", image,
            CALL(BBIPaintChoose(image, TESSARO_PAINT_REST, 0xFFFFFFFF, key, 0, 0)), "A mask of the area.");
  page.show("Fill with a two-colour border", image,
            CALL(BBIPaintChoose(image, TESSARO_PAINT_BORDERED, 0xFFF0E0C0, key, 0xFFC02020, 0xFF202020)),
            "Red inside, black outside the edge.");
  page.show("Outline in the key area", image,
            CALL(BBIPaintChoose(image, TESSARO_PAINT_KEY_RIM, 0xFFFFFF00, key, 0, 0)),
            "The key area loses a rim of one pixel.");
  page.show("Outline in the picture", image,
            CALL(BBIPaintChoose(image, TESSARO_PAINT_OUTLINE, 0xFFFFFF00, key, 0, 0)),
            "The picture loses it instead.");
  page.show("Specks removed", image,
            CALL(BBIPaintChoose(image, TESSARO_PAINT_SMALL_REGIONS, 0xFF404040, key, 200, 0)),
            "Regions of at most 200 pixels are painted grey; the large ones stay.");
  page.show("Filled by majority", image, CALL(for (int i = 0; i < 40; ++i) {
              BBIPaintChoose(image, TESSARO_PAINT_MAJORITY, key, key, 0, 0);
            }),
            "Each key pixel takes the commonest colour around it; forty passes creep inwards.");
  page.show("Filled by average", image, CALL(for (int i = 0; i < 40; ++i) {
              BBIPaintChoose(image, TESSARO_PAINT_AVERAGE, key, key, 0, 0);
            }),
            "The same with the mean of the neighbours: softer.");
  Picture stamped = photo;  // as by a stamp or a scratch
  BBIBltColor(stamped, w / 3, h / 3, w / 3, h / 12, 0, 0, 0xFF787878);
  page.show("A grey bar healed", stamped, CALL(BBIPaintChoose(stamped, TESSARO_PAINT_GREY, 0x78, 0x78, 0, 0)),
            "Grey pixels of one level are filled from what surrounds them, pass after pass.");
  Picture half_grey = photo;
  BBIBltToF(half_grey.pixels(), photo.pixels(), w * h, TESSARO_FORMAT_8888, 0, 1, 0, 0, nullptr);
  BBIBlt(half_grey, photo, w / 2, 0, w, h, w / 2, 0);
  page.show("Everything that has a colour", half_grey,
            CALL(BBIPaintChoose(half_grey, TESSARO_PAINT_COLOURED, 0xFFFFD040, 0, 0, 0)),
            "The left half had been made grey: only pure greys are left.");
  page.show("A masked replace", photo,
            CALL(BBIPaintChoose(photo, TESSARO_PAINT_MASKED, 0xFFFFFFFF, 0x00C00000, 0x00C00000, 0)),
            "Every pixel whose two top bits of red are set.");
}

}  // namespace gallery
