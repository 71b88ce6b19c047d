// kernels: IndaKernels -avx512
#include "codec/formats/inda.hpp"
#include "simd/lanes.hpp"

namespace {

using tessaro::inda_level_count;
using tessaro::inda_levels;

// A pair's rank: its score in front, and behind it how early the pair comes, so that the highest rank belongs to
// the first of the best pairs. The step is what a sum of byte masks counts one byte as.
constexpr int rank_step = 255, earliest = 127;
static_assert(inda_level_count * 8 - 1 <= earliest && earliest < rank_step);
// A choice must save more than 11 bits.
constexpr int least_rank = 12 * rank_step;

// The highest rank of all pairs.
int one_by_one(const uint8_t* block) {
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

// The same with one of two or four distances in every eight bytes of a vector; counts and ranks are the low 16 bits of
// each eight.
template <int distances>
struct Search {
  static constexpr size_t bytes = 8 * distances;
  typedef uint8_t Eights __attribute__((vector_size(bytes)));
  typedef int8_t Flags __attribute__((vector_size(bytes)));
  typedef int16_t Ranks __attribute__((vector_size(bytes)));
  typedef uint64_t Longs __attribute__((vector_size(bytes)));

  TESSARO_INLINE static Ranks alike(int16_t v) {
    return reinterpret_cast<Ranks>(Longs{} + static_cast<uint64_t>(v));
  }
  // The bytes at the distances from `first` on: of the 16 that end with the block.
  template <int first>
  TESSARO_INLINE static Eights references(const uint8_t* block) {
    if constexpr (distances == 2) {
      return reinterpret_cast<Eights>(
          Longs{get<uint64_t>(block + first - 8), get<uint64_t>(block + first - 7)});
    } else {
      typedef uint8_t Window __attribute__((vector_size(16)));
      const auto window = get<Window>(block - 8);
      const auto twice =
          __builtin_shufflevector(window, window, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0, 1,
                                  2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
      constexpr int f = first;
      return __builtin_shufflevector(twice, twice, f, f + 1, f + 2, f + 3, f + 4, f + 5, f + 6, f + 7, f + 1,
                                     f + 2, f + 3, f + 4, f + 5, f + 6, f + 7, f + 8, f + 18, f + 19, f + 20,
                                     f + 21, f + 22, f + 23, f + 24, f + 25, f + 19, f + 20, f + 21, f + 22,
                                     f + 23, f + 24, f + 25, f + 26);
    }
  }
  template <int first>
  TESSARO_INLINE static Ranks better(const uint8_t* block, const Eights& now, Ranks best) {
    const Eights changed = references<first>(block) ^ now;
    Ranks early;
    if constexpr (distances == 2)
      early = reinterpret_cast<Ranks>(Longs{earliest - first, earliest - first - 1});
    else
      early = reinterpret_cast<Ranks>(
          Longs{earliest - first, earliest - first - 1, earliest - first - 2, earliest - first - 3});
#pragma GCC unroll 15
    for (unsigned level = 1; level < inda_level_count; ++level) {
      const Flags same = (changed & inda_levels.at[level].kept) == 0;
      early -= alike(8);
      const Ranks ranks = reinterpret_cast<Ranks>(byte_sums(reinterpret_cast<Eights>(same))) *
                              static_cast<int16_t>(inda_levels.at[level].kept_bits) +
                          early;
      best = ranks > best ? ranks : best;
    }
    return best;
  }
  TESSARO_INLINE static int best_rank(const uint8_t* block) {
    const Eights now = reinterpret_cast<Eights>(Longs{} + get<uint64_t>(block));
    Ranks best = better<0>(block, now, Ranks{});
    if constexpr (distances == 2) {
      best = better<2>(block, now, best);
      best = better<4>(block, now, best);
      best = better<6>(block, now, best);
    } else {
      best = better<4>(block, now, best);
    }
    int highest = 0;
    for (int k = 0; k < distances; ++k) highest = best[4 * k] > highest ? best[4 * k] : highest;
    return highest;
  }
};

void search(const uint8_t* blocks, size_t count, uint8_t* choices) {
  for (size_t i = 0; i < count; ++i) {
    const int rank = Px::lanes == 1 ? one_by_one(blocks + 8 * i)
                                    : Search<(Px::lanes < 8 ? 2 : 4)>::best_rank(blocks + 8 * i);
    choices[i] = rank < least_rank ? uint8_t{0} : static_cast<uint8_t>(earliest - rank % rank_step);
  }
}

}  // namespace

TESSARO_KERNELS(IndaKernels){.search = search};
