# shellcheck shell=bash disable=SC2034
# Sourced by tests of a build, which is for one of two architectures and of one of two flavours.

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

# Sets what differs between the flavours: $letter, how the names of the libraries end, and $suffix, how
# those of the targets and of pkg-config's packages end.
read_flavour() {
    letter=
    suffix=
    if grep -qx 'UMBRA_UNICODE:BOOL=ON' "$1/CMakeCache.txt"; then
        letter=u
        suffix=-unicode
    fi
}
