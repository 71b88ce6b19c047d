#include "gallery.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <fstream>
#include <regex>
#include <set>
#include <stdexcept>

#include "media.hpp"
#include "page.hpp"
#include "plots.hpp"
#include "text.hpp"

namespace gallery {
namespace {

// The best of a few runs, since the first one meets cold memory.
double measured(const Call& call, const std::function<void()>& prepare) {
  double best = INFINITY;
  for (int i = 0; i < (best < 0.05 ? 6 : 1); ++i) {
    prepare();
    const auto start = std::chrono::steady_clock::now();
    call.run();
    best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  return best;
}

// The library's functions that code names, in order of their first appearance.
std::vector<std::string> functions_in(const std::string& code) {
  static const std::regex word(R"([A-Za-z]\w*)"), comment("#[^\n]*");
  const auto words = [](const std::string& text) {
    std::vector<std::string> all;
    for (std::sregex_iterator it(text.begin(), text.end(), word), end; it != end; ++it)
      all.push_back(it->str());
    return all;
  };
  static const std::vector<std::string> table =
      words(std::regex_replace(contents_of(GALLERY_EXPORTS), comment, ""));
  static const std::set<std::string> exported(table.begin(), table.end());
  std::vector<std::string> found;
  for (const std::string& name : words(code))
    if (exported.count(name) && std::find(found.begin(), found.end(), name) == found.end())
      found.push_back(name);
  return found;
}

// Next to each other on nothing, without their alphas if those are not shown.
Picture beside(const Shown& shown) {
  constexpr int gap = 6;
  int width = -gap, height = 1;
  for (const Picture* picture : shown.pictures) {
    width += picture->width() + gap;
    height = std::max(height, picture->height());
  }
  Picture all(width, height);
  int x = 0;
  for (const Picture* picture : shown.pictures) {
    BBIBlt(all, *picture, x, 0, picture->width(), picture->height(), 0, 0);
    if (!shown.alpha) BBIBltColor(all, x, 0, picture->width(), picture->height(), 0x00FFFFFF, 0, 0xFF000000);
    x += picture->width() + gap;
  }
  return all;
}

bool same(const Picture& a, const Picture& b) { return BBICompare(a, b, TESSARO_COMPARE_PIXELS) == 0; }
bool same(const Sound& a, const Sound& b) {
  return dllComp(a.data(), b.data(), static_cast<int32_t>(a.size_bytes())) == 0;
}

}  // namespace

Gallery::Gallery(std::filesystem::path out, std::vector<Picture> photos, Sound voice)
    : out_(std::move(out)), photos_(std::move(photos)), voice_(std::move(voice)) {
  for (const char* folder : {"pictures", "sounds", "plots"})
    std::filesystem::create_directories(out_ / folder);
}

void Gallery::section(const std::string& title, const std::string& text) {
  sections_.push_back({title, text, {}});
}

Picture Gallery::show(const std::string& title, Shown shown, const Call& call, const std::string& text) {
  std::vector<Picture> before;
  for (const Picture* picture : shown.pictures) before.push_back(*picture);
  const auto restore = [&] {
    for (size_t i = 0; i < before.size(); ++i)
      std::memcpy(shown.pictures[i]->pixels(), before[i].pixels(), before[i].bytes());
  };
  const Picture start = beside(shown);
  Entry entry = begin(title, text, call.code);
  entry.seconds = measured(call, restore);
  Picture result = beside(shown);
  if (same(start, result)) idle_.push_back(title);
  restore();
  add(std::move(entry), result, shown.alpha || shown.pictures.size() > 1);
  return result;
}

void Gallery::look(const std::string& title, Shown shown, const std::string& text) {
  add(begin(title, text), beside(shown), shown.alpha || shown.pictures.size() > 1);
}

Sound Gallery::play(const std::string& title, Sound& sound, const Call& call, const std::string& text) {
  const Sound before = sound;
  const auto restore = [&] { std::memcpy(sound.data(), before.data(), before.size_bytes()); };
  Entry entry = begin(title, text, call.code);
  entry.seconds = measured(call, restore);
  const Sound result = sound;
  if (same(before, result)) idle_.push_back(title);
  restore();
  entry.facts = format("%.1f s, %d Hz, %d bits, %s", static_cast<double>(result.frames()) / result.rate(),
                       result.rate(), int(result.bits()), int(result.channels()) == 1 ? "mono" : "stereo");
  const std::string wav = name(entry, "sounds", ".wav"), svg = name(entry, "plots", ".svg");
  write_wav(out_ / wav, result);
  save(svg, waveform(result));
  entry.body = "<img class=\"wave\" loading=\"lazy\" src=\"" + svg + "\" alt=\"" + escaped(title) +
               "\">\n<audio controls preload=\"none\" src=\"" + wav + "\"></audio>\n";
  add(std::move(entry));
  return result;
}

void Gallery::plot(const std::string& title, const std::function<Plot()>& plot, const Call& call,
                   const std::string& text) {
  Entry entry = begin(title, text, call.code);
  entry.seconds = measured(call, [] {});
  const std::string svg = name(entry, "plots", ".svg");
  save(svg, chart(plot()));
  entry.body = "<img class=\"plot\" src=\"" + svg + "\" alt=\"" + escaped(title) + "\">\n";
  entry.shape = "double";
  add(std::move(entry));
}

void Gallery::table(const std::string& title, const std::vector<std::vector<std::string>>& rows,
                    const std::string& text) {
  Entry entry = begin(title, text);
  const char* cell = "th";
  entry.body = "<div class=\"table\"><table>\n";
  for (const auto& row : rows) {
    entry.body += "<tr>";
    for (const std::string& value : row)
      entry.body += format("<%s>", cell) + escaped(value) + format("</%s>", cell);
    entry.body += "</tr>\n";
    cell = "td";
  }
  entry.body += "</table></div>\n";
  entry.shape = "wide";
  add(std::move(entry));
}

void Gallery::write() const {
  for (size_t i = 0; i < photos_.size(); ++i)
    write_png(out_ / format("pictures/photo%zu.png", i), photos_[i], false);
  save("style.css", contents_of(GALLERY_STYLE));
  save("index.html", page(sections_, photos_.size()));
  save("gallery.json", manifest(sections_));
}

Entry Gallery::begin(const std::string& title, const std::string& text, const char* code) const {
  Entry entry;
  entry.title = title;
  entry.text = text;
  if (*code) entry.code = laid_out(code);
  entry.functions = functions_in(entry.code);
  return entry;
}

std::string Gallery::name(Entry& entry, const char* folder, const char* kind) const {
  for (const Entry& other : sections_.back().entries)
    if (other.title == entry.title) throw std::logic_error("two entries are called " + entry.title);
  entry.files.push_back(std::string(folder) + '/' + slug(sections_.back().title) + '-' + slug(entry.title) +
                        kind);
  return entry.files.back();
}

void Gallery::add(Entry entry, const Picture& picture, bool alpha) {
  const std::string file = name(entry, "pictures", ".png");
  write_png(out_ / file, picture, alpha);
  // Small pictures are enlarged by a whole factor, so that every pixel is seen as a square.
  const int width = picture.width(), height = picture.height();
  const int zoom = std::max(1, std::min(480 / width, 360 / height));
  entry.shape = width <= 480 || width < 3 * height ? "" : width < 5 * height ? "double" : "wide";
  entry.facts = format("%d × %d", width, height) + (zoom > 1 ? format(", shown %d ×", zoom) : "");
  entry.body = "<a href=\"" + file + "\"><img loading=\"lazy\" src=\"" + file + "\" alt=\"" +
               escaped(entry.title) +
               format("\" width=\"%d\" height=\"%d\" class=\"%s%s\"></a>\n", width * zoom, height * zoom,
                      alpha ? "alpha " : "", zoom > 1 ? "pixels" : "");
  add(std::move(entry));
}

void Gallery::save(const std::string& file, const std::string& text) const {
  std::ofstream out(out_ / file, std::ios::binary);
  if (!(out << text).flush()) throw std::runtime_error("cannot write " + (out_ / file).string());
}

}  // namespace gallery
