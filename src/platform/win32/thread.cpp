#include <windows.h>

#include "platform/platform.hpp"

namespace tessaro::platform {

namespace {

DWORD WINAPI run(LPVOID routine) {
  reinterpret_cast<void (*)()>(routine)();
  return 0;
}

}  // namespace

Thread start_thread(void (*routine)()) {
  return CreateThread(nullptr, 0, run, reinterpret_cast<LPVOID>(routine), 0, nullptr);
}

bool thread_runs(Thread thread) { return WaitForSingleObject(thread, 0) == WAIT_TIMEOUT; }

void close_thread(Thread thread) {
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
}

void yield() { Sleep(0); }

}  // namespace tessaro::platform
