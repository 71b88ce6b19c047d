// Windows whose messages go to a host's function first.
#pragma once

#include <cstdint>

#include "platform/platform.hpp"
#include "tessaro/frame.h"

namespace tessaro {

class HookTable {
 public:
  explicit constexpr HookTable(const platform::WindowSystem& system) : system_(system) {}

  bool hook(void* window, TessaroHook hook, intptr_t value);
  bool unhook(void* window);
  void unhook_all();
  // What a hooked window's procedure returns for a message.
  intptr_t offer(void* window, uint32_t message, uintptr_t first, intptr_t second);
  int32_t count() const { return count_; }

 private:
  struct Entry {
    intptr_t previous;
    void* window;
    intptr_t value;
    TessaroHook hook;
  };
  static constexpr int32_t capacity = 256;

  Entry* find(void* window);
  void release(Entry& entry);

  const platform::WindowSystem& system_;
  int32_t count_ = 0;
  Entry entries_[capacity] = {};
};

}  // namespace tessaro
