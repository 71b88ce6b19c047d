// Operations on whole images.
#include <algorithm>
#include <cstdlib>

#include "sections.hpp"

namespace gallery {

void show_turns(Gallery& page) {
  page.section("Mirrored and turned", "Mirrors work in place, rotations from one image into another.");
  Picture image = page.photo(0).fitted(420, 320);
  const Picture src = image;
  const int w = src.width(), h = src.height();
  page.show("Mirror", image, CALL(BBIMirror(image)), "Left and right exchanged.");
  page.show("Vertical mirror", image, CALL(BBIVMirror(image)), "Top and bottom exchanged.");
  Picture dst(h, w), half(w, h);
  page.show("A quarter clockwise", dst, CALL(BBIRotation(dst, src, TESSARO_TURN_RIGHT)),
            "dst has the width and height of src exchanged.");
  page.show("Half a turn", half, CALL(BBIRotation(half, src, TESSARO_TURN_HALF)),
            "The same as both mirrors, one after the other.");
  page.show("A quarter counter-clockwise", dst, CALL(BBIRotation(dst, src, TESSARO_TURN_LEFT)),
            "Undoes the clockwise turn.");
}

void show_keys(Gallery& page) {
  page.section(
      "Keys and content",
      "A key colour becomes transparency; transparent pixels borrow colour from their rim; content is "
      "found in plain surroundings.");
  const Picture photo = page.photo(1).fitted(420, 320);
  const int w = photo.width(), h = photo.height();
  // Everything darker than a level painted in the key colour.
  Picture image = photo;
  for (int i = 0; i < image.count(); ++i) {
    uint32_t& v = image.pixels()[i];
    if ((v & 255) + (v >> 8 & 255) + (v >> 16 & 255) < 200) v = 0xFFFF00FF;
  }
  page.show("Keying", over_checks(image), CALL(BBIKeying(image, 0xFF00FF)),
            "The shadows had been painted magenta. They are transparent now, everything else is opaque.");

  // A coarse stretch of a small part.
  Picture sprite = image.cut(w / 2 - 30, h * 2 / 7, 60, 45);
  BBIKeying(sprite, 0xFF00FF);
  Picture half(30, 22), bleeding(240, 180, 0xFFD8D8D8), clean = bleeding;
  page.show(
      "Clean edges", Shown{&bleeding, &clean},
      CALL(BBIBltHalfSize(half, sprite, 0, 0, 30, 22, 0, 0);
           BBIExpandBlendBlt(bleeding, half, 0, 0, 240, 180, 0, 0, 30, 22, 1); BBIKeyingFilter(sprite);
           BBIBltHalfSize(half, sprite, 0, 0, 30, 22, 0, 0);
           BBIExpandBlendBlt(clean, half, 0, 0, 240, 180, 0, 0, 30, 22, 1)),
      "Left: scaled down after keying, the hidden magenta bleeds into the rim. Right: transparent pixels "
      "had taken the colour of their neighbours before.");

  Picture framed(w + 80, h + 60, 0xFF204060);
  BBIBlt(framed, photo, 50, 20, w, h, 0, 0);
  const Picture found = framed;
  int32_t left, top, cx, cy;
  page.show("Trim", framed,
            CALL(BBITrim(found, 0, 0xFFFFFFFF, 0xFF204060, &left, &top, &cx, &cy);
                 BBIBltColor(framed, left - 3, top - 3, cx + 6, cy + 6, 0, 0, 0xFFFFE040);
                 BBIBlt(framed, found, left, top, cx, cy, left, top)),
            "The bright frame is drawn around the content that was found in the plain surface.");
}

namespace {

struct Tile {
  static constexpr int side = 16;
  int x, y;
  Picture of(const Picture& picture) const { return picture.cut(x, y, side, side); }
};

// From black at 0 over red and yellow to white at `most`.
void heat(Picture& to, const Tile& tile, int value, int most) {
  const int v = std::clamp(value * 765 / most, 0, 765);
  const auto part = [v](int from) { return static_cast<uint32_t>(std::clamp(v - from, 0, 255)); };
  BBIDrawColorFill(to, tile.x, tile.y, Tile::side, Tile::side, 0,
                   0xFF000000 | part(0) << 16 | part(255) << 8 | part(510));
}

}  // namespace

void show_comparisons(Gallery& page) {
  page.section(
      "Comparisons and colours",
      "A photograph and what is left of it, compared tile by tile: the heat of a tile of 16 x 16 pixels "
      "tells the result of one call.");
  Picture photo = page.photo(0).fitted(480, 360);
  const int w = photo.width() / Tile::side * Tile::side, h = photo.height() / Tile::side * Tile::side;
  photo = photo.cut(0, 0, w, h);
  std::vector<Tile> tiles;
  for (int y = 0; y < h; y += Tile::side)
    for (int x = 0; x < w; x += Tile::side) tiles.push_back({x, y});
  Picture map(w, h), retouched = photo, blurred = photo;
  BBIDrawAlphaLine(retouched, Picture(2, 1, 0xFFFFFFFF), w / 5, h / 4, w * 4 / 5, h * 2 / 3);
  page.show(
      "Which tiles differ", map,
      CALL(for (const Tile& t
                : tiles) {
        heat(map, t, BBICompare(t.of(photo), t.of(retouched), TESSARO_COMPARE_PIXELS), 1);
      }),
      "A thin white line was drawn on a copy of the photograph: white tiles are those in which at least one "
      "pixel differs.");
  BBIBltUBlur(blurred, photo, 0, 0, w, h, 0, 0, 3);
  page.show(
      "How many pixels differ", map,
      CALL(for (const Tile& t
                : tiles) { heat(map, t, BBICompareAny(t.of(photo), t.of(blurred), 0x00E0E0E0, 1), 256); }),
      "Against a blurred copy, in the three top bits of each colour: black tiles are smooth, and the hottest "
      "are "
      "full of detail.");
  page.show("How many colours", map,
            CALL(for (const Tile& t
                      : tiles) { heat(map, t, BBIColorCount(t.of(photo), 0), 256); }),
            "Different colours of each tile: white tiles have no colour twice, dark ones are flat.");

  Picture indexed = photo;
  BBIClearMask(indexed, 0, 0, 0, 0, 0xFFC0C0C0);
  uint32_t palette[256];
  int32_t colours = 0;
  Picture swatches(16 * 28, 4 * 28);
  page.show("A palette", over_checks(swatches),
            CALL(colours = BBIColorPalette(indexed, palette, 256); for (int i = 0; i < colours; ++i) {
              BBIBltColor(swatches, i % 16 * 28, i / 16 * 28, 26, 26, 0, 0, palette[i] | 0xFF000000);
            }),
            "The colours of the photograph with two bits a channel, in the order in which they appear.");
  std::vector<uint8_t> numbers(static_cast<size_t>(w * h));
  page.show(
      "A picture by numbers", map,
      CALL(BBIColorPalette(indexed, palette, 256); BBIBltTo8AsAlpha(numbers.data(), indexed.pixels(), w * h);
           BBIBltTo32from8(map, numbers.data() + (h - 1) * w, palette, -w)),
      "BBIColorPalette leaves the number of each pixel's colour in its alpha: one byte a pixel, and the "
      "palette, "
      "bring the picture back.");
}

namespace {

// A maze of corridors, by a walk that finds every cell.
Picture maze(int cells_x, int cells_y, int cell, uint32_t ground) {
  Picture p(cells_x * cell + 1, cells_y * cell + 1, 0xFF202020);
  std::vector<std::pair<int, int>> way{{0, 0}};
  std::vector<bool> been(static_cast<size_t>(cells_x * cells_y));
  uint32_t noise = 7;
  const auto carve = [&](int x, int y, int w, int h) { BBIBltColor(p, x, y, w, h, 0, 0, ground); };
  carve(1, 1, cell - 1, cell - 1);
  been[0] = true;
  while (!way.empty()) {
    const auto [x, y] = way.back();
    std::vector<std::pair<int, int>> next;
    for (const auto& [dx, dy] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
      if (x + dx >= 0 && y + dy >= 0 && x + dx < cells_x && y + dy < cells_y &&
          !been[static_cast<size_t>((y + dy) * cells_x + x + dx)])
        next.emplace_back(dx, dy);
    if (next.empty()) {
      way.pop_back();
      continue;
    }
    noise = noise * 1664525u + 1013904223u;
    const auto [dx, dy] = next[(noise >> 16) % next.size()];
    carve((x + std::min(dx, 0)) * cell + 1, (y + std::min(dy, 0)) * cell + 1, (1 + std::abs(dx)) * cell - 1,
          (1 + std::abs(dy)) * cell - 1);
    been[static_cast<size_t>((y + dy) * cells_x + x + dx)] = true;
    way.emplace_back(x + dx, y + dy);
  }
  return p;
}

}  // namespace

void show_fills(Gallery& page) {
  page.section("Flood fill",
               "A fill takes the pixels that are connected by their sides and equal in all 32 bits.");
  int32_t left, top, right, bottom;
  Picture image = maze(48, 32, 10, 0xFFF0E8D0);
  BBIBltColor(image, 24 * 10, 16 * 10, 11, 11, 0, 0, 0xFFC03030);
  page.show(
      "A maze", image, CALL(BBIPaint(image, 1, 1, 0xFF3070C0, &left, &top, &right, &bottom)),
      "One cell in the middle has been walled up, in red: what can only be reached through it keeps its "
      "colour.");
  Picture photo = page.photo(0).fitted(480, 360);
  BBIClearMask(photo, 0, 0, 0, 0, 0xFFE0E0E0);
  uint32_t colour = 0xFF000000;
  page.show(
      "A photograph painted", photo, CALL(for (int y = 10; y < photo.height(); y += 20) {
        for (int x = 10; x < photo.width(); x += 20) {
          if ((photo.at(x, y) & 0x1F1F1F) == 0) {
            BBIPaint(photo, x, y, (colour += 0x2F1D35) | 0xFF010101, &left, &top, &right, &bottom);
          }
        }
      }),
      "Reduced to eight levels a channel, then filled from places on a grid: each connected area of one "
      "colour takes a colour of its own.");
}

}  // namespace gallery
