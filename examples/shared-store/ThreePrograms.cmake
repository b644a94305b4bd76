# An application and an extension that run at the same time on an empty folder, and then a widget.
file(REMOVE_RECURSE "${folder}")
file(MAKE_DIRECTORY "${folder}")

execute_process(COMMAND "${program}" shared extension COMMAND "${program}" shared application
  WORKING_DIRECTORY "${folder}" RESULTS_VARIABLE results OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT results STREQUAL "0;0" OR NOT output STREQUAL "the note ends now with: - [ ] plums\n")
  message(FATAL_ERROR "extension and application ended with ${results} and printed:\n${output}${errors}")
endif()

execute_process(COMMAND "${program}" shared widget WORKING_DIRECTORY "${folder}"
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT result EQUAL 0 OR NOT output STREQUAL "Groceries: 1 of 2 to be done\n")
  message(FATAL_ERROR "the widget ended with ${result} and printed:\n${output}${errors}")
endif()

# Who waits for what never comes says so; who cannot open the store as well.
execute_process(COMMAND "${program}" empty widget WORKING_DIRECTORY "${folder}" RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(NOT result EQUAL 1)
  message(FATAL_ERROR "a widget without a note ended with ${result}")
endif()
file(WRITE "${folder}/broken/Application Data/database.sqlite" "this is no store, and long enough to be seen as none")
execute_process(COMMAND "${program}" broken extension WORKING_DIRECTORY "${folder}" RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(NOT result EQUAL 3)
  message(FATAL_ERROR "an extension on a file that is no store ended with ${result}")
endif()
