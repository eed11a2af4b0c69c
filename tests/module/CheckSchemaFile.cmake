# SPDX-License-Identifier: MIT
# The schema's line ends are content, and version control must not change them:
# cmake -D SOURCE=<source tree> -P this
cmake_minimum_required(VERSION 3.22)

set(schema "${SOURCE}/resources/ViewSettingsXsdSchema")
file(SIZE "${schema}" size)
if(NOT size EQUAL 2725)
    message(SEND_ERROR "The schema has ${size} bytes, not 2725.")
endif()
file(READ "${schema}" hex HEX)
string(REGEX MATCHALL ".." bytes "${hex}")
set(previous "")
set(lines 0)
foreach(byte IN LISTS bytes)
    if(byte STREQUAL "0a")
        math(EXPR lines "${lines} + 1")
    endif()
    if((byte STREQUAL "0a" AND NOT previous STREQUAL "0d")
            OR (previous STREQUAL "0d" AND NOT byte STREQUAL "0a"))
        message(SEND_ERROR "Line ${lines} of the schema does not end with CR LF.")
    endif()
    set(previous "${byte}")
endforeach()
if(lines EQUAL 0)
    message(SEND_ERROR "The schema has no line ends.")
endif()

file(STRINGS "${SOURCE}/.gitattributes" attributes)
if(NOT "/resources/** -text" IN_LIST attributes)
    message(SEND_ERROR ".gitattributes does not protect the line ends in resources.")
endif()
# A later line may undo that one, so git itself is asked where there is a repository.
find_program(GIT git)
if(GIT AND EXISTS "${SOURCE}/.git")
    execute_process(
        COMMAND "${GIT}" -C "${SOURCE}" check-attr text -- resources/ViewSettingsXsdSchema
        OUTPUT_VARIABLE answer
        ERROR_VARIABLE refusal
        RESULT_VARIABLE result
        OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT result EQUAL 0)
        # Such as a tree of another user, which git refuses to read.
        message(STATUS "git does not answer: ${refusal}")
    elseif(NOT answer STREQUAL "resources/ViewSettingsXsdSchema: text: unset")
        message(SEND_ERROR "git says: ${answer}")
    endif()
endif()
