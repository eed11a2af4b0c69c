# SPDX-License-Identifier: MIT
# Compiles the entry point for Windows and looks for it in what comes out:
# cmake -D COMPILER=... -D SOURCE=... -D DECLARATIONS=... -D OBJECT=... -D REQUIRED=... -P this
cmake_minimum_required(VERSION 3.22)

if(NOT COMPILER)
    if(REQUIRED)
        message(FATAL_ERROR "There is no compiler for Windows (g++-mingw-w64-x86-64-win32).")
    endif()
    message("SKIPPED: there is no compiler for Windows (g++-mingw-w64-x86-64-win32).")
    return()
endif()
file(REMOVE "${OBJECT}")
execute_process(
    COMMAND "${COMPILER}" -std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        -Wold-style-cast -Werror -isystem "${DECLARATIONS}" -c "${SOURCE}" -o "${OBJECT}"
    COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS "${OBJECT}" symbols REGEX "^DllMain")
if(NOT "DllMain" IN_LIST symbols)
    message(FATAL_ERROR "The compiled entry point is not named DllMain.")
endif()
