# SPDX-License-Identifier: MIT
# Installs the build BUILD_DIR into PREFIX and looks at what is there.
foreach(variable SOURCE_DIR BUILD_DIR PREFIX INCLUDE_DIR)
    if(NOT ${variable})
        message(FATAL_ERROR "${variable} is not given")
    endif()
endforeach()

# Nothing may be left of what an earlier build has installed.
file(REMOVE_RECURSE "${PREFIX}")
set(config)
if(CONFIG)
    set(config --config "${CONFIG}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}" ${config}
    COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE expected RELATIVE "${SOURCE_DIR}/include" "${SOURCE_DIR}/include/*")
list(APPEND expected panorel/PanorelExport.h)
list(SORT expected)
file(GLOB_RECURSE installed RELATIVE "${INCLUDE_DIR}" "${INCLUDE_DIR}/*")
list(SORT installed)
if(NOT installed STREQUAL expected)
    message(FATAL_ERROR "Installed headers: ${installed}\nExpected: ${expected}")
endif()

file(GLOB_RECURSE files "${PREFIX}/*.cmake")
if(NOT files)
    message(FATAL_ERROR "No CMake package is installed")
endif()
foreach(file IN LISTS files)
    file(READ "${file}" text)
    foreach(directory "${SOURCE_DIR}" "${BUILD_DIR}")
        string(FIND "${text}" "${directory}" position)
        if(NOT position EQUAL -1)
            message(FATAL_ERROR "${file} names ${directory}, which a user does not have")
        endif()
    endforeach()
endforeach()
