# The rooms above the object store form one library: they call each other through the record classes.
add_library(TarnModel STATIC
  $<TARGET_OBJECTS:tarn_encryption> $<TARGET_OBJECTS:tarn_model> $<TARGET_OBJECTS:tarn_notes> $<TARGET_OBJECTS:tarn_tags>
  $<TARGET_OBJECTS:tarn_files> $<TARGET_OBJECTS:tarn_sync> $<TARGET_OBJECTS:tarn_search> $<TARGET_OBJECTS:tarn_backup>
  $<TARGET_OBJECTS:tarn_diagnosis> $<TARGET_OBJECTS:tarn_store>)
add_library(TarnModel::TarnModel ALIAS TarnModel)
set_target_properties(TarnModel PROPERTIES LINKER_LANGUAGE CXX)
target_include_directories(TarnModel PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
  $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>)
target_compile_features(TarnModel PUBLIC cxx_std_20)
# What its rooms link privately is named again: objects do not bring it along.
target_link_libraries(TarnModel
  PUBLIC tarn_coredata tarn_cloudkit tarn_corvel tarn_imaging tarn_predicate tarn_foundation nlohmann_json::nlohmann_json
  PRIVATE fmt::fmt ${CMAKE_DL_LIBS} $<BUILD_INTERFACE:tarn_sodium> $<INSTALL_INTERFACE:sodium>
    $<BUILD_INTERFACE:tarn_archive> $<INSTALL_INTERFACE:LibArchive::LibArchive>
    $<BUILD_INTERFACE:tarn_md> $<INSTALL_INTERFACE:md>
    $<BUILD_INTERFACE:tarn_build_flags>)
