# A family of kernels is one file src/<subsystem>/<family>.kernels.hpp whose first line reads
#   // kernels: <Table> for scalar sse2 avx2 avx512
# (the back ends it is compiled for; scalar and sse2 are always there). <Table> is declared in <family>.hpp beside it.
# One translation unit is generated per back end, with flags from the back end's name, always optimised, and one that
# lists the tables. A back end that is left out is served by the next lower one.
set(TESSARO_FLAGS_scalar "")
set(TESSARO_FLAGS_sse2 -msse2)
set(TESSARO_FLAGS_avx2 -mavx2 -mbmi -mbmi2 -mpopcnt)
set(TESSARO_FLAGS_avx512 ${TESSARO_FLAGS_avx2} -mavx512f -mavx512bw -mavx512vl -mavx512dq -mprefer-vector-width=512)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # The compiler's own header starts registers from themselves where their value does not matter.
  list(APPEND TESSARO_FLAGS_avx512 -Wno-maybe-uninitialized -Wno-uninitialized)
endif()
if(MINGW AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # The compiler believes 32-byte stack slots to be aligned where 64-bit Windows aligns to 16.
  foreach(backend avx2 avx512)
    list(APPEND TESSARO_FLAGS_${backend} -Wa,-muse-unaligned-vector-move)
  endforeach()
endif()

function(tessaro_add_kernels target)
  file(GLOB_RECURSE families CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.kernels.hpp)
  foreach(path IN LISTS families)
    file(STRINGS ${path} tag LIMIT_COUNT 1)
    if(NOT tag MATCHES "^// kernels: ([A-Za-z0-9_]+) for (scalar sse2.*)$")
      message(FATAL_ERROR "${path}: the first line must read '// kernels: <Table> for scalar sse2 ...'")
    endif()
    set(table ${CMAKE_MATCH_1})
    string(REPLACE " " ";" backends "${CMAKE_MATCH_2}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    cmake_path(RELATIVE_PATH path BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src OUTPUT_VARIABLE family)
    string(REPLACE ".kernels.hpp" "" family ${family})
    string(REPLACE "/" "_" stem ${family})
    set(entries "")
    set(served "")
    foreach(backend scalar sse2 avx2 avx512)
      if(backend IN_LIST backends)
        set(served ${backend})
        set(unit ${PROJECT_BINARY_DIR}/kernels/${stem}.${backend}.cpp)
        file(CONFIGURE OUTPUT ${unit} @ONLY CONTENT
"#define TESSARO_BACKEND @backend@
#include \"simd/@backend@.hpp\"
#include \"@family@.kernels.hpp\"
")
        # Vectors wider than a back end's registers go to inlined functions only, whatever the convention for them.
        set_source_files_properties(${unit} PROPERTIES COMPILE_OPTIONS "-O3;-fno-math-errno;-Wno-psabi;${TESSARO_FLAGS_${backend}}")
        target_sources(${target} PRIVATE ${unit})
      endif()
      string(APPEND entries "&KernelTables<${table}>::${served}, ")
    endforeach()
    set(unit ${PROJECT_BINARY_DIR}/kernels/${stem}.tables.cpp)
    file(CONFIGURE OUTPUT ${unit} @ONLY CONTENT
"#include \"@family@.hpp\"
namespace tessaro {
template <>
constinit const @table@* const KernelTables<@table@>::at[backend_count] = {@entries@};
}
")
    target_sources(${target} PRIVATE ${unit})
  endforeach()
endfunction()
