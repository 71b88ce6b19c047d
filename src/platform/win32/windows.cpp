// Windows and their procedures, and calls of hooks in either convention.
#include <windows.h>

#include "platform/platform.hpp"

namespace tessaro::platform {

namespace {

LRESULT CALLBACK replacement(HWND window, UINT message, WPARAM first, LPARAM second) {
  return offer_message(window, message, first, second);
}

}  // namespace

// The A and Ptr forms: pointers that a 32-bit build keeps in a LONG, and the same handles for ANSI windows.
constinit const WindowSystem windows = {
    .procedure = [](void* window) -> intptr_t {
      return GetWindowLongPtrA(static_cast<HWND>(window), GWLP_WNDPROC);
    },
    .set_procedure =
        [](void* window, intptr_t procedure) {
          SetWindowLongPtrA(static_cast<HWND>(window), GWLP_WNDPROC, static_cast<LONG_PTR>(procedure));
        },
    .call = [](intptr_t procedure, void* window, uint32_t message, uintptr_t first,
               intptr_t second) -> intptr_t {
      return CallWindowProcA(reinterpret_cast<WNDPROC>(procedure), static_cast<HWND>(window), message, first,
                             second);
    },
    .replacement = [] { return reinterpret_cast<intptr_t>(&replacement); },
};

int32_t call_hook(TessaroHook hook, void* window, uint32_t message, uintptr_t first, intptr_t second,
                  intptr_t value) {
#if defined(__i386__)
  // The hook may or may not remove its arguments, so the stack pointer is put back from a register that both
  // conventions preserve. The call is made with the stack aligned to 16 bytes.
  const uintptr_t arguments[5] = {reinterpret_cast<uintptr_t>(window), message, first,
                                  static_cast<uintptr_t>(second), static_cast<uintptr_t>(value)};
  const uintptr_t* at = arguments;
  void* target = reinterpret_cast<void*>(hook);
  int32_t result;
  asm volatile(
      "movl %%esp, %%ebx\n\t"
      "andl $-16, %%esp\n\t"
      "subl $12, %%esp\n\t"
      "pushl 16(%%esi)\n\t"
      "pushl 12(%%esi)\n\t"
      "pushl 8(%%esi)\n\t"
      "pushl 4(%%esi)\n\t"
      "pushl (%%esi)\n\t"
      "call *%%edi\n\t"
      "movl %%ebx, %%esp"
      : "=a"(result), "+S"(at), "+D"(target)
      :
      : "ebx", "ecx", "edx", "cc", "memory", "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)", "st(6)",
        "st(7)", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7");
  return result;
#else
  return hook(window, message, first, second, value);
#endif
}

}  // namespace tessaro::platform
