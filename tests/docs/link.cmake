# SPDX-License-Identifier: MIT
# README's program in projects of their own, linked by the lines that README shows.

# As in tests/package: an instrumented library is not what is shipped.
if(CMAKE_CXX_FLAGS MATCHES "-fsanitize|--coverage" OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
endif()

# Of each project a copy is used, so that the library can be put into it.
foreach(name installed subfolder)
    configure_file("link/${name}/CMakeLists.txt"
        "${CMAKE_CURRENT_BINARY_DIR}/link/${name}/CMakeLists.txt" COPYONLY)
endforeach()
file(CREATE_LINK "${PROJECT_SOURCE_DIR}"
    "${CMAKE_CURRENT_BINARY_DIR}/link/subfolder/panorel" SYMBOLIC)
set(options
    "-DCMAKE_BUILD_TYPE=$<CONFIG>"
    "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
    "-DPROGRAM=${PROJECT_SOURCE_DIR}/examples/08-kit/main.cpp"
    "-DQt5_DIR=${Qt5_DIR}")

get_property(prefix GLOBAL PROPERTY PANOREL_INSTALLED_PREFIX)
add_test(NAME docs.link.installed COMMAND ${CMAKE_CTEST_COMMAND}
    --build-and-test
        "${CMAKE_CURRENT_BINARY_DIR}/link/installed"
        "${CMAKE_CURRENT_BINARY_DIR}/link/installed/build"
    --build-generator "${CMAKE_GENERATOR}"
    --build-makeprogram "${CMAKE_MAKE_PROGRAM}"
    --build-project MyApplication
    --build-options ${options}
        "-DCMAKE_PREFIX_PATH=${prefix}")
set_tests_properties(docs.link.installed PROPERTIES FIXTURES_REQUIRED package.prefix)

# Only as far as the target is found: package.addSubdirectory builds the library in such a project.
add_test(NAME docs.link.subfolder COMMAND ${CMAKE_COMMAND} -G "${CMAKE_GENERATOR}"
    -S "${CMAKE_CURRENT_BINARY_DIR}/link/subfolder"
    -B "${CMAKE_CURRENT_BINARY_DIR}/link/subfolder/build" ${options})

set_tests_properties(docs.link.installed docs.link.subfolder PROPERTIES LABELS docs TIMEOUT 600)
