#include "tests/files/FilesFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/TextKeeper.h"

#include <sys/resource.h>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using NoteFile = FilesFixture;
INSTANTIATE_TEST_SUITE_P(Stores, NoteFile, everyStore(), storeName);

TEST_P(NoteFile, HasAFolderOfItsKindAndItself)
{
    EXPECT_EQ(insert<OVNoteImage>().localFolderName(), "Local Files/Note Images");
    EXPECT_EQ(insert<OVNoteGenericFile>().localFolderName(), "Local Files/Note Files");
    EXPECT_EQ(insert<OVNoteImage>().fileURL(), std::nullopt) << "without a name";
    OVNoteImage& named = insert<OVNoteImage>();
    named.setFilename("../a.png");
    EXPECT_EQ(named.fileURL(), filesRoot() / "Local Files/Note Images" / *named.uniqueIdentifier() / ".._a.png");
    EXPECT_EQ(named.localFileManager()->baseURL(), filesRoot() / "Local Files/Note Images");
    std::vector<std::string_view> names;
    for (const OVNoteFile::Kind& kind : OVNoteFile::concreteSubclasses())
        names.push_back(kind.entityName);
    EXPECT_THAT(names, ElementsAre("OVNoteImage", "OVNoteGenericFile"));
}

TEST_P(NoteFile, NeedsAnIdentifierForItsFolder)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    file.setUniqueIdentifier(std::nullopt);
    NSError error;
    EXPECT_EQ(file.copyFileToLocalFolder(aFile("a", "x"), &error), std::nullopt);
    EXPECT_EQ(error, NSError("Tarn Model", 1, "Missing uniqueIdentifier while trying to copy file"));
    EXPECT_EQ(file.moveFileToLocalFolder(aFile("a", "x"), &error), std::nullopt);
    EXPECT_EQ(error, NSError("Tarn Model", 1, "Missing uniqueIdentifier while trying to move file"));
}

TEST_P(NoteFile, TakesAFileUnderItsStoredName)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    file.setFilename("stored.bin");
    const auto copy = file.copyFileToLocalFolder(aFile("other.bin", "x"));
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->filename(), "stored.bin");
    OVNoteFile& second = insert<OVNoteGenericFile>();
    const auto moved = second.moveFileToLocalFolder(scratch() / "other.bin");
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved->filename(), "other.bin");
    EXPECT_THAT(namesIn(scratch()), IsEmpty());
}

TEST_P(NoteFile, ReadsSizeAndDates)
{
    OVNoteFile& file = attached("a.bin", "12345");
    EXPECT_EQ(file.fileSize(), 5);
    const auto written = std::filesystem::last_write_time(scratch() / "a.bin");
    EXPECT_EQ(std::filesystem::last_write_time(*file.fileURL()), written);
    EXPECT_TRUE(file.modificationDate());
    std::filesystem::remove(*file.fileURL());
    file.updateFileMetadata();
    EXPECT_EQ(file.fileSize(), 0);
    EXPECT_EQ(file.modificationDate(), std::nullopt);
    EXPECT_EQ(file.creationDate(), std::nullopt);
}

TEST_P(NoteFile, NormalizesItsExtension)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    for (const auto& [name, extension] : {std::pair("a.JPG", "jpeg"), {"a.jpeg", "jpeg"}, {"a.tar.PDF", "pdf"},
             {"a", ""}, {"a.unheardof", ""}, {".png", ""}}) {
        file.setFilename(name);
        file.updateNormalizedExtension();
        EXPECT_EQ(file.normalizedFileExtension(), extension) << name;
    }
}

TEST_P(NoteFile, IsRenamedOnDiskOnlyWhenItIsThere)
{
    OVNoteFile& here = attached("a.bin");
    here.setUploadedValue(true);
    NSError error;
    here.renameWithFilename("b/c.JPG", &error);
    EXPECT_EQ(error, NSError());
    EXPECT_EQ(here.filename(), "b_c.JPG");
    EXPECT_EQ(here.normalizedFileExtension(), "jpeg");
    EXPECT_FALSE(here.uploadedValue());
    EXPECT_EQ(here.uploadedDate(), lastTime());
    EXPECT_EQ(contentsOf(*here.fileURL()), "bytes");

    OVNoteFile& away = insert<OVNoteGenericFile>();
    away.setFilename("x.bin");
    away.setUploadedValue(true);
    away.renameWithFilename("y.bin", &error);
    EXPECT_EQ(error, NSError());
    EXPECT_EQ(away.filename(), "y.bin");
    EXPECT_TRUE(away.uploadedValue()) << "a name in the store only";
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*here.uniqueIdentifier()));
}

TEST_P(NoteFile, KeepsItsNameWhenTheFileCannotBeRenamed)
{
    OVNoteFile& file = attached("a.bin");
    file.setUploadedValue(true);
    std::ofstream(file.fileURL()->parent_path() / "taken.bin") << "x";
    NSError error;
    file.renameWithFilename("taken.bin", &error);
    EXPECT_EQ(error.code(), EEXIST);
    EXPECT_EQ(file.filename(), "a.bin");
    EXPECT_EQ(file.normalizedFileExtension(), "bin");
    EXPECT_TRUE(file.uploadedValue());
    EXPECT_EQ(contentsOf(*file.fileURL()), "bytes");
    std::filesystem::remove(file.fileURL()->parent_path() / "taken.bin");
    file.renameWithFilename("a.bin", &error);
    EXPECT_EQ(contentsOf(*file.fileURL()), "bytes") << "the same name";
}

TEST_P(NoteFile, TellsOfEachChangeOfUseOnce)
{
    OVNoteFile& file = attached("a.bin");
    file.setUnused();
    EXPECT_TRUE(file.isUnused());
    const auto date = file.unusedDate();
    EXPECT_EQ(date, lastTime());
    file.setUnused();
    EXPECT_EQ(file.unusedDate(), date);
    file.setInUse();
    EXPECT_NE(file.unusedDate(), date);
}

TEST_P(NoteFile, IsMarkedForUploadWhenItsBytesChange)
{
    OVNoteFile& file = attached("a.bin");
    file.setUploadedValue(true);
    NSError error;
    EXPECT_FALSE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withURL(scratch() / "missing"), &error));
    EXPECT_EQ(error.code(), ENOENT);
    EXPECT_TRUE(file.uploadedValue());
    EXPECT_EQ(contentsOf(*file.fileURL()), "bytes");
    EXPECT_TRUE(file.updateAttachmentWithFileWrapper(NSFileWrapper::withURL(aFile("b", "longer bytes"))));
    EXPECT_EQ(file.fileSize(), 12);
    EXPECT_FALSE(file.uploadedValue());
    EXPECT_THAT(namesIn(file.fileURL()->parent_path()), ElementsAre("a.bin"));
    OVNoteFile& nameless = insert<OVNoteGenericFile>();
    EXPECT_FALSE(nameless.updateAttachmentWithFileWrapper(NSFileWrapper::withURL(scratch() / "b"), &error));
}

TEST_P(NoteFile, IsCopiedWithItsBytesAndWithoutItsNote)
{
    OVNoteFile& source = attached("a.bin", "12345");
    source.setUploadedValue(true);
    source.setUnused();
    OVNoteFile* const copy = source.duplicate();
    EXPECT_NE(copy->uniqueIdentifier(), source.uniqueIdentifier());
    EXPECT_EQ(copy->note(), nullptr);
    EXPECT_EQ(copy->filename(), "a.bin");
    EXPECT_EQ(copy->fileSize(), 5);
    EXPECT_TRUE(copy->isUnused());
    EXPECT_FALSE(copy->uploadedValue());
    EXPECT_EQ(contentsOf(*copy->fileURL()), "12345");
    std::ofstream(*copy->fileURL()) << "edited";
    EXPECT_EQ(contentsOf(*source.fileURL()), "12345") << "a file of its own";

    std::filesystem::remove(*source.fileURL());
    EXPECT_EQ(contentsOf(*source.duplicate()->fileURL()), "-");
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while duplicating an attachment\n")));
}

TEST_P(NoteFile, OfManyGigabytesTakesNoMemory)
{
    constexpr std::int64_t size = std::int64_t{1} << 32;
    OVNote& owner = note("# T\n");
    const auto source = aFile("large.bin", "begin");
    std::filesystem::resize_file(source, size);
    rusage before{};
    ASSERT_EQ(::getrusage(RUSAGE_SELF, &before), 0);
    OVNoteFile* const file = owner.addAttachmentFromFileURL(source);
    ASSERT_TRUE(file);
    const OVNoteFile* const copy = owner.duplicate()->attachmentIncludingUnusedForFilename("large.bin");
    ASSERT_TRUE(copy);
    save();
    EXPECT_EQ(file->fileSize(), size);
    EXPECT_EQ(std::filesystem::file_size(*copy->fileURL()), static_cast<std::uintmax_t>(size));
    rusage after{};
    ASSERT_EQ(::getrusage(RUSAGE_SELF, &after), 0);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 64 * 1024) << "KiB at most";
}

TEST_P(NoteFile, IsDuplicatedAndMergedWithItsNote)
{
    OVNote& one = note("# One\n\n![](a.bin)\n");
    one.addAttachmentFromFileURL(aFile("a.bin", "of one"));
    one.updateNoteWithText("# One\n\n[x](a.bin)\n");
    OVNote& other = note("# Other\n\n[y](a.bin)\n");
    other.addAttachmentFromFileURL(aFile("a.bin", "of other"));
    other.updateNoteWithText("# Other\n\n[y](a.bin)\n");

    const OVNote* const copy = one.duplicate();
    ASSERT_EQ(copy->orderedFiles().size(), 1U);
    EXPECT_EQ(contentsOf(*copy->orderedFiles().front()->fileURL()), "of one");

    const OVNote* const merger = OVNote::mergeNotes({&one, &other});
    EXPECT_EQ(merger->text(), "# One\n\n[x](a.bin)\n\n# Other\n\n[y](a%20%282%29.bin)\n");
    ASSERT_EQ(merger->orderedFiles().size(), 2U);
    EXPECT_EQ(contentsOf(*merger->orderedFiles().front()->fileURL()), "of one");
    EXPECT_EQ(contentsOf(*merger->orderedFiles().back()->fileURL()), "of other");
    EXPECT_EQ(foldersOnDisk().size(), 5U);
}

TEST_P(NoteFile, IsFetchedByIdentifierAndByWhatIsToBeDoneWithIt)
{
    OVNoteFile& here = attached("here.bin");
    OVNoteFile& gone = attached("gone.bin");
    std::filesystem::remove(*gone.fileURL());
    OVNoteFile& orphan = attached("orphan.bin");
    orphan.setNote(nullptr);
    OVNoteFile& away = file(note("# Away"), "away.bin");
    away.setUploadedValue(true);
    away.setDownloadedValue(false);
    OVNoteFile& sent = attached("sent.bin");
    sent.setUploadedValue(true);

    EXPECT_EQ(OVNoteFile::noteFileWithUniqueIdentifier(*here.uniqueIdentifier(), context()), &here);
    EXPECT_EQ(OVNoteFile::noteFileWithUniqueIdentifier("no such", context()), nullptr);
    EXPECT_THAT(
        OVNoteFile::noteFilesWithUniqueIdentifiers({*here.uniqueIdentifier(), *sent.uniqueIdentifier()}, context()),
        UnorderedElementsAre(&here, &sent));
    EXPECT_EQ(OVNoteFile::filesInManagedObjectContext(context(), std::nullopt).size(), 5U);
    EXPECT_THAT(OVNoteFile::noteFilesToUploadInManagedObjectContext(context()), ElementsAre(&here));
    EXPECT_EQ(OVNoteFile::numberOfFileToUploadInManagedObjectContext(context()), 3U)
        << "without a look at disk and note";
    EXPECT_THAT(OVNoteFile::noteFilesToDownloadInManagedObjectContext(context()), ElementsAre(&away));
    EXPECT_EQ(OVNoteFile::numberOfFileToDownloadInManagedObjectContext(context()), 1U);
}

TEST_P(NoteFile, ThatIsUnusedIsDeletedWithAllOthersThatAre)
{
    OVNoteFile& used = attached("used.bin");
    attached("unused.bin").setUnused();
    attached("unused too.bin").setUnused();
    OVNoteFile::deleteAllUnusedNoteFilesInManagedObjectContext(context());
    save();
    EXPECT_THAT(all<OVNoteFile>(), ElementsAre(&used));
    EXPECT_THAT(foldersOnDisk(), ElementsAre(*used.uniqueIdentifier()));
}

TEST_P(NoteFile, TellsAServerWhatBelongsToItsKind)
{
    OVNoteImage& image = insert<OVNoteImage>();
    image.setWidthValue(4);
    image.setHeightValue(3);
    EXPECT_EQ(image.additionalFileData(), (std::map<std::string, Value>{{"width", Value(4)}, {"height", Value(3)}}));
    const OVNoteFile& file = attached("a.bin");
    const auto data = file.additionalFileData();
    EXPECT_EQ(data.at("filename"), Value("a.bin"));
    EXPECT_EQ(data.at("modificationDate"), Value(*file.modificationDate()));
    EXPECT_EQ(data.size(), 2U);
}

// Protection ----------------------------------------------------------------------------------------------------------

class ProtectedFile : public NoteFile {
protected:
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        NoteFile::TearDown();
    }
    struct Keeper : TextKeeper {
        bool addEncryptionToObject(OVEncryptableObject&, OVEncryptingPassword&, NSError*) override
        {
            ++encryptions;
            return true;
        }
        int encryptions = 0;
    } keeper_;
};
INSTANTIATE_TEST_SUITE_P(Stores, ProtectedFile, everyStore(), storeName);

TEST_P(ProtectedFile, IsFoundForUploadWithoutBeingDecrypted)
{
    OVNoteFile& file = attached("a.bin");
    file.setEncryptedValue(true);
    keeper_.isLocked = true;
    OVEncryptionCoreManager::setEncryptionCoreManager(&keeper_, context());
    EXPECT_THROW(file.fileURL(), NSException);
    EXPECT_TRUE(file.primitiveFileURL());
    EXPECT_THAT(OVNoteFile::noteFilesToUploadInManagedObjectContext(context()), ElementsAre(&file));
    const auto size = file.storedFileSize();
    std::ofstream(*file.primitiveFileURL()) << "changed on disk";
    file.updateFileMetadata();
    EXPECT_EQ(file.storedFileSize(), size) << "nothing is read of a locked one";
}

TEST_P(ProtectedFile, IsProtectedLikeItsNoteOnlyWhenThatIsUnlocked)
{
    OVNote& owner = note("# T\n");
    owner.setEncryptedValue(true);
    owner.setPassword(OVPassword::insertInManagedObjectContext(context()));
    OVEncryptionCoreManager::setEncryptionCoreManager(&keeper_, context());
    keeper_.isLocked = true;
    OVNoteFile& file = insert<OVNoteGenericFile>();
    file.setNote(&owner);
    OVNoteFile::encryptFileIfNeeded(file);
    EXPECT_EQ(keeper_.encryptions, 0) << "locked";
    keeper_.isLocked = false;
    OVNoteFile::encryptFileIfNeeded(file);
    EXPECT_EQ(keeper_.encryptions, 1);
    file.setEncryptedValue(true);
    OVNoteFile::encryptFileIfNeeded(file);
    EXPECT_EQ(keeper_.encryptions, 1) << "it is already";
    owner.setEncryptedValue(false);
    file.setEncryptedValue(false);
    OVNoteFile::encryptFileIfNeeded(file);
    EXPECT_EQ(keeper_.encryptions, 1) << "the note is not";
}

} // namespace
} // namespace tarn
