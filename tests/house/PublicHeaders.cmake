# Every public header compiles when it is the first and only include: one source for each, in one object library that
# only this case builds.
# What lies below the face of the object store, of the parser or of images is their own.
file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/tarnmodel/*.h")
list(FILTER headers EXCLUDE REGEX "/(coredata|corvel|imaging)/[^/]+/")
list(FILTER headers EXCLUDE REGEX "Internal\\.h$")

set(sources "")
foreach(header IN LISTS headers)
  string(MAKE_C_IDENTIFIER "${header}" name)
  set(source "${CMAKE_CURRENT_BINARY_DIR}/headers/${name}.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"\n#include \"@header@\" // and once more\n" @ONLY)
  list(APPEND sources "${source}")
endforeach()

add_library(house_public_headers OBJECT EXCLUDE_FROM_ALL ${sources})
# Headers alone, without the include folders of the libraries that the sources use.
target_include_directories(house_public_headers PRIVATE
  "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/generated")
target_link_libraries(house_public_headers PRIVATE tarn_build_flags)
target_compile_options(house_public_headers PRIVATE -O0 -g0)
# Some headers are generated: all by one command, so one stands for all.
set_source_files_properties(${sources} PROPERTIES OBJECT_DEPENDS "${PROJECT_BINARY_DIR}/generated/tarnmodel/model/_OVNote.h")

house_case(EveryPublicHeaderCompilesAlone TIMEOUT 900 LABELS slow
  COMMAND "${CMAKE_COMMAND}" --build "${PROJECT_BINARY_DIR}" --target house_public_headers)
set_tests_properties("house/EveryPublicHeaderCompilesAlone" PROPERTIES RESOURCE_LOCK build_folder)
