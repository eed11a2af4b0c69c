# SPDX-License-Identifier: MIT
# The sources of the examples for reading and building, and the largest of them as a program. Nobody
# who links the library needs them: cmake --install brings them only with --component examples.
set(PANOREL_EXAMPLES_DIR "${CMAKE_INSTALL_DATADIR}/doc/panorel-examples")

install(DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/"
    DESTINATION "${PANOREL_EXAMPLES_DIR}/examples"
    COMPONENT examples EXCLUDE_FROM_ALL
    FILES_MATCHING PATTERN CMakeLists.txt PATTERN README.md PATTERN "*.cpp" PATTERN "*.h" PATTERN "*.ts"
    PATTERN "*Test.cpp" EXCLUDE)
panorel_install_rpath(workbench "/../..")
install(TARGETS workbench
    RUNTIME DESTINATION "${CMAKE_INSTALL_LIBDIR}/panorel/examples"
    COMPONENT examples EXCLUDE_FROM_ALL)
