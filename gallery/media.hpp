// What the gallery reads and writes: picture files through the library, PNG and WAV files.
#pragma once

#include <optional>
#include <string>

#include "page.hpp"

namespace gallery {

// Decoded by DecodeImageHead and DecodeImage. Nothing for a file that they do not draw; `why` says what is wrong.
std::optional<Picture> load_picture(const std::string& path, std::string& why);
void write_png(const std::string& path, const Picture& picture, bool with_alpha);

// PCM of 8, 16 or 24 bits.
std::optional<Sound> load_wav(const std::string& path, std::string& why);
void write_wav(const std::string& path, const Sound& sound);

}  // namespace gallery
