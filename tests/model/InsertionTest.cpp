#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteServerData.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/OVServerMetadata.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using Insertion = StoreFixture;

bool isUpperCaseUUID(const std::optional<std::string>& text)
{
    return text && isUUIDString(*text) && text->find_first_of("abcdef") == std::string::npos;
}

TEST_P(Insertion, OfANoteGivesItOneDateForCreationAndModification)
{
    const NSDate before = lastTime();
    auto& note = insert<OVNote>();
    EXPECT_TRUE(isUpperCaseUUID(note.uniqueIdentifier()));
    EXPECT_EQ(note.creationDate(), before + std::chrono::milliseconds(1));
    EXPECT_EQ(note.modificationDate(), note.creationDate());
    EXPECT_EQ(note.version(), 3);
    EXPECT_EQ(note.title(), std::nullopt);
    EXPECT_EQ(note.text(), std::nullopt);
    EXPECT_EQ(note.trashed(), false);
    EXPECT_EQ(note.order(), 0);
}

TEST_P(Insertion, OfATagGivesItADateOfModification)
{
    auto& tag = insert<OVNoteTag>();
    EXPECT_TRUE(isUpperCaseUUID(tag.uniqueIdentifier()));
    EXPECT_EQ(tag.modificationDate(), lastTime());
    EXPECT_EQ(tag.version(), 3);
    EXPECT_EQ(tag.isRoot(), false);
}

TEST_P(Insertion, OfAnAttachmentGivesItADateOfInsertion)
{
    auto& image = insert<OVNoteImage>();
    auto& file = insert<OVNoteGenericFile>();
    for (OVNoteFile* inserted : {static_cast<OVNoteFile*>(&image), static_cast<OVNoteFile*>(&file)}) {
        EXPECT_TRUE(isUpperCaseUUID(inserted->uniqueIdentifier()));
        EXPECT_EQ(inserted->version(), 3);
        EXPECT_EQ(inserted->creationDate(), std::nullopt);
        EXPECT_EQ(inserted->modificationDate(), std::nullopt);
    }
    EXPECT_EQ(file.insertionDate(), lastTime());
    EXPECT_EQ(image.insertionDate(), lastTime() - std::chrono::milliseconds(1));
    EXPECT_NE(image.uniqueIdentifier(), file.uniqueIdentifier());
}

TEST_P(Insertion, OfALinkGivesItADateOfModification)
{
    auto& link = insert<OVNoteBackLink>();
    EXPECT_TRUE(isUpperCaseUUID(link.uniqueIdentifier()));
    EXPECT_EQ(link.modificationDate(), lastTime());
    EXPECT_EQ(link.version(), 3);
}

TEST_P(Insertion, OfAPasswordNamesTheDeviceAndSetsNoVersion)
{
    auto& password = insert<OVPassword>();
    EXPECT_TRUE(isUpperCaseUUID(password.uniqueIdentifier()));
    EXPECT_EQ(password.creationDate(), lastTime());
    EXPECT_EQ(password.creationDevice(), deviceName);
    EXPECT_EQ(password.encryptionVersionValue(), 0);
    EXPECT_EQ(password.encryptedData(), std::nullopt);
    EXPECT_EQ(password.hint(), std::nullopt);
    EXPECT_EQ(password.entity().propertyNamed("version"), nullptr);
}

TEST_P(Insertion, OfABookkeepingRecordSetsNothing)
{
    const NSDate before = lastTime();
    EXPECT_EQ(insert<OVChange>().token(), std::nullopt);
    EXPECT_EQ(insert<OVServerMetadata>().noteZoneIDData(), std::nullopt);
    EXPECT_EQ(insert<OVNoteServerData>().systemFields(), std::nullopt);
    EXPECT_EQ(lastTime(), before);
}

TEST_P(Insertion, OfTheAbstractAttachmentMakesOneToo)
{
    auto& file = insert<OVNoteFile>();
    file.setUniqueIdentifier("A");
    reopen();
    ASSERT_EQ(all<OVNoteFile>().size(), 1u);
    EXPECT_EQ(all<OVNoteFile>().front()->uniqueIdentifier(), "A");
    EXPECT_TRUE(all<OVNoteImage>().empty());
}

TEST_P(Insertion, KeepsItsValuesInTheStore)
{
    auto identifier = insert<OVNote>().uniqueIdentifier();
    reopen();
    auto notes = all<OVNote>();
    ASSERT_EQ(notes.size(), 1u);
    EXPECT_EQ(notes.front()->uniqueIdentifier(), identifier);
    EXPECT_EQ(notes.front()->creationDate(), notes.front()->modificationDate());
    EXPECT_EQ(notes.front()->version(), 3);
}

INSTANTIATE_TEST_SUITE_P(Stores, Insertion, everyStore(), storeName);

} // namespace
} // namespace tarn
