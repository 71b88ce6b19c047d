// kernels: DifferenceKernels
#include <immintrin.h>

#include "codec/differences.hpp"
#include "core/numbers.hpp"
#include "simd/vocabulary.hpp"

namespace {

// A vector of bytes or 16-bit words: what the differences need of one instruction set. Lanes are 16 bytes.
// before<D>(v, last) is v moved up by D bytes behind the end of `last`; sum<D> adds to every sample all those a multiple
// of D bytes before it; end<D>(v) is the last D bytes of v all over the vector.
#if defined(__AVX512BW__)
struct Bytes {
  __m512i v;
  static constexpr size_t size = 64;
  TESSARO_INLINE static Bytes load(const void* p) { return {_mm512_loadu_si512(p)}; }
  TESSARO_INLINE void store(void* p) const { _mm512_storeu_si512(p, v); }
  TESSARO_INLINE static Bytes splat(uint8_t x) { return {_mm512_set1_epi8(static_cast<char>(x))}; }
};
struct As8 {
  using Sample = uint8_t;
  static constexpr uint8_t start = 128;
  TESSARO_INLINE static __m512i add(__m512i a, __m512i b) { return _mm512_add_epi8(a, b); }
  TESSARO_INLINE static __m512i sub(__m512i a, __m512i b) { return _mm512_sub_epi8(a, b); }
  TESSARO_INLINE static __m512i fold(__m512i d) {
    const __m512i sign = _mm512_movm_epi8(_mm512_movepi8_mask(d));
    return _mm512_xor_si512(_mm512_add_epi8(d, d), sign);
  }
  TESSARO_INLINE static __m512i unfold(__m512i c) {
    const __m512i half = _mm512_and_si512(_mm512_srli_epi16(c, 1), _mm512_set1_epi8(0x7F));
    const __m512i odd = _mm512_and_si512(c, _mm512_set1_epi8(1));
    return _mm512_xor_si512(half, _mm512_sub_epi8(_mm512_setzero_si512(), odd));
  }
};
struct As16 {
  using Sample = uint16_t;
  static constexpr uint8_t start = 0;
  TESSARO_INLINE static __m512i add(__m512i a, __m512i b) { return _mm512_add_epi16(a, b); }
  TESSARO_INLINE static __m512i sub(__m512i a, __m512i b) { return _mm512_sub_epi16(a, b); }
  TESSARO_INLINE static __m512i fold(__m512i d) {
    return _mm512_xor_si512(_mm512_add_epi16(d, d), _mm512_srai_epi16(d, 15));
  }
  TESSARO_INLINE static __m512i unfold(__m512i c) {
    const __m512i odd = _mm512_and_si512(c, _mm512_set1_epi16(1));
    return _mm512_xor_si512(_mm512_srli_epi16(c, 1), _mm512_sub_epi16(_mm512_setzero_si512(), odd));
  }
};
template <int D>
TESSARO_INLINE __m512i before(__m512i v, __m512i last) {
  return _mm512_alignr_epi8(v, _mm512_alignr_epi64(v, last, 6), 16 - D);
}
template <int D>
TESSARO_INLINE __m512i end_of_lanes(__m512i v) {
  if constexpr (D == 4) return _mm512_shuffle_epi32(v, _MM_PERM_DDDD);
  return _mm512_shuffle_epi8(v, _mm512_set1_epi16(D == 1 ? 0x0F0F : 0x0F0E));
}
template <int D>
TESSARO_INLINE __m512i end(__m512i v) {
  return end_of_lanes<D>(_mm512_shuffle_i64x2(v, v, 0xFF));
}
template <int S>
TESSARO_INLINE __m512i up(__m512i v) {
  return _mm512_bslli_epi128(v, S);
}
template <int D, class As>
TESSARO_INLINE __m512i join_lanes(__m512i v) {
  const __m512i none = _mm512_setzero_si512();
  __m512i ends = end_of_lanes<D>(v);
  ends = As::add(ends, _mm512_alignr_epi64(ends, none, 6));
  ends = As::add(ends, _mm512_alignr_epi64(ends, none, 4));
  return As::add(v, _mm512_alignr_epi64(ends, none, 6));
}
#elif defined(__AVX2__)
struct Bytes {
  __m256i v;
  static constexpr size_t size = 32;
  TESSARO_INLINE static Bytes load(const void* p) {
    return {_mm256_loadu_si256(static_cast<const __m256i*>(p))};
  }
  TESSARO_INLINE void store(void* p) const { _mm256_storeu_si256(static_cast<__m256i*>(p), v); }
  TESSARO_INLINE static Bytes splat(uint8_t x) { return {_mm256_set1_epi8(static_cast<char>(x))}; }
};
struct As8 {
  using Sample = uint8_t;
  static constexpr uint8_t start = 128;
  TESSARO_INLINE static __m256i add(__m256i a, __m256i b) { return _mm256_add_epi8(a, b); }
  TESSARO_INLINE static __m256i sub(__m256i a, __m256i b) { return _mm256_sub_epi8(a, b); }
  TESSARO_INLINE static __m256i fold(__m256i d) {
    return _mm256_xor_si256(_mm256_add_epi8(d, d), _mm256_cmpgt_epi8(_mm256_setzero_si256(), d));
  }
  TESSARO_INLINE static __m256i unfold(__m256i c) {
    const __m256i half = _mm256_and_si256(_mm256_srli_epi16(c, 1), _mm256_set1_epi8(0x7F));
    const __m256i odd = _mm256_and_si256(c, _mm256_set1_epi8(1));
    return _mm256_xor_si256(half, _mm256_sub_epi8(_mm256_setzero_si256(), odd));
  }
};
struct As16 {
  using Sample = uint16_t;
  static constexpr uint8_t start = 0;
  TESSARO_INLINE static __m256i add(__m256i a, __m256i b) { return _mm256_add_epi16(a, b); }
  TESSARO_INLINE static __m256i sub(__m256i a, __m256i b) { return _mm256_sub_epi16(a, b); }
  TESSARO_INLINE static __m256i fold(__m256i d) {
    return _mm256_xor_si256(_mm256_add_epi16(d, d), _mm256_srai_epi16(d, 15));
  }
  TESSARO_INLINE static __m256i unfold(__m256i c) {
    const __m256i odd = _mm256_and_si256(c, _mm256_set1_epi16(1));
    return _mm256_xor_si256(_mm256_srli_epi16(c, 1), _mm256_sub_epi16(_mm256_setzero_si256(), odd));
  }
};
template <int D>
TESSARO_INLINE __m256i before(__m256i v, __m256i last) {
  return _mm256_alignr_epi8(v, _mm256_permute2x128_si256(last, v, 0x21), 16 - D);
}
template <int D>
TESSARO_INLINE __m256i end_of_lanes(__m256i v) {
  if constexpr (D == 4) return _mm256_shuffle_epi32(v, 0xFF);
  return _mm256_shuffle_epi8(v, _mm256_set1_epi16(D == 1 ? 0x0F0F : 0x0F0E));
}
template <int D>
TESSARO_INLINE __m256i end(__m256i v) {
  return end_of_lanes<D>(_mm256_permute2x128_si256(v, v, 0x11));
}
template <int S>
TESSARO_INLINE __m256i up(__m256i v) {
  return _mm256_bslli_epi128(v, S);
}
template <int D, class As>
TESSARO_INLINE __m256i join_lanes(__m256i v) {
  const __m256i ends = end_of_lanes<D>(v);
  return As::add(v, _mm256_permute2x128_si256(ends, ends, 0x08));
}
#else
struct Bytes {
  __m128i v;
  static constexpr size_t size = 16;
  TESSARO_INLINE static Bytes load(const void* p) {
    return {_mm_loadu_si128(static_cast<const __m128i*>(p))};
  }
  TESSARO_INLINE void store(void* p) const { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
  TESSARO_INLINE static Bytes splat(uint8_t x) { return {_mm_set1_epi8(static_cast<char>(x))}; }
};
struct As8 {
  using Sample = uint8_t;
  static constexpr uint8_t start = 128;
  TESSARO_INLINE static __m128i add(__m128i a, __m128i b) { return _mm_add_epi8(a, b); }
  TESSARO_INLINE static __m128i sub(__m128i a, __m128i b) { return _mm_sub_epi8(a, b); }
  TESSARO_INLINE static __m128i fold(__m128i d) {
    return _mm_xor_si128(_mm_add_epi8(d, d), _mm_cmpgt_epi8(_mm_setzero_si128(), d));
  }
  TESSARO_INLINE static __m128i unfold(__m128i c) {
    const __m128i half = _mm_and_si128(_mm_srli_epi16(c, 1), _mm_set1_epi8(0x7F));
    const __m128i odd = _mm_and_si128(c, _mm_set1_epi8(1));
    return _mm_xor_si128(half, _mm_sub_epi8(_mm_setzero_si128(), odd));
  }
};
struct As16 {
  using Sample = uint16_t;
  static constexpr uint8_t start = 0;
  TESSARO_INLINE static __m128i add(__m128i a, __m128i b) { return _mm_add_epi16(a, b); }
  TESSARO_INLINE static __m128i sub(__m128i a, __m128i b) { return _mm_sub_epi16(a, b); }
  TESSARO_INLINE static __m128i fold(__m128i d) {
    return _mm_xor_si128(_mm_add_epi16(d, d), _mm_srai_epi16(d, 15));
  }
  TESSARO_INLINE static __m128i unfold(__m128i c) {
    const __m128i odd = _mm_and_si128(c, _mm_set1_epi16(1));
    return _mm_xor_si128(_mm_srli_epi16(c, 1), _mm_sub_epi16(_mm_setzero_si128(), odd));
  }
};
template <int D>
TESSARO_INLINE __m128i before(__m128i v, __m128i last) {
  return _mm_or_si128(_mm_slli_si128(v, D), _mm_srli_si128(last, 16 - D));
}
template <int D>
TESSARO_INLINE __m128i end(__m128i v) {
  if constexpr (D == 1) v = _mm_unpackhi_epi8(v, v);
  if constexpr (D <= 2) v = _mm_shufflehi_epi16(v, 0xFF);
  return _mm_shuffle_epi32(v, 0xFF);
}
template <int S>
TESSARO_INLINE __m128i up(__m128i v) {
  return _mm_slli_si128(v, S);
}
template <int D, class As>
TESSARO_INLINE __m128i join_lanes(__m128i v) {
  return v;
}
#endif

// The samples from `at` on, one after another. history holds the reference samples, the one that is next to be used at
// at % distance.
template <class Sample, size_t distance>
TESSARO_INLINE void encode_rest(const uint8_t* src, uint8_t* dst, size_t at, size_t n, Sample* history) {
  constexpr unsigned top = 8 * sizeof(Sample) - 1;
  for (size_t i = at; i < n; ++i) {
    const auto x = tessaro::load<Sample>(src + i * sizeof(Sample));
    const auto d = static_cast<Sample>(x - history[i % distance]);
    history[i % distance] = x;
    tessaro::store(dst + i * sizeof(Sample), static_cast<Sample>(d << 1 ^ (0 - (d >> top))));
  }
}
template <class Sample, size_t distance>
TESSARO_INLINE void decode_rest(const uint8_t* src, uint8_t* dst, size_t at, size_t n, Sample* history) {
  for (size_t i = at; i < n; ++i) {
    const auto c = tessaro::load<Sample>(src + i * sizeof(Sample));
    const auto x = static_cast<Sample>(history[i % distance] + (c >> 1 ^ (0 - (c & 1))));
    history[i % distance] = x;
    tessaro::store(dst + i * sizeof(Sample), x);
  }
}

template <class As, size_t distance>
struct Differences {
  using Sample = typename As::Sample;
  static constexpr int step = distance * sizeof(Sample);  // bytes to the reference sample

  static void encode(const uint8_t* src, uint8_t* dst, size_t n) {
    Bytes last = Bytes::splat(As::start);
    size_t i = 0;
    if constexpr (Px::lanes > 1) {
      for (; i + Bytes::size <= n; i += Bytes::size) {
        const Bytes v = Bytes::load(src + i);
        Bytes{As::fold(As::sub(v.v, before<step>(v.v, last.v)))}.store(dst + i);
        last = v;
      }
    }
    Sample history[Bytes::size / sizeof(Sample)];
    last.store(history);
    encode_rest<Sample, distance>(src, dst, i / sizeof(Sample), n / sizeof(Sample),
                                  history + Bytes::size / sizeof(Sample) - distance);
  }

  static void decode(const uint8_t* src, uint8_t* dst, size_t n) {
    Bytes carry = Bytes::splat(As::start);  // the last samples made, all over the vector
    size_t i = 0;
    if constexpr (Px::lanes > 1) {
      for (; i + Bytes::size <= n; i += Bytes::size) {
        auto v = As::unfold(Bytes::load(src + i).v);
        if constexpr (step <= 1) v = As::add(v, up<1>(v));
        if constexpr (step <= 2) v = As::add(v, up<2>(v));
        if constexpr (step <= 4) v = As::add(v, up<4>(v));
        v = As::add(v, up<8>(v));
        v = join_lanes<step, As>(v);
        // The sums of the blocks meet in one addition each.
        Bytes{As::add(v, carry.v)}.store(dst + i);
        carry.v = As::add(carry.v, end<step>(v));
      }
    }
    Sample history[Bytes::size / sizeof(Sample)];
    carry.store(history);
    decode_rest<Sample, distance>(src, dst, i / sizeof(Sample), n / sizeof(Sample), history);
  }
};

template <class As, size_t distance>
constexpr tessaro::DifferenceKernels::Pair both = {Differences<As, distance>::encode,
                                                   Differences<As, distance>::decode};

}  // namespace

TESSARO_KERNELS(DifferenceKernels){
    .bytes1 = both<As8, 1>,
    .bytes2 = both<As8, 2>,
    .bytes4 = both<As8, 4>,
    .words1 = both<As16, 1>,
    .words2 = both<As16, 2>,
};
