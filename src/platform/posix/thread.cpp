// Threads under serial numbers, so that an old handle names no new thread.
#include <pthread.h>
#include <sched.h>
#include <unistd.h>

#include <atomic>

#include "platform/platform.hpp"

namespace tessaro::platform {

namespace {

// The library has one thread at a time. Its handle is a serial number and never an address, so that a handle
// that another thread is closing can still be asked about.
constinit std::atomic<uintptr_t> running = 0;  // the handle of the thread that has not ended
constinit pthread_mutex_t closing = PTHREAD_MUTEX_INITIALIZER;
uintptr_t last = 0, joinable = 0;  // handles: the newest, and the one whose end nobody has waited for
pthread_t joinable_thread;

void ended(void*) { running = 0; }

void* run(void* routine) {
  // Also when the host's function leaves by pthread_exit.
  pthread_cleanup_push(ended, nullptr);
  reinterpret_cast<void (*)()>(routine)();
  pthread_cleanup_pop(1);
  return nullptr;
}

}  // namespace

Thread start_thread(void (*routine)()) {
  pthread_mutex_lock(&closing);
  const uintptr_t handle = ++last;
  running = handle;
  const bool started = pthread_create(&joinable_thread, nullptr, run, reinterpret_cast<void*>(routine)) == 0;
  if (started)
    joinable = handle;
  else
    running = 0;
  pthread_mutex_unlock(&closing);
  return started ? reinterpret_cast<Thread>(handle) : nullptr;
}

bool thread_runs(Thread thread) {
  return thread != nullptr && running == reinterpret_cast<uintptr_t>(thread);
}

void close_thread(Thread thread) {
  pthread_mutex_lock(&closing);
  if (joinable == reinterpret_cast<uintptr_t>(thread)) {
    // The system refuses a thread that waits for its own end. Like any other it waits: for ever.
    if (pthread_join(joinable_thread, nullptr) != 0)
      while (thread_runs(thread)) usleep(1000);
    joinable = 0;
  }
  pthread_mutex_unlock(&closing);
}

void yield() { sched_yield(); }

}  // namespace tessaro::platform
