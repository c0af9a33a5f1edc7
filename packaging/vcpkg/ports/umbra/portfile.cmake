# An overlay port of the checkout that it lies in: nothing is fetched.
get_filename_component(SOURCE_PATH ${CMAKE_CURRENT_LIST_DIR}/../../../.. ABSOLUTE)

vcpkg_cmake_configure(
  SOURCE_PATH ${SOURCE_PATH}
  OPTIONS -DUMBRA_BUILD_TESTS=OFF -DUMBRA_BUILD_BENCH=OFF -DUMBRA_BUILD_GALLERY=OFF
    -DUMBRA_WARNINGS_ARE_ERRORS=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/umbra)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE ${CURRENT_PACKAGES_DIR}/debug/include ${CURRENT_PACKAGES_DIR}/debug/share)
vcpkg_install_copyright(FILE_LIST ${SOURCE_PATH}/LICENSE)
