// Maps and stencils against their formulas, byte by byte.
#include <cmath>

#include "support/unscaled.hpp"

namespace tessaro::test {
namespace {

using Rect = Unscaled;

// Cuts one axis to the destination and to a source.
void cut(int32_t& d, int32_t& s, int32_t& n, int32_t d_size, int32_t s_size) {
  const int32_t low = std::max({0, -d, -s});
  const int32_t high = std::min({n, d_size - d, s_size - s});
  d += low, s += low, n = high - low;
}
Rect clip(Rect r, Image& dst, Image& src) {
  cut(r.dx, r.sx, r.w, dst.width(), src.width());
  cut(r.dy, r.sy, r.h, dst.height(), src.height());
  return r;
}

// Stretches of one alpha, as pictures have them, among pixels of many.
void flatten(Image& image, Random& random) {
  uint8_t alpha = 255;
  for_pixels(image, [&](int32_t x, int32_t y) {
    if (random.word() % 100 == 0) alpha = random.byte();
    image.at(x, y)[3] = alpha;
  });
}

using Export = int32_t(TESSARO_CALL*)(ImageRecord*, const ImageRecord*, const ImageRecord*, int32_t, int32_t,
                                      int32_t, int32_t, int32_t, int32_t);
struct Map {
  const char* name;
  Export call;
  char row;  // 'a'lpha, 's'um, 'x', 'y', '0'
  bool from_dest, keep_alpha;
};
const Map maps[] = {
    {"BBIMapUC", BBIMapUC, '0', false, false},       {"BBIMapUCVA", BBIMapUCVA, 'a', false, false},
    {"BBIMapUDVA", BBIMapUDVA, 'a', true, false},    {"BBIMapMCUCVA", BBIMapMCUCVA, 'a', false, true},
    {"BBIMapMCUDVA", BBIMapMCUDVA, 'a', true, true}, {"BBIMapUCVC", BBIMapUCVC, 's', false, false},
    {"BBIMapUDVC", BBIMapUDVC, 's', true, false},    {"BBIMapUCVX", BBIMapUCVX, 'x', false, false},
    {"BBIMapUCVY", BBIMapUCVY, 'y', false, false},
};

int32_t naive_map(const Map& m, Image& dst, Image& src, Image& map, Rect r) {
  r = clip(r, dst, src);
  if (r.w < 1 || r.h < 1 || map.width() < 256 || map.height() < (m.keep_alpha ? 256 : 1)) return 1;
  const int32_t last = map.height() - 1;
  float factor = 0;
  if (m.row == 'a') factor = static_cast<float>(last * static_cast<double>(0.003921569f));
  if (m.row == 's') factor = static_cast<float>(last * static_cast<double>(0.0013071896f));
  if (m.row == 'x') factor = static_cast<float>(last / (r.w < 2 ? 1.0 : (r.w - 1) * 4.0));
  if (m.row == 'y') factor = static_cast<float>(last / (r.h < 2 ? 1.0 : r.h - 1.0));
  for (int32_t y = 0; y < r.h; ++y)
    for (int32_t x = 0; x < r.w; ++x) {
      uint8_t *d = dst.at(r.dx + x, r.dy + y), *s = src.at(r.sx + x, r.sy + y);
      const int32_t quantity = m.row == 'a'   ? s[3]
                               : m.row == 's' ? s[0] + s[1] + s[2]
                               : m.row == 'x' ? 4 * x
                               : m.row == 'y' ? y
                                              : 0;
      const auto row = static_cast<int32_t>(quantity * static_cast<double>(factor));
      for (int k = 0; k < (m.keep_alpha ? 3 : 4); ++k) d[k] = map.at((m.from_dest ? d : s)[k], row)[k];
    }
  return 0;
}

TEST(Maps, EqualTheirFormulasOnePixelAfterAnother) {
  for (const Forced backend : supported_backends())
    for (uint32_t seed = 0; seed < 300; ++seed) {
      Random random(seed);
      const int32_t heights[] = {1, 2, 37, 256, 300};
      Image map(random.between(0, 20) ? random.between(256, 300) : 255, heights[seed % 5]);
      map.randomize(seed);
      const int32_t width = seed < 71 ? static_cast<int32_t>(seed) : random.between(1, 330);
      const int32_t tall = seed % 8 == 7 ? 170 : 12;
      Image src = some_image(random, std::max(width, 1), random.between(1, tall));
      Image dst = some_image(random, std::max(width + random.between(-3, 3), 1), random.between(1, tall));
      if (seed % 16 == 15)  // rows that overlap one another
        dst = Image(dst.width(), dst.height(), 4 * std::max(dst.width() / 2, 1)).randomize(seed);
      if (seed % 3) flatten(src, random), flatten(dst, random);
      const int32_t far = seed % 2 ? 3 : 70;
      Rect r{random.between(-3, far), random.between(-2, 2),   width,
             random.between(0, tall), random.between(-3, far), random.between(-2, 2)};
      if (seed % 16 == 7) r.sx = r.dx, r.sy = r.dy;
      for (const Map& m : maps)
        for (const int shared : {0, 1, 2}) {  // images: none, source and destination, the map too
          Image want = dst, got = dst;
          Image &from = shared ? got : src, &model_from = shared ? want : src;
          Image &by = shared == 2 ? got : map, &model_by = shared == 2 ? want : map;
          ASSERT_EQ(m.call(got, from, by, r.dx, r.dy, r.w, r.h, r.sx, r.sy),
                    naive_map(m, want, model_from, model_by, r))
              << m.name << " seed " << seed << " shared " << shared;
          ASSERT_EQ(got, want) << m.name << " seed " << seed << " shared " << shared;
        }
    }
}

uint32_t transition(uint32_t o, uint32_t i, uint32_t alpha, float progress, float softness) {
  const double p = progress > 0 ? std::min(static_cast<double>(progress), 1.0) : 0.0;
  const double s = static_cast<double>(softness);
  if (!(softness > 0)) return alpha < static_cast<uint32_t>(p * 256) ? i : o;
  if (softness >= 1000) return mixed(i, o, static_cast<uint32_t>((1 - p) * 256));
  const double low = static_cast<double>(static_cast<float>((s + 1) * p - s / 2 - s / 2));
  const double high = (s + 1) * p - s / 2 + s / 2;
  const double v = static_cast<double>(static_cast<float>(alpha) * 0.003921569f);
  const double weight = v <= low ? 0 : v >= high ? 256 : std::min((v - low) / s * 256, 256.0);
  return mixed(i, o, static_cast<uint32_t>(weight));
}

enum class Kind { own, separate, reversed };
void naive_flip(Kind kind, Image& dst, Image& a, Image& b, Image& stencil, Rect r, float p, float s) {
  for (int32_t y = 0; y < r.h; ++y)
    for (int32_t x = 0; x < r.w; ++x) {
      uint32_t o = a.get(r.sx + x, r.sy + y), i = b.get(r.sx + x, r.sy + y);
      const uint32_t alpha = (kind == Kind::own ? i : stencil.get(r.sx + x, r.sy + y)) >> 24;
      if (kind == Kind::reversed) std::swap(o, i);
      dst.set(r.dx + x, r.dy + y, transition(o, i, alpha, p, s));
    }
}
int32_t flip(Kind kind, Image& dst, Image& a, Image& b, Image& stencil, Rect r, float p, float s,
             int32_t wide) {
  if (kind == Kind::own) return BBIStencilFlip(dst, a, b, r.dx, r.dy, r.w, r.h, r.sx, r.sy, p, s, wide);
  return (kind == Kind::separate ? BBIStencilFlipLE : BBIStencilFlipLEFix)(dst, a, b, stencil, r.dx, r.dy,
                                                                           r.w, r.h, r.sx, r.sy, p, s);
}

// The rounded weights of 0.75 with 0.64 lie on no line.
const float progresses[] = {0, 1, 0.5f, 0.25f, 0.7f, -1, 2, NAN, 1e-9f, 0.75f};
const float softnesses[] = {0, 0.5f, 1, 0.01f, 1e-9f, 0.64f, 999, 1000, 1e30f, -5, NAN};

TEST(Stencils, EqualTheirFormulas) {
  for (const Forced backend : supported_backends())
    for (uint32_t seed = 0; seed < 330; ++seed) {
      Random random(seed);
      const Streamed streamed(seed % 2 ? 64 : never);
      const auto image = [&] { return some_image(random, random.between(1, 75), random.between(1, 9)); };
      Image dst = image(), a = image(), b = image(), stencil = image();
      const Rect r{random.between(-3, 9), random.between(-2, 3), random.between(0, 80),
                   random.between(0, 9),  random.between(-3, 9), random.between(-2, 3)};
      for (const Kind kind : {Kind::own, Kind::separate, Kind::reversed}) {
        Rect c = clip(clip(r, dst, a), dst, b);
        if (kind != Kind::own) c = clip(c, dst, stencil);
        const bool nothing = c.w < 1 || c.h < 1;
        const float p = progresses[seed % std::size(progresses)],
                    s = softnesses[seed % std::size(softnesses)];
        Image want = dst, got = dst;
        if (!nothing) naive_flip(kind, want, a, b, stencil, c, p, s);
        ASSERT_EQ(flip(kind, got, a, b, stencil, r, p, s, seed & 1), nothing) << seed;
        ASSERT_EQ(got, want) << "seed " << seed << " kind " << static_cast<int>(kind);
        // In one image: the destination a few pixels from the pictures.
        Image shared = some_image(random, 90, 8);
        const Rect near{random.between(0, 20), random.between(0, 2), 70, 6,
                        random.between(0, 20), random.between(0, 2)};
        want = shared, got = shared;
        Image other = some_image(random, 90, 8);
        const bool in_front = seed & 2;
        const bool apart = seed % 3 == 0;
        Image mask = some_image(random, 90, 8);
        naive_flip(kind, want, in_front ? want : other, in_front ? other : want, apart ? mask : want, near, p,
                   s);
        flip(kind, got, in_front ? got : other, in_front ? other : got, apart ? mask : got, near, p, s, 1);
        ASSERT_EQ(got, want) << "seed " << seed << " kind " << static_cast<int>(kind);
      }
    }
}

std::vector<UnscaledRow> signed_rows() {
  std::vector<UnscaledRow> all;
  for (const uint32_t color : {0x00808080u, 0xFF7F00FFu, 0x0001FE40u})
    for (const float opacity : {1.0f, 0.5f, 0.3f, -1.0f, 7.0f, NAN})
      all.push_back({"opacity " + std::to_string(opacity),
                     TESSARO_UNSCALED_CALL(BBIStencilAddsigned, opacity, color), [=](uint32_t d, uint32_t s) {
                       const uint32_t target = per_channel([=](int at) {
                         const auto level = static_cast<int32_t>(channel(d, at) + 2 * channel(color, at));
                         return at == 24 ? 0 : static_cast<uint32_t>(std::clamp(level - 255, 0, 255));
                       });
                       return mixed(d, target, weight_of(s >> 24, opacity > 0 ? std::min(opacity, 1.0f) : 0));
                     }});
  return all;
}

TEST(Addsigned, EqualsTheFormulaForEveryPairOfBytes) { compare_every_pair_of_bytes(signed_rows()); }
TEST(Addsigned, EqualsOnePixelAfterAnotherInEveryShape) { compare_every_shape(signed_rows()); }
TEST(Addsigned, ExtremeRectanglesStayInsideBothImages) { compare_extreme_rectangles(signed_rows()); }

}  // namespace
}  // namespace tessaro::test
