# Configures, builds and runs the consumer called `kind`. An installed copy is made afresh for the one that needs it.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command}\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE "${folder}/prefix" "${folder}/build" "${folder}/run")
set(arguments -G Ninja -S "${CMAKE_CURRENT_LIST_DIR}/${kind}" -B "${folder}/build"
  "-DCMAKE_CXX_COMPILER=${compiler}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${launcher}"
  # Whether it builds and runs is asked, not how fast it is: nothing is optimised.
  "-DCMAKE_BUILD_TYPE=Debug" "-DCMAKE_CXX_FLAGS_DEBUG=-O0")
if(kind STREQUAL "FindPackage")
  run("${CMAKE_COMMAND}" --install "${binary}" --prefix "${folder}/prefix")
  list(APPEND arguments "-DCMAKE_PREFIX_PATH=${folder}/prefix" "-DCMAKE_INSTALL_PREFIX=${folder}/prefix")
else()
  list(APPEND arguments "-DTARNMODEL_SOURCE=${source}" "-DTARN_PRECOMPILED_HEADERS=ON")
endif()
run("${CMAKE_COMMAND}" ${arguments})
run("${CMAKE_COMMAND}" --build "${folder}/build" --target consumer)
set(program "${folder}/build/consumer")
if(kind STREQUAL "FindPackage")
  # Installed beside the library, it finds the model there and not in the sources.
  run("${CMAKE_COMMAND}" --install "${folder}/build")
  set(program "${folder}/prefix/bin/consumer")
endif()

file(MAKE_DIRECTORY "${folder}/run")
foreach(expected "1 note" "2 notes")
  execute_process(COMMAND "${program}" WORKING_DIRECTORY "${folder}/run"
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0 OR NOT output MATCHES "^${expected}, the last one: Pears\n")
    message(FATAL_ERROR "The consumer ended with ${result}, wanted '${expected}':\n${output}${errors}")
  endif()
endforeach()
if(kind STREQUAL "FindPackage" AND NOT output MATCHES "model: ${folder}/prefix/share/tarnmodel/")
  message(FATAL_ERROR "The installed copy reads its model from elsewhere:\n${output}")
endif()
