// Memory between pages that nobody may touch: whatever reads or writes there ends the program.
#pragma once

#include <cstddef>
#include <cstdint>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace host {

class Guarded {
 public:
  // Lasts until the program ends.
  explicit Guarded(size_t bytes) {
    bytes = (bytes + guard - 1) / guard * guard;
#ifdef _WIN32
    void* all = VirtualAlloc(nullptr, bytes + 2 * guard, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS);
    begin = static_cast<uint8_t*>(all) + guard;
    DWORD old;
    const bool done = all != nullptr && VirtualProtect(begin, bytes, PAGE_READWRITE, &old);
#else
    void* all = mmap(nullptr, bytes + 2 * guard, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    begin = static_cast<uint8_t*>(all) + guard;
    const bool done = all != MAP_FAILED && mprotect(begin, bytes, PROT_READ | PROT_WRITE) == 0;
#endif
    end = done ? begin + bytes : begin = nullptr;
  }
  uint8_t *begin, *end;

 private:
  static constexpr size_t guard = 65536;  // no system has larger pages
};

}  // namespace host
