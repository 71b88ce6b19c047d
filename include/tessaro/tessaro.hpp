// C++17 over the C functions: images and sounds that own their memory, streams that size themselves, scoped
// constants.
//
// `tessaro::Image` and `tessaro::Sound` are accepted wherever a function takes a record, so that a call costs
// what it costs in C:
//
//   tessaro::Image screen(320, 200), sprite(32, 32);
//   BBIBltBlend(screen, sprite, 10, 10, 32, 32, 0, 0, 1);
//
// Nothing here throws by itself; an image or sound that cannot be made is empty, and false.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "tessaro/constants.hpp"
#include "tessaro/tessaro.h"

namespace tessaro {

/// Bytes that somebody else holds; made from anything with data() and size(), such as std::vector,
/// std::string or std::span.
struct Bytes {
  const void* data = nullptr;
  size_t size = 0;

  Bytes() = default;
  Bytes(const void* bytes, size_t count) : data(bytes), size(count) {}
  template <class Container, class = decltype(std::declval<const Container&>().data())>
  Bytes(const Container& container)
      : data(container.data()), size(container.size() * sizeof(*container.data())) {}
};

/// An image record that lies in memory of the host, wherever it came from.
class ImageView {
 public:
  ImageView() = default;
  explicit ImageView(ImageRecord* record) : record_(record) {}

  operator ImageRecord*() const { return record_; }
  explicit operator bool() const { return record_ != nullptr; }

  int width() const { return dims().width; }
  int height() const { return dims().height; }
  /// Bytes from one row to the next.
  int pitch() const { return dims().pitch; }
  /// A row, 0 at the top: pixels 0xAARRGGBB. Unaligned in images that were made elsewhere, perhaps.
  uint32_t* row(int y) const {
    return reinterpret_cast<uint32_t*>(base() + record_->pixel_offset + ptrdiff_t{y} * pitch());
  }
  uint32_t& at(int x, int y) const { return row(y)[x]; }

 private:
  char* base() const { return reinterpret_cast<char*>(record_); }
  ImageDims dims() const {
    ImageDims dims{};
    if (record_ != nullptr) std::memcpy(&dims, base() + record_->dims_offset, sizeof dims);
    return dims;
  }

  ImageRecord* record_ = nullptr;
};

/// An image that owns its memory: record, dimensions and pixels in one block, all pixels 0 at first.
class Image : public ImageView {
 public:
  /// The most pixels of a row: its bytes have to fit 16 bits.
  static constexpr int max_width = 8191, max_height = 32767;

  Image() = default;
  /// Empty where a size is below 1 or above the most, or memory is short.
  Image(int width, int height) : Image(block(width, height), width, height) {}
  /// A copy of a host's pixels 0xAARRGGBB, whose rows lie `stride` bytes apart.
  Image(int width, int height, const void* pixels, ptrdiff_t stride) : Image(width, height) {
    for (int y = 0; y < this->height(); ++y)
      std::memcpy(row(y), static_cast<const char*>(pixels) + y * stride,
                  size_t{4} * static_cast<size_t>(width));
  }
  Image(Image&& other) noexcept
      : ImageView(std::exchange(static_cast<ImageView&>(other), {})), memory_(std::move(other.memory_)) {}
  Image& operator=(Image&& other) noexcept {
    ImageView::operator=(std::exchange(static_cast<ImageView&>(other), {}));
    memory_ = std::move(other.memory_);
    return *this;
  }
  Image clone() const { return *this ? Image(width(), height(), row(0), pitch()) : Image(); }

 private:
  static constexpr size_t head = 64;  // pixels begin a line of the cache behind the record
  struct alignas(64) Line {
    unsigned char bytes[64];
  };

  static Line* block(int width, int height) {
    if (width < 1 || height < 1 || width > max_width || height > max_height) return nullptr;
    const size_t bytes = head + size_t{4} * static_cast<size_t>(width) * static_cast<size_t>(height);
    return new (std::nothrow) Line[(bytes + sizeof(Line) - 1) / sizeof(Line)]();
  }
  Image(Line* lines, int width, int height)
      : ImageView(reinterpret_cast<ImageRecord*>(lines)), memory_(lines) {
    if (lines == nullptr) return;
    const ImageRecord record = {sizeof(ImageRecord), static_cast<int16_t>(head)};
    const ImageDims dims = {static_cast<int16_t>(width), static_cast<int16_t>(height),
                            static_cast<int16_t>(4 * width)};
    std::memcpy(lines->bytes, &record, sizeof record);
    std::memcpy(lines->bytes + sizeof record, &dims, sizeof dims);
  }

  std::unique_ptr<Line[]> memory_;
};

/// Samples that lie in memory of the host.
class SoundView {
 public:
  SoundView() = default;
  SoundView(SampleBits bits, Channels channels, int rate, int frames, void* data)
      : buffer_{waveFormatEnc(static_cast<int32_t>(bits), static_cast<int32_t>(channels), rate), frames,
                data} {}

  operator const WaveBuffer*() const { return &buffer_; }
  explicit operator bool() const { return buffer_.data != nullptr && buffer_.format != 0; }

  SampleBits bits() const { return static_cast<SampleBits>(buffer_.format & 248); }
  Channels channels() const { return static_cast<Channels>(buffer_.format & 7); }
  int rate() const { return buffer_.format >> 8; }
  int frames() const { return buffer_.count; }
  void* data() const { return buffer_.data; }
  size_t size_bytes() const {
    return static_cast<size_t>(buffer_.count < 0 ? 0 : buffer_.count) *
           static_cast<size_t>((buffer_.format & 248) / 8 * (buffer_.format & 7));
  }

 private:
  WaveBuffer buffer_{};
};

/// A sound that owns its samples, silence at first.
class Sound : public SoundView {
 public:
  Sound() = default;
  /// Empty where bits or channels are none that are known, the number of frames is negative, or memory is
  /// short.
  Sound(SampleBits bits, Channels channels, int rate, int frames)
      : Sound(std::unique_ptr<double[]>(block(bits, channels, frames)), bits, channels, rate, frames) {}
  Sound(Sound&& other) noexcept
      : SoundView(std::exchange(static_cast<SoundView&>(other), {})), memory_(std::move(other.memory_)) {}
  Sound& operator=(Sound&& other) noexcept {
    SoundView::operator=(std::exchange(static_cast<SoundView&>(other), {}));
    memory_ = std::move(other.memory_);
    return *this;
  }

 private:
  static double* block(SampleBits bits, Channels channels, int frames) {
    if (frames < 0 || waveFormatEnc(static_cast<int32_t>(bits), static_cast<int32_t>(channels), 44100) == 0)
      return nullptr;
    const size_t bytes =
        static_cast<size_t>(frames) * static_cast<size_t>(bits) / 8 * static_cast<size_t>(channels);
    return new (std::nothrow) double[bytes / sizeof(double) + 1]();
  }
  Sound(std::unique_ptr<double[]> memory, SampleBits bits, Channels channels, int rate, int frames)
      : SoundView(memory ? SoundView(bits, channels, rate, frames, memory.get()) : SoundView()),
        memory_(std::move(memory)) {
    if (memory_ != nullptr) waveClear64(*this, 0, frames);
  }

  std::unique_ptr<double[]> memory_;
};

/// The stream of a source in a format; nothing where the data does not compress, and the source is to be kept
/// instead.
inline std::optional<std::vector<uint8_t>> encode(Codec codec, Bytes source) {
  if (source.size > 0x7FFFFFFF) return std::nullopt;
  const auto length = static_cast<uint32_t>(source.size);
  std::vector<uint8_t> stream(source.size + source.size / 32 + 4);  // what the largest of them needs
  uint32_t written = 0;
  if (functions_of(codec).encode(source.data, stream.data(), length, &written) != 0) return std::nullopt;
  stream.resize(written);
  return stream;
}

/// The source of a stream, whose length the host has kept; nothing where the stream is damaged.
inline std::optional<std::vector<uint8_t>> decode(Codec codec, Bytes stream, size_t length) {
  if (stream.size > 0xFFFFFFFF || length > 0x7FFFFFFF) return std::nullopt;
  std::vector<uint8_t> source(length);
  if (length != 0 &&
      functions_of(codec).decode(stream.data, source.data(), static_cast<uint32_t>(stream.size),
                                 static_cast<uint32_t>(length)) != 0)
    return std::nullopt;
  return source;
}

}  // namespace tessaro
