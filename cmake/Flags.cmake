# Flags that every target shares (tessaro_flags) and those of the library's own code (tessaro_library_flags).

add_library(tessaro_flags INTERFACE)
# Results must not depend on the target or the vector unit: no contraction to fused multiply-add, no x87.
target_compile_options(tessaro_flags INTERFACE -Wall -Wextra -Wconversion -ffp-contract=off)
if(TESSARO_WERROR)
  target_compile_options(tessaro_flags INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # Loops say that they may become vectors, not that they must: checked ones and those of three-byte samples do not.
  target_compile_options(tessaro_flags INTERFACE -Wno-pass-failed)
endif()
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # 32-bit hosts align the stack to 4 bytes only, so every function that may be entered from outside realigns.
  target_compile_options(tessaro_flags INTERFACE -msse2 -mfpmath=sse -mstackrealign)
endif()
if(TESSARO_SANITIZE)
  target_compile_options(tessaro_flags INTERFACE -fsanitize=${TESSARO_SANITIZE} -fno-sanitize-recover=all
                         -fno-omit-frame-pointer -g)
  target_link_options(tessaro_flags INTERFACE -fsanitize=${TESSARO_SANITIZE})
endif()
if(WIN32)
  target_link_options(tessaro_flags INTERFACE -static)
  target_compile_definitions(tessaro_flags INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX)
endif()

add_library(tessaro_library_flags INTERFACE)
target_compile_options(tessaro_library_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions -fno-rtti>)
