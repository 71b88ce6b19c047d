// Stretched, interpolated and cross-faded pictures.
#include <algorithm>
#include <string>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

// A round sprite of a photograph, its alpha falling off towards the rim.
Picture sprite_of(const Picture& photo, int size) {
  const int side = std::min(photo.width(), photo.height());
  Picture sprite(size, size);
  BBILinearBlt(sprite, photo, 0, 0, size, size, (photo.width() - side) / 2, (photo.height() - side) / 2, side,
               side);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      const int u = 2 * x - size + 1, v = 2 * y - size + 1;
      const int inside = 256 - (u * u + v * v) * 256 / (size * size);
      uint32_t& pixel = sprite.pixels()[y * size + x];
      pixel = (pixel & 0xFFFFFF) | static_cast<uint32_t>(std::clamp(4 * inside, 0, 255)) << 24;
    }
  return sprite;
}

void show_scaling(Gallery& gallery) {
  const Picture& photo = gallery.photo(0);
  const Picture& other = gallery.photo(1);
  const int w = photo.width(), h = photo.height();

  gallery.heading(
      "Stretching",
      "A rectangle of one image is stretched onto a rectangle of another. The nearest-sample blits pick one "
      "source pixel for each destination pixel; the interpolating ones mix its neighbours.");

  // One detail, eight times as large, by every kind of sampling.
  const int part_w = std::min(48, w), part_h = std::min(32, h), px = (w - part_w) / 2, py = (h - part_h) / 2;
  const Picture detail = photo.cut(px, py, part_w, part_h);
  const int large_w = 8 * part_w, large_h = 8 * part_h;
  const auto enlarged = [&](const char* title, const char* code, const char* notice, auto call) {
    Picture large(large_w, large_h);
    gallery.show(title, code, notice, large, [&] { call(large); });
  };
  enlarged(
      "Nearest sample, 8 times", "BBIExpandBlt(dst, src, 0, 0, 8 * w, 8 * h, 0, 0, w, h, 1.0f);",
      "Every source pixel is a square of 8 x 8. Columns are mapped once a call, and the seven repeated rows "
      "are "
      "copies of the first.",
      [&](Picture& dst) { BBIExpandBlt(dst, detail, 0, 0, large_w, large_h, 0, 0, part_w, part_h, 1.0f); });
  enlarged("Bilinear, 8 times", "BBILinearBlt(dst, src, 0, 0, 8 * w, 8 * h, 0, 0, w, h);",
           "The same detail with the four neighbours mixed: no squares, but the slopes have creases where "
           "the grid lines "
           "were.",
           [&](Picture& dst) { BBILinearBlt(dst, detail, 0, 0, large_w, large_h, 0, 0, part_w, part_h); });
  enlarged("Cubic kernel, 8 times", "BBILinear(dst, src);",
           "Whole image onto whole image with 4 x 4 taps. The slopes are smoother than the bilinear ones; "
           "single negative "
           "lobes do not act, so edges get no halo. Taps beyond the source are transparent black: the border "
           "is a shade "
           "darker where a corner tap falls outside.",
           [&](Picture& dst) { BBILinear(dst, detail); });

  const int small_w = std::max(w / 5, 2), small_h = std::max(h / 5, 2);
  const auto reduced = [&](const char* title, const char* code, const char* notice, auto call) {
    Picture small(small_w, small_h);
    gallery.show(title, code, notice, small, [&] { call(small); });
  };
  reduced("Reduced to a fifth, nearest", "BBIExpandBlt(dst, src, 0, 0, w / 5, h / 5, 0, 0, w, h, 1.0f);",
          "One pixel in 25 is kept: fine detail sparkles, thin lines break.",
          [&](Picture& dst) { BBIExpandBlt(dst, photo, 0, 0, small_w, small_h, 0, 0, w, h, 1.0f); });
  reduced("Reduced to a fifth, bilinear", "BBILinearBlt(dst, src, 0, 0, w / 5, h / 5, 0, 0, w, h);",
          "Four neighbours of each 25 take part: softer, still not an average.",
          [&](Picture& dst) { BBILinearBlt(dst, photo, 0, 0, small_w, small_h, 0, 0, w, h); });
  reduced("Reduced to a fifth, neighbours averaged",
          "BBILinearBltTest(dst, src, 0, 0, w / 5, h / 5, 0, 0, w, h);",
          "The experimental one: 13 samples along a spiral, later ones weighing more. The first row and "
          "column never take "
          "part as neighbours.",
          [&](Picture& dst) { BBILinearBltTest(dst, photo, 0, 0, small_w, small_h, 0, 0, w, h); });

  gallery.heading("Stretching into a picture",
                  "Opacity, the sprite's own alpha, and what may happen to a sample on its way.");
  const Picture sprite = sprite_of(other, std::min({200, w, h}));
  const int side = sprite.width();
  {
    Picture dst = photo;
    gallery.show("One sprite, six sizes",
                 "BBIExpandBlendBlt(dst, sprite, x, y, size, size, 0, 0, 200, 200, opacity);",
                 "The sprite's alpha fades its rim, and the opacity falls from left to right. The last one "
                 "reaches past the "
                 "picture: what is cut off the destination is cut off the sprite in proportion.",
                 dst, [&] {
                   int x = w / 40;
                   for (int k = 0; k < 6; ++k) {
                     const int size = side * (k + 2) / 5;
                     BBIExpandBlendBlt(dst, sprite, x, h / 2 - size / 2, size, size, 0, 0, side, side,
                                       1.0f - 0.12f * static_cast<float>(k));
                     x += size * 4 / 5;
                   }
                 });
  }
  {
    Picture dst = photo;
    gallery.show("A fade strip", "BBIExpandBlt(dst, src, x, 0, w / 8, h, x2, 0, w2 / 8, h2, k / 7.0f);",
                 "Eight strips of the second photograph, stretched over the first, from opacity 0 on the "
                 "left to 1 on the "
                 "right, where they are plain copies.",
                 dst, [&] {
                   for (int k = 0; k < 8; ++k)
                     BBIExpandBlt(dst, other, k * w / 8, 0, (k + 1) * w / 8 - k * w / 8, h,
                                  k * other.width() / 8, 0, std::max(other.width() / 8, 1), other.height(),
                                  static_cast<float>(k) / 7.0f);
                 });
  }
  {
    Picture dst = photo;
    gallery.show("Four corner colours",
                 "BBIExpandColorBlt(dst, src, 0, 0, w, h, 0, 0, w2, h2, 0.6f, 0, 0xFF000000,\n"
                 "    0x00FF4000, 0x00FFE000, 0x000040FF, 0x0000C080, 0);",
                 "The mask keeps only the sample's alpha: its colours are replaced by a gradient between "
                 "four corners, laid "
                 "over the photograph with opacity 0.6.",
                 dst, [&] {
                   BBIExpandColorBlt(dst, other, 0, 0, w, h, 0, 0, other.width(), other.height(), 0.6f, 0,
                                     0xFF000000, 0x00FF4000, 0x00FFE000, 0x000040FF, 0x0000C080, 0);
                 });
  }
  const auto chosen = [&](const char* title, const std::string& code, const char* notice, float opacity,
                          float saturation, uint32_t low, uint32_t high, uint32_t keep, uint32_t mask,
                          uint32_t color, uint32_t invert, int32_t add_color, int32_t source_is_base) {
    Picture dst = photo;
    gallery.show(
        title, "BBIExpandChooseBlt(dst, src, 0, 0, w, h, 0, 0, w2, h2, " + code + ");", notice, dst, [&] {
          BBIExpandChooseBlt(dst, other, 0, 0, w, h, 0, 0, other.width(), other.height(), opacity, saturation,
                             low, high, keep, mask, color, invert, 0, add_color, 0, source_is_base);
        });
  };
  const uint32_t all = 0xFFFFFFFF, white = 0x00FFFFFF;
  chosen("Grey", "1, 0, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0, 0, 0, 0",
         "Saturation 0 leaves the mean of the three colours in each of them.", 1, 0, 0, white, 0, all, 0, 0,
         0, 0);
  chosen("Saturation 2.5", "1, 2.5f, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0, 0, 0, 0",
         "Each colour moves away from the mean, and stops at 0 and 255.", 1, 2.5f, 0, white, 0, all, 0, 0, 0,
         0);
  chosen(
      "Levels", "1, 1, 0x302010, 0xC0D0E0, 0, ~0u, 0, 0, 0, 0, 0, 0",
      "Each channel's range from its low to its high byte is stretched to 0..255: blue a little, red most.",
      1, 1, 0x302010, 0xC0D0E0, 0, all, 0, 0, 0, 0);
  chosen("Two levels only", "1, 0, 0x808080, 0x808080, 0, ~0u, 0, 0, 0, 0, 0, 0",
         "Equal ends after saturation 0: black up to 127, white from 129, and a grey of 127 at 128 itself.",
         1, 0, 0x808080, 0x808080, 0, all, 0, 0, 0, 0);
  chosen("Added light", "0.5f, 1, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0, 1, 0, 0",
         "The second photograph is scaled by the opacity and added to the first.", 0.5f, 1, 0, white, 0, all,
         0, 0, 1, 0);
  chosen("One channel inverted", "1, 1, 0, 0xFFFFFF, 0, 0xFF00FFFF, 0, 0x00FF0000, 0, 0, 0, 0",
         "The mask leaves red out, and invert_bits fills it with the sample's own red upside down.", 1, 1, 0,
         white, 0, 0xFF00FFFF, 0, 0x00FF0000, 0, 0);
  chosen("Blue of the first photograph kept", "1, 1, 0, 0xFFFFFF, 0x000000FF, ~0u, 0, 0, 0, 0, 0, 0",
         "keep_mask protects the destination's blue: it shows through as a ghost of the first picture.", 1, 1,
         0, white, 0xFF, all, 0, 0, 0, 0);
  chosen("Half grey, by itself", "0.5f, 0, 0, 0xFFFFFF, 0, ~0u, 0, 0, 0, 0, 0, 1",
         "With source_is_base the weight works between the sample and its changed self: half the colour is "
         "left.",
         0.5f, 0, 0, white, 0, all, 0, 0, 0, 1);

  uint32_t table[256];
  const auto render = [&](const char* title, const char* code, const char* notice, int32_t mode,
                          uint32_t tint) {
    Picture dst = photo;
    const int size = std::min(w, h) * 9 / 10;
    gallery.show(title, code, notice, dst, [&] {
      if (mode == 0) BBIAlphaTableCreate(table, 0.9f, 1);  // the others go on with it
      BBILinearRender(dst, sprite, (w - size) / 2, (h - size) / 2, size, size, 0, 0, side, side, table, mode,
                      1, tint);
    });
  };
  render("Interpolated and mixed",
         "BBIAlphaTableCreate(table, 0.9f, 1);\nBBILinearRender(dst, sprite, x, y, size, size, 0, 0, 200, "
         "200, table, 0, 1, 0);",
         "The enlarged sprite's rim is smooth: alpha is interpolated like the colours.", 0, 0);
  render("Interpolated and added", "BBILinearRender(…, table, 1, 1, 0);",
         "Scaled by its alpha's weight and added: a glow.", 1, 0);
  render("Interpolated and tinted", "BBILinearRender(…, table, 2, 1, 0xC0FF6000);",
         "Three quarters orange, by the alpha of the tint colour; the sprite's own alpha stays.", 2,
         0xC0FF6000);
  render("Interpolated, tinted and added", "BBILinearRender(…, table, 3, 1, 0xC02060FF);", "Blue light.", 3,
         0xC02060FF);

  gallery.heading("Cross-fades, depth and lines", "Pictures of the same size, pixel on pixel.");
  const int both_w = std::min(w, other.width()), both_h = std::min(h, other.height());
  const Picture first = photo.cut(0, 0, both_w, both_h), second = other.cut(0, 0, both_w, both_h);
  {
    Picture dst = first;
    gallery.show("Cross-fade", "BBIFlip(dst, src, 0, 0, w, h, 0, 0, 0.5f);", "Half of each, alpha included.",
                 dst, [&] { BBIFlip(dst, second, 0, 0, both_w, both_h, 0, 0, 0.5f); });
  }
  {
    Picture dst = first;
    gallery.show(
        "Sprite by its alpha", "BBIFlipBlend(dst, sprite, x, y, 200, 200, 0, 0, 0.8f);",
        "The alpha times an opacity of 0.8 is the weight: the middle of the disc lets a fifth of the picture "
        "through.",
        dst,
        [&] { BBIFlipBlend(dst, sprite, (both_w - side) / 2, (both_h - side) / 2, side, side, 0, 0, 0.8f); });
  }
  // Depth: the first picture lies as a slope from left to right, the second one as a slope from top to bottom.
  Picture slope_x = first, slope_y = second;
  for (int y = 0; y < both_h; ++y)
    for (int x = 0; x < both_w; ++x) {
      const auto set = [&](Picture& p, int depth) {
        uint32_t& pixel = p.pixels()[y * both_w + x];
        pixel = (pixel & 0xFFFFFF) | static_cast<uint32_t>(depth) << 24;
      };
      set(slope_x, x * 255 / both_w);
      set(slope_y, y * 255 / both_h);
    }
  {
    Picture dst = slope_x;
    gallery.show("Depth", "BBIDepth(dst, src, 0, 0, w, h, 0, 0);",
                 "Alpha as nearness: the first photograph comes nearer to the right, the second one "
                 "downward. They cut each "
                 "other along the diagonal.",
                 dst, [&] { BBIDepth(dst, slope_y, 0, 0, both_w, both_h, 0, 0); });
  }
  {
    Picture dst = slope_x;
    gallery.show("Depth, two channels", "BBIDepthMask(dst, src, 0, 0, w, h, 0, 0, 0x0000FF00);",
                 "The same, but the green of the first photograph stays everywhere.", dst,
                 [&] { BBIDepthMask(dst, slope_y, 0, 0, both_w, both_h, 0, 0, 0x0000FF00); });
  }
  {
    Picture dst = first;
    gallery.show("Lines", "BBIFlipLineX(dst, x, y, length, color);\nBBIFlipLineY(dst, x, y, length, color);",
                 "A weave of single-pixel lines; each is cut to the picture by itself.", dst, [&] {
                   for (int k = 0; k * 12 < both_w + both_h; ++k) {
                     BBIFlipLineX(dst, k * 12 - both_h / 2, k * 12, both_w / 2, 0xFFFFD040);
                     BBIFlipLineY(dst, k * 12, k * 12 - both_w / 2, both_h / 2, 0xFF40D0FF);
                   }
                 });
  }
}

const gallery::Section section(300, "stretching and cross-fades", show_scaling);

}  // namespace
