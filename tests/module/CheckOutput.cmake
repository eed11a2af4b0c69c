# SPDX-License-Identifier: MIT
# Runs a program and compares what it prints with a file, to the byte:
# cmake -D PROGRAM=... [-D ARGUMENTS=...] -D EXPECTED=... -P this
cmake_minimum_required(VERSION 3.22)

execute_process(
    COMMAND "${PROGRAM}" ${ARGUMENTS}
    OUTPUT_VARIABLE printed
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result} after printing:\n${printed}")
endif()
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "Expected:\n${expected}\nPrinted:\n${printed}")
endif()
