// Copies through the float scale with one gain.
#pragma once

#include "wave/samples.hpp"

namespace tessaro {

// Destination frames = source frames * gain, clamped; gain is 0..100.
void scale(const Wave& to, const Wave& from, int32_t dst_start, int32_t src_start, int32_t count,
           double gain);

}  // namespace tessaro
