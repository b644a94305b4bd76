# Two devices and a server in an empty folder: what each command prints is what a person would expect.
file(REMOVE_RECURSE "${folder}")
file(MAKE_DIRECTORY "${folder}")

# device(<name> <expected output, lines joined by ;> <command>...)
function(device name expected)
  execute_process(COMMAND "${program}" server "${name}.sqlite" "${name}" ${ARGN} WORKING_DIRECTORY "${folder}"
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  string(REPLACE "\n" ";" output "${output}")
  if(NOT result EQUAL 0 OR NOT output STREQUAL "${expected}")
    message(FATAL_ERROR "${name} ${ARGN}: ended with ${result} and printed\n${output}${errors}\ninstead of\n${expected}")
  endif()
endfunction()

device(desk "" new "# Pears")
device(desk "sent 1, received 0, conflicts 0;" sync)
device(pocket "sent 0, received 1, conflicts 0;" sync)
device(pocket "Pears: 7 bytes;" list)

# One edits, the other hears of it.
device(pocket "" append Pears "ripe")
device(pocket "sent 1, received 0, conflicts 0;" sync)
device(desk "sent 0, received 1, conflicts 0;" sync)
device(desk "Pears: 12 bytes;" list)

# Both edit without knowing of each other: both versions are kept, on both devices.
device(desk "" append Pears "green")
device(pocket "" append Pears "yellow ones")
device(desk "sent 1, received 0, conflicts 0;" sync)
device(pocket "sent 2, received 0, conflicts 1;" sync)
device(desk "sent 0, received 1, conflicts 0;" sync)
foreach(name IN ITEMS desk pocket)
  execute_process(COMMAND "${program}" server "${name}.sqlite" "${name}" list WORKING_DIRECTORY "${folder}" OUTPUT_VARIABLE ${name})
endforeach()
string(REGEX MATCHALL "Pears: (18|24) bytes, conflicted" members "${desk}")
list(LENGTH members count)
if(NOT count EQUAL 2 OR NOT desk STREQUAL pocket)
  message(FATAL_ERROR "both versions on both devices, not\n${desk}and\n${pocket}")
endif()

# A deletion goes round as well, and what is deleted does not come back.
device(desk "" new "# Plums")
device(desk "sent 1, received 0, conflicts 0;" sync)
device(pocket "sent 0, received 1, conflicts 0;" sync)
device(pocket "" delete Plums)
device(pocket "sent 1, received 0, conflicts 0;" sync)
device(desk "sent 0, received 1, conflicts 0;" sync)
execute_process(COMMAND "${program}" server desk.sqlite desk list WORKING_DIRECTORY "${folder}" OUTPUT_VARIABLE notes)
if(notes MATCHES "Plums")
  message(FATAL_ERROR "Plums are still there:\n${notes}")
endif()
