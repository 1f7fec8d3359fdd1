# cmake -DCORE=<folder corvane> -P CheckLayers.cmake
#
# A file of the core includes only from its own folder and from those before it, and
# nothing of the standard library that reads, writes, waits or starts threads.
cmake_minimum_required(VERSION 3.25)

set(layers scan tree block inline client operation correction analysis)
# These put together what the layers hold.
set(composing tree/RuleConfig.cpp client/AnnotationRows.cpp client/CVNASTQuery.cpp client/CVNASTSummary.cpp
    client/CVNASTTextOperations.cpp client/CVNTextOperation.cpp client/CVNTextSummary.cpp
    operation/OperationInsertNewline.cpp)
set(forbidden "cassert|format|filesystem|fstream|future|iostream|istream|mutex|ostream|ranges|sstream|thread")

function(fault file line)
    message(SEND_ERROR "corvane/${file} may not say: ${line}")
endfunction()

file(GLOB_RECURSE files RELATIVE ${CORE} ${CORE}/*.h ${CORE}/*.cpp)
foreach(file IN LISTS files)
    string(REGEX MATCH "^[a-z]+" folder "${file}")
    list(FIND layers "${folder}" own)
    file(STRINGS ${CORE}/${file} includes REGEX "^#include")
    foreach(line IN LISTS includes)
        if(line MATCHES "<(${forbidden})>")
            fault(${file} "${line}")
        elseif(line MATCHES "\"corvane/([a-z]+)/" AND NOT file IN_LIST composing)
            list(FIND layers "${CMAKE_MATCH_1}" other)
            if(other EQUAL -1 OR other GREATER own)
                fault(${file} "${line}")
            endif()
        endif()
    endforeach()
endforeach()
