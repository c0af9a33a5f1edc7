# Both architectures can be installed in one folder: there each has its own place for what it is built of.
# A package's folder begins with its name, and CMake passes over one of the other architecture.
set(UMBRA_BIN bin)
set(UMBRA_LIB lib)
set(UMBRA_PACKAGE lib/cmake/umbra)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(UMBRA_BIN bin32)
  set(UMBRA_LIB lib32)
  set(UMBRA_PACKAGE lib/cmake/umbra-x86)
endif()

# Compiler settings of the project's own code; not passed on to hosts.
option(UMBRA_WARNINGS_ARE_ERRORS "End the build at the first warning" ${PROJECT_IS_TOP_LEVEL})
add_library(umbra_options INTERFACE)
if(MSVC)
  target_compile_options(umbra_options INTERFACE /W4)
else()
  # The Create of a control hides that of all windows on purpose.
  target_compile_options(umbra_options INTERFACE -Wall -Wextra
    $<$<COMPILE_LANGUAGE:CXX>:-Wno-overloaded-virtual>)
  if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
    # Programs call members of NULL objects, and the class library answers.
    target_compile_options(umbra_options INTERFACE -Wno-tautological-undefined-compare)
  endif()
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # The floating-point results of 64-bit code, and its vectors; the system and hosts call with a
    # stack that is aligned to 4 bytes only.
    target_compile_options(umbra_options INTERFACE
      $<$<COMPILE_LANGUAGE:C,CXX>:-msse2 -mfpmath=sse -mstackrealign>)
  endif()
  # Also for sources that include the Windows headers first.
  target_compile_definitions(umbra_options INTERFACE
    WINVER=0x0501 _WIN32_WINNT=0x0501 _WIN32_IE=0x0600)
  if(UMBRA_WARNINGS_ARE_ERRORS)
    target_compile_options(umbra_options INTERFACE -Werror)
  endif()
  if(UMBRA_UNDEFINED_TRAPS)
    target_compile_options(umbra_options INTERFACE
      -fsanitize=undefined -fsanitize-undefined-trap-on-error -fno-sanitize=null,alignment)
  endif()
endif()

# Test programs are built more often than they run, so they are compiled quickly.
add_library(umbra_test_options INTERFACE)
target_link_libraries(umbra_test_options INTERFACE umbra_options)
if(NOT MSVC)
  target_compile_options(umbra_test_options INTERFACE -O1)
endif()
