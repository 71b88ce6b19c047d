// Plots, as SVG files of their own. Their colours are legible on light and on dark pages.
#pragma once

#include <string>

#include "gallery.hpp"

namespace gallery {

// Lowest and highest sample of each column, one band a channel.
std::string waveform(const Sound& sound);
std::string chart(const Plot& plot);

}  // namespace gallery
