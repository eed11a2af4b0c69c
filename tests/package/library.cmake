# SPDX-License-Identifier: MIT
# What the built library exports, imports and needs.

# The tests LABELexports, LABELimports and LABELdynamicSection. As expressions: NEEDED are the libraries
# that it may need, DEBUG_PRINTING the functions that a debug build may print with, and OURS the symbols
# that it may export. Further arguments are check-exports'.
function(panorel_add_library_tests target label needed debug_printing ours)
    set(printing "$<$<CONFIG:Debug>:${debug_printing}>")
    get_target_property(name ${target} OUTPUT_NAME)
    get_property(path TARGET ${target} PROPERTY INSTALL_RPATH)
    list(JOIN path ":" path)
    panorel_add_package_test(${label}exports COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-exports"
        "${CMAKE_NM}" "$<TARGET_FILE:${target}>" "${ours}" ${ARGN})
    panorel_add_package_test(${label}imports COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-imports"
        "${CMAKE_NM}" "$<TARGET_FILE:${target}>" "${printing}")
    panorel_add_package_test(${label}dynamicSection
        COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-dynamic-section" "${CMAKE_READELF}"
        "${prefix}/${CMAKE_INSTALL_LIBDIR}" "lib${name}" "${PROJECT_VERSION}" "${needed}" "${path}")
    set_tests_properties(package.${label}dynamicSection PROPERTIES FIXTURES_REQUIRED package.prefix)
endfunction()
panorel_add_library_tests(Panorel ""
    "libQt5(Core|Gui|Network|Widgets|XmlPatterns)\\.so\\.5|libTumoAppStartUp\\.so(\\.[0-9]+)?"
    "qt_assert(_x)?"
    "7Panorel(7Manager|7QtState|10IManagable|4Menu|10ViewButton)"
    "${CMAKE_CURRENT_SOURCE_DIR}/exports.txt")
# A debug build tells the developer what is wrong with a window, by a logging category.
panorel_add_library_tests(PanorelKit kit.
    "libQt5(Core|Gui|Widgets)\\.so\\.5|libpanorel\\.so\\.1|libTumoAppStartUp\\.so(\\.[0-9]+)?"
    "qt_assert(_x)?|QLoggingCategory::~?QLoggingCategory|QMessageLogger::warning"
    7Panorel3Kit)

if(PANOREL_BUILD_STARTUP)
    panorel_add_package_test(startup.exports COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-exports"
        "${CMAKE_NM}" "$<TARGET_FILE:TumoAppStartUp>"
        "17TranslationCenter(8InstanceEv|(8Register|10Unregister)ERK7QString)$")
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
