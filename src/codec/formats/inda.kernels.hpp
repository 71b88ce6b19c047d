// kernels: IndaKernels -avx512
#include "codec/formats/inda.hpp"
#include "simd/lanes.hpp"

namespace {

using tessaro::inda_level_count;
using tessaro::inda_levels;

// A pair's rank: its score in front, and behind it how early the pair comes, so that the highest rank belongs
// to the first of the best pairs. The step is what a sum of byte masks counts one byte as.
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

// The same with a distance in every eight bytes of a vector; counts and ranks are the low 16 bits of each
// eight. Two distances a vector, or four: the types, the bytes at the distances from `first` on, the ranks of
// a level 0 there, and the highest rank.
struct TwoDistances {
  static constexpr int count = 2;
  typedef uint8_t Eights __attribute__((vector_size(16)));
  typedef int16_t Ranks __attribute__((vector_size(16)));
  typedef uint64_t Longs __attribute__((vector_size(16)));

  template <int first>
  TESSARO_INLINE static Eights references(const uint8_t* block) {
    return reinterpret_cast<Eights>(
        Longs{get<uint64_t>(block + first - 8), get<uint64_t>(block + first - 7)});
  }
  template <int first>
  TESSARO_INLINE static Ranks level_0() {
    return reinterpret_cast<Ranks>(Longs{earliest - first, earliest - first - 1});
  }
  TESSARO_INLINE static int highest(const Ranks& ranks) {
    const Ranks other = __builtin_shufflevector(ranks, ranks, 4, 5, 6, 7, 4, 5, 6, 7);
    const Ranks most = ranks > other ? ranks : other;
    return most[0];
  }
};
struct FourDistances {
  static constexpr int count = 4;
  typedef uint8_t Eights __attribute__((vector_size(32)));
  typedef int16_t Ranks __attribute__((vector_size(32)));
  typedef uint64_t Longs __attribute__((vector_size(32)));

  template <int first>
  TESSARO_INLINE static Eights references(const uint8_t* block) {
    // From the 16 bytes that end with the block, in both halves: bytes do not move between these.
    const auto w = get<TwoDistances::Eights>(block - 8);
    const auto v = __builtin_shufflevector(w, w, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,  //
                                           0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
    constexpr int f = first;
    return __builtin_shufflevector(v, v, f, f + 1, f + 2, f + 3, f + 4, f + 5, f + 6, f + 7,        //
                                   f + 1, f + 2, f + 3, f + 4, f + 5, f + 6, f + 7, f + 8,          //
                                   f + 18, f + 19, f + 20, f + 21, f + 22, f + 23, f + 24, f + 25,  //
                                   f + 19, f + 20, f + 21, f + 22, f + 23, f + 24, f + 25, f + 26);
  }
  template <int first>
  TESSARO_INLINE static Ranks level_0() {
    return reinterpret_cast<Ranks>(
        Longs{earliest - first, earliest - first - 1, earliest - first - 2, earliest - first - 3});
  }
  TESSARO_INLINE static int highest(const Ranks& ranks) {
    const TwoDistances::Ranks low = __builtin_shufflevector(ranks, ranks, 0, 1, 2, 3, 4, 5, 6, 7),
                              high = __builtin_shufflevector(ranks, ranks, 8, 9, 10, 11, 12, 13, 14, 15);
    return TwoDistances::highest(low > high ? low : high);
  }
};

// The ranks at the distances from `first` on, where they are better.
template <int first, class V>
TESSARO_INLINE void search_from(const uint8_t* block, const typename V::Eights& now,
                                typename V::Ranks& best) {
  using Eights = typename V::Eights;
  using Ranks = typename V::Ranks;
  const Eights changed = V::template references<first>(block) ^ now;
  Ranks early = V::template level_0<first>();
#pragma GCC unroll 15
  for (unsigned level = 1; level < inda_level_count; ++level) {
    const auto same = reinterpret_cast<Eights>((changed & inda_levels.at[level].kept) == 0);
    early -= reinterpret_cast<Ranks>(typename V::Longs{} + 8);
    const Ranks ranks =
        reinterpret_cast<Ranks>(byte_sums(same)) * static_cast<int16_t>(inda_levels.at[level].kept_bits) +
        early;
    best = ranks > best ? ranks : best;
  }
  if constexpr (first + V::count < 8) search_from<first + V::count, V>(block, now, best);
}
template <class V>
TESSARO_INLINE int best_rank(const uint8_t* block) {
  typename V::Ranks best = {};
  search_from<0, V>(block, reinterpret_cast<typename V::Eights>(typename V::Longs{} + get<uint64_t>(block)),
                    best);
  return V::highest(best);
}

void search(const uint8_t* blocks, size_t count, uint8_t* choices) {
  for (size_t i = 0; i < count; ++i) {
    const uint8_t* const block = blocks + 8 * i;
    const int rank = Px::lanes == 1  ? one_by_one(block)
                     : Px::lanes < 8 ? best_rank<TwoDistances>(block)
                                     : best_rank<FourDistances>(block);
    choices[i] = rank < least_rank ? uint8_t{0} : static_cast<uint8_t>(earliest - rank % rank_step);
  }
}

}  // namespace

TESSARO_KERNELS(IndaKernels){.search = search};
