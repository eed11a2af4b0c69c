# SPDX-License-Identifier: MIT
# What programs that were built with the library rely on without being built again, kept in two
# files, so that a change of it shows where it is looked at. Both are g++'s on 64-bit Linux.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU" OR NOT CMAKE_SIZEOF_VOID_P EQUAL 8
    OR NOT TARGET TumoAppStartUp)
    return()
endif()

# A debug build exports copies of what is inline elsewhere.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    set(symbols "${PROJECT_SOURCE_DIR}/packaging/debian/libpanorel${PROJECT_VERSION_MAJOR}.symbols")
    panorel_add_package_test(abi.symbols COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-abi"
        "${symbols}"
        "${CMAKE_CURRENT_SOURCE_DIR}/list-symbols" "${CMAKE_NM}" "${PROJECT_VERSION}" "${symbols}"
        "$<TARGET_FILE:Panorel>" "$<TARGET_FILE:TumoAppStartUp>")
endif()

# Debian's own Python, for another in front of it does not see Debian's modules.
function(panorel_has_elftools result python)
    execute_process(COMMAND "${python}" -c "import elftools" RESULT_VARIABLE failed
        OUTPUT_QUIET ERROR_QUIET)
    if(failed)
        set(${result} FALSE PARENT_SCOPE)
    endif()
endfunction()
find_program(PANOREL_PYTHON_WITH_ELFTOOLS python3 HINTS /usr/bin VALIDATOR panorel_has_elftools)
mark_as_advanced(PANOREL_PYTHON_WITH_ELFTOOLS)
if(NOT PANOREL_PYTHON_WITH_ELFTOOLS)
    message(STATUS "No Python with pyelftools here: the layout of the classes is not tested")
    return()
endif()

set(source "${CMAKE_CURRENT_BINARY_DIR}/layout/headers.cpp")
set(includes)
foreach(header IN LISTS headers)
    string(APPEND includes "#include <${header}>\n")
endforeach()
file(CONFIGURE OUTPUT "${source}" CONTENT "${includes}")
add_library(PanorelLayout OBJECT "${source}")
# All types, also those that this file does not use or whose functions are in other files.
target_compile_options(PanorelLayout PRIVATE -g -fno-eliminate-unused-debug-types
    -femit-class-debug-always)
target_link_libraries(PanorelLayout PRIVATE Panorel::Panorel)
panorel_add_package_test(abi.layout COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/check-abi"
    "${CMAKE_CURRENT_SOURCE_DIR}/layout.txt"
    "${PANOREL_PYTHON_WITH_ELFTOOLS}" "${CMAKE_CURRENT_SOURCE_DIR}/list-layout"
    "$<TARGET_OBJECTS:PanorelLayout>")
