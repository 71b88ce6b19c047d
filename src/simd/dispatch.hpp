// The choice between the back ends: made once at load, read through one variable.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tessaro {

enum class Backend { scalar, sse2, avx2, avx512 };
inline constexpr size_t backend_count = 4;

// The best back end of this processor.
Backend best_backend();
// The one in use: the baseline before the load handler has run, then the best.
extern Backend active_backend;
void choose_backend();
const char* name_of(Backend backend);

// Areas of so many pixels are written past the caches. On AMD's processors that outruns all else by half and more, while
// their string instructions fall to a tenth where source and destination are aligned unlike. On Intel's, string
// instructions copy as fast, so that areas are never streamed there.
inline constexpr ptrdiff_t never = PTRDIFF_MAX;
extern ptrdiff_t streamed_area;

// The tables of one family of kernels, one per back end; `at` is indexed by Backend and defined by a
// generated file.
template <class Table>
struct KernelTables {
  static const Table scalar;
  static const Table sse2;
  static const Table avx2;
  static const Table avx512;
  static const Table* const at[backend_count];
};

// Declares that Table has kernels; stands after the struct in the family's header, in namespace tessaro.
#define TESSARO_DECLARE_KERNELS(Table)     \
  template <>                              \
  const Table KernelTables<Table>::scalar; \
  template <>                              \
  const Table KernelTables<Table>::sse2;   \
  template <>                              \
  const Table KernelTables<Table>::avx2;   \
  template <>                              \
  const Table KernelTables<Table>::avx512; \
  template <>                              \
  const Table* const KernelTables<Table>::at[backend_count]

// Opens the definition of the table of the back end that a .kernels.hpp file is being compiled for, outside
// any namespace: TESSARO_KERNELS(BlitKernels){...};
#define TESSARO_KERNELS(Table) \
  template <>                  \
  constinit const tessaro::Table tessaro::KernelTables<tessaro::Table>::TESSARO_BACKEND

template <class Table>
inline const Table& kernels() {
  return *KernelTables<Table>::at[static_cast<size_t>(active_backend)];
}

}  // namespace tessaro
