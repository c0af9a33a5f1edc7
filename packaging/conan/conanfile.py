"""Umbra for Conan 2: builds the checkout that this recipe lies in; nothing is fetched."""

import os

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy


class UmbraRecipe(ConanFile):
    name = "umbra"
    version = "0.1.0"
    license = "MIT"
    description = "A user-interface toolkit for Windows desktop programs"
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"

    def validate(self):
        if self.settings.os != "Windows" or self.settings.arch != "x86_64":
            raise ConanInvalidConfiguration("Umbra is for 64-bit Windows")

    def layout(self):
        cmake_layout(self)

    def export_sources(self):
        root = os.path.join(self.recipe_folder, "..", "..")
        for pattern in ("CMakeLists.txt", "LICENSE", "*.h", "cmake/*", "controls/*", "dialogs/*",
                        "faces/*", "forwarding/*", "mfc/*", "resources/*", "shell/*", "testing/*",
                        "units/*"):
            copy(self, pattern, root, self.export_sources_folder, excludes=("build/*", "tests/*"))

    def generate(self):
        toolchain = CMakeToolchain(self)
        for option in ("TESTS", "BENCH", "GALLERY"):
            toolchain.cache_variables[f"UMBRA_BUILD_{option}"] = False
        toolchain.cache_variables["UMBRA_WARNINGS_ARE_ERRORS"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build(target="umbra_installed")

    def package(self):
        CMake(self).install()

    def package_info(self):
        # The installed package of CMake says all that a host needs.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs.append(os.path.join("lib", "cmake", "umbra"))
