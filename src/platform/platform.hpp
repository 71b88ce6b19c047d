// The operating system as the rest of the library sees it, which win32/ and posix/ implement, and what they
// call in turn.
#pragma once

#include <cstdint>

#include "tessaro/frame.h"

namespace tessaro {

// What the system calls; host/ defines it. The first two run once when a process attaches the library and
// once when it lets go of it. The last offers a message to the hooks of its window.
void on_load();
void on_unload();
intptr_t offer_message(void* window, uint32_t message, uintptr_t first, intptr_t second);

}  // namespace tessaro

namespace tessaro::platform {

// Milliseconds since some start, modulo 2^32.
uint32_t tick_count();

// A thread from its start to its close_thread; null is none. thread_runs may be asked at any time, also while
// another thread closes this one and after: it does not run then.
using Thread = void*;
Thread start_thread(void (*routine)());  // null if the system has none to give
bool thread_runs(Thread thread);
void close_thread(Thread thread);  // waits for its end
void yield();

// What the hooks need of windows and their procedures; tests put a substitute in its place.
struct WindowSystem {
  intptr_t (*procedure)(void* window);  // 0 = cannot be read
  void (*set_procedure)(void* window, intptr_t procedure);
  intptr_t (*call)(intptr_t procedure, void* window, uint32_t message, uintptr_t first, intptr_t second);
  // The procedure that a hooked window gets: it hands its arguments to offer_message.
  intptr_t (*replacement)();
};
extern const WindowSystem windows;

// Calls a host's hook, of either calling convention where the system has two.
int32_t call_hook(TessaroHook hook, void* window, uint32_t message, uintptr_t first, intptr_t second,
                  intptr_t value);

}  // namespace tessaro::platform
