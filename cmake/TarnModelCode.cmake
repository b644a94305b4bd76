# tarn_model_code(<variable> MODEL <file> FOLDER <folder>)
#
# Lets modelgen write the generated bases of the record classes; <variable> gets the names of all files it writes.
function(tarn_model_code variable)
  cmake_parse_arguments(CODE "" "MODEL;FOLDER" "" ${ARGN})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${CODE_MODEL}")

  # Comments are ours: JSON has none.
  file(READ "${CODE_MODEL}" model)
  string(REGEX REPLACE "\n[ \t]*//[^\n]*" "\n" model "${model}")
  string(JSON count LENGTH "${model}" entities)
  math(EXPR last "${count} - 1")
  foreach(position RANGE ${last})
    string(JSON name GET "${model}" entities ${position} name)
    list(APPEND names "${name}")
    string(JSON own ERROR_VARIABLE none LENGTH "${model}" entities ${position} relationships)
    string(JSON parent ERROR_VARIABLE none GET "${model}" entities ${position} parent)
    if(own GREATER 0 OR NOT parent MATCHES "NOTFOUND$")
      list(APPEND related "${name}")
    endif()
  endforeach()

  set(files "")
  foreach(name IN LISTS names)
    list(APPEND files
      "${CODE_FOLDER}/_${name}.h" "${CODE_FOLDER}/_${name}.cpp" "${CODE_FOLDER}/${name}ID.h" "${CODE_FOLDER}/${name}Attributes.h")
  endforeach()
  foreach(name IN LISTS related)
    list(APPEND files "${CODE_FOLDER}/${name}Relationships.h")
  endforeach()

  add_custom_command(
    OUTPUT ${files}
    COMMAND modelgen "${CODE_MODEL}" "${CODE_FOLDER}"
    DEPENDS modelgen "${CODE_MODEL}"
    COMMENT "Writing the generated bases of the record classes"
    VERBATIM)
  set(${variable} ${files} PARENT_SCOPE)
endfunction()
