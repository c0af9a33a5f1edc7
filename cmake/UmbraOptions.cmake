# Compiler settings of the project's own code; not passed on to hosts.
option(UMBRA_WARNINGS_ARE_ERRORS "End the build at the first warning" ON)
add_library(umbra_options INTERFACE)
if(MSVC)
  target_compile_options(umbra_options INTERFACE /W4)
else()
  target_compile_options(umbra_options INTERFACE -Wall -Wextra)
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
