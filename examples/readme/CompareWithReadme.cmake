# SPDX-License-Identifier: MIT
# Fails unless the first C++ block of README.md is the text of PROGRAM below its licence line.
cmake_minimum_required(VERSION 3.25)

file(READ "${README}" readme)
file(READ "${PROGRAM}" program)
string(REGEX REPLACE "^// SPDX[^\n]*\n" "" program "${program}")

set(opening "```cpp\n")
string(FIND "${readme}" "${opening}" start)
if(start EQUAL -1)
    message(FATAL_ERROR "${README} has no C++ block")
endif()
string(LENGTH "${opening}" length)
math(EXPR start "${start} + ${length}")
string(SUBSTRING "${readme}" ${start} -1 block)
string(FIND "${block}" "```" end)
string(SUBSTRING "${block}" 0 ${end} block)

if(NOT block STREQUAL program)
    message(FATAL_ERROR "The C++ block of ${README} is not the text of ${PROGRAM}")
endif()
