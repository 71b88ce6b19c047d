// What is made of the entries: a page for people, and a list for programs.
#pragma once

#include <string>
#include <vector>

#include "gallery.hpp"

namespace gallery {

std::string page(const std::vector<Section>& sections, size_t photos);
// [{"title", "section", "functions", "call", "files", "text", "milliseconds"}], the last one null where nothing is
// measured.
std::string manifest(const std::vector<Section>& sections);

}  // namespace gallery
