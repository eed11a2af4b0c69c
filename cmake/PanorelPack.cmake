# SPDX-License-Identifier: MIT
# What cpack makes of the components: Debian packages. scripts/package calls it as Debian wants the
# libraries to be built.
set(PANOREL_DEBIAN_DIR "${PROJECT_SOURCE_DIR}/packaging/debian")

set(CPACK_GENERATOR DEB)
# Of those that are described below, what the build has.
get_cmake_property(components COMPONENTS)
set(CPACK_COMPONENTS_ALL)
foreach(component IN ITEMS runtime kit development tools plugin doc examples)
    if(component IN_LIST components)
        list(APPEND CPACK_COMPONENTS_ALL ${component})
    endif()
endforeach()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

# The newest entry of the change log says which revision of the packaging this is and who made it.
file(STRINGS "${PANOREL_DEBIAN_DIR}/changelog" entry REGEX "^panorel \\(" LIMIT_COUNT 1)
if(NOT entry MATCHES "\\(([0-9.]+)-([0-9]+)\\)")
    message(FATAL_ERROR "No version in ${PANOREL_DEBIAN_DIR}/changelog: ${entry}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})
file(STRINGS "${PANOREL_DEBIAN_DIR}/changelog" entry REGEX "^ -- " LIMIT_COUNT 1)
if(NOT entry MATCHES "^ -- (.*>)  ")
    message(FATAL_ERROR "No name in ${PANOREL_DEBIAN_DIR}/changelog: ${entry}")
endif()
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CMAKE_MATCH_1}")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The packages' own libraries, which dpkg-shlibdeps finds nowhere else.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    "${PROJECT_BINARY_DIR}/src" "${PROJECT_BINARY_DIR}/src/kit"
    "${PROJECT_BINARY_DIR}/${PANOREL_PRIVATE_LIBDIR}")
set(version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(library libpanorel${PROJECT_VERSION_MAJOR})
set(kit libpanorelkit${PROJECT_VERSION_MAJOR})

set(about "Panorel lets the users of a Qt 5 application save the layouts of its
main windows under names and in groups, and switch between them: where the
dock widgets and tool bars are.")
# One package. Its dependencies on Qt are found by dpkg-shlibdeps, if it has programs or libraries;
# DEPENDS are those on packages of this project and what else it takes.
function(panorel_debian_package component name section summary description)
    cmake_parse_arguments(PARSE_ARGV 5 arg "SHLIBDEPS" "DEPENDS;RECOMMENDS;SUGGESTS;ARCHITECTURE" "")
    string(TOUPPER ${component} upper)
    set(CPACK_COMPONENT_${upper}_DESCRIPTION
        "named window layouts for Qt 5 applications${summary}\n${about}\n.\n${description}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS ${arg_SHLIBDEPS} PARENT_SCOPE)
    foreach(field IN ITEMS DEPENDS RECOMMENDS SUGGESTS ARCHITECTURE)
        if(arg_${field})
            set(CPACK_DEBIAN_${upper}_PACKAGE_${field} "${arg_${field}}" PARENT_SCOPE)
        endif()
    endforeach()
endfunction()

panorel_debian_package(runtime ${library} libs "" "This package contains the shared library and its texts in other
languages." SHLIBDEPS)
panorel_debian_package(kit ${kit} libs " (kit)" "This package contains the second shared library, which reads, checks and
draws layouts and puts more comfort around them." SHLIBDEPS
    DEPENDS "${library} (= ${version})")
# stage.cmake writes the last two.
foreach(component IN ITEMS RUNTIME KIT)
    set(control "${PROJECT_BINARY_DIR}/debian/${CPACK_DEBIAN_${component}_PACKAGE_NAME}")
    set(CPACK_DEBIAN_${component}_PACKAGE_CONTROL_EXTRA
        "${PANOREL_DEBIAN_DIR}/triggers" "${control}/shlibs" "${control}/symbols")
endforeach()
panorel_debian_package(development libpanorel-dev libdevel " (development files)"
    "This package contains what it takes to build programs with the libraries:
headers, and files for CMake and pkg-config."
    DEPENDS "${library} (= ${version}), ${kit} (= ${version}), qtbase5-dev (>= 5.15)"
    SUGGESTS "panorel-doc")
panorel_debian_package(tools panorel-tools utils " (command)"
    "This package contains the command panorel, which checks, shows, compares
and draws layouts that are kept in files. It also starts other programs
with the plugin that gives them layouts." SHLIBDEPS
    DEPENDS "${library} (= ${version}), ${kit} (= ${version})"
    RECOMMENDS "panorel-plugin (= ${version})")
panorel_debian_package(plugin panorel-plugin utils " (plugin)"
    "This package contains a plugin that gives named layouts to programs that
were not built with the library." SHLIBDEPS
    DEPENDS "${library} (= ${version}), ${kit} (= ${version})")
panorel_debian_package(doc panorel-doc doc " (documentation)"
    "This package contains the guide and the reference, as HTML and for Qt
Assistant." ARCHITECTURE all)
panorel_debian_package(examples panorel-examples devel " (examples)"
    "This package contains programs that use the library, as source in
/usr/share/doc/panorel-examples/examples. The largest of them, the
workbench, is also there to be started:
/usr/${CMAKE_INSTALL_LIBDIR}/panorel/examples/workbench" SHLIBDEPS
    DEPENDS "${library} (= ${version}), ${kit} (= ${version})"
    RECOMMENDS "cmake, g++, libpanorel-dev (= ${version})")

set(CPACK_PRE_BUILD_SCRIPTS "${PANOREL_DEBIAN_DIR}/stage.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PANOREL_DEBIAN_DIR}/finish.cmake")
# What these scripts have to know.
set(CPACK_PANOREL_SOURCE_DIR "${PROJECT_SOURCE_DIR}")
set(CPACK_PANOREL_CONTROL_DIR "${PROJECT_BINARY_DIR}/debian")
set(CPACK_PANOREL_LIBRARY_DIR "${CMAKE_INSTALL_LIBDIR}")
include(CPack)
