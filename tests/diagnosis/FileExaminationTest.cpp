#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tests/diagnosis/DiagnosisFixture.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

/// A store that lies where the application's does, with files on disk.
class FileExaminationTest : public DiagnosisFixture {
protected:
    void SetUp() override
    {
        DiagnosisFixture::SetUp();
        OVLocalFileManager::setApplicationPersistentDataTestURL(storeFile().parent_path());
    }

    static void write(const fs::path& path, std::string_view bytes)
    {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    }
    static std::string bytesOf(const fs::path& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
    }
    fs::path localFiles() const { return storeFile().parent_path() / "Local Files"; }
    /// Where the attachment's bytes lie.
    fs::path attach(std::string_view name)
    {
        const fs::path source = filesRoot() / "Scratch" / name;
        write(source, "bytes");
        OVNote& text = note("# N\n\n[](" + std::string(name) + ")");
        OVNoteFile* file = OVNoteFile::getOrCreateFileFromURL(source, text);
        text.updateNoteWithText(text.text().value_or(""));
        save();
        return file->fileURL().value_or(fs::path());
    }
    OVNoteFile& theFile() { return *all<OVNoteFile>().front(); }
    /// What is in "Lost and Found", without the folders around it.
    std::vector<std::string> lost() const
    {
        std::vector<std::string> names;
        std::error_code none;
        for (const auto& entry : fs::recursive_directory_iterator(localFiles() / "Lost and Found", none))
            if (!entry.is_directory())
                names.push_back(entry.path().filename().string());
        return names;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, FileExaminationTest, testing::Values(StoreType::SQLite), storeName);

TEST_P(FileExaminationTest, FindsFilesSoundThatAreWhatTheirRecordsSay)
{
    attach("a.pdf");
    attach("b.pdf");
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_TRUE(repair().isEmpty());
}

TEST_P(FileExaminationTest, SaysOfARecordWithoutItsFileThatItIsNotHere)
{
    fs::remove(attach("a.pdf"));
    EXPECT_THAT(kinds(), ElementsAre(Kind::MissingFile));
    EXPECT_EQ(repair().files, 1U);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(theFile().downloadedValue(), false);
}

TEST_P(FileExaminationTest, ExpectsNoFileOfWhatIsNotHere)
{
    fs::remove_all(attach("a.pdf").parent_path());
    theFile().setDownloadedValue(false);
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(FileExaminationTest, GivesAFileItsRecordsName)
{
    const fs::path file = attach("a.pdf");
    fs::rename(file, file.parent_path() / "b.pdf");
    EXPECT_THAT(kinds(), ElementsAre(Kind::MisnamedFile));
    EXPECT_EQ(repair().files, 1U);
    EXPECT_EQ(bytesOf(file), "bytes");
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(FileExaminationTest, TakesNoneOfSeveralFilesForTheRecords)
{
    const fs::path file = attach("a.pdf");
    fs::rename(file, file.parent_path() / "b.pdf");
    write(file.parent_path() / "c.pdf", "other");
    EXPECT_THAT(kinds(), ElementsAre(Kind::MissingFile));
    repair();
    EXPECT_EQ(bytesOf(file.parent_path() / "b.pdf"), "bytes");
}

TEST_P(FileExaminationTest, ReadsAgainHowLargeAFileIs)
{
    write(attach("a.pdf"), "more bytes");
    theFile().setUploadedValue(true);
    const StoreExamination examination = examine();
    ASSERT_THAT(kindsOf(examination), ElementsAre(Kind::WrongFileSize));
    EXPECT_EQ(findingsOf(examination).front().stored, Value(std::int64_t{5}));
    EXPECT_EQ(findingsOf(examination).front().derived, Value(std::int64_t{10}));
    EXPECT_EQ(repair().files, 1U);
    EXPECT_EQ(theFile().fileSize(), 10);
    EXPECT_EQ(theFile().uploadedValue(), false);
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(FileExaminationTest, KeepsWhatBelongsToNoRecordForPeopleToLookAt)
{
    attach("a.pdf");
    write(localFiles() / "Note Images" / "NOBODY" / "p.png", "bytes");
    write(localFiles() / "Note Files" / "stray.txt", "bytes");
    EXPECT_THAT(kinds(), ElementsAre(Kind::FolderWithoutRecord, Kind::FolderWithoutRecord));
    EXPECT_EQ(repair().files, 2U);
    EXPECT_THAT(lost(), UnorderedElementsAre("p.png", "stray.txt"));
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(FileExaminationTest, RemovesWhatWasNeverWhole)
{
    const fs::path file = attach("a.pdf");
    write(file.parent_path() / ".unfinished-1", "byt");
    EXPECT_THAT(kinds(), ElementsAre(Kind::UnfinishedFile));
    EXPECT_EQ(repair().files, 1U);
    EXPECT_EQ(bytesOf(file.parent_path() / ".unfinished-1"), "-");
    EXPECT_EQ(bytesOf(file), "bytes");
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(FileExaminationTest, LeavesAloneWhatIsUnderWay)
{
    const auto journal = FileJournal::forStore(store().identifier(), nullptr);
    ASSERT_TRUE(journal);
    const RecordFolder folder{"Local Files/Note Files", "BEING-MADE"};
    ASSERT_TRUE(journal->note(folder, nullptr));
    write(folder.url() / ".unfinished-1", "byt");
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_TRUE(repair().isEmpty());
    EXPECT_EQ(bytesOf(folder.url() / ".unfinished-1"), "byt");
}

TEST_P(FileExaminationTest, BringsInStepWhatAProcessLeftThatDied)
{
    const fs::path file = attach("a.pdf");
    const std::string identifier = theFile().uniqueIdentifier().value_or("");
    const std::string storeUUID = store().identifier();
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const auto journal = FileJournal::forStore(storeUUID, nullptr);
        const auto aside = journal->noteAside({"Local Files/Note Files", identifier}, "", nullptr);
        fs::rename(file.parent_path(), *aside);
        std::_Exit(0); // the journal stays
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_THAT(kinds(), ElementsAre(Kind::AbandonedFileChanges));
    EXPECT_EQ(repair().files, 1U);
    EXPECT_THAT(takeLog(), SizeIs(1));
    EXPECT_EQ(bytesOf(file), "bytes");
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(FileExaminationTest, BelievesNoFindingThatIsNotTrueAnyMore)
{
    const fs::path file = attach("a.pdf");
    const fs::path elsewhere = filesRoot() / "Scratch" / "elsewhere.pdf";
    fs::rename(file, elsewhere);
    const StoreExamination examination = examine();
    ASSERT_THAT(kindsOf(examination), ElementsAre(Kind::MissingFile));
    fs::rename(elsewhere, file);
    const auto repairs = StoreDoctor(context()).repair(examination);
    ASSERT_TRUE(repairs);
    EXPECT_EQ(repairs->files, 0U);
    EXPECT_EQ(theFile().downloadedValue(), true);
}

TEST_P(FileExaminationTest, LooksAgainBeforeItMends)
{
    const fs::path file = attach("a.pdf");
    fs::rename(file, file.parent_path() / "b.pdf");
    write(localFiles() / "Note Files" / "NOBODY" / "p.txt", "bytes");
    const StoreExamination examination = examine();
    ASSERT_THAT(kindsOf(examination), SizeIs(2));
    fs::rename(file.parent_path() / "b.pdf", file);
    OVNoteFile& late = insert<OVNoteGenericFile>();
    late.setUniqueIdentifier("NOBODY");
    late.setFilename("p.txt");
    save();
    const auto repairs = StoreDoctor(context()).repair(examination);
    ASSERT_TRUE(repairs);
    EXPECT_EQ(repairs->files, 0U);
    EXPECT_EQ(bytesOf(file), "bytes");
    EXPECT_EQ(bytesOf(localFiles() / "Note Files" / "NOBODY" / "p.txt"), "bytes");
}

TEST_P(FileExaminationTest, IsNotMadeOfAStoreThatLiesElsewhere)
{
    fs::remove(attach("a.pdf"));
    write(localFiles() / "Note Files" / "NOBODY" / "p.txt", "bytes");
    OVLocalFileManager::setApplicationPersistentDataTestURL(filesRoot());
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_TRUE(repair().isEmpty());
}

} // namespace
} // namespace tarn
