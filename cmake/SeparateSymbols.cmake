# umbra_separate_symbols(TARGET): the symbols of a library stand beside it, in a file whose name it
# knows. What is installed of the library then has none, and is a third of the size; the build's own
# keeps them, for the stacks that tests print.
function(umbra_separate_symbols target)
  if(NOT CMAKE_OBJCOPY OR MSVC)
    return()
  endif()
  set(library $<TARGET_FILE:${target}>)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_OBJCOPY} --only-keep-debug ${library} ${library}.debug
    COMMAND ${CMAKE_OBJCOPY} --add-gnu-debuglink=${library}.debug ${library}
    VERBATIM)
  if(UMBRA_INSTALL)
    install(FILES ${library}.debug DESTINATION ${UMBRA_BIN} COMPONENT debug-symbols)
  endif()
endfunction()
