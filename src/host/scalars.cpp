// Scalar exports for hosts whose language lacks them.
#include <algorithm>
#include <cstddef>
#include <cstring>

#include "core/numbers.hpp"
#include "core/random.hpp"
#include "core/weights.hpp"
#include "simd/processor.hpp"
#include "tessaro/tessaro.h"

using namespace tessaro;

namespace {

template <class T>
uint8_t* element(const void* base, int32_t index) {
  // Hosts reach all of their memory from a base of 0.
  return reinterpret_cast<uint8_t*>(reinterpret_cast<uintptr_t>(base) +
                                    static_cast<uintptr_t>(index) * sizeof(T));
}

// The two string hashes mix their state alike, with different masks and factors.
struct HashState {
  uint32_t h1, h2;
  void take(uint32_t ch, uint32_t mask, uint32_t factor) {
    h2 &= mask;
    h1 = (h1 & mask) + (h2 >> 1) + ch + 520 * h2;
    h2 += ch + factor * h1;
  }
  uint32_t result() const { return h1 << 16 ^ h2; }
};

}  // namespace

extern "C" {

int32_t TESSARO_CALL BBI(int32_t x) { return x; }

uint32_t TESSARO_CALL SHR(uint32_t value, uint32_t count) { return value >> (count & 31); }
int32_t TESSARO_CALL SAR(int32_t value, uint32_t count) { return value >> (count & 31); }
uint32_t TESSARO_CALL SHL(uint32_t value, uint32_t count) { return value << (count & 31); }

uint16_t TESSARO_CALL GetWORD(const void* base, int32_t index) {
  return load<uint16_t>(element<uint16_t>(base, index));
}
uint16_t TESSARO_CALL SetWORD(void* base, int32_t index, uint32_t value) {
  store(element<uint16_t>(base, index), static_cast<uint16_t>(value));
  return static_cast<uint16_t>(value);
}
uint32_t TESSARO_CALL GetDWORD(const void* base, int32_t index) {
  return load<uint32_t>(element<uint32_t>(base, index));
}
uint32_t TESSARO_CALL SetDWORD(void* base, int32_t index, uint32_t value) {
  store(element<uint32_t>(base, index), value);
  return value;
}

int32_t TESSARO_CALL dllComp(const void* a, const void* b, int32_t count) {
  // Hosts compare short texts with generous counts: no page is touched unless all before it is equal.
  constexpr uintptr_t page = 4096;
  const auto *p = static_cast<const uint8_t*>(a), *q = static_cast<const uint8_t*>(b);
  const auto in_page = [](const uint8_t* at) { return page - reinterpret_cast<uintptr_t>(at) % page; };
  for (size_t left = count < 1 ? 0 : static_cast<size_t>(count), n; left > 0; left -= n, p += n, q += n) {
    n = std::min({left, static_cast<size_t>(in_page(p)), static_cast<size_t>(in_page(q))});
    if (std::memcmp(p, q, n) != 0) return 1;
  }
  return 0;
}

int32_t TESSARO_CALL CopyMemoryEx(void* dst, const void* src, int32_t words, int32_t rows, int32_t pitch) {
  auto* d = static_cast<uint8_t*>(dst);
  const auto* s = static_cast<const uint8_t*>(src);
  if (words < 1) return 0;
  for (; rows >= 1; --rows, d += pitch, s += pitch)
    for (ptrdiff_t i = 0; i < words; ++i)
      store(d + 4 * i, load<uint32_t>(d + 4 * i) ^ load<uint32_t>(s + 4 * i));
  return 0;
}

uint32_t TESSARO_CALL hash32A(const void* text) {
  const auto* at = static_cast<const uint8_t*>(text);
  HashState state{0x22A83D, 0x1476E5};
  for (int i = 0; i < 64 && at[i] != 0; ++i) state.take(at[i], 0x3FFFFF, 162);
  return state.result();
}

uint32_t TESSARO_CALL hash32W(const void* bytes, int32_t length) {
  const auto* at = static_cast<const uint8_t*>(bytes);
  HashState state{0x12A83D, 0x1476E5};
  for (int32_t i = 0; i < length; ++i)
    if (at[i] != 0) state.take(at[i], 0x1FFFFF, 38);
  return state.result();
}

uint32_t TESSARO_CALL dwColorBlend(uint32_t colour0, uint32_t colour1, float factor) {
  if (!(factor >= 0.0f)) factor = 0.0f;
  if (factor > 1.0f) factor = 1.0f;
  const auto k = static_cast<uint32_t>(trunc32(factor * 256.0f));
  return weighted_sum(colour0, 256 - k, colour1, k);
}

intptr_t TESSARO_CALL dllMethod1(TessaroMethod1 fn, intptr_t a) { return fn(a); }
intptr_t TESSARO_CALL dllMethod4(TessaroMethod4 fn, intptr_t a, intptr_t b, intptr_t c, intptr_t d) {
  return fn(a, b, c, d);
}
intptr_t TESSARO_CALL StdCallBack(TessaroCallback2 fn, intptr_t a, intptr_t b) { return fn(a, b); }

uint32_t TESSARO_CALL GetRandom(uint32_t n) { return processor::remainder(draw_random(), n); }

}  // extern "C"
