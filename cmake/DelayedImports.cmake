# umbra_delay_imports(TARGET LIBRARY...): the functions of these system libraries are looked up when one
# of them is called first; until then the program neither loads nor waits for them. To be called before
# anything else that brings the libraries into the link.
#
# MinGW's own import libraries name the functions; its librarian makes the delayed ones.
set(UMBRA_DELAYED_FOLDER ${PROJECT_BINARY_DIR}/delayed)

function(umbra_delayed_library library result)
  set(archive ${UMBRA_DELAYED_FOLDER}/lib${library}-delayed.a)
  set(${result} ${archive} PARENT_SCOPE)
  if(EXISTS ${archive})
    return()
  endif()
  umbra_find_import_library(${library} import)
  execute_process(COMMAND ${CMAKE_NM} ${import}
    OUTPUT_VARIABLE symbols ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL " T [A-Za-z0-9_@]+" names "${symbols}")
  list(SORT names)
  list(REMOVE_DUPLICATES names)
  list(TRANSFORM names REPLACE "^ T " "")
  list(JOIN names "\n" names)
  file(WRITE ${UMBRA_DELAYED_FOLDER}/${library}.def "LIBRARY ${library}.dll\nEXPORTS\n${names}\n")
  # Given with its folder, the name of the archive would become part of symbols.
  execute_process(COMMAND ${CMAKE_DLLTOOL} --input-def ${library}.def
    --output-delaylib lib${library}-delayed.a
    WORKING_DIRECTORY ${UMBRA_DELAYED_FOLDER} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(umbra_delay_imports target)
  # What answers for a missing function cannot know how many arguments a 32-bit one takes away.
  if(NOT MINGW OR NOT CMAKE_DLLTOOL OR NOT CMAKE_SIZEOF_VOID_P EQUAL 8)
    return()
  endif()
  foreach(library IN LISTS ARGN)
    umbra_delayed_library(${library} archive)
    target_link_libraries(${target} PRIVATE ${archive})
  endforeach()
  target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/mfc/src/application/DelayedImports.cpp)
endfunction()
