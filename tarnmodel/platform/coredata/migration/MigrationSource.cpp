#include "tarnmodel/platform/coredata/migration/MigrationSource.h"

#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <exception>

namespace tarn {

namespace {

/// An entity as a number: its place in its model.
std::int64_t numberOf(const NSEntityDescription& entity)
{
    return std::ranges::find(entity.model().entities(), &entity) - entity.model().entities().begin();
}

const NSEntityDescription* entityAt(const NSManagedObjectModel& model, std::int64_t number)
{
    return model.entities().at(static_cast<std::size_t>(number));
}

const StoreIdentity& identityIn(const StoreMetadata& metadata)
{
    const auto uuid = metadata.find(std::string(StoreUUIDKey));
    if (uuid == metadata.end())
        throw StoreFailure(StoreErrorNotAStore, "The file is not a store.");
    return StoreIdentity::forUUID(uuid->second);
}

} // namespace

MigrationSource::MigrationSource(HeldStoreFile& held, const NSManagedObjectModel& model)
    : connection_(held.connection()), metadata_(held.metadata()), schema_(model), selects_(schema_, model),
      identity_(identityIn(metadata_)), hasCurrentFolding_(foldingVersionOf(metadata_) == foldingVersion())
{
    const auto format = metadata_.find(std::string(StoreFormatVersionKey));
    if (format == metadata_.end() || format->second != currentStoreFormatVersion
        || !isMetadataOfModel(model, metadata_))
        throw StoreFailure(StoreErrorIncompatible, "The store was written with another version of the model.");
    // Foreign keys are looked at once in the end. What policies make may be more than memory should hold.
    connection_.execute(
        "PRAGMA foreign_keys = OFF; PRAGMA temp_store = FILE;"
        "CREATE TEMP TABLE \"migration_made\" (\"mapping\" INTEGER, \"source\" INTEGER, \"root\" INTEGER, "
        "\"destination\" INTEGER, PRIMARY KEY (\"mapping\", \"source\", \"root\", \"destination\")) WITHOUT ROWID;"
        "CREATE INDEX temp.\"migration_made_destination\" ON \"migration_made\" "
        "(\"mapping\", \"root\", \"destination\");");
}

MigrationSource::~MigrationSource()
{
    try {
        connection_.execute(
            "DROP TABLE temp.\"migration_made\"; PRAGMA temp_store = MEMORY; PRAGMA foreign_keys = ON;");
    } catch (const std::exception&) {
        // The connection is used for nothing that these would change.
    }
}

// Records -------------------------------------------------------------------------------------------------------------

EntitySteps::NextKeys MigrationSource::nextKeys() const
{
    EntitySteps::NextKeys keys;
    for (const auto& table : schema_.tables()) {
        std::int64_t next
            = connection_.integerOf("SELECT coalesce(max(\"pk\"), 0) + 1 FROM main." + quotedIdentifier(table->name));
        SQLiteStatement statement
            = connection_.prepare("SELECT \"nextKey\" FROM main.\"store_keys\" WHERE \"entity\" = ?1");
        statement.bindText(1, table->root->name());
        if (statement.step())
            next = std::max(next, statement.integer(0));
        keys.emplace(table->root, next);
    }
    return keys;
}

std::size_t MigrationSource::countOf(const NSEntityDescription& entity) const
{
    const std::string condition = entityCondition(entity, false, "s");
    return static_cast<std::size_t>(connection_.integerOf("SELECT count(*) FROM main."
        + quotedIdentifier(schema_.table(entity).name) + " AS s" + (condition.empty() ? "" : " WHERE " + condition)));
}

std::size_t MigrationSource::rowCountOf(const NSEntityDescription& root) const
{
    return static_cast<std::size_t>(
        connection_.integerOf("SELECT count(*) FROM main." + quotedIdentifier(schema_.table(root).name)));
}

std::vector<std::int64_t> MigrationSource::keysAfter(
    const NSEntityDescription& entity, std::int64_t key, std::size_t most) const
{
    SQLiteStatement statement
        = connection_.prepare("SELECT s.\"pk\" FROM main." + quotedIdentifier(schema_.table(entity).name)
            + " AS s WHERE s.\"pk\" > ?1" + andEntityIs(entity, false, "s") + " ORDER BY s.\"pk\" LIMIT ?2");
    statement.bindInteger(1, key);
    statement.bindInteger(2, static_cast<std::int64_t>(most));
    std::vector<std::int64_t> keys;
    while (statement.step())
        keys.push_back(statement.integer(0));
    return keys;
}

std::int64_t MigrationSource::lastKeyOfNext(const NSEntityDescription& entity, std::int64_t key, std::size_t most) const
{
    SQLiteStatement statement = connection_.prepare("SELECT coalesce(max(\"pk\"), ?1) FROM (SELECT s.\"pk\" FROM main."
        + quotedIdentifier(schema_.table(entity).name) + " AS s WHERE s.\"pk\" > ?1" + andEntityIs(entity, false, "s")
        + " ORDER BY s.\"pk\" LIMIT ?2)");
    statement.bindInteger(1, key);
    statement.bindInteger(2, static_cast<std::int64_t>(most));
    statement.step();
    return statement.integer(0);
}

// Derived values ------------------------------------------------------------------------------------------------------

bool MigrationSource::hasObject(std::string_view name) const
{
    SQLiteStatement statement = connection_.prepare("SELECT 1 FROM main.sqlite_schema WHERE name = ?1");
    statement.bindText(1, name);
    return statement.step();
}

bool MigrationSource::hasColumn(std::string_view table, std::string_view column) const
{
    SQLiteStatement statement
        = connection_.prepare("SELECT 1 FROM pragma_table_info(?1, 'main') WHERE name = ?2 COLLATE NOCASE");
    statement.bindText(1, table);
    statement.bindText(2, column);
    return statement.step();
}

bool MigrationSource::hasCurrentShadow(const NSAttributeDescription& attribute) const
{
    return hasCurrentFolding_ && hasShadowColumn(attribute)
        && hasColumn(schema_.table(attribute.declaringEntity()).name, shadowColumnName(attribute));
}

bool MigrationSource::hasStaleShadow(const NSAttributeDescription& attribute) const
{
    return connection_.integerOf("SELECT EXISTS (SELECT 1 FROM main."
               + quotedIdentifier(schema_.table(attribute.declaringEntity()).name) + " WHERE "
               + quotedIdentifier(shadowColumnName(attribute)) + " IS NULL AND " + quotedIdentifier(attribute.name())
               + " IS NOT NULL)")
        != 0;
}

std::vector<std::string> MigrationSource::columnNames(const std::string& table) const
{
    SQLiteStatement statement = connection_.prepare("SELECT name FROM pragma_table_info(?1, 'main') ORDER BY cid");
    statement.bindText(1, table);
    std::vector<std::string> names;
    while (statement.step())
        names.emplace_back(statement.bytes(0));
    return names;
}

std::vector<std::string> MigrationSource::indexStatements(const std::string& table) const
{
    SQLiteStatement statement = connection_.prepare("SELECT sql FROM main.sqlite_schema WHERE type = 'index' AND "
                                                    "tbl_name = ?1 AND sql IS NOT NULL ORDER BY sql");
    statement.bindText(1, table);
    std::vector<std::string> statements;
    while (statement.step())
        statements.emplace_back(statement.bytes(0));
    return statements;
}

const SignatureTable* MigrationSource::currentSignatures(const NSAttributeDescription& attribute) const
{
    if (!hasCurrentFolding_)
        return nullptr;
    for (const auto& signature : schema_.table(attribute.declaringEntity()).signatures)
        // Without its triggers other programs may have changed texts behind the signatures.
        if (signature->attribute == &attribute && hasObject(signature->name) && hasObject(signature->name + "_update"))
            return signature.get();
    return nullptr;
}

// Associations --------------------------------------------------------------------------------------------------------

void MigrationSource::associate(const EntityStep& step, const Association& association)
{
    SQLiteStatement statement = connection_.prepare(
        "INSERT INTO temp.\"migration_made\" (\"mapping\", \"source\", \"root\", \"destination\") "
        "VALUES (?1, ?2, ?3, ?4)");
    statement.bindInteger(1, step.number);
    statement.bindInteger(2, association.source);
    statement.bindInteger(3, numberOf(*association.root));
    statement.bindInteger(4, association.destination);
    statement.run();
}

std::vector<MigrationSource::Association> MigrationSource::associationsOf(
    const EntityStep& step, std::int64_t sourceKey) const
{
    SQLiteStatement statement = connection_.prepare(
        "SELECT \"root\", \"destination\" FROM temp.\"migration_made\" WHERE \"mapping\" = ?1 AND \"source\" = ?2 "
        "ORDER BY \"root\", \"destination\"");
    statement.bindInteger(1, step.number);
    statement.bindInteger(2, sourceKey);
    std::vector<Association> found;
    while (statement.step())
        found.push_back({sourceKey, entityAt(step.to->model(), statement.integer(0)), statement.integer(1)});
    return found;
}

std::optional<std::int64_t> MigrationSource::associatedSource(
    const EntityStep& step, const NSEntityDescription& root, std::int64_t destinationKey) const
{
    SQLiteStatement statement = connection_.prepare("SELECT \"source\" FROM temp.\"migration_made\" WHERE "
                                                    "\"mapping\" = ?1 AND \"root\" = ?2 AND \"destination\" = ?3");
    statement.bindInteger(1, step.number);
    statement.bindInteger(2, numberOf(root));
    statement.bindInteger(3, destinationKey);
    return statement.step() ? std::optional<std::int64_t>(statement.integer(0)) : std::nullopt;
}

std::vector<MigrationSource::Association> MigrationSource::associationsAfter(
    const EntityStep& step, const NSEntityDescription& root, std::int64_t destinationKey, std::size_t most) const
{
    SQLiteStatement statement = connection_.prepare(
        "SELECT \"source\", \"destination\" FROM temp.\"migration_made\" WHERE \"mapping\" = ?1 AND \"root\" = ?2 "
        "AND \"destination\" > ?3 ORDER BY \"destination\" LIMIT ?4");
    statement.bindInteger(1, step.number);
    statement.bindInteger(2, numberOf(root));
    statement.bindInteger(3, destinationKey);
    statement.bindInteger(4, static_cast<std::int64_t>(most));
    std::vector<Association> found;
    while (statement.step())
        found.push_back({statement.integer(0), &root, statement.integer(1)});
    return found;
}

// The new store beside it ---------------------------------------------------------------------------------------------

MigrationSource::Attachment::Attachment(MigrationSource& source, const std::filesystem::path& side)
    : connection_(source.connection())
{
    {
        SQLiteStatement statement = connection_.prepare("ATTACH ?1 AS \"side\"");
        const std::string path = std::filesystem::absolute(side).string();
        statement.bindText(1, path);
        statement.run();
    }
    // The file is thrown away when something fails, and synced as a whole in the end.
    connection_.execute(
        "PRAGMA side.journal_mode = OFF; PRAGMA side.synchronous = OFF; PRAGMA side.secure_delete = OFF;"
        "PRAGMA side.cache_size = -8000; PRAGMA side.cache_spill = 1;");
}

MigrationSource::Attachment::~Attachment()
{
    try {
        connection_.execute("DETACH \"side\"");
    } catch (const std::exception&) {
        // It goes with the connection.
    }
}

} // namespace tarn
