# SPDX-License-Identifier: MIT
# What programs that were built with a library rely on without being built again, kept in two files
# for each, so that a change of it shows where it is looked at. All are g++'s on 64-bit Linux.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU" OR NOT CMAKE_SIZEOF_VOID_P EQUAL 8)
    return()
endif()

# Debian's own Python, for another in front of it does not see Debian's modules.
find_program(PANOREL_DEBIANS_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
mark_as_advanced(PANOREL_DEBIANS_PYTHON)
set(no_elftools TRUE)
if(PANOREL_DEBIANS_PYTHON)
    execute_process(COMMAND "${PANOREL_DEBIANS_PYTHON}" -c "import elftools"
        RESULT_VARIABLE no_elftools OUTPUT_QUIET ERROR_QUIET)
endif()
if(no_elftools)
    message(STATUS "No Python with pyelftools here: the layout of the classes is not tested")
endif()

# The tests abi.NAME.symbols and abi.NAME.layout: what the target exports, and the classes that
# namespace NAMESPACE has in the headers that match the expression HEADERS.
function(panorel_add_abi_tests target namespace header_expression)
    get_target_property(name ${target} OUTPUT_NAME)
    # A debug build exports copies of what is inline elsewhere.
    if(CMAKE_BUILD_TYPE STREQUAL "Release")
        set(symbols "${PROJECT_SOURCE_DIR}/packaging/debian/lib${name}${PROJECT_VERSION_MAJOR}.symbols")
        panorel_add_package_test(abi.${name}.symbols COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-abi"
            "${symbols}"
            "${CMAKE_CURRENT_SOURCE_DIR}/list-symbols" "${CMAKE_NM}" "${PROJECT_VERSION}"
            "${symbols}" "$<TARGET_FILE:${target}>")
    endif()
    if(no_elftools)
        return()
    endif()

    set(source "${CMAKE_CURRENT_BINARY_DIR}/layout/${name}.cpp")
    set(includes)
    foreach(header IN LISTS headers)
        if(header MATCHES "${header_expression}")
            string(APPEND includes "#include <${header}>\n")
        endif()
    endforeach()
    file(CONFIGURE OUTPUT "${source}" CONTENT "${includes}")
    add_library(${target}Layout OBJECT "${source}")
    # All types, also those that this file does not use or whose functions are in other files.
    target_compile_options(${target}Layout PRIVATE -g -fno-eliminate-unused-debug-types
        -femit-class-debug-always)
    target_link_libraries(${target}Layout PRIVATE ${target})
    panorel_add_package_test(abi.${name}.layout COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-abi"
        "${CMAKE_CURRENT_SOURCE_DIR}/lib${name}.layout"
        "${PANOREL_DEBIANS_PYTHON}" "${CMAKE_CURRENT_SOURCE_DIR}/list-layout"
        "$<TARGET_OBJECTS:${target}Layout>" "${namespace}")
endfunction()

panorel_add_abi_tests(Panorel Panorel "^panorel/[^/]+$")
panorel_add_abi_tests(PanorelKit Panorel::Kit "^panorel/kit/")
