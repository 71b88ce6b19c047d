// kernels: LinearKernels
#include "transform/linear.hpp"

#include "simd/rules.hpp"
#include "transform/stretch.hpp"

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

// The sample between two interpolated rows, then the rule.
template <class P, class Rule>
struct Between {
  const Rule& rule;
  ConstantMix<P> mixing;
  TESSARO_INLINE Between(const Rule& r, uint32_t w) : rule(r), mixing(w) {}
  TESSARO_INLINE P operator()(P d, P top, P bottom) const { return rule(d, mixing(top, bottom)); }
};

template <class P>
struct Neighbours {
  P left, right;
};

#ifdef TESSARO_PERMUTES
template <int vectors>
TESSARO_INLINE Neighbours<Px> neighbours(const uint8_t* src, int32_t sw, int32_t base, Px where) {
  const uint8_t* at = src + 4 * static_cast<ptrdiff_t>(base);
  const Px in = load_some(at, sw - base);
  const Px place = minus(where, Px::splat(static_cast<uint32_t>(base)));
  const Px next = minus(place, Px::splat(0xFFFFFFFF));
  if constexpr (vectors == 1) return {permuted(in, place), permuted(in, next)};
  const Px more = load_some(at + 4 * Px::lanes, sw - base - static_cast<int32_t>(Px::lanes));
  return {permuted(in, more, place), permuted(in, more, next)};
}
#if defined(__AVX512F__)
TESSARO_INLINE Px gathered(const uint8_t* src, Px where) { return {_mm512_i32gather_epi32(where.v, src, 4)}; }
#else
TESSARO_INLINE Px gathered(const uint8_t* src, Px where) {
  return {_mm256_i32gather_epi32(reinterpret_cast<const int*>(src), where.v, 4)};
}
#endif
template <>
TESSARO_INLINE Neighbours<Px> neighbours<0>(const uint8_t* src, int32_t, int32_t, Px where) {
  return {gathered(src, where), gathered(src + 4, where)};
}

template <int vectors>
TESSARO_INLINE void interpolate_within(uint32_t* out, const uint8_t* src, const Bilinear& b,
                                       ptrdiff_t ahead) {
  const auto width = static_cast<size_t>(b.area.dw);
  const uint32_t *columns = b.room, *weights = b.room + width;
  const auto between = [&](size_t x, Px where, Px weight) {
    prefetch<vectors == 0 ? 4 : 2>(src + 4 * static_cast<size_t>(columns[x]), ahead);
    const Neighbours<Px> n = neighbours<vectors>(src, b.area.sw, static_cast<int32_t>(columns[x]), where);
    return mix(n.left, n.right, halves(weight));
  };
  size_t x = 0;
  for (; x + Px::lanes <= width; x += Px::lanes)
    between(x, Px::load(columns + x), Px::load(weights + x)).store(out + x);
  if (const size_t rest = width - x)
    between(x, Px::load(columns + x, rest), Px::load(weights + x, rest)).store(out + x, rest);
}
#endif

// One row of the source at the destination's columns; the row that is wanted next lies `ahead`.
TESSARO_INLINE void interpolate(uint32_t* out, const uint8_t* src, const Bilinear& b,
                                [[maybe_unused]] ptrdiff_t ahead) {
#ifdef TESSARO_PERMUTES
  // Where the neighbours of a vector lie within one or two vectors of the source, they are loads and permutations.
  const int32_t span = ((static_cast<int32_t>(Px::lanes) - 1) * b.x.step >> 12) + 3;
  if (span <= static_cast<int32_t>(Px::lanes)) return interpolate_within<1>(out, src, b, ahead);
  if (span <= static_cast<int32_t>(2 * Px::lanes)) return interpolate_within<2>(out, src, b, ahead);
  return interpolate_within<0>(out, src, b, ahead);
#else
  const auto width = static_cast<size_t>(b.area.dw);
  const uint32_t *columns = b.room, *weights = b.room + width;
  for (size_t x = 0; x < width; ++x) {
    const uint8_t* at = src + 4 * static_cast<ptrdiff_t>(columns[x]);
    mix(One::load(at), One::load(at + 4), One::Half{weights[x]}).store(out + x);
  }
#endif
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
  struct Kept {
    uint32_t* pixels;
    int32_t row;
  };
  Kept upper = {b.room + 2 * width, -1}, lower = {b.room + 3 * width, -1};
  const auto fill = [&](Kept& kept, int32_t row, int32_t next) {
    if (kept.row != row) interpolate(kept.pixels, row_of(row), b, (next - row) * n.src_pitch);
    kept.row = row;
  };
  const Rule<Px> rule{args...};
  const RowWriter write(n.dw, n.dh);
  const bool prepared = std::same_as<Rule<Px>, Replace<Px>> && write.passes_caches();
  alignas(64) uint8_t pixels[4 * part_width];
  for (int32_t i = 0; i < n.dh; ++i, dst += n.dst_pitch) {
    const int32_t row = b.y.pixel(i);
    if (upper.row != row && lower.row == row) {
      const Kept t = upper;
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
      row3<Px>(dst, top, bottom, width, between);
      continue;
    }
    for (size_t x = 0; x < width; x += part_width) {
      const size_t part = width - x < part_width ? width - x : part_width;
      row3<Px>(pixels, top + 4 * x, bottom + 4 * x, part, between);
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
