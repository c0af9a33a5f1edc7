# umbra_forward_headers(TARGET NAME FILE [NAME FILE...]): where the system tells large letters from
# small ones and / from \, sources of Windows programs find headers by the names that they use: NAME as
# it stands in an #include line, FILE as the file is called, or <file> for one of the system.
function(umbra_forward_headers target)
  if(CMAKE_HOST_WIN32)
    return()
  endif()
  set(root ${CMAKE_CURRENT_BINARY_DIR}/umbra-headers/${target})
  # Names may begin with ../
  set(folder ${root}/1/2/3/4)
  file(MAKE_DIRECTORY ${folder})
  while(ARGN)
    list(POP_FRONT ARGN name file)
    if(NOT file MATCHES "^<.*>$")
      cmake_path(ABSOLUTE_PATH file NORMALIZE)
      set(file "\"${file}\"")
    endif()
    # Not file(WRITE), which takes \ for /. What is there already stays as new as it is.
    execute_process(COMMAND sh -c [=[
      mkdir -p "$(dirname "$2")" && [ "$(cat "$2" 2>/dev/null)" = "#include $1" ] ||
        printf '#include %s\n' "$1" >"$2"]=]
      sh ${file} ${folder}/${name} COMMAND_ERROR_IS_FATAL ANY)
  endwhile()
  target_include_directories(${target} PRIVATE ${folder})
endfunction()
