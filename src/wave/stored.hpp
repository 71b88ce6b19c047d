// How one sample is stored, and what it is at each working scale: the one place of these rules, for the accessors
// and the kernels alike. Internal linkage and always inlined, as everything that kernels are made of.
#pragma once

#include <cstddef>
#include <cstdint>

#include "simd/vocabulary.hpp"

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

// The mean of two integers, truncated toward zero; the sum wraps.
TESSARO_INLINE int32_t halved(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b)) / 2;
}
TESSARO_INLINE int32_t plus(int32_t a, int32_t b) {
  return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}
TESSARO_INLINE int32_t shifted_up(int32_t v, int by) {
  return static_cast<int32_t>(static_cast<uint32_t>(v) << by);
}

// What the float scale can hold; not-a-number counts as too low.
TESSARO_INLINE double to_unit(double v) {
  const double low = v > -1.0 ? v : -1.0;
  return low < 1.0 ? low : 1.0;
}

// A stored form has get and put of one sample; toN, the sample at a scale; fromN, what is put for a value at a
// scale; meanN, what is put for a stereo pair in a mono buffer. At which step the mean is taken differs between
// the forms and shows in the last bit. Integer values are not clamped: what is put keeps the low bits. from64
// takes values that to_unit has passed.
struct S8 {
  static constexpr size_t bytes = 1;
  TESSARO_INLINE static int32_t get(const uint8_t* at) { return *at - 128; }
  TESSARO_INLINE static void put(uint8_t* at, int32_t v) { *at = static_cast<uint8_t>(v); }
  TESSARO_INLINE static int32_t to16(int32_t s) { return s * 256; }
  TESSARO_INLINE static int32_t to24(int32_t s) { return s * 65536; }
  TESSARO_INLINE static double to64(int32_t s) { return s * (1.0 / 127); }
  TESSARO_INLINE static int32_t from16(int32_t v) { return plus(v, 32768) >> 8; }
  TESSARO_INLINE static int32_t from24(int32_t v) { return plus(v, 8388608) >> 16; }
  TESSARO_INLINE static int32_t from64(double v) { return 128 - static_cast<int32_t>(v * -127); }
  TESSARO_INLINE static int32_t mean16(int32_t l, int32_t r) { return halved(from16(l), from16(r)); }
  TESSARO_INLINE static int32_t mean24(int32_t l, int32_t r) { return halved(from24(l), from24(r)); }
  TESSARO_INLINE static int32_t mean64(double l, double r) { return halved(from64(l), from64(r)); }
};

struct S16 {
  static constexpr size_t bytes = 2;
  TESSARO_INLINE static int32_t get(const uint8_t* at) { return *reinterpret_cast<const I16*>(at); }
  TESSARO_INLINE static void put(uint8_t* at, int32_t v) {
    *reinterpret_cast<I16*>(at) = static_cast<int16_t>(v);
  }
  TESSARO_INLINE static int32_t to16(int32_t s) { return s; }
  TESSARO_INLINE static int32_t to24(int32_t s) { return s * 256; }
  TESSARO_INLINE static double to64(int32_t s) { return s * (1.0 / 32767); }
  TESSARO_INLINE static int32_t from16(int32_t v) { return v; }
  TESSARO_INLINE static int32_t from24(int32_t v) { return v >> 8; }
  TESSARO_INLINE static int32_t from64(double v) { return static_cast<int32_t>(v * 32767); }
  TESSARO_INLINE static int32_t mean16(int32_t l, int32_t r) { return halved(l, r); }
  TESSARO_INLINE static int32_t mean24(int32_t l, int32_t r) { return halved(l >> 8, r >> 8); }
  TESSARO_INLINE static int32_t mean64(double l, double r) { return halved(from64(l), from64(r)); }
};

// Three bytes, the lowest first.
struct S24 {
  static constexpr size_t bytes = 3;
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
  TESSARO_INLINE static int32_t to16(int32_t s) { return s >> 8; }
  TESSARO_INLINE static int32_t to24(int32_t s) { return s; }
  TESSARO_INLINE static double to64(int32_t s) { return s * (1.0 / 8388607); }
  TESSARO_INLINE static int32_t from16(int32_t v) { return shifted_up(v, 8); }
  TESSARO_INLINE static int32_t from24(int32_t v) { return v; }
  TESSARO_INLINE static int32_t from64(double v) { return static_cast<int32_t>(v * 8388607); }
  TESSARO_INLINE static int32_t mean16(int32_t l, int32_t r) { return shifted_up(halved(l, r), 8); }
  TESSARO_INLINE static int32_t mean24(int32_t l, int32_t r) { return halved(l, r); }
  TESSARO_INLINE static int32_t mean64(double l, double r) { return halved(from64(l), from64(r)); }
};

// Doubles, at the float scale only: the integer scales take every unknown form for S24.
struct S64 {
  static constexpr size_t bytes = 8;
  TESSARO_INLINE static double get(const uint8_t* at) { return *reinterpret_cast<const F64*>(at); }
  TESSARO_INLINE static void put(uint8_t* at, double v) { *reinterpret_cast<F64*>(at) = v; }
  TESSARO_INLINE static double to64(double s) { return s; }
  TESSARO_INLINE static double from64(double v) { return v; }
  TESSARO_INLINE static double mean64(double l, double r) { return (l + r) * 0.5; }
};

}  // namespace
