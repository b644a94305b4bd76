#include "tests/files/FilesFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/TextKeeper.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ExchangedFile : public FilesFixture {
protected:
    OVNoteFile& attached(std::string_view name, std::string_view bytes)
    {
        return *note("# T\n").addAttachmentFromFileURL(aFile(name, bytes));
    }
    OVNoteFile& saved(std::string_view name, std::string_view bytes)
    {
        OVNoteFile& file = attached(name, bytes);
        file.setUploadedValue(true);
        save();
        return file;
    }
    static bool exchange(OVNoteFile& file, std::string_view name, const std::string& bytes, NSError* error = nullptr)
    {
        return file.exchangeStoredFile(
            name,
            [&](const std::filesystem::path& place, NSError* failure) {
                return NSFileManager::createFileAtURL(place, NSData::fromText(bytes), failure);
            },
            error);
    }
    static std::vector<std::string> namesBeside(const OVNoteFile& file)
    {
        return namesIn(file.primitiveFileURL()->parent_path());
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ExchangedFile, everyStore(), storeName);

TEST_P(ExchangedFile, LiesBesideTheFormerOneUntilTheSave)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    EXPECT_EQ(file.storedFilename(), "opaque");
    EXPECT_FALSE(file.uploadedValue());
    EXPECT_EQ(file.uploadedDate(), lastTime());
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "sealed");
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin", "opaque"));
    save();
    EXPECT_THAT(namesBeside(file), ElementsAre("opaque"));
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(ExchangedFile, GivesWayToTheFormerOneWhenItIsDropped)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    context().rollback();
    EXPECT_EQ(file.storedFilename(), "a.bin");
    EXPECT_TRUE(file.uploadedValue());
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "one");
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(ExchangedFile, HasANameThatNothingElseHas)
{
    OVNoteFile& file = saved("a.bin", "one");
    const auto folder = file.primitiveFileURL()->parent_path();
    std::ofstream(folder / "taken") << "somebody's";
    NSError error;
    EXPECT_FALSE(exchange(file, "taken", "sealed", &error));
    EXPECT_EQ(error.code(), EEXIST);
    EXPECT_FALSE(exchange(file, "a.bin", "sealed", &error));
    EXPECT_EQ(contentsOf(folder / "taken"), "somebody's");
    EXPECT_EQ(contentsOf(folder / "a.bin"), "one");
    EXPECT_EQ(file.storedFilename(), "a.bin");
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(ExchangedFile, IsNoneWhenItCannotBeWritten)
{
    OVNoteFile& file = saved("a.bin", "one");
    NSError error;
    const auto fail = [](const std::filesystem::path& place, NSError* failure) {
        std::ofstream(place) << "half";
        assignError(failure, NSError("test", 7, "full"));
        return false;
    };
    EXPECT_FALSE(file.exchangeStoredFile("opaque", fail, &error));
    EXPECT_EQ(error, NSError("test", 7, "full"));
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(file.storedFilename(), "a.bin");
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(ExchangedFile, TakesTheFormerOneAwayAtOnceWhereThatWasNeverSaved)
{
    OVNoteFile& file = attached("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    EXPECT_THAT(namesBeside(file), ElementsAre("opaque"));
    ASSERT_TRUE(exchange(file, "again", "sealed again"));
    EXPECT_THAT(namesBeside(file), ElementsAre("again"));
    context().rollback();
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(ExchangedFile, MayHaveTheFormerNameAgainBeforeTheSave)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    ASSERT_TRUE(exchange(file, "a.bin", "opened"));
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "opened");
    context().rollback();
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "one");

    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    ASSERT_TRUE(exchange(file, "a.bin", "opened"));
    save();
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "opened");
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(ExchangedFile, GoesAlongWithOtherChangesOfTheFile)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("other"))));
    file.renameWithFilename("b.bin");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    ASSERT_TRUE(exchange(file, "c.bin", "opened"));
    file.renameWithFilename("d.bin");
    context().rollback();
    EXPECT_EQ(file.storedFilename(), "a.bin");
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "one");

    file.renameWithFilename("b.bin");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    ASSERT_TRUE(exchange(file, "c.bin", "opened"));
    file.renameWithFilename("d.bin");
    save();
    EXPECT_THAT(namesBeside(file), ElementsAre("d.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "opened");
    file.permanentlyDelete();
    save();
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(ExchangedFile, OfARecordThatIsDeletedGoesWithIt)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    file.permanentlyDelete();
    save();
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(ExchangedFile, NeedsNoFormerOne)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    file.setFilename("a.bin");
    save();
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    context().rollback();
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    save();
    EXPECT_THAT(namesBeside(file), ElementsAre("opaque"));
}

TEST_P(ExchangedFile, OfAChildIsOneOfItsParent)
{
    OVNoteFile& file = saved("a.bin", "one");
    const auto exchangeInChild = [&](bool saves) {
        NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
        child.setParentContext(context());
        ASSERT_TRUE(
            exchange(*OVNoteFile::noteFileWithUniqueIdentifier(*file.uniqueIdentifier(), child), "opaque", "sealed"));
        ASSERT_TRUE(!saves || child.save());
    };
    exchangeInChild(false);
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    exchangeInChild(true);
    EXPECT_EQ(file.storedFilename(), "opaque");
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin", "opaque"));
    context().rollback();
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    exchangeInChild(true);
    save();
    EXPECT_THAT(namesBeside(file), ElementsAre("opaque"));
}

// Two writers ---------------------------------------------------------------------------------------------------------

class ExchangedFileOfTwo : public ExchangedFile {
protected:
    /// What another process saves of the attachment before this one does.
    template <typename Change> void meanwhile(const OVNoteFile& file, Change change)
    {
        const auto other = contextOn(openAgain());
        change(*OVNoteFile::noteFileWithUniqueIdentifier(*file.uniqueIdentifier(), *other));
        ASSERT_TRUE(other->save());
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ExchangedFileOfTwo, testing::Values(StoreType::SQLite), storeName);

TEST_P(ExchangedFileOfTwo, GivesWayWhereAMergeKeptTheFormerOne)
{
    OVNoteFile& file = saved("a.bin", "one");
    context().setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    meanwhile(file, [](OVNoteFile& other) { other.renameWithFilename("b.bin"); });
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    save();
    EXPECT_EQ(file.storedFilename(), "b.bin");
    EXPECT_THAT(namesBeside(file), ElementsAre("b.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "one");
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
    (void)takeLog();
}

TEST_P(ExchangedFileOfTwo, StaysAloneWhereBothExchangedIt)
{
    OVNoteFile& file = saved("a.bin", "one");
    context().setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    meanwhile(file, [](OVNoteFile& other) {
        ASSERT_TRUE(exchange(other, "theirs", "sealed by others"));
        other.setEncryptedValue(true);
    });
    save();
    EXPECT_EQ(file.storedFilename(), "theirs");
    EXPECT_THAT(namesBeside(file), ElementsAre("theirs"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "sealed by others");
    (void)takeLog();
}

TEST_P(ExchangedFileOfTwo, LeavesNoClearOneThatWasRenamedMeanwhile)
{
    OVNoteFile& file = saved("a.bin", "one");
    context().setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    file.renameWithFilename("b.bin");
    meanwhile(file, [](OVNoteFile& other) {
        ASSERT_TRUE(exchange(other, "theirs", "sealed by others"));
        other.setEncryptedValue(true);
    });
    save();
    EXPECT_EQ(file.storedFilename(), "theirs");
    EXPECT_THAT(namesBeside(file), ElementsAre("theirs"));
    (void)takeLog();
}

// After a process died ------------------------------------------------------------------------------------------------

class ExchangeOfADeadProcess : public ExchangedFile {
protected:
    /// Puts a file beside that of the attachment, and a journal with these lines about its folder.
    void leave(const OVNoteFile& file, const std::vector<std::pair<std::string, std::string>>& exchanges)
    {
        const auto journal = filesRoot() / "Local Files" / (".unsaved-" + store().identifier() + "-abcdef");
        std::filesystem::create_directory(journal);
        std::ofstream lines(journal / "journal");
        for (const auto& [former, name] : exchanges)
            lines << "=\tLocal Files/Note Files\t" << *file.uniqueIdentifier() << '\t' << former << '\t' << name
                  << '\n';
    }
    static void put(const OVNoteFile& file, std::string_view name)
    {
        std::ofstream(file.primitiveFileURL()->parent_path() / name) << name;
    }
    void recover()
    {
        OVNoteFile::recoverFilesInManagedObjectContext(context());
        EXPECT_THAT(takeLog(), testing::SizeIs(1));
        EXPECT_THAT(besidesTheKinds(), IsEmpty());
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ExchangeOfADeadProcess, everyStore(), storeName);

TEST_P(ExchangeOfADeadProcess, IsUndoneWhereItWasNotSaved)
{
    OVNoteFile& file = saved("a.bin", "one");
    put(file, "opaque");
    put(file, ".unfinished-1");
    leave(file, {{"a.bin", "opaque"}});
    recover();
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "one");
}

TEST_P(ExchangeOfADeadProcess, IsFinishedWhereItWasSaved)
{
    OVNoteFile& file = saved("a.bin", "one");
    put(file, "opaque");
    file.updatePrimitiveFilename("opaque");
    file.setEncryptedValue(true);
    save();
    leave(file, {{"a.bin", "opaque"}});
    recover();
    EXPECT_THAT(namesBeside(file), ElementsAre("opaque"));
}

TEST_P(ExchangeOfADeadProcess, KnowsNoFormerNameOfOneThatWasNeverSaved)
{
    OVNoteFile& file = attached("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    const auto journals = besidesTheKinds();
    ASSERT_EQ(journals.size(), 1U);
    EXPECT_THAT(contentsOf(filesRoot() / "Local Files" / journals.front() / "journal"),
        testing::Not(testing::HasSubstr("a.bin")));
    save();
    leave(file, {{"", "opaque"}});
    recover();
    EXPECT_THAT(namesBeside(file), ElementsAre("opaque"));
    file.updatePrimitiveFilename("another");
    save();
    leave(file, {{"", "opaque"}});
    recover();
    EXPECT_THAT(namesBeside(file), ElementsAre("another"));
}

TEST_P(ExchangeOfADeadProcess, LeavesTheOneThatIsNamedOfMany)
{
    OVNoteFile& file = saved("a.bin", "one");
    put(file, "first");
    put(file, "second");
    file.updatePrimitiveFilename("first");
    file.setEncryptedValue(true);
    save();
    leave(file, {{"a.bin", "first"}, {"first", "second"}});
    recover();
    EXPECT_THAT(namesBeside(file), ElementsAre("first"));
}

TEST_P(ExchangeOfADeadProcess, ThatCameAfterARenamingLeavesTheFileItsName)
{
    OVNoteFile& file = saved("a.bin", "one");
    std::filesystem::rename(*file.primitiveFileURL(), file.primitiveFileURL()->parent_path() / "b.bin");
    put(file, "opaque");
    leave(file, {{"b.bin", "opaque"}});
    recover();
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin"));
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "one");
}

TEST_P(ExchangeOfADeadProcess, RemovesNothingWhereTheFileOfAProtectedOneIsMissing)
{
    OVNoteFile& file = saved("a.bin", "one");
    file.updatePrimitiveFilename("opaque");
    file.setEncryptedValue(true);
    save();
    leave(file, {{"a.bin", "opaque"}});
    recover();
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin")) << "and it does not pass for the protected one";
}

// Attachments of protected notes --------------------------------------------------------------------------------------

class AttachingToAProtectedNote : public FilesFixture {
protected:
    struct Keeper : TextKeeper {
        bool isRefusing = false;
        bool addEncryptionToObject(OVEncryptableObject& object, OVEncryptingPassword& password, NSError* error) override
        {
            assignError(error, NSError("test", 7, "no room"));
            if (!isRefusing)
                object.setEncryptionState({true, NSData::fromText("cipher"), now(), "key 1", &password});
            return !isRefusing;
        }
    } keeper_;

    void SetUp() override
    {
        FilesFixture::SetUp();
        owner_ = &note("# T\n");
        owner_->setPassword(&insert<OVPassword>());
        owner_->setEncryptedValue(true);
        keeper_.setText("# T\n", *owner_);
        save();
    }
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        FilesFixture::TearDown();
    }
    void serve() { OVEncryptionCoreManager::setEncryptionCoreManager(&keeper_, context()); }

    OVNote* owner_ = nullptr;
};
INSTANTIATE_TEST_SUITE_P(Stores, AttachingToAProtectedNote, everyStore(), storeName);

TEST_P(AttachingToAProtectedNote, IsTakenBackWhenTheFileCannotBeProtected)
{
    serve();
    keeper_.isRefusing = true;
    NSError error;
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromURL(aFile("a.bin", "one"), *owner_, &error));
    EXPECT_EQ(error, NSError("test", 7, "no room"));
    NSFileWrapper wrapper = NSFileWrapper::withContents(NSData::fromText("one"));
    wrapper.setFilename("a.bin");
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromFileWrapper(wrapper, *owner_, nullptr));
    EXPECT_THAT(foldersOnDisk(), IsEmpty()) << "before anything is saved";
    EXPECT_THAT(owner_->filesSet().allObjects(), IsEmpty());
    save();
    EXPECT_THAT(all<OVNoteFile>(), IsEmpty());
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(AttachingToAProtectedNote, DoesNotReviveWhatCannotBeProtected)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    ASSERT_TRUE(file.copyFileToLocalFolder(aFile("a.bin", "one")));
    file.setFilename("a.bin");
    file.setUnused();
    file.setNote(owner_);
    serve();
    keeper_.isRefusing = true;
    EXPECT_FALSE(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")));
    EXPECT_TRUE(file.isUnused());
    keeper_.isRefusing = false;
    EXPECT_EQ(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")), &file);
    EXPECT_FALSE(file.isUnused());
    EXPECT_TRUE(file.encryptedValue());
}

TEST_P(AttachingToAProtectedNote, NeedsItUnlocked)
{
    EXPECT_THROW(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")), NSException) << "no manager";
    serve();
    keeper_.isLocked = true;
    EXPECT_THROW(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")), NSException);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    keeper_.isLocked = false;
    const OVNoteFile* const file = owner_->addAttachmentFromFileURL(aFile("a.bin", "one"));
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->encryptedValue());
}

TEST_P(AttachingToAProtectedNote, NeedsThePasswordsRecord)
{
    owner_->setPassword(nullptr);
    serve();
    NSError error;
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromURL(aFile("a.bin", "one"), *owner_, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
    EXPECT_THAT(all<OVNoteFile>(), IsEmpty());
}

// What records do about their protection ------------------------------------------------------------------------------

using ProtectionHooks = FilesFixture;
INSTANTIATE_TEST_SUITE_P(Stores, ProtectionHooks, everyStore(), storeName);

TEST_P(ProtectionHooks, HideTheSubtitleWhileAnythingIsProtected)
{
    OVNote& owner = note("# T\nwhat it says");
    OVNoteFile& file = *owner.addAttachmentFromFileURL(aFile("a.bin", "one"));
    ASSERT_EQ(owner.subtitle(), "what it says");
    file.setEncryptedValue(true);
    file.didAddEncryption();
    EXPECT_EQ(owner.subtitle(), std::nullopt);
    owner.setEncryptedValue(true);
    file.setEncryptedValue(false);
    file.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), std::nullopt) << "the note still is";
    owner.setEncryptedValue(false);
    owner.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), "what it says");
    file.setEncryptedValue(true);
    owner.setSubtitle(std::nullopt);
    owner.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), std::nullopt) << "the attachment is";
    file.setEncryptedValue(false);
    file.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), "what it says");
}

TEST_P(ProtectionHooks, KeepTheDateOfTheBytes)
{
    OVNoteFile& file = *note("# T\n").addAttachmentFromFileURL(aFile("a.bin", "one"));
    file.setModificationDate(NSDate(1'000'000));
    file.didAddEncryption();
    EXPECT_EQ(NSFileManager::attributesOfItemAtURL(*file.primitiveFileURL())->modificationDate, NSDate(1'000'000));
    file.setModificationDate(NSDate(2'000'000));
    file.didRemoveEncryption();
    EXPECT_EQ(NSFileManager::attributesOfItemAtURL(*file.primitiveFileURL())->modificationDate, NSDate(2'000'000));
}

} // namespace
} // namespace tarn
