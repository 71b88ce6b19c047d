// kernels: TurnKernels for scalar sse2 avx2 avx512
#include "pixel/turn.hpp"

#include "simd/walk.hpp"

namespace {

using tessaro::Area;
using tessaro::AreaPair;

// reversed: the last pixel first. transpose_square: rows become columns.
#if TESSARO_LANES == 16
TESSARO_INLINE Px reversed(Px a) {
  return {
      _mm512_permutexvar_epi32(_mm512_set_epi32(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15), a.v)};
}
TESSARO_INLINE void transpose_square(Px (&r)[16]) {
  __m512i t[16];
  for (int i = 0; i < 16; i += 4) {  // squares of 4 x 4 within 128 bits
    const __m512i a = _mm512_unpacklo_epi32(r[i].v, r[i + 1].v),
                  b = _mm512_unpackhi_epi32(r[i].v, r[i + 1].v);
    const __m512i c = _mm512_unpacklo_epi32(r[i + 2].v, r[i + 3].v),
                  d = _mm512_unpackhi_epi32(r[i + 2].v, r[i + 3].v);
    t[i] = _mm512_unpacklo_epi64(a, c);
    t[i + 1] = _mm512_unpackhi_epi64(a, c);
    t[i + 2] = _mm512_unpacklo_epi64(b, d);
    t[i + 3] = _mm512_unpackhi_epi64(b, d);
  }
  for (int i = 0; i < 4; ++i) {  // and a square of those
    const __m512i a = _mm512_shuffle_i32x4(t[i], t[i + 4], 0x44),
                  b = _mm512_shuffle_i32x4(t[i], t[i + 4], 0xEE);
    const __m512i c = _mm512_shuffle_i32x4(t[i + 8], t[i + 12], 0x44),
                  d = _mm512_shuffle_i32x4(t[i + 8], t[i + 12], 0xEE);
    r[i].v = _mm512_shuffle_i32x4(a, c, 0x88);
    r[i + 4].v = _mm512_shuffle_i32x4(a, c, 0xDD);
    r[i + 8].v = _mm512_shuffle_i32x4(b, d, 0x88);
    r[i + 12].v = _mm512_shuffle_i32x4(b, d, 0xDD);
  }
}
#elif TESSARO_LANES == 8
TESSARO_INLINE Px reversed(Px a) {
  return {_mm256_permutevar8x32_epi32(a.v, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0))};
}
TESSARO_INLINE void transpose_square(Px (&r)[8]) {
  __m256i t[8];
  for (int i = 0; i < 8; i += 4) {  // squares of 4 x 4 within 128 bits
    const __m256i a = _mm256_unpacklo_epi32(r[i].v, r[i + 1].v),
                  b = _mm256_unpackhi_epi32(r[i].v, r[i + 1].v);
    const __m256i c = _mm256_unpacklo_epi32(r[i + 2].v, r[i + 3].v),
                  d = _mm256_unpackhi_epi32(r[i + 2].v, r[i + 3].v);
    t[i] = _mm256_unpacklo_epi64(a, c);
    t[i + 1] = _mm256_unpackhi_epi64(a, c);
    t[i + 2] = _mm256_unpacklo_epi64(b, d);
    t[i + 3] = _mm256_unpackhi_epi64(b, d);
  }
  for (int i = 0; i < 4; ++i) {  // and a square of those
    r[i].v = _mm256_permute2x128_si256(t[i], t[i + 4], 0x20);
    r[i + 4].v = _mm256_permute2x128_si256(t[i], t[i + 4], 0x31);
  }
}
#elif TESSARO_LANES == 4
TESSARO_INLINE Px reversed(Px a) { return {_mm_shuffle_epi32(a.v, 0x1B)}; }
TESSARO_INLINE void transpose_square(Px (&r)[4]) {
  const __m128i a = _mm_unpacklo_epi32(r[0].v, r[1].v), b = _mm_unpackhi_epi32(r[0].v, r[1].v);
  const __m128i c = _mm_unpacklo_epi32(r[2].v, r[3].v), d = _mm_unpackhi_epi32(r[2].v, r[3].v);
  r[0].v = _mm_unpacklo_epi64(a, c);
  r[1].v = _mm_unpackhi_epi64(a, c);
  r[2].v = _mm_unpacklo_epi64(b, d);
  r[3].v = _mm_unpackhi_epi64(b, d);
}
#else
TESSARO_INLINE Px reversed(Px a) { return a; }
TESSARO_INLINE void transpose_square(Px (&)[1]) {}
#endif

void mirror(const Area& n) {
  constexpr ptrdiff_t lanes = Px::lanes;
  uint8_t* row = n.at;
  for (ptrdiff_t y = 0; y < n.height; ++y, row += n.pitch) {
    // Pixels from left to right - 1 are still to be exchanged. In the last step the two vectors may overlap, and
    // then agree on what lies in both.
    uint8_t *left = row, *right = row + 4 * n.width;
    for (; right - left >= 4 * lanes; left += 4 * lanes, right -= 4 * lanes) {
      const Px a = Px::load(left), b = Px::load(right - 4 * lanes);
      reversed(b).store(left);
      reversed(a).store(right - 4 * lanes);
    }
    for (; right - left >= 8; left += 4, right -= 4) {
      const One a = One::load(left), b = One::load(right - 4);
      b.store(left);
      a.store(right - 4);
    }
  }
}

template <class P>
TESSARO_INLINE void swap_rows(uint8_t* a, uint8_t* b, size_t width) {
  size_t x = 0;
  for (; x + P::lanes <= width; x += P::lanes) {
    const P p = P::load(a + 4 * x), q = P::load(b + 4 * x);
    q.store(a + 4 * x);
    p.store(b + 4 * x);
  }
  if (const size_t rest = width - x) {
    const P p = P::load(a + 4 * x, rest), q = P::load(b + 4 * x, rest);
    q.store(a + 4 * x, rest);
    p.store(b + 4 * x, rest);
  }
}
void swap_rows(uint8_t* a, uint8_t* b, size_t width) {
  // Rows of an image may run into one another.
  if (reads_own_writes(a, b, 4 * Px::lanes) || reads_own_writes(b, a, 4 * Px::lanes)) [[unlikely]]
    swap_rows<One>(a, b, width);
  else
    swap_rows<Px>(a, b, width);
}

void half_turn(const AreaPair& n) {
  constexpr ptrdiff_t lanes = Px::lanes;
  const uint8_t* src = n.src;
  uint8_t* dst = n.dst + n.dst_pitch * (n.height - 1) + 4 * n.width;  // behind the row
  for (ptrdiff_t y = 0; y < n.height; ++y, src += n.src_pitch, dst -= n.dst_pitch) {
    ptrdiff_t x = 0;
    for (; x + lanes <= n.width; x += lanes) reversed(Px::load(src + 4 * x)).store(dst - 4 * (x + lanes));
    for (; x < n.width; ++x) One::load(src + 4 * x).store(dst - 4 * (x + 1));
  }
}

// A tile of at most lanes x lanes pixels.
TESSARO_INLINE void transpose_tile(uint8_t* dst, ptrdiff_t dst_pitch, const uint8_t* src, ptrdiff_t src_pitch,
                                   size_t width, size_t height) {
  constexpr size_t lanes = Px::lanes;
  Px rows[lanes];
  if (width == lanes && height == lanes) {
    for (size_t i = 0; i < lanes; ++i) rows[i] = Px::load(src + static_cast<ptrdiff_t>(i) * src_pitch);
    transpose_square(rows);
    for (size_t i = 0; i < lanes; ++i) rows[i].store(dst + static_cast<ptrdiff_t>(i) * dst_pitch);
  } else {
    for (size_t i = 0; i < lanes; ++i)
      rows[i] = i >= height      ? Px::splat(0)
                : width == lanes ? Px::load(src + static_cast<ptrdiff_t>(i) * src_pitch)
                                 : Px::load(src + static_cast<ptrdiff_t>(i) * src_pitch, width);
    transpose_square(rows);
    for (size_t i = 0; i < width; ++i) {
      if (height == lanes)
        rows[i].store(dst + static_cast<ptrdiff_t>(i) * dst_pitch);
      else
        rows[i].store(dst + static_cast<ptrdiff_t>(i) * dst_pitch, height);
    }
  }
}

// Blocks keep the pages of all their rows within reach; tiles write whole cache lines.
void transpose(const AreaPair& n) {
  constexpr ptrdiff_t lanes = Px::lanes, block = 64;
  const auto least = [](ptrdiff_t a, ptrdiff_t b) { return a < b ? a : b; };
  for (ptrdiff_t y0 = 0; y0 < n.height; y0 += block)
    for (ptrdiff_t x0 = 0; x0 < n.width; x0 += block) {
      const ptrdiff_t y1 = least(y0 + block, n.height), x1 = least(x0 + block, n.width);
      for (ptrdiff_t x = x0; x < x1; x += lanes)
        for (ptrdiff_t y = y0; y < y1; y += lanes)
          transpose_tile(n.dst + x * n.dst_pitch + 4 * y, n.dst_pitch, n.src + y * n.src_pitch + 4 * x,
                         n.src_pitch, static_cast<size_t>(least(lanes, x1 - x)),
                         static_cast<size_t>(least(lanes, y1 - y)));
    }
}

}  // namespace

TESSARO_KERNELS(TurnKernels){
    .mirror = mirror,
    .swap_rows = [](uint8_t* a, uint8_t* b, size_t width) { swap_rows(a, b, width); },
    .half_turn = half_turn,
    .transpose = transpose,
};
