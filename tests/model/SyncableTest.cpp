#include "tarnmodel/model/Syncable.h"
#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using Syncable = StoreFixture;

TEST_P(Syncable, ClassesStandInAFixedOrder)
{
    EXPECT_THAT(syncableClasses,
        testing::ElementsAre("OVNote", "OVNoteGenericFile", "OVNoteImage", "OVNoteTag", "OVNoteBackLink"));
}

TEST_P(Syncable, IsContentAndNothingElse)
{
    EXPECT_TRUE(isSyncable(insert<OVNote>()));
    EXPECT_TRUE(isSyncable(insert<OVNoteGenericFile>()));
    EXPECT_TRUE(isSyncable(insert<OVNoteImage>()));
    EXPECT_TRUE(isSyncable(insert<OVNoteTag>()));
    EXPECT_TRUE(isSyncable(insert<OVNoteBackLink>()));
    EXPECT_FALSE(isSyncable(insert<OVPassword>()));
    EXPECT_FALSE(isSyncable(insert<OVChange>()));
}

TEST_P(Syncable, IsNothingWithoutAnIdentifier)
{
    auto& note = insert<OVNote>();
    note.setUniqueIdentifier(std::nullopt);
    EXPECT_FALSE(isSyncable(note));
    note.setUniqueIdentifier("");
    EXPECT_TRUE(isSyncable(note));
}

TEST_P(Syncable, IsNoAttachmentOfUnknownKind)
{
    auto& file = insert<OVNoteFile>();
    file.setUniqueIdentifier(newUUIDString());
    EXPECT_FALSE(isSyncable(file));
}

INSTANTIATE_TEST_SUITE_P(Stores, Syncable, everyStore(), storeName);

} // namespace
} // namespace tarn
