# SPDX-License-Identifier: MIT
# What a built library exports: cmake -D NM=... -D LIBRARY=... -P this
cmake_minimum_required(VERSION 3.22)

execute_process(
    COMMAND "${NM}" --dynamic --defined-only "${LIBRARY}"
    OUTPUT_VARIABLE listing
    COMMAND_ERROR_IS_FATAL ANY)
string(STRIP "${listing}" listing)
string(REPLACE "\n" ";" lines "${listing}")
list(LENGTH lines count)
if(count LESS 10)
    message(FATAL_ERROR "${LIBRARY} exports ${count} symbols only:\n${listing}")
endif()
foreach(line IN LISTS lines)
    # A unique symbol keeps its library loaded for good.
    if(line MATCHES "^[0-9a-f]+ u ")
        message(SEND_ERROR "Unique: ${line}")
    # Members of the exported classes, their type information, their thunks.
    elseif(NOT line MATCHES " _Z(T[VISh][a-z0-9_]*)?NK?7Panorel")
        message(SEND_ERROR "Not ours to export: ${line}")
    endif()
endforeach()
