# SPDX-License-Identifier: MIT
# Called by cpack when the components are in place and not packed yet: adds what belongs to Debian
# packages only.
set(debian "${CPACK_PANOREL_SOURCE_DIR}/packaging/debian")
set(version "${CPACK_PACKAGE_VERSION}")

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Without name and time of the file, so the same input always gives the same package.
function(compress source target)
    execute_process(COMMAND gzip -9n INPUT_FILE "${source}" OUTPUT_FILE "${target}"
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(tree "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr")
    set(doc "${tree}/share/doc/${package}")
    if(NOT IS_DIRECTORY "${tree}")
        message(FATAL_ERROR "Nothing was installed in ${tree}")
    endif()
    file(MAKE_DIRECTORY "${doc}")
    file(COPY_FILE "${debian}/copyright" "${doc}/copyright")
    compress("${debian}/changelog" "${doc}/changelog.Debian.gz")
    compress("${CPACK_PANOREL_SOURCE_DIR}/CHANGELOG.md" "${doc}/changelog.gz")
    if(component STREQUAL "examples")
        # The pages that it leads to are in another package, as HTML.
        file(READ "${doc}/examples/README.md" text)
        string(REGEX REPLACE "\\[([^]]+)\\]\\(\\.\\./docs/[^)]*\\)" "\\1" text "${text}")
        file(WRITE "${doc}/examples/README.md" "${text}")
    endif()
    file(GLOB manuals "${tree}/share/man/man*/*.[0-9]")
    foreach(manual IN LISTS manuals)
        compress("${manual}" "${manual}.gz")
        file(REMOVE "${manual}")
    endforeach()
    # Whatever the umask was.
    run(chmod -R u=rwX,go=rX "${tree}")
endforeach()

# Which package, and from which version on, a program needs that is linked to a library.
function(describe_library component)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(tree "${CPACK_TEMPORARY_DIRECTORY}/${component}")
    set(control "${CPACK_PANOREL_CONTROL_DIR}/${package}")
    # Not those in the private folder, to which nobody links.
    file(GLOB library "${tree}/usr/${CPACK_PANOREL_LIBRARY_DIR}/lib*.so.${version}")
    file(MAKE_DIRECTORY "${control}")
    run(dpkg-gensymbols -c0 "-p${package}" "-v${version}" "-P${tree}"
        "-I${debian}/${package}.symbols" "-O${control}/symbols" "-e${library}")
    cmake_path(GET library FILENAME name)
    string(REGEX MATCH "^(.*)\\.so\\.([0-9]+)" ignored "${name}")
    file(WRITE "${control}/shlibs" "${CMAKE_MATCH_1} ${CMAKE_MATCH_2} ${package} (>= ${version})\n")
endfunction()
describe_library(runtime)
describe_library(kit)
