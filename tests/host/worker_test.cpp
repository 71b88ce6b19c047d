#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#ifdef _WIN32
#include <windows.h>
#else
#include <pthread.h>
#endif

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

#ifndef _WIN32
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
