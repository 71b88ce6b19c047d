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

TESSARO_INLINE void map_columns(const Stretch& n) {
  Steps column(n.sw, n.dw);
  for (int32_t j = 0; j < n.dw; ++j, column.next()) n.columns[j] = column.at;
}

// The pixels of `in` at places `where` - base, of which there are `count` from `in` on. Lanes ahead of the map's end may ask
// for anything.
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
template <bool two>
TESSARO_INLINE Px sampled(const uint8_t* src, int32_t sw, int32_t base, Px where) {
  const uint8_t* at = src + 4 * static_cast<ptrdiff_t>(base);
  const Px in = load_some(at, sw - base);
  const Px place = minus(where, Px::splat(static_cast<uint32_t>(base)));
  if constexpr (two)
    return permuted(in, load_some(at + 4 * Px::lanes, sw - base - static_cast<int32_t>(Px::lanes)), place);
  else
    return permuted(in, place);
}
template <bool two>
TESSARO_INLINE void sample_within(uint8_t* out, const uint8_t* src, int32_t sw, const int32_t* columns,
                                  size_t width) {
  size_t x = 0;
  for (; x + Px::lanes <= width; x += Px::lanes)
    sampled<two>(src, sw, columns[x], Px::load(columns + x)).store(out + 4 * x);
  if (const size_t rest = width - x)
    sampled<two>(src, sw, columns[x], Px::load(columns + x, rest)).store(out + 4 * x, rest);
}
#endif

// Copies the samples of a part of a row: out[x] = src[columns[x]].
TESSARO_INLINE void sample(uint8_t* out, const uint8_t* src, [[maybe_unused]] const Stretch& n,
                           const int32_t* columns, size_t width) {
#ifdef TESSARO_PERMUTES
  // Where the samples of a vector lie within one or two vectors of the source, they are loads and a permutation.
  const int64_t span = (static_cast<int64_t>(Px::lanes) - 1) * n.sw / n.dw + 2;
  if (span <= static_cast<int64_t>(Px::lanes) + (n.sw % n.dw == 0 ? 1 : 0))
    return sample_within<false>(out, src, n.sw, columns, width);
  if (span <= static_cast<int64_t>(2 * Px::lanes) + (n.sw % n.dw == 0 ? 1 : 0))
    return sample_within<true>(out, src, n.sw, columns, width);
#endif
  for (size_t x = 0; x < width; ++x) {
    const One pixel = One::load(src + 4 * static_cast<ptrdiff_t>(columns[x]));
    pixel.store(out + 4 * x);
  }
}

inline constexpr int32_t part_width = 1024;  // pixels; stays in the first cache

// Calls body<P>(dst, src, x, width, i) for every part of every destination row, top to bottom: width pixels from column x
// of row i, their destination and their samples. P is One where a row reads what it writes. With `in_place`, samples are
// put straight into the first of the rows that show them, and that row is left to be as it is.
template <class V, bool in_place = false, class Body>
TESSARO_INLINE void for_samples(const Stretch& n, const Body& body) {
  Steps row(n.sh, n.dh);
  if (n.dw == n.sw) {
    uint8_t* dst = n.dst;
    for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      if (reads_own_writes(dst, src, 4 * V::lanes)) [[unlikely]]
        body.template operator()<One>(dst, src, 0, n.dw, i);
      else
        body.template operator()<V>(dst, src, 0, n.dw, i);
    }
  } else if (n.shared || !n.columns) {
    uint8_t* dst = n.dst;
    for (int32_t i = 0; i < n.dh; ++i, row.next(), dst += n.dst_pitch) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      Steps column(n.sw, n.dw);
      for (int32_t j = 0; j < n.dw; ++j, column.next())
        body.template operator()<One>(dst + 4 * static_cast<ptrdiff_t>(j),
                                      src + 4 * static_cast<ptrdiff_t>(column.at), j, 1, i);
    }
  } else {
    map_columns(n);
    alignas(64) uint8_t samples[4 * part_width];
    for (int32_t i = 0; i < n.dh;) {
      const uint8_t* src = n.src + row.at * n.src_pitch;
      const int32_t from = i, at = row.at;
      for (; i < n.dh && row.at == at; ++i) row.next();
      for (int32_t x = 0; x < n.dw; x += part_width) {
        const int32_t width = n.dw - x < part_width ? n.dw - x : part_width;
        uint8_t* dst = n.dst + from * n.dst_pitch + 4 * static_cast<ptrdiff_t>(x);
        uint8_t* into = in_place ? dst : samples;
        sample(into, src, n, n.columns + x, static_cast<size_t>(width));
        if (in_place) dst += n.dst_pitch;
        for (int32_t k = from + in_place; k < i; ++k, dst += n.dst_pitch)
          body.template operator()<V>(dst, into, x, width, k);
      }
    }
  }
}

// dst[x] = rule(dst[x], sample[x])
template <class V, template <class> class Rule, bool in_place = false, class... Args>
TESSARO_INLINE void stretch(const Stretch& n, const Args&... args) {
  const Rule<V> rule{args...};
  const Rule<One> one{args...};
  for_samples<V, in_place>(n,
                           [&]<class P>(uint8_t* dst, const uint8_t* src, int32_t, int32_t width, int32_t) {
                             if constexpr (std::same_as<P, V>)
                               row2<P>(dst, src, static_cast<size_t>(width), rule);
                             else
                               row2<P>(dst, src, static_cast<size_t>(width), one);
                           });
}

}  // namespace
