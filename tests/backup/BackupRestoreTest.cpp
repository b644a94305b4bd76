#include "tests/backup/BackupFixture.h"

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/sync/TolVectorClock.h"

namespace tarn {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class RestoredStore : public BackupFixture { };

TEST_F(RestoredStore, HasTheRecordsTextsAndBytesOfTheBackup)
{
    fillNotebook();
    const auto records = contentsOfStore(context());
    const auto files = filesBelow(filesRoot());
    ASSERT_EQ(files.size(), 3U);
    backUp();

    TestStore& other = otherStore();
    const BackupRestoration restoration = restore(other);
    EXPECT_EQ(restoration.restored, 4U);
    EXPECT_EQ(restoration.kept, 0U);
    EXPECT_EQ(restoration.files, 3U);
    EXPECT_EQ(restoration.bytes, 12U + 17U);
    EXPECT_THAT(restoration.skipped, IsEmpty());
    EXPECT_EQ(contentsOfStore(other.context()), records);
    EXPECT_EQ(filesBelow(otherRoot()), files);
}

TEST_F(RestoredStore, IsTheSameAfterASecondRestore)
{
    fillNotebook();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    const auto records = contentsOfStore(other.context());
    const auto* change = OVChange::latestChangeInManagedObjectContext(other.context());
    ASSERT_NE(change, nullptr);
    const auto token = change->token();

    const BackupRestoration again = restore(other);
    EXPECT_EQ(again.restored, 0U);
    EXPECT_EQ(again.kept, 4U);
    EXPECT_EQ(again.files, 0U);
    EXPECT_EQ(contentsOfStore(other.context()), records);
    EXPECT_EQ(OVChange::latestChangeInManagedObjectContext(other.context())->token(), token);
}

TEST_F(RestoredStore, BeginsItsChangeLogWithABaseline)
{
    fillNotebook();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    const auto* change = OVChange::latestChangeInManagedObjectContext(other.context());
    ASSERT_NE(change, nullptr);
    EXPECT_EQ(change->orderValue(), 0);
    std::vector<std::string> deleted;
    const auto named = OVChange::objectsUpdatedSinceChange(nullptr, &deleted, other.context());
    EXPECT_EQ(named.size(),
        other.all<OVNote>().size() + other.all<OVNoteTag>().size() + other.all<OVNoteFile>().size()
            + other.all<OVNoteBackLink>().size());
}

TEST_F(RestoredStore, KeepsALaterStateOfANote)
{
    fillNotebook();
    backUp();
    noteOf(context(), "Trip").updateNoteWithText("# Trip\n\nlater");
    save();
    const auto records = contentsOfStore(context());
    const BackupRestoration restoration = restore(*this);
    EXPECT_EQ(restoration.restored, 0U);
    EXPECT_EQ(restoration.kept, 4U);
    EXPECT_EQ(contentsOfStore(context()), records);
}

TEST_F(RestoredStore, TakesALaterStateOfTheBackup)
{
    fillNotebook();
    BackupOptions options;
    backUp();
    TestStore& other = otherStore();
    restore(other);
    useFirstFolder();
    noteOf(context(), "Trip").updateNoteWithText("# Trip\n\n#venice\n\n[[Old]]");
    save();
    const auto records = contentsOfStore(context());
    options.replacesFile = true;
    backUp(options);
    otherStore();

    const BackupRestoration restoration = restore(other);
    EXPECT_EQ(restoration.restored, 1U);
    EXPECT_EQ(restoration.kept, 3U);
    OVNote& trip = noteOf(other.context(), "Trip");
    EXPECT_EQ(trip.text(), "# Trip\n\n#venice\n\n[[Old]]");
    EXPECT_EQ(trip.tagsStrings(), std::vector<std::string>{"venice"});
    ASSERT_EQ(trip.linkingToSet().allObjects().size(), 1U);
    EXPECT_EQ(trip.linkingToSet().allObjects().front()->title(), "Old");
    EXPECT_EQ(trip.storedValueForKey("vectorClock"), noteOf(context(), "Trip").storedValueForKey("vectorClock"));
    EXPECT_EQ(trip.modificationDate(), noteOf(context(), "Trip").modificationDate());
}

/// Makes a note of the store two states of which neither descends from the other: here and in the backup.
TEST_F(RestoredStore, KeepsBothStatesOfAConflictOnce)
{
    fillNotebook();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    OVNote& theirs = noteOf(other.context(), "Shopping");
    theirs.updateNoteWithText("# Shopping\n\nother device\n\n[receipt](receipt.pdf)");
    TolVectorClock clock;
    clock.updateClockValueForID("another device");
    theirs.setVectorClock(clock.data());
    other.save();

    const BackupRestoration restoration = restore(other);
    EXPECT_EQ(restoration.conflicts, 1U);
    EXPECT_EQ(restoration.restored, 1U);
    OVNote& kept
        = *OVNote::noteWithUniqueIdentifier(*noteOf(context(), "Shopping").uniqueIdentifier(), other.context());
    EXPECT_EQ(kept.text(), "# Shopping\n\nother device\n\n[receipt](receipt.pdf)");
    ASSERT_THAT(kept.conflictedNotes(), SizeIs(2));
    OVNote& copy = *kept.conflictedNotes().front();
    EXPECT_NE(&copy, &kept);
    EXPECT_EQ(copy.text(), noteOf(context(), "Shopping").text());
    EXPECT_EQ(copy.filesSet().allObjects().size(), 2U);
    EXPECT_EQ(kept.filesSet().allObjects().size(), 2U);
    EXPECT_EQ(copy.orderedFiles().size(), 2U);

    const auto records = contentsOfStore(other.context());
    const BackupRestoration again = restore(other);
    EXPECT_EQ(again.conflicts, 0U);
    EXPECT_EQ(again.restored, 0U);
    EXPECT_EQ(contentsOfStore(other.context()), records);
}

TEST_F(RestoredStore, MakesNoSecondCopyOfOneThatWasEdited)
{
    fillNotebook();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    OVNote& theirs = noteOf(other.context(), "Shopping");
    theirs.updateNoteWithText("# Shopping\n\nother device");
    TolVectorClock clock;
    clock.updateClockValueForID("another device");
    theirs.setVectorClock(clock.data());
    other.save();
    restore(other);
    OVNote& copy = *OVNote::allConflictedNotesInManagedObjectContext(other.context()).front();
    for (OVNote* version : copy.conflictedNotes())
        if (version->text()->find("milk") != std::string::npos)
            version->updateNoteWithText(*version->text() + " and bread");
    other.save();
    EXPECT_EQ(restore(other).conflicts, 0U);
    EXPECT_THAT(OVNote::allConflictedNotesInManagedObjectContext(other.context()), SizeIs(2));
}

TEST_F(RestoredStore, JoinsItsTagsAndLinksWithThoseThatAreThere)
{
    fillNotebook();
    backUp();
    TestStore& other = otherStore();
    other.note("# Plan\n\n#Rome\n\n[[Trip]]");
    other.save();
    restore(other);
    OVNote& trip = noteOf(other.context(), "Trip");
    EXPECT_EQ(OVNoteTag::notesTagsInManagedObjectContext(
                  other.context(), NSPredicate::predicateWithFormat("title ==[cd] 'rome'"))
                  .size(),
        1U);
    EXPECT_THAT(trip.linkedByNotes(), testing::Contains(&noteOf(other.context(), "Plan")));
    EXPECT_EQ(trip.modificationDate(), noteOf(context(), "Trip").modificationDate());
    EXPECT_EQ(trip.storedValueForKey("vectorClock"), noteOf(context(), "Trip").storedValueForKey("vectorClock"));
}

TEST_F(RestoredStore, GetsLostAttachmentsOfANoteThatIsTheSame)
{
    fillNotebook();
    backUp();
    OVNote& shopping = noteOf(context(), "Shopping");
    const auto files = filesBelow(filesRoot());
    shopping.orderedFiles().front()->permanentlyDelete();
    save();
    ASSERT_NE(filesBelow(filesRoot()), files);
    const BackupRestoration restoration = restore(*this);
    EXPECT_EQ(restoration.files, 1U);
    EXPECT_EQ(filesBelow(filesRoot()), files);
    EXPECT_EQ(noteOf(context(), "Shopping").orderedFiles().size(), 2U);
}

TEST_F(RestoredStore, LeavesOutWhatALaterStateOfANoteHasDropped)
{
    fillNotebook();
    backUp();
    OVNote& shopping = noteOf(context(), "Shopping");
    shopping.orderedFiles().front()->permanentlyDelete();
    shopping.updateNoteWithText("# Shopping\n\nwithout the receipt");
    save();
    const auto records = contentsOfStore(context());
    const BackupRestoration restoration = restore(*this);
    EXPECT_EQ(restoration.files, 0U);
    ASSERT_THAT(restoration.skipped, SizeIs(1));
    EXPECT_EQ(restoration.skipped.front().title, "receipt.pdf");
    EXPECT_EQ(contentsOfStore(context()), records);
}

TEST_F(RestoredStore, KeepsTheLinksOfAProtectedNoteThatItReplaces)
{
    fillNotebook();
    const auto addLink = [](OVNote& from, OVNote& to, std::string_view title) {
        auto* link = OVNoteBackLink::insertInManagedObjectContext(from.managedObjectContext());
        link->setTitle(title);
        link->setLinkedBy(&from);
        link->setLinkingTo(&to);
    };
    const auto secretOf = [](NSManagedObjectContext& context) {
        return OVNote::allEncryptedNotesInManagedObjectContext(context).front();
    };
    addLink(*secretOf(context()), noteOf(context(), "Trip"), "Trip");
    save();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    useFirstFolder();
    context().deleteObject(*secretOf(context())->linkingToSet().allObjects().front());
    addLink(*secretOf(context()), noteOf(context(), "Old"), "Old");
    secretOf(context())->setEncryptedData(NSData::fromText("sealed anew"));
    secretOf(context())->updateNoteVectorClock();
    save();
    backUp({.replacesFile = true});
    otherStore();
    EXPECT_EQ(restore(other).restored, 1U);
    const OVNote* secret = secretOf(other.context());
    EXPECT_EQ(secret->encryptedData(), NSData::fromText("sealed anew"));
    ASSERT_THAT(secret->linkingToSet().allObjects(), SizeIs(1));
    EXPECT_EQ(secret->linkingToSet().allObjects().front()->title(), "Old");
    EXPECT_EQ(secret->linkingToSet().allObjects().front()->linkingTo(), &noteOf(other.context(), "Old"));
    EXPECT_NE(secret->password(), nullptr);
}

TEST_F(RestoredStore, SaysOfAnAttachmentWithoutBytesThatTheyAreNotHere)
{
    fillNotebook();
    OVNote& shopping = noteOf(context(), "Shopping");
    std::filesystem::remove(*shopping.orderedFiles().front()->fileURL());
    const BackupManifest manifest = backUp();
    EXPECT_THAT(manifest.missingFiles, SizeIs(2));
    TestStore& other = otherStore();
    const BackupRestoration restoration = restore(other);
    EXPECT_EQ(restoration.files, 2U);
    ASSERT_THAT(restoration.skipped, SizeIs(1));
    EXPECT_EQ(restoration.skipped.front().reason, "its bytes are not in the backup");
    EXPECT_FALSE(noteOf(other.context(), "Shopping").orderedFiles().front()->downloadedValue());
}

TEST_F(RestoredStore, TellsOfAPasswordInAnotherState)
{
    fillNotebook();
    backUp();
    all<OVPassword>().front()->setEncryptedData(NSData::fromText("rotated"));
    save();
    const BackupRestoration restoration = restore(*this);
    ASSERT_THAT(restoration.skipped, SizeIs(1));
    EXPECT_THAT(restoration.skipped.front().reason, testing::HasSubstr("another state of this password"));
    EXPECT_EQ(all<OVPassword>().front()->encryptedData(), NSData::fromText("rotated"));
}

TEST_F(RestoredStore, IsWantedWithoutUnsavedChanges)
{
    fillNotebook();
    backUp();
    note("unsaved");
    EXPECT_THROW(BackupRestore(archive()).restoreIntoContext(context()), NSException);
}

} // namespace
} // namespace tarn
