// Pictures through the platform's loader: the same expectations on every target.
#include <algorithm>
#include <functional>

#include "picture_files.hpp"
#include "support/images.hpp"

#ifdef _WIN32
#include <windows.h>
//
#include <ole2.h>
#endif

namespace tessaro::test {
namespace {

using Bytes = std::vector<uint8_t>;

Bytes bytes_of(const char* hex) {
  Bytes bytes;
  for (; *hex; hex += 2) bytes.push_back(static_cast<uint8_t>(std::stoi(std::string(hex, 2), nullptr, 16)));
  return bytes;
}

constexpr uint32_t untouched = 0x12345678;

// A device context of w x h pixels, filled with `untouched`.
#ifdef _WIN32
class Screen {
 public:
  Screen(int32_t w, int32_t h) : width_(w), height_(h) {
    OleInitialize(nullptr);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), w, -h, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    bitmap_ = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    pixels_ = static_cast<uint32_t*>(pixels);
    std::fill_n(pixels_, w * h, untouched);
    context_ = CreateCompatibleDC(nullptr);
    SelectObject(context_, bitmap_);
  }
  ~Screen() {
    DeleteDC(context_);
    DeleteObject(bitmap_);
  }
  int32_t draw(const Bytes& file) {
    const int32_t result = DecodeImage(context_, file.data(), static_cast<int32_t>(file.size()));
    GdiFlush();
    return result;
  }
  uint32_t get(int32_t x, int32_t y) { return pixels_[y * width_ + x]; }

 private:
  int32_t width_, height_;
  HBITMAP bitmap_;
  HDC context_;
  uint32_t* pixels_;
};
constexpr uint32_t compared = 0xFFFFFF;  // GDI leaves alpha to chance
#else
class Screen {
 public:
  Screen(int32_t w, int32_t h) : image_(w, h) { image_.fill(untouched); }
  int32_t draw(const Bytes& file) {
    return DecodeImage(static_cast<ImageRecord*>(image_), file.data(), static_cast<int32_t>(file.size()));
  }
  uint32_t get(int32_t x, int32_t y) { return image_.get(x, y); }

 private:
  Image image_;
};
constexpr uint32_t compared = 0xFFFFFFFF;
#endif

struct Extent {
  int32_t status = -1, width = -1, height = -1;
  friend bool operator==(const Extent&, const Extent&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Extent& e) {
    return out << "status " << e.status << ", " << e.width << " x " << e.height;
  }
};
Extent extent(const Bytes& file) {
  Extent e;
  e.status = DecodeImageHead(file.data(), static_cast<int32_t>(file.size()), &e.width, &e.height);
  return e;
}
int32_t himetric(int32_t pixels) { return static_cast<int32_t>(pixels * 2540.0 / 96 + 0.5); }

void put(Bytes& to, uint32_t value, int count) {
  for (int i = 0; i < count; ++i) to.push_back(static_cast<uint8_t>(value >> 8 * i));
}

// A bitmap file; pixel(x, y) is an index or a value of `bits` bits. Negative heights store rows from the top.
Bytes bitmap_file(int32_t bits, int32_t w, int32_t stored_h,
                  const std::function<uint32_t(int32_t, int32_t)>& pixel,
                  const std::vector<uint32_t>& palette, const std::vector<uint32_t>& masks = {}) {
  const int32_t h = std::abs(stored_h);
  const size_t step = static_cast<size_t>((w * bits + 31) / 32 * 4),
               head = 54 + 4 * (palette.size() + masks.size());
  Bytes file{'B', 'M'};
  put(file, static_cast<uint32_t>(head + step * static_cast<size_t>(h)), 4);
  put(file, 0, 4);
  put(file, static_cast<uint32_t>(head), 4);
  put(file, 40, 4);
  put(file, static_cast<uint32_t>(w), 4);
  put(file, static_cast<uint32_t>(stored_h), 4);
  put(file, 1, 2);
  put(file, static_cast<uint32_t>(bits), 2);
  put(file, masks.empty() ? 0 : 3, 4);
  for (int i = 0; i < 3; ++i) put(file, 0, 4);
  put(file, static_cast<uint32_t>(palette.size()), 4);
  put(file, 0, 4);
  for (const uint32_t v : masks) put(file, v, 4);
  for (const uint32_t v : palette) put(file, v, 4);
  for (int32_t row = 0; row < h; ++row) {
    const int32_t y = stored_h < 0 ? row : h - 1 - row;
    Bytes line(step);
    for (int32_t x = 0; x < w; ++x)
      for (int32_t b = 0; b < bits; ++b) {
        // Below a byte the leftmost pixel is in the highest bits; above it bytes go upwards.
        const int32_t at = bits < 8 ? x * bits + (bits - 1 - b) : x * bits + b;
        const int32_t bit = bits < 8 ? 7 - at % 8 : at % 8;
        line[static_cast<size_t>(at / 8)] =
            static_cast<uint8_t>(line[static_cast<size_t>(at / 8)] | (pixel(x, y) >> b & 1) << bit);
      }
    file.insert(file.end(), line.begin(), line.end());
  }
  return file;
}

uint32_t colour(int32_t x, int32_t y) {
  return static_cast<uint32_t>(x * 0x1F0B05 + y * 0x030741 + 0x203040) & 0xFFFFFF;
}

TEST(Picture, RefusesSizesAndClearsTheExtent) {
  const Bytes noise(64, 0x5A);
  for (const int32_t size : {63, 0, -1, INT32_MIN, INT32_MAX, (8 << 20) + 1}) {
    Extent e{0, 7, 7};
    e.status = DecodeImageHead(noise.data(), size, &e.width, &e.height);
    EXPECT_EQ(e, (Extent{1, 0, 0})) << size;
    EXPECT_EQ(DecodeImage(nullptr, noise.data(), size), 1) << size;
  }
  EXPECT_EQ(extent(noise), (Extent{0, 0, 0}));
  EXPECT_EQ(extent(Bytes(8 << 20, 0)), (Extent{0, 0, 0}));
}

TEST(Picture, ReadsBitmapFilesOfEveryDepthInBothOrders) {
  for (const int32_t bits : {1, 4, 8, 24, 32}) {
    for (const int32_t h : {8, -8}) {
      std::vector<uint32_t> palette;
      const int32_t colours = bits <= 8 ? 1 << bits : 0;
      for (int32_t i = 0; i < colours; ++i) palette.push_back(colour(i, i / 3));
      const auto index = [&](int32_t x, int32_t y) {
        return static_cast<uint32_t>((x * 5 + y * 3) % colours);
      };
      const auto pixel = [&](int32_t x, int32_t y) {
        return bits <= 8 ? index(x, y) : colour(x, y) | 0xAB000000;
      };
      const Bytes file = bitmap_file(bits, 13, h, pixel, palette);
      EXPECT_EQ(extent(file), (Extent{0, himetric(13), 212})) << bits << " bits, height " << h;
      Screen screen(15, 9);
      EXPECT_EQ(screen.draw(file), 0);
      for (int32_t y = 0; y < 9; ++y)
        for (int32_t x = 0; x < 15; ++x) {
          uint32_t want = untouched;
          if (x < 13 && y < 8)
            want = bits <= 8 ? palette[index(x, y)] : colour(x, y) | (bits == 32 ? 0xAB000000 : 0);
          ASSERT_EQ(screen.get(x, y) & compared, want & compared)
              << bits << " bits, height " << h << " at " << x << ", " << y;
        }
    }
  }
}

// The extents change places and are taken as pixels: 1 pixel is 26 units, so of a row only 26 columns are drawn.
TEST(Picture, DrawsTheCrossedRectangle) {
  const auto pixel = [](int32_t x, int32_t y) { return colour(x, y); };
  const Bytes row = bitmap_file(24, 60, 1, pixel, {}), column = bitmap_file(24, 1, 60, pixel, {});
  Screen wide(60, 1), high(1, 60), narrow(3, 2);
  EXPECT_EQ(wide.draw(row), 0);
  EXPECT_EQ(high.draw(column), 0);
  EXPECT_EQ(narrow.draw(row), 0);
  for (int32_t i = 0; i < 60; ++i) {
    EXPECT_EQ(wide.get(i, 0) & compared, (i < 26 ? colour(i, 0) : untouched) & compared) << i;
    EXPECT_EQ(high.get(0, i) & compared, (i < 26 ? colour(0, i) : untouched) & compared) << i;
  }
  EXPECT_EQ(narrow.get(2, 0) & compared, colour(2, 0));
  EXPECT_EQ(narrow.get(0, 1), untouched);
}

TEST(Picture, ReadsJpeg) {
  for (const char* hex : {jpeg_baseline, jpeg_progressive}) {
    const Bytes file = bytes_of(hex);
    EXPECT_EQ(extent(file), (Extent{0, himetric(16), himetric(24)}));
    Screen screen(16, 24);
    EXPECT_EQ(screen.draw(file), 0);
    for (const int32_t x : {3, 12})
      for (const int32_t y : {3, 12, 20}) {
        const uint32_t got = screen.get(x, y) & compared;
        EXPECT_NEAR(static_cast<int>(got >> 16), x < 8 ? 200 : 40, 12) << x << ", " << y;
        EXPECT_NEAR(static_cast<int>(got >> 8 & 255), y < 8 ? 180 : y < 16 ? 90 : 20, 12) << x << ", " << y;
        EXPECT_NEAR(static_cast<int>(got & 255), 60, 12) << x << ", " << y;
      }
  }
}

#ifndef _WIN32  // what follows is known about the library's own loader only

uint32_t indexed(int32_t index) {
  constexpr uint32_t colours[] = {0xFF0000, 0x00FF00, 0x0000FF, 0x090807};
  return colours[index];
}

TEST(Picture, ReadsPngAndGifWithTheirAlpha) {
  const struct {
    const char* hex;
    int32_t w, h;
    uint32_t (*pixel)(int32_t x, int32_t y);
  } cases[] = {
      {png_rgb, 6, 5,
       [](int32_t x, int32_t y) { return static_cast<uint32_t>(x << 20 | y << 13 | (255 - 8 * x - 8 * y)); }},
      {png_rgba, 6, 5,
       [](int32_t x, int32_t y) {
         return static_cast<uint32_t>(40 * x + y) << 24 |
                static_cast<uint32_t>(x << 20 | y << 13 | (255 - 8 * x - 8 * y));
       }},
      {png_palette, 9, 3,
       [](int32_t x, int32_t y) {
         constexpr uint32_t alpha[] = {0, 0x80000000, 0xFF000000, 0xFF000000};
         const int32_t index = x < 8 ? (x + y) % 4 : y;
         return indexed(index) | alpha[index];
       }},
      {gif_transparent, 9, 7,
       [](int32_t x, int32_t y) { return indexed((x + y) % 4) | ((x + y) % 4 == 3 ? 0 : 0xFF000000); }},
      {gif_interlaced, 9, 7, [](int32_t x, int32_t y) { return indexed((x + y) % 4); }},
  };
  for (const auto& c : cases) {
    const Bytes file = bytes_of(c.hex);
    EXPECT_EQ(extent(file), (Extent{0, himetric(c.w), himetric(c.h)}));
    Screen screen(c.w + 1, c.h);
    EXPECT_EQ(screen.draw(file), 0);
    for (int32_t y = 0; y < c.h; ++y) {
      for (int32_t x = 0; x < c.w; ++x)
        ASSERT_EQ(screen.get(x, y), c.pixel(x, y)) << &c - cases << " at " << x << ", " << y;
      EXPECT_EQ(screen.get(c.w, y), untouched);
    }
  }
}

TEST(Picture, StretchesMaskedChannels) {
  const Bytes file =
      bitmap_file(16, 32, 2, [](int32_t x, int32_t) { return static_cast<uint32_t>(x << 11 | x << 6 | x); },
                  {}, {0xF800, 0x07E0, 0x001F});
  Screen screen(32, 2);
  EXPECT_EQ(screen.draw(file), 0);
  for (int32_t x = 0; x < 32; ++x)
    EXPECT_EQ(screen.get(x, 1), static_cast<uint32_t>((x * 510 + 31) / 62 << 16 | (x * 1020 + 63) / 126 << 8 |
                                                      (x * 510 + 31) / 62));
}

TEST(Picture, RowsThatACutFileLacksAreNotDrawn) {
  const auto pixel = [](int32_t x, int32_t y) { return colour(x, y); };
  for (const int32_t h : {10, -10}) {
    Bytes file = bitmap_file(24, 8, h, pixel, {});
    file.resize(file.size() - 3 * 24 - 1);  // four rows are gone or incomplete
    Screen screen(8, 10);
    EXPECT_EQ(screen.draw(file), 0);
    for (int32_t y = 0; y < 10; ++y)
      EXPECT_EQ(screen.get(2, y), (h < 0 ? y < 6 : y >= 4) ? colour(2, y) : untouched) << h << ", " << y;
  }
  // Without its end marker a JPEG is whole; without the data of its last blocks their rows are missing.
  for (const size_t cut : {size_t{2}, size_t{14}}) {
    Bytes jpeg = bytes_of(jpeg_baseline);
    jpeg.resize(jpeg.size() - cut);
    Screen screen(16, 24);
    EXPECT_EQ(screen.draw(jpeg), 0);
    EXPECT_NE(screen.get(3, 12), untouched) << cut;
    EXPECT_EQ(screen.get(3, 23) == untouched, cut == 14) << cut;
  }
}

// Every cut and every damaged byte of every kind of file: the status is 0, and nothing is written outside the
// destination, whose guards and the sanitizers watch.
TEST(Picture, SurvivesDamage) {
  std::vector<Bytes> files;
  for (const char* hex :
       {jpeg_baseline, jpeg_progressive, png_rgb, png_rgba, png_palette, gif_transparent, gif_interlaced})
    files.push_back(bytes_of(hex));
  files.push_back(bitmap_file(
      4, 9, 5, [](int32_t x, int32_t y) { return static_cast<uint32_t>(x + y) % 16; },
      std::vector<uint32_t>(16, 0x405060)));
  files.push_back(bitmap_file(32, 5, -3, colour, {}, {0xFF0000, 0xFF00, 0xFF}));
  Random random(7);
  for (const Bytes& file : files) {
    Image image(7, 9);
    const auto draw = [&](const Bytes& damaged) {
      // An exact heap block, so that reading past the end is seen.
      return DecodeImage(static_cast<ImageRecord*>(image), damaged.data(),
                         static_cast<int32_t>(damaged.size()));
    };
    for (size_t size = 64; size < file.size(); ++size)
      ASSERT_EQ(draw(Bytes(file.begin(), file.begin() + static_cast<ptrdiff_t>(size))), 0);
    for (size_t at = 0; at < file.size(); ++at) {
      Bytes damaged = file;
      damaged[at] = static_cast<uint8_t>(damaged[at] ^ (1 + random.word() % 255));
      ASSERT_EQ(draw(damaged), 0) << at;
      Extent e = extent(damaged);
      ASSERT_EQ(e.status, 0);
    }
  }
}

TEST(Picture, RefusesWhatExpandsTooFar) {
  const auto sized = [](int32_t w, int32_t h) {
    Bytes file = bitmap_file(1, 1, 1, [](int32_t, int32_t) { return 1; }, {0, 0xFFFFFF});
    file.resize(70);
    store(file.data() + 18, w);
    store(file.data() + 22, h);
    return extent(file);
  };
  EXPECT_EQ(sized(32767, 4096), (Extent{0, himetric(32767), himetric(4096)}));
  EXPECT_EQ(sized(4096, -32767), (Extent{0, himetric(4096), himetric(32767)}));
  for (const auto& [w, h] :
       {std::pair{32768, 1}, {1, 32768}, {32767, 4097}, {0, 5}, {-5, 5}, {5, 0}, {5, INT32_MIN}})
    EXPECT_EQ(sized(w, h), (Extent{0, 0, 0})) << w << " x " << h;
}

#endif

TEST(Picture, PicturesWithoutABitmapReportNothing) {
  Bytes icon{0, 0, 1, 0, 1, 0, 1, 1, 2, 0, 1, 0, 1, 0};  // one icon of 1 x 1, one bit
  put(icon, 56, 4);
  put(icon, 22, 4);
  put(icon, 40, 4);
  put(icon, 1, 4);
  put(icon, 2, 4);
  put(icon, 1 | 1 << 16, 4);
  for (int i = 0; i < 10; ++i) put(icon, 0, 4);
  Bytes metafile{0xD7, 0xCD, 0xC6, 0x9A, 0, 0, 0, 0, 0, 0, 100, 0, 100, 0, 96, 0, 0, 0, 0, 0};
  uint32_t sum = 0;
  for (size_t i = 0; i < 20; i += 2) sum ^= load<uint16_t>(metafile.data() + i);
  put(metafile, sum, 2);
  put(metafile, 1 | 9 << 16, 4);
  put(metafile, 0x300 | 12 << 16, 4);
  put(metafile, 0, 4);
  put(metafile, 3, 4);
  put(metafile, 0, 2);
  put(metafile, 3, 4);
  put(metafile, 0, 2);
  metafile.resize(80);
  for (const Bytes& file : {icon, metafile}) {
    EXPECT_EQ(extent(file), (Extent{0, 0, 0}));
    Screen screen(4, 4);
    EXPECT_EQ(screen.draw(file), 0);
    EXPECT_EQ(screen.get(0, 0), untouched);
  }
}

}  // namespace
}  // namespace tessaro::test
