# SPDX-License-Identifier: MIT
# A project of its own uses the library in all ways there are, and runs.

panorel_add_package_test(install COMMAND ${CMAKE_COMMAND}
    "-DSOURCE_DIR=${PROJECT_SOURCE_DIR}"
    "-DBUILD_DIR=${PROJECT_BINARY_DIR}"
    "-DPREFIX=${prefix}"
    "-DINCLUDE_DIR=${prefix}/${CMAKE_INSTALL_INCLUDEDIR}"
    "-DCONFIG=$<CONFIG>"
    -P "${CMAKE_CURRENT_SOURCE_DIR}/Install.cmake")
set_tests_properties(package.install PROPERTIES FIXTURES_SETUP package.prefix)

# Builds the project in a folder, or only TARGET of it, with further options for its configuration;
# then runs the program PROGRAM, if given. With GENERATOR another one is used than for this build.
function(panorel_add_build_test name source project)
    cmake_parse_arguments(PARSE_ARGV 3 arg "" "TARGET;PROGRAM;GENERATOR" "")
    set(folder "${work}/${name}")
    set(generator "${CMAKE_GENERATOR}" --build-makeprogram "${CMAKE_MAKE_PROGRAM}")
    if(arg_GENERATOR)
        set(generator "${arg_GENERATOR}")
        string(MAKE_C_IDENTIFIER "${arg_GENERATOR}" suffix)
        string(APPEND folder "-${suffix}")
    endif()
    if(arg_TARGET)
        set(arg_TARGET --build-target ${arg_TARGET})
    endif()
    if(arg_PROGRAM)
        set(arg_PROGRAM --test-command ${arg_PROGRAM})
    endif()
    panorel_add_package_test(${name} COMMAND ${CMAKE_CTEST_COMMAND}
        --build-and-test "${source}" "${folder}"
        --build-generator ${generator}
        --build-project ${project}
        --build-noclean
        ${arg_TARGET}
        --build-options
            "-DCMAKE_BUILD_TYPE=$<CONFIG>"
            "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
            "-DCMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS}"
            "-DQt5_DIR=${Qt5_DIR}"
            ${arg_UNPARSED_ARGUMENTS}
        ${arg_PROGRAM})
endfunction()

function(panorel_add_consumer_test name)
    panorel_add_build_test(${name} "${CMAKE_CURRENT_SOURCE_DIR}/consumer" Consumer
        "-DPANOREL_VERSION=${PROJECT_VERSION}" ${ARGN} PROGRAM consumer)
endfunction()

panorel_add_consumer_test(findPackage "-DPANOREL_PREFIX=${prefix}")
set_tests_properties(package.findPackage PROPERTIES FIXTURES_REQUIRED package.prefix)
# With BUILD_TESTING on, as a project with tests of its own has it, and with make, which is CMake's
# own choice on most systems and, unlike Ninja, makes no folders for what is generated.
panorel_add_consumer_test(addSubdirectory "-DPANOREL_SOURCE_DIR=${PROJECT_SOURCE_DIR}"
    -DBUILD_TESTING=ON GENERATOR "Unix Makefiles")

find_program(PKG_CONFIG_EXECUTABLE NAMES pkg-config pkgconf)
if(UNIX AND PKG_CONFIG_EXECUTABLE)
    panorel_add_package_test(pkgConfig COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-pkg-config"
        "${PKG_CONFIG_EXECUTABLE}" "${CMAKE_CXX_COMPILER}" "${prefix}" "${CMAKE_INSTALL_LIBDIR}"
        "${PROJECT_VERSION}" "${work}/pkgConfig")
    set_tests_properties(package.pkgConfig PROPERTIES FIXTURES_REQUIRED package.prefix)
endif()

find_program(PANOREL_PYTHON python3 HINTS /usr/bin)
mark_as_advanced(PANOREL_PYTHON)
if(UNIX AND PANOREL_PYTHON)
    panorel_add_package_test(recipes COMMAND "${PANOREL_PYTHON}"
        "${CMAKE_CURRENT_SOURCE_DIR}/check-recipes" "${CMAKE_COMMAND}" "${PROJECT_SOURCE_DIR}"
        "${PROJECT_VERSION}" "${work}/recipes")
    panorel_add_package_test(cmakeVersion COMMAND "${PANOREL_PYTHON}"
        "${CMAKE_CURRENT_SOURCE_DIR}/check-cmake-version" "${CMAKE_COMMAND}" "${PROJECT_SOURCE_DIR}")
endif()

find_package(Qt5LinguistTools 5.15 QUIET)
if(TARGET Qt5::lrelease)
    set(options -G "${CMAKE_GENERATOR}"
        "-DCMAKE_MAKE_PROGRAM=${CMAKE_MAKE_PROGRAM}"
        "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
        "-DQt5_DIR=${Qt5_DIR}")
    # One argument.
    list(JOIN options "\\;" options)
    get_target_property(lrelease Qt5::lrelease IMPORTED_LOCATION)
    panorel_add_package_test(options COMMAND "${CMAKE_COMMAND}"
        "-DSOURCE=${PROJECT_SOURCE_DIR}"
        "-DWORK=${work}/options"
        "-DLRELEASE=${lrelease}"
        "-DOPTIONS=${options}"
        -P "${CMAKE_CURRENT_SOURCE_DIR}/CheckOptions.cmake")
endif()
