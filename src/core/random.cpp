// The Mersenne Twister MT19937 of M. Matsumoto and T. Nishimura (ACM TOMACS 8, 1998), with the seeding of its
// first published version.
#include "core/random.hpp"

#include <array>
#include <cstddef>

namespace tessaro {

namespace {

constexpr size_t words = 624, middle = 397;
std::array<uint32_t, words> state;
size_t next_draw = 0;

uint32_t twisted(uint32_t high, uint32_t low, uint32_t across) {
  const uint32_t y = (high & 0x80000000u) | (low & 0x7FFFFFFFu);
  return across ^ y >> 1 ^ ((0u - (y & 1)) & 0x9908B0DFu);
}

// In stretches whose words do not depend on one another, so that they become vectors.
void regenerate() {
  constexpr size_t apart = words - middle;
  uint32_t* at = state.data();
  for (size_t i = 0; i < apart; ++i) at[i] = twisted(at[i], at[i + 1], at[i + middle]);
  for (size_t from = apart; from < words - 1; from += apart)
    for (size_t i = from; i < from + apart && i < words - 1; ++i)
      at[i] = twisted(at[i], at[i + 1], at[i - apart]);
  at[words - 1] = twisted(at[words - 1], at[0], at[middle - 1]);
  next_draw = 0;
}

uint32_t tempered(uint32_t y) {
  y ^= y >> 11;
  y ^= y << 7 & 0x9D2C5680u;
  y ^= y << 15 & 0xEFC60000u;
  return y ^ y >> 18;
}

// The place of the next word, read once, so that threads that race on it still stay inside the state.
size_t place() {
  const size_t at = next_draw;
  if (at < words) return at;
  regenerate();
  return 0;
}

// Calls take(words, n) for the next n words of the state, in as many stretches as it takes.
template <class Take>
void each_stretch(int64_t n, Take take) {
  while (n > 0) {
    const size_t at = place();
    const auto left = static_cast<int64_t>(words - at);
    const int64_t some = n < left ? n : left;
    next_draw = at + static_cast<size_t>(some);
    take(state.data() + at, some);
    n -= some;
  }
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
  const size_t at = place();
  next_draw = at + 1;
  return tempered(state[at]);
}

void draw_random(uint32_t* out, int64_t n) {
  each_stretch(n, [&](const uint32_t* from, int64_t some) {
    for (int64_t i = 0; i < some; ++i) out[i] = tempered(from[i]);
    out += some;
  });
}

void skip_random(int64_t n) {
  each_stretch(n, [](const uint32_t*, int64_t) {});
}

}  // namespace tessaro
