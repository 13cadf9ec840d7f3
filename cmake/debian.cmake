# The parts of Debian packages that other installations do not have: a folder
# share/doc/PACKAGE for each, compressed man pages, and the control fields.

# Replaces the files listed in the variable by compressed copies. Without name
# and time inside, so that the same file always gives the same bytes.
function(touchstone2_compress list)
  set(place "${PROJECT_BINARY_DIR}/compressed")
  file(MAKE_DIRECTORY "${place}")
  set(compressed "")
  foreach(file IN LISTS ${list})
    cmake_path(GET file FILENAME name)
    execute_process(COMMAND gzip -9nc "${file}" OUTPUT_FILE "${place}/${name}.gz"
      COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND compressed "${place}/${name}.gz")
  endforeach()
  set(${list} "${compressed}" PARENT_SCOPE)
endfunction()

# The library's package is named after what programs look for, as libtouchstone2.so.0.1,
# so that two of them can be installed side by side.
get_target_property(soversion touchstone2 SOVERSION)
set(debian_library_package "libtouchstone2-${soversion}")
set(debian_development_package "libtouchstone2-dev")
set(debian_tool_package "touchstone2")
set(debian_revision 1)
set(debian_version "${PROJECT_VERSION}-${debian_revision}")

string(TIMESTAMP debian_date "%a, %d %b %Y %H:%M:%S +0000" UTC) # SOURCE_DATE_EPOCH, if set
configure_file("${CMAKE_CURRENT_LIST_DIR}/debian/changelog.in"
               "${PROJECT_BINARY_DIR}/debian/changelog.Debian" @ONLY)
configure_file("${PROJECT_SOURCE_DIR}/CHANGELOG.md"
               "${PROJECT_BINARY_DIR}/debian/changelog" COPYONLY)
set(changelogs
  "${PROJECT_BINARY_DIR}/debian/changelog.Debian" "${PROJECT_BINARY_DIR}/debian/changelog")
touchstone2_compress(changelogs)
foreach(component IN ITEMS library development tool)
  install(FILES "${CMAKE_CURRENT_LIST_DIR}/debian/copyright" ${changelogs}
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${debian_${component}_package}"
    COMPONENT ${component})
endforeach()

# A macro, since CPack reads the variables of the caller.
macro(touchstone2_describe_debian_packages)
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENTS_ALL library development tool)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_RELEASE ${debian_revision})
  set(CPACK_DEBIAN_PACKAGE_SOURCE touchstone2)
  set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own

  # Which packages the programs need, dpkg-shlibdeps finds out; but it cannot
  # know of the library that is being packed.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src")
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

  # The trigger is what Debian wants. CPack would call ldconfig in scripts, unless
  # it is given some; a file that does not exist is given and not packed.
  set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
    "${PROJECT_SOURCE_DIR}/cmake/debian/triggers" no/postinst no/postrm)

  # CPack 3.25 knows no field Multi-Arch. It prints the section as it is, and so
  # the next line of the control file fits into it.
  set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${debian_library_package})
  set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION "libs\nMulti-Arch: same")
  set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
"library for Touchstone files (.sNp, .ts)
touchstone2 reads, validates, holds, transforms and writes files with S-, Y-,
Z-, H- and G-parameters of N-port networks and with two-port noise, in both
generations of the format.
.
This is the shared library that programs need to run.")

  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${debian_development_package})
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel\nMulti-Arch: same")
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${debian_library_package} (= ${debian_version})")
  set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
"library for Touchstone files (.sNp, .ts) - development files
touchstone2 reads, validates, holds, transforms and writes files with S-, Y-,
Z-, H- and G-parameters of N-port networks and with two-port noise, in both
generations of the format.
.
These are the headers, and what CMake and pkg-config look for.")

  set(CPACK_DEBIAN_TOOL_PACKAGE_NAME ${debian_tool_package})
  set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION "electronics\nMulti-Arch: foreign")
  set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${debian_library_package} (>= ${PROJECT_VERSION})")
  set(CPACK_COMPONENT_TOOL_DESCRIPTION
"tool to check, describe and convert Touchstone files (.sNp, .ts)
touchstone2 says which files are valid and why others are not, shows what they
hold, and writes them in either generation of the format, with other port
names, with their ports in another order, or with some of them.")
endmacro()
