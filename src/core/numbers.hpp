// What the language leaves undefined or targets do differently, done one way everywhere.
#pragma once

#include <cstdint>
#include <cstring>

namespace tessaro {

// Truncates toward zero; what does not fit (NaN included) gives the smallest integer, as the processor's own
// conversion does.
constexpr int32_t trunc32(double v) {
  return v > -2147483649.0 && v < 2147483648.0 ? static_cast<int32_t>(v) : INT32_MIN;
}
constexpr int32_t trunc32(float v) { return trunc32(static_cast<double>(v)); }

// 32-bit arithmetic that wraps.
constexpr int32_t wrap32(int64_t v) {
  return static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(v)));
}
constexpr int32_t wrap_add(int32_t a, int32_t b) { return wrap32(static_cast<int64_t>(a) + b); }
constexpr int32_t wrap_sub(int32_t a, int32_t b) { return wrap32(static_cast<int64_t>(a) - b); }
constexpr int32_t wrap_mul(int32_t a, int32_t b) { return wrap32(static_cast<int64_t>(a) * b); }

// A parameter within its limits; not-a-number counts as too low.
template <class T>
constexpr T clamped(T v, T low, T high) {
  return !(v >= low) ? low : v > high ? high : v;
}

// A colour component given as an integer of its own.
constexpr uint32_t clamp_byte(int32_t v) { return v < 0 ? 0u : v > 255 ? 255u : static_cast<uint32_t>(v); }

// Host memory has no alignment: these compile to plain moves.
template <class T>
inline T load(const void* at) {
  T v;
  std::memcpy(&v, at, sizeof v);
  return v;
}
template <class T>
inline void store(void* at, T v) {
  std::memcpy(at, &v, sizeof v);
}

// The bits of a value as another type of the same size.
template <class To, class From>
inline To bits_as(From v) {
  static_assert(sizeof(To) == sizeof(From));
  To to;
  std::memcpy(&to, &v, sizeof to);
  return to;
}

}  // namespace tessaro
