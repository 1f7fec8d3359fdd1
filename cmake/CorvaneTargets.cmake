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

# So that a plugin can hold a static library, too.
if(NOT DEFINED CMAKE_POSITION_INDEPENDENT_CODE)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()

# Adds a library TARGET of KIND, file name OUTPUT, exported and aliased as corvane::EXPORT, from the caller's `sources`.
# Its public headers, the caller's `headers`, are included by their path below BASE_DIR.
function(corvane_library target kind output export base_dir)
    if(CORVANE_INSTALL)
        add_library(${target} ${kind} ${sources})
    else()
        add_library(${target} ${kind} EXCLUDE_FROM_ALL ${sources})
    endif()
    add_library(corvane::${export} ALIAS ${target})
    corvane_target(${target})
    target_compile_options(${target} PRIVATE -fno-exceptions -fno-rtti)
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${base_dir}" FILES ${headers})
    set_target_properties(
        ${target}
        PROPERTIES OUTPUT_NAME ${output}
                   EXPORT_NAME ${export}
                   CXX_VISIBILITY_PRESET hidden
                   VISIBILITY_INLINES_HIDDEN ON)
    if(kind STREQUAL SHARED)
        string(TOUPPER ${output} macro)
        target_compile_definitions(${target} PUBLIC ${macro}_SHARED)
        # Until 1.0 each minor version may break the binary interface.
        set_target_properties(
            ${target}
            PROPERTIES DEFINE_SYMBOL ${macro}_BUILDING
                       VERSION ${PROJECT_VERSION}
                       SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    endif()
endfunction()
