#include <algorithm>
#include <cmath>
#include <cstring>

#include "gallery.hpp"

namespace gallery {

Picture::Picture(int width, int height, uint32_t colour) : Image(width, height) {
  BBIBltColor(*this, 0, 0, width, height, 0, 0, colour);
}

Picture Picture::resized(int to_width, int to_height) const {
  Picture to(to_width, to_height);
  BBIExpandBlt(to, *this, 0, 0, to_width, to_height, 0, 0, width(), height(), 1);
  return to;
}
Picture Picture::fitted(int most_width, int most_height) const {
  const double scale =
      std::min(static_cast<double>(most_width) / width(), static_cast<double>(most_height) / height());
  const auto scaled = [scale](int extent) {
    return std::max(1, static_cast<int>(std::lround(extent * scale)));
  };
  return resized(scaled(width()), scaled(height()));
}
Picture Picture::cut(int x, int y, int part_width, int part_height) const {
  Picture part(part_width, part_height);
  BBIBlt(part, *this, 0, 0, part_width, part_height, x, y);
  return part;
}
Picture Picture::middle(int part_width, int part_height) const {
  return cut((width() - part_width) / 2, (height() - part_height) / 2, part_width, part_height);
}

Picture with_alpha(const Picture& of, const std::function<double(double x, double y)>& value) {
  Picture picture = of;
  for (int y = 0; y < of.height(); ++y)
    for (int x = 0; x < of.width(); ++x) {
      const double a = value((x + 0.5) / of.width(), (y + 0.5) / of.height());
      const auto alpha = static_cast<uint32_t>(std::clamp(a * 255, 0.0, 255.0));
      picture.at(x, y) = (picture.at(x, y) & 0xFFFFFF) | alpha << 24;
    }
  return picture;
}

Sound::Sound(const Sound& other) : Sound(other.silence()) {
  std::memcpy(data(), other.data(), other.size_bytes());
}
Sound Sound::as(int to_bits, int to_channels) const {
  Sound to(to_bits, to_channels, rate(), frames());
  waveBlt64(to, *this, 0, 0, frames());
  return to;
}

}  // namespace gallery
