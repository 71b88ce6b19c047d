// How one sample is stored, and what it is at each working scale: the one place of these rules, for the
// accessors and the kernels alike. Internal linkage and always inlined, as everything that kernels are made
// of.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/lanes.hpp"

// A loop whose turns do not depend on one another although its output may be one of its inputs.
#if defined(__clang__)
#define TESSARO_PARALLEL _Pragma("clang loop vectorize(assume_safety)")
#else
#define TESSARO_PARALLEL _Pragma("GCC ivdep")
#endif

namespace {

// Buffers of the host's have no alignment.
typedef int16_t I16 __attribute__((aligned(1), may_alias));
typedef int32_t I32 __attribute__((aligned(1), may_alias));
typedef double F64 __attribute__((aligned(1), may_alias));

// Rules are stated for one value or for a vector of eight, Whole or Lanes.
TESSARO_INLINE uint32_t natural(int32_t v) { return static_cast<uint32_t>(v); }
TESSARO_INLINE int32_t whole(uint32_t v) { return static_cast<int32_t>(v); }
TESSARO_INLINE double real(int32_t v) { return v; }
// What does not fit must not be handed to the first; the second gives the smallest integer for it.
TESSARO_INLINE int32_t truncated(double v) { return static_cast<int32_t>(v); }
template <class V>
TESSARO_INLINE Natural natural(const V& v) {
  return reinterpret_cast<const Natural&>(v);
}
template <class V>
TESSARO_INLINE Whole whole(const V& v) {
  return reinterpret_cast<const Whole&>(v);
}
template <class V>
TESSARO_INLINE Lanes real(const V& v) {
  Lanes out;
  to_doubles(v, out);
  return out;
}
template <class V>
TESSARO_INLINE Whole truncated(const V& v) {
  return to_whole(v);
}

template <class V>
TESSARO_INLINE V plus(V a, V b) {
  return whole(natural(a) + natural(b));
}
template <class V>
TESSARO_INLINE V shifted_up(V v, int by) {
  return whole(natural(v) << by);
}
// The mean of two integers, truncated toward zero; the sum wraps.
template <class V>
TESSARO_INLINE V halved(V a, V b) {
  const V sum = plus(a, b);
  return (sum - (sum >> 31)) >> 1;
}

// Of one value or many. What compares as not above the low limit becomes it: one instruction of minima and
// maxima each, where clamped() would have to keep a negative zero.
template <class V, class E>
TESSARO_INLINE V limited(V v, E low, E high) {
  const V most = static_cast<V>(V{} + high), least = static_cast<V>(V{} + low);
  const V raised = v > least ? v : least;
  return raised < most ? raised : most;
}
// What the float scale can hold; not-a-number counts as too low.
template <class V>
TESSARO_INLINE V to_unit(V v) {
  return limited(v, -1.0, 1.0);
}

TESSARO_INLINE auto magnitude(auto v) { return v < 0 ? -v : v; }

// A stored form has get and put of one sample; toN, the sample at a scale; fromN, what is put for a value at
// a scale; meanN, what is put for a stereo pair in a mono buffer. At which step the mean is taken differs
// between the forms and shows in the last bit. Integer values are not clamped: what is put keeps the low
// bits. from64 takes values that to_unit has passed, or whose products fit in 32 bits. unit is the code of 1.
struct S8 {
  static constexpr size_t bytes = 1;
  static constexpr int32_t unit = 127;
  TESSARO_INLINE static int32_t get(const uint8_t* at) { return *at - 128; }
  TESSARO_INLINE static void put(uint8_t* at, int32_t v) { *at = static_cast<uint8_t>(v); }
  template <class V>
  TESSARO_INLINE static V to16(V s) {
    return s * 256;
  }
  template <class V>
  TESSARO_INLINE static V to24(V s) {
    return s * 65536;
  }
  template <class V>
  TESSARO_INLINE static auto to64(V s) {
    return real(s) * (1.0 / unit);
  }
  template <class V>
  TESSARO_INLINE static V from16(V v) {
    return plus(v, V{} + 32768) >> 8;
  }
  template <class V>
  TESSARO_INLINE static V from24(V v) {
    return plus(v, V{} + 8388608) >> 16;
  }
  template <class V>
  TESSARO_INLINE static auto from64(V v) {
    return 128 - truncated(v * -double{unit});
  }
  template <class V>
  TESSARO_INLINE static V mean16(V l, V r) {
    return halved(from16(l), from16(r));
  }
  template <class V>
  TESSARO_INLINE static V mean24(V l, V r) {
    return halved(from24(l), from24(r));
  }
  template <class V>
  TESSARO_INLINE static auto mean64(V l, V r) {
    return halved(from64(l), from64(r));
  }
};

struct S16 {
  static constexpr size_t bytes = 2;
  static constexpr int32_t unit = 32767;
  TESSARO_INLINE static int32_t get(const uint8_t* at) { return *reinterpret_cast<const I16*>(at); }
  TESSARO_INLINE static void put(uint8_t* at, int32_t v) {
    *reinterpret_cast<I16*>(at) = static_cast<int16_t>(v);
  }
  template <class V>
  TESSARO_INLINE static V to16(V s) {
    return s;
  }
  template <class V>
  TESSARO_INLINE static V to24(V s) {
    return s * 256;
  }
  template <class V>
  TESSARO_INLINE static auto to64(V s) {
    return real(s) * (1.0 / unit);
  }
  template <class V>
  TESSARO_INLINE static V from16(V v) {
    return v;
  }
  template <class V>
  TESSARO_INLINE static V from24(V v) {
    return v >> 8;
  }
  template <class V>
  TESSARO_INLINE static auto from64(V v) {
    return truncated(v * double{unit});
  }
  template <class V>
  TESSARO_INLINE static V mean16(V l, V r) {
    return halved(l, r);
  }
  template <class V>
  TESSARO_INLINE static V mean24(V l, V r) {
    return halved(l >> 8, r >> 8);
  }
  template <class V>
  TESSARO_INLINE static auto mean64(V l, V r) {
    return halved(from64(l), from64(r));
  }
};

// Three bytes, the lowest first.
struct S24 {
  static constexpr size_t bytes = 3;
  static constexpr int32_t unit = 8388607;
  TESSARO_INLINE static int32_t get(const uint8_t* at) {
    const uint32_t v = static_cast<uint32_t>(at[0]) << 8 | static_cast<uint32_t>(at[1]) << 16 |
                       static_cast<uint32_t>(at[2]) << 24;
    return static_cast<int32_t>(v) >> 8;
  }
  TESSARO_INLINE static void put(uint8_t* at, int32_t v) {
    at[0] = static_cast<uint8_t>(v);
    at[1] = static_cast<uint8_t>(v >> 8);
    at[2] = static_cast<uint8_t>(v >> 16);
  }
  template <class V>
  TESSARO_INLINE static V to16(V s) {
    return s >> 8;
  }
  template <class V>
  TESSARO_INLINE static V to24(V s) {
    return s;
  }
  template <class V>
  TESSARO_INLINE static auto to64(V s) {
    return real(s) * (1.0 / unit);
  }
  template <class V>
  TESSARO_INLINE static V from16(V v) {
    return shifted_up(v, 8);
  }
  template <class V>
  TESSARO_INLINE static V from24(V v) {
    return v;
  }
  template <class V>
  TESSARO_INLINE static auto from64(V v) {
    return truncated(v * double{unit});
  }
  template <class V>
  TESSARO_INLINE static V mean16(V l, V r) {
    return shifted_up(halved(l, r), 8);
  }
  template <class V>
  TESSARO_INLINE static V mean24(V l, V r) {
    return halved(l, r);
  }
  template <class V>
  TESSARO_INLINE static auto mean64(V l, V r) {
    return halved(from64(l), from64(r));
  }
};

// Doubles, at the float scale only: the integer scales take every unknown form for S24.
struct S64 {
  static constexpr size_t bytes = 8;
  TESSARO_INLINE static double get(const uint8_t* at) { return *reinterpret_cast<const F64*>(at); }
  TESSARO_INLINE static void put(uint8_t* at, double v) { *reinterpret_cast<F64*>(at) = v; }
  template <class V>
  TESSARO_INLINE static V to64(V s) {
    return s;
  }
  template <class V>
  TESSARO_INLINE static V from64(V v) {
    return v;
  }
  template <class V>
  TESSARO_INLINE static V mean64(V l, V r) {
    return (l + r) * 0.5;
  }
};

// Values at the 24-bit scale, as blocks hold them.
struct Value24 {
  static constexpr size_t bytes = 4;
  TESSARO_INLINE static int32_t get(const uint8_t* at) { return *reinterpret_cast<const I32*>(at); }
  TESSARO_INLINE static void put(uint8_t* at, int32_t v) { *reinterpret_cast<I32*>(at) = v; }
  template <class V>
  TESSARO_INLINE static V to24(V s) {
    return s;
  }
  template <class V>
  TESSARO_INLINE static V from24(V v) {
    return v;
  }
};

// What an integer form puts for a value at the float scale of a magnitude of at most 100: codes of that size
// are as well limited after they are truncated.
template <class S, class V>
TESSARO_INLINE auto limited_code(const V& v) {
  return limited(S::from64(v), S::from64(-1.0), S::from64(1.0));
}

}  // namespace
