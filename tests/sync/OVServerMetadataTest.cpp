#include "tarnmodel/model/OVServerMetadata.h"
#include "tarnmodel/model/OVNoteFileServerData.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteServerData.h"
#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ServerMetadata : public StoreFixture {
protected:
    OVServerMetadata& metadata() { return *OVServerMetadata::serverMetadataInManagedObjectContext(context()); }
    const CKRecordZoneID zone{"Notes", "_owner"};
    const CKServerChangeToken token{NSData::fromText("up to here")};
};
INSTANTIATE_TEST_SUITE_P(Stores, ServerMetadata, everyStore(), storeName);

TEST_P(ServerMetadata, IsOneRecordThatIsMadeWhenAskedFor)
{
    OVServerMetadata& made = metadata();
    EXPECT_EQ(&metadata(), &made);
    EXPECT_EQ(all<OVServerMetadata>().size(), 1U);
    EXPECT_FALSE(made.noteZoneIDData() || made.serverChangeTokenData() || made.noteZoneSubscriptionID());
    reopen();

    metadata();
    EXPECT_EQ(all<OVServerMetadata>().size(), 1U);
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(ServerMetadata, IsTheLastOfSeveral)
{
    OVServerMetadata::insertInManagedObjectContext(context())->setNoteZoneSubscriptionID("first");
    OVServerMetadata::insertInManagedObjectContext(context())->setNoteZoneSubscriptionID("last");
    EXPECT_EQ(metadata().noteZoneSubscriptionID(), "last");
    reopen();
    EXPECT_EQ(metadata().noteZoneSubscriptionID(), "last");
}

TEST_P(ServerMetadata, KeepsZoneAndToken)
{
    metadata().setNoteZoneID(zone);
    metadata().setServerChangeToken(token);
    EXPECT_EQ(metadata().noteZoneID(), zone);
    reopen();
    EXPECT_EQ(metadata().noteZoneID(), zone);
    EXPECT_EQ(metadata().serverChangeToken(), token);

    metadata().setNoteZoneID(std::nullopt);
    metadata().setServerChangeToken(std::nullopt);
    EXPECT_EQ(metadata().noteZoneIDData(), std::nullopt);
    EXPECT_EQ(metadata().serverChangeTokenData(), std::nullopt);
    EXPECT_EQ(metadata().noteZoneID(), std::nullopt);
}

TEST_P(ServerMetadata, ReadsForeignBytesAsNone)
{
    for (const char* text : {"", "no archive", "{}", "bplist00"}) {
        metadata().setNoteZoneIDData(NSData::fromText(text));
        metadata().setServerChangeTokenData(NSData::fromText(text));
        EXPECT_EQ(metadata().noteZoneID(), std::nullopt) << text;
        EXPECT_EQ(metadata().serverChangeToken(), std::nullopt) << text;
    }
    metadata().setNoteZoneID(zone);
    metadata().setServerChangeTokenData(metadata().noteZoneIDData());
    EXPECT_EQ(metadata().serverChangeToken(), std::nullopt) << "an archive of another class";
}

TEST_P(ServerMetadata, ForgetsTheTokenAlone)
{
    metadata().setNoteZoneID(zone);
    metadata().setServerChangeToken(token);
    metadata().setNoteZoneSubscriptionID("subscription");

    OVServerMetadata::resetServerChangeTokenInManagedObjectContext(context());

    EXPECT_EQ(metadata().serverChangeTokenData(), std::nullopt);
    EXPECT_EQ(metadata().noteZoneID(), zone);
    EXPECT_EQ(metadata().noteZoneSubscriptionID(), "subscription");
}

TEST_P(ServerMetadata, ForgetsEverything)
{
    metadata().setNoteZoneID(zone);
    metadata().setServerChangeToken(token);
    metadata().setNoteZoneSubscriptionID("subscription");
    save();

    OVServerMetadata::resetServerMetadataInManagedObjectContext(context());
    reopen();

    EXPECT_FALSE(
        metadata().noteZoneIDData() || metadata().serverChangeTokenData() || metadata().noteZoneSubscriptionID());
    EXPECT_EQ(all<OVServerMetadata>().size(), 1U);
}

TEST_P(ServerMetadata, ForgetsTheTokenFirstAndTheZoneLast)
{
    OVServerMetadata& observed = metadata();
    std::vector<std::string> heard;
    std::vector<KeyValueObservation> observations;
    for (const char* key : {"noteZoneIDData", "serverChangeTokenData", "noteZoneSubscriptionID"})
        observations.push_back(observed.addObserver(
            key, [&heard](NSManagedObject&, std::string_view changed) { heard.emplace_back(changed); }));

    OVServerMetadata::resetServerMetadataInManagedObjectContext(context());

    EXPECT_THAT(heard, ElementsAre("serverChangeTokenData", "noteZoneSubscriptionID", "noteZoneIDData"));
}

class ServerData : public StoreFixture {
protected:
    static CKRecord aRecord()
    {
        CKRecord record("Note", {"a", {"Notes", "_owner"}});
        record.recordChangeTag = "tag";
        record.modificationDate = dateWithMicrosecondsSince1970(17);
        return record;
    }
    OVNoteServerData& dataOf(OVNote& note)
    {
        OVNoteServerData* data = OVNoteServerData::insertInManagedObjectContext(context());
        note.setServerData(data);
        return *data;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ServerData, everyStore(), storeName);

TEST_P(ServerData, KeepsTheSystemFieldsOfANote)
{
    CKRecord record = aRecord();
    record.setValueForKey("title", "a");
    dataOf(noteTitled("a")).setCkRecord(record);
    reopen();

    OVNoteServerData& data = *OVNote::noteWithTitle("a", context())->serverData();
    EXPECT_EQ(data.ckRecord(), aRecord());
    data.setCkRecord(std::nullopt);
    EXPECT_EQ(data.systemFields(), std::nullopt);
    EXPECT_EQ(data.ckRecord(), std::nullopt);
}

TEST_P(ServerData, KeepsTheSystemFieldsOfAnAttachment)
{
    OVNoteFileServerData* data = OVNoteFileServerData::insertInManagedObjectContext(context());
    OVNoteGenericFile& attachment = file(noteTitled("a"), "a.pdf");
    attachment.setServerData(data);
    data->setCkRecord(aRecord());
    reopen();

    EXPECT_EQ(all<OVNoteGenericFile>().at(0)->serverData()->ckRecord(), aRecord());
}

TEST_P(ServerData, ReadsForeignBytesAsNone)
{
    OVNoteServerData& data = dataOf(noteTitled("a"));
    OVNoteFileServerData* ofFile = OVNoteFileServerData::insertInManagedObjectContext(context());
    for (const auto& bytes : {NSData(), NSData::fromText("no archive"), *CKRecordZoneID{"Notes"}.archivedData()}) {
        data.setSystemFields(bytes);
        ofFile->setSystemFields(bytes);
        EXPECT_EQ(data.ckRecord(), std::nullopt);
        EXPECT_EQ(ofFile->ckRecord(), std::nullopt);
    }
}

TEST_P(ServerData, IsANewRecordEachTime)
{
    OVNoteServerData& data = dataOf(noteTitled("a"));
    data.setCkRecord(aRecord());
    auto read = data.ckRecord();
    read->recordChangeTag = "changed";

    EXPECT_EQ(data.ckRecord(), aRecord());
}

TEST_P(ServerData, IsDeletedTogetherWhileNotesAndFilesStay)
{
    OVNote& note = noteTitled("a");
    dataOf(note).setCkRecord(aRecord());
    file(note, "a.pdf").setServerData(OVNoteFileServerData::insertInManagedObjectContext(context()));
    dataOf(noteTitled("b"));
    save();

    OVNoteServerData::deleteAllObjectsInManagedObjectContext(context());
    EXPECT_EQ(all<OVNoteFileServerData>().size(), 1U) << "the other entity is left alone";
    OVNoteFileServerData::deleteAllObjectsInManagedObjectContext(context());
    reopen();

    EXPECT_THAT(all<OVNoteServerData>(), IsEmpty());
    EXPECT_THAT(all<OVNoteFileServerData>(), IsEmpty());
    EXPECT_THAT(titlesOf(all<OVNote>()), ElementsAre("a", "b"));
    EXPECT_EQ(all<OVNote>().at(0)->serverData(), nullptr);
    EXPECT_EQ(all<OVNoteGenericFile>().at(0)->serverData(), nullptr);
}

class UnreadableServerData : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableServerData, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableServerData, IsLoggedAndDeletesNothing)
{
    OVNoteServerData::insertInManagedObjectContext(context());
    save();
    runSQL("ALTER TABLE \"OVNoteServerData\" RENAME TO \"hidden\"");
    OVNoteServerData::deleteAllObjectsInManagedObjectContext(context());
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNoteServerData\"");

    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(UnreadableServerData, LeadsToNewMetadata)
{
    OVServerMetadata::insertInManagedObjectContext(context())->setNoteZoneSubscriptionID("there");
    save();
    runSQL("ALTER TABLE \"OVServerMetadata\" RENAME TO \"hidden\"");
    const OVServerMetadata* metadata = OVServerMetadata::serverMetadataInManagedObjectContext(context());
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVServerMetadata\"");

    EXPECT_TRUE(metadata->isInserted());
    EXPECT_EQ(metadata->noteZoneSubscriptionID(), std::nullopt);
}

} // namespace
} // namespace tarn
