# What `cmake --install` lays down: libraries, public headers, the command, the
# CMake package and the pkg-config file. The result can be moved as a whole.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/corvane)
set(libraries corvane_static)
if(TARGET corvane_shared)
    list(APPEND libraries corvane_shared)
    set(CORVANE_PC_CFLAGS " -DCORVANE_SHARED")
endif()

install(
    TARGETS ${libraries}
    EXPORT corvaneTargets
    FILE_SET HEADERS)
install(EXPORT corvaneTargets NAMESPACE corvane:: DESTINATION ${package_dir})
if(TARGET corvane_cli)
    install(TARGETS corvane_cli)
endif()

set(package_files ${CMAKE_CURRENT_BINARY_DIR}/package)
write_basic_package_version_file(${package_files}/corvaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES cmake/corvaneConfig.cmake ${package_files}/corvaneConfigVersion.cmake DESTINATION ${package_dir})

file(RELATIVE_PATH CORVANE_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" CORVANE_PC_PREFIX "${CORVANE_PC_PREFIX}")
configure_file(corvane.pc.in ${package_files}/corvane.pc @ONLY)
install(FILES ${package_files}/corvane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
