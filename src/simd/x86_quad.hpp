// The channels of one pixel in half of a 128-bit register: the same on every back end for x86.
#pragma once

#include <emmintrin.h>

#include "simd/vocabulary.hpp"

namespace {

struct Quad {
  __m128i v;  // the lower four lanes
  TESSARO_INLINE static Quad of(const uint8_t* p) {
    int pixel;
    std::memcpy(&pixel, p, 4);
    return {_mm_unpacklo_epi8(_mm_cvtsi32_si128(pixel), _mm_setzero_si128())};
  }
  TESSARO_INLINE static Quad load(const uint16_t* p) {
    return {_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))};
  }
  TESSARO_INLINE void store(uint16_t* p) const { _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v); }
  TESSARO_INLINE static Quad splat(uint16_t x) { return {_mm_set1_epi16(static_cast<short>(x))}; }
};
TESSARO_INLINE Quad operator+(Quad a, Quad b) { return {_mm_add_epi16(a.v, b.v)}; }
TESSARO_INLINE Quad operator*(Quad a, Quad b) { return {_mm_mullo_epi16(a.v, b.v)}; }

}  // namespace
