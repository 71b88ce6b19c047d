#include "media.hpp"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <sndfile.hh>
#include <stdexcept>

namespace gallery {

std::string contents_of(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(in), {});
  if (!in) throw std::runtime_error("cannot read " + path);
  return bytes;
}

Picture load_picture(const std::string& path) {
  const std::string file = contents_of(path);
  const auto size = static_cast<int32_t>(std::min<size_t>(file.size(), INT32_MAX));
  int32_t width = 0, height = 0;
  if (DecodeImageHead(file.data(), size, &width, &height) != 0 || width == 0)
    throw std::runtime_error(path + " is no picture that can be decoded, or larger than 8 MiB");
  // Extents come in hundredths of a millimetre, 96 pixels to an inch.
  const auto pixels = [](int32_t extent) { return static_cast<int>(std::lround(extent * 96 / 2540.0)); };
  Picture picture(pixels(width), pixels(height));
  if (!picture)
    throw std::runtime_error(path + " is wider than the 8191 pixels that an image record can describe");
  DecodeImage(static_cast<ImageRecord*>(picture), file.data(), size);
  const uint32_t* begin = picture.pixels();
  if (std::none_of(begin, begin + picture.count(), [](uint32_t p) { return p >> 24; }))
    BBIClearMask(picture, 0, 0, 0, 255, 0x00FFFFFF);
  return picture;
}

void write_png(const std::string& path, const Picture& picture, bool with_alpha) {
  Picture opaque = picture;
  if (!with_alpha) BBIClearMask(opaque, 0, 0, 0, 255, 0x00FFFFFF);
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width());
  image.height = static_cast<png_uint_32>(picture.height());
  image.format = PNG_FORMAT_BGRA;
  image.flags = PNG_IMAGE_FLAG_FAST;
  if (!png_image_write_to_file(&image, path.c_str(), 0, opaque.pixels(), opaque.pitch(), nullptr))
    throw std::runtime_error("cannot write " + path + ": " + image.message);
}

Sound load_sound(const std::string& path) {
  constexpr int most_seconds = 30, most_channels = 16;
  SndfileHandle file(path);
  const int channels = file.channels(), rate = file.samplerate();
  if (file.error() != SF_ERR_NO_ERROR) throw std::runtime_error(path + ": " + file.strError());
  if (rate < 1000 || rate > 441000)
    throw std::runtime_error(path + " has " + std::to_string(rate) +
                             " frames a second; a wave buffer has 1000 to 441000");
  if (channels > most_channels)
    throw std::runtime_error(path + " has " + std::to_string(channels) + " channels; " +
                             std::to_string(most_channels) + " can be folded to two");
  if (channels > 2)
    std::printf("%s has %d channels: odd ones are folded to the left, even ones to the right\n", path.c_str(),
                channels);
  if (file.frames() > most_seconds * rate)
    std::printf("%s is long: only the first %d seconds are used\n", path.c_str(), most_seconds);

  const sf_count_t used_frames = std::min<sf_count_t>(file.frames(), most_seconds * rate);
  std::vector<double> samples(static_cast<size_t>(used_frames * channels));
  const auto frames = static_cast<int>(file.readf(samples.data(), used_frames));
  if (frames < 4096) throw std::runtime_error(path + " is shorter than the 4096 frames that are shown");
  const int used = std::min(channels, 2);
  Sound exact(TESSARO_BITS_64, used, rate, frames);
  for (int frame = 0; frame < frames; ++frame)
    for (int side = 0; side < used; ++side) {
      double sum = 0;
      for (int c = side; c < channels; c += 2) sum += samples[static_cast<size_t>(frame * channels + c)];
      static_cast<double*>(exact.data())[frame * used + side] = sum / ((channels - side + 1) / 2);
    }
  return exact.as(TESSARO_BITS_16, used);
}

void write_wav(const std::string& path, const Sound& sound) {
  const Sound plain = sound.as(TESSARO_BITS_16, int(sound.channels()));
  SndfileHandle file(path, SFM_WRITE, SF_FORMAT_WAV | SF_FORMAT_PCM_16, int(plain.channels()), plain.rate());
  if (file.writef(static_cast<const short*>(plain.data()), plain.frames()) != plain.frames())
    throw std::runtime_error("cannot write " + path + ": " + file.strError());
}

}  // namespace gallery
