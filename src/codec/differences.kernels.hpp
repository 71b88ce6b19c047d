// kernels: DifferenceKernels
#include "codec/differences.hpp"
#include "core/numbers.hpp"
#include "simd/lanes.hpp"

namespace {

// A vector as samples: what is not there before the first, and a vector of them with and without sign.
struct As8 {
  using Sample = uint8_t;
  static constexpr uint8_t start = 128;
  typedef uint8_t Plain __attribute__((vector_size(register_bytes)));
  typedef int8_t Signed __attribute__((vector_size(register_bytes)));
};
struct As16 {
  using Sample = uint16_t;
  static constexpr uint8_t start = 0;
  typedef uint16_t Plain __attribute__((vector_size(register_bytes)));
  typedef int16_t Signed __attribute__((vector_size(register_bytes)));
};
template <class As>
TESSARO_INLINE Bytes sum(const Bytes& a, const Bytes& b) {
  using Plain = typename As::Plain;
  return reinterpret_cast<Bytes>(reinterpret_cast<Plain>(a) + reinterpret_cast<Plain>(b));
}
// 0, -1, 1, -2 to 0, 1, 2, 3, from differences of the samples.
template <class As>
TESSARO_INLINE Bytes folded(const Bytes& a, const Bytes& b) {
  using Plain = typename As::Plain;
  const Plain d = reinterpret_cast<Plain>(a) - reinterpret_cast<Plain>(b);
  const auto sign = reinterpret_cast<typename As::Signed>(d) < 0;
  return reinterpret_cast<Bytes>((d + d) ^ reinterpret_cast<Plain>(sign));
}
template <class As>
TESSARO_INLINE Bytes unfolded(const Bytes& v) {
  const auto c = reinterpret_cast<typename As::Plain>(v);
  return reinterpret_cast<Bytes>((c >> 1) ^ -(c & 1));
}

// To every sample all those a multiple of n bytes before it: within a lane by doublings, then lane by lane.
// For n of 4:
//
//   a  b   c    d    | e  f   g    h        two lanes
//   a  ab  abc  abcd | e  ef  efg  efgh     each plus itself raised by 4 bytes, then by 8
//   -  -   -    -    | abcd abcd abcd abcd  the ends of lanes all over, a lane up (of four, their sums)
//   a  ab  abc  abcd | abcde .. abcdefgh    the sum of the last two lines
template <int n, class As>
TESSARO_INLINE Bytes added_up(Bytes v) {
  if constexpr (n <= 1) v = sum<As>(v, raised<1>(v));
  if constexpr (n <= 2) v = sum<As>(v, raised<2>(v));
  if constexpr (n <= 4) v = sum<As>(v, raised<4>(v));
  v = sum<As>(v, raised<8>(v));
  if constexpr (sizeof v > 16) {
    Bytes ends = lane_ends<n>(v);
    if constexpr (sizeof v > 32) {
      ends = sum<As>(ends, lanes_raised<1>(ends));
      ends = sum<As>(ends, lanes_raised<2>(ends));
    }
    v = sum<As>(v, lanes_raised<1>(ends));
  }
  return v;
}

// The samples from `at` on, one after another. history holds the reference samples, the one that is next to
// be used at at % distance.
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
    Bytes last = Bytes{} + As::start;
    size_t i = 0;
    if constexpr (Px::lanes > 1) {
      for (; i + sizeof last <= n; i += sizeof last) {
        const Bytes v = get<Bytes>(src + i);
        put(dst + i, folded<As>(v, behind<step>(v, last)));
        last = v;
      }
    }
    Sample history[sizeof last / sizeof(Sample)];
    put(history, last);
    encode_rest<Sample, distance>(src, dst, i / sizeof(Sample), n / sizeof(Sample),
                                  history + sizeof last / sizeof(Sample) - distance);
  }

  static void decode(const uint8_t* src, uint8_t* dst, size_t n) {
    Bytes carry = Bytes{} + As::start;  // the last samples made, all over the vector
    size_t i = 0;
    if constexpr (Px::lanes > 1) {
      for (; i + sizeof carry <= n; i += sizeof carry) {
        const Bytes v = added_up<step, As>(unfolded<As>(get<Bytes>(src + i)));
        // The sums of the blocks meet in one addition each.
        put(dst + i, sum<As>(v, carry));
        carry = sum<As>(carry, last_all_over<step>(v));
      }
    }
    Sample history[sizeof carry / sizeof(Sample)];
    put(history, carry);
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
