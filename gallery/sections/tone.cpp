// Tone transfer, true blend and automatic levels.
#include <algorithm>

#include "sections.hpp"

namespace gallery {

void show_tone(Gallery& page) {
  page.section("Tone and true blend", "dst starts as the first photograph, src is the second.");
  const int w = std::min({page.photo(0).width(), page.photo(1).width(), 480});
  const int h = std::min({page.photo(0).height(), page.photo(1).height(), 360});
  Picture dst = page.photo(0).middle(w, h);
  const Picture src = page.photo(1).middle(w, h), sepia(w, h, 0xFFC08040);
  page.show(
      "The colours of one, the light of the other", dst, CALL(BBIBltTone(dst, src, 0, 0, w, h, 0, 0)),
      "Each pixel of src is moved to the brightness that dst has there: shapes come from dst, hues from "
      "src.");
  page.show("Toned", dst, CALL(BBIBltTone(dst, sepia, 0, 0, w, h, 0, 0)),
            "With a single colour as the source: a toned print.");
  page.show("Mixed by likeness", dst, CALL(BBIBltToneWB(dst, src, 0, 0, w, h, 0, 0, 1)),
            "Where the colours are alike at equal brightness, src replaces dst.");
  page.show("Only what is very alike", dst, CALL(BBIBltToneWB(dst, src, 0, 0, w, h, 0, 0, 4)),
            "A larger factor narrows the range of colours that are taken over.");
  const auto disc = [&](const Picture& of, double centre) {
    return with_alpha(of, [=](double x, double y) {
      const double u = (x - centre) * w / h, v = y - 0.5;
      return 1.2 - 4.8 * (u * u + v * v);
    });
  };
  Picture layer = disc(dst, 0.4);
  const Picture over = disc(src, 0.6);
  page.show(
      "Layers without a background", over_checks(layer),
      CALL(BBIBltTrueBlend(layer, over, 0, 0, w, h, 0, 0, 0.7f)),
      "Two soft discs blend into one layer that is itself transparent at the rim: alphas add up where both "
      "are soft, and over nothing the source is copied as it is.");
}

namespace {

// How often each level occurs, one strip a channel, each to its own scale.
Picture histogram(const Picture& of) {
  constexpr int bar = 2, height = 72;
  Picture shown(256 * bar, 3 * height, 0xFF202020);
  const uint32_t colours[] = {0xFFF05050, 0xFF40B850, 0xFF5880F0};
  for (int strip = 0; strip < 3; ++strip) {
    int counts[256] = {};
    for (int i = 0; i < of.count(); ++i) ++counts[of.pixels()[i] >> (16 - 8 * strip) & 255];
    const int highest = *std::max_element(counts, counts + 256);
    for (int v = 0; v < 256; ++v) {
      const int length = counts[v] * (height - 4) / highest;
      BBIBltColor(shown, v * bar, (strip + 1) * height - length, bar, length, 0, 0, colours[strip]);
    }
  }
  return shown;
}

}  // namespace

void show_levels(Gallery& page) {
  page.section("Automatic levels",
               "A photograph in thick haze. Each export measures where the levels of the channels begin and "
               "end, leaving out a two-hundredth of the pixels on both sides, and stretches them. "
               "BBIAutoLevelWB counts each pixel three times, and so leaves out a third of that.");
  Picture image = page.photo(0).fitted(480, 360);
  const int n = image.count();
  BBIBltColorBlend(image, 0, 0, image.width(), image.height(), 0xFF788090, 0.6f);
  page.look("Before", image, "The haze has taken the contrast.");
  Picture levels = histogram(image);
  page.look(
      "Histogram before", levels,
      "How often each level from 0, left, to 255 occurs in red, green and blue. All lie close together.");
  const Picture stretched =
      page.show("All channels alike", image, CALL(BBIAutoLevelWB(image, n / 200)),
                "One pair of bounds for all: contrast returns, the tint of the haze stays.");
  levels = histogram(stretched);
  page.look("Histogram after", levels,
            "The same shape, spread over all levels; the gaps are levels that nothing was mapped to.");
  page.show(
      "Each channel, red and blue crossed", image, CALL(BBIAutoLevelRGB(image, n / 200)),
      "Red is stretched by the bounds of blue and the other way round: the tint changes with the picture.");
  page.show("By the other two channels", image, CALL(BBIAutoLevelRGBRev(image, n / 200)),
            "The mean of the other two channels' bounds.");
  page.show("The bright end first", image, CALL(BBIAutoLevelRGBMul(image, n / 200)),
            "Every channel reaches white, the dark end moves far less: a gentle brightening.");
}

}  // namespace gallery
