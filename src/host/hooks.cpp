// Window hooks: a table of windows, each with what is called before its own procedure.
#include "host/hooks.hpp"

#include "host/process.hpp"

namespace tessaro {

bool HookTable::hook(void* window, TessaroHook hook, intptr_t value) {
  if (count_ >= capacity) return false;
  const intptr_t previous = system_.procedure(window);
  if (previous == 0) return false;
  system_.set_procedure(window, system_.replacement());
  entries_[count_++] = {previous, window, value, hook};
  return true;
}

HookTable::Entry* HookTable::find(void* window) {
  for (int32_t i = 0; i < count_; ++i)
    if (entries_[i].window == window) return &entries_[i];
  return nullptr;
}

// Hosts rely on what is left behind: only the last entry's procedure moves into the gap. The entry keeps its
// window, and the last entry's window is no longer found.
void HookTable::release(Entry& entry) {
  system_.set_procedure(entry.window, entry.previous);
  entry.previous = entries_[--count_].previous;
}

bool HookTable::unhook(void* window) {
  Entry* entry = find(window);
  if (entry == nullptr) return false;
  release(*entry);
  return true;
}

void HookTable::unhook_all() {
  while (count_ >= 1) release(entries_[0]);
}

intptr_t HookTable::offer(void* window, uint32_t message, uintptr_t first, intptr_t second) {
  Entry* entry = find(window);
  if (entry == nullptr) return 0;
  if (platform::call_hook(entry->hook, window, message, first, second, entry->value) != 0) return 0;
  return system_.call(entry->previous, window, message, first, second);
}

static constinit HookTable hooks(platform::windows);

intptr_t offer_message(void* window, uint32_t message, uintptr_t first, intptr_t second) {
  return hooks.offer(window, message, first, second);
}

void unhook_all() { hooks.unhook_all(); }

}  // namespace tessaro

extern "C" {

int32_t TESSARO_CALL WindowProcLoad(void* window, TessaroHook hook, intptr_t value) {
  return tessaro::hooks.hook(window, hook, value) ? 0 : 1;
}

int32_t TESSARO_CALL WindowProcUnload(void* window) { return tessaro::hooks.unhook(window) ? 0 : 1; }

}  // extern "C"
