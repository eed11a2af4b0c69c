# SPDX-License-Identifier: MIT
# cmake -DPROGRAM=FILE -DARGUMENT=TEXT -DEXPECTED=FILE -DRESULT=NUMBER -P CompareOutput.cmake
execute_process(COMMAND "${PROGRAM}" "${ARGUMENT}" TIMEOUT 120
    OUTPUT_VARIABLE output RESULT_VARIABLE result)
file(READ "${EXPECTED}" expected)
if(NOT output STREQUAL expected OR NOT result EQUAL RESULT)
    message(FATAL_ERROR "Result ${result} where ${RESULT} is expected, and output\n${output}")
endif()
