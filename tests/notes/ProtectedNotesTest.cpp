// What becomes of protected notes and attachments that are unlocked.

#include "tests/notes/ProtectedNotesFixture.h"

#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using ProtectedNotes = ProtectedNotesFixture;
INSTANTIATE_TEST_SUITE_P(Stores, ProtectedNotes, everyStore(), storeName);

// Merging -------------------------------------------------------------------------------------------------------------

TEST_P(ProtectedNotes, MakeAProtectedOneWhenTheyAreMerged)
{
    OVNote& clear = note("# Clear");
    OVNote& secret = savedSecret();
    OVNote* const merged = OVNote::mergeNotes({&clear, &secret});
    ASSERT_TRUE(merged);
    EXPECT_TRUE(merged->encryptedValue());
    EXPECT_EQ(merged->password(), &password());
    EXPECT_EQ(merged->storedText(), std::nullopt);
    EXPECT_EQ(merged->subtitle(), std::nullopt);
    EXPECT_EQ(merged->text(), "# Clear\n\n# Secret\nbody #work [[Target]] [f](a.bin)");
    EXPECT_THAT(merged->tagsStrings(), ElementsAre("work"));
    ASSERT_THAT(merged->orderedFiles(), SizeIs(1));
    const OVNoteFile& file = *merged->orderedFiles().front();
    EXPECT_TRUE(file.encryptedValue());
    EXPECT_EQ(file.filename(), "a.bin");
    EXPECT_NE(file.storedFilename(), "a.bin");
    EXPECT_EQ(bytesIn(*file.fileURL()), "bytes of a");
    EXPECT_THAT(bytesIn(*file.primitiveFileURL()), testing::Not(testing::HasSubstr("bytes of a")));
    EXPECT_TRUE(clear.isTrashed());
    EXPECT_TRUE(secret.isTrashed());
    save();
    EXPECT_THAT(*all<OVNoteFile>().front()->primitiveFileURL(), testing::Truly([](const auto& place) {
        return std::distance(std::filesystem::directory_iterator(place.parent_path()), {}) == 1;
    }));
}

TEST_P(ProtectedNotes, AreMergedWithThePasswordOfTheFirst)
{
    OVPassword& other = newPassword("another");
    OVNote& first = note("# 1");
    ASSERT_TRUE(manager().addEncryptionToObject(first, other, nullptr));
    OVNote& second = protectedNote("# 2");
    OVNote& clear = note("# 3");
    EXPECT_EQ(OVNote::mergeNotes({&clear, &first, &second})->password(), &other);
}

TEST_P(ProtectedNotes, AreNotMergedWhenTheMergedOneCannotBeProtected)
{
    OVNote& clear = note("# Clear");
    attach(clear, "c.bin", "c");
    clear.updateNoteWithText("# Clear [f](c.bin)");
    OVNote& secret = savedSecret();
    secret.setPassword(nullptr); // as when its record has not come yet
    save();
    NSError error;
    EXPECT_EQ(OVNote::mergeNotes({&clear, &secret}, &error), nullptr);
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
    EXPECT_THAT(context().insertedObjects(), IsEmpty());
    context().rollback();

    secret.setPassword(&password());
    save();
    std::filesystem::remove(*secret.orderedFiles().front()->primitiveFileURL());
    EXPECT_EQ(OVNote::mergeNotes({&clear, &secret}, &error), nullptr);
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    EXPECT_THAT(context().insertedObjects(), IsEmpty());
    EXPECT_FALSE(clear.isTrashed());
    EXPECT_FALSE(secret.isTrashed());
    save();
    EXPECT_THAT(all<OVNote>(), SizeIs(2));
    EXPECT_THAT(all<OVNoteFile>(), SizeIs(2));
}

TEST_P(ProtectedNotes, AreNotMergedWithoutAManager)
{
    OVNote& clear = note("# Clear");
    OVNote& secret = savedSecret();
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
    EXPECT_THROW(OVNote::mergeNotes({&clear, &secret}), NSException);
    EXPECT_FALSE(context().hasChanges());
    OVEncryptionCoreManager::setEncryptionCoreManager(&manager(), context());
}

TEST_P(ProtectedNotes, PassTheProtectionOfAnAttachmentOnThatIsProtectedAlone)
{
    OVNote& clear = note("# Clear");
    OVNoteFile& file = attach(clear, "c.bin", "bytes of c");
    clear.updateNoteWithText("# Clear [f](c.bin)");
    protect(file);
    OVNote& other = note("# Other");
    const OVNote* const merged = OVNote::mergeNotes({&clear, &other});
    ASSERT_TRUE(merged);
    EXPECT_FALSE(merged->encryptedValue());
    ASSERT_THAT(merged->orderedFiles(), SizeIs(1));
    EXPECT_TRUE(merged->orderedFiles().front()->encryptedValue());
    EXPECT_EQ(merged->orderedFiles().front()->filename(), "c.bin");
}

// Attachments of an unlocked note -------------------------------------------------------------------------------------

TEST_P(ProtectedNotes, RenameTheirAttachmentsWithoutTheirFiles)
{
    OVNoteFile& file = *savedSecret().filesSet().allObjects().front();
    file.setUploadedValue(true);
    const auto stored = file.storedFilename();
    NSError error;
    file.renameWithFilename("b.PDF", &error);
    EXPECT_EQ(error, NSError());
    EXPECT_EQ(file.filename(), "b.PDF");
    EXPECT_EQ(file.normalizedFileExtension(), "pdf");
    EXPECT_EQ(file.storedFilename(), stored);
    EXPECT_FALSE(file.uploadedValue());
    EXPECT_TRUE(std::filesystem::exists(*file.primitiveFileURL()));
    save();
    EXPECT_EQ(bytesIn(*file.fileURL()), "bytes of a");
    EXPECT_EQ(file.fileURL()->filename(), "b.PDF");
}

TEST_P(ProtectedNotes, TakeOtherBytesOfTheirAttachments)
{
    OVNoteFile& file = *savedSecret().filesSet().allObjects().front();
    const auto former = *file.primitiveFileURL();
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("others"))));
    EXPECT_EQ(bytesIn(*file.fileURL()), "others");
    EXPECT_EQ(file.fileSize(), 6);
    EXPECT_NE(*file.primitiveFileURL(), former);
    context().rollback();
    EXPECT_EQ(bytesIn(*file.fileURL()), "bytes of a");
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("others"))));
    save();
    EXPECT_FALSE(std::filesystem::exists(former));
    EXPECT_EQ(bytesIn(*file.fileURL()), "others");
}

TEST_P(ProtectedNotes, KnowSizeAndDatesOfTheirAttachments)
{
    OVNoteFile& file = *savedSecret().filesSet().allObjects().front();
    EXPECT_NE(file.storedFileSize(), 10);
    EXPECT_EQ(file.fileSize(), 10);
    const auto date = file.modificationDate();
    (void)file.fileURL();
    file.updateFileMetadata();
    EXPECT_EQ(file.fileSize(), 10);
    EXPECT_EQ(file.modificationDate(), date) << "not that of the decrypted copy";
    EXPECT_FALSE(context().hasChanges() && file.changedKeys().contains("fileSize"));
}

TEST_P(ProtectedNotes, LeaveTheirAttachmentsAloneWhileTheyAreLocked)
{
    OVNoteFile& file = *savedSecret().filesSet().allObjects().front();
    const auto refuse = [&] {
        EXPECT_THROW(file.renameWithFilename("b.bin"), NSException);
        EXPECT_THROW(
            file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("x"))), NSException);
        file.updateFileMetadata();
        EXPECT_FALSE(context().hasChanges());
    };
    lock();
    refuse();
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
    refuse();
    OVEncryptionCoreManager::setEncryptionCoreManager(&manager(), context());
}

TEST_P(ProtectedNotes, GiveTheirSubtitleBackWithTheirText)
{
    OVNote& secret = protectedNote("# T\nwhat it says");
    EXPECT_EQ(secret.subtitle(), std::nullopt);
    ASSERT_TRUE(manager().removeEncryptionFromObject(secret, nullptr));
    EXPECT_EQ(secret.subtitle(), "what it says");
    EXPECT_EQ(secret.storedText(), "# T\nwhat it says");
}

TEST_P(ProtectedNotes, HaveLinksBacklinksAndConflictsAsBefore)
{
    OVNote& target = note("# Target");
    OVNote& linker = note("# Linker\n[[Secret]]");
    OVNote& secret = note("# Secret\n[[Target]]");
    OVNote& copy = note("# Secret");
    copy.markAsConflictedFromNote(secret);
    protect(secret);
    save();
    EXPECT_THAT(secret.linkedNotes(), ElementsAre(&target));
    EXPECT_THAT(secret.linkedByNotes(), ElementsAre(&linker));
    EXPECT_THAT(secret.conflictedNotes(), SizeIs(2));
}

TEST_P(ProtectedNotes, TakeNoClearTextWithoutAManager)
{
    OVNote& secret = savedSecret();
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
    EXPECT_THROW(secret.updateNoteWithText("# Clear"), NSException);
    EXPECT_THROW(secret.appendNoteWithText("more"), NSException);
    EXPECT_THROW(secret.prependNoteWithText("more"), NSException);
    EXPECT_THROW(secret.replaceNoteWithText("more"), NSException);
    EXPECT_EQ(secret.storedText(), std::nullopt);
    EXPECT_FALSE(context().hasChanges());
    OVEncryptionCoreManager::setEncryptionCoreManager(&manager(), context());
}

TEST_P(ProtectedNotes, AreLockedForAChildAsForItsParent)
{
    const std::string identifier = *savedSecret().uniqueIdentifier();
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
    child.setParentContext(context());
    OVNote* const secret = OVNote::noteWithUniqueIdentifier(identifier, child);
    secret->appendNoteWithText("from the child");
    EXPECT_EQ(secret->storedText(), std::nullopt);
    ASSERT_TRUE(child.save());
    EXPECT_THAT(OVNote::noteWithUniqueIdentifier(identifier, context())->text().value_or(""),
        testing::HasSubstr("from the child"));
    lock();
    EXPECT_THROW(secret->appendNoteWithText("again"), NSException);
}

TEST_P(ProtectedNotes, StayReadableToTheEndOfAnOperation)
{
    OVNote& first = note("# 1\n#work");
    OVNote& second = protectedNote("# 2\n#work");
    OVNote& third = protectedNote("# 3\n#work");
    save();
    int heard = 0;
    const auto lockAtOnce = [&](NSManagedObject&, std::string_view) {
        ++heard;
        lock();
    };
    {
        const auto observation = first.addObserver("text", lockAtOnce);
        const auto other = second.addObserver("text", lockAtOnce);
        tag("work").renameTagWithTagNamed("play");
    }
    EXPECT_GE(heard, 2);
    EXPECT_TRUE(third.hasEncryptionAndIsLocked());
    unlock();
    EXPECT_EQ(second.text(), "# 2\n#play");
    EXPECT_EQ(third.text(), "# 3\n#play");
}

TEST_P(ProtectedNotes, StayReadableToTheEndOfAMerge)
{
    OVNote& first = note("# 1");
    OVNote& second = savedSecret();
    const auto observation = first.addObserver("trashed", [&](NSManagedObject&, std::string_view) { lock(); });
    const OVNote* const merged = OVNote::mergeNotes({&first, &second});
    ASSERT_TRUE(merged);
    EXPECT_TRUE(merged->hasEncryptionAndIsLocked());
    unlock();
    EXPECT_EQ(merged->text(), "# 1\n\n# Secret\nbody #work [[Target]] [f](a.bin)");
}

} // namespace
} // namespace tarn
