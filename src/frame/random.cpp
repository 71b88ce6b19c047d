// The Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (ACM TOMACS 8, 1998), with the seeding of its
// first published version.
#include <array>
#include <cstddef>

#include "frame/process.hpp"
#include "tessaro/tessaro.h"

namespace tessaro {

namespace {

constexpr size_t words = 624, middle = 397;
std::array<uint32_t, words> state;
size_t next_draw = 0;

void regenerate() {
  for (size_t i = 0; i < words; ++i) {
    const uint32_t y = (state[i] & 0x80000000u) | (state[(i + 1) % words] & 0x7FFFFFFFu);
    state[i] = state[(i + middle) % words] ^ y >> 1 ^ (y & 1 ? 0x9908B0DFu : 0u);
  }
  next_draw = 0;
}

}  // namespace

void seed_random(uint32_t seed) {
  for (uint32_t& word : state) {
    word = seed & 0xFFFF0000u;
    seed = 69069 * seed + 1;
    word |= seed >> 16;
    seed = 69069 * seed + 1;
  }
  next_draw = words;
}

uint32_t draw_random() {
  // The index read once, so that threads that race on it still stay inside the state.
  size_t at = next_draw;
  if (at >= words) {
    regenerate();
    at = 0;
  }
  next_draw = at + 1;
  uint32_t y = state[at];
  y ^= y >> 11;
  y ^= y << 7 & 0x9D2C5680u;
  y ^= y << 15 & 0xEFC60000u;
  return y ^ y >> 18;
}

}  // namespace tessaro

extern "C" uint32_t TESSARO_CALL GetRandom(uint32_t n) {
  const uint32_t y = tessaro::draw_random();
#if defined(__x86_64__) || defined(__i386__)
  // A divisor of 0 faults as the processor's division does; the language would leave it undefined.
  uint32_t quotient = y, rest = 0;
  __asm__("divl %2" : "+a"(quotient), "+d"(rest) : "r"(n) : "cc");
  return rest;
#else
  return y % n;
#endif
}
