// The operating system as the rest of the library sees it. win32/ and posix/ implement it.
#pragma once

#include <cstdint>

namespace tessaro::platform {

// Milliseconds since some start, modulo 2^32.
uint32_t tick_count();

}  // namespace tessaro::platform
