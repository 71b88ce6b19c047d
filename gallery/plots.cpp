#include "plots.hpp"

#include <algorithm>
#include <cmath>

#include "text.hpp"

namespace gallery {
namespace {

constexpr const char* colours[] = {"#1a98a0", "#d9702c", "#837fe0", "#a8890f", "#cf5585", "#5c9a3c"};
constexpr size_t colour_count = std::size(colours);

// About four ticks to a range, at 1, 2 or 5 times a power of ten.
double tick(double range) {
  const double power = std::pow(10, std::floor(std::log10(range / 4))), steps = range / 4 / power;
  return (steps <= 1 ? 1 : steps <= 2 ? 2 : steps <= 5 ? 5 : 10) * power;
}

// More points than pixels say nothing more: of every few, the lowest and the highest are kept.
std::vector<size_t> telling(const std::vector<double>& values) {
  constexpr size_t columns = 650;
  const size_t group = std::max<size_t>(1, values.size() / columns);
  std::vector<size_t> points;
  for (size_t from = 0; from < values.size(); from += group) {
    const auto begin = values.begin() + static_cast<ptrdiff_t>(from);
    const auto end = begin + static_cast<ptrdiff_t>(std::min(group, values.size() - from));
    const auto [least, most] = std::minmax_element(begin, end);
    const auto [first, second] = std::minmax(least, most);
    points.push_back(static_cast<size_t>(first - values.begin()));
    if (first != second) points.push_back(static_cast<size_t>(second - values.begin()));
  }
  return points;
}

}  // namespace

std::string waveform(const Sound& sound) {
  constexpr int columns = 480, band = 60;
  const int channels = int(sound.channels()), frames = sound.frames();
  const Sound plain = sound.as(TESSARO_BITS_16, channels);
  std::string svg = format(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %d %d\" preserveAspectRatio=\"none\">\n",
      columns, band * channels);
  for (int c = 0; c < channels; ++c) {
    const double middle = band * (c + 0.5), scale = band / 2.0 / 32768;
    svg += format("<path fill=\"none\" stroke=\"%s\" d=\"", colours[c]);
    for (int x = 0; x < columns; ++x) {
      const auto begins = [&](int column) { return static_cast<int>(int64_t{frames} * column / columns); };
      int low = 0, high = 0;
      for (int i = begins(x); i < std::max(begins(x) + 1, begins(x + 1)); ++i) {
        const int value = static_cast<const int16_t*>(plain.data())[i * channels + c];
        low = std::min(low, value);
        high = std::max(high, value);
      }
      svg += format("M%d.5 %.1fV%.1f", x, middle - high * scale - 0.3, middle - low * scale + 0.3);
    }
    svg += "\"/>\n";
  }
  return svg + "</svg>\n";
}

std::string chart(const Plot& plot) {
  constexpr double left = 56, right = 708, top = 26, bottom = 246;
  double low = INFINITY, high = -INFINITY;
  size_t count = 2;
  for (const Plot::Series& series : plot.series) {
    count = std::max(count, series.values.size());
    const auto [least, most] = std::minmax_element(series.values.begin(), series.values.end());
    low = std::min(low, *least);
    high = std::max(high, *most);
  }
  if (low == high) low -= 1, high += 1;
  const double last = static_cast<double>(count - 1);
  const auto px = [&](double x) { return left + (right - left) * x / last; };
  const auto py = [&](double v) { return bottom - (bottom - top) * (v - low) / (high - low); };

  std::string svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 720 320\" font-family=\"sans-serif\" "
      "font-size=\"11\">\n";
  const auto label = [&](double x, double y, const char* anchor, const std::string& text,
                         const char* colour = "#80868f") {
    svg += format("<text x=\"%.1f\" y=\"%.1f\" text-anchor=\"%s\" fill=\"%s\">", x, y, anchor, colour) +
           escaped(text) + "</text>\n";
  };
  label(left, 12, "start", plot.y_axis);
  label((left + right) / 2, bottom + 38, "middle", plot.x_axis);
  for (const double x : plot.marks)
    svg += format("<path stroke=\"#80868f\" stroke-dasharray=\"3 4\" d=\"M%.1f %.0fV%.0f\"/>\n", px(x), top,
                  bottom);
  const double step = tick(high - low), across = std::max(1.0, tick(last));
  for (double v = std::ceil(low / step) * step; v <= high + step * 1e-9; v += step) {
    svg += format("<path stroke=\"#80868f\" stroke-opacity=\".3\" d=\"M%.0f %.1fH%.0f\"/>\n", left, py(v),
                  right);
    label(left - 8, py(v) + 4, "end", format("%g", std::abs(v) < step * 1e-6 ? 0.0 : v));
  }
  for (double x = 0; x <= last; x += across) label(px(x), bottom + 20, "middle", format("%g", x));
  double legend = left;
  for (size_t i = 0; i < plot.series.size(); ++i) {
    const auto& [name, values] = plot.series[i];
    const char* colour = colours[i % colour_count];
    svg += format("<path fill=\"none\" stroke=\"%s\" stroke-width=\"1.6\" stroke-linejoin=\"round\" d=\"",
                  colour);
    char pen = 'M';
    for (const size_t k : telling(values)) {
      svg += format("%c%.1f %.1f", pen, px(static_cast<double>(k)), py(values[k]));
      pen = 'L';
    }
    svg += "\"/>\n";
    label(legend, bottom + 62, "start", "━ " + name, colour);
    legend += 40 + 6.5 * static_cast<double>(name.size());
  }
  return svg + "</svg>\n";
}

}  // namespace gallery
