# The install tree that hosts rely on: bin/, lib/, include/umbra/, lib/cmake/umbra/; for 32-bit hosts
# beside it bin32/, lib32/, lib/cmake/umbra-x86/ and the same include/umbra/.
include(CMakePackageConfigHelpers)

set(UMBRA_EXPORTED umbra)
if(NOT UMBRA_NATIVE_MFC)
  list(APPEND UMBRA_EXPORTED umbra_mfc)
endif()
if(TARGET umbra_testing)
  list(APPEND UMBRA_EXPORTED umbra_testing)
endif()

# The flavours share one place, and each has a file of its own there.
set(UMBRA_EXPORT umbraTargets)
if(UMBRA_UNICODE)
  set(UMBRA_EXPORT umbraUnicodeTargets)
endif()

install(CODE "set(CMAKE_INSTALL_DO_STRIP TRUE)") # Of what follows; see SeparateSymbols.cmake.
install(TARGETS ${UMBRA_EXPORTED} EXPORT ${UMBRA_EXPORT}
  RUNTIME DESTINATION ${UMBRA_BIN}
  ARCHIVE DESTINATION ${UMBRA_LIB}
  LIBRARY DESTINATION ${UMBRA_LIB}
  FILE_SET HEADERS DESTINATION include/umbra
  FILE_SET forwarding DESTINATION include/umbra)

# What scripts/build builds before it installs.
add_custom_target(umbra_installed DEPENDS ${UMBRA_EXPORTED})
if(TARGET umbra_gallery)
  add_dependencies(umbra_installed umbra_gallery)
endif()

install(FILES LICENSE DESTINATION share/umbra)
install(DIRECTORY resources/images DESTINATION share/umbra)
if(NOT UMBRA_NATIVE_MFC)
  install(DIRECTORY mfc/include/ DESTINATION include/umbra/mfc)
endif()
if(TARGET umbra_testing)
  install(DIRECTORY testing DESTINATION include/umbra FILES_MATCHING PATTERN "*.h"
    PATTERN StackArguments.h EXCLUDE)
endif()

install(EXPORT ${UMBRA_EXPORT} NAMESPACE umbra:: DESTINATION ${UMBRA_PACKAGE})
configure_package_config_file(cmake/umbraConfig.cmake.in umbraConfig.cmake
  INSTALL_DESTINATION ${UMBRA_PACKAGE})
write_basic_package_version_file(umbraConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/umbraConfig.cmake
  ${PROJECT_BINARY_DIR}/umbraConfigVersion.cmake DESTINATION ${UMBRA_PACKAGE})
install(FILES ${UMBRA_TERMINATE_HANDLER} DESTINATION share/umbra)
install(FILES cmake/UmbraDeploy.cmake cmake/UmbraShrink.cmake cmake/UmbraHeaders.cmake
  cmake/UmbraResources.cmake
  DESTINATION ${UMBRA_PACKAGE})
# For programs that come as projects of Visual Studio.
install(PROGRAMS tools/umbra-import tools/umbra-rc DESTINATION bin)
install(DIRECTORY tools/umbra_tools DESTINATION share/umbra/tools FILES_MATCHING PATTERN "*.py")
# For hosts that are cross-compiled, too.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  install(FILES cmake/mingw-w64-i686.cmake DESTINATION ${UMBRA_PACKAGE})
else()
  install(FILES cmake/mingw-w64-x86_64.cmake cmake/mingw-w64-x86_64-clang.cmake
    DESTINATION ${UMBRA_PACKAGE})
endif()

# For builds without CMake.
if(NOT UMBRA_NATIVE_MFC)
  list(JOIN UMBRA_SHARED_UNWINDING " " UMBRA_PLAIN_LINK_OPTIONS)
  string(PREPEND UMBRA_PLAIN_LINK_OPTIONS "-Wl,-u,${UMBRA_WINMAIN} ")
  string(STRIP "${UMBRA_PLAIN_LINK_OPTIONS}" UMBRA_PLAIN_LINK_OPTIONS)
  set(UMBRA_PC_FLAGS -DUMBRA_NARROW)
  if(UMBRA_UNICODE)
    set(UMBRA_PC_FLAGS "-DUMBRA_UNICODE -DUNICODE -D_UNICODE")
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    string(APPEND UMBRA_PC_FLAGS " -Wconditionally-supported -Wno-error=conditionally-supported") # As for those who build with CMake.
  endif()
  foreach(package umbra umbra-mfc)
    set(file ${package}${UMBRA_TARGET_SUFFIX}.pc)
    configure_file(cmake/${package}.pc.in ${file} @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${file} DESTINATION ${UMBRA_LIB}/pkgconfig)
  endforeach()
endif()

# Archives; scripts/package makes them.
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_VENDOR Umbra)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_SYSTEM_NAME win64)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(CPACK_SYSTEM_NAME win32)
endif()
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_COMPONENTS_ALL Unspecified)
include(CPack)
