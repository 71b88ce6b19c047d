// The generator behind GetRandom and noise: one state for the whole process.
#pragma once

#include <cstdint>

namespace tessaro {

// Seeds it; draws one tempered word, or n as so many calls would; passes over n.
void seed_random(uint32_t seed);
uint32_t draw_random();
void draw_random(uint32_t* out, int64_t n);
void skip_random(int64_t n);

}  // namespace tessaro
