# SPDX-License-Identifier: MIT
# Called by cpack when the packages are made: does to them what cpack cannot.
set(tree "${CPACK_TEMPORARY_DIRECTORY}/finish")

# Packages with libraries can be installed for several architectures at once; a command and the
# documentation of one architecture serve all.
set(same "^(lib.*|panorel-plugin)$")
set(foreign "^panorel-(doc|tools)$")

foreach(file IN LISTS CPACK_PACKAGE_FILES)
    file(REMOVE_RECURSE "${tree}")
    execute_process(COMMAND dpkg-deb --raw-extract "${file}" "${tree}" COMMAND_ERROR_IS_FATAL ANY)
    # They call ldconfig, which the trigger does already.
    file(REMOVE "${tree}/DEBIAN/postinst" "${tree}/DEBIAN/postrm")
    file(READ "${tree}/DEBIAN/control" control)
    string(REGEX MATCH "(^|\n)Package: ([^\n]+)" ignored "${control}")
    set(package "${CMAKE_MATCH_2}")
    set(multi_arch)
    if(package MATCHES "${same}")
        set(multi_arch "Multi-Arch: same\n")
    elseif(package MATCHES "${foreign}")
        set(multi_arch "Multi-Arch: foreign\n")
    endif()
    string(REGEX REPLACE "(Architecture: [^\n]+\n)" "\\1${multi_arch}" control "${control}")
    file(WRITE "${tree}/DEBIAN/control" "${control}")
    execute_process(COMMAND dpkg-deb --root-owner-group --build "${tree}" "${file}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(REMOVE_RECURSE "${tree}")
