# Compiles FILE twice: without OPX_WRONG it compiles, with OPX_WRONG it does not, and the compiler says EXPECTED.
# usage: cmake -DCOMPILER=... -DINCLUDES=folder;... -DFILE=... -DEXPECTED=... -P MustNotCompile.cmake
list(TRANSFORM INCLUDES PREPEND "-idirafter")
set(command "${COMPILER}" -std=c++17 -fsyntax-only ${INCLUDES} "${FILE}")

execute_process(COMMAND ${command} RESULT_VARIABLE result ERROR_VARIABLE messages)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${FILE} does not compile without OPX_WRONG either:\n${messages}")
endif()

execute_process(COMMAND ${command} -DOPX_WRONG RESULT_VARIABLE result ERROR_VARIABLE messages)
if(result EQUAL 0)
  message(FATAL_ERROR "${FILE} compiles with OPX_WRONG")
endif()
string(FIND "${messages}" "${EXPECTED}" place)
if(place EQUAL -1)
  message(FATAL_ERROR "${FILE} does not compile with OPX_WRONG, but for another reason than \"${EXPECTED}\":\n${messages}")
endif()
