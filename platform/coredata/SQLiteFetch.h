#pragma once

#include "platform/coredata/NSPersistentStore.h"
#include "platform/coredata/SQLGenerator.h"
#include "platform/coredata/StoreSelects.h"

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
    SQLiteFetch(const StoreFetch& fetch, const StoreSchema& schema, const SQLGenerator& generator,
        const SQLiteRowReader& reader, SQLiteConnection& connection)
        : fetch_(fetch), schema_(schema), generator_(generator), reader_(reader), connection_(connection)
    { }

    std::vector<StoreRow> rows();
    std::size_t count();
    /// The SELECT, its arguments, and its plan, for people.
    std::string explain();

private:
    std::vector<StoreRow> evaluatedRows(const GeneratedSelect& select, RowContents contents);
    RowContents contentsForRemainder(const NSPredicate& remainder) const;

    const StoreFetch& fetch_;
    const StoreSchema& schema_;
    const SQLGenerator& generator_;
    const SQLiteRowReader& reader_;
    SQLiteConnection& connection_;
};

} // namespace tarn
