# SPDX-License-Identifier: MIT
# Programs that end in each way in which programs end. The next run has to show the floating dock
# widgets again, which Qt closes at the end of a program, too.
add_executable(two-windows TwoWindows.cpp)
panorel_compile_settings(two-windows)
target_include_directories(two-windows PRIVATE "${PROJECT_SOURCE_DIR}/examples")
target_link_libraries(two-windows PRIVATE Panorel::Panorel)

# panorel_end_program(NAME WAYS WAY... [THEN USE] [RUNNER COMMAND])
function(panorel_end_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "THEN" "WAYS;RUNNER")
    if(NOT arg_THEN)
        set(arg_THEN floatingDocksAreBack)
    endif()
    foreach(way IN LISTS arg_WAYS)
        set(test "ends.${name}.${way}")
        add_test(NAME examples.${test}
            COMMAND ${arg_RUNNER} "${CMAKE_COMMAND}"
                "-DPROGRAM=$<TARGET_FILE:${name}>"
                "-DUSES=end.${way};${arg_THEN}"
                "-DSESSION_MANAGER=${session_manager}"
                "-DFOLDER=${CMAKE_CURRENT_BINARY_DIR}/${test}"
                -P "${CMAKE_CURRENT_SOURCE_DIR}/RunExample.cmake")
        panorel_test_example(${test})
        if(arg_RUNNER)
            set_tests_properties(examples.${test} PROPERTIES
                LABELS "examples;xvfb" SKIP_RETURN_CODE 77)
        endif()
    endforeach()
endfunction()

panorel_end_program(01-first-layouts WAYS
    closeWindows closeAllWindows closeDocksFirstAndAsk closeAtSecondTry closeAndReopenDock
    closeAndQuitLater quit quitEvent)
panorel_end_program(01-first-layouts WAYS closeDock THEN floatingDocksAreClosed)
panorel_end_program(04-safe-storage WAYS closeWindows closeAllWindows quit)
panorel_end_program(08-kit WAYS
    closeWindows closeAllWindows closeDocksFirstAndAsk closeAtSecondTry closeAndReopenDock
    closeAndQuitLater quit quitEvent)
panorel_end_program(08-kit WAYS closeDock THEN floatingDocksAreClosed)
panorel_end_program(migration WAYS closeWindows closeAllWindows quit)
panorel_end_program(two-windows WAYS closeOneByOne closeAllWindows closeDocksFirstAndAsk quit quitEvent)

if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
endif()
set(under_xvfb "${PROJECT_SOURCE_DIR}/tests/ui/run-under-xvfb")
find_program(PANOREL_XDOTOOL xdotool)
if(PANOREL_XDOTOOL)
    panorel_end_program(01-first-layouts WAYS pressAltF4 clickCloseButton RUNNER "${under_xvfb}")
    panorel_end_program(08-kit WAYS pressAltF4 clickCloseButton RUNNER "${under_xvfb}")
endif()
find_package(X11)
if(X11_SM_FOUND AND X11_ICE_FOUND)
    add_executable(session-manager SessionManager.cpp)
    panorel_compile_settings(session-manager)
    target_link_libraries(session-manager PRIVATE X11::SM X11::ICE)
    set(session_manager "$<TARGET_FILE:session-manager>")
    foreach(program 01-first-layouts 04-safe-storage 08-kit migration two-windows)
        panorel_end_program(${program} WAYS endSession endSessionByForce
            RUNNER "${under_xvfb}")
    endforeach()
endif()
