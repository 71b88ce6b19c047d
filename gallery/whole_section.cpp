// Operations on whole images.
#include <algorithm>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

void show_turns(Gallery& gallery) {
  const Picture photo = gallery.photo(0).fitted(420, 320);
  const int w = photo.width(), h = photo.height();
  gallery.heading("Mirrored and turned", "Mirrors work in place, rotations from one image into another.");
  Picture mirrored = photo, over = photo;
  gallery.show("Mirror", "BBIMirror(image);", "Left and right exchanged.", mirrored,
               [&] { BBIMirror(mirrored); });
  gallery.show("Vertical mirror", "BBIVMirror(image);", "Top and bottom exchanged.", over,
               [&] { BBIVMirror(over); });
  Picture clockwise(h, w), half(w, h), counter(h, w);
  gallery.show("A quarter clockwise", "BBIRotation(dst, src, 0);",
               "dst has the width and height of src exchanged.", clockwise,
               [&] { BBIRotation(clockwise, photo, 0); });
  gallery.show("Half a turn", "BBIRotation(dst, src, 1);", "The same as both mirrors, one after the other.",
               half, [&] { BBIRotation(half, photo, 1); });
  gallery.show("A quarter counter-clockwise", "BBIRotation(dst, src, 2);", "Undoes the clockwise turn.",
               counter, [&] { BBIRotation(counter, photo, 2); });
}

// The photograph with everything darker than a level painted in the key colour.
Picture keyed_background(const Picture& photo) {
  Picture p = photo;
  for (int i = 0; i < p.width() * p.height(); ++i) {
    uint32_t& v = p.pixels()[i];
    if ((v & 255) + (v >> 8 & 255) + (v >> 16 & 255) < 200) v = 0xFFFF00FF;
  }
  return p;
}

void show_keys(Gallery& gallery) {
  const Picture photo = gallery.photo(1).fitted(420, 320);
  const int w = photo.width(), h = photo.height();
  gallery.heading("Keys and masks",
                  "A key colour becomes transparency; transparent pixels borrow colour from their rim.");
  Picture keyed = keyed_background(photo);
  gallery.show(
      "Keying", "BBIKeying(image, 0xFF00FF);",
      "The shadows had been painted magenta. They are transparent now, everything else is opaque.", keyed,
      [&] { BBIKeying(keyed, 0xFF00FF); }, true);
  {
    // A coarse stretch of a small part, with and without clean edges.
    Picture small = keyed.cut(w / 2 - 30, h * 2 / 7, 60, 45), clean = small, shown(484, 180, 0xFF000000);
    BBIKeyingFilter(clean);
    int x = 0;
    for (const Picture* from : {&small, &clean}) {
      Picture halved(from->width() / 2, from->height() / 2);
      BBIBltHalfSize(halved, *from, 0, 0, halved.width(), halved.height(), 0, 0);
      BBIBltColor(shown, x, 0, 240, 180, 0, 0, 0xFFD8D8D8);
      BBIExpandBlendBlt(shown, halved, x, 0, 240, 180, 0, 0, halved.width(), halved.height(), 1.0f);
      x += 244;
    }
    gallery.show("Clean edges", "BBIKeyingFilter(image);\nBBIBltHalfSize(dst, image, ...);",
                 "Left: scaled down after keying, the hidden magenta bleeds into the rim. Right: transparent "
                 "pixels had taken the colour of their neighbours before.",
                 shown, {});
  }
  {
    Picture dst = photo;
    gallery.show("Cleared by bits", "BBIClearMask(image, 0, 0, 0, 0, 0xFFC0C0C0);",
                 "Bits that the mask has set stay: two bits a channel are left.", dst,
                 [&] { BBIClearMask(dst, 0, 0, 0, 0, 0xFFC0C0C0); });
  }
  {
    Picture framed(w + 80, h + 60, 0xFF204060);
    BBIBlt(framed, photo, 50, 20, w, h, 0, 0);
    int32_t box[4];
    const auto trim = [&] { BBITrim(framed, 0, 0xFFFFFFFF, 0xFF204060, box, box + 1, box + 2, box + 3); };
    trim();
    Picture shown = framed;
    BBIBltColor(shown, box[0] - 3, box[1] - 3, box[2] + 6, box[3] + 6, 0, 0, 0xFFFFE040);
    BBIBlt(shown, framed, box[0], box[1], box[2], box[3], box[0], box[1]);
    gallery.show("Trim", "BBITrim(image, 0, 0xFFFFFFFF, 0xFF204060, &left, &top, &width, &height);",
                 "The bright frame is drawn around the content that was found in the plain surface.", shown,
                 trim);
  }
}

// A maze of corridors, by a walk that always finds every cell.
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

void show_fills(Gallery& gallery) {
  gallery.heading("Flood fill and colour counts",
                  "A fill takes the pixels that are connected by their sides and equal in all 32 bits.");
  int32_t box[4];
  Picture m = maze(48, 32, 10, 0xFFF0E8D0);
  BBIBltColor(m, 24 * 10, 16 * 10, 11, 11, 0, 0, 0xFFC03030);
  gallery.show("A maze", "BBIPaint(image, 1, 1, 0xFF3070C0, &left, &top, &right, &bottom);",
               "One cell in the middle has been walled up, in red: what can only be reached through it keeps "
               "its colour.",
               m, [&] { BBIPaint(m, 1, 1, 0xFF3070C0, box, box + 1, box + 2, box + 3); });

  const Picture photo = gallery.photo(0).fitted(480, 360);
  Picture flat = photo;
  gallery.show("A photograph painted",
               "BBIClearMask(image, 0, 0, 0, 0, 0xFFE0E0E0);\nBBIPaint(image, x, y, colour, ...);",
               "Reduced to eight levels a channel, then filled from places on a grid: each connected area of "
               "one colour "
               "takes a colour of its own.",
               flat, [&] {
                 BBIClearMask(flat, 0, 0, 0, 0, 0xFFE0E0E0);
                 uint32_t colour = 0xFF000000;
                 for (int y = 10; y < flat.height(); y += 20)
                   for (int x = 10; x < flat.width(); x += 20)
                     if ((flat.pixels()[y * flat.width() + x] & 0x1F1F1F) == 0)
                       BBIPaint(flat, x, y, (colour += 0x2F1D35) | 0xFF010101, box, box + 1, box + 2,
                                box + 3);
               });

  std::vector<std::vector<std::string>> rows{{"picture", "colours (BBIColorCount)"}};
  for (const auto& [name, mask] : {std::pair{"photograph", 0xFFFFFFFFu},
                                   {"6 bits a channel", 0xFFFCFCFCu},
                                   {"4 bits a channel", 0xFFF0F0F0u},
                                   {"2 bits a channel", 0xFFC0C0C0u}}) {
    Picture p = photo;
    BBIClearMask(p, 0, 0, 0, 0, mask);
    rows.push_back({name, std::to_string(BBIColorCount(p, 0))});
  }
  gallery.table("Different colours", "How many colours a photograph has, and what is left of them.", rows);

  Picture indexed = photo;
  BBIClearMask(indexed, 0, 0, 0, 0, 0xFFC0C0C0);
  uint32_t palette[256];
  const int32_t colours = std::min(BBIColorPalette(indexed, palette, 256), 64);
  Picture palette_shown(16 * 28, (colours + 15) / 16 * 28);
  for (int32_t i = 0; i < colours; ++i)
    BBIBltColor(palette_shown, i % 16 * 28 + 1, i / 16 * 28 + 1, 26, 26, 0, 0, palette[i] | 0xFF000000);
  gallery.show(
      "Its palette", "n = BBIColorPalette(image, palette, 256);",
      "The colours of the picture with two bits a channel, in the order in which they appear.", palette_shown,
      [&] { BBIColorPalette(indexed, palette, 256); }, true);
}

const gallery::Section turns(140, "mirrors and rotations", show_turns);
const gallery::Section keys(150, "keys and masks", show_keys);
const gallery::Section fills(160, "flood fills and colours", show_fills);

}  // namespace
