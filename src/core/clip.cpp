// Clips against images, in 64 bits.
#include "core/clip.hpp"

namespace tessaro {

int32_t ClipRect(int64_t width, int64_t height, int64_t& x, int64_t& y, int64_t& w, int64_t& h,
                 int64_t& other_x, int64_t& other_y) {
  if (x < 0) {
    w += x;
    other_x -= x;
    x = 0;
  }
  if (x + w > width) w = width - x;
  if (y < 0) {
    h += y;
    other_y -= y;
    y = 0;
  }
  if (y + h > height) h = height - y;
  return w < 1 || h < 1 ? status_nothing : status_done;
}

int32_t ClipScaledRect(int32_t width, int32_t height, int64_t& x, int64_t& y, int64_t& w, int64_t& h,
                       int64_t& other_x, int64_t& other_y, int64_t& other_w, int64_t& other_h) {
  if (w == 0 || h == 0) return status_nothing;
  // The vertical ratio is single precision, the horizontal one is not: callers see the difference in the last
  // unit of a clipped size and rely on it.
  const double rx = static_cast<double>(other_w) / static_cast<double>(w);
  const double ry = static_cast<float>(static_cast<double>(other_h) / static_cast<double>(h));
  const auto real = [](int64_t v) { return static_cast<double>(v); };
  if (x < 0) {
    other_x = trunc32(real(other_x) - real(x) * rx);
    other_w = trunc32(real(other_w) - real(-x) * rx);
    w += x;
    x = 0;
  }
  if (x + w > width) {
    other_w = trunc32(real(width - x - w) * rx + real(other_w));
    w = width - x;
  }
  if (y < 0) {
    other_y = trunc32(real(other_y) - real(y) * ry);
    other_h = trunc32(real(other_h) - real(-y) * ry);
    h += y;
    y = 0;
  }
  if (y + h > height) {
    other_h = trunc32(real(height - y - h) * ry + real(other_h));
    h = height - y;
  }
  return status_done;
}

int32_t ClipScaledBlit(const ImageView& dst, const ImageView& src, ScaledBlit& b) {
  if (ClipScaledRect(src.width, src.height, b.sx, b.sy, b.sw, b.sh, b.dx, b.dy, b.dw, b.dh))
    return status_nothing;
  if (ClipScaledRect(dst.width, dst.height, b.dx, b.dy, b.dw, b.dh, b.sx, b.sy, b.sw, b.sh))
    return status_nothing;
  return b.dw == 0 || b.dh == 0 || b.sw == 0 || b.sh == 0 ? status_nothing : status_done;
}

bool clip_one(const ImageRecord* image, int32_t x, int32_t y, int32_t w, int32_t h, Area& area) {
  const ImageView view = ImageView::of(image);
  int64_t ax = x, ay = y, aw = w, ah = h, ignored_x = 0, ignored_y = 0;
  if (ClipRect(view.width, view.height, ax, ay, aw, ah, ignored_x, ignored_y)) return false;
  area = {view.at(ax, ay), view.pitch, static_cast<ptrdiff_t>(aw), static_cast<ptrdiff_t>(ah)};
  return true;
}

bool clip_whole(const ImageRecord* image, Area& area) {
  const ImageView view = ImageView::of(image);
  return clip_one(image, 0, 0, view.width, view.height, area);
}

bool clip_two(const ImageRecord* dst, const ImageRecord* src, int32_t dx, int32_t dy, int32_t cx, int32_t cy,
              int32_t sx, int32_t sy, AreaPair& areas) {
  const ImageView d = ImageView::of(dst), s = ImageView::of(src);
  int64_t ax = dx, ay = dy, w = cx, h = cy, bx = sx, by = sy;
  if (ClipRect(d.width, d.height, ax, ay, w, h, bx, by)) return false;
  if (ClipRect(s.width, s.height, bx, by, w, h, ax, ay)) return false;
  areas = {
      d.at(ax, ay), d.pitch, s.at(bx, by), s.pitch, static_cast<ptrdiff_t>(w), static_cast<ptrdiff_t>(h)};
  return true;
}

}  // namespace tessaro
