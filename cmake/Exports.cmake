# src/exports/exports.txt lists the exported names, one a line, `GetInt = GetWORD` for a second name of one function.
# The Windows .def file, the ELF version script and the second names are made from it.
function(tessaro_export_table target)
  set(table ${PROJECT_SOURCE_DIR}/src/exports/exports.txt)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
  file(STRINGS ${table} rows REGEX "^[A-Za-z]")
  set(def "LIBRARY tessaro.dll\nEXPORTS\n")
  set(map "{\n  global:\n")
  foreach(row IN LISTS rows)
    string(APPEND def "  ${row}\n")
    if(row MATCHES "^([A-Za-z0-9_]+) = ([A-Za-z0-9_]+)$")
      string(APPEND map "    ${CMAKE_MATCH_1};\n")
      if(NOT WIN32)
        target_link_options(${target} PRIVATE -Wl,--defsym=${CMAKE_MATCH_1}=${CMAKE_MATCH_2})
      endif()
    else()
      string(APPEND map "    ${row};\n")
    endif()
  endforeach()
  string(APPEND map "  local: *;\n};\n")
  set(out ${PROJECT_BINARY_DIR}/exports)
  file(CONFIGURE OUTPUT ${out}/tessaro.def CONTENT "${def}")
  file(CONFIGURE OUTPUT ${out}/tessaro.map CONTENT "${map}")
  if(WIN32)
    target_sources(${target} PRIVATE ${out}/tessaro.def)
    # Finds _Name@bytes for a name written without decoration.
    target_link_options(${target} PRIVATE -Wl,--enable-stdcall-fixup)
    # The same sources give the same file.
    target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
      add_custom_command(TARGET ${target} POST_BUILD VERBATIM
        COMMAND ${CMAKE_COMMAND} -DDLL=$<TARGET_FILE:${target}> -DTABLE=${table} -DNM=${CMAKE_NM}
                -DDLLTOOL=${CMAKE_DLLTOOL} -DOUT=$<TARGET_LINKER_FILE:${target}>
                -P ${PROJECT_SOURCE_DIR}/cmake/ImportLibrary.cmake)
    endif()
  else()
    # Without --no-undefined-version GNU ld passes over a listed name that does not exist.
    target_link_options(${target} PRIVATE -Wl,--version-script=${out}/tessaro.map -Wl,--no-undefined-version)
    if(NOT TESSARO_SANITIZE)  # a sanitizer's functions come from the program
      target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${out}/tessaro.map)
  endif()
endfunction()
