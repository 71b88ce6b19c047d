#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "page.hpp"

namespace gallery {

// A record as a host makes one: the two offsets, the dimensions, the pixels.
struct Block {
  ImageRecord record;
  ImageDims dims;
  uint8_t pad[6];
  uint32_t* pixels() { return reinterpret_cast<uint32_t*>(this + 1); }
  size_t bytes() const { return 4 * static_cast<size_t>(dims.width) * static_cast<size_t>(dims.height); }
};
static_assert(sizeof(Block) == 16);

Picture::Picture(int width, int height, uint32_t colour) {
  // A row's length in bytes has to fit 16 bits.
  width = std::clamp(width, 0, 8191);
  height = std::clamp(height, 0, 32767);
  const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
  block_ = static_cast<Block*>(std::malloc(sizeof(Block) + 4 * count));
  if (!block_) std::abort();
  const auto word = [](int v) { return static_cast<int16_t>(v); };
  *block_ = {{sizeof(ImageRecord), sizeof(Block)}, {word(width), word(height), word(4 * width)}, {}};
  std::fill_n(block_->pixels(), count, colour);
}
Picture::Picture(const Picture& other) : Picture(other.width(), other.height()) {
  std::memcpy(pixels(), other.pixels(), block_->bytes());
}
Picture::Picture(Picture&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
Picture& Picture::operator=(Picture other) noexcept {
  std::swap(block_, other.block_);
  return *this;
}
Picture::~Picture() { std::free(block_); }

ImageRecord* Picture::record() const { return &block_->record; }
int Picture::width() const { return block_->dims.width; }
int Picture::height() const { return block_->dims.height; }
uint32_t* Picture::pixels() const { return block_->pixels(); }

Picture Picture::fitted(int max_width, int max_height) const {
  const double scale =
      std::min({1.0, static_cast<double>(max_width) / width(), static_cast<double>(max_height) / height()});
  if (scale == 1.0) return *this;
  const auto scaled = [scale](int extent) {
    return std::max(1, static_cast<int>(std::lround(extent * scale)));
  };
  Picture small(scaled(width()), scaled(height()));
  BBIExpandBlt(small, record(), 0, 0, small.width(), small.height(), 0, 0, width(), height(), 1.0f);
  return small;
}

Picture Picture::cut(int x, int y, int part_width, int part_height) const {
  Picture part(part_width, part_height);
  BBIBlt(part, record(), 0, 0, part_width, part_height, x, y);
  return part;
}
Picture Picture::middle(int part_width, int part_height) const {
  return cut((width() - part_width) / 2, (height() - part_height) / 2, part_width, part_height);
}

}  // namespace gallery
