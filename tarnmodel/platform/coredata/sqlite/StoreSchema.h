#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarn {

/// `text` as an SQL identifier, in double quotes.
std::string quotedIdentifier(std::string_view text);
/// The same, at the end of `sql`.
void appendQuotedIdentifier(std::string& sql, std::string_view text);

struct StoreTable;

/// A column of a root entity's table that holds a property.
struct StoreColumn {
    std::string name;
    const NSPropertyDescription* property = nullptr; ///< an attribute, or a to-one that is kept in a column
    const StoreTable* target = nullptr;              ///< of a to-one: the table that it points into

    const NSAttributeDescription* attribute() const noexcept
    {
        return property->isRelationship() ? nullptr : static_cast<const NSAttributeDescription*>(property);
    }
};

/// A column elsewhere, or here, that points at rows of a table.
struct ReferringColumn {
    const StoreTable* table = nullptr;
    std::string column;
};

/// The table of a many-to-many relationship: columns "owner" and "member", keyed by both, indexed the other way round.
struct JoinTable {
    std::string name;
    const NSRelationshipDescription* relationship = nullptr; ///< the end that owns it
    const StoreTable* owner = nullptr;
    const StoreTable* member = nullptr;
};

/// What narrows searches in an attribute: "<table>_<attribute>_signature" holds a signature by "pk" for each row that
/// has the attribute's column (NULL when it has to be made again), and "<table>_<attribute>_changes" the "pk" of each
/// row whose signature changed, in order. Triggers in plain SQL keep both in step whoever writes.
struct SignatureTable {
    std::string name;
    std::string changesName;
    const StoreTable* table = nullptr;
    const NSAttributeDescription* attribute = nullptr;

    /// The table in which the attribute's column stands.
    const std::string& columnTable() const noexcept;
};

/// The table of an inheritance chain:
///
/// - "pk", the primary key; "entity", the name of the concrete entity, where there are sub-entities; "rowVersion"
/// - one column for each attribute of the chain that is not large: BOOL, integers and dates (microseconds since 1970 in
///   UTC) as INTEGER, doubles as REAL, strings as TEXT, data as BLOB
/// - one INTEGER column for each to-one relationship that is kept in a column
/// - "<attribute>_folded" TEXT beside each folded attribute: its folded value, or NULL when it has to be made again
///
/// Large attributes stand in "<table>_large" by "pk".
struct StoreTable {
    const NSEntityDescription* root = nullptr;
    std::string name;
    std::string largeName;
    bool hasDiscriminator = false;
    std::vector<StoreColumn> columns;
    std::vector<StoreColumn> largeColumns;
    std::vector<ReferringColumn> referringColumns;
    std::vector<const JoinTable*> joins; ///< at either end
    std::vector<std::unique_ptr<const SignatureTable>> signatures;
};

/// Whether an attribute has a shadow column.
inline bool hasShadowColumn(const NSAttributeDescription& attribute) noexcept
{
    return attribute.isFolded() && attribute.type() == NSAttributeType::String && !attribute.isLarge();
}
std::string shadowColumnName(const NSAttributeDescription& attribute);
/// Whether an attribute has a signature.
inline bool hasSignature(const NSAttributeDescription& attribute) noexcept
{
    return attribute.isSubstringIndexed() && attribute.type() == NSAttributeType::String;
}

/// `"entity" IN (...)` for the rows of an entity; empty when every row of the table is one.
std::string entityCondition(const NSEntityDescription& entity, bool includesSubentities, std::string_view alias);
/// The same after " AND ".
std::string andEntityIs(const NSEntityDescription& entity, bool includesSubentities, std::string_view alias);

/// How a model lies in SQLite: tables, columns, join tables, and the statements that make them.
///
/// Immutable; any thread. No statement uses a function of our own, so that any program can open the file.
class StoreSchema {
public:
    explicit StoreSchema(const NSManagedObjectModel& model);
    StoreSchema(const StoreSchema&) = delete;
    StoreSchema& operator=(const StoreSchema&) = delete;

    /// The table of the entity's inheritance chain.
    const StoreTable& table(const NSEntityDescription& entity) const;
    /// The join table of either end of a many-to-many relationship.
    const JoinTable& join(const NSRelationshipDescription& relationship) const;
    const std::vector<std::unique_ptr<StoreTable>>& tables() const noexcept { return tables_; }
    const std::vector<std::unique_ptr<JoinTable>>& joins() const noexcept { return joins_; }

    /// CREATE statements in the order in which they run.
    std::vector<std::string> creationStatements() const;
    /// Those that a store of an earlier version of this library may lack: signatures and indexes of flags. Each does
    /// nothing where the thing exists already; they also make a stale signature for every row.
    std::vector<std::string> searchStatements() const;
    /// The triggers that count the version of a row for programs that do not. Each does nothing where it exists
    /// already.
    std::vector<std::string> versionStatements() const;
    /// Both.
    std::vector<std::string> laterStatements() const;

private:
    void addTable(const NSEntityDescription& root);
    void addColumns(StoreTable& table, const NSEntityDescription& entity);
    void addSignatures(StoreTable& table);
    void addJoins(const NSEntityDescription& entity);
    void linkColumns();
    StoreTable& mutableTable(const NSEntityDescription& entity) { return *tablesByRoot_.at(&entity.rootEntity()); }

    std::vector<std::unique_ptr<StoreTable>> tables_;
    std::vector<std::unique_ptr<JoinTable>> joins_;
    std::unordered_map<const NSEntityDescription*, StoreTable*> tablesByRoot_;
    std::unordered_map<const NSRelationshipDescription*, const JoinTable*> joinsByRelationship_;
};

/// Which column of a join table a relationship starts from, and which it leads to.
struct JoinDirection {
    const JoinTable* table;
    std::string_view from;
    std::string_view to;
};
JoinDirection joinDirection(const StoreSchema& schema, const NSRelationshipDescription& relationship);

} // namespace tarn
