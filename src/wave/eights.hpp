// Eight samples in a vector, as kernels read and write them.
#pragma once

#include <immintrin.h>

#include "wave/stored.hpp"

namespace {

template <class T>
TESSARO_INLINE const uint8_t* bytes_of(const T* values) {
  return reinterpret_cast<const uint8_t*>(values);
}
template <class T>
TESSARO_INLINE uint8_t* bytes_of(T* values) {
  return reinterpret_cast<uint8_t*>(values);
}

#if defined(__AVX2__)
TESSARO_INLINE __m128i load16(const uint8_t* in) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(in));
}
template <class S>
TESSARO_INLINE auto read8(const uint8_t* in) {
  if constexpr (S::bytes == 1) {
    const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(in));
    return reinterpret_cast<Whole>(_mm256_cvtepu8_epi32(bytes)) - 128;
  } else if constexpr (S::bytes == 2) {
    return reinterpret_cast<Whole>(_mm256_cvtepi16_epi32(load16(in)));
  } else if constexpr (S::bytes == 3) {
    // Two loads that overlap, four samples in each; those of the second begin behind the overlap.
    const __m256i both = _mm256_inserti128_si256(_mm256_castsi128_si256(load16(in)), load16(in + 8), 1);
    const __m256i up = _mm256_setr_epi8(-1, 0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11,  //
                                        -1, 4, 5, 6, -1, 7, 8, 9, -1, 10, 11, 12, -1, 13, 14, 15);
    return reinterpret_cast<Whole>(_mm256_srai_epi32(_mm256_shuffle_epi8(both, up), 8));
  } else if constexpr (S::bytes == 4) {
    return reinterpret_cast<Whole>(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(in)));
  } else {
    const auto* at = reinterpret_cast<const double*>(in);
#if defined(__AVX512F__)
    return reinterpret_cast<Lanes>(_mm512_loadu_pd(at));
#else
    return Lanes{reinterpret_cast<Half>(_mm256_loadu_pd(at)),
                 reinterpret_cast<Half>(_mm256_loadu_pd(at + 4))};
#endif
  }
}
template <class S, class V>
TESSARO_INLINE void write8(uint8_t* out, const V& v) {
  const auto put16 = [out](__m256i all) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm256_castsi256_si128(all));
  };
  if constexpr (S::bytes == 1) {
    const __m256i low = _mm256_setr_epi8(0, 4, 8, 12, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,  //
                                         0, 4, 8, 12, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1);
    const __m256i fours = _mm256_shuffle_epi8(reinterpret_cast<__m256i>(v), low);
    const __m128i bytes =
        _mm_unpacklo_epi32(_mm256_castsi256_si128(fours), _mm256_extracti128_si256(fours, 1));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(out), bytes);
  } else if constexpr (S::bytes == 2) {
    const __m256i low = _mm256_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, -1, -1, -1, -1, -1, -1, -1, -1,  //
                                         0, 1, 4, 5, 8, 9, 12, 13, -1, -1, -1, -1, -1, -1, -1, -1);
    put16(_mm256_permute4x64_epi64(_mm256_shuffle_epi8(reinterpret_cast<__m256i>(v), low), 0x08));
  } else if constexpr (S::bytes == 3) {
    // Stores under a mask are slow on some processors.
    const __m256i front = _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1,  //
                                           0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
    const __m256i all = _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(reinterpret_cast<__m256i>(v), front),
                                                    _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7));
    put16(all);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(out + 16), _mm256_extracti128_si256(all, 1));
  } else if constexpr (S::bytes == 4) {
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), reinterpret_cast<__m256i>(v));
  } else {
    auto* at = reinterpret_cast<double*>(out);
#if defined(__AVX512F__)
    _mm512_storeu_pd(at, reinterpret_cast<__m512d>(v));
#else
    _mm256_storeu_pd(at, reinterpret_cast<__m256d>(v.low));
    _mm256_storeu_pd(at + 4, reinterpret_cast<__m256d>(v.high));
#endif
  }
}
#endif

}  // namespace
