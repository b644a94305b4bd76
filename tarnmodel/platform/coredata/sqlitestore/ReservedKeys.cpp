#include "tarnmodel/platform/coredata/sqlitestore/ReservedKeys.h"

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <algorithm>

namespace tarn {

/// Rows that another program added without asking count too.
std::int64_t takeKeys(
    SQLiteConnection& connection, const std::string& name, const NSEntityDescription& root, std::size_t count)
{
    const std::string table = quotedIdentifier(name);
    std::int64_t first = connection.integerOf("SELECT coalesce(max(\"pk\"), 0) + 1 FROM " + table);
    {
        SQLiteStatement statement = connection.prepare("SELECT \"nextKey\" FROM \"store_keys\" WHERE \"entity\" = ?1");
        statement.bindText(1, root.name());
        if (statement.step())
            first = std::max(first, statement.integer(0));
    }
    SQLiteStatement statement
        = connection.prepare("INSERT INTO \"store_keys\" (\"entity\", \"nextKey\") VALUES (?1, ?2) "
                             "ON CONFLICT (\"entity\") DO UPDATE SET \"nextKey\" = ?2");
    statement.bindText(1, root.name());
    statement.bindInteger(2, first + static_cast<std::int64_t>(count));
    statement.run();
    return first;
}

void ReservedKeys::keep(SQLiteConnection& connection) const
{
    for (const auto& [root, next] : next_) {
        SQLiteStatement statement
            = connection.prepare("INSERT INTO \"store_keys\" (\"entity\", \"nextKey\") VALUES (?1, ?2) "
                                 "ON CONFLICT (\"entity\") DO UPDATE SET \"nextKey\" = max(\"nextKey\", ?2)");
        statement.bindText(1, root->name());
        statement.bindInteger(2, next);
        statement.run();
    }
}

} // namespace tarn
