# The readers of JPEG, PNG and GIF files (src/picture/packed/), where the system has no loader of its own:
#   module   in a shared object beside the library, loaded with the first picture: the library itself depends on nothing
#   static   in the library
#   none     nowhere: only bitmap files are pictures
if(WIN32)
  return()
endif()
set(TESSARO_PICTURES module CACHE STRING "Readers of JPEG, PNG and GIF files: module, static or none")
set_property(CACHE TESSARO_PICTURES PROPERTY STRINGS module static none)
if(NOT TESSARO_PICTURES MATCHES "^(module|static|none)$")
  message(FATAL_ERROR "TESSARO_PICTURES is module, static or none, not ${TESSARO_PICTURES}")
elseif(TESSARO_PICTURES STREQUAL none)
  return()
endif()

# Debian: libjpeg62-turbo-dev libpng-dev libgif-dev
find_package(JPEG REQUIRED)
find_package(PNG REQUIRED)
find_package(GIF REQUIRED)
set(libraries JPEG::JPEG PNG::PNG GIF::GIF)
file(GLOB readers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/picture/packed/*.cpp)
set(link ${PROJECT_SOURCE_DIR}/src/picture/posix/packed.cpp)

if(TESSARO_PICTURES STREQUAL static)
  target_sources(tessaro_objects PRIVATE ${readers})
  target_link_libraries(tessaro_objects PUBLIC ${libraries})
  set_source_files_properties(${link} PROPERTIES COMPILE_DEFINITIONS TESSARO_PICTURES_STATIC=1)
else()
  add_library(tessaro_pictures MODULE ${readers})
  target_include_directories(tessaro_pictures PRIVATE ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(tessaro_pictures PRIVATE tessaro_flags tessaro_library_flags ${libraries})
  set_target_properties(tessaro_pictures PROPERTIES OUTPUT_NAME tessaro-pictures SUFFIX .so.0)
  set_source_files_properties(${link} PROPERTIES COMPILE_DEFINITIONS
    "TESSARO_PICTURES_MODULE=\"libtessaro-pictures.so.0\"")
  add_dependencies(tessaro tessaro_pictures)
  target_link_libraries(tessaro_objects PUBLIC ${CMAKE_DL_LIBS})
  set_target_properties(tessaro PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN")
endif()
