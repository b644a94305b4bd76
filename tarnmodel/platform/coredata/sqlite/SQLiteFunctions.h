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
/// - `folded_test(test, folded)`: the same for a text that is folded already.
/// - `texts_hold(tests, key, condition..., value...)`: 1 when the `RowTextTests` bound to `tests` hold for the row with
///   that key, else 0. They say which conditions and values they want to be told, and read the row's other texts.
/// - `key_in(keys, key)`: 1 when the `PrimaryKeySet` bound to `keys` has the key, else 0; 0 for NULL.
/// - `value_list(list)`: a table of one column, "value", over a bound `Value::Array` or span of keys.
/// - collation `localized_standard`: the order of `localizedStandardCompare`.
void registerSQLiteFunctions(SQLiteConnection& connection);

/// Names under which objects are bound for these functions.
inline constexpr const char* stringTestPointerType = "tarn string test"; ///< const StringTest*
/// The same, of several in one statement: what they fold is kept for the next.
inline constexpr const char* oneOfManyTestsPointerType = "tarn string test of many";
inline constexpr const char* rowTextTestsPointerType = "tarn row text tests"; ///< RowTextTests*
inline constexpr const char* keySetPointerType = "tarn key set";              ///< const PrimaryKeySet*
inline constexpr const char* valueListPointerType = "tarn values";            ///< const Value::Array*
inline constexpr const char* keyListPointerType = "tarn keys";                ///< const std::span<const std::int64_t>*

} // namespace tarn
