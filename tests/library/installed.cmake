# Installs the library, then builds and runs a C program of somebody else's against what was installed: by the CMake package,
# and by pkg-config.
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(prefix ${OUT}/prefix)
file(REMOVE_RECURSE ${OUT})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})

set(options -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_C_COMPILER=${COMPILER})
if(TOOLCHAIN)
  list(APPEND options -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -DCMAKE_FIND_ROOT_PATH=${prefix})
endif()
run(${CMAKE_COMMAND} -G Ninja -S ${SOURCE} -B ${OUT}/build ${options})
run(${CMAKE_COMMAND} --build ${OUT}/build)
if(WINDOWS)
  file(COPY ${prefix}/bin/tessaro.dll DESTINATION ${OUT}/build)
  run(${EMULATOR} ${OUT}/build/outside.exe)
else()
  run(${OUT}/build/outside)
endif()

set(ENV{PKG_CONFIG_LIBDIR} ${prefix}/lib/pkgconfig)
execute_process(COMMAND pkg-config --cflags --libs tessaro OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE
  COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags)
set(program ${OUT}/by_pkg_config.exe)
run(${COMPILER} ${SOURCE}/outside.c -o ${program} ${flags})
if(WINDOWS)
  file(COPY ${prefix}/bin/tessaro.dll DESTINATION ${OUT})
endif()
set(ENV{LD_LIBRARY_PATH} ${prefix}/lib)
run(${EMULATOR} ${program})
