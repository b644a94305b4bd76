# One folder is one room is one target.

add_library(tarn_build_flags INTERFACE)
target_compile_features(tarn_build_flags INTERFACE cxx_std_20)
target_compile_options(tarn_build_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wcast-qual)
# GCC 12 sees overlaps in the concatenation of strings where there are none, once it optimises.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tarn_build_flags INTERFACE -Wno-restrict)
endif()
if(TARN_WARNINGS_AS_ERRORS)
  target_compile_options(tarn_build_flags INTERFACE -Werror)
endif()
if(TARN_SANITIZE)
  target_compile_options(tarn_build_flags INTERFACE
    -fsanitize=${TARN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(tarn_build_flags INTERFACE -fsanitize=${TARN_SANITIZE})
  # Between its own checks GCC loses sight of what is initialised.
  target_compile_options(tarn_build_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
if(TARN_COVERAGE)
  target_compile_options(tarn_build_flags INTERFACE --coverage)
  target_link_options(tarn_build_flags INTERFACE --coverage)
endif()

# The standard headers that nearly every source reads are read once for all rooms. Rooms that stand alone (releases, and
# the test of public headers) go without, so that a missing #include does not stay hidden.
set(TARN_PRECOMPILED_STANDARD_HEADERS
  <algorithm> <array> <chrono> <cstddef> <cstdint> <filesystem> <functional> <map> <memory> <mutex> <optional> <set> <span>
  <string> <string_view> <unordered_map> <unordered_set> <utility> <variant> <vector>)

# tarn_precompile(<name> [EXECUTABLE] [LINK <targets>] HEADERS <headers>)
#
# Makes <name>, whose headers targets of the same kind (libraries, or programs with EXECUTABLE) take by
# tarn_use_precompiled(): position-independent code of the two kinds differs, so that they cannot share.
function(tarn_precompile name)
  cmake_parse_arguments(PRECOMPILE "EXECUTABLE" "" "LINK;HEADERS" ${ARGN})
  if(NOT TARN_PRECOMPILED_HEADERS)
    return()
  endif()
  set(source "${PROJECT_BINARY_DIR}/precompiled/${name}.cpp")
  if(PRECOMPILE_EXECUTABLE)
    file(CONFIGURE OUTPUT "${source}" CONTENT "int main() {}\n")
    add_executable(${name} EXCLUDE_FROM_ALL "${source}")
  else()
    file(CONFIGURE OUTPUT "${source}" CONTENT "// Here for its headers alone.\n")
    add_library(${name} OBJECT EXCLUDE_FROM_ALL "${source}")
  endif()
  target_link_libraries(${name} PRIVATE tarn_build_flags ${PRECOMPILE_LINK})
  target_precompile_headers(${name} PRIVATE ${PRECOMPILE_HEADERS})
endfunction()

# tarn_use_precompiled(<target> <name>): nothing happens where <name> was not made.
function(tarn_use_precompiled target name)
  if(TARGET ${name})
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()

tarn_precompile(tarn_precompiled HEADERS ${TARN_PRECOMPILED_STANDARD_HEADERS})

# tarn_group_by_folder(<sources>)
#
# Where several sources are compiled as one (CMAKE_UNITY_BUILD), these are eight of one folder: what sources of two
# folders keep to themselves may have one name.
function(tarn_group_by_folder)
  foreach(source IN LISTS ARGN)
    file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}" "${source}")
    get_filename_component(folder "${folder}" DIRECTORY)
    string(MAKE_C_IDENTIFIER "${folder}" group)
    if(source MATCHES "\\.cpp$")
      math(EXPR number_${group} "${number_${group}} + 1")
      math(EXPR part "(${number_${group}} - 1) / 8")
      set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${group}_${part}")
    endif()
  endforeach()
endfunction()

# tarn_room(<target> [OBJECT] [PUBLIC <targets>] [PRIVATE <targets>])
#
# Makes a library of all sources of the current folder and of the rooms in it. An OBJECT room becomes part of the
# TarnModel library.
function(tarn_room target)
  cmake_parse_arguments(ROOM "OBJECT" "" "PUBLIC;PRIVATE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  if(ROOM_OBJECT)
    add_library(${target} OBJECT ${sources})
  else()
    add_library(${target} STATIC ${sources})
  endif()
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX UNITY_BUILD_MODE GROUP)
  tarn_group_by_folder(${sources})
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>)
  # Libraries of headers alone matter while a room is built, not to those who link it.
  list(TRANSFORM ROOM_PRIVATE REPLACE "^(nlohmann_json::nlohmann_json)$" "$<BUILD_INTERFACE:\\1>")
  target_link_libraries(${target}
    PUBLIC ${ROOM_PUBLIC}
    PRIVATE ${ROOM_PRIVATE} $<BUILD_INTERFACE:tarn_build_flags>)
  tarn_use_precompiled(${target} tarn_precompiled)
endfunction()
