#include "text.hpp"

#include <cctype>

namespace gallery {

std::string escaped(const std::string& text) {
  std::string out;
  for (const char c : text)
    if (c == '&')
      out += "&amp;";
    else if (c == '<')
      out += "&lt;";
    else if (c == '>')
      out += "&gt;";
    else if (c == '"')
      out += "&quot;";
    else
      out += c;
  return out;
}

std::string quoted(const std::string& text) {
  std::string out;
  for (const char c : text)
    if (c == '"' || c == '\\')
      out += {'\\', c};
    else if (c == '\n')
      out += "\\n";
    else
      out += c;
  return out;
}

std::string slug(const std::string& text) {
  std::string out;
  for (const char c : text)
    if (std::isalnum(static_cast<unsigned char>(c)))
      out += static_cast<char>(std::tolower(c));
    else if (!out.empty() && out.back() != '-')
      out += '-';
  while (!out.empty() && out.back() == '-') out.pop_back();
  return out;
}

std::string duration(double seconds) {
  return seconds < 1e-3 ? format(seconds < 1e-5 ? "%.1f µs" : "%.0f µs", seconds * 1e6)
         : seconds < 1  ? format(seconds < 1e-2 ? "%.1f ms" : "%.0f ms", seconds * 1e3)
                        : format("%.1f s", seconds);
}

std::string laid_out(const std::string& code) {
  std::string out;
  int parentheses = 0, indent = 0;
  const auto new_line = [&] {
    while (!out.empty() && out.back() == ' ') out.pop_back();
    out += '\n' + std::string(static_cast<size_t>(2 * indent), ' ');
  };
  bool line_ended = false;
  for (const char c : code) {
    if (c == ' ' && (line_ended || (!out.empty() && out.back() == '('))) continue;
    if (c == '}') --indent;
    if (line_ended) new_line();
    line_ended = false;
    parentheses += c == '(' ? 1 : c == ')' ? -1 : 0;
    indent += c == '{';
    out += c;
    line_ended = parentheses == 0 && (c == ';' || c == '{' || c == '}');
  }
  if (!out.empty() && out.back() != ';' && out.back() != '}') out += ';';
  return out;
}

}  // namespace gallery
