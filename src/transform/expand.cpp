#include "transform/expand.hpp"

#include "core/weights.hpp"
#include "pixel/blit.hpp"
#include "tessaro/tessaro.h"
#include "transform/flip.hpp"

namespace tessaro {

bool clip_stretch(const ImageView& dst, const ImageView& src, ScaledBlit& r) {
  return !ClipScaledBlit(dst, src, r) && r.dw > 0 && r.dh > 0 && r.sw > 0 && r.sh > 0 &&
         // Where a height is negative, the rounded vertical ratio may leave a rectangle outside its image.
         r.dx >= 0 && r.dy >= 0 && r.dx + r.dw <= dst.width && r.dy + r.dh <= dst.height && r.sx >= 0 &&
         r.sy >= 0 && r.sx + r.sw <= src.width && r.sy + r.sh <= src.height;
}

Stretch stretch_of(const ImageView& d, const ImageView& s, const ScaledBlit& r) {
  Stretch n = {.dst = d.at(r.dx, r.dy),
               .dst_pitch = d.pitch,
               .src = s.at(r.sx, r.sy),
               .src_pitch = s.pitch,
               .dw = static_cast<int32_t>(r.dw),
               .dh = static_cast<int32_t>(r.dh),
               .sw = static_cast<int32_t>(r.sw),
               .sh = static_cast<int32_t>(r.sh),
               .shared = false,
               .columns = nullptr};
  const Area to = {n.dst, n.dst_pitch, n.dw, n.dh};
  n.shared = !rows_apart(to) || share_memory(to, {s.at(r.sx, r.sy), n.src_pitch, n.sw, n.sh});
  return n;
}

}  // namespace tessaro

using namespace tessaro;

namespace {

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
                  uint32_t color, bool by_alpha) {
  AreaPair areas;
  if (!clip_two(dst, src, TESSARO_UNSCALED(r), areas)) return;
  if (by_alpha)
    kernels<ExpandKernels>().fill_by_alpha(areas, color, alpha_factor(opacity));
  else
    kernels<BlitKernels>().mix_colour({areas.dst, areas.dst_pitch, areas.width, areas.height}, color,
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
                                       uint32_t color_top_left, uint32_t color_top_right,
                                       uint32_t color_bottom_left, uint32_t color_bottom_right,
                                       int32_t use_source_alpha) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  ScaledBlit rect = {dx, dy, dw, dh, sx, sy, sw, sh};
  if (!clip_stretch(d, s, rect) || !usable_opacity(opacity)) return status_nothing;
  const bool by_alpha = use_source_alpha != 0;
  const uint32_t weight = constant_weight(opacity), factor = by_alpha ? alpha_factor(opacity) : 0;
  if (mask == 0xFFFFFFFF) {  // nothing of the gradient would be seen
    const Choice choice = {.keep = keep_mask, .by_alpha = by_alpha, .weight = weight, .factor = factor};
    run_stretch(d, s, rect, [&](const Stretch& n) { kernels<ExpandKernels>().choose(n, choice); });
    return status_done;
  }
  const auto width = static_cast<int32_t>(rect.dw);
  ScratchArray<uint32_t, 256> weights(static_cast<size_t>(width));
  if (!weights) return status_nothing;
  for (int32_t j = 0; j < width; ++j) weights[static_cast<size_t>(j)] = way_weight(j, width - 1) * 0x10001;
  const Gradient gradient = {.keep = keep_mask,
                             .mask = mask,
                             .top_left = color_top_left,
                             .top_right = color_top_right,
                             .bottom_left = color_bottom_left,
                             .bottom_right = color_bottom_right,
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
                                        uint32_t color, uint32_t invert_bits, int32_t use_source_alpha,
                                        int32_t add_color, int32_t add_alpha, int32_t source_is_base) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  ScaledBlit rect = {dx, dy, dw, dh, sx, sy, sw, sh};
  if (!clip_stretch(d, s, rect)) return status_nothing;
  if (!usable_opacity(opacity)) opacity = 0.0f;
  const uint32_t weight = constant_weight(opacity);
  if (weight == 0 && !source_is_base) return status_nothing;

  Choice choice = {.keep = keep_mask,
                   .mask = mask,
                   .color = color,
                   .invert = invert_bits,
                   .by_alpha = use_source_alpha != 0,
                   .weight = weight};
  const auto choose = [&] {
    if (choice.by_alpha) choice.factor = alpha_factor(opacity);
    run_stretch(d, s, rect, [&](const Stretch& n) { kernels<ExpandKernels>().choose(n, choice); });
  };

  if (saturation == 1.0f && (level_low & 0x00FFFFFF) == 0 && (level_high & 0x00FFFFFF) == 0x00FFFFFF &&
      !add_color && !add_alpha && !source_is_base) {
    const bool same_size = rect.dw == rect.sw && rect.dh == rect.sh;
    if (same_size && mask == 0xFF000000 && keep_mask == 0 && invert_bits == 0) {
      ColorFillBlt(dst, src, rect, opacity, color, choice.by_alpha);
      return status_color_filled;
    }
    if (mask != 0xFFFFFFFF || keep_mask != 0) {
      choose();
      return status_done;
    }
    if (!same_size)
      return choice.by_alpha ? BBIExpandBlendBlt(dst, src, TESSARO_SCALED(rect), opacity)
                             : BBIExpandBlt(dst, src, TESSARO_SCALED(rect), opacity);
    if (weight != 256)
      return choice.by_alpha ? BBIFlipBlend(dst, src, TESSARO_UNSCALED(rect), opacity)
                             : BBIFlip(dst, src, TESSARO_UNSCALED(rect), opacity);
    return choice.by_alpha ? BBIBltBlend(dst, src, TESSARO_UNSCALED(rect), 0)
                           : BBIBlt(dst, src, TESSARO_UNSCALED(rect));
  }

  choice.saturated = saturation != 1.0f;
  if (choice.saturated) {
    if (!(saturation >= 0.0f)) saturation = 0.0f;
    if (saturation > 256.0f) saturation = 256.0f;
    choice.saturation = trunc32(saturation * 1024.0f);
    choice.grey = (1024 - choice.saturation) / 3;
  }
  choice.levelled = level_low != 0 || level_high != 0x00FFFFFF;
  for (int k = 0; k < 3; ++k)
    choice.levels[k] = level_range(level_low >> 8 * k & 255, level_high >> 8 * k & 255);
  choice.add_color = add_color != 0;
  choice.add_alpha = add_alpha != 0;
  choice.source_is_base = source_is_base != 0;
  choose();
  return status_chosen;
}

}  // extern "C"
