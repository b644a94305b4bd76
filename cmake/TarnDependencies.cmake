# Third-party libraries, all from the distribution's packages and hidden behind our own headers.
find_package(Threads REQUIRED)
find_package(SQLite3 3.40 REQUIRED)
find_package(ICU 72 REQUIRED COMPONENTS uc i18n data)
find_package(nlohmann_json 3.11 REQUIRED)
find_package(fmt 9 REQUIRED)

find_path(TARN_SODIUM_INCLUDE_DIR sodium.h REQUIRED)
find_library(TARN_SODIUM_LIBRARY sodium REQUIRED)
add_library(tarn_sodium INTERFACE)
target_include_directories(tarn_sodium SYSTEM INTERFACE "${TARN_SODIUM_INCLUDE_DIR}")
target_link_libraries(tarn_sodium INTERFACE "${TARN_SODIUM_LIBRARY}")
