#pragma once

#include "tarnmodel/platform/coredata/migration/EntityStep.h"
#include "tarnmodel/platform/coredata/migration/InstanceStatements.h"

#include <optional>

namespace tarn {

struct JoinTable;
struct StoreTable;

// Where a table of the destination is one of the source column by column, SQLite copies it page by page, and its
// indexes with it if they are there before, instead of taking each row apart. What dangles comes along, and goes at the
// end.

/// A statement without parameters that fills a table of the destination with all its rows; none where it is not that
/// easy. Before there are any rows.
std::optional<BulkStatement> wholeTableStatement(const StoreTable& table, const MigrationSource& source,
    const MigrationDestination& destination, EntitySteps& steps);
/// The same for a join table.
std::optional<BulkStatement> wholeJoinStatement(
    const JoinTable& join, const MigrationSource& source, const MigrationDestination& destination, EntitySteps& steps);

} // namespace tarn
