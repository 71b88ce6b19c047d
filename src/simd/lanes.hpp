// Numbers and bytes side by side, for waveforms and byte transforms: vectors of the compiler, which has them
// on every target. What cannot be said well with these is an operation below. Its form here, for any vector,
// is its definition; a back end overloads or specialises it where the processor has an instruction for it.
//
//   read_whole<n>(p)             eight integers of n bytes from any place: of 1 without sign, of 2, 3, 4 with it
//   write_whole<n>(p, v)         their low n bytes
//   read_lanes(p, v) write_lanes(p, v)  eight doubles
//   to_doubles(v, d)             of eight integers, exactly
//   converted(x)                 truncated to 32 bits; what does not fit, also not-a-number, gives the smallest integer
//   converted64(x)               the same of 64 bits
//   to_whole(d)                  eight of converted(x)
//   any_negative(v)              whether the top bit of one of eight integers is set
//   none_set(v)                  whether all bits are 0
//   dot_pairs(a, b)              a[2i] * b[2i] + a[2i + 1] * b[2i + 1] of 16-bit numbers; every sum fits 32 bits
//   narrowed(a, b)               the 32-bit numbers of a, then b, kept within 16 bits
//   byte_sums(v)                 the sum of every eight bytes, as a number of 64 bits
//
// Bytes, where a lane is 16 of them:
//   behind<n>(v, before)         v moved up by n bytes, the last n bytes of `before` below them; n is 1, 2, 4
//   last_all_over<n>(v)          the last n bytes, from the first byte on to the last
//   lane_ends<n>(v)              the same in each lane
//   raised<n>(v)                 each lane moved up by n bytes, zeros below; n is 1, 2, 4, 8
//   lanes_raised<n>(v)           whole lanes moved up by n, zeros below
//
// Planes of 32 bytes, w0 being byte 0 of w:
//   unzipped(p, a, b)            from p0 p1 p2 ..: a = p0 p2 p4 .., b = p1 p3 p5 ..
//   zipped(p, x, y, z)           to p: x0 y0 z0 x1 y1 z1 ..
//   zipped(p, w, x, y, z)        to p: w0 x0 y0 z0 w1 ..
#pragma once

#include <type_traits>

#include "simd/vocabulary.hpp"

namespace {

// What vectors of whole registers are long. The scalar back end has none, and room for the definitions.
#if defined(TESSARO_LANES)
constexpr size_t register_bytes = TESSARO_LANES > 4 ? 4 * TESSARO_LANES : 16;
#else
constexpr size_t register_bytes = 16;
#endif

typedef int16_t Short8 __attribute__((vector_size(16)));
typedef int32_t Int4 __attribute__((vector_size(16)));
typedef int64_t Long2 __attribute__((vector_size(16)));
typedef double Double2 __attribute__((vector_size(16)));
typedef double Double4 __attribute__((vector_size(32)));
typedef double Double8 __attribute__((vector_size(64)));
typedef int32_t Whole __attribute__((vector_size(32)));
typedef uint32_t Natural __attribute__((vector_size(32)));
typedef uint8_t Byte32 __attribute__((vector_size(32)));
typedef uint8_t Bytes __attribute__((vector_size(register_bytes)));

// Any vector from and to any place.
template <class V>
TESSARO_INLINE V get(const void* at) {
  V v;
  __builtin_memcpy(&v, at, sizeof v);
  return v;
}
template <class V>
TESSARO_INLINE void put(void* at, const V& v) {
  __builtin_memcpy(at, &v, sizeof v);
}

// Eight doubles. Compilers keep a vector of two registers in memory.
struct DoublePair {
  Double4 low, high;
};
TESSARO_INLINE DoublePair operator+(const DoublePair& a, const DoublePair& b) {
  return {a.low + b.low, a.high + b.high};
}
TESSARO_INLINE DoublePair operator*(const DoublePair& a, const DoublePair& b) {
  return {a.low * b.low, a.high * b.high};
}
TESSARO_INLINE DoublePair operator*(const DoublePair& a, double b) { return {a.low * b, a.high * b}; }
using Lanes = std::conditional_t<register_bytes == 64, Double8, DoublePair>;

template <size_t n>
TESSARO_INLINE Whole read_whole(const uint8_t* in) {
  Whole v = {};
  for (size_t i = 0; i < 8; ++i) {
    uint32_t x = 0;
    for (size_t k = 0; k < n; ++k) x |= uint32_t{in[n * i + k]} << 8 * k;
    constexpr unsigned unused = n == 1 ? 0 : 32 - 8 * n;
    v[i] = static_cast<int32_t>(x << unused) >> unused;
  }
  return v;
}
template <size_t n>
TESSARO_INLINE void write_whole(uint8_t* out, const Whole& v) {
  for (size_t i = 0; i < 8; ++i)
    for (size_t k = 0; k < n; ++k) out[n * i + k] = static_cast<uint8_t>(v[i] >> 8 * k);
}
TESSARO_INLINE void read_lanes(const uint8_t* in, Double8& v) { __builtin_memcpy(&v, in, sizeof v); }
TESSARO_INLINE void read_lanes(const uint8_t* in, DoublePair& v) {
  __builtin_memcpy(&v.low, in, sizeof v.low);
  __builtin_memcpy(&v.high, in + sizeof v.low, sizeof v.high);
}
TESSARO_INLINE void write_lanes(uint8_t* out, const Double8& v) { put(out, v); }
TESSARO_INLINE void write_lanes(uint8_t* out, const DoublePair& v) {
  put(out, v.low);
  put(out + 32, v.high);
}

template <class D>
TESSARO_INLINE void to_doubles(const Whole& v, D& out) {
  out = __builtin_convertvector(v, D);
}
TESSARO_INLINE void to_doubles(const Whole& v, DoublePair& out) {
  out = {__builtin_convertvector(__builtin_shufflevector(v, v, 0, 1, 2, 3), Double4),
         __builtin_convertvector(__builtin_shufflevector(v, v, 4, 5, 6, 7), Double4)};
}
template <class T>
TESSARO_INLINE int32_t converted(const T& x) {
  return x > -2147483649.0 && x < 2147483648.0 ? static_cast<int32_t>(x) : INT32_MIN;
}
template <class T>
TESSARO_INLINE int64_t converted64(const T& x) {
  if (x > -2147483649.0 && x < 2147483648.0) return static_cast<int32_t>(x);
  return x >= -9223372036854775808.0 && x < 9223372036854775808.0 ? static_cast<int64_t>(x) : INT64_MIN;
}
template <class D>
TESSARO_INLINE Whole to_whole(const D& v) {
  double d[8];
  write_lanes(reinterpret_cast<uint8_t*>(d), v);
  Whole out = {};
  for (size_t i = 0; i < 8; ++i) out[i] = converted(d[i]);
  return out;
}

template <class V>
TESSARO_INLINE bool any_negative(const V& v) {
  bool any = false;
  for (size_t i = 0; i < sizeof v / sizeof v[0]; ++i) any = any || static_cast<int32_t>(v[i]) < 0;
  return any;
}
template <class V>
TESSARO_INLINE bool none_set(const V& v) {
  bool none = true;
  for (size_t i = 0; i < sizeof v / sizeof v[0]; ++i) none = none && v[i] == 0;
  return none;
}
template <class V>
TESSARO_INLINE Int4 dot_pairs(const V& a, const V& b) {
  Int4 sums = {};
  for (size_t i = 0; i < 4; ++i) sums[i] = a[2 * i] * b[2 * i] + a[2 * i + 1] * b[2 * i + 1];
  return sums;
}
template <class V>
TESSARO_INLINE Short8 narrowed(const V& a, const V& b) {
  Short8 out = {};
  for (size_t i = 0; i < 8; ++i) {
    const int32_t v = i < 4 ? a[i] : b[i - 4];
    out[i] = static_cast<int16_t>(v < -32768 ? -32768 : v > 32767 ? 32767 : v);
  }
  return out;
}
template <class V>
TESSARO_INLINE V byte_sums(const V& v) {
  V out = {};
  for (size_t i = 0; i < sizeof v; i += 8) {
    unsigned sum = 0;
    for (size_t k = 0; k < 8; ++k) sum += v[i + k];
    out[i] = static_cast<uint8_t>(sum);
    out[i + 1] = static_cast<uint8_t>(sum >> 8);
  }
  return out;
}

template <int n, class V>
TESSARO_INLINE V behind(const V& v, const V& before) {
  V out = before;
  for (size_t i = 0; i < sizeof v; ++i) out[i] = i < n ? before[sizeof v - n + i] : v[i - n];
  return out;
}
template <int n, class V>
TESSARO_INLINE V last_all_over(const V& v) {
  V out = v;
  for (size_t i = 0; i < sizeof v; ++i) out[i] = v[sizeof v - n + i % n];
  return out;
}
template <int n, class V>
TESSARO_INLINE V lane_ends(const V& v) {
  V out = v;
  for (size_t i = 0; i < sizeof v; ++i) out[i] = v[(i | 15) - n + 1 + i % n];
  return out;
}
template <int n, class V>
TESSARO_INLINE V raised(const V& v) {
  V out = {};
  for (size_t i = 0; i < sizeof v; ++i) out[i] = i % 16 < n ? uint8_t{0} : v[i - n];
  return out;
}
template <int n, class V>
TESSARO_INLINE V lanes_raised(const V& v) {
  V out = {};
  for (size_t i = 0; i < sizeof v; ++i) out[i] = i < 16 * n ? uint8_t{0} : v[i - 16 * n];
  return out;
}

template <class V>
TESSARO_INLINE void unzipped(const uint8_t* p, V& a, V& b) {
  for (size_t i = 0; i < sizeof a; ++i) {
    a[i] = p[2 * i];
    b[i] = p[2 * i + 1];
  }
}
template <class V>
TESSARO_INLINE void zipped(uint8_t* p, const V& x, const V& y, const V& z) {
  for (size_t i = 0; i < sizeof x; ++i) {
    p[3 * i] = x[i];
    p[3 * i + 1] = y[i];
    p[3 * i + 2] = z[i];
  }
}
template <class V>
TESSARO_INLINE void zipped(uint8_t* p, const V& w, const V& x, const V& y, const V& z) {
  for (size_t i = 0; i < sizeof x; ++i) {
    p[4 * i] = w[i];
    p[4 * i + 1] = x[i];
    p[4 * i + 2] = y[i];
    p[4 * i + 3] = z[i];
  }
}

}  // namespace
