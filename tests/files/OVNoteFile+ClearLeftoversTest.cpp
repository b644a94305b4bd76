#include "tests/files/FilesFixture.h"
#include "tests/support/ProtectedStore.h"
#include "tests/support/SQLStatistics.h"

#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ClearLeftovers : public ProtectedStore {
protected:
    OVNoteFile& attached(std::string_view name)
    {
        std::filesystem::create_directories(filesRoot() / "Scratch");
        std::ofstream(filesRoot() / "Scratch" / name) << "bytes of " << name;
        return *note("# T\n").addAttachmentFromFileURL(filesRoot() / "Scratch" / name);
    }
    OVNoteFile& protectedFile(std::string_view name)
    {
        OVNoteFile& file = protect(attached(name));
        save();
        return file;
    }
    static std::filesystem::path folderOf(const OVNoteFile& file) { return file.primitiveFileURL()->parent_path(); }
    static void leaveBeside(const OVNoteFile& file, std::string_view name)
    {
        std::ofstream(folderOf(file) / name) << "clear";
    }
    void writeJournal(const OVNoteFile& file)
    {
        const auto journal = filesRoot() / "Local Files" / (".unsaved-" + store().identifier() + "-abcdef");
        std::filesystem::create_directory(journal);
        std::ofstream(journal / "journal") << "\tLocal Files/Note Files\t" << *file.uniqueIdentifier() << '\n';
    }
    void sweep() { OVNoteFile::removeClearLeftoversInManagedObjectContext(context()); }
};
INSTANTIATE_TEST_SUITE_P(Stores, ClearLeftovers, everyStore(), storeName);

TEST_P(ClearLeftovers, AreRemovedBesideProtectedFiles)
{
    OVNoteFile& secret = protectedFile("a.bin");
    OVNoteFile& other = attached("b.bin");
    save();
    leaveBeside(secret, "a.bin");
    leaveBeside(secret, ".unfinished-1");
    leaveBeside(other, "c.bin");
    sweep();
    EXPECT_THAT(namesIn(folderOf(secret)), ElementsAre(*secret.storedFilename()));
    EXPECT_THAT(namesIn(folderOf(other)), ElementsAre("b.bin", "c.bin")) << "nothing here is protected";
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("2 files")));
    sweep();
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_P(ClearLeftovers, StayWhereTheProtectedFileIsMissing)
{
    OVNoteFile& secret = protectedFile("a.bin");
    leaveBeside(secret, "a.bin");
    std::filesystem::remove(*secret.primitiveFileURL());
    sweep();
    EXPECT_THAT(namesIn(folderOf(secret)), ElementsAre("a.bin"));
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("whose file is missing")));
}

TEST_P(ClearLeftovers, StayWhereAJournalNamesTheFolder)
{
    OVNoteFile& secret = protectedFile("a.bin");
    leaveBeside(secret, "next");
    writeJournal(secret);
    sweep();
    EXPECT_THAT(namesIn(folderOf(secret)), testing::SizeIs(2));
    EXPECT_THAT(takeLog(), IsEmpty());
}

TEST_P(ClearLeftovers, AreNotWhatThisContextHasUnderWay)
{
    OVNoteFile& secret = protectedFile("a.bin");
    ASSERT_TRUE(secret.updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("others"))));
    ASSERT_THAT(namesIn(folderOf(secret)), testing::SizeIs(2));
    sweep();
    EXPECT_THAT(namesIn(folderOf(secret)), testing::SizeIs(2));
    context().rollback();
    EXPECT_EQ(contentsOf(*secret.fileURL()), "bytes of a.bin");
}

/// What the store does is counted.
class CountedClearLeftovers : public ClearLeftovers {
protected:
    SQLStatistics statistics_;
};
INSTANTIATE_TEST_SUITE_P(Stores, CountedClearLeftovers, testing::Values(StoreType::SQLite), storeName);

TEST_P(CountedClearLeftovers, AreLookedForWithoutALookAtClearAttachments)
{
    for (int index = 0; index < 300; ++index)
        insert<OVNoteImage>();
    OVNoteFile& secret = protectedFile("a.bin");
    leaveBeside(secret, "a.bin");
    statistics_.take();
    sweep();
    EXPECT_FALSE(OVThumbFileManager::areTherePicturesWithoutThumbs(context()));
    const SQLStatistics::Counts counts = statistics_.take();
    EXPECT_GT(counts.statements, 0);
    EXPECT_LT(counts.scannedRows, 30);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("1 files")));
}

} // namespace
} // namespace tarn
