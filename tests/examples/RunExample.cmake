# SPDX-License-Identifier: MIT
# cmake -DPROGRAM=FILE -DUSES=NAME;... -DFOLDER=DIR [-DDAMAGED=FILE] [-DSESSION_MANAGER=FILE] -P RunExample.cmake
# Runs an example in a fresh folder, once for each use of it. DAMAGED is a file below the folder that is
# damaged before the last run. SESSION_MANAGER runs the program of a use that ends the session.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
set(ENV{HOME} "${FOLDER}")
set(ENV{XDG_DATA_HOME} "${FOLDER}")

list(POP_BACK USES last)
foreach(use IN LISTS USES ITEMS "${last}")
    if(DAMAGED AND use STREQUAL last)
        if(NOT EXISTS "${FOLDER}/${DAMAGED}")
            message(FATAL_ERROR "There is no ${DAMAGED} to damage")
        endif()
        file(WRITE "${FOLDER}/${DAMAGED}" "<ViewData Version=")
    endif()
    set(ENV{QT_QPA_GENERIC_PLUGINS} "drive:${use}")
    set(command "${PROGRAM}")
    if(use MATCHES "^end[.]endSession")
        set(command "${SESSION_MANAGER}" "${PROGRAM}")
    endif()
    execute_process(COMMAND ${command} WORKING_DIRECTORY "${FOLDER}" TIMEOUT 120
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${use}: ${result}")
    endif()
endforeach()
