// A scene that uses every drawing routine, built up in steps.
#include <algorithm>
#include <cmath>

#include "sections.hpp"

namespace gallery {
namespace {

// A small image given pixel by pixel: a pair of colours, a pattern or a palette.
Picture image_of(int width, const std::vector<uint32_t>& colours) {
  Picture image(width, static_cast<int>(colours.size()) / width);
  std::copy(colours.begin(), colours.end(), image.pixels());
  return image;
}

// Light in the middle, through orange to a dark rim.
Picture sun_palette() {
  Picture palette(256, 1);
  for (uint32_t x = 0; x < 256; ++x)
    palette.pixels()[x] = 0xFF000000 | (x < 96 ? 120 + x * 135 / 96 : 255) << 16 | (x * 230 / 255) << 8 |
                          (x > 128 ? x - 128 : 0);
  return palette;
}

// Columns run from the rim to the centre, rows around.
Picture wheel_palette() {
  Picture palette(128, 360);
  for (int y = 0; y < 360; ++y)
    for (int x = 0; x < 128; ++x) {
      const auto wave_of = [&](int shift) {
        const int h = (y + shift) % 360;
        return h < 60 ? 255 * h / 60 : h < 180 ? 255 : h < 240 ? 255 * (240 - h) / 60 : 0;
      };
      const auto fade = [&](int v) { return static_cast<uint32_t>(v + (255 - v) * x / 127); };
      const bool spoke = y % 30 * (128 - x) < 300 && x < 100;  // equally wide all along
      palette.at(x, y) =
          spoke ? 0xFF202020
                : 0xFF000000 | fade(wave_of(120)) << 16 | fade(wave_of(0)) << 8 | fade(wave_of(240));
    }
  return palette;
}

}  // namespace

void show_drawing(Gallery& page) {
  page.section(
      "Drawing",
      "One picture, step by step: every entry goes on where the one before it stopped. Coordinates may "
      "lie anywhere; only pixels inside are drawn, and far ones cost nothing.");
  Picture scene(640, 400);
  scene =
      page.show("Sky", scene,
                CALL(BBIDrawBox(scene, 0, 0, 640, 280, 0, 0xFF16264F, 0xFF3A2A5C, 0xFFE9A15C, 0xFFF4C98A)),
                "A gradient between four corner colours. The weights have 256 steps: look for faint bands.");
  const Picture sun = sun_palette();
  scene = page.show(
      "Sun", scene, CALL(BBIDrawLineCircle(scene, sun, 420, 60, 560, 200)),
      "A radial gradient from one row of colours: the rim takes the first, the centre the last. The "
      "edge is hard, since pixels are copied and not blended.");
  scene = page.show("Ground", scene,
                    CALL(BBIDrawColorFill(scene, -100, 280, 900, 500, 0, 0xFF2E3B2F);
                         BBIDrawColorFill(scene, 0, 330, 640, 70, 0xFF00FF00, 0x00401020)),
                    "The box reaches far beyond the picture. The second call keeps the green and the alpha "
                    "through its mask and replaces red and blue.");
  scene =
      page.show("Hills", scene,
                CALL(BBIDrawTriangle(scene, 20, 281, 170, 130, 330, 281, 0, 0xFF39506B);
                     BBIDrawTriangleA(scene, 220, 280, 330, 190, 420, 280, 0, 0xFF2B3D55)),
                "Filled without and with its edges: the first triangle leaves out the pixels exactly on its "
                "border.");
  scene = page.show(
      "House", scene,
      CALL(
          BBIDrawColorTile(scene, 90, 230, 110, 70, 0, 11, 7, 0xFFB0503C, 0xFFA84A38, 0xFF9C4434, 0xFFB8583F);
          BBIDrawColorTile(scene, 84, 300, 122, 20, 0, 4, 4, 0xFF707070, 0xFF606060, 0xFF585858, 0xFF787878);
          BBIDrawTriangleA(scene, 205, 230, 145, 180, 85, 230, 0, 0xFF5A1E1E)),
      "A checkerboard of four colours, anchored at the picture's corner: the two boxes' grids "
      "agree wherever they meet.");
  const Picture glow = image_of(2, {0xFFFFE9A0, 0xFFFFC860, 0xFFE08030, 0xFFA04018});
  const Picture fabric =
      image_of(6, {0xFFFFFFFF, 0xFFC8D8FF, 0xFFFFFFFF, 0xFFC8D8FF, 0xFFFFFFFF, 0xFFC8D8FF,  //
                   0xFFFFFFFF, 0xFFFFD0C8, 0xFFFFFFFF, 0xFFFFD0C8, 0xFFFFFFFF, 0xFFFFD0C8});
  scene =
      page.show("Windows", scene,
                CALL(BBIDrawGradationBox(scene, glow, 105, 245, 130, 270);
                     BBIDrawGradationBox(scene, glow, 185, 270, 160, 245)),
                "Two corners instead of a size: the second window is given from its lower right corner, so "
                "its gradient is mirrored.");
  scene =
      page.show("Two blankets", scene,
                CALL(BBIDrawMultiplyLineBox(scene, fabric, 260, 320, 380, 385);
                     BBIDrawExclusiveLineBox(scene, fabric, 400, 320, 520, 385)),
                "They cross the colours of two rows of six pixels, by multiplication and by a sum that folds "
                "back at 255.");
  const Picture wheel = wheel_palette();
  scene =
      page.show("Balloon", scene, CALL(BBIDrawPolaCircle(scene, wheel, 300, 20, 390, 120)),
                "The palette as a polar map: its columns run from the rim to the centre, its rows around.");
  const Picture rope = image_of(2, {0xFFE0D0B0, 0xFF503820}), ray = image_of(2, {0xE0FFF0B0, 0x00FFF0B0});
  scene = page.show("Fence and basket", scene,
                    CALL(for (int i = 0; i < 4; ++i) {
                      BBIDrawLine(scene, 20, 390 - i * 14, 600, 330 + i * 4, 0, 0xFFE8E8E0);
                    } BBIDrawGradationLine(scene, rope, 318, 108, 338, 150);
                         BBIDrawGradationLine(scene, rope, 372, 108, 352, 150);
                         BBIDrawColorFill(scene, 337, 150, 17, 12, 0, 0xFF6B4423)),
                    "Plain lines with their steps, and ropes whose colour changes along the way.");
  const auto at = [](int centre, double far, double turn) {
    return centre + static_cast<int>(std::lround(far * turn));
  };
  scene = page.show("Rays", scene, CALL(for (double turn = 0; turn < 6.28; turn += 0.2618) {
                      BBIDrawAlphaLine(scene, ray, at(490, 80, std::cos(turn)), at(130, 80, std::sin(turn)),
                                       at(490, 120, std::cos(turn)), at(130, 120, std::sin(turn)));
                    }),
                    "Antialiased lines that fade out by the alpha of their end colour.");
  constexpr uint32_t wood = 0xFFD8C8A0;
  Picture fence = scene.cut(535, 296, 96, 36);
  for (int x = 5; x < 95; ++x) {
    if (x % 12 == 5) BBIDrawLine(fence, x, 4, x, 30, 0, wood);
    for (const int y : {9, 10, 11})
      if (x % 3 != 2 || y != 10) fence.at(x, y) = wood;
  }
  page.look(
      "A broken fence", fence,
      "A corner of the scene: posts of one colour, and a rail whose middle line lacks every third pixel.");
  fence = page.show("Holes filled", fence, CALL(BBIDotThick(fence, 4, 10, 95, 10, 0, wood)),
                    "Pixels along a line with three or four neighbours of the colour take it.");
  page.show("Strokes thickened", fence, CALL(BBILineThick(fence, 5, 23, 95, 23, 0, wood, 4)),
            "Along the other line, strokes of the colour grow towards each point from four sides.");
}

}  // namespace gallery
