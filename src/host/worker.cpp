// The one worker thread, which calls a function of the host until it is told to stop.
#include <atomic>

#include "platform/platform.hpp"
#include "tessaro/frame.h"

namespace tessaro {

namespace {

constinit std::atomic<TessaroWorker> callback = nullptr;
constinit std::atomic<int32_t> stop = 0;
constinit std::atomic<platform::Thread> worker = nullptr;

void work() {
  // The function may have the worker killed at once, which takes its handle.
  while (worker == nullptr) platform::yield();
  while (stop == 0) callback.load()();
}

}  // namespace

}  // namespace tessaro

extern "C" {

using namespace tessaro;

int32_t TESSARO_CALL ThreadBegin(TessaroWorker function) {
  if (worker != nullptr) return 1;
  callback = function;
  stop = 0;
  worker = platform::start_thread(work);
  // The handle is read afresh each time: ThreadKill may close it meanwhile.
  while (platform::thread_runs(worker)) platform::yield();
  return 0;
}

int32_t TESSARO_CALL ThreadKill(void) {
  platform::Thread thread = worker;
  if (thread == nullptr) return 1;
  stop = 1;
  platform::close_thread(thread);
  // ThreadBegin may have returned and started the next worker meanwhile: that one's handle stays.
  worker.compare_exchange_strong(thread, nullptr);
  return 0;
}

}  // extern "C"
