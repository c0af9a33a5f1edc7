# Compiler settings of the project's own code; not passed on to hosts.
add_library(umbra_options INTERFACE)
if(MSVC)
  target_compile_options(umbra_options INTERFACE /W4)
else()
  target_compile_options(umbra_options INTERFACE -Wall -Wextra -Werror)
  if(UMBRA_UNDEFINED_TRAPS)
    target_compile_options(umbra_options INTERFACE
      -fsanitize=undefined -fsanitize-undefined-trap-on-error -fno-sanitize=null,alignment)
  endif()
endif()
