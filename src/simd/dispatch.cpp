#include "simd/dispatch.hpp"

namespace tessaro {

constinit Backend active_backend = Backend::sse2;
constinit ptrdiff_t streamed_area = never;

Backend best_backend() {
  __builtin_cpu_init();
  const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") &&
                    __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("popcnt");
  const bool avx512 = avx2 && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                      __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq");
  return avx512 ? Backend::avx512 : avx2 ? Backend::avx2 : Backend::sse2;
}

void choose_backend() {
  active_backend = best_backend();
  // 16 MiB: more than is found in a cache again.
  streamed_area = __builtin_cpu_is("amd") ? ptrdiff_t{4} << 20 : never;
}

const char* name_of(Backend backend) {
  static constexpr const char* names[backend_count] = {"scalar", "sse2", "avx2", "avx512"};
  return names[static_cast<size_t>(backend)];
}

}  // namespace tessaro
