# SPDX-License-Identifier: MIT
# Installs each component of the build BUILD_DIR into a folder of its own below WORK. A program runs
# with "runtime" alone, or with that and "kit"; these, "tools", "plugin" and "development" are,
# without overlap, what is installed in PREFIX.
cmake_minimum_required(VERSION 3.22)

foreach(variable BUILD_DIR PREFIX LIBDIR VERSION WORK)
    if(NOT ${variable})
        message(FATAL_ERROR "${variable} is not given")
    endif()
endforeach()

function(install_component component files)
    execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --component ${component}
        --prefix "${WORK}/${component}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(GLOB_RECURSE found RELATIVE "${WORK}/${component}" "${WORK}/${component}/*")
    set(${files} ${found} PARENT_SCOPE)
endfunction()

function(expect_equal what actual expected)
    if(NOT actual STREQUAL expected)
        message(FATAL_ERROR "${what}: ${actual}\nExpected: ${expected}")
    endif()
endfunction()

# Nothing may be left of what an earlier build has installed.
file(REMOVE_RECURSE "${WORK}")
install_component(runtime runtime)
install_component(kit kit)
install_component(tools tools)
install_component(plugin plugin)
install_component(development development)
install_component(examples examples)

string(REGEX MATCH "^[0-9]+" major "${VERSION}")
function(expected_libraries name folder result)
    set(${result} "${folder}/lib${name}.so.${major}" "${folder}/lib${name}.so.${VERSION}" PARENT_SCOPE)
endfunction()
expected_libraries(panorel "${LIBDIR}" libraries)
expected_libraries(TumoAppStartUp "${LIBDIR}/panorel" private_libraries)
expected_libraries(panorelkit "${LIBDIR}" kit_libraries)
list(FILTER runtime EXCLUDE REGEX "^share/panorel/translations/panorel_[a-zA-Z_]+\\.qm$")
expect_equal("Runtime without translations" "${runtime}" "${libraries};${private_libraries}")
list(FILTER kit EXCLUDE REGEX "^share/panorelkit/translations/panorelkit_[a-zA-Z_]+\\.qm$")
expect_equal("Kit without translations" "${kit}" "${kit_libraries}")
expect_equal("Tools" "${tools}"
    "bin/panorel;share/bash-completion/completions/panorel;share/man/man1/panorel.1")
if(NOT plugin MATCHES "^[^;]*/generic/libpanorel-plugin\\.so$")
    message(FATAL_ERROR "Plugin: ${plugin}")
endif()
file(GLOB_RECURSE runtime RELATIVE "${WORK}/runtime" "${WORK}/runtime/*")
file(GLOB_RECURSE kit RELATIVE "${WORK}/kit" "${WORK}/kit/*")
foreach(file IN ITEMS ${LIBDIR}/libpanorel.so ${LIBDIR}/libpanorelkit.so
        ${LIBDIR}/pkgconfig/panorel.pc ${LIBDIR}/pkgconfig/panorel-kit.pc
        include/panorel/Manager.h ${LIBDIR}/cmake/Panorel/PanorelConfig.cmake)
    if(NOT file IN_LIST development)
        message(FATAL_ERROR "${file} is not in: ${development}")
    endif()
endforeach()

set(together ${runtime} ${kit} ${tools} ${plugin} ${development})
list(SORT together)
file(GLOB_RECURSE all RELATIVE "${PREFIX}" "${PREFIX}/*")
list(SORT all)
expect_equal("Runtime, kit, tools, plugin and development" "${together}" "${all}")

# Those of the library's own build, which the tests were configured with.
if(EXAMPLES)
    foreach(file IN ITEMS CMakeLists.txt 01-first-layouts/main.cpp 07-workbench/CMakeLists.txt)
        if(NOT "share/doc/panorel-examples/examples/${file}" IN_LIST examples)
            message(FATAL_ERROR "${file} is not in: ${examples}")
        endif()
    endforeach()
endif()
