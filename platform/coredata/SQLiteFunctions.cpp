#include "platform/coredata/SQLiteFunctions.h"

#include "platform/coredata/SQLiteConnection.h"
#include "platform/coredata/SQLiteValueList.h"
#include "platform/foundation/Collation.h"
#include "platform/foundation/Folding.h"
#include "platform/predicate/StringTest.h"

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

void stringTestFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const auto* test = static_cast<const StringTest*>(sqlite3_value_pointer(arguments[0], stringTestPointerType));
    if (!test || sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        sqlite3_result_int(context, 0);
        return;
    }
    try {
        sqlite3_result_int(context, test->matches(textOf(arguments[1])) ? 1 : 0);
    } catch (const std::exception& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
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
        result = sqlite3_create_function_v2(
            handle, "string_test", 2, kFlags, nullptr, stringTestFunction, nullptr, nullptr, nullptr);
    if (result == SQLITE_OK)
        result = sqlite3_create_collation_v2(
            handle, "localized_standard", SQLITE_UTF8, nullptr, compareLocalized, nullptr);
    if (result != SQLITE_OK)
        connection.fail(result, "register functions");
    registerSQLiteValueList(connection);
}

} // namespace tarn
