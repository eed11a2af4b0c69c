# SPDX-License-Identifier: MIT
# Builds the library where the application has a start-up library of its own, installs it, and
# builds a program with the installed package:
# cmake -D SOURCE=<source tree> -D FOLDER=<scratch folder> -D "OPTIONS=<options of the outer build>"
#     -D "PREFIX_PATH=<its CMAKE_PREFIX_PATH>" -P this
cmake_minimum_required(VERSION 3.22)

set(here "${CMAKE_CURRENT_LIST_DIR}")
file(REMOVE_RECURSE "${FOLDER}")

function(run)
    execute_process(COMMAND ${ARGN}
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${result}:\n${output}")
    endif()
endfunction()

function(configure source name prefix_path)
    # Escaped, because the list is one argument.
    list(JOIN prefix_path "\\;" prefix_path)
    run("${CMAKE_COMMAND}" -S "${source}" -B "${FOLDER}/${name}" ${OPTIONS}
        "-DCMAKE_PREFIX_PATH=${prefix_path}" ${ARGN})
endfunction()

function(build_and_install name prefix)
    run("${CMAKE_COMMAND}" --build "${FOLDER}/${name}" --parallel 2)
    run("${CMAKE_COMMAND}" --install "${FOLDER}/${name}" --prefix "${prefix}")
endfunction()

set(application "${FOLDER}/prefix/application")
set(panorel "${FOLDER}/prefix/panorel")
configure("${here}/application" application "${PREFIX_PATH}")
build_and_install(application "${application}")
configure("${SOURCE}" panorel "${application};${PREFIX_PATH}"
    -DBUILD_TESTING=OFF -DPANOREL_BUILD_STARTUP=OFF -DPANOREL_BUILD_TRANSLATIONS=OFF
    -DPANOREL_BUILD_KIT=OFF)
build_and_install(panorel "${panorel}")
file(GLOB_RECURSE substitutes "${FOLDER}/panorel/*TumoAppStartUp.*" "${panorel}/*TumoAppStartUp.*")
if(substitutes)
    message(FATAL_ERROR "The substitute was built all the same: ${substitutes}")
endif()

configure("${here}/consumer" consumer "${panorel};${application};${PREFIX_PATH}")
run("${CMAKE_COMMAND}" --build "${FOLDER}/consumer")
execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env
        "LD_LIBRARY_PATH=${application}/${LIBRARY_FOLDER}" "${FOLDER}/consumer/consumer"
    OUTPUT_VARIABLE printed
    COMMAND_ERROR_IS_FATAL ANY)
set(expected "the application registers Panorel\nmain\nthe application unregisters Panorel\n")
if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "Expected:\n${expected}\nPrinted:\n${printed}")
endif()
# The package is found where the application's is not; only programs need that one.
configure("${here}/consumer" lonely "${panorel};${PREFIX_PATH}")
