# Installs TarnModel.h and every header of ours that it includes, directly or not. Runs at install time, with
# tarn_source_folder, tarn_generated_folder and tarn_header_folder (relative to the prefix) set.
cmake_minimum_required(VERSION 3.25)

set(waiting "tarnmodel/TarnModel.h")
set(seen "")
while(waiting)
  list(POP_FRONT waiting header)
  if(header IN_LIST seen)
    continue()
  endif()
  list(APPEND seen "${header}")

  set(file "${tarn_source_folder}/${header}")
  if(NOT EXISTS "${file}")
    set(file "${tarn_generated_folder}/${header}")
  endif()
  if(NOT EXISTS "${file}")
    message(FATAL_ERROR "A public header includes \"${header}\", which is not there")
  endif()
  if(header MATCHES "Internal\\.h$")
    message(FATAL_ERROR "A public header includes \"${header}\", which is not to be installed")
  endif()

  get_filename_component(place "${header}" DIRECTORY)
  file(INSTALL DESTINATION "${CMAKE_INSTALL_PREFIX}/${tarn_header_folder}/${place}" TYPE FILE FILES "${file}")

  file(STRINGS "${file}" lines REGEX "^[ \t]*#[ \t]*include[ \t]*\"[^\"]+\"")
  foreach(line IN LISTS lines)
    string(REGEX REPLACE "^[^\"]*\"([^\"]+)\".*$" "\\1" included "${line}")
    list(APPEND waiting "${included}")
  endforeach()
endwhile()
