#include "tarnmodel/platform/coredata/sqlite/SQLiteFunctions.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/PrimaryKeySet.h"
#include "tarnmodel/platform/coredata/sqlite/RowTextTests.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteValueList.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/time/Collation.h"
#include "tarnmodel/platform/predicate/StringTest.h"

#include <cstring>
#include <exception>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace tarn {

namespace {

std::string_view textOf(sqlite3_value* value)
{
    const void* bytes = sqlite3_value_blob(value);
    const int length = sqlite3_value_bytes(value);
    if (!bytes || length <= 0)
        return {};
    return {static_cast<const char*>(bytes), static_cast<std::size_t>(length)};
}

void foldFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
        return;
    try {
        const std::string folded = fold(textOf(arguments[0]));
        sqlite3_result_text64(context, folded.data(), folded.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    } catch (const std::exception& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

/// The last text of a connection with its folded form: several tests of one row fold its text once.
class LastFoldedText {
public:
    std::string_view folded(std::string_view text)
    {
        if (text != text_) {
            text_ = text;
            folded_.clear();
            appendFolded(folded_, text);
        }
        return folded_;
    }

private:
    std::string text_;
    std::string folded_;
};

bool holds(const StringTest& test, bool isOneOfMany, sqlite3_context* context, std::string_view text)
{
    if (!isOneOfMany || text.empty() || text.size() > kLargestKeptText)
        return test.matches(text);
    return test.matchesFolded(static_cast<LastFoldedText*>(sqlite3_user_data(context))->folded(text));
}

void stringTestFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        sqlite3_result_int(context, 0);
        return;
    }
    const void* single = sqlite3_value_pointer(arguments[0], stringTestPointerType);
    const void* bound = single ? single : sqlite3_value_pointer(arguments[0], oneOfManyTestsPointerType);
    if (!bound) {
        sqlite3_result_int(context, 0);
        return;
    }
    try {
        const bool isOneOfMany = single == nullptr;
        const auto& test = *static_cast<const StringTest*>(bound);
        sqlite3_result_int(context, holds(test, isOneOfMany, context, textOf(arguments[1])) ? 1 : 0);
    } catch (const std::exception& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

void foldedTestFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const auto* test = static_cast<const StringTest*>(sqlite3_value_pointer(arguments[0], stringTestPointerType));
    const bool isText = test && sqlite3_value_type(arguments[1]) != SQLITE_NULL;
    try {
        sqlite3_result_int(context, isText && test->matchesFolded(textOf(arguments[1])) ? 1 : 0);
    } catch (const std::exception& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

/// What a statement within the function failed by is what the statement around it fails by.
void textsHoldFunction(sqlite3_context* context, int count, sqlite3_value** arguments)
{
    auto* tests = static_cast<RowTextTests*>(sqlite3_value_pointer(arguments[0], rowTextTestsPointerType));
    if (!tests || count != tests->argumentCount()) {
        sqlite3_result_int(context, 0);
        return;
    }
    auto& connection = *static_cast<SQLiteConnection*>(sqlite3_user_data(context));
    std::uint32_t conditions = 0;
    for (int i = 0; i < tests->conditionCount(); ++i)
        conditions |= sqlite3_value_int(arguments[2 + i]) != 0 ? 1U << i : 0U;
    const auto valueAt = [&](std::size_t place) -> std::optional<std::string_view> {
        sqlite3_value* value = arguments[2 + tests->conditionCount() + static_cast<int>(place)];
        return sqlite3_value_type(value) == SQLITE_NULL ? std::nullopt : std::optional(textOf(value));
    };
    try {
        const bool hold = tests->hold(connection, sqlite3_value_int64(arguments[1]), conditions, valueAt);
        sqlite3_result_int(context, hold ? 1 : 0);
    } catch (const StoreFailure&) {
        sqlite3_result_error_code(context, sqlite3_extended_errcode(connection.handle()));
    } catch (const std::exception& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

void keyInFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const auto* keys = static_cast<const PrimaryKeySet*>(sqlite3_value_pointer(arguments[0], keySetPointerType));
    const bool isKey = sqlite3_value_type(arguments[1]) == SQLITE_INTEGER;
    sqlite3_result_int(context, keys && isKey && keys->contains(sqlite3_value_int64(arguments[1])) ? 1 : 0);
}

int compareLocalized(void*, int leftLength, const void* left, int rightLength, const void* right)
{
    const std::string_view leftText(static_cast<const char*>(left), static_cast<std::size_t>(leftLength));
    const std::string_view rightText(static_cast<const char*>(right), static_cast<std::size_t>(rightLength));
    try {
        const auto order = localizedStandardCompare(leftText, rightText);
        return order < 0 ? -1 : order > 0 ? 1 : 0;
    } catch (const std::exception&) {
        return leftText.compare(rightText);
    }
}

} // namespace

void registerSQLiteFunctions(SQLiteConnection& connection)
{
    sqlite3* handle = connection.handle();
    constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
    int result
        = sqlite3_create_function_v2(handle, "fold", 1, kFlags, nullptr, foldFunction, nullptr, nullptr, nullptr);
    if (result == SQLITE_OK)
        result = sqlite3_create_function_v2(handle, "string_test", 2, kFlags, new LastFoldedText, stringTestFunction,
            nullptr, nullptr, [](void* last) { delete static_cast<LastFoldedText*>(last); });
    if (result == SQLITE_OK)
        result = sqlite3_create_function_v2(
            handle, "folded_test", 2, kFlags, nullptr, foldedTestFunction, nullptr, nullptr, nullptr);
    if (result == SQLITE_OK)
        result = sqlite3_create_function_v2(handle, "texts_hold", -1, SQLITE_UTF8 | SQLITE_DIRECTONLY, &connection,
            textsHoldFunction, nullptr, nullptr, nullptr);
    if (result == SQLITE_OK)
        result = sqlite3_create_function_v2(
            handle, "key_in", 2, kFlags, nullptr, keyInFunction, nullptr, nullptr, nullptr);
    if (result == SQLITE_OK)
        result = sqlite3_create_collation_v2(
            handle, "localized_standard", SQLITE_UTF8, nullptr, compareLocalized, nullptr);
    if (result != SQLITE_OK)
        connection.fail(result, "register functions");
    registerSQLiteValueList(connection);
}

} // namespace tarn
