# What all targets of this project have in common.

# Stops unless HEADER holds the version of the project.
function(corvane_check_version header)
    file(STRINGS "${PROJECT_SOURCE_DIR}/${header}" line REGEX "version = \"")
    if(NOT line MATCHES "\"${PROJECT_VERSION}\"")
        message(FATAL_ERROR "${header} does not say ${PROJECT_VERSION}, the version of the project: ${line}")
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${header}")
endfunction()

# The language, the warnings and the sanitizers of one of our own targets.
function(corvane_target target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow)
    if(CORVANE_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    # g++ 12 takes appending to a string for an overlapping copy once it is inlined.
    target_compile_options(
        ${target} PRIVATE $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
    if(CORVANE_SANITIZE)
        # vptr looks at type information, which the core is built without.
        set(flags -fsanitize=${CORVANE_SANITIZE} -fno-sanitize=vptr -fno-sanitize-recover=all)
        target_compile_options(${target} PRIVATE ${flags} -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE ${flags})
    endif()
endfunction()
