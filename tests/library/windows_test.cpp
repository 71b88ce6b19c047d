// Real windows and both calling conventions, on Windows only: the library is loaded and freed as a host does it.
#include <windows.h>

#include <gtest/gtest.h>

#include "tessaro/tessaro.h"

namespace {

struct Library {
  explicit Library(const char* file = "tessaro.dll") : module(LoadLibraryA(file)) {}
  HMODULE module;
  decltype(&WindowProcLoad) load = find<decltype(&WindowProcLoad)>("WindowProcLoad");
  decltype(&WindowProcUnload) unload = find<decltype(&WindowProcUnload)>("WindowProcUnload");
  decltype(&dllMethod1) method1 = find<decltype(&dllMethod1)>("dllMethod1");
  decltype(&dllMethod4) method4 = find<decltype(&dllMethod4)>("dllMethod4");
  decltype(&StdCallBack) std_call_back = find<decltype(&StdCallBack)>("StdCallBack");
  template <class T>
  T find(const char* name) {
    return reinterpret_cast<T>(reinterpret_cast<void*>(GetProcAddress(module, name)));
  }
};

LRESULT CALLBACK plain(HWND window, UINT message, WPARAM first, LPARAM second) {
  return message == WM_USER ? static_cast<LRESULT>(first * 1000) + second
                            : DefWindowProcA(window, message, first, second);
}
LRESULT CALLBACK other(HWND window, UINT message, WPARAM first, LPARAM second) {
  return message == WM_USER ? -1 : DefWindowProcA(window, message, first, second);
}

HWND make_window(WNDPROC procedure = plain) {
  static const bool registered = [] {
    WNDCLASSA kind{};
    kind.lpfnWndProc = plain;
    kind.lpszClassName = "tessaro test";
    return RegisterClassA(&kind) != 0;
  }();
  EXPECT_TRUE(registered);
  HWND window =
      CreateWindowExA(0, "tessaro test", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  EXPECT_NE(window, nullptr);
  SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  return window;
}
LRESULT send(HWND window, WPARAM first, LPARAM second) {
  return SendMessageA(window, WM_USER, first, second);
}
WNDPROC procedure(HWND window) { return reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_WNDPROC)); }

struct Seen {
  void* window;
  uintptr_t message, first;
  intptr_t second, value;
} seen;

// Aligned data on the stack: a caller that leaves it misaligned is found out.
int32_t answer(void* window, uintptr_t message, uintptr_t first, intptr_t second, intptr_t value) {
  alignas(16) volatile float lanes[4] = {1, 2, 3, 4};
  EXPECT_EQ(reinterpret_cast<uintptr_t>(&lanes) % 16, 0u);
  if (message == WM_USER) seen = {window, message, first, second, value};
  return message == WM_USER && first == 7 ? 5 : 0;
}
int32_t __stdcall hook_stdcall(void* a, uintptr_t b, uintptr_t c, intptr_t d, intptr_t e) {
  return answer(a, b, c, d, e);
}
int32_t __cdecl hook_cdecl(void* a, uintptr_t b, uintptr_t c, intptr_t d, intptr_t e) {
  return answer(a, b, c, d, e);
}

TEST(Windows, HooksOfBothConventionsAreOfferedMessages) {
  Library library;
  for (auto hook : {reinterpret_cast<TessaroHook>(hook_stdcall), reinterpret_cast<TessaroHook>(hook_cdecl)}) {
    HWND window = make_window();
    ASSERT_EQ(library.load(window, hook, -12345), 0);
    EXPECT_NE(procedure(window), plain);
    for (int i = 0; i < 1000; ++i) ASSERT_EQ(send(window, 6, 50), 6050) << "passed on";
    EXPECT_EQ(seen.window, window);
    EXPECT_EQ(seen.message, static_cast<uintptr_t>(WM_USER));
    EXPECT_EQ(seen.first, 6u);
    EXPECT_EQ(seen.second, 50);
    EXPECT_EQ(seen.value, -12345);
    EXPECT_EQ(send(window, 7, 50), 0) << "handled";
    EXPECT_EQ(library.unload(window), 0);
    EXPECT_EQ(procedure(window), plain);
    EXPECT_EQ(library.unload(window), 1);
    DestroyWindow(window);
  }
  EXPECT_EQ(library.load(nullptr, reinterpret_cast<TessaroHook>(hook_cdecl), 0), 1);
  FreeLibrary(library.module);
}

// The program holds the library itself, so a copy under another name is loaded and freed.
TEST(Windows, FreeingTheLibraryTakesItsHooksOff) {
  char original[MAX_PATH];
  ASSERT_NE(GetModuleFileNameA(GetModuleHandleA("tessaro.dll"), original, MAX_PATH), 0u);
  ASSERT_TRUE(CopyFileA(original, "tessaro_copy.dll", FALSE));
  const auto hook = reinterpret_cast<TessaroHook>(hook_stdcall);
  HWND one = make_window(), two = make_window(other);
  for (bool both : {false, true}) {
    Library library("tessaro_copy.dll");
    ASSERT_NE(library.module, nullptr);
    ASSERT_EQ(library.load(one, hook, 0), 0);
    if (both) {
      ASSERT_EQ(library.load(two, hook, 0), 0);
    }
    EXPECT_EQ(send(one, 7, 0), 0);
    ASSERT_TRUE(FreeLibrary(library.module));
    EXPECT_EQ(GetModuleHandleA("tessaro_copy.dll"), nullptr);
    if (both) {
      EXPECT_EQ(procedure(one), other) << "the first window ends with the second one's procedure";
      EXPECT_EQ(send(one, 7, 1), -1);
    } else {
      EXPECT_EQ(procedure(one), plain);
      EXPECT_EQ(send(one, 7, 1), 7001);
    }
  }
  DeleteFileA("tessaro_copy.dll");
}

intptr_t __cdecl twice(intptr_t a) { return 2 * a; }
intptr_t __cdecl digits(intptr_t a, intptr_t b, intptr_t c, intptr_t d) {
  return a * 1000 + b * 100 + c * 10 + d;
}
intptr_t __stdcall difference(intptr_t a, intptr_t b) { return a - b; }

TEST(Windows, CallsFollowTheConventionOfTheFunction) {
  Library library;
  const auto word = reinterpret_cast<intptr_t>(&library);
  for (int i = 0; i < 100000; ++i) {  // a stack that leaks a word a call would not last
    ASSERT_EQ(library.method1(twice, word), 2 * word);
    ASSERT_EQ(library.method4(digits, 1, 2, 3, 4), 1234);
    ASSERT_EQ(library.std_call_back(difference, 5, word), 5 - word);
  }
  FreeLibrary(library.module);
}

}  // namespace
