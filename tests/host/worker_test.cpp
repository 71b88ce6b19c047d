#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>
#ifdef _WIN32
#include <windows.h>
#else
#include <pthread.h>
#endif

#include "platform/platform.hpp"
#include "tessaro/tessaro.h"

namespace {

std::atomic<int> calls;
void count() { ++calls; }
void leave() {
  ++calls;
#ifdef _WIN32
  ExitThread(5);
#else
  pthread_exit(nullptr);
#endif
}

void await_calls(int n) {
  while (calls < n) std::this_thread::yield();
}

TEST(Worker, RunsUntilItIsKilledAndMayBeginAgain) {
  EXPECT_EQ(ThreadKill(), 1);
  for (int round = 0; round < 20; ++round) {
    calls = 0;
    std::atomic<bool> returned = false;
    std::thread caller([&] {
      EXPECT_EQ(ThreadBegin(count), 0);
      returned = true;
    });
    await_calls(3);
    EXPECT_FALSE(returned) << "the start blocks while the worker runs";
    EXPECT_EQ(ThreadBegin(leave), 1);
    EXPECT_EQ(ThreadKill(), 0);
    const int after = calls;
    caller.join();
    EXPECT_TRUE(returned);
    EXPECT_EQ(calls, after);
    EXPECT_EQ(ThreadKill(), 1);
  }
}

TEST(Worker, ThatEndsByItselfStaysUntilItIsKilled) {
  calls = 0;
  EXPECT_EQ(ThreadBegin(leave), 0);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(ThreadBegin(leave), 1);
  EXPECT_EQ(ThreadKill(), 0);
  EXPECT_EQ(ThreadKill(), 1);
}

void kill_itself() {
  ++calls;
  ThreadKill();
  ++calls;
}

// In a process of its own, which ends with the worker still waiting.
TEST(WorkerDeathTest, ThatKillsItselfWaitsForEver) {
  const auto wait_for_it = [] {
    std::atomic<bool> returned = false;
    std::thread([&] {
      ThreadBegin(kill_itself);
      returned = true;
    }).detach();
    await_calls(1);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    std::_Exit(calls == 1 && !returned && ThreadBegin(count) == 1 ? 0 : 1);
  };
  calls = 0;
  EXPECT_EXIT(wait_for_it(), testing::ExitedWithCode(0), "");
}

#ifdef _WIN32
TEST(Worker, ThatIsClosedIsNotMistakenForWhatGetsItsHandleNext) {
  using namespace tessaro::platform;
  const Thread thread = start_thread([] {});
  close_thread(thread);
  HANDLE event = nullptr;  // set, and reset by the first wait
  for (int i = 0; i < 1000 && event != thread; ++i) event = CreateEventA(nullptr, FALSE, TRUE, nullptr);
  ASSERT_EQ(event, thread) << "the system no longer hands closed handles out again";
  EXPECT_FALSE(thread_runs(thread));
  EXPECT_EQ(WaitForSingleObject(event, 0), WAIT_OBJECT_0) << "somebody waited for it";
  CloseHandle(event);
}
#else
TEST(Worker, ThatCannotBeMadeLeavesNone) {
  pthread_attr_t usual, huge;  // a stack larger than any address space
  ASSERT_EQ(pthread_getattr_default_np(&usual), 0);
  ASSERT_EQ(pthread_attr_init(&huge), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&huge, size_t{1} << 50), 0);
  ASSERT_EQ(pthread_setattr_default_np(&huge), 0);
  calls = 0;
  EXPECT_EQ(ThreadBegin(count), 0);
  pthread_setattr_default_np(&usual);
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(ThreadKill(), 1);
}
#endif

}  // namespace
