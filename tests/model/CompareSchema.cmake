# Fails when `document` is not what `generator` writes from `model`.
get_filename_component(folder "${scratch}" DIRECTORY)
file(MAKE_DIRECTORY "${folder}")
execute_process(COMMAND "${generator}" "${model}" "${scratch}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${scratch}" "${document}" RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "${document} is out of date; build the target schema_document")
endif()
