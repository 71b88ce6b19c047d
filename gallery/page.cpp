#include "page.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

#include "media.hpp"
#include "style.hpp"

namespace gallery {
namespace {

struct Entry {
  std::string progress;
  std::function<void(Gallery&)> show;
};
std::multimap<int, Entry>& sections() {
  static std::multimap<int, Entry> all;
  return all;
}

using Clock = std::chrono::steady_clock;
double seconds_since(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string escape(const std::string& text) {
  std::string out;
  for (const char c : text) switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  return out;
}

template <class... Args>
std::string format(const char* pattern, Args... args) {
  char text[256];
  std::snprintf(text, sizeof text, pattern, args...);
  return text;
}

std::string duration(double seconds) {
  return seconds < 1e-3 ? format("%.0f µs", seconds * 1e6)
         : seconds < 1  ? format(seconds < 1e-2 ? "%.1f ms" : "%.0f ms", seconds * 1e3)
                        : format("%.1f s", seconds);
}

// Names of functions that are called stand out.
std::string code_block(const std::string& code) {
  static const std::regex called(R"(\b([A-Za-z_]\w*)(?=\())");
  return "<pre><code>" + std::regex_replace(escape(code), called, "<b>$1</b>") + "</code></pre>";
}

class Page : public Gallery {
 public:
  Page(std::filesystem::path out, std::vector<Picture> photos, Sound voice)
      : out_(std::move(out)), photos_(std::move(photos)), voice_(std::move(voice)) {}

  const Picture& photo(int index) override {
    return photos_[static_cast<size_t>(std::abs(index)) % photos_.size()];
  }
  const Sound& voice() override { return voice_; }

  void heading(const std::string& title, const std::string& text) override {
    close();
    ++headings_;
    contents_ += format("<li><a href=\"#s%d\">", headings_) + escape(title) + "</a></li>\n";
    body_ += format("<section id=\"s%d\">\n<h2>", headings_) + escape(title) + "</h2>\n";
    if (!text.empty()) body_ += "<p class=\"lead\">" + escape(text) + "</p>\n";
    body_ += "<div class=\"grid\">\n";
    open_ = true;
  }

  void show(const std::string& title, const std::string& code, const std::string& notice, Picture& picture,
            const std::function<void()>& call, bool with_alpha) override {
    const Picture before = picture;
    const double seconds = measure(
        call, [&] { std::copy_n(before.pixels(), before.width() * before.height(), picture.pixels()); });
    const std::string file = format("pictures/%03d.png", ++entries_);
    write_png((out_ / file).string(), picture, with_alpha);
    // Small pictures are enlarged by a whole factor, so that every pixel is seen as a square.
    const int width = picture.width(), height = picture.height();
    const int zoom = std::max(1, std::min(480 / std::max(1, width), 360 / std::max(1, height)));
    const char* form = width <= 480 || width < 3 * height ? ""
                       : width < 5 * height               ? " class=\"double\""
                                                          : " class=\"wide\"";
    body_ += std::string("<figure") + form + ">\n<a href=\"" + file + "\"><img loading=\"lazy\" src=\"" +
             file + "\" alt=\"" + escape(title) + "\"" +
             format(" width=\"%d\" height=\"%d\"", width * zoom, height * zoom) + " class=\"" +
             (with_alpha ? "alpha " : "") + (zoom > 1 ? "pixels" : "") + "\"></a>\n";
    const std::string size =
        format("%d × %d", width, height) + (zoom > 1 ? format(", shown %d ×", zoom) : std::string());
    caption(title, code, notice, size, seconds);
    body_ += "</figure>\n";
  }

  void play(const std::string& title, const std::string& code, const std::string& notice, Sound& sound,
            const std::function<void()>& call) override {
    const Sound before = sound;
    const double seconds = measure(
        call, [&] { std::copy(before.samples.begin(), before.samples.end(), sound.samples.begin()); });
    const std::string file = format("sounds/%03d.wav", ++entries_);
    write_wav((out_ / file).string(), sound);
    body_ +=
        "<figure>\n" + waveform(sound) + "<audio controls preload=\"none\" src=\"" + file + "\"></audio>\n";
    const double length = static_cast<double>(sound.samples.size()) / sound.channels / sound.rate;
    caption(title, code, notice,
            format("%.1f s, %d Hz, %s", length, sound.rate,
                   sound.channels == 1   ? "mono"
                   : sound.channels == 2 ? "stereo"
                                         : "many channels"),
            seconds);
    body_ += "</figure>\n";
  }

  void plot(const std::string& title, const std::string& notice, const std::string& x_axis,
            const std::string& y_axis, const std::vector<Series>& series,
            const std::vector<double>& marks) override {
    ++entries_;
    body_ += "<figure class=\"double\">\n" + chart(x_axis, y_axis, series, marks);
    caption(title, "", notice, "", -1);
    body_ += "</figure>\n";
  }

  void table(const std::string& title, const std::string& notice,
             const std::vector<std::vector<std::string>>& rows) override {
    ++entries_;
    body_ += "<figure class=\"wide\">\n<div class=\"table\"><table>\n";
    for (size_t i = 0; i < rows.size(); ++i) {
      const char* cell = i ? "td" : "th";
      body_ += "<tr>";
      for (const std::string& value : rows[i])
        body_ += std::string("<") + cell + ">" + escape(value) + "</" + cell + ">";
      body_ += "</tr>\n";
    }
    body_ += "</table></div>\n";
    caption(title, "", notice, "", -1);
    body_ += "</figure>\n";
  }

  int entries() const { return entries_; }

  bool write() {
    close();
    char day[32];
    const std::time_t now = std::time(nullptr);
    std::strftime(day, sizeof day, "%Y-%m-%d", std::localtime(&now));
    for (size_t i = 0; i < photos_.size(); ++i)
      write_png((out_ / format("pictures/photo%d.png", static_cast<int>(i))).string(), photos_[i], false);
    std::ofstream page(out_ / "index.html");
    page << "<!doctype html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
         << "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>tessaro "
            "gallery</title>\n"
         << "<style>" << style
         << "</style>\n</head>\n<body>\n<nav>\n<a class=\"home\" href=\"#top\">tessaro</a>\n<ol>\n"
         << contents_ << "</ol>\n</nav>\n<main id=\"top\">\n<header>\n<h1>tessaro</h1>\n"
         << "<p class=\"lead\">What the library's functions do, each shown on real material: the result, the "
            "calls that made it, the time they take (the best of a few runs), and what to look for. Pictures "
            "open at full size.</p>\n<div class=\"photos\">\n";
    for (size_t i = 0; i < photos_.size(); ++i)
      page << "<img src=\"pictures/photo" << i << ".png\" alt=\"photograph " << i << "\">\n";
    page << "</div>\n<p class=\"facts\">" << entries_ << " entries · made on " << day << "</p>\n</header>\n"
         << body_ << "</main>\n</body>\n</html>\n";
    return static_cast<bool>(page.flush());
  }

 private:
  // The best of a few runs, since the first one meets cold memory. Below 0 where there is nothing to measure.
  static double measure(const std::function<void()>& call, const std::function<void()>& prepare) {
    if (!call) return -1;
    double best = INFINITY;
    for (int i = 0; i < (best < 0.05 ? 6 : 1); ++i) {
      prepare();
      const auto start = Clock::now();
      call();
      best = std::min(best, seconds_since(start));
    }
    return best;
  }

  void caption(const std::string& title, const std::string& code, const std::string& notice,
               const std::string& facts, double seconds) {
    body_ += "<figcaption>\n<h3>" + escape(title) + "</h3>\n";
    if (!code.empty()) body_ += code_block(code) + "\n";
    if (!notice.empty()) body_ += "<p>" + escape(notice) + "</p>\n";
    if (!facts.empty())
      body_ += "<p class=\"facts\">" + facts + (seconds < 0 ? "" : " · <b>" + duration(seconds) + "</b>") +
               "</p>\n";
    body_ += "</figcaption>\n";
  }

  void close() {
    if (open_) body_ += "</div>\n</section>\n";
    open_ = false;
  }

  // Lowest and highest sample of each column, one band a channel.
  static std::string waveform(const Sound& sound) {
    constexpr int columns = 480, band = 60;
    const size_t channels = static_cast<size_t>(sound.channels), frames = sound.samples.size() / channels;
    std::string svg =
        format("<svg class=\"wave\" viewBox=\"0 0 %d %d\" preserveAspectRatio=\"none\" role=\"img\">",
               columns, band * sound.channels);
    for (size_t c = 0; c < channels; ++c) {
      const double middle = band * (static_cast<double>(c) + 0.5);
      svg += format("<path class=\"c%d\" d=\"", static_cast<int>(c % 6));
      for (size_t x = 0; x < columns && frames; ++x) {
        const size_t from = x * frames / columns, to = std::max(from + 1, (x + 1) * frames / columns);
        int low = 0, high = 0;
        for (size_t f = from; f < to; ++f) {
          const int v = sound.samples[f * channels + c];
          low = std::min(low, v);
          high = std::max(high, v);
        }
        const double scale = band / 2.0 / 32768;
        svg += format("M%d.5 %.1fV%.1f", static_cast<int>(x), middle - high * scale - 0.3,
                      middle - low * scale + 0.3);
      }
      svg += "\"/>";
    }
    return svg + "</svg>\n";
  }

  // About four ticks to a range, at 1, 2 or 5 times a power of ten.
  static double tick(double range) {
    const double power = std::pow(10, std::floor(std::log10(range / 4))), steps = range / 4 / power;
    return (steps <= 1 ? 1 : steps <= 2 ? 2 : steps <= 5 ? 5 : 10) * power;
  }

  static std::string chart(const std::string& x_axis, const std::string& y_axis,
                           const std::vector<Series>& series, const std::vector<double>& marks) {
    constexpr double left = 56, right = 708, top = 26, bottom = 246;
    double low = INFINITY, high = -INFINITY;
    size_t count = 2;
    for (const Series& s : series) {
      count = std::max(count, s.values.size());
      for (const double v : s.values)
        if (std::isfinite(v)) low = std::min(low, v), high = std::max(high, v);
    }
    if (!(low <= high)) low = 0, high = 1;
    if (low == high) low -= 1, high += 1;
    const double step = tick(high - low), across = std::max(1.0, tick(static_cast<double>(count - 1)));
    const auto px = [&](double x) { return left + (right - left) * x / static_cast<double>(count - 1); };
    const auto py = [&](double v) { return bottom - (bottom - top) * (v - low) / (high - low); };
    std::string svg = "<svg class=\"plot\" viewBox=\"0 0 720 290\" role=\"img\">";
    svg += format("<text x=\"%.0f\" y=\"12\">", left) + escape(y_axis) + "</text>";
    svg += format("<text x=\"%.0f\" y=\"%.0f\" class=\"x\">", (left + right) / 2, bottom + 38) +
           escape(x_axis) + "</text>";
    for (const double x : marks)
      svg += format("<path class=\"mark\" d=\"M%.1f %.0fV%.0f\"/>", px(x), top, bottom);
    for (double v = std::ceil(low / step) * step; v <= high + step * 1e-9; v += step)
      svg += format(
          "<path class=\"grid\" d=\"M%.0f %.1fH%.0f\"/><text x=\"%.0f\" y=\"%.1f\" class=\"y\">%g</text>",
          left, py(v), right, left - 8, py(v) + 4, std::abs(v) < step * 1e-6 ? 0.0 : v);
    for (double x = 0; x <= static_cast<double>(count - 1); x += across)
      svg += format("<text x=\"%.1f\" y=\"%.0f\" class=\"x\">%g</text>", px(x), bottom + 20, x);
    for (size_t i = 0; i < series.size(); ++i) {
      svg += format("<path class=\"line c%d\" d=\"", static_cast<int>(i % 6));
      bool drawing = false;
      // More points than pixels say nothing more: keep the extremes of each column.
      const size_t size = series[i].values.size(), columns = 1300;
      const size_t group = std::max<size_t>(1, size / (columns / 2));
      for (size_t from = 0; from < size; from += group) {
        size_t least = from, most = from;
        for (size_t k = from; k < std::min(size, from + group); ++k) {
          if (series[i].values[k] < series[i].values[least]) least = k;
          if (series[i].values[k] > series[i].values[most]) most = k;
        }
        for (const size_t k : {std::min(least, most), std::max(least, most)}) {
          const double v = series[i].values[k];
          if (std::isfinite(v))
            svg += format("%c%.1f %.1f", drawing ? 'L' : 'M', px(static_cast<double>(k)), py(v));
          drawing = std::isfinite(v);
          if (least == most) break;
        }
      }
      svg += "\"/>";
    }
    svg += "</svg>\n<p class=\"legend\">";
    for (size_t i = 0; i < series.size(); ++i)
      svg += format("<span class=\"c%d\">", static_cast<int>(i % 6)) + escape(series[i].name) + "</span> ";
    return svg + "</p>\n";
  }

  std::filesystem::path out_;
  std::vector<Picture> photos_;
  Sound voice_;
  std::string contents_, body_;
  bool open_ = false;
  int headings_ = 0, entries_ = 0;
};

int usage(const char* program) {
  std::printf("usage: %s [--out DIR] [picture] [sound.wav]\n", program);
  return 2;
}

int run(int argc, char** argv) {
  std::filesystem::path out = "out/gallery";
  std::string picture, sound;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    std::string end = std::filesystem::path(argument).extension().string();
    std::transform(end.begin(), end.end(), end.begin(), [](char c) { return static_cast<char>(c | 0x20); });
    if (argument == "--out" && i + 1 < argc)
      out = argv[++i];
    else if (argument.rfind("-", 0) == 0)
      return usage(argv[0]);
    else
      (end == ".wav" ? sound : picture) = argument;
  }

  const std::string media = GALLERY_MEDIA;
  std::vector<std::string> files{media + "/coffee.jpg", media + "/rocket.jpg", media + "/cat.png"};
  if (!picture.empty()) files.insert(files.begin(), picture);
  std::string why;
  std::vector<Picture> photos;
  for (const std::string& file : files) {
    auto loaded = load_picture(file, why);
    if (!loaded) {
      std::fprintf(stderr, "%s\n", why.c_str());
      return 1;
    }
    const uint32_t* pixels = loaded->pixels();
    if (std::none_of(pixels, pixels + loaded->width() * loaded->height(), [](uint32_t p) { return p >> 24; }))
      BBIClearMask(*loaded, 0, 0, 0, 255, 0x00FFFFFF);  // a photograph without alpha is opaque
    photos.push_back(loaded->fitted(640, 480));
  }
  auto voice = load_wav(sound.empty() ? media + "/voice.wav" : sound, why);
  if (!voice) {
    std::fprintf(stderr, "%s\n", why.c_str());
    return 1;
  }

  std::error_code error;
  std::filesystem::create_directories(out / "pictures", error);
  std::filesystem::create_directories(out / "sounds", error);
  Page page(out, std::move(photos), std::move(*voice));
  size_t done = 0;
  const auto start = Clock::now();
  for (const auto& [key, section] : sections()) {
    const int before = page.entries();
    const auto begun = Clock::now();
    std::printf("[%2zu/%zu] %-40s", ++done, sections().size(), section.progress.c_str());
    std::fflush(stdout);
    section.show(page);
    std::printf(" %3d entries, %s\n", page.entries() - before, duration(seconds_since(begun)).c_str());
  }
  if (!page.write()) {
    std::fprintf(stderr, "cannot write %s\n", (out / "index.html").string().c_str());
    return 1;
  }
  std::printf("%d entries in %s: open %s\n", page.entries(), duration(seconds_since(start)).c_str(),
              std::filesystem::absolute(out / "index.html").lexically_normal().string().c_str());
  return 0;
}

}  // namespace

Section::Section(int key, std::string progress, std::function<void(Gallery&)> show) {
  sections().emplace(key, Entry{std::move(progress), std::move(show)});
}

}  // namespace gallery

int main(int argc, char** argv) { return gallery::run(argc, argv); }
