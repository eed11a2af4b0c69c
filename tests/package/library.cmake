# SPDX-License-Identifier: MIT
# What the built library exports, imports and needs.

panorel_add_package_test(exports COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-exports"
    "${CMAKE_NM}" "$<TARGET_FILE:Panorel>" "${CMAKE_CURRENT_SOURCE_DIR}/exports.txt")
# The assertions of a debug build print.
set(allowed "$<$<CONFIG:Debug>:qt_assert(_x)?>")
panorel_add_package_test(imports COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-imports"
    "${CMAKE_NM}" "$<TARGET_FILE:Panorel>" "${allowed}")
panorel_add_package_test(dynamicSection COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-dynamic-section"
    "${CMAKE_READELF}" "${prefix}/${CMAKE_INSTALL_LIBDIR}" "${PROJECT_VERSION}")
set_tests_properties(package.dynamicSection PROPERTIES FIXTURES_REQUIRED package.prefix)

get_target_property(applications_start_up TumoAppStartUp::TumoAppStartUp IMPORTED)
if(NOT applications_start_up)
    panorel_add_package_test(components COMMAND "${CMAKE_COMMAND}"
        "-DBUILD_DIR=${PROJECT_BINARY_DIR}"
        "-DPREFIX=${prefix}"
        "-DLIBDIR=${CMAKE_INSTALL_LIBDIR}"
        "-DVERSION=${PROJECT_VERSION}"
        "-DWORK=${work}/components"
        "-DEXAMPLES=${PANOREL_BUILD_EXAMPLES}"
        -P "${CMAKE_CURRENT_SOURCE_DIR}/Components.cmake")
    set_tests_properties(package.components PROPERTIES FIXTURES_REQUIRED package.prefix)
endif()
