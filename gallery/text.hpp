// Small things about text.
#pragma once

#include <cstdio>
#include <string>

namespace gallery {

template <class... Args>
std::string format(const char* pattern, Args... args) {
  char text[256];
  std::snprintf(text, sizeof text, pattern, args...);
  return text;
}

// For HTML and SVG.
std::string escaped(const std::string& text);
// Between the quotes of JSON.
std::string quoted(const std::string& text);
// What may stand in a file's name: "Don't, 8 times" becomes "don-t-8-times".
std::string slug(const std::string& text);
std::string duration(double seconds);
// Code that the preprocessor has put on one line, with a line for each statement.
std::string laid_out(const std::string& code);

}  // namespace gallery
