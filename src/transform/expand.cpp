// Rectangles stretched or shrunk to the nearest pixel, mixed into the destination.
#include "transform/expand.hpp"

#include "pixel/blit.hpp"
#include "tessaro/tessaro.h"
#include "transform/flip.hpp"

using namespace tessaro;

namespace {

constexpr int32_t status_colour_filled = 0x201;
constexpr int32_t status_chosen = 2;

// Clips, checks the opacity and runs the kernel that `run` picks.
template <class Run>
int32_t expand(ImageRecord* dst, const ImageRecord* src, ScaledBlit rect, float opacity, Run run) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  if (!clip_stretch(d, s, rect) || !usable_opacity(opacity)) return status_nothing;
  run_stretch(d, s, rect, [&](const Stretch& n) { run(n, opacity); });
  return status_done;
}

// A quotient rounded up serves nearly every range; some take one that is rounded down, and a bias.
struct LevelFactors {
  LevelFactor of[256] = {};
  bool exact = true;
  constexpr LevelFactors() {
    for (uint32_t range = 1; range < 256; ++range) {
      uint32_t bits = 8;
      while (bits < 15 && (255u << (bits + 1)) / range < 65535) ++bits;
      const uint32_t quotient = (255u << bits) / range, shift = bits == 8 ? 65535 : 1u << (24 - bits);
      const LevelFactor tried[] = {
          {0, quotient + ((255u << bits) % range != 0), shift}, {1, quotient, shift}, {2, quotient, shift}};
      for (const LevelFactor& by : tried) {
        of[range] = by;
        if (by.is_exact(range)) break;
      }
      exact = exact && of[range].is_exact(range);
    }
  }
};
constexpr LevelFactors level_factors;
static_assert(level_factors.exact);

LevelRange level_range(uint32_t low, uint32_t high) {
  const uint32_t range = high > low ? high - low : low < 255 ? 1 : 0;
  return {low, range, level_factors.of[range], low == high};
}

// The clipped rectangles, handed on to an unscaled blit or a stretched one.
#define TESSARO_UNSCALED(r)                                                                 \
  static_cast<int32_t>((r).dx), static_cast<int32_t>((r).dy), static_cast<int32_t>((r).dw), \
      static_cast<int32_t>((r).dh), static_cast<int32_t>((r).sx), static_cast<int32_t>((r).sy)
#define TESSARO_SCALED(r) TESSARO_UNSCALED(r), static_cast<int32_t>((r).sw), static_cast<int32_t>((r).sh)

// Mixes a colour into the destination, its own alpha byte included; the source gives at most the weights.
void ColorFillBlt(ImageRecord* dst, const ImageRecord* src, const ScaledBlit& r, float opacity,
                  uint32_t colour, bool by_alpha) {
  AreaPair areas;
  if (!clip_two(dst, src, TESSARO_UNSCALED(r), areas)) return;
  if (by_alpha)
    kernels<ExpandKernels>().fill_by_alpha(areas, colour, alpha_factor(opacity));
  else
    kernels<BlitKernels>().mix_colour({areas.dst, areas.dst_pitch, areas.width, areas.height}, colour,
                                      constant_weight(opacity));
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIExpandBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                  int32_t dw, int32_t dh, int32_t sx, int32_t sy, int32_t sw, int32_t sh,
                                  float opacity) {
  return expand(dst, src, {dx, dy, dw, dh, sx, sy, sw, sh}, opacity, [](const Stretch& n, float usable) {
    const uint32_t weight = constant_weight(usable);
    if (weight == 256)
      kernels<ExpandKernels>().copy(n);
    else if (weight > 0)
      kernels<ExpandKernels>().mix(n, weight);
  });
}

int32_t TESSARO_CALL BBIExpandBlendBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                       int32_t dw, int32_t dh, int32_t sx, int32_t sy, int32_t sw, int32_t sh,
                                       float opacity) {
  return expand(dst, src, {dx, dy, dw, dh, sx, sy, sw, sh}, opacity, [](const Stretch& n, float usable) {
    kernels<ExpandKernels>().blend(n, alpha_factor(usable));
  });
}

int32_t TESSARO_CALL BBIExpandColorBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                       int32_t dw, int32_t dh, int32_t sx, int32_t sy, int32_t sw, int32_t sh,
                                       float opacity, uint32_t keep_mask, uint32_t mask,
                                       uint32_t colour_top_left, uint32_t colour_top_right,
                                       uint32_t colour_bottom_left, uint32_t colour_bottom_right,
                                       int32_t use_source_alpha) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  ScaledBlit rect = {dx, dy, dw, dh, sx, sy, sw, sh};
  if (!clip_stretch(d, s, rect) || !usable_opacity(opacity)) return status_nothing;
  const bool by_alpha = use_source_alpha != 0;
  const uint32_t weight = constant_weight(opacity), factor = by_alpha ? alpha_factor(opacity) : 0;
  if (mask == 0xFFFFFFFF) {  // nothing of the gradient would be seen
    const Treatment treatment = {.keep = keep_mask, .by_alpha = by_alpha, .weight = weight, .factor = factor};
    run_stretch(d, s, rect, [&](const Stretch& n) { kernels<ExpandKernels>().choose(n, treatment); });
    return status_done;
  }
  const auto width = static_cast<int32_t>(rect.dw);
  ScratchArray<uint32_t, 256> weights(static_cast<size_t>(width));
  if (!weights) return status_nothing;
  for (int32_t j = 0; j < width; ++j) weights[static_cast<size_t>(j)] = way_weight(j, width - 1) * 0x10001;
  const Gradient gradient = {.keep = keep_mask,
                             .mask = mask,
                             .top_left = colour_top_left,
                             .top_right = colour_top_right,
                             .bottom_left = colour_bottom_left,
                             .bottom_right = colour_bottom_right,
                             .by_alpha = by_alpha,
                             .weight = weight,
                             .factor = factor,
                             .column_weights = weights.data()};
  run_stretch(d, s, rect, [&](const Stretch& n) { kernels<ExpandKernels>().gradient(n, gradient); });
  return status_done;
}

int32_t TESSARO_CALL BBIExpandChooseBlt(ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy,
                                        int32_t dw, int32_t dh, int32_t sx, int32_t sy, int32_t sw,
                                        int32_t sh, float opacity, float saturation, uint32_t level_low,
                                        uint32_t level_high, uint32_t keep_mask, uint32_t mask,
                                        uint32_t colour, uint32_t invert_bits, int32_t use_source_alpha,
                                        int32_t add_colour, int32_t add_alpha, int32_t source_is_base) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  ScaledBlit rect = {dx, dy, dw, dh, sx, sy, sw, sh};
  if (!clip_stretch(d, s, rect)) return status_nothing;
  if (!usable_opacity(opacity)) opacity = 0.0f;
  const uint32_t weight = constant_weight(opacity);
  if (weight == 0 && !source_is_base) return status_nothing;

  Treatment treatment = {.keep = keep_mask,
                         .mask = mask,
                         .colour = colour,
                         .invert = invert_bits,
                         .by_alpha = use_source_alpha != 0,
                         .weight = weight};
  const auto choose = [&] {
    if (treatment.by_alpha) treatment.factor = alpha_factor(opacity);
    run_stretch(d, s, rect, [&](const Stretch& n) { kernels<ExpandKernels>().choose(n, treatment); });
  };

  if (saturation == 1.0f && (level_low & 0x00FFFFFF) == 0 && (level_high & 0x00FFFFFF) == 0x00FFFFFF &&
      !add_colour && !add_alpha && !source_is_base) {
    const bool same_size = rect.dw == rect.sw && rect.dh == rect.sh;
    if (same_size && mask == 0xFF000000 && keep_mask == 0 && invert_bits == 0) {
      ColorFillBlt(dst, src, rect, opacity, colour, treatment.by_alpha);
      return status_colour_filled;
    }
    if (mask != 0xFFFFFFFF || keep_mask != 0) {
      choose();
      return status_done;
    }
    if (!same_size)
      return treatment.by_alpha ? BBIExpandBlendBlt(dst, src, TESSARO_SCALED(rect), opacity)
                                : BBIExpandBlt(dst, src, TESSARO_SCALED(rect), opacity);
    if (weight != 256)
      return treatment.by_alpha ? BBIFlipBlend(dst, src, TESSARO_UNSCALED(rect), opacity)
                                : BBIFlip(dst, src, TESSARO_UNSCALED(rect), opacity);
    return treatment.by_alpha ? BBIBltBlend(dst, src, TESSARO_UNSCALED(rect), 0)
                              : BBIBlt(dst, src, TESSARO_UNSCALED(rect));
  }

  treatment.saturated = saturation != 1.0f;
  if (treatment.saturated) treatment.saturation = SaturationParts::of(saturation);
  treatment.levelled = level_low != 0 || level_high != 0x00FFFFFF;
  for (int k = 0; k < 3; ++k)
    treatment.levels[k] = level_range(level_low >> 8 * k & 255, level_high >> 8 * k & 255);
  treatment.add_colour = add_colour != 0;
  treatment.add_alpha = add_alpha != 0;
  treatment.source_is_base = source_is_base != 0;
  choose();
  return status_chosen;
}

}  // extern "C"
