// Maps on a photograph, and wipes from one photograph to the other.
#include <algorithm>
#include <cmath>
#include <string>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

uint8_t byte(double v) { return static_cast<uint8_t>(std::clamp(v, 0.0, 255.0)); }
uint32_t colour(double r, double g, double b) {
  return 0xFF000000 | static_cast<uint32_t>(byte(r) << 16 | byte(g) << 8 | byte(b));
}

// A map whose pixel (u, row) is curve(u, row / (rows - 1)); its alpha is the identity.
template <class Curve>
Picture make_map(int rows, Curve curve) {
  Picture map(256, rows);
  for (int y = 0; y < rows; ++y)
    for (int u = 0; u < 256; ++u)
      map.pixels()[y * 256 + u] =
          (curve(u, rows > 1 ? static_cast<double>(y) / (rows - 1) : 0.0) & 0xFFFFFF) |
          static_cast<uint32_t>(u) << 24;
  return map;
}

// The alpha of a picture, as `value` has it for x and y in 0..1.
template <class Value>
Picture with_alpha(const Picture& of, Value value) {
  Picture picture = of;
  for (int y = 0; y < of.height(); ++y)
    for (int x = 0; x < of.width(); ++x) {
      uint32_t& p = picture.pixels()[y * of.width() + x];
      const double a = value(static_cast<double>(x) / of.width(), static_cast<double>(y) / of.height());
      p = (p & 0xFFFFFF) | static_cast<uint32_t>(byte(a * 255)) << 24;
    }
  return picture;
}

double distance(double x, double y) { return std::sqrt((x - 0.5) * (x - 0.5) + (y - 0.5) * (y - 0.5)); }

void show_maps(Gallery& gallery) {
  gallery.heading(
      "Maps",
      "A third image serves as a table of two dimensions: for each channel, the pixel's value selects "
      "the map's column, and the row follows the alpha, the brightness or the position. The byte "
      "found there replaces the channel.");
  const Picture photo = gallery.photo(0).fitted(480, 360);
  const int w = photo.width(), h = photo.height();
  const auto tone = [](int u, double t) {  // from a cold, flat curve to a warm one with more contrast
    const double s = 128 + 127 * std::sin((u - 128) * 3.14159 / 256);
    return colour(u * (1 - t) * 0.55 + s * t * 1.1, u * (1 - t) * 0.75 + s * t,
                  (u + 30) * (1 - t) + s * t * 0.75);
  };
  const Picture curve = make_map(1, [&](int u, double) { return tone(u, 1.0); });
  const Picture warm_to_cold = make_map(256, tone);
  Picture shown = warm_to_cold;
  gallery.show("A map", "// 256 x 256 pixels",
               "Columns are values of a channel, rows go from a cold curve to a warm one.", shown, {});

  using Map = int32_t (*)(ImageRecord*, const ImageRecord*, const ImageRecord*, int32_t, int32_t, int32_t,
                          int32_t, int32_t, int32_t);
  const auto show = [&](const char* title, const char* name, Map map, const Picture& src,
                        const Picture& table, const char* notice, const Picture& start) {
    Picture dst = start;
    gallery.show(title, std::string(name) + "(dst, src, map, 0, 0, w, h, 0, 0);", notice, dst,
                 [&] { map(dst, src, table, 0, 0, w, h, 0, 0); });
  };
  const Picture vignette = with_alpha(photo, [](double x, double y) { return 1.3 - 1.9 * distance(x, y); });
  show("Tone curve", "BBIMapUC", BBIMapUC, photo, curve, "A map of one row is a curve for each channel.",
       photo);
  show("By the source's alpha", "BBIMapUCVA", BBIMapUCVA, vignette, warm_to_cold,
       "The alpha of src is a soft disc: the middle takes the last map row, the corners the first.", photo);
  show("… of another picture", "BBIMapUDVA", BBIMapUDVA, vignette, warm_to_cold,
       "Columns come from dst; src gives nothing but its alpha.", gallery.photo(1).fitted(w, h));
  show("Keeping the destination's alpha", "BBIMapMCUCVA", BBIMapMCUCVA, vignette, warm_to_cold,
       "The same colours as with BBIMapUCVA; the alpha of dst stays.", photo);
  show("… with its own columns", "BBIMapMCUDVA", BBIMapMCUDVA, vignette, warm_to_cold,
       "Colours of dst by the alpha of src, alpha untouched.", photo);
  const Picture split = make_map(256, [](int u, double t) {  // shadows blue, lights golden
    return colour(u * (0.5 + 0.7 * t), u * (0.65 + 0.4 * t), u * (1.25 - 0.75 * t) + 25 * (1 - t));
  });
  show("By brightness", "BBIMapUCVC", BBIMapUCVC, photo, split,
       "Blue + green + red selects the row: shadows turn blue, lights golden, in one pass.", photo);
  show("By brightness of another picture", "BBIMapUDVC", BBIMapUDVC, gallery.photo(1).fitted(w, h), split,
       "The light of the other photograph lies on this one like a projection.", photo);
  show("Across", "BBIMapUCVX", BBIMapUCVX, photo, warm_to_cold,
       "Rows follow the column: cold at the left, warm at the "
       "right.",
       photo);
  show("Downwards", "BBIMapUCVY", BBIMapUCVY, photo, warm_to_cold, "Rows follow the row.", photo);
}

void show_stencils(Gallery& gallery) {
  gallery.heading(
      "Stencils",
      "The alpha of a stencil decides when a pixel changes from one photograph to the other: dark places "
      "first. Softness makes a ramp of the edge.");
  constexpr int w = 220, h = 165, frames = 5;
  // Both photographs reduced to one size.
  const auto reduced = [&](int index) {
    const Picture fit = gallery.photo(index).fitted(2 * w, 2 * h);
    Picture cut(w, h);
    BBIExpandBlt(cut, fit, 0, 0, w, h, 0, 0, fit.width(), fit.height(), 1.0f);
    return cut;
  };
  const Picture first = reduced(0), second = reduced(1);
  const auto swirl = [](double x, double y) {
    const double turn = std::atan2(y - 0.5, x - 0.5) / 6.2831853 + 0.5 + 1.5 * distance(x, y);
    return turn - std::floor(turn);
  };
  const Picture stencil = with_alpha(first, swirl);
  Picture grey(w, h);
  gallery.show("The stencil", "BBIBltShiftAlpha(grey, stencil, 0, 0, w, h, 0, 0);",
               "Its alpha, shown as grey.", grey, [&] { BBIBltShiftAlpha(grey, stencil, 0, 0, w, h, 0, 0); });

  const auto strip = [&](const char* title, const std::string& code, const char* notice, auto draw) {
    Picture all(frames * w + (frames - 1) * 4, h, 0xFFFFFFFF);
    gallery.show(title, code + "  // five times", notice, all, [&] {
      for (int i = 0; i < frames; ++i) draw(all, i * (w + 4), static_cast<float>(i) / (frames - 1));
    });
  };
  strip("Hard wipe", "BBIStencilFlipLE(dst, first, second, stencil, x, 0, w, h, 0, 0, progress, 0);",
        "Progress 0, 0.25, 0.5, 0.75 and 1: the edge is as hard as the stencil allows.",
        [&](Picture& all, int x, float p) {
          BBIStencilFlipLE(all, first, second, stencil, x, 0, w, h, 0, 0, p, 0.0f);
        });
  strip("Soft wipe", "BBIStencilFlipLE(dst, first, second, stencil, x, 0, w, h, 0, 0, progress, 0.4f);",
        "The same stencil with a ramp of 0.4 of its range; both ends of the strip are still the pure "
        "photographs.",
        [&](Picture& all, int x, float p) {
          BBIStencilFlipLE(all, first, second, stencil, x, 0, w, h, 0, 0, p, 0.4f);
        });
  strip("Backwards", "BBIStencilFlipLEFix(dst, first, second, stencil, x, 0, w, h, 0, 0, progress, 0.4f);",
        "The photographs change their roles.", [&](Picture& all, int x, float p) {
          BBIStencilFlipLEFix(all, first, second, stencil, x, 0, w, h, 0, 0, p, 0.4f);
        });
  const Picture blinds =
      with_alpha(second, [](double x, double y) { return std::fmod(8 * x + 0.6 * y, 1.0); });
  strip("The incoming picture's own alpha",
        "BBIStencilFlip(dst, first, second, x, 0, w, h, 0, 0, progress, 0.2f, 1);",
        "Blinds, carried by the second photograph itself.", [&](Picture& all, int x, float p) {
          BBIStencilFlip(all, first, blinds, x, 0, w, h, 0, 0, p, 0.2f, 1);
        });
  strip("Cross-fade", "BBIStencilFlipLE(dst, first, second, stencil, x, 0, w, h, 0, 0, progress, 1000);",
        "From softness 1000 on the stencil does not count any more.", [&](Picture& all, int x, float p) {
          BBIStencilFlipLE(all, first, second, stencil, x, 0, w, h, 0, 0, p, 1000.0f);
        });
  {
    Picture dst = first;
    gallery.show(
        "Signed colour", "BBIStencilAddsigned(dst, stencil, 0, 0, w, h, 0, 0, 1.0f, 0x00A08060);",
        "Red is raised by 65, blue lowered by 63 where the stencil is strong. Alpha falls with it: where the "
        "stencil is full, the picture is transparent.",
        dst, [&] { BBIStencilAddsigned(dst, stencil, 0, 0, w, h, 0, 0, 1.0f, 0x00A08060); }, true);
  }
}

const gallery::Section maps(500, "maps", show_maps);
const gallery::Section stencils(520, "stencils", show_stencils);

}  // namespace
