# Cross compilation from Linux to 64-bit Windows with clang, against the headers and libraries of the
# MinGW-w64 GCC with POSIX threads. Debian's clang does not find them on its own.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-x86_64.cmake)

execute_process(COMMAND x86_64-w64-mingw32-g++-posix -print-libgcc-file-name
  OUTPUT_VARIABLE UMBRA_GCC_FOLDER OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
cmake_path(GET UMBRA_GCC_FOLDER PARENT_PATH UMBRA_GCC_FOLDER)
set(UMBRA_GCC_HEADERS ${UMBRA_GCC_FOLDER}/include/c++)

# LLVM's makes no delayed import libraries, and its others do not read what this linker writes.
set(CMAKE_DLLTOOL x86_64-w64-mingw32-dlltool CACHE STRING "The librarian")
set(CMAKE_OBJCOPY x86_64-w64-mingw32-objcopy CACHE STRING "What takes symbols out")
set(CMAKE_STRIP x86_64-w64-mingw32-strip CACHE STRING "What drops symbols")

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
# Linking sees these flags, too, and has no use for them.
set(CMAKE_CXX_FLAGS_INIT "-Wno-unused-command-line-argument -nostdinc++ \
-isystem ${UMBRA_GCC_HEADERS} -isystem ${UMBRA_GCC_HEADERS}/x86_64-w64-mingw32 \
-isystem ${UMBRA_GCC_HEADERS}/backward")
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-B${UMBRA_GCC_FOLDER} -L${UMBRA_GCC_FOLDER}")
endforeach()
# The threads are a library of their own, which the C++ library needs and clang does not name.
set(CMAKE_CXX_STANDARD_LIBRARIES "-Wl,--start-group -lstdc++ -lgcc -lgcc_eh -lpthread -lmingw32 \
-lmingwex -lmsvcrt -lkernel32 -Wl,--end-group -lkernel32 -luser32 -lgdi32 -lwinspool -lshell32 \
-lole32 -loleaut32 -luuid -lcomdlg32 -ladvapi32" CACHE STRING "Libraries of every program")
