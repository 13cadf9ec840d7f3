# Runs PROGRAM on the file INPUT and compares its standard output with the file EXPECTED.
# Line ends of any system are the same.

execute_process(
  COMMAND ${EMULATOR} "${PROGRAM}" "${INPUT}"
  OUTPUT_VARIABLE found
  RESULT_VARIABLE code)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} has ended with ${code}")
endif()
file(READ "${EXPECTED}" expected)
string(REPLACE "\r\n" "\n" found "${found}")
if(NOT found STREQUAL expected)
  message(FATAL_ERROR "expected:\n${expected}found:\n${found}")
endif()
