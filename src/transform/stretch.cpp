// Scaled rectangles clipped, and what their kernels are told.
#include "transform/stretch.hpp"

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
