# SPDX-License-Identifier: MIT
import re
from os.path import join

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load


class PanorelConan(ConanFile):
    name = "panorel"
    description = "Named window layouts for Qt 5 applications"
    license = "MIT"
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"translations": [True, False]}
    # The texts in other languages would have Qt built with all of its tools.
    default_options = {"translations": False, "qt/*:shared": True, "qt/*:qtxmlpatterns": True}

    def set_version(self):
        text = load(self, join(self._checkout, "CMakeLists.txt"))
        self.version = re.search(r"project\(Panorel\s+VERSION ([0-9.]+)", text)[1]

    @property
    def _checkout(self):
        return join(self.recipe_folder, "..", "..")

    def export_sources(self):
        for pattern in ("CMakeLists.txt", "LICENSE", "cmake/*", "include/*", "packaging/debian/*",
                        "resources/*", "src/*", "startup/*", "translations/*"):
            copy(self, pattern, src=self._checkout, dst=self.export_sources_folder)

    def configure(self):
        if self.options.translations:
            self.options["qt/*"].qttools = True

    def requirements(self):
        # Its headers and its widgets are in the library's own headers.
        self.requires("qt/[~5.15]", transitive_headers=True, transitive_libs=True)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["BUILD_TESTING"] = False
        toolchain.cache_variables["PANOREL_BUILD_TOOL"] = False
        toolchain.cache_variables["PANOREL_BUILD_TRANSLATIONS"] = bool(self.options.translations)
        if self.options.translations:
            # Conan's Qt has the program, but not the package for CMake that would tell its place.
            toolchain.cache_variables["PANOREL_LRELEASE"] = join(
                self.dependencies["qt"].package_folder, "bin", "lrelease")
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", src=self.source_folder, dst=join(self.package_folder, "licenses"))
        CMake(self).install()

    def package_info(self):
        # The package for CMake that the library installs is the one to find.
        self.cpp_info.set_property("cmake_find_mode", "none")
        library = self.cpp_info.components["panorel"]
        library.set_property("pkg_config_name", "panorel")
        library.builddirs = [join("lib", "cmake", "Panorel")]
        library.libs = ["panorel"]
        library.requires = ["qt::qtWidgets", "qt::qtXmlPatterns"]
        kit = self.cpp_info.components["kit"]
        kit.set_property("pkg_config_name", "panorel-kit")
        kit.libs = ["panorelkit"]
        kit.requires = ["panorel"]
