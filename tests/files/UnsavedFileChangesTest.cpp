#include "tests/files/FilesFixture.h"

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/coredata/RecordMerge.h"
#include "tarnmodel/platform/coredata/SaveParticipant.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UnsavedFiles : public FilesFixture {
protected:
    /// One that is saved, with what lies on disk for it.
    OVNoteFile& saved(std::string_view name, std::string_view bytes)
    {
        OVNoteFile& file = attached(name, bytes);
        save();
        return file;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, UnsavedFiles, everyStore(), storeName);

TEST_P(UnsavedFiles, OfAnImportGoWithTheRecord)
{
    const OVNoteFile& file = attached("a.bin", "one");
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*file.uniqueIdentifier()));
    EXPECT_EQ(besidesTheKinds().size(), 1) << "the journal";
    context().rollback();
    expectNothingLeft();
}

TEST_P(UnsavedFiles, AreNoneAnyMoreAfterTheSave)
{
    const OVNoteFile& file = saved("a.bin", "one");
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
    context().rollback();
    EXPECT_EQ(contentsOf(*file.fileURL()), "one");
}

TEST_P(UnsavedFiles, OfADeletionAreOutOfSightAndComeBack)
{
    OVNoteFile& file = saved("a.bin", "one");
    const auto url = *file.fileURL();
    file.permanentlyDelete();
    EXPECT_THAT(foldersOnDisk(), IsEmpty()) << "gone, for whoever looks";
    context().rollback();
    EXPECT_EQ(contentsOf(url), "one");
    file.permanentlyDelete();
    save();
    expectNothingLeft();
}

TEST_P(UnsavedFiles, GoWithTheirNote)
{
    const OVNoteFile& file = saved("a.bin", "one");
    file.note()->permanentlyDelete();
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    context().rollback();
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*file.uniqueIdentifier()));
    file.note()->permanentlyDelete();
    save();
    expectNothingLeft();
}

TEST_P(UnsavedFiles, OfARenamingGoBackToTheFormerName)
{
    OVNoteFile& file = saved("a.bin", "one");
    NSError error;
    file.renameWithFilename("b.bin", &error);
    EXPECT_EQ(error, NSError());
    EXPECT_EQ(file.fileURL()->filename(), "b.bin");
    EXPECT_EQ(contentsOf(*file.fileURL()), "one");
    file.renameWithFilename("c.bin", &error);
    context().rollback();
    EXPECT_EQ(file.filename(), "a.bin");
    EXPECT_EQ(contentsOf(*file.fileURL()), "one");
    EXPECT_THAT(namesIn(file.fileURL()->parent_path()), ElementsAre("a.bin"));
}

TEST_P(UnsavedFiles, OfOtherBytesGiveWayToTheFormerOnes)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("other"))));
    EXPECT_EQ(contentsOf(*file.fileURL()), "other");
    EXPECT_EQ(file.fileSize(), 5);
    context().rollback();
    EXPECT_EQ(contentsOf(*file.fileURL()), "one");
    EXPECT_EQ(file.fileSize(), 3);
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("again"))));
    save();
    EXPECT_EQ(contentsOf(*file.fileURL()), "again");
    EXPECT_THAT(namesIn(file.fileURL()->parent_path()), ElementsAre("a.bin"));
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(UnsavedFiles, AreUndoneInReverseOrder)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("other"))));
    file.renameWithFilename("b.bin");
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("third"))));
    file.permanentlyDelete();
    const OVNoteFile& second = attached("a.bin", "new");
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*second.uniqueIdentifier()));
    context().rollback();
    EXPECT_EQ(file.filename(), "a.bin");
    EXPECT_EQ(contentsOf(*file.fileURL()), "one");
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*file.uniqueIdentifier()));
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(UnsavedFiles, EndWithAResetOfTheContextAndWithTheContext)
{
    const std::string identifier = *saved("a.bin", "one").uniqueIdentifier();
    attached("b.bin", "two");
    context().reset();
    EXPECT_THAT(foldersOnDisk(), ElementsAre(identifier));
    attached("c.bin", "three");
    OVNoteFile::noteFileWithUniqueIdentifier(identifier, context())->permanentlyDelete();
    close();
    EXPECT_THAT(foldersOnDisk(), ElementsAre(identifier));
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
    open();
}

TEST_P(UnsavedFiles, OfAChildBecomeThoseOfItsParent)
{
    const std::string former = *saved("a.bin", "one").uniqueIdentifier();
    std::string added;
    {
        NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
        child.setParentContext(context());
        OVNoteFile::noteFileWithUniqueIdentifier(former, child)->permanentlyDelete();
        OVNote* const owner = OVNote::noteWithText("# Child\n", child);
        added = *owner->addAttachmentFromFileURL(aFile("b.bin", "two"))->uniqueIdentifier();
        NSError error;
        ASSERT_TRUE(child.save(&error)) << error;
    }
    EXPECT_THAT(foldersOnDisk(), ElementsAre(added)) << "the end of the child takes nothing back";
    context().rollback();
    EXPECT_THAT(foldersOnDisk(), ElementsAre(former));
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(UnsavedFiles, OfAChildThatIsDroppedAreUndone)
{
    const std::string former = *saved("a.bin", "one").uniqueIdentifier();
    {
        NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
        child.setParentContext(context());
        OVNoteFile::noteFileWithUniqueIdentifier(former, child)->renameWithFilename("z.bin");
        OVNote::noteWithText("# Child\n", child)->addAttachmentFromFileURL(aFile("b.bin", "two"));
    }
    EXPECT_THAT(foldersOnDisk(), ElementsAre(former));
    EXPECT_THAT(namesIn(filesRoot() / "Local Files" / "Note Files" / former), ElementsAre("a.bin"));
}

TEST_P(UnsavedFiles, StayOnDiskWhenARecordIsDeletedOffTheMainThread)
{
    const std::string identifier = *saved("a.bin", "one").uniqueIdentifier();
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    child.setParentContext(context());
    child.performBlockAndWait([&] {
        OVNoteFile::noteFileWithUniqueIdentifier(identifier, child)->permanentlyDelete();
        NSError error;
        EXPECT_TRUE(child.save(&error)) << error;
    });
    save();
    EXPECT_THAT(all<OVNoteFile>(), IsEmpty());
    EXPECT_THAT(foldersOnDisk(), ElementsAre(identifier));
}

TEST_P(UnsavedFiles, OfALivingProcessAreLeftAloneByWhoOpensTheStore)
{
    OVNoteFile& file = saved("a.bin", "one");
    file.permanentlyDelete();
    const OVNoteFile& second = attached("b.bin", "two");
    const auto another = contextOn(std::shared_ptr<NSPersistentStoreCoordinator>(
        std::shared_ptr<void>(), &context().persistentStoreCoordinator()));
    OVNoteFile::recoverFilesInManagedObjectContext(*another);
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*second.uniqueIdentifier()));
    EXPECT_EQ(besidesTheKinds().size(), 1U);
    context().rollback();
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*file.uniqueIdentifier()));
}

// An older copy of the store may have been put in place before the next start: what it does not know is not thrown
// away.
TEST_P(UnsavedFiles, OfADeadProcessAreRemovedOnlyWhereTheProcessMadeTheFolder)
{
    const auto kind = filesRoot() / "Local Files" / "Note Files";
    for (const char* folder : {"MADE", "RENAMED"}) {
        std::filesystem::create_directories(kind / folder);
        std::ofstream(kind / folder / "a.bin") << folder;
    }
    const auto journal = filesRoot() / "Local Files" / (".unsaved-" + store().identifier() + "-abcdef");
    std::filesystem::create_directory(journal);
    std::ofstream(journal / "journal") << "+\tLocal Files/Note Files\tMADE\n"
                                          "\tLocal Files/Note Files\tRENAMED\n";
    OVNoteFile::recoverFilesInManagedObjectContext(context());
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    EXPECT_THAT(besidesTheKinds(), ElementsAre("Lost and Found"));
    const auto kept = namesIn(filesRoot() / "Local Files" / "Lost and Found");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(
        contentsOf(filesRoot() / "Local Files" / "Lost and Found" / kept.front() / "RENAMED" / "a.bin"), "RENAMED");
    EXPECT_THAT(takeLog(), testing::SizeIs(1));
}

TEST_P(UnsavedFiles, AreNotTakenBackByASaveThatFails)
{
    OVNoteFile& file = saved("a.bin", "one");
    file.permanentlyDelete();
    const OVNoteFile& second = attached("b.bin", "two");
    // Nothing that is to be made durable may be missing.
    class Refusing final : public SaveParticipant {
    public:
        bool isRefusing = true;
        bool prepareForSave(NSError* error) override
        {
            assignError(error, NSError("test", 7, "refused"));
            return !isRefusing;
        }
        void didSave(NSManagedObjectContext&) override { }
        void didSaveIntoParent(NSManagedObjectContext&) override { }
        void didDropChanges() override { }
    };
    auto added = std::make_unique<Refusing>();
    Refusing& refusing = *added;
    context().addSaveParticipant(std::move(added));
    NSError error;
    EXPECT_FALSE(context().save(&error));
    EXPECT_EQ(error, NSError("test", 7, "refused"));
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*second.uniqueIdentifier()));
    refusing.isRefusing = false;
    save();
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*second.uniqueIdentifier()));
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

class AttachmentsOfADeletedNote : public FilesFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, AttachmentsOfADeletedNote, testing::Values(StoreType::SQLite), storeName);

TEST_P(AttachmentsOfADeletedNote, GoWithTheTextThatIsKept)
{
    OVNote& owner = note("# T\n");
    save();
    const OVNote* kept = nullptr;
    context().setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    context().setMergeConflictHandler([&](const MergeConflict& conflict) { kept = OVNote::keepLosingText(conflict); });
    const auto other = contextOn(openAgain());
    OVNote::noteWithTitle("T", *other)->permanentlyDelete();
    ASSERT_TRUE(other->save());

    owner.addAttachmentFromFileURL(aFile("a file.bin", "bytes"));
    owner.appendNoteWithText("[x](a%20file.bin)");
    save();

    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->text(), "# T\n[x](a%20file.bin)");
    ASSERT_EQ(kept->orderedFiles().size(), 1U);
    EXPECT_EQ(contentsOf(*kept->orderedFiles().front()->fileURL()), "bytes");
    EXPECT_THAT(all<OVNoteFile>(), testing::SizeIs(1));
    EXPECT_TRUE(kept->hasFilesValue());
    EXPECT_THAT(takeLog(), ElementsAre(testing::HasSubstr("Another writer deleted")));
}

} // namespace
} // namespace tarn
