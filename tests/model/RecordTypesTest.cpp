#include "tarnmodel/model/ManagedObjectModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The record types name by name: what synchronised devices, backups and stored predicates rely on.

namespace tarn {
namespace {

enum class Cardinality { One, Many };

struct AttributeRow {
    std::string_view entity;
    std::string_view name;
    NSAttributeType type;
};

constexpr AttributeRow kAttributes[] = {
    {"OVNote", "uniqueIdentifier", NSAttributeType::String},
    {"OVNote", "title", NSAttributeType::String},
    {"OVNote", "subtitle", NSAttributeType::String},
    {"OVNote", "text", NSAttributeType::String},
    {"OVNote", "creationDate", NSAttributeType::Date},
    {"OVNote", "modificationDate", NSAttributeType::Date},
    {"OVNote", "lastEditingDevice", NSAttributeType::String},
    {"OVNote", "version", NSAttributeType::Integer16},
    {"OVNote", "archived", NSAttributeType::Boolean},
    {"OVNote", "archivedDate", NSAttributeType::Date},
    {"OVNote", "trashed", NSAttributeType::Boolean},
    {"OVNote", "trashedDate", NSAttributeType::Date},
    {"OVNote", "permanentlyDeleted", NSAttributeType::Boolean},
    {"OVNote", "pinned", NSAttributeType::Boolean},
    {"OVNote", "pinnedDate", NSAttributeType::Date},
    {"OVNote", "locked", NSAttributeType::Boolean},
    {"OVNote", "lockedDate", NSAttributeType::Date},
    {"OVNote", "order", NSAttributeType::Integer64},
    {"OVNote", "orderDate", NSAttributeType::Date},
    {"OVNote", "shownInTodayWidget", NSAttributeType::Boolean},
    {"OVNote", "skipSync", NSAttributeType::Boolean},
    {"OVNote", "hasFiles", NSAttributeType::Boolean},
    {"OVNote", "hasImages", NSAttributeType::Boolean},
    {"OVNote", "hasSourceCode", NSAttributeType::Boolean},
    {"OVNote", "todoCompleted", NSAttributeType::Integer16},
    {"OVNote", "todoIncompleted", NSAttributeType::Integer16},
    {"OVNote", "encrypted", NSAttributeType::Boolean},
    {"OVNote", "encryptedData", NSAttributeType::Data},
    {"OVNote", "encryptionDate", NSAttributeType::Date},
    {"OVNote", "encryptionUniqueIdentifier", NSAttributeType::String},
    {"OVNote", "conflictUniqueIdentifier", NSAttributeType::String},
    {"OVNote", "conflictUniqueIdentifierDate", NSAttributeType::Date},
    {"OVNote", "vectorClock", NSAttributeType::Data},
    {"OVNoteTag", "uniqueIdentifier", NSAttributeType::String},
    {"OVNoteTag", "title", NSAttributeType::String},
    {"OVNoteTag", "modificationDate", NSAttributeType::Date},
    {"OVNoteTag", "version", NSAttributeType::Integer16},
    {"OVNoteTag", "isRoot", NSAttributeType::Boolean},
    {"OVNoteTag", "pinned", NSAttributeType::Boolean},
    {"OVNoteTag", "pinnedDate", NSAttributeType::Date},
    {"OVNoteTag", "pinnedNotesDate", NSAttributeType::Date},
    {"OVNoteTag", "sorting", NSAttributeType::Integer16},
    {"OVNoteTag", "sortingDate", NSAttributeType::Date},
    {"OVNoteTag", "sortingDirection", NSAttributeType::Boolean},
    {"OVNoteTag", "sortingDirectionDate", NSAttributeType::Date},
    {"OVNoteTag", "tagcon", NSAttributeType::String},
    {"OVNoteTag", "tagconDate", NSAttributeType::Date},
    {"OVNoteTag", "hideSubtagsNotes", NSAttributeType::Boolean},
    {"OVNoteTag", "hideSubtagsNotesDate", NSAttributeType::Date},
    {"OVNoteTag", "encrypted", NSAttributeType::Boolean},
    {"OVNoteTag", "encryptedDate", NSAttributeType::Date},
    {"OVNoteTag", "serverData", NSAttributeType::Data},
    {"OVNoteFile", "uniqueIdentifier", NSAttributeType::String},
    {"OVNoteFile", "filename", NSAttributeType::String},
    {"OVNoteFile", "normalizedFileExtension", NSAttributeType::String},
    {"OVNoteFile", "fileSize", NSAttributeType::Integer64},
    {"OVNoteFile", "index", NSAttributeType::Integer64},
    {"OVNoteFile", "creationDate", NSAttributeType::Date},
    {"OVNoteFile", "modificationDate", NSAttributeType::Date},
    {"OVNoteFile", "insertionDate", NSAttributeType::Date},
    {"OVNoteFile", "lastEditingDevice", NSAttributeType::String},
    {"OVNoteFile", "version", NSAttributeType::Integer16},
    {"OVNoteFile", "downloaded", NSAttributeType::Boolean},
    {"OVNoteFile", "uploaded", NSAttributeType::Boolean},
    {"OVNoteFile", "uploadedDate", NSAttributeType::Date},
    {"OVNoteFile", "unused", NSAttributeType::Boolean},
    {"OVNoteFile", "unusedDate", NSAttributeType::Date},
    {"OVNoteFile", "permanentlyDeleted", NSAttributeType::Boolean},
    {"OVNoteFile", "skipSync", NSAttributeType::Boolean},
    {"OVNoteFile", "searchText", NSAttributeType::String},
    {"OVNoteFile", "searchTextDate", NSAttributeType::Date},
    {"OVNoteFile", "encrypted", NSAttributeType::Boolean},
    {"OVNoteFile", "encryptedData", NSAttributeType::Data},
    {"OVNoteFile", "encryptionDate", NSAttributeType::Date},
    {"OVNoteFile", "encryptionUniqueIdentifier", NSAttributeType::String},
    {"OVNoteImage", "animated", NSAttributeType::Boolean},
    {"OVNoteImage", "width", NSAttributeType::Integer64},
    {"OVNoteImage", "height", NSAttributeType::Integer64},
    {"OVNoteBackLink", "uniqueIdentifier", NSAttributeType::String},
    {"OVNoteBackLink", "title", NSAttributeType::String},
    {"OVNoteBackLink", "location", NSAttributeType::Integer64},
    {"OVNoteBackLink", "modificationDate", NSAttributeType::Date},
    {"OVNoteBackLink", "version", NSAttributeType::Integer16},
    {"OVNoteBackLink", "serverData", NSAttributeType::Data},
    {"OVPassword", "uniqueIdentifier", NSAttributeType::String},
    {"OVPassword", "creationDate", NSAttributeType::Date},
    {"OVPassword", "creationDevice", NSAttributeType::String},
    {"OVPassword", "encryptedData", NSAttributeType::Data},
    {"OVPassword", "encryptionVersion", NSAttributeType::Integer16},
    {"OVPassword", "hint", NSAttributeType::Data},
    {"OVPassword", "biometry", NSAttributeType::Boolean},
    {"OVChange", "token", NSAttributeType::String},
    {"OVChange", "order", NSAttributeType::Integer64},
    {"OVChangeItem", "itemEntity", NSAttributeType::String},
    {"OVChangeItem", "uniqueIdentifier", NSAttributeType::String},
    {"OVChangeItem", "itemDeleted", NSAttributeType::Boolean},
    {"OVInternalChanges", "changeType", NSAttributeType::String},
    {"OVInternalChanges", "itemChange", NSAttributeType::Integer16},
    {"OVInternalChanges", "itemObjectID", NSAttributeType::String},
    {"OVExternalChanges", "itemEntity", NSAttributeType::String},
    {"OVExternalChanges", "itemChange", NSAttributeType::Integer16},
    {"OVExternalChanges", "itemObjectID", NSAttributeType::String},
    {"OVServerMetadata", "noteZoneIDData", NSAttributeType::Data},
    {"OVServerMetadata", "serverChangeTokenData", NSAttributeType::Data},
    {"OVServerMetadata", "noteZoneSubscriptionID", NSAttributeType::String},
    {"OVNoteServerData", "systemFields", NSAttributeType::Data},
    {"OVNoteFileServerData", "systemFields", NSAttributeType::Data},
};

struct RelationshipRow {
    std::string_view entity;
    std::string_view name;
    Cardinality cardinality;
    std::string_view destination;
    std::string_view inverse;
};

constexpr RelationshipRow kRelationships[] = {
    {"OVNote", "tags", Cardinality::Many, "OVNoteTag", "notes"},
    {"OVNote", "pinnedInTags", Cardinality::Many, "OVNoteTag", "pinnedNotes"},
    {"OVNote", "files", Cardinality::Many, "OVNoteFile", "note"},
    {"OVNote", "linkingTo", Cardinality::Many, "OVNoteBackLink", "linkedBy"},
    {"OVNote", "linkedBy", Cardinality::Many, "OVNoteBackLink", "linkingTo"},
    {"OVNote", "password", Cardinality::One, "OVPassword", "notes"},
    {"OVNote", "serverData", Cardinality::One, "OVNoteServerData", "note"},
    {"OVNoteTag", "notes", Cardinality::Many, "OVNote", "tags"},
    {"OVNoteTag", "pinnedNotes", Cardinality::Many, "OVNote", "pinnedInTags"},
    {"OVNoteFile", "note", Cardinality::One, "OVNote", "files"},
    {"OVNoteFile", "password", Cardinality::One, "OVPassword", "files"},
    {"OVNoteFile", "serverData", Cardinality::One, "OVNoteFileServerData", "file"},
    {"OVNoteBackLink", "linkedBy", Cardinality::One, "OVNote", "linkingTo"},
    {"OVNoteBackLink", "linkingTo", Cardinality::One, "OVNote", "linkedBy"},
    {"OVPassword", "notes", Cardinality::Many, "OVNote", "password"},
    {"OVPassword", "files", Cardinality::Many, "OVNoteFile", "password"},
    {"OVChange", "items", Cardinality::Many, "OVChangeItem", "change"},
    {"OVChangeItem", "change", Cardinality::One, "OVChange", "items"},
    {"OVNoteServerData", "note", Cardinality::One, "OVNote", "serverData"},
    {"OVNoteFileServerData", "file", Cardinality::One, "OVNoteFile", "serverData"},
};

struct EntityRow {
    std::string_view name;
    std::string_view parent;
    bool abstract;
};

constexpr EntityRow kEntities[] = {
    {"OVNote", "", false},
    {"OVNoteTag", "", false},
    {"OVNoteFile", "", true},
    {"OVNoteImage", "OVNoteFile", false},
    {"OVNoteGenericFile", "OVNoteFile", false},
    {"OVNoteBackLink", "", false},
    {"OVPassword", "", false},
    {"OVChange", "", false},
    {"OVChangeItem", "", false},
    {"OVInternalChanges", "", false},
    {"OVExternalChanges", "", false},
    {"OVServerMetadata", "", false},
    {"OVNoteServerData", "", false},
    {"OVNoteFileServerData", "", false},
};

struct CompanionRow {
    std::string_view entity;
    std::string_view attribute;
    std::string_view companion;
    friend auto operator<=>(const CompanionRow&, const CompanionRow&) = default;
    friend std::ostream& operator<<(std::ostream& stream, const CompanionRow& row)
    {
        return stream << row.entity << '.' << row.attribute << " - " << row.companion;
    }
};

// The list of pinned notes has a companion too; it is no attribute.
const std::set<CompanionRow> kCompanions = {
    {"OVNote", "archived", "archivedDate"},
    {"OVNote", "conflictUniqueIdentifier", "conflictUniqueIdentifierDate"},
    {"OVNote", "locked", "lockedDate"},
    {"OVNote", "order", "orderDate"},
    {"OVNote", "pinned", "pinnedDate"},
    {"OVNote", "trashed", "trashedDate"},
    {"OVNoteTag", "encrypted", "encryptedDate"},
    {"OVNoteTag", "hideSubtagsNotes", "hideSubtagsNotesDate"},
    {"OVNoteTag", "pinned", "pinnedDate"},
    {"OVNoteTag", "sorting", "sortingDate"},
    {"OVNoteTag", "sortingDirection", "sortingDirectionDate"},
    {"OVNoteTag", "tagcon", "tagconDate"},
    {"OVNoteFile", "searchText", "searchTextDate"},
    {"OVNoteFile", "unused", "unusedDate"},
    {"OVNoteFile", "uploaded", "uploadedDate"},
};

struct DeleteRuleRow {
    std::string_view entity;
    std::string_view relationship;
    NSDeleteRule rule;
};

constexpr DeleteRuleRow kDeleteRules[] = {
    {"OVNote", "tags", NSDeleteRule::Nullify},
    {"OVNote", "pinnedInTags", NSDeleteRule::Nullify},
    {"OVNote", "files", NSDeleteRule::Cascade},
    {"OVNote", "linkingTo", NSDeleteRule::Cascade},
    {"OVNote", "linkedBy", NSDeleteRule::Nullify},
    {"OVNote", "password", NSDeleteRule::Nullify},
    {"OVNote", "serverData", NSDeleteRule::Cascade},
    {"OVNoteTag", "notes", NSDeleteRule::Nullify},
    {"OVNoteTag", "pinnedNotes", NSDeleteRule::Nullify},
    {"OVNoteFile", "note", NSDeleteRule::Nullify},
    {"OVNoteFile", "password", NSDeleteRule::Nullify},
    {"OVNoteFile", "serverData", NSDeleteRule::Cascade},
    {"OVNoteBackLink", "linkedBy", NSDeleteRule::Nullify},
    {"OVNoteBackLink", "linkingTo", NSDeleteRule::Nullify},
    {"OVPassword", "notes", NSDeleteRule::Deny},
    {"OVPassword", "files", NSDeleteRule::Deny},
    {"OVChange", "items", NSDeleteRule::Cascade},
    {"OVChangeItem", "change", NSDeleteRule::Nullify},
    {"OVNoteServerData", "note", NSDeleteRule::Nullify},
    {"OVNoteFileServerData", "file", NSDeleteRule::Nullify},
};

class RecordTypes : public testing::Test {
protected:
    void SetUp() override
    {
        NSError error;
        model_ = OVManagedObjectModel::current(&error);
        ASSERT_TRUE(model_) << error;
    }

    const NSEntityDescription& entity(std::string_view name) const { return *model_->entityNamed(name); }

    std::shared_ptr<const NSManagedObjectModel> model_;
};

TEST_F(RecordTypes, AreFourteenInAFixedOrder)
{
    ASSERT_EQ(model_->entities().size(), std::size(kEntities));
    for (std::size_t i = 0; i < std::size(kEntities); ++i) {
        const NSEntityDescription& found = *model_->entities()[i];
        EXPECT_EQ(found.name(), kEntities[i].name);
        EXPECT_EQ(found.isAbstract(), kEntities[i].abstract) << found.name();
        EXPECT_EQ(found.superentity() ? found.superentity()->name() : "", kEntities[i].parent) << found.name();
    }
}

TEST_F(RecordTypes, HaveTheseAttributesAndNoOthers)
{
    std::size_t count = 0;
    for (const NSEntityDescription* type : model_->entities()) {
        for (const NSAttributeDescription* attribute : type->attributes())
            count += &attribute->declaringEntity() == type;
    }
    EXPECT_EQ(count, std::size(kAttributes));
    for (const AttributeRow& row : kAttributes) {
        SCOPED_TRACE(std::string(row.entity) + "." + std::string(row.name));
        const NSAttributeDescription* attribute = entity(row.entity).attributeNamed(row.name);
        ASSERT_TRUE(attribute);
        EXPECT_EQ(attribute->type(), row.type);
        EXPECT_EQ(attribute->declaringEntity().name(), row.entity);
        EXPECT_FALSE(attribute->documentation().empty());
    }
}

TEST_F(RecordTypes, HaveTheseRelationshipsAndNoOthers)
{
    std::size_t count = 0;
    for (const NSEntityDescription* type : model_->entities()) {
        for (const NSRelationshipDescription* relationship : type->relationships())
            count += &relationship->declaringEntity() == type;
    }
    EXPECT_EQ(count, std::size(kRelationships));
    for (const RelationshipRow& row : kRelationships) {
        SCOPED_TRACE(std::string(row.entity) + "." + std::string(row.name));
        const NSRelationshipDescription* relationship = entity(row.entity).relationshipNamed(row.name);
        ASSERT_TRUE(relationship);
        EXPECT_EQ(relationship->isToMany(), row.cardinality == Cardinality::Many);
        EXPECT_EQ(relationship->destinationEntity().name(), row.destination);
        EXPECT_EQ(relationship->inverseRelationship().name(), row.inverse);
    }
}

TEST_F(RecordTypes, StartWithFlagsNoCountersZeroAndNothingElse)
{
    for (const AttributeRow& row : kAttributes) {
        const Value& found = entity(row.entity).attributeNamed(row.name)->defaultValue();
        SCOPED_TRACE(std::string(row.entity) + "." + std::string(row.name));
        if (row.type == NSAttributeType::Boolean)
            EXPECT_EQ(found, Value(false));
        else if (row.type == NSAttributeType::Integer16 || row.type == NSAttributeType::Integer64)
            EXPECT_EQ(found, Value(0));
        else
            EXPECT_TRUE(found.isNil());
    }
}

TEST_F(RecordTypes, DateExactlyTheseAttributes)
{
    std::set<CompanionRow> found;
    for (const NSEntityDescription* type : model_->entities()) {
        for (const NSAttributeDescription* attribute : type->attributes()) {
            if (&attribute->declaringEntity() == type && !attribute->companion().empty())
                found.insert({type->name(), attribute->name(), attribute->companion()});
        }
    }
    EXPECT_EQ(found, kCompanions);
    EXPECT_EQ(entity("OVNoteTag").attributeNamed("pinnedNotesDate")->type(), NSAttributeType::Date);
}

TEST_F(RecordTypes, TakeTheirPartsAlongWhenTheyGo)
{
    ASSERT_EQ(std::size(kDeleteRules), std::size(kRelationships));
    for (const DeleteRuleRow& row : kDeleteRules)
        EXPECT_EQ(entity(row.entity).relationshipNamed(row.relationship)->deleteRule(), row.rule)
            << row.entity << '.' << row.relationship;
}

TEST_F(RecordTypes, KeepArchivesOfTheServerOnTheSideOfTheContent)
{
    EXPECT_EQ(entity("OVNote").relationshipNamed("serverData")->storage(), RelationshipStorage::Column);
    EXPECT_EQ(entity("OVNoteFile").relationshipNamed("serverData")->storage(), RelationshipStorage::Column);
    EXPECT_TRUE(entity("OVNote").relationshipNamed("tags")->ownsJoinTable());
    EXPECT_TRUE(entity("OVNote").relationshipNamed("pinnedInTags")->ownsJoinTable());
}

std::set<std::string> namesOf(const NSEntityDescription& entity, PropertyMask mask)
{
    std::set<std::string> names;
    for (const NSPropertyDescription* property : entity.properties()) {
        if (mask & propertyBit(property->index()))
            names.insert(property->name());
    }
    return names;
}

TEST_F(RecordTypes, KeepWhatDerivesFromTheTextTogether)
{
    const NSEntityDescription& note = entity("OVNote");
    const NSEntityDescription& file = entity("OVNoteImage");
    EXPECT_THAT(namesOf(note, note.textGroupMask()),
        testing::UnorderedElementsAre("text", "title", "subtitle", "todoCompleted", "todoIncompleted", "hasFiles",
            "hasImages", "hasSourceCode", "vectorClock", "lastEditingDevice", "modificationDate", "tags", "linkingTo",
            "files", "encrypted", "encryptedData", "encryptionDate", "encryptionUniqueIdentifier", "password"));
    EXPECT_THAT(namesOf(file, file.textGroupMask()), testing::UnorderedElementsAre("unused", "unusedDate", "index"));
}

TEST_F(RecordTypes, KeepLargeValuesOutOfTheRow)
{
    const NSEntityDescription& note = entity("OVNote");
    const NSEntityDescription& image = entity("OVNoteImage");
    const NSEntityDescription& tag = entity("OVNoteTag");
    EXPECT_THAT(namesOf(note, note.largeMask()), testing::UnorderedElementsAre("text", "encryptedData", "vectorClock"));
    EXPECT_THAT(namesOf(image, image.largeMask()), testing::UnorderedElementsAre("encryptedData", "searchText"));
    EXPECT_THAT(namesOf(tag, tag.largeMask()), testing::UnorderedElementsAre("serverData"));
}

TEST_F(RecordTypes, AreIndexedWhereLookUpsNeedIt)
{
    for (const char* type : {"OVNote", "OVNoteTag", "OVNoteFile", "OVNoteBackLink", "OVPassword"})
        EXPECT_TRUE(entity(type).attributeNamed("uniqueIdentifier")->isIndexed()) << type;
    for (const char* type : {"OVNote", "OVNoteTag", "OVNoteBackLink"})
        EXPECT_TRUE(entity(type).attributeNamed("title")->isFolded()) << type;
    EXPECT_TRUE(entity("OVNote").attributeNamed("text")->isSubstringIndexed());
    EXPECT_TRUE(entity("OVNoteImage").attributeNamed("searchText")->isSubstringIndexed());
}

} // namespace
} // namespace tarn
