// A system without windows.
#include "platform/platform.hpp"

namespace tessaro::platform {

// There are no window procedures here: none can be read, so none is ever replaced.
constinit const WindowSystem windows = {
    .procedure = [](void*) { return intptr_t{0}; },
    .set_procedure = [](void*, intptr_t) {},
    .call = [](intptr_t, void*, uint32_t, uintptr_t, intptr_t) { return intptr_t{0}; },
    .replacement = [] { return intptr_t{0}; },
};

int32_t call_hook(TessaroHook hook, void* window, uint32_t message, uintptr_t first, intptr_t second,
                  intptr_t value) {
  return hook(window, message, first, second, value);
}

}  // namespace tessaro::platform
