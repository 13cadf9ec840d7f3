# What cpack makes: an archive with everything and, with TOUCHSTONE2_DEBIAN, three Debian
# packages instead. scripts/package.sh makes them all.

set(CPACK_PACKAGE_VENDOR "touchstone2 developers")
set(CPACK_PACKAGE_CONTACT "touchstone2 developers <touchstone2@localhost>")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_THREADS 0)
# Whatever the umask of whoever packs:
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

if(TOUCHSTONE2_DEBIAN)
  touchstone2_describe_debian_packages()
  set(CPACK_GENERATOR DEB)
else()
  set(CPACK_GENERATOR TGZ)
endif()
include(CPack)
