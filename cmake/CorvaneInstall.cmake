# What `cmake --install` lays down: libraries, public headers, the command, the
# CMake package and the pkg-config files. The result can be moved as a whole.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/corvane)
set(libraries corvane_static corvane_c)
if(TARGET corvane_shared)
    list(APPEND libraries corvane_shared corvane_c_shared)
    set(CORVANE_PC_CFLAGS " -DCORVANE_SHARED")
    set(CORVANE_C_PC_CFLAGS " -DCORVANE_C_SHARED")
else()
    # A C compiler does not know by itself what a static C++ library needs.
    set(runtime ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
    list(FILTER runtime INCLUDE REGEX "c\\+\\+")
    list(TRANSFORM runtime PREPEND " -l")
    list(JOIN runtime "" runtime)
    set(CORVANE_C_PC_LIBS " -lcorvane${runtime}")
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
foreach(file IN ITEMS corvane.pc corvane_c.pc)
    configure_file(${file}.in ${package_files}/${file} @ONLY)
    install(FILES ${package_files}/${file} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
