# SPDX-License-Identifier: MIT
add_subdirectory("${PANOREL_SOURCE_DIR}" panorel)

# The targets and tests that the folder and those below it define.
function(collect directory targets tests)
    get_property(all_targets DIRECTORY "${directory}" PROPERTY BUILDSYSTEM_TARGETS)
    get_property(all_tests DIRECTORY "${directory}" PROPERTY TESTS)
    get_property(subdirectories DIRECTORY "${directory}" PROPERTY SUBDIRECTORIES)
    foreach(subdirectory IN LISTS subdirectories)
        collect("${subdirectory}" more_targets more_tests)
        list(APPEND all_targets ${more_targets})
        list(APPEND all_tests ${more_tests})
    endforeach()
    set(${targets} ${all_targets} PARENT_SCOPE)
    set(${tests} ${all_tests} PARENT_SCOPE)
endfunction()

collect("${PANOREL_SOURCE_DIR}" targets tests)
# What the library is made of; its tests and examples are not for the consumer.
list(REMOVE_ITEM targets Panorel PanorelKit PanorelResources PanorelTranslations TumoAppStartUp)
expect_equal("More targets" "${targets}" "")
expect_equal("Tests" "${tests}" "")
get_directory_property(testing DIRECTORY "${PANOREL_SOURCE_DIR}" DEFINITION CMAKE_TESTING_ENABLED)
expect_equal("Testing enabled" "${testing}" "")
expect_equal("Installation" "${PANOREL_INSTALL}" OFF)
