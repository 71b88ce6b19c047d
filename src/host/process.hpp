// The processor level, and what is left to do when the library goes.
#pragma once

#include <cstdint>

namespace tessaro {

// The processor level for the feature flags that the processor reports in EDX: 2 or 3 without packed
// integers, 4 with MMX, plus 8 with SSE and 16 with SSE2.
int32_t cpu_level_of(uint32_t flags);

// Takes back the hooks that are left when the library goes.
void unhook_all();

}  // namespace tessaro
