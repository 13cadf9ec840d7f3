# Windows programs look for their DLLs beside themselves, so everything that runs
# goes into one folder of the build tree, the compiler's own DLLs included. That
# folder can be taken to a Windows machine as it is.

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

set(TOUCHSTONE2_RUNTIME_DLLS "")
if(MINGW)
  foreach(dll IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${dll}"
      OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${file}")  # the compiler repeats a name that it does not know
      message(FATAL_ERROR "${CMAKE_CXX_COMPILER} has no ${dll}")
    endif()
    cmake_path(NORMAL_PATH file)
    list(APPEND TOUCHSTONE2_RUNTIME_DLLS "${file}")
  endforeach()
  file(COPY ${TOUCHSTONE2_RUNTIME_DLLS} DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
endif()
