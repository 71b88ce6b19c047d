// The choice of the back end when the library is loaded.
#include "simd/dispatch.hpp"

#include "simd/processor.hpp"

namespace tessaro {

constinit Backend active_backend = Backend::scalar;
constinit ptrdiff_t streamed_area = never;
constinit bool string_moves = true;

Backend best_backend() {
  Backend best = Backend::scalar;
#define TESSARO_IF_IT_RUNS(name, runs) \
  if (runs) best = Backend::name;
  TESSARO_EACH_BACKEND(TESSARO_IF_IT_RUNS)
#undef TESSARO_IF_IT_RUNS
  return best;
}

void choose_backend() {
  active_backend = best_backend();
  string_moves = !processor::streams_well();
  // 16 MiB: more than is found in a cache again.
  streamed_area = string_moves ? never : ptrdiff_t{4} << 20;
}

const char* name_of(Backend backend) {
#define TESSARO_QUOTED(name, runs) #name,
  static constexpr const char* names[backend_count] = {TESSARO_EACH_BACKEND(TESSARO_QUOTED)};
#undef TESSARO_QUOTED
  return names[static_cast<size_t>(backend)];
}

}  // namespace tessaro
