# SPDX-License-Identifier: MIT
# A project of its own uses the library in both ways there are, and runs.

panorel_add_package_test(install COMMAND ${CMAKE_COMMAND}
    "-DSOURCE_DIR=${PROJECT_SOURCE_DIR}"
    "-DBUILD_DIR=${PROJECT_BINARY_DIR}"
    "-DPREFIX=${prefix}"
    "-DINCLUDE_DIR=${prefix}/${CMAKE_INSTALL_INCLUDEDIR}"
    "-DCONFIG=$<CONFIG>"
    -P "${CMAKE_CURRENT_SOURCE_DIR}/Install.cmake")
set_tests_properties(package.install PROPERTIES FIXTURES_SETUP package.prefix)

function(panorel_add_consumer_test name)
    panorel_add_package_test(${name} COMMAND ${CMAKE_CTEST_COMMAND}
        --build-and-test "${CMAKE_CURRENT_SOURCE_DIR}/consumer" "${work}/${name}"
        --build-generator "${CMAKE_GENERATOR}"
        --build-makeprogram "${CMAKE_MAKE_PROGRAM}"
        --build-project Consumer
        --build-noclean
        --build-options
            "-DCMAKE_BUILD_TYPE=$<CONFIG>"
            "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
            "-DCMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS}"
            "-DQt5_DIR=${Qt5_DIR}"
            "-DPANOREL_VERSION=${PROJECT_VERSION}"
            ${ARGN}
        --test-command consumer)
endfunction()

panorel_add_consumer_test(findPackage "-DPANOREL_PREFIX=${prefix}")
set_tests_properties(package.findPackage PROPERTIES FIXTURES_REQUIRED package.prefix)
# With BUILD_TESTING on, as a project with tests of its own has it.
panorel_add_consumer_test(addSubdirectory "-DPANOREL_SOURCE_DIR=${PROJECT_SOURCE_DIR}"
    -DBUILD_TESTING=ON)
