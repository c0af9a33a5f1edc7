# umbra_shrink(TARGET): makes an optimized program about half the size, by 100 KB or more: without
# symbols, and without the run-time's text for exceptions that nobody caught, which windows programs
# have no place to show. For GCC and clang; other compilers' programs stay as they are.
set_property(GLOBAL PROPERTY UMBRA_TERMINATE_HANDLER ${UMBRA_TERMINATE_HANDLER})

function(umbra_shrink target)
  if(NOT MINGW)
    return()
  endif()
  get_property(handler GLOBAL PROPERTY UMBRA_TERMINATE_HANDLER)
  target_sources(${target} PRIVATE ${handler})
  target_link_options(${target} PRIVATE $<$<NOT:$<CONFIG:Debug>>:-s> -Wl,--gc-sections)
endfunction()
