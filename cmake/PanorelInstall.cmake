# SPDX-License-Identifier: MIT
# How the libraries are laid out, in the build folder and where they are installed. The components of
# an installation: "runtime" is what a program with the library needs to run, "kit" what it needs
# beyond that for the second library, "development" what it takes to build one. "examples" is
# installed only when it is asked for.
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)
include(GNUInstallDirs)

set(PANOREL_GENERATED_INCLUDES "${PROJECT_BINARY_DIR}/include")
set(PANOREL_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Panorel")
# Libraries that only ours load, under names that others may use as well.
set(PANOREL_PRIVATE_LIBDIR "${CMAKE_INSTALL_LIBDIR}/panorel")
# Qt looks here if the prefix is its own, and else if it is told to by QT_PLUGIN_PATH.
set(PANOREL_QT_PLUGIN_DIR "${CMAKE_INSTALL_LIBDIR}/qt5/plugins" CACHE STRING
    "Where Qt's plugins are installed, below the prefix")

# The public headers of a library, as programs include them; those that are not in include/ are
# generated. They are sources as well, or moc would not see the ones with Q_OBJECT.
function(panorel_public_headers target)
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>"
        "$<BUILD_INTERFACE:${PANOREL_GENERATED_INCLUDES}>")
    foreach(header IN LISTS ARGN)
        set(file "${PROJECT_SOURCE_DIR}/include/${header}")
        if(NOT EXISTS "${file}")
            set(file "${PANOREL_GENERATED_INCLUDES}/${header}")
        endif()
        target_sources(${target} PRIVATE "${file}")
        if(PANOREL_INSTALL)
            get_filename_component(folder "${header}" DIRECTORY)
            install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${folder}"
                COMPONENT development)
        endif()
    endforeach()
endfunction()

# EXPORT is what the package for CMake gets the target from, COMPONENT what is needed to run it.
function(panorel_install_library target export component)
    if(NOT PANOREL_INSTALL)
        return()
    endif()
    install(TARGETS ${target}
        EXPORT ${export}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component}
            NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endfunction()

# Lets an installed target look for libraries in a folder, given from where the target lies.
function(panorel_add_install_rpath target path)
    set(origin "$ORIGIN")
    if(APPLE)
        set(origin "@loader_path")
    endif()
    set_property(TARGET ${target} APPEND PROPERTY INSTALL_RPATH "${origin}${path}")
endfunction()

# The same for the public libraries of this project, which lie in the folder. Where the system's
# loader looks anyway, a path would only take precedence over the administrator's.
function(panorel_install_rpath target path)
    if(NOT CMAKE_INSTALL_FULL_LIBDIR IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
        panorel_add_install_rpath(${target} "${path}")
    endif()
endfunction()
