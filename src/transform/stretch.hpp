// The nearest-sample walk for kernels: which source row and column come next, and the loops that bring samples to a rule.
#pragma once

#include "simd/walk.hpp"
#include "transform/expand.hpp"

namespace {

using tessaro::Stretch;

// Walks floor(i * from / to) without a division a step.
struct Steps {
  int32_t whole, rest, to;
  int32_t at = 0, error = 0;
  TESSARO_INLINE Steps(int32_t from, int32_t onto) : whole(from / onto), rest(from % onto), to(onto) {}
  TESSARO_INLINE void next() {
    at += whole;
    error += rest;
    if (error >= to) {
      error -= to;
      ++at;
    }
  }
};

#if defined(__AVX512F__)
TESSARO_INLINE Px permuted(Px in, Px where) { return {_mm512_permutexvar_epi32(where.v, in.v)}; }
TESSARO_INLINE Px permuted(Px in, Px more, Px where) {
  return {_mm512_permutex2var_epi32(in.v, where.v, more.v)};
}
TESSARO_INLINE Px minus(Px a, Px b) { return {_mm512_sub_epi32(a.v, b.v)}; }
#define TESSARO_PERMUTES
#elif defined(__AVX2__)
TESSARO_INLINE Px permuted(Px in, Px where) { return {_mm256_permutevar8x32_epi32(in.v, where.v)}; }
TESSARO_INLINE Px permuted(Px in, Px more, Px where) {
  // Bit 3 of a place chooses the second eight.
  return {_mm256_castps_si256(_mm256_blendv_ps(_mm256_castsi256_ps(permuted(in, where).v),
                                               _mm256_castsi256_ps(permuted(more, where).v),
                                               _mm256_castsi256_ps(_mm256_slli_epi32(where.v, 28))))};
}
TESSARO_INLINE Px minus(Px a, Px b) { return {_mm256_sub_epi32(a.v, b.v)}; }
#define TESSARO_PERMUTES
#endif

#ifdef TESSARO_PERMUTES
// count may be anything; reads nothing where it is not positive.
TESSARO_INLINE Px load_some(const uint8_t* at, int32_t count) {
  constexpr auto lanes = static_cast<int32_t>(Px::lanes);
  return count >= lanes ? Px::load(at) : Px::load(at, count > 0 ? static_cast<size_t>(count) : 0);
}

// The samples of a row, where those of each vector lie within one or two vectors of the source: loads and a permutation.
template <int vectors>
struct Permuted {
  const uint8_t* src;
  int32_t sw;
  const int32_t *places, *bases;
  TESSARO_INLINE Px at(size_t x, Px place) const {
    const int32_t base = bases[x / Px::lanes], left = sw - base;
    const uint8_t* from = src + 4 * static_cast<ptrdiff_t>(base);
    if constexpr (vectors == 1)
      return permuted(load_some(from, left), place);
    else
      return permuted(load_some(from, left),
                      load_some(from + 4 * Px::lanes, left - static_cast<int32_t>(Px::lanes)), place);
  }
  TESSARO_INLINE Px operator()(size_t x) const { return at(x, Px::load(places + x)); }
  TESSARO_INLINE Px operator()(size_t x, size_t n) const { return at(x, Px::load(places + x, n)); }
};

// dst[x] = rule(dst[x], sample[x])
template <class Samples, class Rule>
TESSARO_INLINE void row_of_samples(uint8_t* dst, const Samples& samples, size_t from, size_t width,
                                   const Rule& rule) {
  size_t x = 0;
  for (; x + Px::lanes <= width; x += Px::lanes)
    rule(Px::load(dst + 4 * x), samples(from + x)).store(dst + 4 * x);
  if (const size_t rest = width - x)
    rule(Px::load(dst + 4 * x, rest), samples(from + x, rest)).store(dst + 4 * x, rest);
}
#endif

// The source columns of a call, made once.
struct ColumnMap {
  int vectors = 0;  // 1 or 2: by Permuted; 0: one pixel at a time
  const int32_t *columns, *bases;
  TESSARO_INLINE explicit ColumnMap(const Stretch& n) : columns(n.columns), bases(n.columns + n.dw) {
    Steps column(n.sw, n.dw);
    for (int32_t j = 0; j < n.dw; ++j, column.next()) n.columns[j] = column.at;
#ifdef TESSARO_PERMUTES
    constexpr auto lanes = static_cast<int32_t>(Px::lanes);
    const int64_t reach = static_cast<int64_t>(lanes - 1) * n.sw;
    const int64_t span = reach / n.dw + (n.sw % n.dw == 0 ? 1 : 2);
    vectors = span <= lanes ? 1 : span <= 2 * lanes ? 2 : 0;
    if (vectors == 0) return;
    for (int32_t j = 0, k = n.dw; j < n.dw; j += lanes, ++k) {
      const int32_t base = n.columns[j];
      int32_t* at = n.columns + j;
      n.columns[k] = base;
      const Px from = Px::splat(static_cast<uint32_t>(base));
      if (n.dw - j >= lanes)
        minus(Px::load(at), from).store(at);
      else
        minus(Px::load(at, static_cast<size_t>(n.dw - j)), from).store(at, static_cast<size_t>(n.dw - j));
    }
#endif
  }
#ifdef TESSARO_PERMUTES
  // rule(d, s) with samples straight from the source.
  template <class Rule>
  TESSARO_INLINE void row(uint8_t* dst, const uint8_t* src, const Stretch& n, size_t from, size_t width,
                          const Rule& rule) const {
    if (vectors == 1)
      row_of_samples(dst, Permuted<1>{src, n.sw, columns, bases}, from, width, rule);
    else
      row_of_samples(dst, Permuted<2>{src, n.sw, columns, bases}, from, width, rule);
  }
#endif
  // out[x] = sample[from + x]; `from` is a multiple of every vector.
  TESSARO_INLINE void sample(uint8_t* out, const uint8_t* src, [[maybe_unused]] const Stretch& n, size_t from,
                             size_t width) const {
#ifdef TESSARO_PERMUTES
    if (vectors != 0) return row(out, src, n, from, width, Replace<Px>{});
#endif
    for (size_t x = 0; x < width; ++x)
      One::load(src + 4 * static_cast<ptrdiff_t>(columns[from + x])).store(out + 4 * x);
  }
};

inline constexpr int32_t part_width = 1024;  // pixels; stays in the first cache

// Calls body<P>(dst, src, x, width, i) for every part of every destination row, top to bottom: width pixels from column x
// of row i, their destination and their samples. P is One where a row reads what it writes.
template <class V, class Body>
TESSARO_INLINE void for_samples(const Stretch& n, const Body& body) {
  Steps row(n.sh, n.dh);
  uint8_t* dst = n.dst;
  if (n.dw == n.sw) {
    for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      if (reads_own_writes(dst, src, 4 * V::lanes)) [[unlikely]]
        body.template operator()<One>(dst, src, 0, n.dw, i);
      else
        body.template operator()<V>(dst, src, 0, n.dw, i);
    }
  } else if (n.shared || !n.columns) {
    for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      Steps column(n.sw, n.dw);
      for (int32_t j = 0; j < n.dw; ++j, column.next())
        body.template operator()<One>(dst + 4 * static_cast<ptrdiff_t>(j),
                                      src + 4 * static_cast<ptrdiff_t>(column.at), j, 1, i);
    }
  } else {
    const ColumnMap columns(n);
    alignas(64) uint8_t samples[4 * part_width];
    for (int32_t i = 0; i < n.dh;) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      const int32_t from = i, at = row.at;
      for (; i < n.dh && row.at == at; ++i) row.next();
      for (int32_t x = 0; x < n.dw; x += part_width) {
        const int32_t width = n.dw - x < part_width ? n.dw - x : part_width;
        columns.sample(samples, src, n, static_cast<size_t>(x), static_cast<size_t>(width));
        dst = n.dst + from * n.dst_pitch + 4 * static_cast<ptrdiff_t>(x);
        for (int32_t k = from; k < i; ++k, dst += n.dst_pitch)
          body.template operator()<V>(dst, samples, x, width, k);
      }
    }
  }
}

// dst[x] = rule(dst[x], sample[x])
template <class V, template <class> class Rule, class... Args>
TESSARO_INLINE void stretch(const Stretch& n, const Args&... args) {
  const Rule<V> rule{args...};
  const Rule<One> one{args...};
  for_samples<V>(n, [&]<class P>(uint8_t* dst, const uint8_t* src, int32_t, int32_t width, int32_t) {
    if constexpr (std::same_as<P, V>)
      row2<P>(dst, src, static_cast<size_t>(width), rule);
    else
      row2<P>(dst, src, static_cast<size_t>(width), one);
  });
}

// The same for short rules, which are worth the samples' way through registers.
template <template <class> class Rule, class... Args>
TESSARO_INLINE void stretch_short(const Stretch& n, const Args&... args) {
#ifdef TESSARO_PERMUTES
  // Close columns only; the others' samples would be fetched again for each row that shows them.
  if (n.dw != n.sw && !n.shared && n.columns && n.sw < 2 * static_cast<int64_t>(n.dw)) {
    const ColumnMap columns(n);
    const Rule<Px> rule{args...};
    Steps row(n.sh, n.dh);
    uint8_t* dst = n.dst;
    for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch)
      columns.row(dst, n.src + row.at * n.src_pitch, n, 0, static_cast<size_t>(n.dw), rule);
    return;
  }
#endif
  stretch<Px, Rule>(n, args...);
}

// A copy with aligned stores: where the pitch is no multiple of a vector, unaligned ones would cross two lines of the cache
// each.
TESSARO_INLINE void copy_row(uint8_t* dst, const uint8_t* src, size_t width) {
  const size_t ahead = -reinterpret_cast<uintptr_t>(dst) / 4 % Px::lanes;
  if (ahead != 0 && ahead < width) {
    Px::load(src, ahead).store(dst, ahead);
    dst += 4 * ahead;
    src += 4 * ahead;
    width -= ahead;
  }
  row2<Px>(dst, src, width, Replace<Px>{});
}

// Rows that show the same source row are copies of the first.
TESSARO_INLINE void stretch_copy(const Stretch& n) {
  if (n.dw == n.sw || n.shared || !n.columns) return stretch<Px, Replace>(n);
  const ColumnMap columns(n);
  const auto width = static_cast<size_t>(n.dw);
  Steps row(n.sh, n.dh);
  uint8_t* dst = n.dst;
  int32_t shown = -1;
  for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
    if (row.at == shown)
      copy_row(dst, dst - n.dst_pitch, width);
    else
      columns.sample(dst, n.src + row.at * n.src_pitch, n, 0, width);
    shown = row.at;
  }
}

}  // namespace
