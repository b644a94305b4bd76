#pragma once

#include "tarnmodel/platform/coredata/migration/EntityStep.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tarn {

class MigrationRecord;
class NSAttributeDescription;
class SQLiteConnection;

/// The value of an expression for a record, as an attribute of this type holds it. Throws a `StoreFailure` when a
/// function answers something that it cannot hold.
Value valueOfExpression(const MappingExpression& expression, const MigrationRecord& source, const EntityStep& step,
    const NSAttributeDescription& attribute);

/// Functions of policies as SQL sees them: "migration_function(number, argument, ...)". One thread.
class PolicyFunctions {
public:
    /// Makes the function known to the connection for as long as this lives.
    explicit PolicyFunctions(SQLiteConnection& connection);
    ~PolicyFunctions();
    PolicyFunctions(const PolicyFunctions&) = delete;
    PolicyFunctions& operator=(const PolicyFunctions&) = delete;

    /// The number of a function of this step's policy that gives an attribute its value. The step, the expression and
    /// the attribute outlive this.
    std::size_t add(
        const EntityStep& step, const MappingExpression& expression, const NSAttributeDescription& attribute);

private:
    struct Function {
        const EntityStep* step;
        const MappingExpression* expression;
        const NSAttributeDescription* attribute;
    };
    struct Call; ///< what SQLite calls

    SQLiteConnection& connection_;
    std::vector<Function> functions_;
};

} // namespace tarn
