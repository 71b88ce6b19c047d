// A scene that uses every drawing routine, built up in steps.
#include <cmath>
#include <string>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

// A small image given pixel by pixel: a pair of colours, a pattern or a palette.
Picture pixels(int width, int height, const std::vector<uint32_t>& colours) {
  Picture image(width, height);
  for (size_t i = 0; i < colours.size(); ++i) image.pixels()[i] = colours[i];
  return image;
}

// Light in the middle, through orange to a dark rim.
Picture sun_palette() {
  Picture palette(256, 1);
  for (int x = 0; x < 256; ++x)
    BBIDrawColorFill(palette, x, 0, 1, 1, 0,
                     0xFF000000 | static_cast<uint32_t>(x < 96 ? 120 + x * 135 / 96 : 255) << 16 |
                         static_cast<uint32_t>(x * 230 / 255) << 8 |
                         static_cast<uint32_t>(x > 128 ? x - 128 : 0));
  return palette;
}

// Columns run from the rim to the centre, rows around.
Picture wheel_palette() {
  Picture palette(128, 360);
  for (int y = 0; y < 360; ++y)
    for (int x = 0; x < 128; ++x) {
      const auto wave = [&](int shift) {
        const int h = (y + shift) % 360;
        return h < 60 ? 255 * h / 60 : h < 180 ? 255 : h < 240 ? 255 * (240 - h) / 60 : 0;
      };
      const auto fade = [&](int v) { return static_cast<uint32_t>(v + (255 - v) * x / 127); };
      const bool spoke = y % 30 * (128 - x) < 300 && x < 100;  // equally wide all along
      palette.pixels()[y * 128 + x] =
          spoke ? 0xFF202020 : 0xFF000000 | fade(wave(120)) << 16 | fade(wave(0)) << 8 | fade(wave(240));
    }
  return palette;
}

void show_drawing(Gallery& gallery) {
  constexpr int w = 640, h = 400;
  gallery.heading(
      "Drawing",
      "One picture, step by step: every entry goes on where the one before it stopped. Coordinates may "
      "lie anywhere; only pixels inside are drawn, and far ones cost nothing.");
  Picture scene(w, h);
  const auto step = [&](const char* title, const char* code, const char* notice,
                        const std::function<void()>& call) {
    gallery.show(title, code, notice, scene, call);
  };

  step("Sky", "BBIDrawBox(scene, 0, 0, 640, 280, 0, 0xFF16264F, 0xFF3A2A5C, 0xFFE9A15C, 0xFFF4C98A);",
       "A gradient between four corner colours. The weights have 256 steps: look for faint bands.",
       [&] { BBIDrawBox(scene, 0, 0, w, 280, 0, 0xFF16264F, 0xFF3A2A5C, 0xFFE9A15C, 0xFFF4C98A); });
  const Picture sun = sun_palette();
  step("Sun", "BBIDrawLineCircle(scene, sun, 420, 60, 560, 200);",
       "A radial gradient from one row of colours: the rim takes the first, the centre the last. The edge is "
       "hard, "
       "since pixels are copied and not blended.",
       [&] { BBIDrawLineCircle(scene, sun, 420, 60, 560, 200); });
  step("Ground",
       "BBIDrawColorFill(scene, -100, 280, 900, 500, 0, 0xFF2E3B2F);\n"
       "BBIDrawColorFill(scene, 0, 330, 640, 70, 0xFF00FF00, 0x00401020);",
       "The box reaches far beyond the picture. The second call keeps the green and the alpha through its "
       "mask and "
       "replaces red and blue.",
       [&] {
         BBIDrawColorFill(scene, -100, 280, 900, 500, 0, 0xFF2E3B2F);
         BBIDrawColorFill(scene, 0, 330, w, 70, 0xFF00FF00, 0x00401020);
       });
  step("Hills",
       "BBIDrawTriangle(scene, 20, 281, 170, 130, 330, 281, 0, 0xFF39506B);\n"
       "BBIDrawTriangleA(scene, 220, 280, 330, 190, 420, 280, 0, 0xFF2B3D55);",
       "Filled without and with its edges: the first triangle leaves out the pixels exactly on its border.",
       [&] {
         BBIDrawTriangle(scene, 20, 281, 170, 130, 330, 281, 0, 0xFF39506B);
         BBIDrawTriangleA(scene, 220, 280, 330, 190, 420, 280, 0, 0xFF2B3D55);
       });
  step("House",
       "BBIDrawColorTile(scene, 90, 230, 110, 70, 0, 11, 7, …);\n"
       "BBIDrawColorTile(scene, 84, 300, 122, 20, 0, 4, 4, …);\nBBIDrawTriangleA(scene, 205, 230, 145, 180, "
       "85, 230, 0, 0xFF5A1E1E);",
       "A checkerboard of four colours, anchored at the picture's corner: the two boxes' grids agree "
       "wherever they "
       "meet.",
       [&] {
         BBIDrawColorTile(scene, 90, 230, 110, 70, 0, 11, 7, 0xFFB0503C, 0xFFA84A38, 0xFF9C4434, 0xFFB8583F);
         BBIDrawColorTile(scene, 84, 300, 122, 20, 0, 4, 4, 0xFF707070, 0xFF606060, 0xFF585858, 0xFF787878);
         BBIDrawTriangleA(scene, 205, 230, 145, 180, 85, 230, 0, 0xFF5A1E1E);
       });
  const Picture glow = pixels(2, 2, {0xFFFFE9A0, 0xFFFFC860, 0xFFE08030, 0xFFA04018});
  const Picture fabric = pixels(6, 2,
                                {0xFFFFFFFF, 0xFFC8D8FF, 0xFFFFFFFF, 0xFFC8D8FF, 0xFFFFFFFF, 0xFFC8D8FF,  //
                                 0xFFFFFFFF, 0xFFFFD0C8, 0xFFFFFFFF, 0xFFFFD0C8, 0xFFFFFFFF, 0xFFFFD0C8});
  step("Windows and a blanket",
       "BBIDrawGradationBox(scene, glow, 105, 245, 130, 270);\nBBIDrawGradationBox(scene, glow, 185, 270, "
       "160, 245);\n"
       "BBIDrawMultiplyLineBox(scene, fabric, 260, 320, 380, 385);\nBBIDrawExclusiveLineBox(scene, fabric, "
       "400, 320, "
       "520, 385);",
       "Two corners instead of a size: the second window is given from its lower right corner, so its "
       "gradient is "
       "mirrored. The blankets cross the colours of two rows of six pixels, by multiplication and by a sum "
       "that folds "
       "back at 255.",
       [&] {
         BBIDrawGradationBox(scene, glow, 105, 245, 130, 270);
         BBIDrawGradationBox(scene, glow, 185, 270, 160, 245);
         BBIDrawMultiplyLineBox(scene, fabric, 260, 320, 380, 385);
         BBIDrawExclusiveLineBox(scene, fabric, 400, 320, 520, 385);
       });
  const Picture wheel = wheel_palette();
  step("Balloon", "BBIDrawPolaCircle(scene, wheel, 300, 20, 390, 120);",
       "The palette as a polar map: its columns run from the rim to the centre, its rows around.",
       [&] { BBIDrawPolaCircle(scene, wheel, 300, 20, 390, 120); });
  const Picture rope = pixels(2, 1, {0xFFE0D0B0, 0xFF503820}), ray = pixels(2, 1, {0xE0FFF0B0, 0x00FFF0B0});
  step(
      "Lines",
      "BBIDrawLine(scene, 20, 390, 600, 330, 0, 0xFFE8E8E0);  // and three more\n"
      "BBIDrawGradationLine(scene, rope, 318, 108, 338, 150);\n"
      "BBIDrawGradationLine(scene, rope, 372, 108, 352, 150);\n"
      "BBIDrawColorFill(scene, 337, 150, 17, 12, 0, 0xFF6B4423);\n"
      "BBIDrawAlphaLine(scene, ray, x, y, x2, y2);  // 24 times",
      "Plain lines with their steps, gradient ropes below the balloon, and antialiased rays that fade out by "
      "the alpha of their end colour.",
      [&] {
        for (int i = 0; i < 4; ++i) BBIDrawLine(scene, 20, 390 - i * 14, 600, 330 + i * 4, 0, 0xFFE8E8E0);
        BBIDrawGradationLine(scene, rope, 318, 108, 338, 150);
        BBIDrawGradationLine(scene, rope, 372, 108, 352, 150);
        BBIDrawColorFill(scene, 337, 150, 17, 12, 0, 0xFF6B4423);
        for (int i = 0; i < 24; ++i) {
          const double turn = i * 3.14159265 / 12;
          const auto at = [](int centre, double far) { return centre + static_cast<int>(std::lround(far)); };
          BBIDrawAlphaLine(scene, ray, at(490, 80 * std::cos(turn)), at(130, 80 * std::sin(turn)),
                           at(490, 120 * std::cos(turn)), at(130, 120 * std::sin(turn)));
        }
      });
  Picture fence = scene.cut(535, 296, 96, 36);
  gallery.show(
      "Stroke repair: before", "BBIDrawLine(fence, x, 4, x, 30, 0, 0xFFD8C8A0);  // each post",
      "A corner of the scene: posts of one colour, and a rail whose middle line lacks every third pixel.",
      fence, [&] {
        for (int x = 5; x < 95; x += 12) BBIDrawLine(fence, x, 4, x, 30, 0, 0xFFD8C8A0);
        for (int x = 5; x < 95; ++x)
          for (const int y : {9, 10, 11})
            if (x % 3 != 2 || y != 10) BBIDrawColorFill(fence, x, y, 1, 1, 0, 0xFFD8C8A0);
      });
  gallery.show(
      "Stroke repair: after",
      "BBIDotThick(fence, 4, 10, 95, 10, 0, 0xFFD8C8A0);\n"
      "BBILineThick(fence, 5, 23, 95, 23, 0, 0xFFD8C8A0, 4);",
      "Holes with three neighbours of the colour are filled along one line; along the other, strokes "
      "of the colour grow towards each point of the line from four sides.",
      fence, [&] {
        BBIDotThick(fence, 4, 10, 95, 10, 0, 0xFFD8C8A0);
        BBILineThick(fence, 5, 23, 95, 23, 0, 0xFFD8C8A0, 4);
      });
}

const gallery::Section section(400, "drawing", show_drawing);

}  // namespace
