#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::string_view kLibrary = R"({
  // Books with their authors and, one to one, their covers.
  "version": "Library 2",
  "entities": [
    {"name": "Item", "abstract": true, "documentation": "Whatever stands on a shelf.",
     "attributes": [
       {"name": "title", "type": "string", "index": ["value", "folded", "substring"], "group": "text"},
       {"name": "body", "type": "string", "storage": "large", "index": ["substring"], "group": "text"},
       {"name": "lent", "type": "bool", "default": false, "companion": "lentDate"},
       {"name": "lentDate", "type": "date"}],
     "indexes": [{"columns": ["lent", "lentDate desc"], "unique": false}]},
    {"name": "Book", "parent": "Item",
     "attributes": [
       {"name": "pages", "type": "int16", "default": 12, "optional": false},
       {"name": "serial", "type": "int64", "default": -9007199254740993},
       {"name": "weight", "type": "double", "default": 1.5}],
     "relationships": [
       {"name": "authors", "to": "Author", "many": true, "inverse": "books", "owner": true, "delete": "none"},
       {"name": "cover", "to": "Cover", "inverse": "book", "column": true, "delete": "cascade"}]},
    {"name": "Author",
     "attributes": [{"name": "name", "type": "string", "default": "N. N."}],
     "relationships": [
       {"name": "books", "to": "Book", "many": true, "inverse": "authors", "delete": "deny"},
       {"name": "portraits", "to": "Cover", "many": true, "inverse": "portrayed"}]},
    {"name": "Cover",
     "attributes": [{"name": "picture", "type": "data", "storage": "large"}],
     "relationships": [
       {"name": "book", "to": "Book", "inverse": "cover"},
       {"name": "portrayed", "to": "Author", "inverse": "portraits"}]}
  ]})";

std::shared_ptr<NSManagedObjectModel> modelOf(std::string_view text)
{
    NSError error;
    auto model = NSManagedObjectModel::modelWithText(text, &error);
    EXPECT_TRUE(model) << error;
    return model;
}

std::string withReplaced(std::string_view text, std::string_view from, std::string_view to)
{
    std::string result(text);
    auto position = result.find(from);
    EXPECT_NE(position, std::string::npos) << from;
    return result.replace(position, from.size(), to);
}

std::vector<std::string> propertyNames(const NSEntityDescription& entity)
{
    std::vector<std::string> names;
    for (const NSPropertyDescription* property : entity.properties())
        names.push_back(property->name());
    return names;
}

TEST(ModelReader, KeepsVersionAndOrderOfEntities)
{
    auto model = modelOf(kLibrary);
    EXPECT_EQ(model->versionIdentifier(), "Library 2");
    ASSERT_EQ(model->entities().size(), 4u);
    EXPECT_EQ(model->entities()[1]->name(), "Book");
    EXPECT_EQ(model->entityNamed("Book"), model->entities()[1]);
    EXPECT_EQ(model->entityNamed("book"), nullptr);
    EXPECT_EQ(&model->entityNamed("Cover")->model(), model.get());
}

TEST(ModelReader, PutsInheritedPropertiesFirstAtTheSamePositions)
{
    auto model = modelOf(kLibrary);
    const NSEntityDescription& item = *model->entityNamed("Item");
    const NSEntityDescription& book = *model->entityNamed("Book");
    EXPECT_THAT(propertyNames(book),
        ElementsAre("title", "body", "lent", "lentDate", "pages", "serial", "weight", "authors", "cover"));
    for (const NSPropertyDescription* property : book.properties())
        EXPECT_EQ(book.propertyNamed(property->name())->index(), property->index());
    EXPECT_EQ(book.propertyNamed("title"), item.propertyNamed("title"));
    EXPECT_EQ(&book.propertyNamed("title")->declaringEntity(), &item);
    EXPECT_EQ(item.propertyNamed("pages"), nullptr);
}

TEST(ModelReader, TiesEntitiesToTheirRoot)
{
    auto model = modelOf(kLibrary);
    const NSEntityDescription& item = *model->entityNamed("Item");
    const NSEntityDescription& book = *model->entityNamed("Book");
    EXPECT_TRUE(item.isAbstract());
    EXPECT_FALSE(book.isAbstract());
    EXPECT_EQ(book.superentity(), &item);
    EXPECT_EQ(&book.rootEntity(), &item);
    EXPECT_EQ(&item.rootEntity(), &item);
    EXPECT_THAT(item.subentities(), ElementsAre(&book));
    EXPECT_TRUE(book.isKindOfEntity(item));
    EXPECT_FALSE(item.isKindOfEntity(book));
}

TEST(ModelReader, ReadsAttributesWithTypesAndHints)
{
    auto model = modelOf(kLibrary);
    const NSEntityDescription& book = *model->entityNamed("Book");
    const NSAttributeDescription& title = *book.attributeNamed("title");
    EXPECT_EQ(title.type(), NSAttributeType::String);
    EXPECT_TRUE(
        title.isIndexed() && title.isFolded() && title.isSubstringIndexed() && title.group() == PropertyGroup::Text);
    EXPECT_FALSE(title.isLarge());
    EXPECT_TRUE(title.isOptional());
    EXPECT_TRUE(book.attributeNamed("body")->isLarge());
    EXPECT_EQ(book.attributeNamed("lent")->companion(), "lentDate");
    EXPECT_FALSE(book.attributeNamed("pages")->isOptional());
    EXPECT_TRUE(book.attributeNamed("weight")->isScalar());
    EXPECT_FALSE(book.attributeNamed("lentDate")->isScalar());
    EXPECT_EQ(book.attributeNamed("authors"), nullptr);
    EXPECT_EQ(book.relationshipNamed("title"), nullptr);
}

TEST(ModelReader, ReadsDefaultsExactly)
{
    auto model = modelOf(kLibrary);
    const NSEntityDescription& book = *model->entityNamed("Book");
    EXPECT_EQ(book.attributeNamed("lent")->defaultValue(), Value(false));
    EXPECT_EQ(book.attributeNamed("pages")->defaultValue(), Value(12));
    EXPECT_EQ(book.attributeNamed("serial")->defaultValue(), Value(std::int64_t{-9007199254740993}));
    EXPECT_EQ(book.attributeNamed("weight")->defaultValue(), Value(1.5));
    EXPECT_EQ(model->entityNamed("Author")->attributeNamed("name")->defaultValue(), Value("N. N."));
    EXPECT_TRUE(book.attributeNamed("title")->defaultValue().isNil());
}

TEST(ModelReader, DerivesWhereRelationshipsAreKept)
{
    struct Row {
        const char* entity;
        const char* relationship;
        RelationshipStorage storage;
        NSDeleteRule rule;
        bool toMany;
        bool owns;
    };
    const Row rows[] = {
        {"Book", "authors", RelationshipStorage::JoinTable, NSDeleteRule::NoAction, true, true},
        {"Author", "books", RelationshipStorage::JoinTable, NSDeleteRule::Deny, true, false},
        {"Book", "cover", RelationshipStorage::Column, NSDeleteRule::Cascade, false, false},
        {"Cover", "book", RelationshipStorage::InverseColumn, NSDeleteRule::Nullify, false, false},
        {"Cover", "portrayed", RelationshipStorage::Column, NSDeleteRule::Nullify, false, false},
        {"Author", "portraits", RelationshipStorage::InverseColumn, NSDeleteRule::Nullify, true, false},
    };
    auto model = modelOf(kLibrary);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.relationship);
        const auto* relationship = model->entityNamed(row.entity)->relationshipNamed(row.relationship);
        ASSERT_TRUE(relationship);
        EXPECT_EQ(relationship->storage(), row.storage);
        EXPECT_EQ(relationship->deleteRule(), row.rule);
        EXPECT_EQ(relationship->isToMany(), row.toMany);
        EXPECT_EQ(relationship->ownsJoinTable(), row.owns);
        EXPECT_EQ(&relationship->inverseRelationship().inverseRelationship(), relationship);
        EXPECT_EQ(&relationship->inverseRelationship().declaringEntity(), &relationship->destinationEntity());
    }
}

TEST(ModelReader, MarksPropertiesByMask)
{
    auto model = modelOf(kLibrary);
    const NSEntityDescription& book = *model->entityNamed("Book");
    auto bit = [&](const char* name) { return propertyBit(book.propertyNamed(name)->index()); };
    EXPECT_EQ(book.relationshipMask(), bit("authors") | bit("cover"));
    EXPECT_EQ(book.toManyMask(), bit("authors"));
    EXPECT_EQ(book.largeMask(), bit("body"));
    EXPECT_EQ(book.textGroupMask(), bit("title") | bit("body"));
}

TEST(ModelReader, SaysWhatGoesTogetherInAMerge)
{
    auto model = modelOf(R"({"version": "Groups", "entities": [{"name": "Note", "attributes": [
      {"name": "text", "type": "string", "group": "text", "leads": true},
      {"name": "title", "type": "string", "group": "text"},
      {"name": "used", "type": "bool", "group": "text", "companion": "usedDate"},
      {"name": "usedDate", "type": "date"},
      {"name": "pinned", "type": "bool", "companion": "pinnedDate"},
      {"name": "pinnedDate", "type": "date"},
      {"name": "secret", "type": "data", "group": "encryption"},
      {"name": "alone", "type": "int64"}]}]})");
    const NSEntityDescription& note = *model->entityNamed("Note");
    const auto bit = [&](const char* name) { return propertyBit(note.propertyNamed(name)->index()); };
    std::vector<std::pair<PropertyMask, PropertyMask>> groups;
    for (const MergeGroup& group : note.mergeGroups())
        groups.emplace_back(group.members, group.leads);
    EXPECT_THAT(groups,
        testing::UnorderedElementsAre(
            std::pair(bit("text") | bit("title") | bit("used") | bit("usedDate"), bit("text")),
            std::pair(bit("pinned") | bit("pinnedDate"), bit("pinned")), std::pair(bit("secret"), PropertyMask{0})));
    EXPECT_EQ(note.groupedMask(), bit("text") | bit("title") | bit("used") | bit("secret"));
}

TEST(ModelReader, RefusesALeaderWithoutAGroup)
{
    NSError error;
    EXPECT_FALSE(NSManagedObjectModel::modelWithText(
        R"({"version": "1", "entities": [{"name": "Note", "attributes": [{"name": "text", "type": "string", "leads": true}]}]})",
        &error));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("only a member of a group can lead it"));
}

TEST(ModelReader, ReadsIndexes)
{
    auto model = modelOf(kLibrary);
    const auto& indexes = model->entityNamed("Item")->indexes();
    ASSERT_EQ(indexes.size(), 1u);
    ASSERT_EQ(indexes[0].columns.size(), 2u);
    EXPECT_EQ(indexes[0].columns[0].property, "lent");
    EXPECT_FALSE(indexes[0].columns[0].descending);
    EXPECT_EQ(indexes[0].columns[1].property, "lentDate");
    EXPECT_TRUE(indexes[0].columns[1].descending);
    EXPECT_FALSE(indexes[0].unique);
}

// Hashes ------------------------------------------------------------------------------------------------------------

struct HashCase {
    const char* from;
    const char* to;
    const char* entity;
};

TEST(ModelHashes, ArePinned)
{
    auto model
        = modelOf(R"({"version": "1", "entities": [{"name": "Dot", "attributes": [{"name": "x", "type": "int16"}]}]})");
    EXPECT_EQ(model->entityNamed("Dot")->versionHash(), "cce1adfd033e4b97");
}

TEST(ModelHashes, MoveWhenRowsLookDifferent)
{
    const HashCase cases[] = {
        {R"("type": "int16")", R"("type": "int64")", "Book"},
        {R"("default": 12, "optional": false)", R"("default": 12, "optional": true)", "Book"},
        {R"("name": "pages")", R"("name": "leaves")", "Book"},
        {R"({"name": "lentDate", "type": "date"})",
            R"({"name": "lentDate", "type": "date", "storage": "row", "optional": false})", "Book"},
        {R"("type": "data", "storage": "large")", R"("type": "data")", "Cover"},
        {R"("abstract": true, )", "", "Item"},
    };
    auto before = modelOf(kLibrary);
    for (const HashCase& change : cases) {
        SCOPED_TRACE(change.to);
        auto after = modelOf(withReplaced(kLibrary, change.from, change.to));
        EXPECT_NE(after->entityNamed(change.entity)->versionHash(), before->entityNamed(change.entity)->versionHash());
        EXPECT_EQ(after->entityNamed("Author")->versionHash(), before->entityNamed("Author")->versionHash());
    }
}

TEST(ModelHashes, StayWhenRowsLookTheSame)
{
    const HashCase cases[] = {
        {R"("documentation": "Whatever stands on a shelf.")", R"("documentation": "Things.")", "Item"},
        {R"("delete": "deny")", R"("delete": "nullify")", "Author"},
        {R"("default": 12)", R"("default": 13)", "Book"},
        {R"("index": ["value", "folded", "substring"], )", "", "Book"},
        {R"("columns": ["lent", "lentDate desc"])", R"("columns": ["lentDate"])", "Item"},
        {R"({"name": "weight", "type": "double", "default": 1.5}])", R"({"name": "weight", "type": "double"}])",
            "Book"},
        {R"("version": "Library 2")", R"("version": "Library 3")", "Book"},
    };
    auto before = modelOf(kLibrary);
    for (const HashCase& change : cases) {
        SCOPED_TRACE(change.to);
        auto after = modelOf(withReplaced(kLibrary, change.from, change.to));
        EXPECT_EQ(after->entityVersionHashes(), before->entityVersionHashes());
    }
}

TEST(ModelHashes, AreSortedByEntityName)
{
    auto hashes = modelOf(kLibrary)->entityVersionHashes();
    ASSERT_EQ(hashes.size(), 4u);
    EXPECT_EQ(hashes[0].first, "Author");
    EXPECT_EQ(hashes[3].first, "Item");
}

// Mistakes ----------------------------------------------------------------------------------------------------------

struct Mistake {
    const char* from;
    const char* to;
    const char* message;
};

TEST(ModelReaderMistakes, NameTheirPlace)
{
    const Mistake mistakes[] = {
        {R"("version": "Library 2",)", "", R"(model: "version" is missing)"},
        {R"("version")", R"("colour": 1, "version")", R"(model: unknown key "colour")"},
        {R"("version")", R"("version": "x", "version")", R"(key "version" stands twice)"},
        {R"({"name": "Author",)", "{", R"(entity: "name" is missing)"},
        {R"({"name": "Author",)", R"({"name": "Au thor",)", R"(entity: "Au thor" is no name)"},
        {R"({"name": "Author",)", R"({"name": "_Author",)", R"(entity: "_Author" is no name)"},
        {R"({"name": "Author",)", R"({"name": "Author", "table": 1,)", R"(entity "Author": unknown key "table")"},
        {R"({"name": "Author",)", R"({"name": "Author", "abstract": 1,)",
            R"(entity "Author": "abstract" must be true or false)"},
        {R"({"name": "Cover",)", R"({"name": "author",)", R"(entity "author" stands twice)"},
        {R"("parent": "Item")", R"("parent": "Thing")", R"(entity "Book": unknown parent "Thing")"},
        {R"({"name": "Item",)", R"({"name": "Item", "parent": "Book",)", R"(entity "Item": its parents form a circle)"},
        {R"("type": "int16")", R"("type": "int8")", R"(entity "Book", attribute "pages": unknown type "int8")"},
        {R"("type": "int16", )", "", R"(entity "Book", attribute "pages": "type" is missing)"},
        {R"("optional": false)", R"("optinal": false)", R"(entity "Book", attribute "pages": unknown key "optinal")"},
        {R"("default": 12)", R"("default": "12")", R"(attribute "pages": default must be a whole number)"},
        {R"("default": 12)", R"("default": 32768)", R"(attribute "pages": default is out of range)"},
        {R"("default": -9007199254740993)", R"("default": 9223372036854775808)",
            R"(attribute "serial": default is out of range)"},
        {R"("default": false)", R"("default": 0)", R"(attribute "lent": default must be true or false)"},
        {R"("default": 1.5)", R"("default": true)", R"(attribute "weight": default must be a number)"},
        {R"("default": "N. N.")", R"("default": 1)", R"(attribute "name": default must be a string)"},
        {R"("type": "date")", R"("type": "date", "default": 0)",
            R"(attribute "lentDate": a date or data has no default)"},
        {R"("storage": "large", "index")", R"("storage": "huge", "index")",
            R"(attribute "body": unknown storage "huge")"},
        {R"("storage": "large", "index": [)", R"("storage": "large", "index": ["value", )",
            "can only be indexed by substring"},
        {R"("type": "double")", R"("type": "double", "storage": "large")", "only a string or data can be large"},
        {R"("type": "double")", R"("type": "double", "index": ["folded"])", "only a string can be indexed folded"},
        {R"("index": ["substring"])", R"("index": ["prefix"])", R"(attribute "body": unknown index "prefix")"},
        {R"("group": "text"})", R"("group": "size"})", R"(attribute "title": unknown group "size")"},
        {R"("companion": "lentDate")", R"("companion": "title")",
            R"(entity "Item", attribute "lent": companion "title" is no date)"},
        {R"("name": "weight")", R"("name": "Serial")", R"(entity "Book": property "Serial" stands twice)"},
        {R"("name": "weight")", R"("name": "title")", R"(entity "Book": property "title" stands twice)"},
        {R"("to": "Author", "many")", R"("to": "Writer", "many")",
            R"(entity "Book", relationship "authors": unknown destination "Writer")"},
        {R"("inverse": "books", "owner")", R"("inverse": "works", "owner")",
            R"(entity "Book", relationship "authors": "Author" has no other relationship "works")"},
        {R"("inverse": "portraits")", R"("inverse": "books")",
            R"(relationship "portraits": "portrayed" is not its inverse in turn)"},
        {R"("delete": "deny")", R"("delete": "forbid")", R"(relationship "books": unknown delete "forbid")"},
        {R"(, "column": true)", "", R"(relationship "cover": exactly one end of a one-to-one pair has the column)"},
        {R"("inverse": "cover")", R"("inverse": "cover", "column": true)",
            "exactly one end of a one-to-one pair has the column"},
        {R"("inverse": "portraits")", R"("inverse": "portraits", "column": true)",
            R"("column" is for one-to-one pairs only)"},
        {R"(, "owner": true)", "", R"(relationship "authors": exactly one end of a many-to-many pair is the owner)"},
        {R"("inverse": "authors")", R"("inverse": "authors", "owner": true)",
            "exactly one end of a many-to-many pair is the owner"},
        {R"("inverse": "portraits")", R"("inverse": "portraits", "owner": true)",
            R"("owner" is for many-to-many pairs only)"},
        {R"("lentDate desc")", R"("lendDate desc")", R"(entity "Item", index: unknown column "lendDate")"},
        {R"("lentDate desc")", R"("body")", R"(entity "Item", index: "body" has no column in the row)"},
        {R"("columns": ["lent", "lentDate desc"])", R"("columns": [])", R"("columns" is missing)"},
        {R"("version": "Library 2")", R"("version" "Library 2")", "not JSON"},
    };
    for (const Mistake& mistake : mistakes) {
        SCOPED_TRACE(mistake.to);
        NSError error;
        EXPECT_FALSE(NSManagedObjectModel::modelWithText(withReplaced(kLibrary, mistake.from, mistake.to), &error));
        EXPECT_EQ(error.domain(), TarnStoreErrorDomain);
        EXPECT_EQ(error.code(), StoreErrorInvalidModel);
        EXPECT_THAT(error.localizedDescription(), HasSubstr(mistake.message));
    }
}

TEST(ModelReaderMistakes, IncludeMoreThanSixtyFourProperties)
{
    auto withAttributes = [](int count) {
        std::string text = R"({"version": "1", "entities": [{"name": "Wide", "attributes": [)";
        for (int i = 0; i < count; ++i)
            text += (i ? ", " : "") + (R"({"name": "a)" + std::to_string(i) + R"(", "type": "bool"})");
        return text + "]}]}";
    };
    EXPECT_TRUE(NSManagedObjectModel::modelWithText(withAttributes(64)));
    NSError error;
    EXPECT_FALSE(NSManagedObjectModel::modelWithText(withAttributes(65), &error));
    EXPECT_EQ(error.localizedDescription(), R"(entity "Wide": more than 64 properties)");
}

TEST(ModelReaderMistakes, IncludeAFileThatCannotBeRead)
{
    NSError error;
    EXPECT_FALSE(NSManagedObjectModel::modelWithContentsOfFile("/nowhere/Model.json", &error));
    EXPECT_EQ(error.localizedDescription(), "/nowhere/Model.json: cannot be read");
    EXPECT_FALSE(NSManagedObjectModel::modelWithContentsOfFile(std::filesystem::temp_directory_path(), &error));
}

} // namespace
} // namespace tarn
