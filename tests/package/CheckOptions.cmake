# SPDX-License-Identifier: MIT
# What is built and installed depends on options only, not on what happens to be there:
# cmake -D SOURCE=<source tree> -D WORK=<scratch folder> -D "OPTIONS=<of the outer build>" -P this
cmake_minimum_required(VERSION 3.22)

file(REMOVE_RECURSE "${WORK}")

# Further arguments are options.
function(configure name result output)
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/${name}" -DBUILD_TESTING=OFF
            ${OPTIONS} ${ARGN}
        RESULT_VARIABLE code OUTPUT_VARIABLE text ERROR_VARIABLE text)
    # CMake breaks the lines of its messages.
    string(REGEX REPLACE "[ \n]+" " " text "${text}")
    set(${result} "${code}" PARENT_SCOPE)
    set(${output} "${text}" PARENT_SCOPE)
endfunction()

function(expect_failure name message)
    configure("${name}" result output ${ARGN})
    string(FIND "${output}" "${message}" position)
    if(result EQUAL 0 OR position EQUAL -1)
        message(FATAL_ERROR "${name}: ended with ${result}, without '${message}':\n${output}")
    endif()
endfunction()

function(expect_success name)
    configure("${name}" result output ${ARGN})
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${name}: ended with ${result}:\n${output}")
    endif()
endfunction()

set(nothing_found -DCMAKE_FIND_USE_SYSTEM_ENVIRONMENT_PATH=OFF -DCMAKE_FIND_USE_CMAKE_SYSTEM_PATH=OFF)
set(no_linguist -DCMAKE_DISABLE_FIND_PACKAGE_Qt5LinguistTools=ON)

expect_failure("no start-up library" "PANOREL_BUILD_STARTUP is OFF and CMake finds no package"
    -DPANOREL_BUILD_STARTUP=OFF -DCMAKE_DISABLE_FIND_PACKAGE_TumoAppStartUp=ON)
expect_failure("no tools for translations" "PANOREL_BUILD_TRANSLATIONS=OFF"
    ${no_linguist} ${nothing_found})
expect_success("no translations" -DPANOREL_BUILD_TRANSLATIONS=OFF ${no_linguist} ${nothing_found})

# The program alone is enough.
expect_success("lrelease" ${no_linguist} "-DPANOREL_LRELEASE=${LRELEASE}")
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/lrelease" --target PanorelTranslations
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
if(NOT EXISTS "${WORK}/lrelease/share/panorel/translations/panorel_de.qm")
    message(FATAL_ERROR "lrelease has compiled no German catalogue")
endif()

expect_success("no installation" -DPANOREL_INSTALL=OFF)
file(GLOB_RECURSE scripts "${WORK}/no installation/cmake_install.cmake")
foreach(script IN LISTS scripts)
    file(STRINGS "${script}" installs REGEX "file\\(INSTALL")
    if(installs)
        message(FATAL_ERROR "PANOREL_INSTALL is OFF, but ${script} installs: ${installs}")
    endif()
endforeach()
