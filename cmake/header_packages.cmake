# A build for another machine may use packages of this one when they are headers
# only. Their folder is /usr/include, though, where this machine's C library lies,
# too. So each is linked into a folder of its own, and a package file beside it
# makes find_package(<name>) find it there.
#
#   touchstone2_link_header_package(<name> <imported target> <folder of headers>)

function(touchstone2_link_header_package name target folder)
  set(place "${PROJECT_BINARY_DIR}/header_packages")
  find_path(${name}_HOST_INCLUDE "${folder}" PATHS /usr/include /usr/local/include
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  if(NOT ${name}_HOST_INCLUDE)
    return()  # find_package says so to whoever needs it
  endif()
  file(MAKE_DIRECTORY "${place}/${name}/include")
  file(CREATE_LINK "${${name}_HOST_INCLUDE}/${folder}" "${place}/${name}/include/${folder}"
    SYMBOLIC)
  file(WRITE "${place}/${name}/${name}Config.cmake"
"if(NOT TARGET ${target})
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} INTERFACE \"\${CMAKE_CURRENT_LIST_DIR}/include\")
endif()
")
  set(${name}_DIR "${place}/${name}" CACHE PATH "Where ${name} is found")
endfunction()

touchstone2_link_header_package(CLI11 CLI11::CLI11 CLI)
touchstone2_link_header_package(nlohmann_json nlohmann_json::nlohmann_json nlohmann)
