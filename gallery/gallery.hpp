// What a section of the gallery works with: pictures and sounds, and the page that it puts its entries on.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tessaro/tessaro.hpp"

namespace gallery {

// An image that can be copied.
class Picture : public tessaro::Image {
 public:
  Picture(int width, int height, uint32_t colour = 0);
  Picture(const Picture& other) : Image(other.clone()) {}
  Picture(Picture&&) = default;
  Picture& operator=(Picture other) {
    Image::operator=(std::move(other));
    return *this;
  }
  // Row after row without gaps, as bytes they are what a codec takes.
  uint32_t* pixels() const { return row(0); }
  int count() const { return width() * height(); }
  uint32_t bytes() const { return 4 * static_cast<uint32_t>(count()); }

  // As large as fits into width x height, by the nearest sample.
  Picture fitted(int width, int height) const;
  // Exactly this size, whatever becomes of the proportions.
  Picture resized(int width, int height) const;
  Picture cut(int x, int y, int width, int height) const;
  Picture middle(int width, int height) const;
};

// Alpha as `value` has it, for x and y from 0 to 1.
Picture with_alpha(const Picture& of, const std::function<double(double x, double y)>& value);

// A sound that can be copied.
class Sound : public tessaro::Sound {
 public:
  Sound(int bits, int channels, int rate, int frames)
      : tessaro::Sound(tessaro::SampleBits(bits), tessaro::Channels(channels), rate, frames) {}
  Sound(const Sound& other);
  Sound(Sound&&) = default;
  Sound& operator=(Sound other) {
    tessaro::Sound::operator=(std::move(other));
    return *this;
  }
  // Silence of the same form.
  Sound silence() const { return Sound(int(bits()), int(channels()), rate(), frames()); }
  // The same in another form.
  Sound as(int bits, int channels) const;
};

// Statements as a host writes them, and the same to be run: what is printed cannot differ from what is done.
struct Call {
  const char* code;
  std::function<void()> run;
};
#define CALL(...)                      \
  ::gallery::Call {                    \
#__VA_ARGS__, [&] { __VA_ARGS__; } \
  }

// The pictures of an entry, side by side.
struct Shown {
  std::vector<Picture*> pictures;
  bool alpha = false;  // over a checkerboard; otherwise alpha is left out
  Shown(Picture& one) : pictures{&one} {}
  Shown(std::initializer_list<Picture*> several) : pictures(several) {}
};
inline Shown over_checks(Shown shown) {
  shown.alpha = true;
  return shown;
}

// A line plot: series over x = 0, 1, 2, ... and dashed lines at the marks.
struct Plot {
  std::string x_axis, y_axis;
  struct Series {
    std::string name;
    std::vector<double> values;
  };
  std::vector<Series> series;
  std::vector<double> marks;
};

struct Entry {
  std::string title, code, text, facts;
  std::string body, shape;  // HTML, and the class of its figure
  std::vector<std::string> functions, files;
  double seconds = -1;  // below 0 where nothing is measured
};
struct Section {
  std::string title, text;
  std::vector<Entry> entries;
};

class Gallery {
 public:
  Gallery(std::filesystem::path out, std::vector<Picture> photos, Sound voice);

  // The user's pictures and sound, or those that come along. Pictures 0, 1 and 2 differ; the sound has 16 bits.
  const Picture& photo(int index) const { return photos_[static_cast<size_t>(index) % photos_.size()]; }
  const Sound& voice() const { return voice_; }

  void section(const std::string& title, const std::string& text);

  // Runs a call a few times, each time on what was handed in, and puts the result on the page with the best time. What
  // was handed in is as before then; the result is returned.
  Picture show(const std::string& title, Shown shown, const Call& call, const std::string& text);
  Sound play(const std::string& title, Sound& sound, const Call& call, const std::string& text);
  // `plot` is asked for when the call has run.
  void plot(const std::string& title, const std::function<Plot()>& plot, const Call& call,
            const std::string& text);
  // What other entries start from.
  void look(const std::string& title, Shown shown, const std::string& text);
  // The first row is the head.
  void table(const std::string& title, const std::vector<std::vector<std::string>>& rows,
             const std::string& text);

  const std::vector<Section>& sections() const { return sections_; }
  // Calls that changed nothing: they were refused.
  const std::vector<std::string>& idle() const { return idle_; }
  // index.html, its style sheet, and gallery.json.
  void write() const;

 private:
  Entry begin(const std::string& title, const std::string& text, const char* code = "") const;
  // A name for a file of the entry, in a folder.
  std::string name(Entry& entry, const char* folder, const char* kind) const;
  void add(Entry entry, const Picture& picture, bool alpha);
  void add(Entry entry) { sections_.back().entries.push_back(std::move(entry)); }
  void save(const std::string& file, const std::string& text) const;

  std::filesystem::path out_;
  std::vector<Picture> photos_;
  Sound voice_;
  std::vector<Section> sections_;
  std::vector<std::string> idle_;
};

}  // namespace gallery
