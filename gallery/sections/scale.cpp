// Stretched, interpolated and cross-faded pictures.
#include <algorithm>

#include "sections.hpp"

namespace gallery {
namespace {

// A round sprite of a photograph, its alpha falling off towards the rim.
Picture sprite_of(const Picture& photo, int size) {
  const int side = std::min(photo.width(), photo.height());
  Picture sprite(size, size);
  BBILinearBlt(sprite, photo, 0, 0, size, size, (photo.width() - side) / 2, (photo.height() - side) / 2, side,
               side);
  return with_alpha(
      sprite, [](double x, double y) { return 4 - 16 * ((x - 0.5) * (x - 0.5) + (y - 0.5) * (y - 0.5)); });
}

}  // namespace

void show_stretching(Gallery& page) {
  page.section(
      "Stretching",
      "A rectangle of one image is stretched onto a rectangle of another. The nearest-sample blits pick "
      "one source pixel for each destination pixel; the interpolating ones mix its neighbours.");
  const Picture& photo = page.photo(0);
  // One detail, eight times as large, by every kind of sampling.
  const int w = 48, h = 32;
  const Picture detail = photo.middle(w, h);
  Picture dst(8 * w, 8 * h);
  page.show("Nearest sample, 8 times", dst,
            CALL(BBIExpandBlt(dst, detail, 0, 0, 8 * w, 8 * h, 0, 0, w, h, 1)),
            "Every source pixel is a square of 8 x 8.");
  page.show(
      "Bilinear, 8 times", dst, CALL(BBILinearBlt(dst, detail, 0, 0, 8 * w, 8 * h, 0, 0, w, h)),
      "The same detail with the four neighbours mixed: no squares, but the slopes have creases where the "
      "grid lines were.");
  page.show(
      "Cubic kernel, 8 times", dst, CALL(BBILinear(dst, detail)),
      "Whole image onto whole image with 4 x 4 taps: smoother slopes than the bilinear ones. Taps beyond "
      "the source are transparent black, so the border is a shade darker.");
  const int sw = photo.width(), sh = photo.height(), dw = sw / 5, dh = sh / 5;
  Picture small(dw, dh);
  page.show("Reduced to a fifth, nearest", small,
            CALL(BBIExpandBlt(small, photo, 0, 0, dw, dh, 0, 0, sw, sh, 1)),
            "One pixel in 25 is kept: fine detail sparkles, thin lines break.");
  page.show("Reduced to a fifth, bilinear", small,
            CALL(BBILinearBlt(small, photo, 0, 0, dw, dh, 0, 0, sw, sh)),
            "Four neighbours of each 25 take part: softer, still not an average.");
  page.show(
      "Reduced to a fifth, neighbours averaged", small,
      CALL(BBILinearBltTest(small, photo, 0, 0, dw, dh, 0, 0, sw, sh)),
      "The experimental one: 13 samples along a spiral, later ones weighing more. The first row and column "
      "never take part as neighbours.");
}

void show_stretched_sprites(Gallery& page) {
  page.section("Stretching into a picture",
               "Opacity, the sprite's own alpha, and what may happen to a sample on its way.");
  Picture dst = page.photo(0);
  const Picture& src = page.photo(1);
  const int w = dst.width(), h = dst.height(), sw = src.width(), sh = src.height();
  const Picture sprite = sprite_of(src, std::min({200, w, h}));
  const int side = sprite.width();
  page.show(
      "One sprite, six sizes", dst, CALL(for (int k = 0; k < 6; ++k) {
        const int size = side * (k + 2) / 5;
        BBIExpandBlendBlt(dst, sprite, k * w / 6, (h - size) / 2, size, size, 0, 0, side, side,
                          1 - 0.12f * float(k));
      }),
      "The sprite's alpha fades its rim, and the opacity falls from left to right. The last one reaches "
      "past the picture: what is cut off the destination is cut off the sprite in proportion.");
  page.show(
      "A fade strip", dst, CALL(for (int k = 0; k < 8; ++k) {
        BBIExpandBlt(dst, src, k * w / 8, 0, w / 8, h, k * sw / 8, 0, sw / 8, sh, float(k) / 7);
      }),
      "Eight strips of the second photograph, stretched over the first, from opacity 0 on the left to 1 on "
      "the right, where they are plain copies.");
  page.show("Four corner colours", dst,
            CALL(BBIExpandColorBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 0.6f, 0, 0xFF000000, 0x00FF4000,
                                   0x00FFE000, 0x000040FF, 0x0000C080, 0)),
            "The mask keeps only the sample's alpha: its colours are replaced by a gradient between four "
            "corners, laid over the photograph with opacity 0.6.");
  page.show("Grey", dst,
            CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 1, 0, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0, 0,
                                    0, 0)),
            "Saturation 0 leaves the mean of the three colours in each of them.");
  page.show("Saturation 2.5", dst,
            CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 1, 2.5f, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0,
                                    0, 0, 0)),
            "Each colour moves away from the mean, and stops at 0 and 255.");
  page.show(
      "Levels", dst,
      CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 1, 1, 0x302010, 0xC0D0E0, 0, ~0u, 0, 0, 0,
                              0, 0, 0)),
      "Each channel's range from its low to its high byte is stretched to 0..255: blue a little, red most.");
  page.show(
      "Two levels only", dst,
      CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 1, 0, 0x808080, 0x808080, 0, ~0u, 0, 0, 0,
                              0, 0, 0)),
      "Equal ends after saturation 0: black up to 127, white from 129, and a grey of 127 at 128 itself.");
  page.show("Added light", dst,
            CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 0.5f, 1, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0,
                                    1, 0, 0)),
            "The second photograph is scaled by the opacity and added to the first.");
  page.show("One channel inverted", dst,
            CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 1, 1, 0, 0xFFFFFF, 0, 0xFF00FFFF, 0,
                                    0x00FF0000, 0, 0, 0, 0)),
            "The mask leaves red out, and invert_bits fills it with the sample's own red upside down.");
  page.show("Blue of the first photograph kept", dst,
            CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 1, 1, 0, 0xFFFFFF, 0x000000FF, ~0u, 0,
                                    0, 0, 0, 0, 0)),
            "keep_mask protects the destination's blue: it shows through as a ghost of the first picture.");
  page.show(
      "Half grey, by itself", dst,
      CALL(BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, sw, sh, 0.5f, 0, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0, 0, 0,
                              1)),
      "With source_is_base the weight works between the sample and its changed self: half the colour is "
      "left.");

  uint32_t table[256];
  const int size = std::min(w, h) * 9 / 10, x = (w - size) / 2, y = (h - size) / 2;
  page.show("Interpolated and mixed", dst,
            CALL(BBIAlphaTableCreate(table, 0.9f, 1); BBILinearRender(
                     dst, sprite, x, y, size, size, 0, 0, side, side, table, TESSARO_RENDER_MIX, 1, 0)),
            "The enlarged sprite's rim is smooth: alpha is interpolated like the colours.");
  page.show(
      "Interpolated and added", dst,
      CALL(BBILinearRender(dst, sprite, x, y, size, size, 0, 0, side, side, table, TESSARO_RENDER_ADD, 1, 0)),
      "Scaled by its alpha's weight and added: a glow.");
  page.show("Interpolated and tinted", dst,
            CALL(BBILinearRender(dst, sprite, x, y, size, size, 0, 0, side, side, table, TESSARO_RENDER_TINT,
                                 1, 0xC0FF6000)),
            "Three quarters orange, by the alpha of the tint colour; the sprite's own alpha stays.");
  page.show("Interpolated, tinted and added", dst,
            CALL(BBILinearRender(dst, sprite, x, y, size, size, 0, 0, side, side, table,
                                 TESSARO_RENDER_TINT_ADD, 1, 0xC02060FF)),
            "Blue light.");
}

void show_flips(Gallery& page) {
  page.section("Cross-fades, depth and lines", "Pictures of the same size, pixel on pixel.");
  const int w = std::min(page.photo(0).width(), page.photo(1).width());
  const int h = std::min(page.photo(0).height(), page.photo(1).height());
  Picture dst = page.photo(0).cut(0, 0, w, h);
  const Picture src = page.photo(1).cut(0, 0, w, h), sprite = sprite_of(page.photo(1), std::min({200, w, h}));
  const int size = sprite.width();
  page.show("Cross-fade", dst, CALL(BBIFlip(dst, src, 0, 0, w, h, 0, 0, 0.5f)),
            "Half of each, alpha included.");
  page.show(
      "Sprite by its alpha", dst,
      CALL(BBIFlipBlend(dst, sprite, (w - size) / 2, (h - size) / 2, size, size, 0, 0, 0.8f)),
      "The alpha times an opacity of 0.8 is the weight: the middle of the disc lets a fifth of the picture "
      "through.");
  Picture near = with_alpha(dst, [](double x, double) { return x; });
  const Picture far = with_alpha(src, [](double, double y) { return y; });
  page.show(
      "Depth", near, CALL(BBIDepth(near, far, 0, 0, w, h, 0, 0)),
      "Alpha as nearness: the first photograph comes nearer to the right, the second one downward. They "
      "cut each other along the diagonal.");
  page.show("Depth, two channels", near, CALL(BBIDepthMask(near, far, 0, 0, w, h, 0, 0, 0x0000FF00)),
            "The same, but the green of the first photograph stays everywhere.");
  page.show("Rows and columns", dst, CALL(for (int k = 0; k * 12 < w + h; ++k) {
              BBIFlipLineX(dst, k * 12 - h / 2, k * 12, w / 2, 0xFFFFD040);
              BBIFlipLineY(dst, k * 12, k * 12 - w / 2, h / 2, 0xFF40D0FF);
            }),
            "A weave of single-pixel lines; each is cut to the picture by itself.");
}

}  // namespace gallery
