// What memory allows: loops that do next to nothing with the bytes they move, with vectors of three widths.
#include <cstring>

#include "bench.hpp"

namespace tessaro::bench {
namespace {

template <size_t bytes>
struct Words;
template <>
struct Words<16> {
  typedef uint64_t V __attribute__((vector_size(16), aligned(1), may_alias));
};
template <>
struct Words<32> {
  typedef uint64_t V __attribute__((vector_size(32), aligned(1), may_alias));
};
template <>
struct Words<64> {
  typedef uint64_t V __attribute__((vector_size(64), aligned(1), may_alias));
};

// Function templates take no target of their own, so this is a macro. All sizes are multiples of 64.
#define TESSARO_LIMITS(Isa, target, width)                                                                  \
  struct Isa {                                                                                              \
    using V = Words<width>::V;                                                                              \
    target static void update(uint8_t* d, size_t bytes) {                                                   \
      _Pragma("GCC unroll 4") for (size_t i = 0; i < bytes; i += width) at(d + i) = ~at(d + i);             \
    }                                                                                                       \
    target static void combine(uint8_t* d, const uint8_t* s, size_t bytes) {                                \
      _Pragma("GCC unroll 4") for (size_t i = 0; i < bytes; i += width) at(d + i) ^= at(s + i);             \
    }                                                                                                       \
    target static void combine3(uint8_t* d, const uint8_t* a, const uint8_t* b, size_t bytes) {             \
      _Pragma("GCC unroll 4") for (size_t i = 0; i < bytes; i += width) at(d + i) ^= at(a + i) ^ at(b + i); \
    }                                                                                                       \
    target static uint64_t read(const uint8_t* s, size_t bytes) {                                           \
      V all{};                                                                                              \
      _Pragma("GCC unroll 4") for (size_t i = 0; i < bytes; i += width) all ^= at(s + i);                   \
      return all[0] ^ all[1];                                                                               \
    }                                                                                                       \
    static V& at(uint8_t* p) { return *reinterpret_cast<V*>(p); }                                           \
    static const V& at(const uint8_t* p) { return *reinterpret_cast<const V*>(p); }                         \
  };
TESSARO_LIMITS(Sse2, , 16)
TESSARO_LIMITS(Avx2, [[gnu::target("avx2")]], 32)
TESSARO_LIMITS(Avx512, [[gnu::target("avx512f")]], 64)

template <class Run>
auto widest(Run run) {
  static const int width = __builtin_cpu_supports("avx512f") ? 64 : __builtin_cpu_supports("avx2") ? 32 : 16;
  return width == 64 ? run(Avx512{}) : width == 32 ? run(Avx2{}) : run(Sse2{});
}

uint8_t* out(void* at) { return static_cast<uint8_t*>(at); }
const uint8_t* in(const void* at) { return static_cast<const uint8_t*>(at); }

}  // namespace

void limit_copy(void* dst, const void* src, size_t bytes) { std::memcpy(dst, src, bytes); }
void limit_fill(void* dst, size_t bytes) { std::memset(dst, 0x5A, bytes); }
void limit_update(void* dst, size_t bytes) {
  widest([=](auto isa) { isa.update(out(dst), bytes); });
}
void limit_combine(void* dst, const void* src, size_t bytes) {
  widest([=](auto isa) { isa.combine(out(dst), in(src), bytes); });
}
void limit_combine3(void* dst, const void* a, const void* b, size_t bytes) {
  widest([=](auto isa) { isa.combine3(out(dst), in(a), in(b), bytes); });
}
uint64_t limit_read(const void* src, size_t bytes) {
  return widest([=](auto isa) { return isa.read(in(src), bytes); });
}

}  // namespace tessaro::bench
