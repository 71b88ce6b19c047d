// Maps on a photograph, and wipes from one photograph to the other.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "sections.hpp"

namespace gallery {
namespace {

uint32_t colour(double r, double g, double b) {
  const auto byte = [](double v) { return static_cast<uint32_t>(std::clamp(v, 0.0, 255.0)); };
  return 0xFF000000 | byte(r) << 16 | byte(g) << 8 | byte(b);
}

// A map whose pixel (u, row) is curve(u, row / (rows - 1)); its alpha is the identity.
template <class Curve>
Picture make_map(int rows, Curve curve) {
  Picture map(256, rows);
  for (int y = 0; y < rows; ++y)
    for (int u = 0; u < 256; ++u)
      map.at(u, y) = (curve(u, rows > 1 ? static_cast<double>(y) / (rows - 1) : 0.0) & 0xFFFFFF) |
                     static_cast<uint32_t>(u) << 24;
  return map;
}

double distance(double x, double y) { return std::hypot(x - 0.5, y - 0.5); }

}  // namespace

void show_maps(Gallery& page) {
  page.section(
      "Maps",
      "A third image serves as a table of two dimensions: for each channel, the pixel's value selects "
      "the map's column, and the row follows the alpha, the brightness or the position. The byte found "
      "there replaces the channel. dst starts as the second photograph, src is the first.");
  const Picture src = page.photo(0).fitted(480, 360);
  const int w = src.width(), h = src.height();
  Picture dst = page.photo(1).resized(w, h);
  const auto tone = [](int u, double t) {  // from a cold, flat curve to a warm one with more contrast
    const double s = 128 + 127 * std::sin((u - 128) * std::numbers::pi / 256);
    return colour(u * (1 - t) * 0.55 + s * t * 1.1, u * (1 - t) * 0.75 + s * t,
                  (u + 30) * (1 - t) + s * t * 0.75);
  };
  const Picture curve = make_map(1, [&](int u, double) { return tone(u, 1.0); });
  const Picture split = make_map(256, [](int u, double t) {  // shadows blue, lights golden
    return colour(u * (0.5 + 0.7 * t), u * (0.65 + 0.4 * t), u * (1.25 - 0.75 * t) + 25 * (1 - t));
  });
  Picture map = make_map(256, tone);
  page.look("A map", map, "Columns are values of a channel, rows go from a cold curve to a warm one.");
  const Picture soft = with_alpha(src, [](double x, double y) { return 1.3 - 1.9 * distance(x, y); });
  page.show("Tone curve", dst, CALL(BBIMapUC(dst, src, curve, 0, 0, w, h, 0, 0)),
            "A map of one row is a curve for each channel.");
  page.show(
      "By the source's alpha", dst, CALL(BBIMapUCVA(dst, soft, map, 0, 0, w, h, 0, 0)),
      "The alpha of the source is a soft disc: the middle takes the last map row, the corners the first.");
  page.show("… of another picture", dst, CALL(BBIMapUDVA(dst, soft, map, 0, 0, w, h, 0, 0)),
            "Columns come from dst; the source gives nothing but its alpha.");
  page.show("Keeping the destination's alpha", dst, CALL(BBIMapMCUCVA(dst, soft, map, 0, 0, w, h, 0, 0)),
            "The same colours as with BBIMapUCVA; the alpha of dst stays.");
  page.show("… with its own columns", dst, CALL(BBIMapMCUDVA(dst, soft, map, 0, 0, w, h, 0, 0)),
            "Colours of dst by the alpha of the source, alpha untouched.");
  page.show("By brightness", dst, CALL(BBIMapUCVC(dst, src, split, 0, 0, w, h, 0, 0)),
            "Blue + green + red selects the row: shadows turn blue, lights golden, in one pass.");
  page.show("By brightness of another picture", dst, CALL(BBIMapUDVC(dst, src, split, 0, 0, w, h, 0, 0)),
            "The light of the first photograph lies on the second like a projection.");
  page.show("Across", dst, CALL(BBIMapUCVX(dst, src, map, 0, 0, w, h, 0, 0)),
            "Rows follow the column: cold at the left, warm at the right.");
  page.show("Downwards", dst, CALL(BBIMapUCVY(dst, src, map, 0, 0, w, h, 0, 0)), "Rows follow the row.");
}

void show_stencils(Gallery& page) {
  page.section(
      "Stencils",
      "The alpha of a stencil decides when a pixel changes from one photograph to the other: dark places "
      "first. Softness makes a ramp of the edge.");
  constexpr int w = 220, h = 165;
  const Picture first = page.photo(0).resized(w, h), second = page.photo(1).resized(w, h);
  const Picture stencil = with_alpha(first, [](double x, double y) {
    const double turn = std::atan2(y - 0.5, x - 0.5) / (2 * std::numbers::pi) + 0.5 + 1.5 * distance(x, y);
    return turn - std::floor(turn);
  });
  Picture grey(w, h);
  page.show("The stencil", grey, CALL(BBIBltShiftAlpha(grey, stencil, 0, 0, w, h, 0, 0)),
            "Its alpha, shown as grey.");
  Picture frames[5] = {{w, h}, {w, h}, {w, h}, {w, h}, {w, h}};
  const Shown strip{&frames[0], &frames[1], &frames[2], &frames[3], &frames[4]};
  page.show("Hard wipe", strip, CALL(for (int i = 0; i < 5; ++i) {
              BBIStencilFlipLE(frames[i], first, second, stencil, 0, 0, w, h, 0, 0, float(i) / 4, 0);
            }),
            "Progress 0, 0.25, 0.5, 0.75 and 1: the edge is as hard as the stencil allows.");
  page.show("Soft wipe", strip, CALL(for (int i = 0; i < 5; ++i) {
              BBIStencilFlipLE(frames[i], first, second, stencil, 0, 0, w, h, 0, 0, float(i) / 4, 0.4f);
            }),
            "The same stencil with a ramp of 0.4 of its range; both ends of the strip are still the pure "
            "photographs.");
  page.show("Backwards", strip, CALL(for (int i = 0; i < 5; ++i) {
              BBIStencilFlipLEFix(frames[i], first, second, stencil, 0, 0, w, h, 0, 0, float(i) / 4, 0.4f);
            }),
            "The photographs change their roles.");
  const Picture blinds =
      with_alpha(second, [](double x, double y) { return std::fmod(8 * x + 0.6 * y, 1.0); });
  page.show("The incoming picture's own alpha", strip, CALL(for (int i = 0; i < 5; ++i) {
              BBIStencilFlip(frames[i], first, blinds, 0, 0, w, h, 0, 0, float(i) / 4, 0.2f, 0);
            }),
            "Blinds, carried by the second photograph itself.");
  page.show("Cross-fade whatever the stencil", strip, CALL(for (int i = 0; i < 5; ++i) {
              BBIStencilFlipLE(frames[i], first, second, stencil, 0, 0, w, h, 0, 0, float(i) / 4, 1000);
            }),
            "From softness 1000 on the stencil does not count any more.");
  Picture dst = first;
  page.show(
      "Signed colour", over_checks(dst),
      CALL(BBIStencilAddsigned(dst, stencil, 0, 0, w, h, 0, 0, 1, 0x00A08060)),
      "Red is raised by 65, blue lowered by 63 where the stencil is strong. Alpha falls with it: where the "
      "stencil is full, the picture is transparent.");
}

}  // namespace gallery
