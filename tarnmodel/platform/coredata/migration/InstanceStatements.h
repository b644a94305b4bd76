#pragma once

#include "tarnmodel/platform/coredata/migration/EntityStep.h"

#include <optional>
#include <string>
#include <vector>

namespace tarn {

class MigrationDestination;
class MigrationSource;
class PolicyFunctions;

/// A statement that writes to a table of the destination for the records of the source whose keys are in (?1, ?2].
struct BulkStatement {
    std::string sql;
    std::string table;
};

/// The statements that make the records of an entity mapping, many at once. Only where `isMadeBySQL` says so.
///
/// With `withReferences` a to-one that stands in a column on both sides is written along; `clearDanglingReferences`
/// takes away what leads nowhere.
std::vector<BulkStatement> instanceStatements(const EntityStep& step, const MigrationSource& source,
    const MigrationDestination& destination, EntitySteps& steps, PolicyFunctions& functions, bool withReferences);
/// Whether SQL can say what each value becomes.
bool isMadeBySQL(const EntityStep& step);

/// From records of the source to those that they name, with the keys that these have in the destination: a SELECT of
/// "owner", the source's key in (?1, ?2], and "target".
std::string relationshipSelect(
    const EntityStep& step, const NSPropertyMapping& property, const MigrationSource& source, EntitySteps& steps);
/// The statement that makes a relationship for many records at once, in the same way. None when its inverse keeps it,
/// or when `instanceStatements` has written it along.
std::optional<BulkStatement> relationshipStatement(const EntityStep& step, const NSPropertyMapping& property,
    const MigrationSource& source, const MigrationDestination& destination, EntitySteps& steps);

} // namespace tarn
