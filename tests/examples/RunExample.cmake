# SPDX-License-Identifier: MIT
# cmake -DPROGRAM=FILE -DDRIVES=NAME;... -DFOLDER=DIR [-DDAMAGED=FILE] -P RunExample.cmake
# Runs an example in a fresh folder, once for each drive. DAMAGED is a file below the folder that is
# damaged before the last run.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
set(ENV{HOME} "${FOLDER}")
set(ENV{XDG_DATA_HOME} "${FOLDER}")

list(POP_BACK DRIVES last)
foreach(drive IN LISTS DRIVES ITEMS "${last}")
    if(DAMAGED AND drive STREQUAL last)
        if(NOT EXISTS "${FOLDER}/${DAMAGED}")
            message(FATAL_ERROR "There is no ${DAMAGED} to damage")
        endif()
        file(WRITE "${FOLDER}/${DAMAGED}" "<ViewData Version=")
    endif()
    set(ENV{QT_QPA_GENERIC_PLUGINS} "drive:${drive}")
    execute_process(COMMAND "${PROGRAM}" WORKING_DIRECTORY "${FOLDER}" TIMEOUT 60
        RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${drive}: ${result}")
    endif()
endforeach()
