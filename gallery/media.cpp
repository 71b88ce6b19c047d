#include "media.hpp"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

namespace gallery {
namespace {

std::optional<std::string> contents(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return {};
  return std::string(std::istreambuf_iterator<char>(in), {});
}

uint32_t little_endian(const std::string& bytes, size_t at, int count) {
  uint32_t v = 0;
  for (int i = 0; i < count; ++i)
    v |= static_cast<uint32_t>(static_cast<uint8_t>(bytes[at + static_cast<size_t>(i)])) << 8 * i;
  return v;
}

}  // namespace

std::optional<Picture> load_picture(const std::string& path, std::string& why) {
  const auto file = contents(path);
  if (!file) {
    why = "cannot read " + path;
    return {};
  }
  int32_t width = 0, height = 0;
  const auto size = static_cast<int32_t>(std::min<size_t>(file->size(), INT32_MAX));
  if (DecodeImageHead(file->data(), size, &width, &height) || width == 0) {
    why = path + " is no picture that can be decoded, or larger than 8 MiB";
    return {};
  }
  // Extents come in hundredths of a millimetre, 96 pixels to an inch.
  const long columns = std::lround(width * 96 / 2540.0), rows = std::lround(height * 96 / 2540.0);
  if (columns > 8191) {
    why = path + " is wider than the 8191 pixels that an image record can describe";
    return {};
  }
  Picture picture(static_cast<int>(columns), static_cast<int>(rows));
  DecodeImage(picture.record(), file->data(), size);
  return picture;
}

void write_png(const std::string& path, const Picture& picture, bool with_alpha) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (!file) return;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  if (info && !setjmp(png_jmpbuf(png))) {
    png_init_io(png, file);
    png_set_compression_level(png, 4);
    png_set_IHDR(png, info, static_cast<png_uint_32>(picture.width()),
                 static_cast<png_uint_32>(picture.height()), 8,
                 with_alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_bgr(png);
    if (!with_alpha) png_set_filler(png, 0, PNG_FILLER_AFTER);
    for (int y = 0; y < picture.height(); ++y)
      png_write_row(png, reinterpret_cast<png_const_bytep>(picture.pixels() + y * picture.width()));
    png_write_end(png, info);
  }
  png_destroy_write_struct(&png, &info);
  std::fclose(file);
}

std::optional<Sound> load_wav(const std::string& path, std::string& why) {
  const auto file = contents(path);
  if (!file) {
    why = "cannot read " + path;
    return {};
  }
  why = path + " is no WAV file of 8, 16 or 24-bit PCM";
  const std::string& bytes = *file;
  if (bytes.size() < 12 || bytes.compare(0, 4, "RIFF") != 0 || bytes.compare(8, 4, "WAVE") != 0) return {};
  Sound sound;
  size_t bits = 0;
  for (size_t at = 12; at + 8 <= bytes.size();) {
    const std::string name = bytes.substr(at, 4);
    const size_t size = std::min<size_t>(little_endian(bytes, at + 4, 4), bytes.size() - at - 8);
    const size_t body = at + 8;
    if (name == "fmt " && size >= 16) {
      uint32_t tag = little_endian(bytes, body, 2);
      if (tag == 0xFFFE && size >= 26) tag = little_endian(bytes, body + 24, 2);  // extensible: the real tag
      sound.channels = static_cast<int>(little_endian(bytes, body + 2, 2));
      sound.rate = static_cast<int>(little_endian(bytes, body + 4, 4));
      bits = little_endian(bytes, body + 14, 2);
      if (tag != 1 || (bits != 8 && bits != 16 && bits != 24) || sound.channels < 1 || sound.rate < 1)
        return {};
    } else if (name == "data" && bits) {
      const size_t width = bits / 8;
      for (size_t i = body; i + width <= body + size; i += width) {
        // 8 bits are unsigned; of 24 the upper 16 are kept.
        const uint32_t v =
            width == 1 ? (little_endian(bytes, i, 1) ^ 0x80) << 8 : little_endian(bytes, i + width - 2, 2);
        sound.samples.push_back(static_cast<int16_t>(v));
      }
      sound.samples.resize(sound.samples.size() / static_cast<size_t>(sound.channels) *
                           static_cast<size_t>(sound.channels));
      if (sound.samples.empty()) return {};
      return sound;
    }
    at = body + size + size % 2;
  }
  return {};
}

void write_wav(const std::string& path, const Sound& sound) {
  std::string head;
  const auto put = [&head](size_t value, int count) {
    for (int i = 0; i < count; ++i) head += static_cast<char>(value >> 8 * i);
  };
  const size_t bytes = 2 * sound.samples.size(), frame = 2 * static_cast<size_t>(sound.channels);
  head = "RIFF";
  put(36 + bytes, 4);
  head += "WAVEfmt ";
  put(16, 4);
  put(1, 2);
  put(static_cast<size_t>(sound.channels), 2);
  put(static_cast<size_t>(sound.rate), 4);
  put(static_cast<size_t>(sound.rate) * frame, 4);
  put(frame, 2);
  put(16, 2);
  head += "data";
  put(bytes, 4);
  std::ofstream out(path, std::ios::binary);
  out << head;
  out.write(reinterpret_cast<const char*>(sound.samples.data()), static_cast<std::streamsize>(bytes));
}

}  // namespace gallery
