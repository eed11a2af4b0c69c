# SPDX-License-Identifier: MIT
# What cpack makes of the components: three Debian packages. scripts/package calls it as Debian wants
# the library to be built.
set(PANOREL_DEBIAN_DIR "${PROJECT_SOURCE_DIR}/packaging/debian")

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL runtime development)
if(PANOREL_BUILD_EXAMPLES)
    list(APPEND CPACK_COMPONENTS_ALL examples)
endif()
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
    "${PROJECT_BINARY_DIR}/src" "${PROJECT_BINARY_DIR}/startup")
set(version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(library libpanorel${PROJECT_VERSION_MAJOR})

set(about "Panorel lets the users of a Qt 5 application keep where the dock widgets
and tool bars of its main windows stand, under names and in groups, and
switch between them.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "named window layouts for Qt 5 applications
${about}
.
This package contains the shared library and its texts in other
languages.")
# stage.cmake writes the last two.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    "${PANOREL_DEBIAN_DIR}/triggers"
    "${PROJECT_BINARY_DIR}/debian/shlibs"
    "${PROJECT_BINARY_DIR}/debian/symbols")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libpanorel-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library} (= ${version}), qtbase5-dev (>= 5.15)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "named window layouts for Qt 5 applications (development files)
${about}
.
This package contains what it takes to build programs with the library:
headers, and files for CMake and pkg-config.")

set(CPACK_DEBIAN_EXAMPLES_PACKAGE_NAME panorel-examples)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_DEPENDS "${library} (= ${version})")
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_RECOMMENDS "cmake, g++, libpanorel-dev (= ${version})")
set(CPACK_COMPONENT_EXAMPLES_DESCRIPTION
    "named window layouts for Qt 5 applications (examples)
${about}
.
This package contains programs that use the library, as source in
/usr/share/doc/panorel-examples/examples. The largest of them, the
workbench, is also there to be started:
/usr/${CMAKE_INSTALL_LIBDIR}/panorel/examples/workbench")

set(CPACK_PRE_BUILD_SCRIPTS "${PANOREL_DEBIAN_DIR}/stage.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PANOREL_DEBIAN_DIR}/finish.cmake")
# What these scripts have to know.
set(CPACK_PANOREL_SOURCE_DIR "${PROJECT_SOURCE_DIR}")
set(CPACK_PANOREL_CONTROL_DIR "${PROJECT_BINARY_DIR}/debian")
set(CPACK_PANOREL_LIBRARY_DIR "${CMAKE_INSTALL_LIBDIR}")
include(CPack)
