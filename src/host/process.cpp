// What happens when the library is loaded and unloaded, and what it tells of processor and time.
#include "host/process.hpp"

#include "core/random.hpp"
#include "platform/platform.hpp"
#include "simd/dispatch.hpp"
#include "simd/processor.hpp"
#include "tessaro/tessaro.h"

namespace tessaro {

static int32_t cpu_level = 0;  // what GetCpuID reports

int32_t cpu_level_of(uint32_t flags) {
  const auto bit = [flags](int n) { return static_cast<int32_t>(flags >> n & 1); };
  if (!bit(23)) return 2 + bit(15);
  return (bit(25) ? 12 : 4) + 16 * bit(26);
}

void on_load() {
  cpu_level = cpu_level_of(processor::feature_flags());
  choose_backend();
  seed_random(platform::tick_count());
}

void on_unload() { unhook_all(); }

}  // namespace tessaro

extern "C" {

int32_t TESSARO_CALL GetCpuID(void) { return tessaro::cpu_level; }

int32_t TESSARO_CALL MMX(int32_t flag) { return flag; }

}  // extern "C"
