# SPDX-License-Identifier: MIT
# Runs the resource compiler: cmake -D RCC=... -D INPUT=....qrc -D OUTPUT=....cpp -P this
get_filename_component(name "${INPUT}" NAME_WE)
# Format 1 with zlib is readable by every Qt 5; the compiler's own defaults are a newer format and
# another compression.
execute_process(
    COMMAND "${RCC}" --name ${name} --format-version 1 --compress-algo zlib "${INPUT}"
    OUTPUT_VARIABLE code
    COMMAND_ERROR_IS_FATAL ANY)

# The code that the compiler writes for format 1 withdraws the resources as format 2, which Qt does
# not find: they would stay registered when the library is gone.
string(REGEX REPLACE "\n[^\n]*version \\+=[^\n]*qResourceFeatureZlib[^\n]*" "" code "${code}")
if(code MATCHES "version \\+=")
    message(FATAL_ERROR "The resource compiler changes the version in a way not known here.")
endif()
file(WRITE "${OUTPUT}" "${code}")
