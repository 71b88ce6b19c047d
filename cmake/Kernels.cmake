# A back end is a header src/simd/<name>.hpp and its lines here: the features that it needs, which the compiler is told
# (-m<feature>) and the processor is asked for, and flags beside them. They stand in the order of the choice: a processor
# that runs one runs those before it.
set(TESSARO_NEEDS_scalar "")
set(TESSARO_NEEDS_sse2 sse2)
set(TESSARO_NEEDS_avx2 avx2 bmi bmi2 popcnt)
set(TESSARO_NEEDS_avx512 ${TESSARO_NEEDS_avx2} avx512f avx512bw avx512vl avx512dq)
# Without this some compilers keep to 32 bytes, for processors that slow down at 64; the vectors here are of 64 anyway.
set(TESSARO_FLAGS_avx512 -mprefer-vector-width=512)
set(TESSARO_NEEDS_avx512vbmi ${TESSARO_NEEDS_avx512} avx512vbmi)
set(TESSARO_FLAGS_avx512vbmi ${TESSARO_FLAGS_avx512})
set(TESSARO_BACKENDS_OF_FEW_FAMILIES avx512vbmi)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|amd64|x86|i[3-6]86)$")
  set(TESSARO_KNOWN_BACKENDS scalar sse2 avx2 avx512 avx512vbmi)
else()
  set(TESSARO_KNOWN_BACKENDS scalar)
endif()
set(TESSARO_BACKENDS "${TESSARO_KNOWN_BACKENDS}" CACHE STRING "Back ends to build; scalar is always there")

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # The compiler's own header starts registers from themselves where their value does not matter.
  list(APPEND TESSARO_FLAGS_avx512 -Wno-maybe-uninitialized -Wno-uninitialized)
  list(APPEND TESSARO_FLAGS_avx512vbmi -Wno-maybe-uninitialized -Wno-uninitialized)
endif()
if(MINGW AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # The compiler believes 32-byte stack slots to be aligned where 64-bit Windows aligns to 16.
  foreach(backend avx2 avx512 avx512vbmi)
    list(APPEND TESSARO_FLAGS_${backend} -Wa,-muse-unaligned-vector-move)
  endforeach()
endif()

# The list of back ends as code, each with the question whether this processor runs it.
set(backends "")
set(entries "")
foreach(backend IN LISTS TESSARO_KNOWN_BACKENDS)
  if(backend STREQUAL "scalar" OR backend IN_LIST TESSARO_BACKENDS)
    list(APPEND backends ${backend})
    list(TRANSFORM TESSARO_NEEDS_${backend} REPLACE "(.+)" "__builtin_cpu_supports(\"\\1\")" OUTPUT_VARIABLE asked)
    list(PREPEND asked true)
    list(JOIN asked " && " asked)
    string(APPEND entries " \\\n  f(${backend}, ${asked})")
    list(TRANSFORM TESSARO_NEEDS_${backend} PREPEND -m)
    list(PREPEND TESSARO_FLAGS_${backend} ${TESSARO_NEEDS_${backend}})
  endif()
endforeach()
set(TESSARO_BUILT_BACKENDS ${backends})
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/kernels/backends.hpp @ONLY CONTENT
"// Calls f(name, runs) for each back end that is built.
#define TESSARO_EACH_BACKEND(f)@entries@
")
# What an architecture has of its own beside vectors: without any of its back ends the library is portable altogether.
set(TESSARO_ARCHITECTURE portable)
if("sse2" IN_LIST TESSARO_BUILT_BACKENDS)
  set(TESSARO_ARCHITECTURE x86)
endif()

# A family of kernels is one file <subsystem>/<family>.kernels.hpp below the root, whose first line reads
#   // kernels: <Table>
# followed by -<back end> for each that measured no faster than the one below, and +<back end> for each that only few
# families have. <Table> is declared in <family>.hpp beside it. One translation unit is generated per back end, always
# optimised, and one that lists the tables. A back end that is left out is served by the next lower one. Where a back end
# goes about a family in its own way altogether, <family>.<back end>.hpp fills the table in place of <family>.kernels.hpp.
function(tessaro_add_kernels target root)
  target_include_directories(${target} PUBLIC ${PROJECT_BINARY_DIR})
  file(GLOB_RECURSE families CONFIGURE_DEPENDS ${root}/*.kernels.hpp)
  file(GLOB_RECURSE engines CONFIGURE_DEPENDS ${root}/*.*.hpp)
  foreach(path IN LISTS families)
    file(STRINGS ${path} tag LIMIT_COUNT 1)
    if(NOT tag MATCHES "^// kernels: ([A-Za-z0-9_]+)(( [-+][a-z0-9]+)*)$")
      message(FATAL_ERROR "${path}: the first line must read '// kernels: <Table> [-|+<back end>]...'")
    endif()
    set(table ${CMAKE_MATCH_1})
    string(REPLACE " " ";" choices "${CMAKE_MATCH_2}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    cmake_path(RELATIVE_PATH path BASE_DIRECTORY ${root} OUTPUT_VARIABLE family)
    string(REPLACE ".kernels.hpp" "" family ${family})
    string(REPLACE "/" "_" stem ${family})
    set(entries "")
    set(declared "")
    foreach(backend IN LISTS TESSARO_BUILT_BACKENDS)
      if(NOT "-${backend}" IN_LIST choices AND
         (NOT backend IN_LIST TESSARO_BACKENDS_OF_FEW_FAMILIES OR "+${backend}" IN_LIST choices))
        set(served "KernelTable<${table}, Backend::${backend}>::table")
        string(APPEND declared "template <> const ${table} ${served};\n")
        set(unit ${PROJECT_BINARY_DIR}/kernels/${stem}.${backend}.cpp)
        set(kernels ${family}.kernels.hpp)
        if(${root}/${family}.${backend}.hpp IN_LIST engines)
          set(kernels ${family}.${backend}.hpp)
        endif()
        file(CONFIGURE OUTPUT ${unit} @ONLY CONTENT
"#define TESSARO_BACKEND @backend@
#include \"simd/@backend@.hpp\"
#include \"@kernels@\"
")
        # Loops begin where a line of the cache does: their speed must not depend on where the linker puts them.
        # Vectors wider than a back end's registers go to inlined functions only, whatever the convention for them.
        set_source_files_properties(${unit} PROPERTIES SKIP_PRECOMPILE_HEADERS ON COMPILE_OPTIONS "-O3;-falign-loops=64;-fno-math-errno;-Wno-psabi;${TESSARO_FLAGS_${backend}}")
        target_sources(${target} PRIVATE ${unit})
      endif()
      string(APPEND entries "&${served}, ")
    endforeach()
    set(unit ${PROJECT_BINARY_DIR}/kernels/${stem}.tables.cpp)
    file(CONFIGURE OUTPUT ${unit} @ONLY CONTENT
"#include \"@family@.hpp\"
namespace tessaro {
@declared@template <>
constinit const @table@* const KernelTables<@table@>::at[backend_count] = {@entries@};
}
")
    target_sources(${target} PRIVATE ${unit})
  endforeach()
endfunction()
