// kernels: IndaKernels -avx512
#include "codec/formats/inda.hpp"
#include "simd/vocabulary.hpp"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

using tessaro::inda_level_count;
using tessaro::inda_levels;

// A pair's rank: its score in front, and behind it how early the pair comes, so that the highest rank belongs to
// the first of the best pairs. The step is what a sum of byte masks counts one byte as.
constexpr int rank_step = 255, earliest = 127;
static_assert(inda_level_count * 8 - 1 <= earliest && earliest < rank_step);
// A choice must save more than 11 bits.
constexpr int least_rank = 12 * rank_step;

// The ranks of all pairs on vectors of as many bytes as `pixels` pixels: the highest one.
template <size_t pixels>
struct Search;

template <>
struct Search<1> {
  static int best_rank(const uint8_t* block) {
    int best = 0;
    for (unsigned level = 1; level < inda_level_count; ++level)
      for (unsigned distance = 0; distance < 8; ++distance) {
        int agreeing = 0;
        for (unsigned j = 0; j < 8; ++j)
          agreeing +=
              ((block[j] ^ block[static_cast<int>(j + distance) - 8]) & inda_levels.at[level].kept) == 0;
        const int rank = agreeing * inda_levels.at[level].kept_bits * rank_step + earliest -
                         static_cast<int>(level * 8 + distance);
        if (rank > best) best = rank;
      }
    return best;
  }
};

#if defined(__SSE2__)
template <>
struct Search<4> {
  // Eight bytes in each half, one distance a half; counts and ranks are the low 16 bits of a half.
  TESSARO_INLINE static __m128i eight(const uint8_t* at) {
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(at));
  }
  TESSARO_INLINE static int best_rank(const uint8_t* block) {
    const __m128i zero = _mm_setzero_si128(), twice = _mm_unpacklo_epi64(eight(block), eight(block));
    __m128i best = zero, first = _mm_set_epi32(0, earliest - 1, 0, earliest);
    for (int distance = 0; distance < 8; distance += 2) {
      const uint8_t* from = block + distance - 8;
      const __m128i changed = _mm_xor_si128(_mm_unpacklo_epi64(eight(from), eight(from + 1)), twice);
      __m128i early = first;
#pragma GCC unroll 15
      for (unsigned level = 1; level < inda_level_count; ++level) {
        const __m128i kept = _mm_set1_epi8(static_cast<char>(inda_levels.at[level].kept));
        const __m128i agreeing = _mm_sad_epu8(_mm_cmpeq_epi8(_mm_and_si128(changed, kept), zero), zero);
        early = _mm_sub_epi16(early, _mm_set_epi32(0, 8, 0, 8));
        best = _mm_max_epi16(
            best,
            _mm_add_epi16(_mm_mullo_epi16(agreeing, _mm_set1_epi16(inda_levels.at[level].kept_bits)), early));
      }
      first = _mm_sub_epi16(first, _mm_set_epi32(0, 2, 0, 2));
    }
    return _mm_cvtsi128_si32(_mm_max_epi16(best, _mm_unpackhi_epi64(best, best)));
  }
};
#endif

#if defined(__AVX2__)
template <>
struct Search<8> {
  // The same with four distances in a vector.
  TESSARO_INLINE static int best_rank(const uint8_t* block) {
    const __m256i zero = _mm256_setzero_si256();
    const __m256i window =
        _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(block - 8)));
    const __m256i current = _mm256_unpackhi_epi64(window, window);
    __m256i best = zero, first = _mm256_setr_epi64x(earliest, earliest - 1, earliest - 2, earliest - 3);
    __m256i from = _mm256_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 1, 2, 3, 4, 5, 6, 7, 8,  //
                                    2, 3, 4, 5, 6, 7, 8, 9, 3, 4, 5, 6, 7, 8, 9, 10);
    for (int distance = 0; distance < 8; distance += 4) {
      const __m256i changed = _mm256_xor_si256(_mm256_shuffle_epi8(window, from), current);
      __m256i early = first;
#pragma GCC unroll 15
      for (unsigned level = 1; level < inda_level_count; ++level) {
        const __m256i kept = _mm256_set1_epi8(static_cast<char>(inda_levels.at[level].kept));
        const __m256i agreeing =
            _mm256_sad_epu8(_mm256_cmpeq_epi8(_mm256_and_si256(changed, kept), zero), zero);
        early = _mm256_sub_epi16(early, _mm256_set1_epi64x(8));
        best = _mm256_max_epi16(
            best,
            _mm256_add_epi16(_mm256_mullo_epi16(agreeing, _mm256_set1_epi16(inda_levels.at[level].kept_bits)),
                             early));
      }
      first = _mm256_sub_epi16(first, _mm256_set1_epi64x(4));
      from = _mm256_add_epi8(from, _mm256_set1_epi8(4));
    }
    __m128i high = _mm_max_epi16(_mm256_castsi256_si128(best), _mm256_extracti128_si256(best, 1));
    high = _mm_max_epi16(high, _mm_unpackhi_epi64(high, high));
    return _mm_cvtsi128_si32(high);
  }
};
#endif

void search(const uint8_t* blocks, size_t count, uint8_t* choices) {
  for (size_t i = 0; i < count; ++i) {
    const int rank = Search<Px::lanes>::best_rank(blocks + 8 * i);
    choices[i] = rank < least_rank ? uint8_t{0} : static_cast<uint8_t>(earliest - rank % rank_step);
  }
}

}  // namespace

TESSARO_KERNELS(IndaKernels){.search = search};
