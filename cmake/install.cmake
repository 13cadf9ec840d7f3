# Everything that "cmake --install" puts down. The tree may be moved afterwards:
# nothing in it holds the prefix.

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/touchstone2")

install(TARGETS touchstone2 EXPORT touchstone2_targets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
# include/touchstone2 is installed as it stands; private headers lie in src.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/touchstone2"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h")

install(EXPORT touchstone2_targets
  NAMESPACE touchstone2::
  FILE touchstone2-targets.cmake
  DESTINATION "${package_dir}")
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
  DESTINATION "${package_dir}")

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
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

if(TARGET touchstone2_tool)
  # The tool looks for the library beside itself, wherever the prefix goes.
  file(RELATIVE_PATH bin_to_lib "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  if(APPLE)
    set(tool_rpath "@loader_path/${bin_to_lib}")
  else()
    set(tool_rpath "$ORIGIN/${bin_to_lib}")
  endif()
  set_target_properties(touchstone2_tool PROPERTIES INSTALL_RPATH "${tool_rpath}")
  install(TARGETS touchstone2_tool RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

# Files as they are committed: a build for another machine could not run the tool to make them.
if(TARGET touchstone2_tool AND UNIX)
  set(TOUCHSTONE2_ZSH_COMPLETIONS "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" CACHE STRING
      "Where the completion for zsh is installed")
  mark_as_advanced(TOUCHSTONE2_ZSH_COMPLETIONS)
  set(completions "${PROJECT_SOURCE_DIR}/tools/touchstone2/completions")
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/tools/touchstone2/manual/"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
    FILES_MATCHING PATTERN "*.1")
  install(FILES "${completions}/touchstone2"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${completions}/_touchstone2"
    DESTINATION "${TOUCHSTONE2_ZSH_COMPLETIONS}")
  install(FILES "${completions}/touchstone2.fish"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endif()
