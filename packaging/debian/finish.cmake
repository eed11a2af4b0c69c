# SPDX-License-Identifier: MIT
# Called by cpack when the packages are made. It has given those with a library scripts that call
# ldconfig, which the trigger does already.
foreach(file IN LISTS CPACK_PACKAGE_FILES)
    set(tree "${CPACK_TEMPORARY_DIRECTORY}/finish")
    file(REMOVE_RECURSE "${tree}")
    execute_process(COMMAND dpkg-deb --raw-extract "${file}" "${tree}" COMMAND_ERROR_IS_FATAL ANY)
    if(EXISTS "${tree}/DEBIAN/postinst")
        file(REMOVE "${tree}/DEBIAN/postinst" "${tree}/DEBIAN/postrm")
        execute_process(COMMAND dpkg-deb --root-owner-group --build "${tree}" "${file}"
            OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    endif()
    file(REMOVE_RECURSE "${tree}")
endforeach()
