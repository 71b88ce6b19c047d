#include "page.hpp"

#include <ctime>
#include <regex>

#include "text.hpp"

namespace gallery {
namespace {

// Names of functions that are called stand out.
std::string code_block(const std::string& code) {
  static const std::regex called(R"(\b([A-Za-z_]\w*)(?=\())");
  return "<pre><code>" + std::regex_replace(escaped(code), called, "<b>$1</b>") + "</code></pre>\n";
}

std::string figure(const Entry& entry) {
  std::string html = "<figure" + (entry.shape.empty() ? "" : " class=\"" + entry.shape + "\"") + ">\n" +
                     entry.body + "<figcaption>\n<h3>" + escaped(entry.title) + "</h3>\n";
  if (!entry.code.empty()) html += code_block(entry.code);
  html += "<p>" + escaped(entry.text) + "</p>\n";
  if (!entry.facts.empty() || entry.seconds >= 0)
    html += "<p class=\"facts\">" + escaped(entry.facts) +
            (entry.seconds < 0 ? "" : " <b>" + duration(entry.seconds) + "</b>") + "</p>\n";
  return html + "</figcaption>\n</figure>\n";
}

std::string list(const std::vector<std::string>& texts) {
  std::string json;
  for (const std::string& text : texts) json += (json.empty() ? "\"" : ", \"") + quoted(text) + '"';
  return '[' + json + ']';
}

}  // namespace

std::string page(const std::vector<Section>& sections, size_t photos) {
  std::string contents, body;
  size_t entries = 0;
  for (const Section& section : sections) {
    const std::string id = slug(section.title);
    contents += "<li><a href=\"#" + id + "\">" + escaped(section.title) + "</a></li>\n";
    body += "<section id=\"" + id + "\">\n<h2>" + escaped(section.title) + "</h2>\n<p class=\"lead\">" +
            escaped(section.text) + "</p>\n<div class=\"grid\">\n";
    for (const Entry& entry : section.entries) body += figure(entry);
    body += "</div>\n</section>\n";
    entries += section.entries.size();
  }
  std::string pictures;
  for (size_t i = 0; i < photos; ++i)
    pictures += format("<img src=\"pictures/photo%zu.png\" alt=\"photograph %zu\">\n", i, i);
  char day[32];
  const std::time_t now = std::time(nullptr);
  std::strftime(day, sizeof day, "%Y-%m-%d", std::localtime(&now));

  return R"html(<!doctype html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>tessaro gallery</title>
<link rel="stylesheet" href="style.css">
</head>
<body>
<nav>
<a class="home" href="#top">tessaro</a>
<ol>
)html" + contents +
         R"html(</ol>
</nav>
<main id="top">
<header>
<h1>tessaro</h1>
<p class="lead">What the library's functions do, each shown on real material: the result, the calls that made it,
what to look for, and the time they take (the best of a few runs). Pictures open at full size.</p>
<div class="photos">
)html" + pictures +
         "</div>\n<p class=\"facts\">" + format("%zu entries · made on %s", entries, day) +
         "</p>\n</header>\n" + body + "</main>\n</body>\n</html>\n";
}

std::string manifest(const std::vector<Section>& sections) {
  std::string json;
  for (const Section& section : sections)
    for (const Entry& entry : section.entries)
      json +=
          (json.empty() ? "[\n{" : ",\n{") + ("\"title\": \"" + quoted(entry.title)) + "\", \"section\": \"" +
          quoted(section.title) + "\", \"functions\": " + list(entry.functions) + ", \"call\": \"" +
          quoted(entry.code) + "\", \"files\": " + list(entry.files) + ", \"text\": \"" + quoted(entry.text) +
          "\", \"milliseconds\": " + (entry.seconds < 0 ? "null" : format("%.4g", entry.seconds * 1e3)) + "}";
  return json + "\n]\n";
}

}  // namespace gallery
