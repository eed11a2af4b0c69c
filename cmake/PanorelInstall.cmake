# SPDX-License-Identifier: MIT
# The components of an installation: "runtime" is what a program needs to run, "development" what it
# takes to build one. "examples" is installed only when it is asked for.
include(GNUInstallDirs)

# Lets an installed target find the libraries of this project in a folder of its own. Where the
# system's loader looks anyway, a path would only be in the way of the administrator's.
function(panorel_install_rpath target path)
    if(NOT CMAKE_INSTALL_FULL_LIBDIR IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "${path}")
    endif()
endfunction()
