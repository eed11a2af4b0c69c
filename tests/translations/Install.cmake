# SPDX-License-Identifier: MIT
# Installs the build BUILD_DIR into PREFIX, where nothing of an earlier one is left.
foreach(variable BUILD_DIR PREFIX)
    if(NOT ${variable})
        message(FATAL_ERROR "${variable} is not given")
    endif()
endforeach()
file(REMOVE_RECURSE "${PREFIX}")
# A packager's folder would be put in front of the prefix.
unset(ENV{DESTDIR})
set(config)
if(CONFIG)
    set(config --config "${CONFIG}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}" ${config}
    OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
