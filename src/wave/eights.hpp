// Eight samples in a vector, as kernels read and write them.
#pragma once

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

TESSARO_INLINE DoublePair to_unit(const DoublePair& v) { return {to_unit(v.low), to_unit(v.high)}; }

// Whether vectors of eight integers are registers; without, kernels work sample by sample.
constexpr bool eights = Px::lanes >= 8;

template <class S>
TESSARO_INLINE auto read8(const uint8_t* in) {
  if constexpr (S::bytes == 8) {
    Lanes v;
    read_lanes(in, v);
    return v;
  } else if constexpr (S::bytes == 1) {
    return read_whole<1>(in) - 128;
  } else {
    return read_whole<S::bytes>(in);
  }
}
template <class S, class V>
TESSARO_INLINE void write8(uint8_t* out, const V& v) {
  if constexpr (S::bytes == 8)
    write_lanes(out, v);
  else
    write_whole<S::bytes>(out, v);
}

}  // namespace
