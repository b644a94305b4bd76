#include "tarnmodel/platform/coredata/sqlite/SQLText.h"

#include "tarnmodel/platform/coredata/sqlite/RowTextTests.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteFunctions.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <fmt/format.h>

#include <algorithm>

namespace tarn {

std::string SQLText::bind(SQLBinding binding)
{
    bindings.push_back(std::move(binding));
    return "?" + std::to_string(bindings.size());
}

void bindAll(SQLiteStatement& statement, const std::vector<SQLBinding>& bindings)
{
    // Arguments of conditions that came out constant are named nowhere; behind the last one that is, they have no
    // place.
    const auto comparesFolded = [](const SQLBinding& binding) {
        const auto* test = std::get_if<SQLStringTest>(&binding);
        return test && test->test->comparesFolded();
    };
    const bool hasMany = std::count_if(bindings.begin(), bindings.end(), comparesFolded) > 1;
    const std::size_t count = std::min(bindings.size(), static_cast<std::size_t>(statement.parameterCount()));
    for (std::size_t i = 0; i < count; ++i) {
        const int parameter = static_cast<int>(i) + 1;
        std::visit(
            Overloaded{
                [&](std::int64_t value) { statement.bindInteger(parameter, value); },
                [&](double value) { statement.bindDouble(parameter, value); },
                [&](const std::string& text) { statement.bindText(parameter, text); },
                [&](const NSData& data) { statement.bindBlob(parameter, data.text()); },
                [&](const SQLStringTest& test) {
                    statement.bindPointer(parameter, test.test.get(),
                        hasMany && test.test->comparesFolded() ? oneOfManyTestsPointerType : stringTestPointerType);
                },
                [&](const std::shared_ptr<const Value::Array>& list) {
                    statement.bindPointer(parameter, list.get(), valueListPointerType);
                },
                [&](const std::span<const std::int64_t>& keys) {
                    statement.bindPointer(parameter, &keys, keyListPointerType);
                },
                [&](const PrimaryKeySetPtr& keys) { statement.bindPointer(parameter, keys.get(), keySetPointerType); },
                [&](const SQLKeyList& list) {
                    statement.bindPointer(parameter, &list.keys->keys(), keyListPointerType);
                },
                [&](const std::shared_ptr<RowTextTests>& tests) {
                    statement.bindPointer(parameter, tests.get(), rowTextTestsPointerType);
                },
            },
            bindings[i]);
    }
}

std::string describeBinding(const SQLBinding& binding)
{
    return std::visit(
        Overloaded{
            [](std::int64_t value) { return std::to_string(value); },
            [](double value) { return fmt::format("{}", value); },
            [](const std::string& text) { return '"' + text + '"'; },
            [](const NSData& data) { return fmt::format("<{} bytes>", data.length()); },
            [](const SQLStringTest& test) { return test.description; },
            [](const std::shared_ptr<const Value::Array>& list) { return fmt::format("<{} values>", list->size()); },
            [](const std::span<const std::int64_t>& keys) { return fmt::format("<{} keys>", keys.size()); },
            [](const PrimaryKeySetPtr& keys) { return fmt::format("<{} keys>", keys->size()); },
            [](const SQLKeyList& list) { return fmt::format("<{} keys>", list.keys->size()); },
            [](const std::shared_ptr<RowTextTests>& tests) { return tests->description(); },
        },
        binding);
}

std::string explainedStatement(SQLiteConnection& connection, const SQLText& text)
{
    std::string explained = text.sql + "\n";
    for (std::size_t i = 0; i < text.bindings.size(); ++i)
        explained += "?" + std::to_string(i + 1) + " = " + describeBinding(text.bindings[i]) + "\n";
    SQLiteStatement statement = connection.prepare("EXPLAIN QUERY PLAN " + text.sql);
    while (statement.step())
        explained += "plan: " + std::string(statement.bytes(3)) + "\n";
    return explained;
}

} // namespace tarn
