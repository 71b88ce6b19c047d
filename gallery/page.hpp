// The page that the gallery writes, and what a section may put on it. A subsystem's file defines one function
// `void show_<what>(Gallery&)` and registers it with a static Section; sections appear in order of their key.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tessaro/tessaro.h"

namespace gallery {

// A picture in a host's own memory, with its image record in front of the pixels.
class Picture {
 public:
  Picture(int width, int height, uint32_t colour = 0);
  Picture(const Picture& other);
  Picture(Picture&&) noexcept;
  Picture& operator=(Picture other) noexcept;
  ~Picture();
  ImageRecord* record() const;
  operator ImageRecord*() const { return record(); }
  int width() const;
  int height() const;
  uint32_t* pixels() const;
  // Nearest-sample reduction to fit in width x height, done with the library's own scaled blit.
  Picture fitted(int width, int height) const;
  // The part of this size that begins at (x, y), or in the middle.
  Picture cut(int x, int y, int width, int height) const;
  Picture middle(int width, int height) const;

 private:
  struct Block* block_;
};

struct Sound {
  int rate = 44100;
  int channels = 2;
  std::vector<int16_t> samples;  // interleaved
};

class Gallery {
 public:
  virtual ~Gallery() = default;
  // The user's pictures and sound, or the bundled ones. photo(0) and photo(1) differ.
  virtual const Picture& photo(int index) = 0;
  virtual const Sound& voice() = 0;

  virtual void heading(const std::string& title, const std::string& text) = 0;
  // Runs `call` a few times, each time on the picture as it was handed in, notes the best time and shows the
  // picture. `code` is the call as a host writes it; `notice` is what to look for. An empty `call` shows the
  // picture as it is, without a time. Alpha is shown over a checkerboard when with_alpha is set, otherwise
  // ignored.
  virtual void show(const std::string& title, const std::string& code, const std::string& notice,
                    Picture& picture, const std::function<void()>& call, bool with_alpha = false) = 0;
  // The same for a sound: a plot of the waveform and a player.
  virtual void play(const std::string& title, const std::string& code, const std::string& notice,
                    Sound& sound, const std::function<void()>& call) = 0;
  // A line plot: one or more named series over x = 0, 1, 2, ..., and dashed lines at the marks.
  struct Series {
    std::string name;
    std::vector<double> values;
  };
  virtual void plot(const std::string& title, const std::string& notice, const std::string& x_axis,
                    const std::string& y_axis, const std::vector<Series>& series,
                    const std::vector<double>& marks) = 0;
  // A table; the first row is the head.
  virtual void table(const std::string& title, const std::string& notice,
                     const std::vector<std::vector<std::string>>& rows) = 0;
};

struct Section {
  Section(int key, std::string progress, std::function<void(Gallery&)> show);
};

}  // namespace gallery
