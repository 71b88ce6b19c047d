// Ticks of the system, and where the library hears that it is loaded and unloaded.
#include <time.h>

#include "platform/platform.hpp"

namespace tessaro::platform {

uint32_t tick_count() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<uint32_t>(static_cast<uint64_t>(now.tv_sec) * 1000 +
                               static_cast<uint64_t>(now.tv_nsec) / 1000000);
}

}  // namespace tessaro::platform

[[gnu::constructor]] static void attach() { tessaro::on_load(); }
[[gnu::destructor]] static void detach() { tessaro::on_unload(); }
