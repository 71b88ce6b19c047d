// Calls on a thread whose stack is as small as some hosts' are.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <functional>

#if defined(_WIN32)
#include <windows.h>
#else
#include <pthread.h>
#endif

#if defined(__has_feature)
#define TESSARO_CHECKED_BY_CLANG (__has_feature(address_sanitizer) || __has_feature(thread_sanitizer))
#else
#define TESSARO_CHECKED_BY_CLANG 0
#endif

namespace tessaro::test {

#if defined(_WIN32)
// A function of its own: a lambda has not the convention that 32-bit Windows calls threads by.
inline DWORD WINAPI run_on_thread(void* what) {
  (*static_cast<std::function<void()>*>(what))();
  return 0;
}
#endif

inline void on_a_small_stack(const std::function<void()>& run) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || TESSARO_CHECKED_BY_CLANG
  constexpr size_t bytes = size_t{512} << 10;  // checked code takes several times the room
#else
  constexpr size_t bytes = size_t{64} << 10;
#endif
  auto* const what = const_cast<std::function<void()>*>(&run);
#if defined(_WIN32)
  const HANDLE thread =
      CreateThread(nullptr, bytes, run_on_thread, what, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
#else
  const auto start = [](void* at) -> void* {
    (*static_cast<std::function<void()>*>(at))();
    return nullptr;
  };
  pthread_attr_t attributes;
  pthread_t thread;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, bytes);
  if (pthread_create(&thread, &attributes, start, what) != 0) std::abort();
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
#endif
}

}  // namespace tessaro::test
