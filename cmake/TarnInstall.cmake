# What `cmake --install` lays down:
#
#   include/tarnmodel/      the public headers in the folders of their rooms: what TarnModel.h includes, and what that does
#   lib/                    the libraries
#   lib/cmake/TarnModel/    for find_package(TarnModel)
#   share/tarnmodel/        Model.momd, read at run time
#   bin/tarn                where the tools were built
include(CMakePackageConfigHelpers)

set(TARN_INSTALL_LIBRARIES TarnModel tarn_coredata tarn_cloudkit tarn_imaging tarn_predicate tarn_corvel tarn_foundation)
set(TARN_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/TarnModel")

foreach(library IN LISTS TARN_INSTALL_LIBRARIES)
  target_include_directories(${library} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
endforeach()
install(TARGETS ${TARN_INSTALL_LIBRARIES} EXPORT TarnModelTargets
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(EXPORT TarnModelTargets NAMESPACE TarnModel:: DESTINATION "${TARN_PACKAGE_FOLDER}")

configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/TarnModelConfig.cmake.in" "${PROJECT_BINARY_DIR}/TarnModelConfig.cmake"
  INSTALL_DESTINATION "${TARN_PACKAGE_FOLDER}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/TarnModelConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/TarnModelConfig.cmake" "${PROJECT_BINARY_DIR}/TarnModelConfigVersion.cmake"
  DESTINATION "${TARN_PACKAGE_FOLDER}")

install(DIRECTORY "${PROJECT_SOURCE_DIR}/resources/" DESTINATION "${CMAKE_INSTALL_DATADIR}/tarnmodel")
if(TARGET tarn)
  install(TARGETS tarn RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  set(tarn_folder "${PROJECT_SOURCE_DIR}/tools/tarn")
  install(FILES "${tarn_folder}/tarn.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
  install(FILES "${tarn_folder}/completions/tarn.bash" RENAME tarn
    DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
  install(FILES "${tarn_folder}/completions/_tarn" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
  install(FILES "${tarn_folder}/completions/tarn.fish" DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endif()

# Which headers are public is found out while installing, when the generated ones exist.
install(CODE "
  set(tarn_source_folder \"${PROJECT_SOURCE_DIR}\")
  set(tarn_generated_folder \"${PROJECT_BINARY_DIR}/generated\")
  set(tarn_header_folder \"${CMAKE_INSTALL_INCLUDEDIR}\")")
install(SCRIPT "${CMAKE_CURRENT_LIST_DIR}/InstallPublicHeaders.cmake")
