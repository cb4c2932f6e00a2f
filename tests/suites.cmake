# One test of ctest a suite of a test program: a process for every single test costs more than the tests, above all
# under the sanitizers, and every suite holds in one process. What fails is named by the suite's own output.
#
#   murvane_suites(PROGRAM [ENVIRONMENT])
#
# Called as a script, after the program was built, this file writes the tests of `programma` to `uit`.
if(CMAKE_SCRIPT_MODE_FILE)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env ${omgeving} ${programma} --gtest_list_tests
                  OUTPUT_VARIABLE lijst COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "(^|\n)[A-Za-z_][^ \n]*\\." suites "${lijst}")
  list(LENGTH suites aantal)
  if(aantal EQUAL 0)
    message(FATAL_ERROR "${programma} tells no tests:\n${lijst}")
  endif()
  set(inhoud "")
  foreach(suite IN LISTS suites)
    string(REGEX REPLACE "^\n|\\.$" "" suite "${suite}")
    string(APPEND inhoud "add_test([=[${suite}]=] [=[${programma}]=] [=[--gtest_filter=${suite}.*]=])\n"
                         "set_tests_properties([=[${suite}]=] PROPERTIES WORKING_DIRECTORY [=[${map}]=]"
                         " ENVIRONMENT [=[${omgeving}]=])\n")
  endforeach()
  file(WRITE ${uit} "${inhoud}")
  return()
endif()

set(MURVANE_SUITES ${CMAKE_CURRENT_LIST_FILE})
function(murvane_suites doel)
  set(uit ${CMAKE_CURRENT_BINARY_DIR}/${doel}-suites.cmake)
  if(NOT EXISTS ${uit})
    file(WRITE ${uit} "add_test(${doel}-is-niet-gebouwd ${doel}-is-niet-gebouwd)\n")
  endif()
  add_custom_command(TARGET ${doel} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -D programma=$<TARGET_FILE:${doel}> -D uit=${uit} -D map=${CMAKE_CURRENT_BINARY_DIR}
            -D "omgeving=${ARGN}" -P ${MURVANE_SUITES}
    BYPRODUCTS ${uit}
    VERBATIM)
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${uit})
endfunction()
