# Third-party libraries, all from the distribution's packages and hidden behind our own headers.
find_package(Threads REQUIRED)
find_package(SQLite3 3.40 REQUIRED)
find_package(ICU 72 REQUIRED COMPONENTS uc i18n data)
find_package(nlohmann_json 3.11 REQUIRED)
find_package(fmt 9 REQUIRED)
find_path(TARN_ASIO_INCLUDE_DIR asio.hpp REQUIRED)

add_library(tarn_asio INTERFACE)
target_include_directories(tarn_asio SYSTEM INTERFACE "${TARN_ASIO_INCLUDE_DIR}")
target_compile_definitions(tarn_asio INTERFACE ASIO_STANDALONE ASIO_NO_DEPRECATED)
target_link_libraries(tarn_asio INTERFACE Threads::Threads)
if(TARN_SANITIZE MATCHES "thread")
  # The sanitizer does not know fences. Tasks are handed over under locks all the same.
  target_compile_definitions(tarn_asio INTERFACE ASIO_DISABLE_FENCED_BLOCK)
endif()

find_path(TARN_SODIUM_INCLUDE_DIR sodium.h REQUIRED)
find_library(TARN_SODIUM_LIBRARY sodium REQUIRED)
add_library(tarn_sodium INTERFACE)
target_include_directories(tarn_sodium SYSTEM INTERFACE "${TARN_SODIUM_INCLUDE_DIR}")
target_link_libraries(tarn_sodium INTERFACE "${TARN_SODIUM_LIBRARY}")
