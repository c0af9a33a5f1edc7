# umbra_add_resources(TARGET SCRIPT...): resource scripts as Visual Studio writes them become a part of
# a program. umbra-rc prepares each for windres: encodings, slashes, the case of file names, raw data;
# what a script includes and the pictures that it names are dependencies.
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH UMBRA_RC)
if(EXISTS ${UMBRA_RC}/tools/umbra-rc) # The sources.
  set(UMBRA_RC ${UMBRA_RC}/tools/umbra-rc)
else() # Installed: lib/cmake/umbra.
  cmake_path(SET UMBRA_RC NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../../bin/umbra-rc)
endif()
set_property(GLOBAL PROPERTY UMBRA_RC ${UMBRA_RC})

function(umbra_add_resources target)
  if(MSVC) # Its resource compiler takes them as they are.
    target_sources(${target} PRIVATE ${ARGN})
    return()
  endif()
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  get_property(umbra_rc GLOBAL PROPERTY UMBRA_RC)
  set(folders $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
  foreach(script IN LISTS ARGN)
    cmake_path(ABSOLUTE_PATH script NORMALIZE)
    cmake_path(GET script STEM name)
    get_property(known TARGET ${target} PROPERTY UMBRA_RESOURCES)
    list(LENGTH known number)
    set_property(TARGET ${target} APPEND PROPERTY UMBRA_RESOURCES ${script})
    set(prepared ${CMAKE_CURRENT_BINARY_DIR}/umbra-resources/${target}-${number}/${name}.rc)
    cmake_path(GET prepared PARENT_PATH folder)
    file(MAKE_DIRECTORY ${folder})
    add_custom_command(OUTPUT ${prepared}
      COMMAND ${Python3_EXECUTABLE} ${umbra_rc} ${script} -o ${prepared} --depfile ${prepared}.d
        "$<$<BOOL:${folders}>:-I$<JOIN:${folders},;-I>>"
      DEPENDS ${script} ${umbra_rc} DEPFILE ${prepared}.d
      COMMENT "Preparing ${name}.rc" COMMAND_EXPAND_LISTS VERBATIM)
    target_sources(${target} PRIVATE ${prepared})
  endforeach()
endfunction()
