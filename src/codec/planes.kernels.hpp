// kernels: PlaneKernels
#if defined(__AVX2__)
#include <immintrin.h>
#endif

#include "codec/planes.hpp"
#include "simd/vocabulary.hpp"

namespace {

// The first byte of plane k of n bytes in `count` channels.
TESSARO_INLINE size_t plane_start(size_t n, size_t count, size_t k) {
  return n / count * k + (k < n % count ? k : n % count);
}

#if defined(__AVX2__)
// What the compilers do with at least half as many shuffles more, by hand. n is a multiple of 32 bytes of a plane.
TESSARO_INLINE __m256i load256(const void* p) { return _mm256_loadu_si256(static_cast<const __m256i*>(p)); }
TESSARO_INLINE void store256(void* p, __m256i v) { _mm256_storeu_si256(static_cast<__m256i*>(p), v); }

// Where the bytes of 16 triples come from, 16 at a time, for each channel; above 127 from another channel.
struct Triples {
  alignas(32) uint8_t from[3][3][32];
};
constexpr Triples triples = [] {
  Triples t{};
  for (unsigned part = 0; part < 3; ++part)
    for (unsigned channel = 0; channel < 3; ++channel)
      for (unsigned i = 0; i < 32; ++i) {
        const unsigned at = 16 * part + i % 16;
        t.from[part][channel][i] = static_cast<uint8_t>(at % 3 == channel ? at / 3 : 0x80);
      }
  return t;
}();

TESSARO_INLINE void join_triples(const uint8_t* a, const uint8_t* b, const uint8_t* c, uint8_t* dst,
                                 size_t n) {
  for (size_t i = 0; i < n; i += 32, dst += 96) {
    const __m256i x = load256(a + i), y = load256(b + i), z = load256(c + i);
    __m256i part[3];  // of the first 16 triples in the lower half, of the others in the upper
    for (int p = 0; p < 3; ++p)
      part[p] = _mm256_or_si256(_mm256_or_si256(_mm256_shuffle_epi8(x, load256(triples.from[p][0])),
                                                _mm256_shuffle_epi8(y, load256(triples.from[p][1]))),
                                _mm256_shuffle_epi8(z, load256(triples.from[p][2])));
    store256(dst, _mm256_permute2x128_si256(part[0], part[1], 0x20));
    store256(dst + 32, _mm256_permute2x128_si256(part[2], part[0], 0x30));
    store256(dst + 64, _mm256_permute2x128_si256(part[1], part[2], 0x31));
  }
}

TESSARO_INLINE void split_pairs(const uint8_t* src, uint8_t* a, uint8_t* b, size_t n) {
  const __m256i low = _mm256_set1_epi16(0xFF);
  for (size_t i = 0; i < n; i += 32, src += 64) {
    const __m256i x = load256(src), y = load256(src + 32);
    const __m256i even = _mm256_packus_epi16(_mm256_and_si256(x, low), _mm256_and_si256(y, low));
    const __m256i odd = _mm256_packus_epi16(_mm256_srli_epi16(x, 8), _mm256_srli_epi16(y, 8));
    store256(a + i, _mm256_permute4x64_epi64(even, 0xD8));
    store256(b + i, _mm256_permute4x64_epi64(odd, 0xD8));
  }
}

TESSARO_INLINE void join_quads(const uint8_t* a, const uint8_t* b, const uint8_t* c, const uint8_t* d,
                               uint8_t* dst, size_t n) {
  for (size_t i = 0; i < n; i += 32, dst += 128) {
    const __m256i w = load256(a + i), x = load256(b + i), y = load256(c + i), z = load256(d + i);
    const __m256i wx_low = _mm256_unpacklo_epi8(w, x), wx_high = _mm256_unpackhi_epi8(w, x);
    const __m256i yz_low = _mm256_unpacklo_epi8(y, z), yz_high = _mm256_unpackhi_epi8(y, z);
    const __m256i q0 = _mm256_unpacklo_epi16(wx_low, yz_low), q1 = _mm256_unpackhi_epi16(wx_low, yz_low);
    const __m256i q2 = _mm256_unpacklo_epi16(wx_high, yz_high), q3 = _mm256_unpackhi_epi16(wx_high, yz_high);
    store256(dst, _mm256_permute2x128_si256(q0, q1, 0x20));
    store256(dst + 32, _mm256_permute2x128_si256(q2, q3, 0x20));
    store256(dst + 64, _mm256_permute2x128_si256(q0, q1, 0x31));
    store256(dst + 96, _mm256_permute2x128_si256(q2, q3, 0x31));
  }
}
#endif

// In the wide forms the memories do not overlap.
template <size_t count>
struct Planes {
  static void encode(const uint8_t* __restrict src, uint8_t* __restrict dst, size_t n) {
    const size_t whole = n / count;
    size_t done = 0;
#if defined(__AVX2__)
    if constexpr (count == 2) {
      done = whole / 32 * 32;
      split_pairs(src, dst, dst + plane_start(n, 2, 1), done);
    }
#endif
    for (size_t i = done; i < whole; ++i)
      for (size_t k = 0; k < count; ++k) dst[plane_start(n, count, k) + i] = src[count * i + k];
    for (size_t k = 0; k < n % count; ++k) dst[plane_start(n, count, k) + whole] = src[count * whole + k];
  }
  static void decode(const uint8_t* __restrict src, uint8_t* __restrict dst, size_t n) {
    const size_t whole = n / count;
    size_t done = 0;
#if defined(__AVX2__)
    const auto plane = [&](size_t k) { return src + plane_start(n, count, k); };
    if constexpr (count > 2) done = whole / 32 * 32;
    if constexpr (count == 3) join_triples(plane(0), plane(1), plane(2), dst, done);
    if constexpr (count == 4) join_quads(plane(0), plane(1), plane(2), plane(3), dst, done);
#endif
    for (size_t i = done; i < whole; ++i)
      for (size_t k = 0; k < count; ++k) dst[count * i + k] = src[plane_start(n, count, k) + i];
    for (size_t k = 0; k < n % count; ++k) dst[count * whole + k] = src[plane_start(n, count, k) + whole];
  }
};

// One byte after another, whatever overlaps.
template <size_t count>
struct InOrder {
  static void encode(const uint8_t* src, uint8_t* dst, size_t n) {
    for (size_t k = 0; k < count; ++k)
      for (size_t i = k; i < n; i += count) *dst++ = src[i];
  }
  static void decode(const uint8_t* src, uint8_t* dst, size_t n) {
    for (size_t k = 0; k < count; ++k)
      for (size_t i = k; i < n; i += count) dst[i] = *src++;
  }
};

template <class T>
constexpr tessaro::PlaneKernels::Pair both = {T::encode, T::decode};
template <size_t count>
constexpr tessaro::PlaneKernels::Pair planes = Px::lanes > 1 ? both<Planes<count>> : both<InOrder<count>>;

}  // namespace

TESSARO_KERNELS(PlaneKernels){.of2 = planes<2>, .of3 = planes<3>, .of4 = planes<4>};
