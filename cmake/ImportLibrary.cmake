# umbra_find_import_library(NAME RESULT): sets RESULT to the compiler's own import library of that system
# DLL, as a path.
function(umbra_find_import_library name result)
  set(target) # Some compilers serve several.
  if(CMAKE_CXX_COMPILER_TARGET)
    set(target --target=${CMAKE_CXX_COMPILER_TARGET})
  endif()
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} ${target} -print-file-name=lib${name}.a
    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(${result} ${path} PARENT_SCOPE)
endfunction()
