// Blurs, one-axis scaling, halving, dithering, channel routing and region paint.
#include <algorithm>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

void show_blurs(Gallery& gallery) {
  const Picture photo = gallery.photo(0).fitted(480, 360);
  const int w = photo.width(), h = photo.height();
  gallery.heading("Blur and one-axis scaling", "Box filters along the rows or the columns.");
  for (const int radius : {4, 100}) {
    Picture dst = photo;
    const std::string r = std::to_string(radius);
    gallery.show("Along the rows, radius " + r, "BBIBltUBlur(image, image, 0, 0, w, h, 0, 0, " + r + ");",
                 radius == 4
                     ? "In place. The window is cut at the ends, so that the rim neither darkens nor smears."
                     : "201 pixels a window instead of 9: the time hardly changes.",
                 dst, [&] { BBIBltUBlur(dst, dst, 0, 0, w, h, 0, 0, radius); });
  }
  {
    Picture dst = photo;
    gallery.show("Along the columns", "BBIBltVBlur(image, image, 0, 0, w, h, 0, 0, 20);",
                 "The same downward, a row of sums at a time.", dst,
                 [&] { BBIBltVBlur(dst, dst, 0, 0, w, h, 0, 0, 20); });
  }
  {
    Picture dst = photo;
    gallery.show("Soft focus", "for (i = 0; i < 3; ++i) { BBIBltUBlur(..., 6); BBIBltVBlur(..., 6); }",
                 "Three rounds of both come close to a Gaussian blur: no boxes are left to see.", dst, [&] {
                   for (int i = 0; i < 3; ++i) {
                     BBIBltUBlur(dst, dst, 0, 0, w, h, 0, 0, 6);
                     BBIBltVBlur(dst, dst, 0, 0, w, h, 0, 0, 6);
                   }
                 });
  }
  {
    // A tile, blurred with both kinds of window, then laid twice side by side.
    const Picture tile = photo.cut(w / 4, h / 4, 120, 120);
    Picture dst(490, 240);
    for (const bool loop : {false, true}) {
      Picture half(120, 120), soft(120, 120);
      (loop ? BBIBltUBlurLoop : BBIBltUBlur)(half, tile, 0, 0, 120, 120, 0, 0, 12);
      (loop ? BBIBltVBlurLoop : BBIBltVBlur)(soft, half, 0, 0, 120, 120, 0, 0, 12);
      for (const int x : {0, 120})
        for (const int y : {0, 120}) BBIBlt(dst, soft, (loop ? 250 : 0) + x, y, 120, 120, 0, 0);
    }
    gallery.show("A tile that still tiles",
                 "BBIBltUBlur(half, tile, 0, 0, 120, 120, 0, 0, 12);\nBBIBltVBlur(left, half, 0, 0, 120, "
                 "120, 0, 0, 12);\n"
                 "BBIBltUBlurLoop(half, tile, 0, 0, 120, 120, 0, 0, 12);\n"
                 "BBIBltVBlurLoop(right, half, 0, 0, 120, 120, 0, 0, 12);",
                 "Left: the window is cut at the ends, and the seams between four copies show. Right: it "
                 "wraps round, and "
                 "they are gone.",
                 dst, {}, true);
  }
  {
    Picture dst = photo;
    gallery.show("Squeezed to half within its rectangle",
                 "BBIBltUScale(image, image, 0, 0, w, h, 0, 0, 1, 2);",
                 "Box filtered; what is left over at the right repeats the last pixel.", dst,
                 [&] { BBIBltUScale(dst, dst, 0, 0, w, h, 0, 0, 1, 2); });
  }
  {
    Picture dst = photo;
    gallery.show("Stretched by 3 : 2 downward", "BBIBltVScale(image, image, 0, 0, w, h, 0, 0, 3, 2);",
                 "Starts at the last row and works upward, so that it runs in place.", dst,
                 [&] { BBIBltVScale(dst, dst, 0, 0, w, h, 0, 0, 3, 2); });
  }
  {
    const int below = h / 2 + 1, last = below + h / 4 + 1;
    Picture dst(w / 2, last + h / 8);
    gallery.show(
        "A pyramid",
        "BBIBltHalfSize(dst, src, 0, 0, w / 2, h / 2, 0, 0);\n"
        "BBIBltHalfSize(dst, dst, 0, below, w / 4, h / 4, 0, 0);\n"
        "BBIBltHalfSize(dst, dst, 0, last, w / 8, h / 8, 0, below);",
        "The mean of 2 x 2 pixels, again and again.", dst,
        [&] {
          BBIBltHalfSize(dst, photo, 0, 0, w / 2, h / 2, 0, 0);
          BBIBltHalfSize(dst, dst, 0, below, w / 4, h / 4, 0, 0);
          BBIBltHalfSize(dst, dst, 0, last, w / 8, h / 8, 0, below);
        },
        true);
  }
}

void show_reduction(Gallery& gallery) {
  const Picture photo = gallery.photo(1).fitted(480, 360);
  gallery.heading("Dithering and channel routing",
                  "Fewer levels a channel with an ordered pattern instead of bands; and channels taken from "
                  "wherever they are.");
  struct CutDown {
    const char *title, *code, *notice;
    int32_t(TESSARO_CALL* run)(ImageRecord*);
  };
  for (const CutDown& c :
       {CutDown{"Five bits a channel", "BBIColorCutDown1555(image);", "Hardly to be told from the original.",
                BBIColorCutDown1555},
        CutDown{"Four bits a channel", "BBIColorCutDown4444(image);", "A fine grain in the sky, no bands.",
                BBIColorCutDown4444},
        CutDown{"One bit a channel", "BBIColorCutDown1111(image);",
                "Eight colours and a clustered screen of 8 x 8, as in print.", BBIColorCutDown1111}}) {
    Picture dst = photo;
    gallery.show(c.title, c.code, c.notice, dst, [&] { c.run(dst); });
  }
  {
    Picture dst = photo;
    gallery.show("Red and blue exchanged", "BBIChooseRGBA(dst, src, 2, 1, 0, 3);",
                 "Each output channel names its source.", dst,
                 [&] { BBIChooseRGBA(dst, photo, 2, 1, 0, 3); });
  }
  {
    const Picture other = gallery.photo(0).fitted(480, 360);
    Picture dst = photo;
    gallery.show("Red and green from one photograph, blue from the other",
                 "BBIChooseRGBA(dst, src, 4, 5, 2, 3);",
                 "Selectors with 4 added take the destination's own channels.", dst,
                 [&] { BBIChooseRGBA(dst, other, 4, 5, 2, 3); });
  }
  using Choose = int32_t(TESSARO_CALL*)(ImageRecord*, const ImageRecord*, int32_t, int32_t);
  const auto brightness = [&](const char* title, const char* code, const char* notice, Choose choose) {
    Picture dst = photo;
    gallery.show(
        title, code, notice, dst, [&] { choose(dst, photo, 0, 0); }, true);
    Picture grey = dst;
    gallery.show("… as grey", "BBIBltShiftAlpha(grey, dst, 0, 0, w, h, 0, 0);", "That alpha alone.", grey,
                 [&] { BBIBltShiftAlpha(grey, dst, 0, 0, grey.width(), grey.height(), 0, 0); });
  };
  brightness("Alpha from the mean", "BBIChooseCA(dst, src, 0, 0);", "Dark places become transparent.",
             BBIChooseCA);
  brightness("Alpha from luminance", "BBIChooseCATR(dst, src, 0, 0);", "Green counts most, as for the eye.",
             BBIChooseCATR);
  {
    Picture dst = photo;
    gallery.show("A grey of any weights",
                 "BBIChooseCATS(image, image, 2, 2, 1.0f, 0.0f, 0.0f);\nBBIChooseCA(image, image, 3, 3);",
                 "First alpha from red alone, then that alpha as a grey.", dst, [&] {
                   BBIChooseCATS(dst, dst, 2, 2, 1.0f, 0.0f, 0.0f);
                   BBIChooseCA(dst, dst, 3, 3);
                 });
  }
}

void show_region_paint(Gallery& gallery) {
  constexpr uint32_t key = 0xFF00FF00;
  Picture photo = gallery.photo(0).fitted(360, 270);
  const int w = photo.width(), h = photo.height();
  gallery.heading("Region paint",
                  "Clean-up of areas in a key colour, here a pure green. One export, eleven operations.");
  // Dark places become key: a ragged area with holes and specks.
  Picture keyed = photo;
  for (int i = 0; i < w * h; ++i) {
    uint32_t& p = keyed.pixels()[i];
    const int sum = static_cast<int>((p & 255) + (p >> 8 & 255) + (p >> 16 & 255));
    p = sum < 230 ? key : p | 0xFF000000;
  }
  const auto show = [&](const char* title, const char* code, const char* notice, uint32_t op, uint32_t color,
                        uint32_t x, uint32_t y) {
    Picture dst = keyed;
    gallery.show(title, code, notice, dst, [&] { BBIPaintChoose(dst, op, color, key, x, y); });
  };
  show("The keyed photograph", "BBIPaintChoose(image, 0, key, key, 0, 0);",
       "Dark places in the key colour: this is what the others start from.", 0, key, 0, 0);
  show("Replace the key", "BBIPaintChoose(image, 0, 0xFF203060, key, 0, 0);",
       "Exactly the key pixels change.", 0, 0xFF203060, 0, 0);
  show("Replace all but the key", "BBIPaintChoose(image, 1, 0xFFFFFFFF, key, 0, 0);", "A mask of the area.",
       1, 0xFFFFFFFF, 0, 0);
  show("Fill with a two-colour border", "BBIPaintChoose(image, 2, 0xFFF0E0C0, key, 0xFFC02020, 0xFF202020);",
       "Red inside, black outside the edge.", 2, 0xFFF0E0C0, 0xFFC02020, 0xFF202020);
  show("Outline in the key area", "BBIPaintChoose(image, 3, 0xFFFFFF00, key, 0, 0);",
       "The key area loses a rim of one pixel.", 3, 0xFFFFFF00, 0, 0);
  show("Outline in the picture", "BBIPaintChoose(image, 4, 0xFFFFFF00, key, 0, 0);",
       "The picture loses it instead.", 4, 0xFFFFFF00, 0, 0);
  show("Specks removed", "BBIPaintChoose(image, 5, 0xFF404040, key, 200, 0);",
       "Regions of at most 200 pixels are painted grey; the large ones stay.", 5, 0xFF404040, 200, 0);
  {
    Picture dst = keyed;
    gallery.show("Filled by majority", "while (BBIPaintChoose(image, 6, key, key, 0, 0) > 0) ...",
                 "Each key pixel takes the commonest colour around it; forty passes creep inwards.", dst,
                 [&] {
                   for (int i = 0; i < 40 && BBIPaintChoose(dst, 6, key, key, 0, 0) > 0; ++i) {
                   }
                 });
  }
  {
    Picture dst = keyed;
    gallery.show("Filled by average", "while (BBIPaintChoose(image, 9, key, key, 0, 0) > 0) ...",
                 "The same with the mean of the neighbours: softer.", dst, [&] {
                   for (int i = 0; i < 40 && BBIPaintChoose(dst, 9, key, key, 0, 0) > 0; ++i) {
                   }
                 });
  }
  {
    // A grey patch in the photograph, as a stamp or a scratch would be.
    Picture dst = photo;
    BBIBltColor(dst, w / 3, h / 3, w / 3, h / 12, 0, 0, 0xFF787878);
    gallery.show("A grey bar healed", "BBIPaintChoose(image, 7, 0x78, 0x78, 0, 0);",
                 "Grey pixels of one level are filled from what surrounds them, pass after pass.", dst,
                 [&] { BBIPaintChoose(dst, 7, 0x78, 0x78, 0, 0); });
  }
  {
    Picture dst = photo;
    BBIBltToF(dst.pixels(), photo.pixels(), w * h, 8888, 0, 1.0f, 0.0f, 0, nullptr);
    BBIBlt(dst, photo, w / 2, 0, w, h, w / 2, 0);
    gallery.show("Everything that has a colour", "BBIPaintChoose(image, 8, 0xFFFFD040, 0, 0, 0);",
                 "The left half had been made grey: only pure greys are left.", dst,
                 [&] { BBIPaintChoose(dst, 8, 0xFFFFD040, 0, 0, 0); });
  }
  {
    Picture dst = photo;
    gallery.show("A masked replace", "BBIPaintChoose(image, 10, 0xFFFFFFFF, 0x00C00000, 0x00C00000, 0);",
                 "Every pixel whose two top bits of red are set.", dst,
                 [&] { BBIPaintChoose(dst, 10, 0xFFFFFFFF, 0x00C00000, 0x00C00000, 0); });
  }
}

const gallery::Section blurs(320, "blurs", show_blurs);
const gallery::Section reduction(340, "dithering and channels", show_reduction);
const gallery::Section region_paint(360, "region paint", show_region_paint);

}  // namespace
