#pragma once

#include "tarnmodel/platform/coredata/sqlite/PrimaryKeySet.h"
#include "tarnmodel/platform/foundation/values/Value.h"
#include "tarnmodel/platform/predicate/StringTest.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace tarn {

class RowTextTests;
class SQLiteConnection;
class SQLiteStatement;

/// A string test as an argument of `string_test`.
struct SQLStringTest {
    std::shared_ptr<const StringTest> test;
    std::string description; ///< for people: `CONTAINS[cd] "pears"`
};

/// Keys as an argument of `value_list`, where `SQLBinding` has them for `key_in`.
struct SQLKeyList {
    PrimaryKeySetPtr keys;
};

/// One argument of a statement: a scalar, a string test, tests for `texts_hold`, keys for `key_in`, or a list for
/// `value_list`.
using SQLBinding
    = std::variant<std::int64_t, double, std::string, NSData, SQLStringTest, std::shared_ptr<const Value::Array>,
        std::span<const std::int64_t>, PrimaryKeySetPtr, SQLKeyList, std::shared_ptr<RowTextTests>>;

/// A statement and its arguments: `?1` is the first one.
struct SQLText {
    std::string sql;
    std::vector<SQLBinding> bindings;

    /// Adds an argument; the text that stands for it.
    std::string bind(SQLBinding binding);
};

/// Hands the arguments to a prepared statement; they must outlive its walk. Arguments that the text does not name
/// (those of a condition that was folded away) are passed over.
void bindAll(SQLiteStatement& statement, const std::vector<SQLBinding>& bindings);
/// An argument as people read it.
std::string describeBinding(const SQLBinding& binding);
/// A statement as people read it: text, arguments, and the way that SQLite goes, a line for each.
std::string explainedStatement(SQLiteConnection& connection, const SQLText& text);

} // namespace tarn
