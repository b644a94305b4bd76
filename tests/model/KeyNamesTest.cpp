#include "tarnmodel/TarnModel.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

// Entities without relationships have no class for them.
#if __has_include("tarnmodel/model/OVInternalChangesRelationships.h")                                                  \
    || __has_include("tarnmodel/model/OVExternalChangesRelationships.h")                                               \
        || __has_include("tarnmodel/model/OVServerMetadataRelationships.h")
#error "a key-name class without keys"
#endif

namespace tarn {
namespace {

struct KeyNames {
    std::string_view entity;
    std::vector<std::string_view> attributes;
    std::vector<std::string_view> relationships;
};

// Inherited keys come first.
const KeyNames kKeyNames[] = {
    {"OVNote",
        {OVNoteAttributes::uniqueIdentifier(), OVNoteAttributes::title(), OVNoteAttributes::subtitle(),
            OVNoteAttributes::text(), OVNoteAttributes::creationDate(), OVNoteAttributes::modificationDate(),
            OVNoteAttributes::lastEditingDevice(), OVNoteAttributes::version(), OVNoteAttributes::archived(),
            OVNoteAttributes::archivedDate(), OVNoteAttributes::trashed(), OVNoteAttributes::trashedDate(),
            OVNoteAttributes::permanentlyDeleted(), OVNoteAttributes::pinned(), OVNoteAttributes::pinnedDate(),
            OVNoteAttributes::locked(), OVNoteAttributes::lockedDate(), OVNoteAttributes::order(),
            OVNoteAttributes::orderDate(), OVNoteAttributes::shownInTodayWidget(), OVNoteAttributes::skipSync(),
            OVNoteAttributes::hasFiles(), OVNoteAttributes::hasImages(), OVNoteAttributes::hasSourceCode(),
            OVNoteAttributes::todoCompleted(), OVNoteAttributes::todoIncompleted(), OVNoteAttributes::encrypted(),
            OVNoteAttributes::encryptedData(), OVNoteAttributes::encryptionDate(),
            OVNoteAttributes::encryptionUniqueIdentifier(), OVNoteAttributes::conflictUniqueIdentifier(),
            OVNoteAttributes::conflictUniqueIdentifierDate(), OVNoteAttributes::vectorClock()},
        {OVNoteRelationships::tags(), OVNoteRelationships::pinnedInTags(), OVNoteRelationships::files(),
            OVNoteRelationships::linkingTo(), OVNoteRelationships::linkedBy(), OVNoteRelationships::password(),
            OVNoteRelationships::serverData()}},
    {"OVNoteTag",
        {OVNoteTagAttributes::uniqueIdentifier(), OVNoteTagAttributes::title(), OVNoteTagAttributes::modificationDate(),
            OVNoteTagAttributes::version(), OVNoteTagAttributes::isRoot(), OVNoteTagAttributes::pinned(),
            OVNoteTagAttributes::pinnedDate(), OVNoteTagAttributes::pinnedNotesDate(), OVNoteTagAttributes::sorting(),
            OVNoteTagAttributes::sortingDate(), OVNoteTagAttributes::sortingDirection(),
            OVNoteTagAttributes::sortingDirectionDate(), OVNoteTagAttributes::tagcon(),
            OVNoteTagAttributes::tagconDate(), OVNoteTagAttributes::hideSubtagsNotes(),
            OVNoteTagAttributes::hideSubtagsNotesDate(), OVNoteTagAttributes::encrypted(),
            OVNoteTagAttributes::encryptedDate(), OVNoteTagAttributes::serverData()},
        {OVNoteTagRelationships::notes(), OVNoteTagRelationships::pinnedNotes()}},
    {"OVNoteFile",
        {OVNoteFileAttributes::uniqueIdentifier(), OVNoteFileAttributes::filename(),
            OVNoteFileAttributes::normalizedFileExtension(), OVNoteFileAttributes::fileSize(),
            OVNoteFileAttributes::index(), OVNoteFileAttributes::creationDate(),
            OVNoteFileAttributes::modificationDate(), OVNoteFileAttributes::insertionDate(),
            OVNoteFileAttributes::lastEditingDevice(), OVNoteFileAttributes::version(),
            OVNoteFileAttributes::downloaded(), OVNoteFileAttributes::uploaded(), OVNoteFileAttributes::uploadedDate(),
            OVNoteFileAttributes::unused(), OVNoteFileAttributes::unusedDate(),
            OVNoteFileAttributes::permanentlyDeleted(), OVNoteFileAttributes::skipSync(),
            OVNoteFileAttributes::searchText(), OVNoteFileAttributes::searchTextDate(),
            OVNoteFileAttributes::encrypted(), OVNoteFileAttributes::encryptedData(),
            OVNoteFileAttributes::encryptionDate(), OVNoteFileAttributes::encryptionUniqueIdentifier()},
        {OVNoteFileRelationships::note(), OVNoteFileRelationships::password(), OVNoteFileRelationships::serverData()}},
    {"OVNoteImage",
        {OVNoteImageAttributes::uniqueIdentifier(), OVNoteImageAttributes::filename(),
            OVNoteImageAttributes::normalizedFileExtension(), OVNoteImageAttributes::fileSize(),
            OVNoteImageAttributes::index(), OVNoteImageAttributes::creationDate(),
            OVNoteImageAttributes::modificationDate(), OVNoteImageAttributes::insertionDate(),
            OVNoteImageAttributes::lastEditingDevice(), OVNoteImageAttributes::version(),
            OVNoteImageAttributes::downloaded(), OVNoteImageAttributes::uploaded(),
            OVNoteImageAttributes::uploadedDate(), OVNoteImageAttributes::unused(), OVNoteImageAttributes::unusedDate(),
            OVNoteImageAttributes::permanentlyDeleted(), OVNoteImageAttributes::skipSync(),
            OVNoteImageAttributes::searchText(), OVNoteImageAttributes::searchTextDate(),
            OVNoteImageAttributes::encrypted(), OVNoteImageAttributes::encryptedData(),
            OVNoteImageAttributes::encryptionDate(), OVNoteImageAttributes::encryptionUniqueIdentifier(),
            OVNoteImageAttributes::animated(), OVNoteImageAttributes::width(), OVNoteImageAttributes::height()},
        {OVNoteImageRelationships::note(), OVNoteImageRelationships::password(),
            OVNoteImageRelationships::serverData()}},
    {"OVNoteGenericFile",
        {OVNoteGenericFileAttributes::uniqueIdentifier(), OVNoteGenericFileAttributes::filename(),
            OVNoteGenericFileAttributes::normalizedFileExtension(), OVNoteGenericFileAttributes::fileSize(),
            OVNoteGenericFileAttributes::index(), OVNoteGenericFileAttributes::creationDate(),
            OVNoteGenericFileAttributes::modificationDate(), OVNoteGenericFileAttributes::insertionDate(),
            OVNoteGenericFileAttributes::lastEditingDevice(), OVNoteGenericFileAttributes::version(),
            OVNoteGenericFileAttributes::downloaded(), OVNoteGenericFileAttributes::uploaded(),
            OVNoteGenericFileAttributes::uploadedDate(), OVNoteGenericFileAttributes::unused(),
            OVNoteGenericFileAttributes::unusedDate(), OVNoteGenericFileAttributes::permanentlyDeleted(),
            OVNoteGenericFileAttributes::skipSync(), OVNoteGenericFileAttributes::searchText(),
            OVNoteGenericFileAttributes::searchTextDate(), OVNoteGenericFileAttributes::encrypted(),
            OVNoteGenericFileAttributes::encryptedData(), OVNoteGenericFileAttributes::encryptionDate(),
            OVNoteGenericFileAttributes::encryptionUniqueIdentifier()},
        {OVNoteGenericFileRelationships::note(), OVNoteGenericFileRelationships::password(),
            OVNoteGenericFileRelationships::serverData()}},
    {"OVNoteBackLink",
        {OVNoteBackLinkAttributes::uniqueIdentifier(), OVNoteBackLinkAttributes::title(),
            OVNoteBackLinkAttributes::location(), OVNoteBackLinkAttributes::modificationDate(),
            OVNoteBackLinkAttributes::version(), OVNoteBackLinkAttributes::serverData()},
        {OVNoteBackLinkRelationships::linkedBy(), OVNoteBackLinkRelationships::linkingTo()}},
    {"OVPassword",
        {OVPasswordAttributes::uniqueIdentifier(), OVPasswordAttributes::creationDate(),
            OVPasswordAttributes::creationDevice(), OVPasswordAttributes::encryptedData(),
            OVPasswordAttributes::encryptionVersion(), OVPasswordAttributes::hint(), OVPasswordAttributes::biometry()},
        {OVPasswordRelationships::notes(), OVPasswordRelationships::files()}},
    {"OVChange", {OVChangeAttributes::token(), OVChangeAttributes::order()}, {OVChangeRelationships::items()}},
    {"OVChangeItem",
        {OVChangeItemAttributes::itemEntity(), OVChangeItemAttributes::uniqueIdentifier(),
            OVChangeItemAttributes::itemDeleted()},
        {OVChangeItemRelationships::change()}},
    {"OVInternalChanges",
        {OVInternalChangesAttributes::changeType(), OVInternalChangesAttributes::itemChange(),
            OVInternalChangesAttributes::itemObjectID()},
        {}},
    {"OVExternalChanges",
        {OVExternalChangesAttributes::itemEntity(), OVExternalChangesAttributes::itemChange(),
            OVExternalChangesAttributes::itemObjectID()},
        {}},
    {"OVServerMetadata",
        {OVServerMetadataAttributes::noteZoneIDData(), OVServerMetadataAttributes::serverChangeTokenData(),
            OVServerMetadataAttributes::noteZoneSubscriptionID()},
        {}},
    {"OVNoteServerData", {OVNoteServerDataAttributes::systemFields()}, {OVNoteServerDataRelationships::note()}},
    {"OVNoteFileServerData", {OVNoteFileServerDataAttributes::systemFields()},
        {OVNoteFileServerDataRelationships::file()}},
};

TEST(KeyNames, AreTheNamesOfTheModel)
{
    auto model = OVManagedObjectModel::current();
    ASSERT_TRUE(model);
    ASSERT_EQ(std::size(kKeyNames), model->entities().size());
    for (const KeyNames& row : kKeyNames) {
        SCOPED_TRACE(row.entity);
        const NSEntityDescription& entity = *model->entityNamed(row.entity);
        std::vector<std::string_view> attributes;
        for (const NSAttributeDescription* attribute : entity.attributes())
            attributes.push_back(attribute->name());
        std::vector<std::string_view> relationships;
        for (const NSRelationshipDescription* relationship : entity.relationships())
            relationships.push_back(relationship->name());
        EXPECT_EQ(row.attributes, attributes);
        EXPECT_EQ(row.relationships, relationships);
    }
}

TEST(KeyNames, CanBeSpelledOut)
{
    static_assert(OVNoteAttributes::trashed() == "trashed");
    static_assert(OVChangeRelationships::items() == "items");
    static_assert(OVNoteImageAttributes::unused() == "unused");
    static_assert(OVNoteGenericFileRelationships::note() == "note");
    EXPECT_EQ(OVNote::entityName(), "OVNote");
    EXPECT_EQ(OVNoteFileServerData::entityName(), "OVNoteFileServerData");
}

// Identifiers are typed, and key names stand in classes of their entities: what does not hold does not compile.
static_assert(std::is_base_of_v<NSManagedObjectID, OVNoteID>);
static_assert(std::is_base_of_v<OVNoteFileID, OVNoteImageID>);
static_assert(std::is_base_of_v<OVNoteFileID, OVNoteGenericFileID>);
static_assert(std::is_same_v<decltype(std::declval<OVNote&>().objectID()), OVNoteID>);
static_assert(std::is_same_v<decltype(std::declval<OVNoteImage&>().objectID()), OVNoteImageID>);
static_assert(std::is_same_v<decltype(std::declval<OVNoteFile&>().objectID()), OVNoteFileID>);
static_assert(std::is_base_of_v<_OVNoteImage, OVNoteImage>);
static_assert(std::is_base_of_v<OVNoteFile, _OVNoteImage>);
static_assert(std::is_base_of_v<_OVNoteFile, OVNoteFile>);
static_assert(std::is_base_of_v<OVNoteFile, _OVNoteGenericFile>);
static_assert(std::is_base_of_v<OVEncryptableNote, OVNote>);
static_assert(std::is_base_of_v<OVEncryptingPassword, OVPassword>);

} // namespace
} // namespace tarn
