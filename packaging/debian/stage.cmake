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
    if(component STREQUAL "development")
        file(COPY "${CPACK_PANOREL_SOURCE_DIR}/README.md" "${CPACK_PANOREL_SOURCE_DIR}/SECURITY.md"
            DESTINATION "${doc}")
        file(COPY "${CPACK_PANOREL_SOURCE_DIR}/docs" DESTINATION "${doc}"
            FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")
    endif()
    # Whatever the umask was.
    run(chmod -R u=rwX,go=rX "${tree}")
endforeach()

# Which package, and from which version on, a program needs that is linked to these libraries.
set(package ${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME})
set(tree "${CPACK_TEMPORARY_DIRECTORY}/runtime")
file(GLOB libraries "${tree}/usr/${CPACK_PANOREL_LIBRARY_DIR}/lib*.so.${version}")
list(TRANSFORM libraries PREPEND "-e")
set(control "${CPACK_PANOREL_CONTROL_DIR}")
file(MAKE_DIRECTORY "${control}")
run(dpkg-gensymbols -c0 "-p${package}" "-v${version}" "-P${tree}"
    "-I${debian}/${package}.symbols" "-O${control}/symbols" ${libraries})
set(shlibs)
string(REGEX MATCH "^[0-9]+" major "${version}")
foreach(library IN LISTS libraries)
    cmake_path(GET library FILENAME name)
    string(REGEX REPLACE "\\.so\\..*" "" name "${name}")
    string(APPEND shlibs "${name} ${major} ${package} (>= ${version})\n")
endforeach()
file(WRITE "${control}/shlibs" "${shlibs}")
