# SPDX-License-Identifier: MIT
# The port builds the checkout that it lies in.
cmake_path(SET SOURCE_PATH NORMALIZE "${CURRENT_PORT_DIR}/../..")

vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)
vcpkg_check_features(OUT_FEATURE_OPTIONS feature_options
    FEATURES
        translations PANOREL_BUILD_TRANSLATIONS)

vcpkg_cmake_configure(
    SOURCE_PATH "${SOURCE_PATH}"
    OPTIONS
        ${feature_options}
        -DBUILD_TESTING=OFF
        -DPANOREL_BUILD_TOOL=OFF)
vcpkg_cmake_install()
vcpkg_copy_pdbs()
vcpkg_cmake_config_fixup(PACKAGE_NAME Panorel CONFIG_PATH lib/cmake/Panorel)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE
    "${CURRENT_PACKAGES_DIR}/debug/include"
    "${CURRENT_PACKAGES_DIR}/debug/share")

file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
