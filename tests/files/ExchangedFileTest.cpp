// A file that takes the place of an attachment's, as an encrypted one does of a clear one.

#include "tests/files/FilesFixture.h"

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ExchangedFile : public FilesFixture {
protected:
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
    /// The attachment has a file of this name, and no other one lies in its folder.
    static void expectOnly(const OVNoteFile& file, std::string_view name, std::string_view bytes)
    {
        EXPECT_EQ(file.storedFilename(), name);
        EXPECT_THAT(namesBeside(file), ElementsAre(name));
        EXPECT_EQ(contentsOf(*file.primitiveFileURL()), bytes);
    }
    /// Drops what `change` does to a saved attachment, then saves it; the file is left with this name and "opened".
    template <typename Change> OVNoteFile& dropThenSave(Change change, std::string_view name)
    {
        OVNoteFile& file = saved("a.bin", "one");
        change(file);
        context().rollback();
        expectOnly(file, "a.bin", "one");
        EXPECT_THAT(besidesTheKinds(), IsEmpty());
        change(file);
        save();
        expectOnly(file, name, "opened");
        EXPECT_THAT(besidesTheKinds(), IsEmpty());
        return file;
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
    EXPECT_TRUE(file.uploadedValue());
    expectOnly(file, "a.bin", "one");
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
    expectOnly(file, "a.bin", "one");
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(ExchangedFile, TakesTheFormerOneAwayAtOnceWhereThatWasNeverSaved)
{
    OVNoteFile& file = attached("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    expectOnly(file, "opaque", "sealed");
    ASSERT_TRUE(exchange(file, "again", "sealed again"));
    expectOnly(file, "again", "sealed again");
    context().rollback();
    expectNothingLeft();
}

TEST_P(ExchangedFile, MayHaveTheFormerNameAgainBeforeTheSave)
{
    dropThenSave(
        [](OVNoteFile& file) {
            ASSERT_TRUE(exchange(file, "opaque", "sealed"));
            ASSERT_TRUE(exchange(file, "a.bin", "opened"));
            expectOnly(file, "a.bin", "opened");
        },
        "a.bin");
}

TEST_P(ExchangedFile, GoesAlongWithOtherChangesOfTheFile)
{
    OVNoteFile& file = dropThenSave(
        [](OVNoteFile& changed) {
            const auto other = NSFileWrapper::withContents(NSData::fromText("other"));
            ASSERT_TRUE(changed.updateAttachmentWithFileWrapper(other));
            changed.renameWithFilename("b.bin");
            ASSERT_TRUE(exchange(changed, "opaque", "sealed"));
            ASSERT_TRUE(exchange(changed, "c.bin", "opened"));
            changed.renameWithFilename("d.bin");
        },
        "d.bin");
    file.permanentlyDelete();
    save();
    expectNothingLeft();
}

TEST_P(ExchangedFile, GoesAlongWithRenamingsOfTheFile)
{
    dropThenSave(
        [](OVNoteFile& file) {
            file.renameWithFilename("b.bin");
            ASSERT_TRUE(exchange(file, "opaque", "sealed"));
            ASSERT_TRUE(exchange(file, "c.bin", "opened"));
            file.renameWithFilename("d.bin");
        },
        "d.bin");
}

TEST_P(ExchangedFile, OfARecordThatIsDeletedGoesWithIt)
{
    OVNoteFile& file = saved("a.bin", "one");
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    file.permanentlyDelete();
    save();
    expectNothingLeft();
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
    expectOnly(file, "opaque", "sealed");
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
    expectOnly(file, "a.bin", "one");
    exchangeInChild(true);
    EXPECT_EQ(file.storedFilename(), "opaque");
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin", "opaque"));
    context().rollback();
    expectOnly(file, "a.bin", "one");
    exchangeInChild(true);
    save();
    expectOnly(file, "opaque", "sealed");
}

// Two writers ---------------------------------------------------------------------------------------------------------

class ExchangedFileOfTwo : public ExchangedFile {
protected:
    void TearDown() override
    {
        (void)takeLog(); // merges say there what they decided
        ExchangedFile::TearDown();
    }
    /// A saved attachment of which the store keeps what others wrote.
    OVNoteFile& contested()
    {
        context().setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
        return saved("a.bin", "one");
    }
    std::vector<std::string> bytesKeptAside() const
    {
        std::vector<std::string> bytes;
        const auto place = filesRoot() / "Local Files" / "Lost and Found";
        for (const std::string& folder : namesIn(place))
            for (const std::string& name : namesIn(place / folder))
                bytes.push_back(contentsOf(place / folder / name));
        return bytes;
    }
    /// What another process saves of the attachment before this one does.
    template <typename Change> void meanwhile(const OVNoteFile& file, Change change)
    {
        const auto other = contextOn(openAgain());
        change(*OVNoteFile::noteFileWithUniqueIdentifier(*file.uniqueIdentifier(), *other));
        ASSERT_TRUE(other->save());
    }
    static void sealTheirs(OVNoteFile& file)
    {
        ASSERT_TRUE(exchange(file, "theirs", "sealed by others"));
        file.setEncryptedValue(true);
    }
    static void writeOver(OVNoteFile& file, std::string_view bytes)
    {
        ASSERT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText(bytes))));
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ExchangedFileOfTwo, testing::Values(StoreType::SQLite), storeName);

TEST_P(ExchangedFileOfTwo, GivesWayWhereAMergeKeptTheFormerOne)
{
    OVNoteFile& file = contested();
    meanwhile(file, [](OVNoteFile& other) { other.renameWithFilename("b.bin"); });
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    save();
    expectOnly(file, "b.bin", "one");
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(ExchangedFileOfTwo, StaysAloneWhereBothExchangedIt)
{
    OVNoteFile& file = contested();
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    meanwhile(file, sealTheirs);
    save();
    expectOnly(file, "theirs", "sealed by others");
}

TEST_P(ExchangedFileOfTwo, LeavesNoClearOneThatWasRenamedMeanwhile)
{
    OVNoteFile& file = contested();
    file.renameWithFilename("b.bin");
    meanwhile(file, sealTheirs);
    save();
    expectOnly(file, "theirs", "sealed by others");
}

TEST_P(ExchangedFileOfTwo, KeepsBytesAsideThatAnotherPutThereMeanwhile)
{
    OVNoteFile& file = contested();
    ASSERT_TRUE(exchange(file, "opaque", "sealed"));
    file.setEncryptedValue(true);
    file.setSealedFields(NSData::fromText("fields"));
    meanwhile(file, [](OVNoteFile& other) { writeOver(other, "others"); });
    save();
    expectOnly(file, "opaque", "sealed");
    EXPECT_THAT(bytesKeptAside(), ElementsAre("others"));
}

TEST_P(ExchangedFileOfTwo, KeepsBytesAsideOfOneThatAnotherProtectedMeanwhile)
{
    OVNoteFile& file = contested();
    meanwhile(file, [&](OVNoteFile& other) {
        sealTheirs(other);
        other.setSealedFields(NSData::fromText("fields"));
        writeOver(file, "ours");
    });
    save();
    expectOnly(file, "theirs", "sealed by others");
    EXPECT_THAT(bytesKeptAside(), ElementsAre("ours"));
}

// After a process died ------------------------------------------------------------------------------------------------

class ExchangeOfADeadProcess : public ExchangedFile {
protected:
    /// A saved attachment with more files in its folder, each of which holds its own name.
    OVNoteFile& savedBeside(const std::vector<std::string>& names)
    {
        OVNoteFile& file = saved("a.bin", "one");
        for (const std::string& name : names)
            std::ofstream(file.primitiveFileURL()->parent_path() / name) << name;
        return file;
    }
    void saveAs(OVNoteFile& file, std::string_view name, bool isProtected = true)
    {
        file.updatePrimitiveFilename(name);
        file.setEncryptedValue(isProtected);
        save();
    }
    /// Recovers from a journal with these exchanges, former name and new one, in the folder of the attachment.
    void recoverFrom(const OVNoteFile& file, const std::vector<std::pair<std::string, std::string>>& exchanges)
    {
        const auto journal = filesRoot() / "Local Files" / (".unsaved-" + store().identifier() + "-abcdef");
        std::filesystem::create_directory(journal);
        std::ofstream lines(journal / "journal");
        for (const auto& [former, name] : exchanges)
            lines << "=\tLocal Files/Note Files\t" << *file.uniqueIdentifier() << '\t' << former << '\t' << name
                  << '\n';
        lines.close();
        OVNoteFile::recoverFilesInManagedObjectContext(context());
        EXPECT_THAT(takeLog(), testing::SizeIs(1));
        EXPECT_THAT(besidesTheKinds(), IsEmpty());
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ExchangeOfADeadProcess, everyStore(), storeName);

TEST_P(ExchangeOfADeadProcess, IsUndoneWhereItWasNotSaved)
{
    OVNoteFile& file = savedBeside({"opaque", ".unfinished-1"});
    recoverFrom(file, {{"a.bin", "opaque"}});
    expectOnly(file, "a.bin", "one");
}

TEST_P(ExchangeOfADeadProcess, IsFinishedWhereItWasSaved)
{
    OVNoteFile& file = savedBeside({"opaque"});
    saveAs(file, "opaque");
    recoverFrom(file, {{"a.bin", "opaque"}});
    expectOnly(file, "opaque", "opaque");
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
    recoverFrom(file, {{"", "opaque"}});
    expectOnly(file, "opaque", "sealed");
    saveAs(file, "another", false);
    recoverFrom(file, {{"", "opaque"}});
    expectOnly(file, "another", "sealed");
}

TEST_P(ExchangeOfADeadProcess, LeavesTheOneThatIsNamedOfMany)
{
    OVNoteFile& file = savedBeside({"first", "second"});
    saveAs(file, "first");
    recoverFrom(file, {{"a.bin", "first"}, {"first", "second"}});
    expectOnly(file, "first", "first");
}

TEST_P(ExchangeOfADeadProcess, ThatCameAfterARenamingLeavesTheFileItsName)
{
    OVNoteFile& file = savedBeside({"opaque"});
    std::filesystem::rename(*file.primitiveFileURL(), file.primitiveFileURL()->parent_path() / "b.bin");
    recoverFrom(file, {{"b.bin", "opaque"}});
    expectOnly(file, "a.bin", "one");
}

TEST_P(ExchangeOfADeadProcess, RemovesNothingWhereTheFileOfAProtectedOneIsMissing)
{
    OVNoteFile& file = savedBeside({});
    saveAs(file, "opaque");
    recoverFrom(file, {{"a.bin", "opaque"}});
    EXPECT_THAT(namesBeside(file), ElementsAre("a.bin")) << "and it does not pass for the protected one";
}

} // namespace
} // namespace tarn
