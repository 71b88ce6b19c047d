// The nearest-sample walk for kernels: which source row and column come next, and the loops that bring
// samples to a rule.
#pragma once

#include "simd/rows.hpp"
#include "transform/stretch.hpp"

namespace {

using tessaro::Stretch;

// floor(i * from / to) for i = 0, 1, 2 ..., without a division a step.
struct ScaledIndex {
  int32_t whole, rest, to;
  int32_t at = 0, error = 0;
  TESSARO_INLINE ScaledIndex(int32_t from, int32_t onto) : whole(from / onto), rest(from % onto), to(onto) {}
  TESSARO_INLINE void next() {
    at += whole;
    error += rest;
    if (error >= to) {
      error -= to;
      ++at;
    }
  }
};

// The first `count` pixels, which may be any number: as many of them as there are lanes, and none where it is
// negative.
template <class P>
TESSARO_INLINE P load_within(const uint8_t* at, int32_t count) {
  constexpr auto lanes = static_cast<int32_t>(P::lanes);
  return count >= lanes ? P::load(at) : P::load(at, count > 0 ? static_cast<size_t>(count) : 0);
}

// So many lines that a vector reads, in the row that is wanted next: the processor's own guesses end with the
// page and run on into rows that are left out.
template <int lines>
TESSARO_INLINE void prefetch(const uint8_t* at, ptrdiff_t ahead) {
  // It may lie outside the image.
  const auto place = reinterpret_cast<uintptr_t>(at) + static_cast<uintptr_t>(ahead);
  for (uintptr_t k = 0; k < lines; ++k)
    __builtin_prefetch(reinterpret_cast<const void*>(place + 64 * k), 0, 2);
}

// A few vectors of a source row, from which pixels are picked by their places.
template <class P, int count>
struct Loaded {
  P in[count];
  TESSARO_INLINE explicit Loaded(const uint8_t* at) {
    for (int k = 0; k < count; ++k) in[k] = P::load(at + 4 * P::lanes * static_cast<size_t>(k));
  }
  TESSARO_INLINE Loaded(const uint8_t* at, int32_t width) {
    constexpr auto lanes = static_cast<int32_t>(P::lanes);
    for (int k = 0; k < count; ++k) in[k] = load_within<P>(at + 4 * lanes * k, width - lanes * k);
  }
  TESSARO_INLINE P operator[](P place) const {
    if constexpr (count == 1) return picked(in[0], place);
    if constexpr (count == 2) return picked(in[0], in[1], place);
    if constexpr (count == 4)
      return select(above(place, P::splat(2 * P::lanes - 1)), picked(in[2], in[3], place),
                    picked(in[0], in[1], place));
  }
};

// The source columns of a call, made once.
template <class P>
struct ColumnMap {
  static constexpr auto lanes = static_cast<int32_t>(P::lanes);
  // So many vectors of the source hold the samples of a vector: loads and permutations. 0: one pixel at a
  // time.
  int vectors = 0;
  bool whole_row = false;  // they hold all of a row that is shorter
  int32_t sw;
  const int32_t *columns, *bases;  // columns count from the base of their vector, where there are any
  TESSARO_INLINE explicit ColumnMap(const Stretch& n)
      : sw(n.sw), columns(n.columns), bases(n.columns + n.dw) {
    ScaledIndex column(n.sw, n.dw);
    for (int32_t j = 0; j < n.dw; ++j, column.next()) n.columns[j] = column.at;
    if constexpr (P::permutes) {
      // From the first to the last sample of a vector: lanes - 1 steps of sw / dw, and one pixel more where
      // rounding may fall either way.
      int64_t span = n.sw;
      if (n.sw > lanes) {
        const int64_t reach = static_cast<int64_t>(lanes - 1) * n.sw / n.dw + (column.rest == 0 ? 1 : 2);
        if (reach < span) span = reach;
      }
      vectors = span <= lanes ? 1 : span <= 2 * lanes ? 2 : span <= 4 * lanes ? 4 : 0;
      whole_row = n.sw <= vectors * lanes;
      if (vectors == 0 || whole_row) return;
      const int32_t last_base = n.sw - vectors * lanes;
      for (int32_t j = 0, k = n.dw; j < n.dw; j += lanes, ++k) {
        int32_t* at = n.columns + j;
        const int32_t base = *at < last_base ? *at : last_base;
        n.columns[k] = base;
        const P from = P::splat(static_cast<uint32_t>(base));
        if (n.dw - j >= lanes)
          sub32(P::load(at), from).store(at);
        else
          sub32(P::load(at, static_cast<size_t>(n.dw - j)), from).store(at, static_cast<size_t>(n.dw - j));
      }
    }
  }
  // dst[x] = rule(dst[x], sample[from + x]), where there are vectors; `from` is a multiple of every vector.
  // The row that is wanted next lies `ahead`.
  template <bool fetches_ahead = false, class Rule>
  TESSARO_INLINE void row(uint8_t* dst, const uint8_t* src, size_t from, size_t width, const Rule& rule,
                          ptrdiff_t ahead = 0) const {
    if (vectors == 1)
      row_of<1, fetches_ahead>(dst, src, from, width, rule, ahead);
    else if (vectors == 2)
      row_of<2, fetches_ahead>(dst, src, from, width, rule, ahead);
    else
      row_of<4, fetches_ahead>(dst, src, from, width, rule, ahead);
  }
  template <int count, bool fetches_ahead, class Rule>
  TESSARO_INLINE void row_of(uint8_t* dst, const uint8_t* src, size_t from, size_t width, const Rule& rule,
                             [[maybe_unused]] ptrdiff_t ahead) const {
    if (whole_row) {
      const Loaded<P, count> row(src, sw);
      pick(dst, from, width, rule, [&](size_t) { return row; });
    } else {
      pick(dst, from, width, rule, [&](size_t x) {
        const uint8_t* at = src + 4 * static_cast<ptrdiff_t>(bases[(from + x) / P::lanes]);
        if constexpr (fetches_ahead) prefetch<count>(at, ahead);
        return Loaded<P, count>(at);
      });
    }
  }
  template <class Rule, class Load>
  TESSARO_INLINE void pick(uint8_t* dst, size_t from, size_t width, const Rule& rule,
                           const Load& loaded) const {
    size_t x = 0;
    for (; x + P::lanes <= width; x += P::lanes)
      rule(P::load(dst + 4 * x), loaded(x)[P::load(columns + from + x)]).store(dst + 4 * x);
    if (const size_t rest = width - x)
      rule(P::load(dst + 4 * x, rest), loaded(x)[P::load(columns + from + x, rest)]).store(dst + 4 * x, rest);
  }
  // out[x] = sample[from + x]
  template <bool fetches_ahead = false>
  TESSARO_INLINE void sample(uint8_t* out, const uint8_t* src, size_t from, size_t width,
                             [[maybe_unused]] ptrdiff_t ahead = 0) const {
    if constexpr (P::permutes)
      if (vectors != 0) return row<fetches_ahead>(out, src, from, width, Replace<P>{}, ahead);
    for (size_t x = 0; x < width; ++x)
      One::load(src + 4 * static_cast<ptrdiff_t>(columns[from + x])).store(out + 4 * x);
  }
};

inline constexpr int32_t part_width = 1024;  // pixels; stays in the first cache

// Calls body<P>(dst, src, x, width, i) for every part of every destination row, top to bottom: width pixels
// from column x of row i, their destination and their samples. P is One where a row reads what it writes.
template <class V, class Body>
TESSARO_INLINE void for_samples(const Stretch& n, const Body& body) {
  ScaledIndex row(n.sh, n.dh);
  uint8_t* dst = n.dst;
  if (n.dw == n.sw) {
    for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      if (reads_own_writes(dst, src, 4 * V::lanes)) [[unlikely]]
        body.template operator()<One>(dst, src, 0, n.dw, i);
      else
        body.template operator()<V>(dst, src, 0, n.dw, i);
    }
  } else if (!n.columns) {
    for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      ScaledIndex column(n.sw, n.dw);
      for (int32_t j = 0; j < n.dw; ++j, column.next())
        body.template operator()<One>(dst + 4 * static_cast<ptrdiff_t>(j),
                                      src + 4 * static_cast<ptrdiff_t>(column.at), j, 1, i);
    }
  } else {
    const ColumnMap<Px> columns(n);
    alignas(64) uint8_t samples[4 * part_width];
    for (int32_t i = 0; i < n.dh;) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      const int32_t from = i, at = row.at;
      for (; i < n.dh && row.at == at; ++i) row.next();
      const ptrdiff_t ahead = (row.at - at) * n.src_pitch;
      for (int32_t x = 0; x < n.dw; x += part_width) {
        const int32_t width = n.dw - x < part_width ? n.dw - x : part_width;
        columns.sample<true>(samples, src, static_cast<size_t>(x), static_cast<size_t>(width), ahead);
        dst = n.dst + from * n.dst_pitch + 4 * static_cast<ptrdiff_t>(x);
        for (int32_t k = from; k < i; ++k, dst += n.dst_pitch)
          body.template operator()<V>(dst, samples, x, width, k);
      }
    }
  }
}

// Rows by a rule. Inlined, or the rule would be read from memory for every vector: the pixels might be
// written over it.
template <class V, template <class> class Rule>
struct RowsByRule {
  Rule<V> rule;
  Rule<One> one;
  template <class P>
  TESSARO_INLINE void operator()(uint8_t* dst, const uint8_t* src, int32_t, int32_t width, int32_t) const {
    if constexpr (std::same_as<P, V>)
      walk_row<P>(dst, static_cast<size_t>(width), rule, src);
    else
      walk_row<P>(dst, static_cast<size_t>(width), one, src);
  }
};

// dst[x] = rule(dst[x], sample[x])
template <class V, template <class> class Rule, class... Args>
TESSARO_INLINE void stretch(const Stretch& n, const Args&... args) {
  for_samples<V>(n, RowsByRule<V, Rule>{Rule<V>{args...}, Rule<One>{args...}});
}

// The same for short rules, which are worth the samples' way through registers.
template <template <class> class Rule, class... Args>
TESSARO_INLINE void stretch_short(const Stretch& n, const Args&... args) {
  // The samples of rows that are shown often are better kept.
  if (Px::permutes && n.columns && n.dh < 2 * static_cast<int64_t>(n.sh)) {
    if (const ColumnMap<Px> columns(n); columns.vectors != 0) {
      const Rule<Px> rule{args...};
      ScaledIndex row(n.sh, n.dh);
      uint8_t* dst = n.dst;
      for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch)
        columns.row(dst, n.src + row.at * n.src_pitch, 0, static_cast<size_t>(n.dw), rule);
      return;
    }
  }
  stretch<Px, Rule>(n, args...);
}

TESSARO_INLINE void stretch_copy(const Stretch& n) {
  if (!n.columns) return stretch<Px, Replace>(n);
  const RowWriter write(n.dw, n.dh);
  if (write.passes_caches())
    return for_samples<Px>(n, [&]<class P>(uint8_t* dst, const uint8_t* src, int32_t, int32_t width,
                                           int32_t) { write(dst, src, static_cast<size_t>(width)); });
  // In the caches, rows that show the same source row are copies of the first.
  const ColumnMap<Px> columns(n);
  const auto width = static_cast<size_t>(n.dw);
  ScaledIndex row(n.sh, n.dh);
  uint8_t* dst = n.dst;
  int32_t shown = -1;
  for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
    if (row.at == shown)
      write(dst, dst - n.dst_pitch, width);
    else
      columns.sample(dst, n.src + row.at * n.src_pitch, 0, width);
    shown = row.at;
  }
}

}  // namespace
