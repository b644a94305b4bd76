#include "tests/backup/BackupFixture.h"

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class RestoredStore : public BackupFixture {
protected:
    void SetUp() override
    {
        BackupFixture::SetUp();
        fillNotebook();
    }
    /// Backs the notebook up and restores it to a store that was empty.
    TestStore& restoredElsewhere()
    {
        backUp();
        restore(otherStore());
        return otherStore();
    }
    /// What the restore of a later state of the notebook does; `edit` makes that state.
    template <typename Edit> BackupRestoration restoreLater(Edit edit)
    {
        useFirstFolder();
        edit();
        save();
        backUp({.replacesFile = true});
        return restore(otherStore());
    }
    /// Makes of a note of the store another state than that in the backup; neither descends from the other.
    void makeConflict(TestStore& store, std::string_view title, std::string_view text)
    {
        OVNote& theirs = noteOf(store.context(), title);
        theirs.updateNoteWithText(text);
        makeUnrelated(theirs);
        store.save();
    }
    /// That a restore to the store where the backup comes from changes nothing, besides what it tells of.
    BackupRestoration expectKept()
    {
        const auto records = contentsOfStore(context());
        BackupRestoration restoration = restore(*this);
        EXPECT_EQ(restoration.restored, 0U);
        EXPECT_EQ(restoration.files, 0U);
        EXPECT_EQ(contentsOfStore(context()), records);
        return restoration;
    }
    void expectSameState(OVNote& restored, std::string_view title)
    {
        const OVNote& backedUp = noteOf(context(), title);
        EXPECT_EQ(restored.modificationDate(), backedUp.modificationDate());
        EXPECT_EQ(restored.storedValueForKey("vectorClock"), backedUp.storedValueForKey("vectorClock"));
    }
};

TEST_F(RestoredStore, HasTheRecordsTextsAndBytesOfTheBackup)
{
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
    TestStore& other = restoredElsewhere();
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
    TestStore& other = restoredElsewhere();
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
    backUp();
    noteOf(context(), "Trip").updateNoteWithText("# Trip\n\nlater");
    save();
    EXPECT_EQ(expectKept().kept, 4U);
}

TEST_F(RestoredStore, TakesALaterStateOfTheBackup)
{
    TestStore& other = restoredElsewhere();
    const BackupRestoration restoration
        = restoreLater([&] { noteOf(context(), "Trip").updateNoteWithText("# Trip\n\n#venice\n\n[[Old]]"); });
    EXPECT_EQ(restoration.restored, 1U);
    EXPECT_EQ(restoration.kept, 3U);
    OVNote& trip = noteOf(other.context(), "Trip");
    EXPECT_EQ(trip.text(), "# Trip\n\n#venice\n\n[[Old]]");
    EXPECT_EQ(trip.tagsStrings(), std::vector<std::string>{"venice"});
    ASSERT_EQ(trip.linkingToSet().allObjects().size(), 1U);
    EXPECT_EQ(trip.linkingToSet().allObjects().front()->title(), "Old");
    expectSameState(trip, "Trip");
}

TEST_F(RestoredStore, KeepsBothStatesOfAConflictOnce)
{
    TestStore& other = restoredElsewhere();
    const std::string text = "# Shopping\n\nother device\n\n[receipt](receipt.pdf)";
    makeConflict(other, "Shopping", text);
    const BackupRestoration restoration = restore(other);
    EXPECT_EQ(restoration.conflicts, 1U);
    EXPECT_EQ(restoration.restored, 1U);
    OVNote& kept
        = *OVNote::noteWithUniqueIdentifier(*noteOf(context(), "Shopping").uniqueIdentifier(), other.context());
    EXPECT_EQ(kept.text(), text);
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
    TestStore& other = restoredElsewhere();
    makeConflict(other, "Shopping", "# Shopping\n\nother device");
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
    expectSameState(trip, "Trip");
}

TEST_F(RestoredStore, GetsLostAttachmentsOfANoteThatIsTheSame)
{
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
    backUp();
    OVNote& shopping = noteOf(context(), "Shopping");
    shopping.orderedFiles().front()->permanentlyDelete();
    shopping.updateNoteWithText("# Shopping\n\nwithout the receipt");
    save();
    const BackupRestoration restoration = expectKept();
    ASSERT_THAT(restoration.skipped, SizeIs(1));
    EXPECT_EQ(restoration.skipped.front().title, "receipt.pdf");
}

TEST_F(RestoredStore, KeepsTheLinksOfAProtectedNoteThatItReplaces)
{
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
    TestStore& other = restoredElsewhere();
    const BackupRestoration restoration = restoreLater([&] {
        OVNote& later = *secretOf(context());
        context().deleteObject(*later.linkingToSet().allObjects().front());
        addLink(later, noteOf(context(), "Old"), "Old");
        later.setEncryptedData(NSData::fromText("sealed anew"));
        later.updateNoteVectorClock();
    });
    EXPECT_EQ(restoration.restored, 1U);
    const OVNote* secret = secretOf(other.context());
    EXPECT_EQ(secret->encryptedData(), NSData::fromText("sealed anew"));
    ASSERT_THAT(secret->linkingToSet().allObjects(), SizeIs(1));
    EXPECT_EQ(secret->linkingToSet().allObjects().front()->title(), "Old");
    EXPECT_EQ(secret->linkingToSet().allObjects().front()->linkingTo(), &noteOf(other.context(), "Old"));
    EXPECT_NE(secret->password(), nullptr);
}

TEST_F(RestoredStore, SaysOfAnAttachmentWithoutBytesThatTheyAreNotHere)
{
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
    backUp();
    all<OVPassword>().front()->setEncryptedData(NSData::fromText("rotated"));
    save();
    const BackupRestoration restoration = expectKept();
    ASSERT_THAT(restoration.skipped, SizeIs(1));
    EXPECT_THAT(restoration.skipped.front().reason, testing::HasSubstr("another state of this password"));
    EXPECT_EQ(all<OVPassword>().front()->encryptedData(), NSData::fromText("rotated"));
}

TEST_F(RestoredStore, IsWantedWithoutUnsavedChanges)
{
    backUp();
    note("unsaved");
    EXPECT_THROW(BackupRestore(archive()).restoreIntoContext(context()), NSException);
}

} // namespace
} // namespace tarn
