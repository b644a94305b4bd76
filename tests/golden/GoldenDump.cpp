#include "tests/golden/GoldenDump.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectSet.h"
#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"
#include "tarnmodel/platform/coredata/sqlite/SubstringSignature.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tests/golden/GoldenOddRows.h"
#include "tests/golden/GoldenTexts.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <map>
#include <set>

namespace tarn {

namespace {

constexpr std::size_t kLongestSignedText = 300; // longer texts have signatures that would swell the dump
constexpr std::string_view kNil = "NULL";

/// Rows were deleted over the years: each tenth key is missing.
std::int64_t keyOf(const NSManagedObject& record)
{
    const std::int64_t key = record.objectID().key();
    return key + (key - 1) / 9;
}

std::string quotedText(std::string_view text)
{
    std::string literal = "'";
    for (const char c : text) {
        literal += c;
        if (c == '\'')
            literal += c;
    }
    return literal + "'";
}

std::string hexOf(std::string_view bytes)
{
    std::string digits;
    for (const char c : bytes)
        digits += fmt::format("{:02X}", static_cast<unsigned char>(c));
    return "X'" + digits + "'";
}

bool isPrintable(std::string_view text)
{
    return std::ranges::none_of(text, [](char c) { return (c >= 0 && c < ' ' && c != '\n') || c == '\x7F'; });
}

std::string literalOfText(std::string_view text)
{
    return isPrintable(text) ? quotedText(text) : "CAST(" + hexOf(text) + " AS TEXT)";
}

/// What a dump holds in place of texts that would swell it.
const std::map<std::string, std::string>& expressionsOfLongTexts()
{
    static const auto expressions = [] {
        std::map<std::string, std::string> made;
        for (const LongText& text : longTexts())
            made.emplace(text.text(),
                fmt::format("{} || replace(hex(zeroblob({})), '00', {}) || {}", quotedText(text.beginning), text.count,
                    quotedText(text.piece), quotedText(text.end)));
        return made;
    }();
    return expressions;
}

std::string literalOf(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? "1" : "0";
    case Value::Kind::Integer:
        return std::to_string(value.asInteger());
    case Value::Kind::Double:
        return fmt::format("{}", value.asDouble());
    case Value::Kind::Date:
        return std::to_string(value.asDate().microsecondsSince1970());
    case Value::Kind::Data:
        return hexOf(value.asData().text());
    case Value::Kind::Object:
        return std::to_string(keyOf(dynamic_cast<const NSManagedObject&>(value.asObject())));
    case Value::Kind::String: {
        const auto expression = expressionsOfLongTexts().find(value.asString());
        return expression == expressionsOfLongTexts().end() ? literalOfText(value.asString()) : expression->second;
    }
    default:
        return std::string(kNil);
    }
}

std::string joined(const std::vector<std::string>& names)
{
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + quotedIdentifier(name);
    return list;
}

} // namespace

GoldenDump::GoldenDump(TestStore& store, int version, std::shared_ptr<const NSManagedObjectModel> model)
    : store_(store), version_(version), model_(std::move(model)), schema_(*model_)
{ }

void GoldenDump::write(std::ostream& output)
{
    output_ = &output;
    output << "-- A store of \"" << model_->versionIdentifier() << "\". Written by write_golden_stores; see "
           << "tests/golden/main.cpp.\nPRAGMA page_size = 8192;\nBEGIN;\n";
    writeStatements(true);
    writeMetadata();
    for (const auto& table : schema_.tables()) {
        writeTable(*table);
        writeLargeTable(*table);
    }
    for (const auto& join : schema_.joins())
        writeJoin(*join);
    output << oddRows(version_);
    writeKeys();
    if (version_ > 1) {
        for (const auto& table : schema_.tables())
            for (const auto& signature : table->signatures)
                writeSignatures(*signature);
    }
    writeStatements(false);
    output << "COMMIT;\n";
}

/// A store of version 1 is one of before the index of texts, and before versions were counted for other programs.
void GoldenDump::writeStatements(bool tables)
{
    const std::vector<std::string> later = schema_.laterStatements();
    const std::set<std::string> laterOnes(later.begin(), later.end());
    for (const std::string& statement : schema_.creationStatements()) {
        const bool isLeftOut = version_ == 1 && laterOnes.contains(statement);
        if (statement.starts_with("CREATE TABLE") == tables && !isLeftOut)
            *output_ << statement << ";\n";
    }
}

void GoldenDump::writeRows(
    const std::string& table, const std::vector<std::string>& columns, const std::vector<Row>& rows)
{
    if (rows.empty())
        return;
    *output_ << "INSERT INTO " << quotedIdentifier(table) << " (" << joined(columns) << ") VALUES";
    for (std::size_t i = 0; i < rows.size(); ++i)
        *output_ << fmt::format("{}\n({})", i == 0 ? "" : ",", fmt::join(rows[i], ", "));
    *output_ << ";\n";
}

void GoldenDump::writeMetadata()
{
    // Version 1 was folded by the rules of an older Unicode.
    const int folding = version_ == 1 ? foldingVersion() - 0x100 : foldingVersion();
    std::vector<Row> rows{
        {quotedText(StoreUUIDKey), quotedText(goldenStoreUUID)},
        {quotedText(StoreFormatVersionKey), quotedText(currentStoreFormatVersion)},
        {quotedText(StoreModelVersionKey), quotedText(model_->versionIdentifier())},
        {quotedText(StoreFoldingVersionKey), quotedText(std::to_string(folding))},
        {"'host.lastBackup'", "'2021-03-14T15:09:26Z, Zoë''s \"disk\"'"},
        {"'host.empty'", "''"},
    };
    for (const auto& [name, hash] : model_->entityVersionHashes())
        rows.push_back({quotedText(std::string(StoreEntityHashPrefix) + name), quotedText(hash)});
    writeRows("store_metadata", {"key", "value"}, rows);
}

/// Keys of records that are gone are never given again; some tables never gave any.
void GoldenDump::writeKeys()
{
    std::vector<Row> rows;
    for (const auto& table : schema_.tables())
        if (table->name != "OVServerMetadata")
            rows.push_back({quotedText(table->root->name()), std::to_string(5000 + 10 * table->name.size())});
    writeRows("store_keys", {"entity", "nextKey"}, rows);
}

std::vector<const NSManagedObject*> GoldenDump::recordsOf(const StoreTable& table)
{
    const NSEntityDescription* entity = OVManagedObjectModel::current()->entityNamed(table.root->name());
    std::vector<const NSManagedObject*> records;
    for (NSManagedObject* record : store_.context().executeFetchRequest(NSFetchRequest(*entity)))
        records.push_back(record);
    std::ranges::sort(records, {}, [](const NSManagedObject* record) { return keyOf(*record); });
    return records;
}

// Rows ----------------------------------------------------------------------------------------------------------------

/// What is called otherwise in the model of today, or is no longer in it.
Value GoldenDump::valueOf(const NSManagedObject& record, const StoreColumn& column) const
{
    const std::string& entity = record.entity().rootEntity().name();
    const std::string& name = column.name;
    const std::int64_t key = keyOf(record);
    if (name == "version")
        return Value(version_ == 2 && key % 2 == 0 ? 1 : version_);
    if (entity == "OVNote" && name == "serverModificationDate")
        return key % 3 == 0 ? record.storedValueForKey("modificationDate") : Value();
    if (entity == "OVNote" && name == "pinnedInTag") {
        const Value tags = record.storedValueForKey("pinnedInTags");
        return tags.asArray().empty() ? Value() : tags.asArray().front();
    }
    if (entity == "OVNoteTag" && name == "name")
        return record.storedValueForKey("title");
    if (entity == "OVNoteTag" && name.starts_with("icon"))
        return record.storedValueForKey("tagcon" + name.substr(4));
    const Value value = record.storedValueForKey(name);
    if (version_ == 1 && name == "fileSize" && !value.isNil())
        return Value(static_cast<double>(value.asInteger()) + static_cast<double>(key % 4) * 0.25);
    return value;
}

std::string GoldenDump::literalOf(const NSManagedObject& record, const StoreColumn& column) const
{
    const bool isItsOwn
        = record.entity().propertyNamed(column.name) != nullptr || record.entity().rootEntity().name() != "OVNoteFile";
    return isItsOwn ? tarn::literalOf(valueOf(record, column)) : std::string(kNil);
}

/// The older folding of version 1 kept diacritics; each seventh value is left to be folded.
std::string GoldenDump::shadowOf(const NSManagedObject& record, const StoreColumn& column) const
{
    const Value value = valueOf(record, column);
    if (value.isNil() || keyOf(record) % 7 == 0)
        return std::string(kNil);
    return literalOfText(version_ == 1 ? foldCase(value.asString()) : fold(value.asString()));
}

void GoldenDump::writeTable(const StoreTable& table)
{
    std::vector<std::string> columns{"pk", "rowVersion"};
    if (table.hasDiscriminator)
        columns.emplace_back("entity");
    std::vector<const StoreColumn*> shadows;
    for (const StoreColumn& column : table.columns) {
        columns.push_back(column.name);
        if (column.attribute() && hasShadowColumn(*column.attribute()))
            shadows.push_back(&column);
    }
    for (const StoreColumn* column : shadows)
        columns.push_back(shadowColumnName(*column->attribute()));

    std::vector<Row> rows;
    if (!OVManagedObjectModel::current()->entityNamed(table.root->name()))
        return;
    for (const NSManagedObject* record : recordsOf(table)) {
        const std::int64_t key = keyOf(*record);
        Row row{std::to_string(key), std::to_string(1 + key % 5)};
        if (table.hasDiscriminator)
            row.push_back(quotedText(record->entity().name()));
        for (const StoreColumn& column : table.columns)
            row.push_back(literalOf(*record, column));
        for (const StoreColumn* column : shadows)
            row.push_back(shadowOf(*record, *column));
        rows.push_back(std::move(row));
    }
    writeRows(table.name, columns, rows);
}

void GoldenDump::writeLargeTable(const StoreTable& table)
{
    if (table.largeColumns.empty())
        return;
    std::vector<std::string> columns{"pk"};
    for (const StoreColumn& column : table.largeColumns)
        columns.push_back(column.name);
    std::vector<Row> rows;
    for (const NSManagedObject* record : recordsOf(table)) {
        Row row{std::to_string(keyOf(*record))};
        for (const StoreColumn& column : table.largeColumns)
            row.push_back(literalOf(*record, column));
        rows.push_back(std::move(row));
    }
    writeRows(table.largeName, columns, rows);
}

void GoldenDump::writeJoin(const JoinTable& join)
{
    std::vector<Row> rows;
    for (const NSManagedObject* record : recordsOf(*join.owner)) {
        std::set<std::int64_t> members;
        const Value related = record->storedValueForKey(join.relationship->name());
        for (const Value& member : related.asArray())
            members.insert(keyOf(dynamic_cast<const NSManagedObject&>(member.asObject())));
        for (const std::int64_t member : members)
            rows.push_back({std::to_string(keyOf(*record)), std::to_string(member)});
    }
    writeRows(join.name, {"owner", "member"}, rows);
}

/// Another program wrote some of the texts: their signatures are stale, as those of the odd rows are.
void GoldenDump::writeSignatures(const SignatureTable& signature)
{
    std::vector<Row> rows;
    for (const NSManagedObject* record : recordsOf(*signature.table)) {
        const std::int64_t key = keyOf(*record);
        const Value value = record->storedValueForKey(signature.attribute->name());
        const bool isStale = key % 8 == 0 || (!value.isNil() && value.asString().size() > kLongestSignedText);
        const std::string made = value.isNil() ? signatureOfNothing() : signatureOfText(value.asString());
        rows.push_back({std::to_string(key), isStale ? std::string(kNil) : hexOf(made)});
    }
    writeRows(signature.name, {"pk", "signature"}, rows);
    *output_ << "INSERT INTO " << quotedIdentifier(signature.name) << " (\"pk\") SELECT \"pk\" FROM "
             << quotedIdentifier(signature.columnTable()) << " WHERE \"pk\" NOT IN (SELECT \"pk\" FROM "
             << quotedIdentifier(signature.name) << ") ORDER BY \"pk\";\n";
    writeRows(signature.changesName, {"change", "pk"}, {{"1", "3"}, {"2", "77777"}, {"9", "1001"}});
}

} // namespace tarn
