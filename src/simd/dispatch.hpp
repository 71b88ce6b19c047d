// The choice between the back ends: made once at load, read through one variable.
#pragma once

#include <cstddef>
#include <cstdint>

#include "kernels/backends.hpp"

namespace tessaro {

// Those that are built, in rising order: a processor that runs one runs those before it.
enum class Backend {
#define TESSARO_NAME(name, runs) name,
  TESSARO_EACH_BACKEND(TESSARO_NAME)
#undef TESSARO_NAME
};
#define TESSARO_ONE_MORE(name, runs) +1
inline constexpr size_t backend_count = TESSARO_EACH_BACKEND(TESSARO_ONE_MORE);
#undef TESSARO_ONE_MORE

// The best back end of this processor.
Backend best_backend();
// The one in use: the definition of the others before the load handler has run, then the best.
extern Backend active_backend;
void choose_backend();
const char* name_of(Backend backend);

// Areas of at least this many pixels are written past the caches.
inline constexpr ptrdiff_t never = PTRDIFF_MAX;
extern ptrdiff_t streamed_area;
// Whether the C library's memmove, which uses the processor's string instructions, copies long rows faster
// than vectors.
extern bool string_moves;

// One family's table of kernels for one back end, defined by the unit that is compiled for it.
template <class Table, Backend backend>
struct KernelTable {
  static const Table table;
};
// All of them, indexed by Backend; defined by a generated file.
template <class Table>
struct KernelTables {
  static const Table* const at[backend_count];
};

// Declares that Table has kernels; stands after the struct in the family's header, in namespace tessaro.
#define TESSARO_DECLARE_KERNELS(Table) \
  template <>                          \
  const Table* const KernelTables<Table>::at[backend_count]

// Opens the definition of the table of the back end that a .kernels.hpp file is being compiled for, outside
// any namespace: TESSARO_KERNELS(BlitKernels){...};
#define TESSARO_KERNELS(Table)   \
  template <>                    \
  constinit const tessaro::Table \
      tessaro::KernelTable<tessaro::Table, tessaro::Backend::TESSARO_BACKEND>::table

template <class Table>
inline const Table& kernels(Backend backend = active_backend) {
  return *KernelTables<Table>::at[static_cast<size_t>(backend)];
}

}  // namespace tessaro
