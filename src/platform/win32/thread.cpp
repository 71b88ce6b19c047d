// Threads under handles of the system.
#include <windows.h>

#include <atomic>

#include "platform/platform.hpp"

namespace tessaro::platform {

namespace {

// The system may give the value of a closed handle to another object at once, and waiting for that may change
// it (an event is reset, a mutex taken). So a handle is closed, and asked about without waiting, under a
// lock.
constinit HANDLE open = nullptr;
constinit std::atomic_flag locked;

struct Lock {
  Lock() {
    while (locked.test_and_set()) yield();
  }
  ~Lock() { locked.clear(); }
};

DWORD WINAPI run(LPVOID routine) {
  reinterpret_cast<void (*)()>(routine)();
  return 0;
}

}  // namespace

Thread start_thread(void (*routine)()) {
  const Lock lock;
  return open = CreateThread(nullptr, 0, run, reinterpret_cast<LPVOID>(routine), 0, nullptr);
}

bool thread_runs(Thread thread) {
  const Lock lock;
  return thread != nullptr && thread == open && WaitForSingleObject(thread, 0) == WAIT_TIMEOUT;
}

void close_thread(Thread thread) {
  WaitForSingleObject(thread, INFINITE);
  const Lock lock;
  if (thread != open) return;
  CloseHandle(thread);
  open = nullptr;
}

void yield() { Sleep(0); }

}  // namespace tessaro::platform
