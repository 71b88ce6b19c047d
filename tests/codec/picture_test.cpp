// Pictures through the platform's loader: the same expectations on every target.
#include <algorithm>
#include <array>
#include <functional>

#include "support/images.hpp"

#ifdef _WIN32
#include <windows.h>
//
#include <ole2.h>
#endif

namespace tessaro::test {
namespace {

using Bytes = std::vector<uint8_t>;

#include "pictures.inc"

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
  uint32_t get(int32_t x, int32_t y) const { return pixels_[y * width_ + x]; }

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

using Extent = std::array<int32_t, 3>;  // status, width, height
Extent extent(const Bytes& file) {
  Extent e{-1, -1, -1};
  e[0] = DecodeImageHead(file.data(), static_cast<int32_t>(file.size()), &e[1], &e[2]);
  return e;
}
int32_t himetric(int32_t pixels) { return static_cast<int32_t>(pixels * 2540.0 / 96 + 0.5); }

using Pixels = std::function<uint32_t(int32_t x, int32_t y)>;

// The file drawn on w x h pixels gives these, `untouched` where nothing is drawn.
void expect_drawn(const Bytes& file, int32_t w, int32_t h, const Pixels& want, const char* what) {
  Screen screen(w, h);
  EXPECT_EQ(screen.draw(file), 0) << what;
  for (int32_t y = 0; y < h; ++y)
    for (int32_t x = 0; x < w; ++x)
      ASSERT_EQ(screen.get(x, y) & compared, want(x, y) & compared) << what << " at " << x << ", " << y;
}

void put(Bytes& to, uint32_t value) {
  for (int i = 0; i < 32; i += 8) to.push_back(static_cast<uint8_t>(value >> i));
}

// A bitmap file; pixel(x, y) is an index or a value of `bits` bits. Negative heights store rows from the top.
Bytes bitmap_file(int32_t bits, int32_t w, int32_t stored_h, const Pixels& pixel,
                  const std::vector<uint32_t>& palette = {}, const std::vector<uint32_t>& masks = {}) {
  const auto u = [](auto v) { return static_cast<uint32_t>(v); };
  const int32_t h = std::abs(stored_h);
  const uint32_t step = u((w * bits + 31) / 32 * 4), head = u(54 + 4 * (palette.size() + masks.size()));
  Bytes file{'B', 'M'};
  for (const uint32_t v : {head + step * u(h), 0u, head, 40u, u(w), u(stored_h), 1 | u(bits) << 16,
                           masks.empty() ? 0u : 3u, 0u, 0u, 0u, u(palette.size()), 0u})
    put(file, v);
  for (const uint32_t v : masks) put(file, v);
  for (const uint32_t v : palette) put(file, v);
  for (int32_t row = 0; row < h; ++row) {
    const int32_t y = stored_h < 0 ? row : h - 1 - row;
    const size_t line = file.size();
    file.resize(line + step);
    for (int32_t x = 0; x < w; ++x)
      for (int32_t b = 0; b < bits; ++b) {
        // Below a byte the leftmost pixel is in the highest bits; above it bytes go upwards.
        const int32_t at = bits < 8 ? x * bits + (bits - 1 - b) : x * bits + b;
        uint8_t& byte = file[line + static_cast<size_t>(at / 8)];
        byte = static_cast<uint8_t>(byte | (pixel(x, y) >> b & 1) << (bits < 8 ? 7 - at % 8 : at % 8));
      }
  }
  return file;
}

uint32_t colour(int32_t x, int32_t y) {
  return static_cast<uint32_t>(x * 0x1F0B05 + y * 0x030741 + 0x203040) & 0xFFFFFF;
}

TEST(Picture, RefusesSizesAndReportsNothingWithoutABitmap) {
  const Bytes noise(64, 0x5A);
  for (const int32_t size : {63, 0, -1, INT32_MIN, INT32_MAX, (8 << 20) + 1}) {
    Extent e{0, 7, 7};
    e[0] = DecodeImageHead(noise.data(), size, &e[1], &e[2]);
    EXPECT_EQ(e, (Extent{1, 0, 0})) << size;
    EXPECT_EQ(DecodeImage(nullptr, noise.data(), size), 1) << size;
  }
  for (const Bytes& file : {noise, Bytes(8 << 20, 0), icon_ico, placeable_wmf}) {
    EXPECT_EQ(extent(file), (Extent{0, 0, 0}));
    expect_drawn(
        file, 4, 4, [](int32_t, int32_t) { return untouched; }, "no bitmap");
  }
}

TEST(Picture, ReadsBitmapFilesOfEveryDepthInBothOrders) {
  for (const int32_t bits : {1, 4, 8, 24, 32})
    for (const int32_t h : {8, -8}) {
      SCOPED_TRACE(::testing::Message() << bits << " bits, height " << h);
      std::vector<uint32_t> palette;
      for (int32_t i = 0; bits <= 8 && i < 1 << bits; ++i) palette.push_back(colour(i, i / 3));
      const auto index = [&](int32_t x, int32_t y) {
        return static_cast<size_t>(x * 5 + y * 3) % palette.size();
      };
      const auto pixel = [&](int32_t x, int32_t y) {
        return bits <= 8 ? static_cast<uint32_t>(index(x, y)) : colour(x, y) | 0xAB000000;
      };
      const Bytes file = bitmap_file(bits, 13, h, pixel, palette);
      EXPECT_EQ(extent(file), (Extent{0, himetric(13), 212}));
      const auto want = [&](int32_t x, int32_t y) {
        if (x >= 13 || y >= 8) return untouched;
        return bits <= 8 ? palette[index(x, y)] : colour(x, y) | (bits == 32 ? 0xAB000000 : 0);
      };
      expect_drawn(file, 15, 9, want, "bitmap");
    }
}

// The extents change places and are taken as pixels: 1 pixel is 26 units, so of a row only 26 columns are drawn.
TEST(Picture, DrawsTheCrossedRectangle) {
  const Bytes row = bitmap_file(24, 60, 1, colour), column = bitmap_file(24, 1, 60, colour);
  const auto want = [](int32_t x, int32_t y) { return x < 26 && y < 26 ? colour(x, y) : untouched; };
  expect_drawn(row, 60, 1, want, "row");
  expect_drawn(column, 1, 60, want, "column");
  expect_drawn(
      row, 3, 2, [](int32_t x, int32_t y) { return y ? untouched : colour(x, y); }, "narrow");
}

// Red 200 left of column 8 and 40 right of it; green 180, 90, 20 by eight rows; blue 60.
TEST(Picture, ReadsJpeg) {
  for (const Bytes& file : {baseline_jpg, progressive_jpg}) {
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
  const auto rgb = [](int32_t x, int32_t y) {
    return static_cast<uint32_t>(x << 20 | y << 13 | (255 - 8 * x - 8 * y));
  };
  const struct {
    const Bytes& file;
    int32_t w, h;
    Pixels pixel;
  } cases[] = {
      {rgb_png, 6, 5, rgb},
      {rgba_png, 6, 5,
       [&](int32_t x, int32_t y) { return static_cast<uint32_t>(40 * x + y) << 24 | rgb(x, y); }},
      {palette_png, 9, 3,
       [](int32_t x, int32_t y) {
         constexpr uint32_t alpha[] = {0, 0x80000000, 0xFF000000, 0xFF000000};
         const int32_t index = x < 8 ? (x + y) % 4 : y;
         return indexed(index) | alpha[index];
       }},
      {transparent_gif, 9, 7,
       [](int32_t x, int32_t y) { return indexed((x + y) % 4) | ((x + y) % 4 == 3 ? 0 : 0xFF000000); }},
      {interlaced_gif, 9, 7, [](int32_t x, int32_t y) { return indexed((x + y) % 4); }}};
  for (const auto& c : cases) {
    EXPECT_EQ(extent(c.file), (Extent{0, himetric(c.w), himetric(c.h)}));
    expect_drawn(
        c.file, c.w + 1, c.h, [&](int32_t x, int32_t y) { return x < c.w ? c.pixel(x, y) : untouched; },
        "png or gif");
  }
}

TEST(Picture, StretchesMaskedChannels) {
  const auto u = [](int32_t v) { return static_cast<uint32_t>(v); };
  const Bytes file = bitmap_file(16, 32, 2, [&](int32_t x, int32_t) { return u(x << 11 | x << 6 | x); }, {},
                                 {0xF800, 0x07E0, 0x001F});
  const auto want = [&](int32_t x, int32_t) {
    const int32_t five = (x * 510 + 31) / 62, six = (x * 1020 + 63) / 126;
    return u(five << 16 | six << 8 | five);
  };
  expect_drawn(file, 32, 2, want, "masks");
}

TEST(Picture, RowsThatACutFileLacksAreNotDrawn) {
  for (const int32_t h : {10, -10}) {
    Bytes file = bitmap_file(24, 8, h, colour);
    file.resize(file.size() - 3 * 24 - 1);  // four rows are gone or incomplete
    const auto want = [&](int32_t x, int32_t y) {
      return (h < 0 ? y < 6 : y >= 4) ? colour(x, y) : untouched;
    };
    expect_drawn(file, 8, 10, want, "cut");
  }
  // Without its end marker a JPEG is whole; without the data of its last blocks their rows are missing.
  for (const size_t cut : {size_t{2}, size_t{14}}) {
    Bytes jpeg = baseline_jpg;
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
  const Bytes files[] = {baseline_jpg,
                         progressive_jpg,
                         rgb_png,
                         rgba_png,
                         palette_png,
                         transparent_gif,
                         interlaced_gif,
                         bitmap_file(4, 9, 5, colour, std::vector<uint32_t>(16, 0x405060)),
                         bitmap_file(32, 5, -3, colour, {}, {0xFF0000, 0xFF00, 0xFF})};
  Random random(7);
  Image image(7, 9);
  // Exact heap blocks, so that reading past the end is seen.
  const auto draw = [&](const Bytes& file) {
    return DecodeImage(static_cast<ImageRecord*>(image), file.data(), static_cast<int32_t>(file.size()));
  };
  for (const Bytes& file : files) {
    for (auto end = file.begin() + 64; end != file.end(); ++end) ASSERT_EQ(draw(Bytes(file.begin(), end)), 0);
    for (size_t at = 0; at < file.size(); ++at) {
      Bytes damaged = file;
      damaged[at] = static_cast<uint8_t>(damaged[at] ^ (1 + random.word() % 255));
      ASSERT_EQ(draw(damaged), 0) << at;
      ASSERT_EQ(extent(damaged)[0], 0) << at;
    }
  }
}

TEST(Picture, RefusesWhatExpandsTooFar) {
  const auto sized = [](int32_t w, int32_t h) {
    Bytes file = bitmap_file(1, 1, 1, colour, {0, 0xFFFFFF});
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

}  // namespace
}  // namespace tessaro::test
