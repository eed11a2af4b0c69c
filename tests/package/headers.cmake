# SPDX-License-Identifier: MIT
# Single files that must compile, or must not.

set(compile "${CMAKE_CXX_COMPILER}" -std=c++17 -fPIC -fsyntax-only -Werror -Wall -Wextra -Wpedantic
    -Wshadow -Wconversion -Wold-style-cast "-I${PROJECT_SOURCE_DIR}/include"
    "-I${PROJECT_BINARY_DIR}/include")
set(qt_directories ${Qt5Core_INCLUDE_DIRS} ${Qt5Gui_INCLUDE_DIRS} ${Qt5Widgets_INCLUDE_DIRS})
list(REMOVE_DUPLICATES qt_directories)
foreach(directory IN LISTS qt_directories)
    list(APPEND compile -isystem "${directory}")
endforeach()

# Every public header compiles alone, whether or not the user has Qt's keywords.
file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}/include"
    "${PROJECT_SOURCE_DIR}/include/panorel/*.h")
if(NOT headers)
    message(FATAL_ERROR "No public headers found")
endif()
foreach(header IN LISTS headers)
    string(REGEX REPLACE "^panorel/(.*)\\.h$" "\\1" name "${header}")
    string(REPLACE "/" "." name "${name}")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/headers/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include <${header}>\n#include <${header}>\n")
    panorel_add_package_test(header.${name}.withKeywords COMMAND ${compile} "${source}")
    panorel_add_package_test(header.${name}.withoutKeywords
        COMMAND ${compile} -DQT_NO_KEYWORDS "${source}")
endforeach()

# The compiler warns of the assignment that never returns, and of nothing else in QtState.
panorel_add_package_test(deprecation.copyConstruction
    COMMAND ${compile} "${CMAKE_CURRENT_SOURCE_DIR}/CopyQtState.cpp")
panorel_add_package_test(deprecation.assignment
    COMMAND ${compile} -DASSIGN "${CMAKE_CURRENT_SOURCE_DIR}/CopyQtState.cpp")
# A dot where the text has a semicolon, which would make two expressions of it.
string(CONCAT deprecation_error
    "error: [^\n]*deprecated: assigning one QtState to another never returns. "
    "copy-construct a new value instead: QtState copy\\(other\\)")
set_tests_properties(package.deprecation.assignment PROPERTIES
    PASS_REGULAR_EXPRESSION "${deprecation_error}")
