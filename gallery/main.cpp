// The program: its arguments, what the entries are made from, and what became of them.
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "media.hpp"
#include "sections.hpp"
#include "text.hpp"

namespace gallery {
namespace {

constexpr char usage[] = "usage: tessaro_gallery [--out FOLDER] [picture] [sound]\n";

bool is_picture(const std::string& path) {
  const std::string file = contents_of(path);
  int32_t width = 0, height = 0;
  DecodeImageHead(file.data(), static_cast<int32_t>(std::min<size_t>(file.size(), INT32_MAX)), &width,
                  &height);
  return width != 0;
}

int run(const std::vector<std::string>& arguments) {
  const std::filesystem::path media = GALLERY_MEDIA;
  std::filesystem::path out = "out/gallery";
  std::string sound = media / "voice.wav";
  std::vector<std::string> pictures{media / "coffee.jpg", media / "rocket.jpg", media / "cat.png"};
  for (size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--out" && i + 1 < arguments.size())
      out = arguments[++i];
    else if (arguments[i].rfind("-", 0) == 0)
      throw std::invalid_argument(usage);
    else if (is_picture(arguments[i]))
      pictures.insert(pictures.begin(), arguments[i]);
    else
      sound = arguments[i];
  }

  std::vector<Picture> photos;
  for (const std::string& file : pictures) {
    photos.push_back(load_picture(file).fitted(640, 480));
    if (std::min(photos.back().width(), photos.back().height()) < 96)
      throw std::runtime_error(file + " is too narrow to be shown: less than 96 of 640 x 480 pixels");
  }
  Gallery gallery(out, photos, load_sound(sound));
  size_t entries = 0;
  for (const auto show : sections) {
    show(gallery);
    const Section& section = gallery.sections().back();
    std::printf("%-40s %3zu entries\n", section.title.c_str(), section.entries.size());
    std::fflush(stdout);
    entries += section.entries.size();
  }
  gallery.write();
  for (const std::string& title : gallery.idle())
    std::fprintf(stderr, "\"%s\" changed nothing\n", title.c_str());
  std::printf("%zu entries: open %s\n", entries,
              std::filesystem::absolute(out / "index.html").lexically_normal().c_str());
  return 0;
}

}  // namespace
}  // namespace gallery

int main(int argc, char** argv) {
  try {
    return gallery::run({argv + 1, argv + argc});
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
}
