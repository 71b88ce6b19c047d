# cmake --install: the library, its headers, a CMake package (find_package(tessaro), tessaro::tessaro) and a pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS tessaro EXPORT tessaro)
if(TARGET tessaro_pictures)
  install(TARGETS tessaro_pictures DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/tessaro DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/tessaro)
install(EXPORT tessaro NAMESPACE tessaro:: FILE tessaroConfig.cmake DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tessaroConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tessaroConfigVersion.cmake DESTINATION ${package})

# The prefix is where the file lies, so that an installation can be moved.
file(RELATIVE_PATH up /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/tessaro.pc @ONLY CONTENT [[
prefix=${pcfiledir}/@up@
includedir=${prefix}/@CMAKE_INSTALL_INCLUDEDIR@
libdir=${prefix}/@CMAKE_INSTALL_LIBDIR@

Name: tessaro
Description: @PROJECT_DESCRIPTION@
Version: @PROJECT_VERSION@
Cflags: -I${includedir}
Libs: -L${libdir} -ltessaro
]])
install(FILES ${PROJECT_BINARY_DIR}/tessaro.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
