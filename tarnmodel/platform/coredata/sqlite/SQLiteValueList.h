#pragma once

namespace tarn {

class SQLiteConnection;

/// Makes the table-valued function `value_list(list)` known to a connection; see SQLiteFunctions.h.
void registerSQLiteValueList(SQLiteConnection& connection);

} // namespace tarn
