# cmake -DDLL= -DTABLE= -DNM= -DDLLTOOL= -DOUT= -P ImportLibrary.cmake
# On 32-bit Windows the DLL exports Name while programs that include the header ask for _Name@bytes. The import library
# that the linker writes knows the first only, so one that knows the second takes its place.
execute_process(COMMAND ${NM} --defined-only ${DLL} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${TABLE} rows REGEX "^[A-Za-z]")
set(def "LIBRARY tessaro.dll\nEXPORTS\n")
foreach(row IN LISTS rows)
  string(REGEX REPLACE " .*" "" name ${row})      # the exported name
  string(REGEX REPLACE ".* " "" function ${row})  # the function behind it: the same but for second names
  if(NOT symbols MATCHES " T _${function}(@[0-9]+)\n")
    message(FATAL_ERROR "${function} does not follow the calling convention of the exports")
  endif()
  string(APPEND def "  ${name}${CMAKE_MATCH_1}\n")
endforeach()
file(WRITE ${OUT}.def "${def}")
# By its bare name, which becomes part of symbols.
cmake_path(GET OUT PARENT_PATH folder)
cmake_path(GET OUT FILENAME library)
execute_process(COMMAND ${DLLTOOL} --kill-at --input-def ${library}.def --output-lib ${library} WORKING_DIRECTORY ${folder}
                COMMAND_ERROR_IS_FATAL ANY)
