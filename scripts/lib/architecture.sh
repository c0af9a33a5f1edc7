# shellcheck shell=bash disable=SC2034
# Sourced by tests of a build, which is for one of two architectures.

# Sets what differs between them: $tools, how the names of its compiler's programs begin; $toolchain,
# the name of its toolchain file; and $bin, $lib and $package, where an installation has its libraries
# and its CMake package.
read_architecture() {
    if grep -q '^CMAKE_TOOLCHAIN_FILE:.*/mingw-w64-i686.cmake$' "$1/CMakeCache.txt"; then
        tools=i686-w64-mingw32
        toolchain=mingw-w64-i686
        bin=bin32
        lib=lib32
        package=lib/cmake/umbra-x86
    else
        tools=x86_64-w64-mingw32
        toolchain=mingw-w64-x86_64
        bin=bin
        lib=lib
        package=lib/cmake/umbra
    fi
}
