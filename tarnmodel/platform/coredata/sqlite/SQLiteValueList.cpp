#include "tarnmodel/platform/coredata/sqlite/SQLiteValueList.h"

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteFunctions.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <new>
#include <sqlite3.h>

namespace tarn {

namespace {

enum Column { ValueColumn, ListColumn };

/// A walk over one bound list: of values or of keys, whichever was bound.
struct ValueListCursor : sqlite3_vtab_cursor {
    const Value::Array* values = nullptr;
    const std::span<const std::int64_t>* keys = nullptr;
    std::size_t position = 0;

    std::size_t size() const { return values ? values->size() : keys ? keys->size() : 0; }
};

ValueListCursor& cursorOf(sqlite3_vtab_cursor* cursor)
{
    return *static_cast<ValueListCursor*>(cursor);
}

int connectTable(sqlite3* handle, void*, int, const char* const*, sqlite3_vtab** table, char**)
{
    const int result = sqlite3_declare_vtab(handle, "CREATE TABLE x(value, list HIDDEN)");
    if (result != SQLITE_OK)
        return result;
    *table = new (std::nothrow) sqlite3_vtab{};
    if (!*table)
        return SQLITE_NOMEM;
    return sqlite3_vtab_config(handle, SQLITE_VTAB_INNOCUOUS);
}

int disconnectTable(sqlite3_vtab* table)
{
    delete table;
    return SQLITE_OK;
}

/// The list is an argument, or there is no plan.
int planWalk(sqlite3_vtab*, sqlite3_index_info* info)
{
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        if (constraint.iColumn != ListColumn || constraint.op != SQLITE_INDEX_CONSTRAINT_EQ)
            continue;
        if (!constraint.usable)
            return SQLITE_CONSTRAINT;
        info->aConstraintUsage[i].argvIndex = 1;
        info->aConstraintUsage[i].omit = 1;
        info->estimatedCost = 10;
        info->estimatedRows = 50;
        return SQLITE_OK;
    }
    return SQLITE_CONSTRAINT;
}

int openCursor(sqlite3_vtab*, sqlite3_vtab_cursor** cursor)
{
    *cursor = new (std::nothrow) ValueListCursor{};
    return *cursor ? SQLITE_OK : SQLITE_NOMEM;
}

int closeCursor(sqlite3_vtab_cursor* cursor)
{
    delete &cursorOf(cursor);
    return SQLITE_OK;
}

int startWalk(sqlite3_vtab_cursor* walk, int, const char*, int count, sqlite3_value** arguments)
{
    ValueListCursor& cursor = cursorOf(walk);
    cursor.position = 0;
    cursor.values = nullptr;
    cursor.keys = nullptr;
    if (count < 1)
        return SQLITE_OK;
    cursor.values = static_cast<const Value::Array*>(sqlite3_value_pointer(arguments[0], valueListPointerType));
    cursor.keys
        = static_cast<const std::span<const std::int64_t>*>(sqlite3_value_pointer(arguments[0], keyListPointerType));
    return SQLITE_OK;
}

int advance(sqlite3_vtab_cursor* cursor)
{
    ++cursorOf(cursor).position;
    return SQLITE_OK;
}

int isAtEnd(sqlite3_vtab_cursor* cursor)
{
    return cursorOf(cursor).position >= cursorOf(cursor).size() ? 1 : 0;
}

void giveText(sqlite3_context* context, std::string_view text)
{
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void giveValue(sqlite3_context* context, const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return sqlite3_result_int(context, value.asBool() ? 1 : 0);
    case Value::Kind::Integer:
        return sqlite3_result_int64(context, value.asInteger());
    case Value::Kind::Double:
        return sqlite3_result_double(context, value.asDouble());
    case Value::Kind::String:
        return giveText(context, value.asString());
    case Value::Kind::Date:
        return sqlite3_result_int64(context, microsecondsSince1970(value.asDate()));
    case Value::Kind::Data:
        return sqlite3_result_blob64(context, value.asData().text().data(), value.asData().length(), SQLITE_TRANSIENT);
    default:
        return sqlite3_result_null(context);
    }
}

int giveColumn(sqlite3_vtab_cursor* walk, sqlite3_context* context, int column)
{
    const ValueListCursor& cursor = cursorOf(walk);
    if (column != ValueColumn)
        return SQLITE_OK;
    if (cursor.keys)
        sqlite3_result_int64(context, (*cursor.keys)[cursor.position]);
    else
        giveValue(context, (*cursor.values)[cursor.position]);
    return SQLITE_OK;
}

int giveRowid(sqlite3_vtab_cursor* cursor, sqlite3_int64* rowid)
{
    *rowid = static_cast<sqlite3_int64>(cursorOf(cursor).position);
    return SQLITE_OK;
}

const sqlite3_module& valueListModule()
{
    static const sqlite3_module module = [] {
        sqlite3_module made{};
        made.xConnect = connectTable; // no xCreate: it is a function, never a table of a schema
        made.xDisconnect = disconnectTable;
        made.xBestIndex = planWalk;
        made.xOpen = openCursor;
        made.xClose = closeCursor;
        made.xFilter = startWalk;
        made.xNext = advance;
        made.xEof = isAtEnd;
        made.xColumn = giveColumn;
        made.xRowid = giveRowid;
        return made;
    }();
    return module;
}

} // namespace

void registerSQLiteValueList(SQLiteConnection& connection)
{
    const int result
        = sqlite3_create_module_v2(connection.handle(), "value_list", &valueListModule(), nullptr, nullptr);
    if (result != SQLITE_OK)
        connection.fail(result, "register value_list");
}

} // namespace tarn
