# Runs a program and compares what it prints, line for line, with a file.
# usage: cmake -DCOMMAND=[emulator;]program -DEXPECTED=file -P CompareOutput.cmake
execute_process(COMMAND ${COMMAND} OUTPUT_VARIABLE printed RESULT_VARIABLE result)
string(REPLACE "\r\n" "\n" printed "${printed}")
file(READ "${EXPECTED}" expected)
if(NOT result EQUAL 0 OR NOT printed STREQUAL expected)
  message(FATAL_ERROR "ended with ${result} and printed\n${printed}instead of\n${expected}")
endif()
