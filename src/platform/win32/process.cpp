// Ticks of the system, and where the library hears that it is loaded and unloaded.
#include <windows.h>

#include "platform/platform.hpp"

namespace tessaro::platform {

uint32_t tick_count() { return GetTickCount(); }

}  // namespace tessaro::platform

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) tessaro::on_load();
  if (reason == DLL_PROCESS_DETACH) tessaro::on_unload();
  return TRUE;
}
