#pragma once

#include "tarnmodel/platform/coredata/query/SQLGenerator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSelects.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarn {

class SQLiteConnection;

/// Answers one fetch with one connection: the generated SELECT, then the evaluator for what SQL could not say.
///
/// Statements are stepped to their end and reset before it returns, so that no lock stays behind.
class SQLiteFetch {
public:
    SQLiteFetch(const StoreFetch& fetch, const StoreSelects& selects, const SQLGenerator& generator,
        const SQLiteRowReader& reader, SQLiteConnection& connection)
        : fetch_(fetch), selects_(selects), generator_(generator), reader_(reader), connection_(connection)
    { }

    std::vector<StoreRow> rows();
    std::size_t count();
    /// The SELECT, its arguments, and its plan, for people.
    std::string explain();

private:
    std::vector<StoreRow> evaluatedRows(const GeneratedSelect& select, RowContents contents);

    const StoreFetch& fetch_;
    const StoreSelects& selects_;
    const SQLGenerator& generator_;
    const SQLiteRowReader& reader_;
    SQLiteConnection& connection_;
};

} // namespace tarn
