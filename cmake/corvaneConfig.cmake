# Defines corvane::static, corvane::shared if it was built, and corvane::corvane,
# which is the shared library where BUILD_SHARED_LIBS is on and the static one elsewhere.
# In the same way corvane::c_static, corvane::c_shared and corvane::c for the C API.
include("${CMAKE_CURRENT_LIST_DIR}/corvaneTargets.cmake")

if(NOT TARGET corvane::corvane)
    if(BUILD_SHARED_LIBS AND TARGET corvane::shared)
        add_library(corvane::corvane ALIAS corvane::shared)
        add_library(corvane::c ALIAS corvane::c_shared)
    else()
        add_library(corvane::corvane ALIAS corvane::static)
        add_library(corvane::c ALIAS corvane::c_static)
    endif()
endif()
