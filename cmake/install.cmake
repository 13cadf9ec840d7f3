# Everything that "cmake --install" puts down, in three components: the library,
# development (what compilers need of it) and the tool. The tree may be moved
# afterwards: nothing in it holds the prefix.

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/touchstone2")

install(TARGETS touchstone2 EXPORT touchstone2_targets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT library
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT library
    NAMELINK_COMPONENT development
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
  INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
# include/touchstone2 is installed as it stands; private headers lie in src.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/touchstone2"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  COMPONENT development
  FILES_MATCHING PATTERN "*.h")

install(EXPORT touchstone2_targets
  NAMESPACE touchstone2::
  FILE touchstone2-targets.cmake
  DESTINATION "${package_dir}"
  COMPONENT development)
configure_package_config_file(
  "${PROJECT_SOURCE_DIR}/cmake/touchstone2-config.cmake.in"
  "${PROJECT_BINARY_DIR}/touchstone2-config.cmake"
  INSTALL_DESTINATION "${package_dir}"
  NO_SET_AND_CHECK_MACRO)
# Before 1.0 a new minor number may break callers.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(compatibility SameMinorVersion)
else()
  set(compatibility SameMajorVersion)
endif()
write_basic_package_version_file(
  "${PROJECT_BINARY_DIR}/touchstone2-config-version.cmake"
  COMPATIBILITY ${compatibility})
install(FILES
  "${PROJECT_BINARY_DIR}/touchstone2-config.cmake"
  "${PROJECT_BINARY_DIR}/touchstone2-config-version.cmake"
  DESTINATION "${package_dir}"
  COMPONENT development)

# pkg-config finds the prefix from where the .pc file lies.
file(RELATIVE_PATH pc_to_prefix
  "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")
file(RELATIVE_PATH pc_libdir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
file(RELATIVE_PATH pc_includedir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
get_target_property(library_type touchstone2 TYPE)
if(library_type STREQUAL "STATIC_LIBRARY")
  set(pc_cflags " -DTOUCHSTONE2_STATIC")
else()
  set(pc_cflags "")
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/touchstone2.pc.in"
               "${PROJECT_BINARY_DIR}/touchstone2.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/touchstone2.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
  COMPONENT development)

if(TARGET touchstone2_tool)
  # The tool looks for the library beside itself, wherever the prefix goes.
  file(RELATIVE_PATH bin_to_lib "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  if(APPLE)
    set(tool_rpath "@loader_path/${bin_to_lib}")
  else()
    set(tool_rpath "$ORIGIN/${bin_to_lib}")
  endif()
  set_target_properties(touchstone2_tool PROPERTIES INSTALL_RPATH "${tool_rpath}")
  install(TARGETS touchstone2_tool
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tool)
endif()

# Files as they are committed: a build for another machine could not run the tool to make them.
if(TARGET touchstone2_tool AND UNIX)
  set(TOUCHSTONE2_ZSH_COMPLETIONS "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" CACHE STRING
      "Where the completion for zsh is installed")
  mark_as_advanced(TOUCHSTONE2_ZSH_COMPLETIONS)
  file(GLOB pages CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tools/touchstone2/manual/*.1")
  if(TOUCHSTONE2_DEBIAN)
    touchstone2_compress(pages)
  endif()
  set(completions "${PROJECT_SOURCE_DIR}/tools/touchstone2/completions")
  install(FILES ${pages}
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tool)
  install(FILES "${completions}/touchstone2"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT tool)
  install(FILES "${completions}/_touchstone2"
    DESTINATION "${TOUCHSTONE2_ZSH_COMPLETIONS}" COMPONENT tool)
  install(FILES "${completions}/touchstone2.fish"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT tool)
endif()
