# SPDX-License-Identifier: MIT
# What users of the Debian packages get: these are made, unpacked somewhere and used from there.
foreach(tool IN ITEMS dpkg-deb dpkg-gensymbols dpkg-shlibdeps file)
    find_program(PANOREL_TOOL_${tool} ${tool})
    mark_as_advanced(PANOREL_TOOL_${tool})
    if(NOT PANOREL_TOOL_${tool})
        message(STATUS "No ${tool} here: the Debian packages are not tested")
        return()
    endif()
endforeach()
if(NOT PANOREL_BUILD_EXAMPLES)
    return()
endif()

set(debs "${work}/debs")
set(root "${debs}/root")
panorel_add_package_test(debs COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/unpack-debs"
    "${CMAKE_CPACK_COMMAND}" "${PROJECT_BINARY_DIR}" "${PROJECT_VERSION}" "${debs}")
set_tests_properties(package.debs PROPERTIES FIXTURES_SETUP package.root)

panorel_add_consumer_test(debs.findPackage "-DPANOREL_PREFIX=${root}/usr")
panorel_add_build_test(debs.examples
    "${root}/usr/share/doc/panorel-examples/examples" PanorelExamples
    "-DCMAKE_PREFIX_PATH=${root}/usr" TARGET 01-first-layouts)
set_tests_properties(package.debs.findPackage package.debs.examples PROPERTIES
    FIXTURES_REQUIRED package.root)
set_property(TEST package.debs.findPackage APPEND PROPERTY
    ENVIRONMENT "LD_LIBRARY_PATH=${debs}/libraries")
if(PKG_CONFIG_EXECUTABLE)
    panorel_add_package_test(debs.pkgConfig COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-pkg-config"
        "${PKG_CONFIG_EXECUTABLE}" "${CMAKE_CXX_COMPILER}" "${root}/usr" "${CMAKE_INSTALL_LIBDIR}"
        "${PROJECT_VERSION}" "${work}/debs.pkgConfig")
    set_tests_properties(package.debs.pkgConfig PROPERTIES FIXTURES_REQUIRED package.root)
endif()
