# SPDX-License-Identifier: MIT
# What lets other projects find the installed libraries: a package for CMake and files for pkg-config.
set(exports PanorelTargets)
set(pkg_config_names panorel)
if(PANOREL_BUILD_KIT)
    list(APPEND exports PanorelKitTargets)
    list(APPEND pkg_config_names panorel-kit)
endif()
foreach(export IN LISTS exports)
    install(EXPORT ${export}
        NAMESPACE Panorel::
        DESTINATION "${PANOREL_CMAKE_DIR}"
        COMPONENT development)
endforeach()
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/PanorelConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/package/PanorelConfig.cmake"
    INSTALL_DESTINATION "${PANOREL_CMAKE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/PanorelConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/package/PanorelConfig.cmake"
    "${PROJECT_BINARY_DIR}/package/PanorelConfigVersion.cmake"
    DESTINATION "${PANOREL_CMAKE_DIR}"
    COMPONENT development)

# Everything in the files starts from where they lie, so an installed tree can be moved.
file(RELATIVE_PATH PANOREL_PREFIX_FROM_PKG_CONFIG
    "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
foreach(directory IN ITEMS LIBDIR INCLUDEDIR)
    file(RELATIVE_PATH PANOREL_${directory}_FROM_PREFIX
        "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_${directory}}")
endforeach()
foreach(name IN LISTS pkg_config_names)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in"
        "${PROJECT_BINARY_DIR}/package/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/package/${name}.pc"
        DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
        COMPONENT development)
endforeach()

if(PANOREL_REFERENCE_DIR)
    install(DIRECTORY "${PANOREL_REFERENCE_DIR}/html"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/panorel-doc"
        COMPONENT doc
        # What the Qt help file was made of.
        PATTERN "*.qhp" EXCLUDE)
    # Where Qt's own are, so that its tools offer it.
    install(FILES "${PANOREL_REFERENCE_DIR}/panorel.qch"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/qt5/doc"
        COMPONENT doc)
endif()
