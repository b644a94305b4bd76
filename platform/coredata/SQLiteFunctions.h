#pragma once

#include <cstdint>
#include <span>

namespace tarn {

class SQLiteConnection;

/// What our queries call and SQLite does not have. None of it may stand in the schema: any other program must be able
/// to open, check and vacuum a store.
///
/// - `fold(text)`: the folded text; NULL for NULL.
/// - `string_test(test, text)`: 1 when the `StringTest` bound to `test` matches, else 0; 0 for NULL.
/// - `value_list(list)`: a table of one column, "value", over a bound `Value::Array` or span of keys.
/// - collation `localized_standard`: the order of `localizedStandardCompare`.
void registerSQLiteFunctions(SQLiteConnection& connection);

/// Names under which objects are bound for these functions.
inline constexpr const char* stringTestPointerType = "tarn string test"; ///< const StringTest*
inline constexpr const char* valueListPointerType = "tarn values";       ///< const Value::Array*
inline constexpr const char* keyListPointerType = "tarn keys";           ///< const std::span<const std::int64_t>*

} // namespace tarn
