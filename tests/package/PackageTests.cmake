# Installs the build into a folder of its own and builds the project beside this file
# against it in each way that the README offers.
include(GNUInstallDirs)

set(work ${CMAKE_CURRENT_BINARY_DIR}/package)
set(prefix ${work}/prefix)

add_test(NAME package.clean COMMAND ${CMAKE_COMMAND} -E rm -rf ${work})
add_test(NAME package.install COMMAND ${CMAKE_COMMAND} --install ${PROJECT_BINARY_DIR} --prefix ${prefix})
set_tests_properties(package.clean PROPERTIES FIXTURES_SETUP clean_package_folder)
set_tests_properties(
    package.install PROPERTIES FIXTURES_REQUIRED clean_package_folder FIXTURES_SETUP installed_package)

# Configures and builds the project in a folder with the given cache variables, and runs a command there.
function(corvane_package_test name folder command output)
    list(TRANSFORM ARGN PREPEND -D)
    add_test(
        NAME package.${name}
        COMMAND
            ${CMAKE_CTEST_COMMAND} --build-and-test ${CMAKE_CURRENT_SOURCE_DIR}/package/${folder} ${work}/${name}
            --build-generator ${CMAKE_GENERATOR} --build-options -DCORVANE_README=${PROJECT_SOURCE_DIR}/README.md
            -DCMAKE_PREFIX_PATH=${prefix} ${ARGN} --test-command ${command})
    set_tests_properties(
        package.${name}
        PROPERTIES FIXTURES_REQUIRED installed_package
                   TIMEOUT 900
                   PASS_REGULAR_EXPRESSION "${output}"
                   FAIL_REGULAR_EXPRESSION "[Ee]rror:")
endfunction()

function(corvane_cpp_package_test name)
    corvane_package_test(
        ${name} . "${CMAKE_CTEST_COMMAND};--output-on-failure" "100% tests passed" CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} ${ARGN})
endfunction()

function(corvane_c_package_test name)
    corvane_package_test(${name} c readme_example "CVNDirection at 0\nCVNStrong at 5\n" ${ARGN})
endfunction()

corvane_cpp_package_test(
    find_package CORVANE_BY=find_package CORVANE_CHECK_HEADERS=${prefix}/${CMAKE_INSTALL_INCLUDEDIR})
corvane_cpp_package_test(add_subdirectory CORVANE_BY=add_subdirectory CORVANE_SOURCE=${PROJECT_SOURCE_DIR})
corvane_c_package_test(
    find_package_c CORVANE_BY=find_package CORVANE_WITH_CXX=ON CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER})
if(TARGET corvane_shared)
    corvane_cpp_package_test(find_package_shared CORVANE_BY=find_package BUILD_SHARED_LIBS=ON)
    corvane_c_package_test(find_package_c_shared CORVANE_BY=find_package BUILD_SHARED_LIBS=ON)
endif()
find_package(PkgConfig QUIET)
if(PKG_CONFIG_FOUND)
    corvane_cpp_package_test(pkg_config CORVANE_BY=pkg_config)
    corvane_c_package_test(pkg_config_c CORVANE_BY=pkg_config)
else()
    corvane_skipped_test(package.pkg_config "needs pkg-config")
endif()
