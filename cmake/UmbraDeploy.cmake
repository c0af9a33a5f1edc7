# umbra_deploy(TARGET): puts what a program needs to run beside it whenever it is built: the DLLs that
# it links and the toolkit's images. The same for an installed Umbra and for one in the same build.
set_property(GLOBAL PROPERTY UMBRA_IMAGE_DIR ${UMBRA_IMAGE_DIR})

function(umbra_deploy target)
  get_property(images GLOBAL PROPERTY UMBRA_IMAGE_DIR)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different
      $<TARGET_RUNTIME_DLLS:${target}> $<TARGET_FILE_DIR:${target}>
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${images}/images $<TARGET_FILE_DIR:${target}>/images
    COMMAND_EXPAND_LISTS VERBATIM)
endfunction()
