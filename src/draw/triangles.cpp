// Filled triangles.
#include "core/image.hpp"
#include "draw/pen.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

struct Point {
  int32_t x, y;
};

// The pixels of the corners' bounding box that lie in the image.
struct Box {
  int32_t left, right, top, bottom;  // all included

  Box(const Point (&p)[3], const ImageView& image) {
    left = right = p[0].x;
    top = bottom = p[0].y;
    for (const Point& q : p) {
      left = q.x < left ? q.x : left;
      right = q.x > right ? q.x : right;
      top = q.y < top ? q.y : top;
      bottom = q.y > bottom ? q.y : bottom;
    }
    left = left < 0 ? 0 : left;
    top = top < 0 ? 0 : top;
    right = right < image.width ? right : image.width - 1;
    bottom = bottom < image.height ? bottom : image.height - 1;
  }
  bool empty() const { return left > right || top > bottom; }
};

// One edge's cross product, e(x, y) = a * x + b * y + c: in unsigned words, where it wraps, or in 64 bits
// with sign, where it does not for corners within 2^30 of the origin.
template <class T>
struct Edge {
  T a, b, c;
  Edge(Point p, Point q)
      : a(of(p.y) - of(q.y)), b(of(q.x) - of(p.x)), c(of(p.x) * of(q.y) - of(q.x) * of(p.y)) {}
  T at(int32_t x, int32_t y) const { return a * of(x) + b * of(y) + c; }

 private:
  static T of(int32_t v) { return static_cast<T>(v); }
};
using WrappedEdge = Edge<uint32_t>;
using ExactEdge = Edge<int64_t>;

// Whether no value wraps in the box. Edges are linear: what fits at its corners fits everywhere in it.
bool fits(const ExactEdge& e, const Box& box) {
  const auto small = [&](int32_t x, int32_t y) { return e.at(x, y) == static_cast<int32_t>(e.at(x, y)); };
  return small(box.left, box.top) && small(box.right, box.top) && small(box.left, box.bottom) &&
         small(box.right, box.bottom);
}

// The columns of one row where an edge's value, taken with a sign, is at least `least`: n + a * x >= 0. The
// quotient that bounds them follows from row to row without a division.
class Bound {
 public:
  Bound(const ExactEdge& edge, int sign, int64_t least, int32_t top)
      : slope_(sign * edge.a),
        steep_(slope_ < 0   ? -slope_
               : slope_ > 0 ? slope_
                            : 1),
        quotient_(floor_div(sign * edge.at(0, top) - least)),
        rest_(sign * edge.at(0, top) - least - quotient_ * steep_),
        quotient_step_(floor_div(sign * edge.b)),
        rest_step_(sign * edge.b - quotient_step_ * steep_) {}

  void narrow(int64_t& left, int64_t& right) const {
    if (slope_ > 0) {
      if (-quotient_ > left) left = -quotient_;
    } else if (slope_ < 0) {
      if (quotient_ < right) right = quotient_;
    } else if (quotient_ < 0) {
      right = left - 1;
    }
  }
  void next_row() {
    quotient_ += quotient_step_;
    rest_ += rest_step_;
    if (rest_ >= steep_) rest_ -= steep_, ++quotient_;
  }

 private:
  int64_t floor_div(int64_t n) const { return n >= 0 ? n / steep_ : -((-n + steep_ - 1) / steep_); }
  int64_t slope_, steep_, quotient_, rest_, quotient_step_, rest_step_;
};

// The plain test of every pixel, where products wrap and the inside is no triangle any more.
template <bool with_edges>
void draw_wrapped(const ImageView& image, const Box& box, const Point (&p)[3], Pen pen) {
  const WrappedEdge e12(p[0], p[1]), e23(p[1], p[2]), e31(p[2], p[0]);
  for (int32_t y = box.top; y <= box.bottom; ++y) {
    uint32_t v12 = e12.at(box.left, y), v23 = e23.at(box.left, y), v31 = e31.at(box.left, y);
    for (int32_t x = box.left; x <= box.right; ++x, v12 += e12.a, v23 += e23.a, v31 += e31.a) {
      const auto a = static_cast<int32_t>(v12), b = static_cast<int32_t>(v23), c = static_cast<int32_t>(v31);
      const bool inside = with_edges ? (a <= 0 ? b <= 0 && c <= 0 : b >= 0 && c >= 0)
                                     : (a < 0 && b < 0 && c < 0) || (a > 0 && b > 0 && c > 0);
      if (inside) pen.put(image.at(x, y));
    }
  }
}

template <bool with_edges>
int32_t draw(ImageRecord* record, const Point (&p)[3], uint32_t mask, uint32_t colour) {
  const ImageView image = ImageView::of(record);
  const Box box(p, image);
  if (box.empty()) return status_done;
  bool near = true;
  for (const Point& q : p)
    near = near && q.x > -(1 << 30) && q.x < 1 << 30 && q.y > -(1 << 30) && q.y < 1 << 30;
  if (!near) {
    draw_wrapped<with_edges>(image, box, p, {mask, colour});
    return status_done;
  }
  const ExactEdge e12(p[0], p[1]), e23(p[1], p[2]), e31(p[2], p[0]);
  if (!fits(e12, box) || !fits(e23, box) || !fits(e31, box)) {
    draw_wrapped<with_edges>(image, box, p, {mask, colour});
    return status_done;
  }

  // The three values add up to the same number everywhere, so only its sign can be the sign of all three.
  const int64_t area = e12.c + e23.c + e31.c;
  if (area == 0 && !with_edges) return status_done;
  const int sign = area > 0 ? 1 : -1;
  // Clockwise triangles leave out the edge from corner 1 to 2; without edges all three are strict.
  const int64_t others = with_edges ? 0 : 1, first = with_edges && sign < 0 ? 0 : 1;
  Bound bounds[] = {{e12, sign, first, box.top}, {e23, sign, others, box.top}, {e31, sign, others, box.top}};
  for (int32_t y = box.top; y <= box.bottom; ++y) {
    int64_t left = box.left, right = box.right;
    for (Bound& bound : bounds) {
      bound.narrow(left, right);
      bound.next_row();
    }
    if (left <= right)
      fill({image.at(left, y), image.pitch, static_cast<ptrdiff_t>(right - left + 1), 1}, mask, colour);
  }
  return status_done;
}

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBIDrawTriangle(ImageRecord* image, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                     int32_t x3, int32_t y3, uint32_t mask, uint32_t colour) {
  return draw<false>(image, {{x1, y1}, {x2, y2}, {x3, y3}}, mask, colour);
}

int32_t TESSARO_CALL BBIDrawTriangleA(ImageRecord* image, int32_t x1, int32_t y1, int32_t x2, int32_t y2,
                                      int32_t x3, int32_t y3, uint32_t mask, uint32_t colour) {
  return draw<true>(image, {{x1, y1}, {x2, y2}, {x3, y3}}, mask, colour);
}

}  // extern "C"
