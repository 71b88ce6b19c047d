// What the gallery reads and writes: picture files through the library, PNG files by libpng, sound files by libsndfile.
// Whatever fails is thrown as one line that tells the user what is wrong.
#pragma once

#include <string>

#include "gallery.hpp"

namespace gallery {

// Any picture that DecodeImage draws, made opaque if it has no alpha.
Picture load_picture(const std::string& path);
void write_png(const std::string& path, const Picture& picture, bool with_alpha);

// Any sound that libsndfile reads, as 16 bits; more than two channels are folded to two.
Sound load_sound(const std::string& path);
// As a WAV file of 16 bits.
void write_wav(const std::string& path, const Sound& sound);

std::string contents_of(const std::string& path);

}  // namespace gallery
