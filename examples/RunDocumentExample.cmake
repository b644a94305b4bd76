# Runs a document's example in an empty folder: it prints what the document says.
file(READ "${document}" text)
if(NOT text MATCHES "It prints `([^`]+)`")
  message(FATAL_ERROR "${document} does not say what its example prints")
endif()
set(expected "${CMAKE_MATCH_1}")

file(REMOVE_RECURSE "${folder}")
file(MAKE_DIRECTORY "${folder}")
execute_process(COMMAND "${program}" WORKING_DIRECTORY "${folder}"
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT result EQUAL 0 OR NOT output STREQUAL "${expected}\n")
  message(FATAL_ERROR "The example ended with ${result} and printed:\n${output}${errors}\nThe document says:\n${expected}")
endif()
