#include "tarnmodel/platform/coredata/sqlite/SQLiteRowWriter.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SearchTables.h"
#include "tarnmodel/platform/coredata/sqlite/SubstringSignature.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>

namespace tarn {

namespace {

bool belongsTo(const StoreColumn& column, const NSEntityDescription& entity)
{
    return entity.isKindOfEntity(column.property->declaringEntity());
}

bool hasShadow(const StoreColumn& column)
{
    return column.attribute() && hasShadowColumn(*column.attribute());
}

bool hasValue(const StoreColumn& column, const StoreRow& row)
{
    const PropertyIndex index = column.property->index();
    return row.values.isLoaded(index) && !row.values.isNil(index);
}

std::vector<const StoreColumn*> columnsOf(
    const std::vector<StoreColumn>& columns, const NSEntityDescription& entity, PropertyMask wanted)
{
    std::vector<const StoreColumn*> chosen;
    for (const StoreColumn& column : columns)
        if (belongsTo(column, entity) && (wanted & propertyBit(column.property->index())))
            chosen.push_back(&column);
    return chosen;
}

std::string shadowName(const StoreColumn& column)
{
    return quotedIdentifier(shadowColumnName(*column.attribute()));
}

} // namespace

// Values --------------------------------------------------------------------------------------------------------------

void SQLiteRowWriter::bind(SQLiteStatement& statement, int parameter, const StoreColumn& column, const StoreRow& row)
{
    const PropertyIndex index = column.property->index();
    if (!hasValue(column, row))
        return statement.bindNull(parameter);
    const auto* attribute = column.attribute();
    if (!attribute) {
        // A target without a permanent key is none.
        if (row.values.integer(index) <= 0)
            return statement.bindNull(parameter);
        return statement.bindInteger(parameter, row.values.integer(index));
    }
    switch (attribute->type()) {
    case NSAttributeType::Double:
        return statement.bindDouble(parameter, row.values.floating(index));
    case NSAttributeType::String:
        return statement.bindText(parameter, row.values.bytes(index));
    case NSAttributeType::Data:
        return statement.bindBlob(parameter, row.values.bytes(index));
    default:
        return statement.bindInteger(parameter, row.values.integer(index));
    }
}

void SQLiteRowWriter::bindShadow(
    SQLiteStatement& statement, int parameter, const StoreColumn& column, const StoreRow& row)
{
    if (!hasValue(column, row) || derived_ == DerivedValues::LeftStale)
        return statement.bindNull(parameter);
    foldedTexts_.push_back(fold(row.values.bytes(column.property->index())));
    statement.bindText(parameter, foldedTexts_.back());
}

bool SQLiteRowWriter::exists(const StoreTable& table, std::int64_t key)
{
    SQLiteStatement statement
        = connection_.prepare("SELECT 1 FROM " + quotedIdentifier(table.name) + " WHERE \"pk\" = ?1");
    statement.bindInteger(1, key);
    return statement.step();
}

void SQLiteRowWriter::awaitTargets(
    const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row)
{
    for (const StoreColumn* column : columns) {
        if (!column->target || !hasValue(*column, row))
            continue;
        const std::int64_t target = row.values.integer(column->property->index());
        if (target > 0 && !exists(*column->target, target))
            awaited_.push_back({&table, column, row.key, target});
    }
}

void SQLiteRowWriter::clearMissingTargets()
{
    for (const AwaitedTarget& awaited : awaited_) {
        if (exists(*awaited.column->target, awaited.target))
            continue;
        clearColumn(*awaited.table, awaited.column->name, awaited.target, awaited.key);
    }
    awaited_.clear();
}

/// No change of the row's own: its version stays.
void SQLiteRowWriter::clearColumn(
    const StoreTable& table, const std::string& name, std::int64_t target, std::optional<std::int64_t> only)
{
    const std::string column = quotedIdentifier(name);
    SQLiteStatement statement = connection_.prepare("UPDATE " + quotedIdentifier(table.name) + " SET " + column
        + " = NULL WHERE " + column + " = ?1" + (only ? " AND \"pk\" = ?2" : ""));
    statement.bindInteger(1, target);
    if (only)
        statement.bindInteger(2, *only);
    statement.run();
}

// Insert --------------------------------------------------------------------------------------------------------------

const SQLiteRowWriter::InsertPlan& SQLiteRowWriter::insertPlan(const NSEntityDescription& entity)
{
    const auto [found, isNew] = insertPlans_.try_emplace(&entity);
    InsertPlan& plan = found->second;
    if (!isNew)
        return plan;
    const StoreTable& table = schema_.table(entity);
    plan.columns = columnsOf(table.columns, entity, ~PropertyMask{0});
    plan.largeColumns = columnsOf(table.largeColumns, entity, ~PropertyMask{0});
    std::string names = "\"pk\", \"rowVersion\"";
    std::string parameters = "?, ?";
    const auto add = [&](const std::string& name) {
        names += ", " + name;
        parameters += ", ?";
    };
    if (table.hasDiscriminator)
        add("\"entity\"");
    for (const StoreColumn* column : plan.columns)
        add(quotedIdentifier(column->name));
    for (const StoreColumn* column : plan.columns)
        if (hasShadow(*column))
            add(shadowName(*column));
    plan.sql = "INSERT INTO " + quotedIdentifier(table.name) + " (" + names + ") VALUES (" + parameters + ")";
    return plan;
}

void SQLiteRowWriter::insert(const StoreRow& row)
{
    insertRow(row, 1, true);
}

void SQLiteRowWriter::insertUnsigned(const StoreRow& row)
{
    insertRow(row, row.version, false);
}

void SQLiteRowWriter::insertRow(const StoreRow& row, std::int64_t version, bool isSigned)
{
    const StoreTable& table = schema_.table(*row.entity);
    const InsertPlan& plan = insertPlan(*row.entity);
    foldedTexts_.clear();
    foldedTexts_.reserve(plan.columns.size());
    {
        SQLiteStatement statement = connection_.prepare(plan.sql);
        int parameter = 1;
        statement.bindInteger(parameter++, row.key);
        statement.bindInteger(parameter++, version);
        if (table.hasDiscriminator)
            statement.bindText(parameter++, row.entity->name());
        for (const StoreColumn* column : plan.columns)
            bind(statement, parameter++, *column, row);
        for (const StoreColumn* column : plan.columns)
            if (hasShadow(*column))
                bindShadow(statement, parameter++, *column, row);
        statement.run();
    }
    if (!firstInsertedTable_) {
        firstInsertedTable_ = &table;
        firstInsertedKey_ = row.key;
    }
    awaitTargets(table, plan.columns, row);
    const auto isSet = [&](const StoreColumn* column) { return hasValue(*column, row); };
    if (isSigned)
        writeSignaturesOfNewRow(table, table.name, row);
    if (std::any_of(plan.largeColumns.begin(), plan.largeColumns.end(), isSet))
        insertLarge(table, plan.largeColumns, row, isSigned);
}

bool SQLiteRowWriter::findsInsertedRows()
{
    return firstInsertedTable_ && exists(*firstInsertedTable_, firstInsertedKey_);
}

void SQLiteRowWriter::writeSignatureOf(const SignatureTable& signature, const StoreRow& row)
{
    const NSAttributeDescription& attribute = *signature.attribute;
    const PropertyIndex index = attribute.index();
    const bool isSet = row.entity->isKindOfEntity(attribute.declaringEntity()) && row.values.isLoaded(index)
        && !row.values.isNil(index);
    hasWrittenSignatures_ = true;
    if (derived_ == DerivedValues::LeftStale)
        writeSignature(connection_, signature, row.key, std::nullopt);
    else
        writeSignature(
            connection_, signature, row.key, isSet ? signatureOfText(row.values.bytes(index)) : signatureOfNothing());
}

/// Of all attributes that stand in this table.
void SQLiteRowWriter::writeSignaturesOfNewRow(
    const StoreTable& table, const std::string& columnTable, const StoreRow& row)
{
    for (const auto& signature : table.signatures)
        if (signature->columnTable() == columnTable)
            writeSignatureOf(*signature, row);
}

void SQLiteRowWriter::writeSignatures(
    const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row)
{
    for (const auto& signature : table.signatures)
        if (std::any_of(columns.begin(), columns.end(),
                [&](const StoreColumn* column) { return column->attribute() == signature->attribute; }))
            writeSignatureOf(*signature, row);
}

void SQLiteRowWriter::removeSignatures(const StoreTable& table, const std::string& columnTable, std::int64_t key)
{
    for (const auto& signature : table.signatures) {
        if (signature->columnTable() != columnTable)
            continue;
        hasWrittenSignatures_ = true;
        removeSignature(connection_, *signature, key);
    }
}

void SQLiteRowWriter::insertLarge(
    const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row, bool isSigned)
{
    std::string names = "\"pk\"";
    std::string parameters = "?";
    for (const StoreColumn* column : columns) {
        names += ", " + quotedIdentifier(column->name);
        parameters += ", ?";
    }
    SQLiteStatement statement = connection_.prepare(
        "INSERT INTO " + quotedIdentifier(table.largeName) + " (" + names + ") VALUES (" + parameters + ")");
    statement.bindInteger(1, row.key);
    int parameter = 2;
    for (const StoreColumn* column : columns)
        bind(statement, parameter++, *column, row);
    statement.run();
    if (isSigned)
        writeSignaturesOfNewRow(table, table.largeName, row);
}

/// The row of large attributes is made when the first of them gets a value.
void SQLiteRowWriter::writeLarge(
    const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row)
{
    {
        std::string assignments;
        for (const StoreColumn* column : columns)
            assignments += (assignments.empty() ? "" : ", ") + quotedIdentifier(column->name) + " = ?";
        SQLiteStatement statement = connection_.prepare(
            "UPDATE " + quotedIdentifier(table.largeName) + " SET " + assignments + " WHERE \"pk\" = ?");
        int parameter = 1;
        for (const StoreColumn* column : columns)
            bind(statement, parameter++, *column, row);
        statement.bindInteger(parameter, row.key);
        statement.run();
    }
    if (connection_.changedRowCount() == 0)
        insertLarge(table, columns, row);
    else
        writeSignatures(table, columns, row);
}

// Update --------------------------------------------------------------------------------------------------------------

RowWriteResult SQLiteRowWriter::update(const StoreRow& row, PropertyMask changed)
{
    const StoreTable& table = schema_.table(*row.entity);
    const auto columns = columnsOf(table.columns, *row.entity, changed);
    const auto largeColumns = columnsOf(table.largeColumns, *row.entity, changed);
    foldedTexts_.clear();
    foldedTexts_.reserve(columns.size());
    {
        std::string assignments;
        for (const StoreColumn* column : columns) {
            assignments += quotedIdentifier(column->name) + " = ?, ";
            if (hasShadow(*column))
                assignments += shadowName(*column) + " = ?, ";
        }
        SQLiteStatement statement = connection_.prepare("UPDATE " + quotedIdentifier(table.name) + " SET " + assignments
            + "\"rowVersion\" = \"rowVersion\" + 1 WHERE \"pk\" = ? AND \"rowVersion\" = ?");
        int parameter = 1;
        for (const StoreColumn* column : columns) {
            bind(statement, parameter++, *column, row);
            if (hasShadow(*column))
                bindShadow(statement, parameter++, *column, row);
        }
        statement.bindInteger(parameter++, row.key);
        statement.bindInteger(parameter++, row.version);
        statement.run();
    }
    if (connection_.changedRowCount() == 0)
        return exists(table, row.key) ? RowWriteResult::Conflict : RowWriteResult::Gone;
    awaitTargets(table, columns, row);
    writeSignatures(table, columns, row);
    if (!largeColumns.empty())
        writeLarge(table, largeColumns, row);
    return RowWriteResult::Written;
}

// Delete --------------------------------------------------------------------------------------------------------------

RowWriteResult SQLiteRowWriter::remove(const NSEntityDescription& entity, std::int64_t key, std::int64_t version)
{
    const StoreTable& table = schema_.table(entity);
    {
        SQLiteStatement statement
            = connection_.prepare("SELECT \"rowVersion\" FROM " + quotedIdentifier(table.name) + " WHERE \"pk\" = ?1");
        statement.bindInteger(1, key);
        if (!statement.step())
            return RowWriteResult::Gone;
        if (version != 0 && statement.integer(0) != version)
            return RowWriteResult::Conflict;
    }
    const auto runWithKey = [&](const std::string& sql) {
        SQLiteStatement statement = connection_.prepare(sql);
        statement.bindInteger(1, key);
        statement.run();
    };
    for (const JoinTable* join : table.joins) {
        if (join->owner == &table)
            runWithKey("DELETE FROM " + quotedIdentifier(join->name) + " WHERE \"owner\" = ?1");
        if (join->member == &table)
            runWithKey("DELETE FROM " + quotedIdentifier(join->name) + " WHERE \"member\" = ?1");
    }
    for (const ReferringColumn& referring : table.referringColumns)
        clearColumn(*referring.table, referring.column, key, std::nullopt);
    if (!table.largeColumns.empty()) {
        runWithKey("DELETE FROM " + quotedIdentifier(table.largeName) + " WHERE \"pk\" = ?1");
        removeSignatures(table, table.largeName, key);
    }
    runWithKey("DELETE FROM " + quotedIdentifier(table.name) + " WHERE \"pk\" = ?1");
    removeSignatures(table, table.name, key);
    return RowWriteResult::Written;
}

// Join rows -----------------------------------------------------------------------------------------------------------

void SQLiteRowWriter::changeJoins(std::span<const JoinChange> changes)
{
    for (const JoinChange& change : changes) {
        const JoinTable& join = schema_.join(*change.relationship);
        const std::string name = quotedIdentifier(join.name);
        SQLiteStatement statement
            = connection_.prepare(change.added ? "INSERT OR IGNORE INTO " + name
                        + " (\"owner\", \"member\") SELECT ?1, ?2 WHERE EXISTS (SELECT 1 FROM "
                        + quotedIdentifier(join.owner->name) + " WHERE \"pk\" = ?1) AND EXISTS (SELECT 1 FROM "
                        + quotedIdentifier(join.member->name) + " WHERE \"pk\" = ?2)"
                                               : "DELETE FROM " + name + " WHERE \"owner\" = ?1 AND \"member\" = ?2");
        statement.bindInteger(1, change.ownerKey);
        statement.bindInteger(2, change.memberKey);
        statement.run();
    }
}

} // namespace tarn
