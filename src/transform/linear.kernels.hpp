// kernels: LinearKernels
#include "transform/linear.hpp"

#include "simd/rules.hpp"
#include "transform/sample_walk.hpp"

namespace {

using tessaro::Bilinear;
using tessaro::Render;

template <class P>
struct RenderRule {
  const Render& r;
  P tint;
  typename P::Half tint_weight;
  TESSARO_INLINE explicit RenderRule(const Render& render)
      : r(render), tint(P::splat(r.tint)), tint_weight(P::Half::splat(r.table[r.tint >> 24])) {}
  TESSARO_INLINE P operator()(P d, P s) const {
    if (r.tinted) s = with_alpha(mix(s, tint, tint_weight), s);
    const auto weight = lookup_alpha(s, r.table);
    return r.add ? add_sat(d, join_high(even(s) * weight, odd(s) * weight)) : mix(d, s, weight);
  }
};

template <>
struct RenderRule<
    One> {  // weights of any size: two channels a product of 32 bits, which may run over into each other
  const Render& r;
  TESSARO_INLINE explicit RenderRule(const Render& render) : r(render) {}
  TESSARO_INLINE One operator()(One d, One s) const {
    using tessaro::weighted_sum;
    if (const uint32_t w = r.table[r.tint >> 24]; r.tinted)
      s = with_alpha(One{weighted_sum(s.v, 256 - w, r.tint, w)}, s);
    const uint32_t weight = r.table[s.v >> 24];
    return r.add ? add_sat(d, One{weighted_sum(0, 0, s.v, weight)})
                 : One{weighted_sum(d.v, 256 - weight, s.v, weight)};
  }
};

// The sample between two interpolated rows, then the rule.
template <class P, class Rule>
struct Between {
  const Rule& rule;
  ConstantMix<P> mixing;
  TESSARO_INLINE Between(const Rule& r, uint32_t w) : rule(r), mixing(w) {}
  TESSARO_INLINE P operator()(P d, P top, P bottom) const { return rule(d, mixing(top, bottom)); }
};

template <class P>
struct Sides {
  P left, right;
};

// The pixels at the columns `where`, the first of which is `base`, and those after them: from one or two
// vectors of the source that hold them all, or, without vectors, from wherever they lie.
template <class P, int vectors>
TESSARO_INLINE Sides<P> sides_at(const uint8_t* src, int32_t sw, int32_t base, P where) {
  if constexpr (vectors == 0) return {gather(src, where), gather(src + 4, where)};
  const uint8_t* at = src + 4 * static_cast<ptrdiff_t>(base);
  const P in = load_within<P>(at, sw - base);
  const P place = sub32(where, P::splat(static_cast<uint32_t>(base)));
  const P next = add32(place, P::splat(1));
  if constexpr (vectors == 1) return {picked(in, place), picked(in, next)};
  const P more = load_within<P>(at + 4 * P::lanes, sw - base - static_cast<int32_t>(P::lanes));
  return {picked(in, more, place), picked(in, more, next)};
}

template <class P, int vectors>
TESSARO_INLINE void interpolate_within(uint32_t* out, const uint8_t* src, const Bilinear& b,
                                       ptrdiff_t ahead) {
  const auto width = static_cast<size_t>(b.area.dw);
  const uint32_t *columns = b.room, *weights = b.room + width;
  const auto between = [&](size_t x, P where, P weight) {
    prefetch<vectors == 0 ? 4 : 2>(src + 4 * static_cast<size_t>(columns[x]), ahead);
    const auto n = sides_at<P, vectors>(src, b.area.sw, static_cast<int32_t>(columns[x]), where);
    return mix(n.left, n.right, halves(weight));
  };
  size_t x = 0;
  for (; x + P::lanes <= width; x += P::lanes)
    between(x, P::load(columns + x), P::load(weights + x)).store(out + x);
  if (const size_t rest = width - x)
    between(x, P::load(columns + x, rest), P::load(weights + x, rest)).store(out + x, rest);
}

// One row of the source at the destination's columns; the row that is wanted next lies `ahead`.
template <class P>
TESSARO_INLINE void interpolate(uint32_t* out, const uint8_t* src, const Bilinear& b,
                                [[maybe_unused]] ptrdiff_t ahead) {
  if constexpr (P::permutes) {
    // Where the neighbours of a vector lie within one or two vectors of the source, they are loads and
    // permutations: from the first to the last, whose positions are lanes - 1 steps apart, rounding adds a
    // pixel, and the neighbour one more.
    constexpr auto lanes = static_cast<int32_t>(P::lanes);
    const int32_t span = ((lanes - 1) * b.x.step >> 12) + 3;
    if (span <= lanes) return interpolate_within<P, 1>(out, src, b, ahead);
    if (span <= 2 * lanes) return interpolate_within<P, 2>(out, src, b, ahead);
    return interpolate_within<P, 0>(out, src, b, ahead);
  }
  const auto width = static_cast<size_t>(b.area.dw);
  const uint32_t *columns = b.room, *weights = b.room + width;
  for (size_t x = 0; x < width; ++x) {
    const uint8_t* at = src + 4 * static_cast<ptrdiff_t>(columns[x]);
    mix(One::load(at), One::load(at + 4), One::Half{weights[x]}).store(out + x);
  }
}

template <template <class> class Rule, class... Args>
TESSARO_INLINE void bilinear(const Bilinear& b, const Args&... args) {
  const Stretch& n = b.area;
  const auto row_of = [&](int32_t r) { return n.src + r * n.src_pitch; };
  uint8_t* dst = n.dst;
  if (n.shared || !b.room) {
    const Rule<One> rule{args...};
    for (int32_t i = 0; i < n.dh; ++i, dst += n.dst_pitch) {
      const uint8_t* upper = row_of(b.y.pixel(i));
      const Between<One, Rule<One>> between(rule, b.y.weight(i));
      for (int32_t j = 0; j < n.dw; ++j) {
        const ptrdiff_t at = 4 * static_cast<ptrdiff_t>(b.x.pixel(j));
        const One::Half weight = One::Half::splat(b.x.weight(j));
        const auto across = [&](const uint8_t* p) {
          return mix(One::load(p + at), One::load(p + at + 4), weight);
        };
        uint8_t* to = dst + 4 * static_cast<ptrdiff_t>(j);
        between(One::load(to), across(upper), across(upper + n.src_pitch)).store(to);
      }
    }
    return;
  }
  const auto width = static_cast<size_t>(n.dw);
  for (int32_t j = 0; j < n.dw; ++j) {
    b.room[j] = static_cast<uint32_t>(b.x.pixel(j));
    b.room[width + static_cast<size_t>(j)] = b.x.weight(j) * 0x10001;
  }
  // Rows are interpolated once and kept while they are needed.
  struct SourceRow {
    uint32_t* pixels;
    int32_t row;
  };
  SourceRow upper = {b.room + 2 * width, -1}, lower = {b.room + 3 * width, -1};
  const auto fill = [&](SourceRow& to, int32_t row, int32_t next) {
    if (to.row != row) interpolate<Px>(to.pixels, row_of(row), b, (next - row) * n.src_pitch);
    to.row = row;
  };
  const Rule<Px> rule{args...};
  const RowWriter write(n.dw, n.dh);
  const bool prepared = std::same_as<Rule<Px>, Replace<Px>> && write.passes_caches();
  alignas(64) uint8_t pixels[4 * part_width];
  for (int32_t i = 0; i < n.dh; ++i, dst += n.dst_pitch) {
    const int32_t row = b.y.pixel(i);
    if (upper.row != row && lower.row == row) {
      const SourceRow t = upper;
      upper = lower;
      lower = t;
    }
    const int32_t later = b.y.pixel(i + 1);
    fill(upper, row, row + 1);
    fill(lower, row + 1, later > row + 1 ? later : row + 2);
    const Between<Px, Rule<Px>> between(rule, b.y.weight(i));
    const auto *top = reinterpret_cast<const uint8_t*>(upper.pixels),
               *bottom = reinterpret_cast<const uint8_t*>(lower.pixels);
    if (!prepared) {
      walk_row<Px>(dst, width, between, top, bottom);
      continue;
    }
    for (size_t x = 0; x < width; x += part_width) {
      const size_t part = width - x < part_width ? width - x : part_width;
      walk_row<Px>(pixels, part, between, top + 4 * x, bottom + 4 * x);
      write(dst + 4 * x, pixels, part);
    }
  }
}

}  // namespace

TESSARO_KERNELS(LinearKernels){
    .replace = [](const Bilinear& b) { bilinear<Replace>(b); },
    .render = [](const Bilinear& b, const Render& render) { bilinear<RenderRule>(b, render); },
    .render_nearest = [](const Stretch& n, const Render& render) { stretch<Px, RenderRule>(n, render); },
};
