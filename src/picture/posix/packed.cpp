// Where the readers of packed formats come from: a module that is loaded with the first picture, so that the
// library itself depends on nothing; this very binary; or nowhere.
#include "picture/packed/packed.hpp"

#ifdef TESSARO_PICTURES_MODULE
#include <dlfcn.h>

#include <atomic>
#include <climits>
#include <cstring>
#endif

namespace tessaro::platform {

#ifdef TESSARO_PICTURES_MODULE

namespace {

// Beside this binary, then wherever the system looks. A relative path may have lost its meaning since; the
// search path of the library leads to its own folder as well.
void* load_module() {
  Dl_info self{};
  constexpr char name[] = TESSARO_PICTURES_MODULE;
  if (dladdr(reinterpret_cast<void*>(&load_module), &self) && self.dli_fname && self.dli_fname[0] == '/') {
    char path[PATH_MAX];
    const size_t folder = static_cast<size_t>(std::strrchr(self.dli_fname, '/') + 1 - self.dli_fname);
    if (folder + sizeof name <= sizeof path) {
      std::memcpy(path, self.dli_fname, folder);
      std::memcpy(path + folder, name, sizeof name);
      if (void* module = dlopen(path, RTLD_NOW | RTLD_LOCAL)) return module;
    }
  }
  return dlopen(name, RTLD_NOW | RTLD_LOCAL);
}

}  // namespace

void read_packed(const PictureFile& file, Canvas& canvas) {
  // Threads that come here together load the same module; it stays until the process ends. One that is
  // missing is looked for again with the next picture.
  static constinit std::atomic<decltype(&tessaro_read_packed_1)> found{nullptr};
  auto* read = found.load(std::memory_order_acquire);
  if (!read) {
    void* module = load_module();
    read = module ? reinterpret_cast<decltype(read)>(dlsym(module, TESSARO_READ_PACKED)) : nullptr;
    if (!read) {
      if (module) dlclose(module);
      return;
    }
    found.store(read, std::memory_order_release);
  }
  read(file, canvas);
}

#elif defined TESSARO_PICTURES_STATIC

void read_packed(const PictureFile& file, Canvas& canvas) { tessaro_read_packed_1(file, canvas); }

#else

void read_packed(const PictureFile&, Canvas&) {}

#endif

}  // namespace tessaro::platform
