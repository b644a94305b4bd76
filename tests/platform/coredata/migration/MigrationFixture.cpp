#include "tests/platform/coredata/migration/MigrationFixture.h"

#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::string_view kOldLibrary = R"({
  "version": "Library",
  "entities": [
    {"name": "Book",
     "attributes": [
       {"name": "name", "type": "string", "index": ["folded"]},
       {"name": "text", "type": "string", "storage": "large", "index": ["substring"]},
       {"name": "stars", "type": "int16", "default": 0},
       {"name": "size", "type": "double"},
       {"name": "bought", "type": "date"},
       {"name": "lent", "type": "bool", "index": ["flag"]},
       {"name": "label", "type": "string"},
       {"name": "counter", "type": "int64"},
       {"name": "memo", "type": "data", "storage": "large"},
       {"name": "mark", "type": "int64"},
       {"name": "opened", "type": "date"}],
     "relationships": [
       {"name": "shelf", "to": "Shelf", "inverse": "books"},
       {"name": "topics", "to": "Topic", "many": true, "inverse": "books", "owner": true},
       {"name": "media", "to": "Medium", "many": true, "inverse": "book"},
       {"name": "card", "to": "Card", "inverse": "book", "column": true},
       {"name": "sequel", "to": "Book", "inverse": "prequels"},
       {"name": "prequels", "to": "Book", "many": true, "inverse": "sequel"}]},
    {"name": "Shelf",
     "attributes": [{"name": "title", "type": "data"}, {"name": "room", "type": "string"}],
     "relationships": [
       {"name": "books", "to": "Book", "many": true, "inverse": "shelf"},
       {"name": "above", "to": "Shelf", "inverse": "below"},
       {"name": "below", "to": "Shelf", "many": true, "inverse": "above"}]},
    {"name": "Topic",
     "attributes": [{"name": "title", "type": "string", "index": ["folded", "substring"]}],
     "relationships": [
       {"name": "books", "to": "Book", "many": true, "inverse": "topics"},
       {"name": "related", "to": "Topic", "many": true, "inverse": "relatedTo", "owner": true},
       {"name": "relatedTo", "to": "Topic", "many": true, "inverse": "related"}]},
    {"name": "Medium", "abstract": true,
     "attributes": [{"name": "title", "type": "string"}, {"name": "words", "type": "string", "storage": "large",
                     "index": ["substring"]}],
     "relationships": [{"name": "book", "to": "Book", "inverse": "media"}]},
    {"name": "Picture", "parent": "Medium", "attributes": [{"name": "width", "type": "int64"}]},
    {"name": "Sound", "parent": "Medium", "attributes": [{"name": "length", "type": "double"}]},
    {"name": "Card", "attributes": [{"name": "number", "type": "string"}],
     "relationships": [{"name": "book", "to": "Book", "inverse": "card"}]},
    {"name": "Setting", "attributes": [{"name": "value", "type": "string"}]}
  ]
})";

constexpr std::string_view kNewLibrary = R"({
  "version": "Library 2",
  "entities": [
    {"name": "Book",
     "attributes": [
       {"name": "title", "type": "string", "index": ["folded"]},
       {"name": "text", "type": "string", "storage": "large", "index": ["substring"]},
       {"name": "stars", "type": "double"},
       {"name": "size", "type": "int64"},
       {"name": "bought", "type": "date"},
       {"name": "lent", "type": "int16"},
       {"name": "label", "type": "data", "storage": "large"},
       {"name": "counter", "type": "int16"},
       {"name": "memo", "type": "data"},
       {"name": "mark", "type": "bool", "index": ["flag"]},
       {"name": "isLong", "type": "bool"},
       {"name": "state", "type": "string", "index": ["folded"], "default": "bo'x"},
       {"name": "origin", "type": "string"},
       {"name": "weight", "type": "double"}],
     "relationships": [
       {"name": "shelves", "to": "Shelf", "many": true, "inverse": "books", "owner": true},
       {"name": "topics", "to": "Topic", "many": true, "inverse": "books"},
       {"name": "media", "to": "Medium", "many": true, "inverse": "book"},
       {"name": "card", "to": "Card", "inverse": "book"},
       {"name": "sequel", "to": "Book", "inverse": "prequels"},
       {"name": "prequels", "to": "Book", "many": true, "inverse": "sequel"}]},
    {"name": "Shelf",
     "attributes": [{"name": "title", "type": "string", "index": ["folded"]}, {"name": "room", "type": "string"}],
     "relationships": [
       {"name": "books", "to": "Book", "many": true, "inverse": "shelves"},
       {"name": "above", "to": "Shelf", "inverse": "below"},
       {"name": "below", "to": "Shelf", "many": true, "inverse": "above"}]},
    {"name": "Topic",
     "attributes": [{"name": "title", "type": "string", "index": ["folded", "substring"]}],
     "relationships": [
       {"name": "books", "to": "Book", "many": true, "inverse": "topics", "owner": true},
       {"name": "related", "to": "Topic", "many": true, "inverse": "relatedTo", "owner": true},
       {"name": "relatedTo", "to": "Topic", "many": true, "inverse": "related"}]},
    {"name": "Medium", "abstract": true,
     "attributes": [{"name": "title", "type": "string"}, {"name": "words", "type": "string", "storage": "large",
                     "index": ["substring"]}],
     "relationships": [{"name": "book", "to": "Book", "inverse": "media"}]},
    {"name": "Picture", "parent": "Medium", "attributes": [{"name": "width", "type": "int64"}]},
    {"name": "Sound", "parent": "Medium", "attributes": [{"name": "length", "type": "double"}]},
    {"name": "Card", "attributes": [{"name": "number", "type": "string"}],
     "relationships": [{"name": "book", "to": "Book", "inverse": "card", "column": true}]},
    {"name": "Reader", "attributes": [{"name": "name", "type": "string"}]}
  ]
})";

constexpr std::string_view kMapping = R"json({
  "source": "Library", "destination": "Library 2",
  "entities": [
    {"kind": "transform", "source": "Book", "destination": "Book", BOOK
     "attributes": [
       {"name": "title", "value": "$source.name"},
       {"name": "stars", "value": "$source.stars"},
       {"name": "size", "value": "$source.size"},
       {"name": "lent", "value": "$source.lent"},
       {"name": "label", "value": "$source.label"},
       {"name": "counter", "value": "$source.counter"},
       {"name": "mark", "value": "$source.mark"},
       {"name": "isLong", "value": "FUNCTION($entityPolicy, 'isLong', $source.text, 10)"
},
       {"name": "state", "value": "$default"},
       {"name": "origin", "value": "'it''s old'"},
       {"name": "weight", "value": "-1.5"}],
     "relationships": [
       {"name": "shelves", "value": "$source.shelf"}],
     "dropped": ["opened"]
},
    {"kind": "transform", "source": "Shelf", "destination": "Shelf", SHELF
     "attributes": [{"name": "title", "value": "$source.title"}],
     "relationships": [{"name": "books", "value": "$source.books"}]},
    {"kind": "transform", "source": "Topic", "destination": "Topic", OTHER "attributes": []},
    {"kind": "transform", "source": "Picture", "destination": "Picture", OTHER "attributes": []},
    {"kind": "transform", "source": "Sound", "destination": "Sound", OTHER "attributes": []},
    {"kind": "transform", "source": "Card", "destination": "Card", OTHER "attributes": []},
    {"kind": "remove", "source": "Setting"},
    {"kind": "add", "destination": "Reader"}
  ]
})json";

std::shared_ptr<const NSManagedObjectModel> readModel(std::string_view text)
{
    NSError error;
    std::shared_ptr<const NSManagedObjectModel> model = NSManagedObjectModel::modelWithText(text, &error);
    EXPECT_TRUE(model) << error;
    return model;
}

void replaceAll(std::string& text, std::string_view what, std::string_view with)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
}

} // namespace

std::shared_ptr<const NSManagedObjectModel> oldLibraryModel()
{
    static const auto model = readModel(kOldLibrary);
    return model;
}

std::shared_ptr<const NSManagedObjectModel> newLibraryModel()
{
    static const auto model = readModel(kNewLibrary);
    return model;
}

std::string libraryMappingText(std::string_view bookPolicy, std::string_view otherPolicy, std::string_view shelfPolicy)
{
    std::string text(kMapping);
    replaceAll(text, "BOOK", bookPolicy);
    replaceAll(text, "SHELF", shelfPolicy);
    replaceAll(text, "OTHER", otherPolicy);
    return text;
}

Value LibraryFunctions::valueOfFunction(
    std::string_view name, std::span<const Value> arguments, const NSEntityMapping& mapping)
{
    if (name != "isLong")
        return NSEntityMigrationPolicy::valueOfFunction(name, arguments, mapping);
    if (arguments[0].isNil())
        return {};
    return Value(utf16Length(arguments[0].asString()) > static_cast<std::size_t>(arguments[1].asInteger()));
}

MigrationFixture::MigrationFixture() : manager_(oldLibraryModel(), newLibraryModel())
{
    NSEntityMigrationPolicy::registerClass<LibraryFunctions>("LibraryFunctions");
    NSPersistentStoreCoordinator coordinator(oldLibraryModel());
    EXPECT_TRUE(coordinator.addPersistentStoreWithType(StoreType::SQLite, oldFile(), {}, &error_)) << error_;
}

void MigrationFixture::fill(const std::string& sql) const
{
    OtherProgram(oldFile()).run("PRAGMA foreign_keys = OFF; BEGIN; " + sql + "; COMMIT");
}

void MigrationFixture::signOldStore() const
{
    NSError error;
    std::size_t repaired = 0;
    NSPersistentStoreCoordinator coordinator(oldLibraryModel());
    NSPersistentStore* store = coordinator.addPersistentStoreWithType(StoreType::SQLite, oldFile(), {}, &error);
    EXPECT_TRUE(store && store->repairSearchIndex(repaired, &error)) << error;
    EXPECT_GT(repaired, 0U);
}

std::shared_ptr<const NSMappingModel> MigrationFixture::mapping(const std::string& text) const
{
    NSError error;
    auto read = NSMappingModel::mappingModelWithText(text, *oldLibraryModel(), *newLibraryModel(), &error);
    EXPECT_TRUE(read) << error;
    return read;
}

bool MigrationFixture::migrate(const NSMappingModel& mapping, const std::filesystem::path& file)
{
    return manager_.migrateStoreFromURL(
        oldFile(), StoreType::SQLite, mapping, file.empty() ? newFile() : file, StoreType::SQLite, &error_);
}

void MigrationFixture::migrate(const std::string& text)
{
    const auto read = mapping(text);
    ASSERT_TRUE(read);
    ASSERT_TRUE(migrate(*read)) << error_;
}

std::vector<std::string> MigrationFixture::rows(const std::string& sql) const
{
    return OtherProgram(newFile()).run(sql);
}

std::map<std::string, std::vector<std::string>> MigrationFixture::contentsOf(const std::filesystem::path& file)
{
    const OtherProgram program(file);
    std::map<std::string, std::vector<std::string>> contents;
    for (const std::string& table : program.run(
             "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE '%\\_changes' ESCAPE '\\'")) {
        std::string columns;
        for (const std::string& column : program.run("SELECT name FROM pragma_table_info('" + table + "')"))
            columns
                += (columns.empty() ? "" : " || ',' || ") + ("typeof(\"" + column + "\") || quote(\"" + column + "\")");
        auto rows = program.run("SELECT " + columns + " FROM \"" + table + "\"");
        std::ranges::sort(rows);
        contents.emplace(table, std::move(rows));
    }
    return contents;
}

std::vector<std::string> MigrationFixture::problemsOfNewStore() const
{
    NSError error;
    NSPersistentStoreCoordinator coordinator(newLibraryModel());
    NSPersistentStore* store
        = coordinator.addPersistentStoreWithType(StoreType::SQLite, newFile(), {.createIfMissing = false}, &error);
    EXPECT_TRUE(store) << error;
    std::vector<std::string> problems;
    std::vector<std::string> inIndex;
    EXPECT_TRUE(store && store->checkIntegrity(problems, &error) && store->checkSearchIndex(inIndex, &error)) << error;
    problems.insert(problems.end(), inIndex.begin(), inIndex.end());
    return problems;
}

} // namespace tarn
