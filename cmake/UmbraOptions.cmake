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
