// Permutes over tables of bytes in registers: an extension of AVX-512 of its own, asked for at run time.
#pragma once

#include "simd/vocabulary.hpp"

#if TESSARO_LANES == 16
#define TESSARO_VBMI [[gnu::target("avx512vbmi")]]

namespace {

TESSARO_INLINE bool has_byte_permutes() { return __builtin_cpu_supports("avx512vbmi"); }

}  // namespace
#endif
