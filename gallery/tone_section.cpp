// Tone transfer, true blend and automatic levels.
#include <algorithm>

#include "page.hpp"

namespace {

using gallery::Gallery;
using gallery::Picture;

void show_tone(Gallery& gallery) {
  const int w = std::min({gallery.photo(0).width(), gallery.photo(1).width(), 480});
  const int h = std::min({gallery.photo(0).height(), gallery.photo(1).height(), 360});
  const Picture first = gallery.photo(0).middle(w, h), second = gallery.photo(1).middle(w, h);
  gallery.heading("Tone and true blend", "dst starts as the first photograph, src is the second.");
  Picture tone = first;
  gallery.show(
      "The colours of one, the light of the other", "BBIBltTone(dst, src, 0, 0, w, h, 0, 0);",
      "Each pixel of src is moved to the brightness that dst has there: shapes come from dst, hues from src.",
      tone, [&] { BBIBltTone(tone, second, 0, 0, w, h, 0, 0); });
  {
    Picture sepia = first, tint(w, h);
    gallery.show("Toned", "BBIClear(src, 192, 128, 64, 255);\nBBIBltTone(dst, src, 0, 0, w, h, 0, 0);",
                 "With a single colour as src: a toned print.", sepia, [&] {
                   BBIClear(tint, 192, 128, 64, 255);
                   BBIBltTone(sepia, tint, 0, 0, w, h, 0, 0);
                 });
  }
  for (const float factor : {1.0f, 4.0f}) {
    Picture mixed = first;
    gallery.show(
        factor == 1.0f ? "Mixed by likeness" : "Only what is very alike",
        "BBIBltToneWB(dst, src, 0, 0, w, h, 0, 0, " + std::to_string(static_cast<int>(factor)) + ");",
        factor == 1.0f ? "Where the colours are alike at equal brightness, src replaces dst."
                       : "A larger factor narrows the range of colours that are taken over.",
        mixed, [&] { BBIBltToneWB(mixed, second, 0, 0, w, h, 0, 0, factor); });
  }
  {
    // Two soft discs, one over the other, on nothing.
    Picture dst(w, h), src = second;
    const auto disc = [&](Picture& p, int cx) {
      for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
          const int far = ((x - cx) * (x - cx) + (y - h / 2) * (y - h / 2)) * 300 / (h * h / 4);
          uint32_t& v = p.pixels()[y * w + x];
          v = (v & 0xFFFFFF) | static_cast<uint32_t>(std::clamp(300 - far, 0, 255)) << 24;
        }
    };
    dst = first;
    disc(dst, w * 2 / 5);
    disc(src, w * 3 / 5);
    gallery.show(
        "Layers without a background", "BBIBltTrueBlend(dst, src, 0, 0, w, h, 0, 0, 0.7);",
        "Two soft discs blend into one layer that is itself transparent at the rim: alphas add up where both "
        "are "
        "soft, and over nothing src is copied as it is.",
        dst, [&] { BBIBltTrueBlend(dst, src, 0, 0, w, h, 0, 0, 0.7f); }, true);
  }
}

// One strip a channel, each scaled to its highest level.
void histogram(Gallery& gallery, const char* title, const char* notice, const Picture& p) {
  constexpr int bar = 3, height = 72;
  Picture shown(256 * bar, 3 * height, 0xFF202020);
  const uint32_t colours[] = {0xFFF05050, 0xFF40B850, 0xFF5880F0};
  for (int strip = 0; strip < 3; ++strip) {
    int counts[256] = {};
    for (int i = 0; i < p.width() * p.height(); ++i) ++counts[p.pixels()[i] >> (16 - 8 * strip) & 255];
    const int highest = *std::max_element(counts, counts + 256);
    for (int v = 0; v < 256; ++v) {
      const int length = counts[v] * (height - 4) / highest;
      BBIBltColor(shown, v * bar, (strip + 1) * height - length, bar, length, 0, 0, colours[strip]);
    }
  }
  gallery.show(title, "", notice, shown, {});
}

void show_levels(Gallery& gallery) {
  Picture dull = gallery.photo(0).fitted(480, 360);
  const int n = dull.width() * dull.height();
  BBIBltColorBlend(dull, 0, 0, dull.width(), dull.height(), 0xFF788090, 0.6f);
  gallery.heading(
      "Automatic levels",
      "A photograph in thick haze. Each export measures where the levels of the channels begin and end, "
      "leaving out a two-hundredth of the pixels on both sides, and stretches them. BBIAutoLevelWB counts "
      "each "
      "pixel three times, once a channel, and so leaves out a third of that.");
  {
    Picture p = dull;
    gallery.show("Before", "", "The haze has taken the contrast.", p, {});
  }
  histogram(gallery, "Histogram before",
            "How often each level from 0, left, to 255 occurs in red, green and blue, each to its own scale. "
            "All lie close together.",
            dull);
  const struct {
    const char *title, *name, *notice;
    int32_t (*run)(ImageRecord*, int32_t);
  } rows[] = {
      {"All channels alike", "BBIAutoLevelWB",
       "One pair of bounds for all: contrast returns, the tint of the haze stays.", BBIAutoLevelWB},
      {"Each channel, red and blue crossed", "BBIAutoLevelRGB",
       "Red is stretched by the bounds of blue and the other way round: the tint changes with the picture.",
       BBIAutoLevelRGB},
      {"By the other two channels", "BBIAutoLevelRGBRev", "The mean of the other two channels' bounds.",
       BBIAutoLevelRGBRev},
      {"The bright end first", "BBIAutoLevelRGBMul",
       "Every channel reaches white, the dark end moves far less: a gentle brightening.",
       BBIAutoLevelRGBMul}};
  for (const auto& row : rows) {
    Picture p = dull;
    gallery.show(row.title, std::string(row.name) + "(image, " + std::to_string(n / 200) + ");", row.notice,
                 p, [&] { row.run(p, n / 200); });
    if (row.run == BBIAutoLevelWB)
      histogram(gallery, "Histogram after BBIAutoLevelWB",
                "The same shape, spread over all levels; the gaps are levels that nothing was mapped to.", p);
  }
}

const gallery::Section tone(180, "tone and true blend", show_tone);
const gallery::Section levels(190, "automatic levels", show_levels);

}  // namespace
