# SPDX-License-Identifier: MIT
if(NOT PANOREL_PREFIX OR NOT PANOREL_VERSION MATCHES "^([0-9]+)\\.([0-9]+)")
    message(FATAL_ERROR "PANOREL_PREFIX or PANOREL_VERSION is not given")
endif()
set(major ${CMAKE_MATCH_1})
set(minor ${CMAKE_MATCH_2})
math(EXPR newer "${major} + 1")
math(EXPR older "${major} - 1")
set(CMAKE_PREFIX_PATH "${PANOREL_PREFIX}")
# Where an earlier run found it does not count.
unset(Panorel_DIR CACHE)

# Refused for their version, not because nothing was found.
foreach(other IN ITEMS ${newer} ${older})
    find_package(Panorel ${other}.0 CONFIG QUIET)
    expect_equal("Panorel ${other}.0 found" "${Panorel_FOUND}" 0)
    # Where /lib is a link to /usr/lib it is met twice.
    list(REMOVE_DUPLICATES Panorel_CONSIDERED_VERSIONS)
    expect_equal("Considered" "${Panorel_CONSIDERED_VERSIONS}" "${PANOREL_VERSION}")
    unset(Panorel_DIR CACHE)
endforeach()

find_package(Panorel ${major}.${minor} CONFIG REQUIRED)
expect_equal("Version" "${Panorel_VERSION}" "${PANOREL_VERSION}")
cmake_path(IS_PREFIX PANOREL_PREFIX "${Panorel_DIR}" NORMALIZE ours)
if(NOT ours)
    message(FATAL_ERROR "Another Panorel was found: ${Panorel_DIR}")
endif()

# Nothing of the second library is there until it is asked for.
if(TARGET Panorel::Kit)
    message(FATAL_ERROR "Panorel::Kit is there without the component Kit")
endif()
find_package(Panorel CONFIG QUIET COMPONENTS Kit Other)
expect_equal("Panorel with an unknown component found" "${Panorel_FOUND}" 0)
find_package(Panorel CONFIG REQUIRED COMPONENTS Kit)
