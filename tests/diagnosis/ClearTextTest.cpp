#include "tarnmodel/diagnosis/StoreDoctor.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tests/diagnosis/DiagnosisFixture.h"
#include "tests/support/ProtectedStore.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Kind = StoreFinding::Kind;

/// A store that lies where the application's does, with a protected note and its attachment.
class ClearTexts : public ProtectedStore {
protected:
    void SetUp() override
    {
        ProtectedStore::SetUp();
        OVLocalFileManager::setApplicationPersistentDataTestURL(storeFile().parent_path());
        fs::create_directories(filesRoot() / "Scratch");
        std::ofstream(filesRoot() / "Scratch" / "plan.bin") << "the bytes";
        OVNote& secret = note("# Diary\n\nhidden");
        secret.addAttachmentFromFileURL(filesRoot() / "Scratch" / "plan.bin");
        protect(secret);
        save();
    }

    /// As a program does that knows nothing of protection.
    void writeByHand(const char* sql)
    {
        sqlite3* connection = nullptr;
        ASSERT_EQ(sqlite3_open(storeFile().c_str(), &connection), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(connection);
    }
    OVNote& theNote() { return *OVNote::noteWithTitle("Diary", context()); }
    OVNoteFile& theFile() { return *all<OVNoteFile>().front(); }
    fs::path fileOnDisk() { return theFile().primitiveFileURL().value(); }
    StoreExamination examine()
    {
        save();
        NSError error;
        auto examination = StoreDoctor(context()).examine(&error);
        EXPECT_TRUE(examination) << error;
        return examination.value_or(StoreExamination());
    }
    std::vector<StoreFinding> findings()
    {
        const StoreExamination examination = examine();
        const StoreCheckResult& result = examination.resultOf(StoreCheck::Protection);
        EXPECT_EQ(examination.isSound(), result.findings.empty()) << "nothing else is amiss";
        return result.findings;
    }
    std::vector<Kind> kinds()
    {
        std::vector<Kind> kinds;
        for (const StoreFinding& finding : findings())
            kinds.push_back(finding.kind);
        return kinds;
    }
    std::size_t repair()
    {
        const StoreExamination examination = examine();
        NSError error;
        const auto repairs = StoreDoctor(context()).repair(examination, &error);
        EXPECT_TRUE(repairs) << error;
        return repairs.value_or(StoreRepairs()).clearItems;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ClearTexts, testing::Values(StoreType::SQLite), storeName);

TEST_P(ClearTexts, AreNotThereWhereAllIsProtected)
{
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(repair(), 0U);
}

TEST_P(ClearTexts, OfANoteAreFoundBesideTheEncryptedOne)
{
    theNote().updatePrimitiveText("# Diary\n\nhidden");
    theNote().setSubtitle("hidden");
    const auto found = findings();
    ASSERT_THAT(kinds(), ElementsAre(Kind::ClearText, Kind::ClearSubtitle));
    EXPECT_EQ(found.front().title, "Diary");
    for (const StoreFinding& finding : found) {
        EXPECT_EQ(finding.stored, Value());
        EXPECT_THAT(finding.description, IsEmpty());
    }
    EXPECT_EQ(repair(), 1U);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(theNote().storedText(), std::nullopt);
    EXPECT_EQ(theNote().text(), "# Diary\n\nhidden");
}

TEST_P(ClearTexts, OfANoteStayWhereTheyMayBeTheOnlyOnes)
{
    theNote().updatePrimitiveText("# Diary\n\nhidden, and more");
    EXPECT_EQ(repair(), 0U) << "it differs";
    EXPECT_EQ(theNote().storedText(), "# Diary\n\nhidden, and more");
    theNote().updatePrimitiveText("# Diary\n\nhidden");
    save();
    lock();
    EXPECT_EQ(repair(), 0U) << "nobody can tell";
    EXPECT_THAT(kinds(), ElementsAre(Kind::ClearText));
    OVNote& only = theNote();
    only.setEncryptedData(std::nullopt);
    EXPECT_THAT(kinds(), IsEmpty()) << "nothing is encrypted there";
}

TEST_P(ClearTexts, OfAnAttachmentAreFoundInItsFields)
{
    const std::vector<std::function<void()>> leaks{
        [&] { writeByHand("UPDATE OVNoteFile_large SET searchText = 'recognised'"); },
        [&] { theFile().updatePrimitiveNormalizedFileExtension("bin"); },
        [&] { theFile().updatePrimitiveFileSize(9); },
    };
    for (const auto& leak : leaks) {
        leak();
        EXPECT_THAT(kinds(), ElementsAre(Kind::ClearFields));
        EXPECT_EQ(repair(), 1U);
        EXPECT_THAT(kinds(), IsEmpty());
    }
    EXPECT_EQ(theFile().filename(), "plan.bin");
    EXPECT_EQ(theFile().fileSize(), 9);
}

TEST_P(ClearTexts, OfAnAttachmentAreItsNameAndNobodyTellsIt)
{
    const fs::path sealed = fileOnDisk();
    theFile().updatePrimitiveFilename("plan.bin");
    fs::rename(sealed, fileOnDisk());
    const auto found = findings();
    ASSERT_THAT(kinds(), ElementsAre(Kind::ClearFilename));
    EXPECT_EQ(found.front().title, std::nullopt);
    EXPECT_FALSE(found.front().isRepairable());
    EXPECT_EQ(repair(), 0U);
    fs::remove(fileOnDisk());
    const StoreExamination examination = examine();
    const std::vector<StoreFinding>& missing = examination.resultOf(StoreCheck::Files).findings;
    ASSERT_FALSE(missing.empty());
    for (const StoreFinding& finding : missing)
        EXPECT_EQ(finding.title, std::nullopt);
}

TEST_P(ClearTexts, AreWhatLiesBesideAnEncryptedFile)
{
    const fs::path folder = fileOnDisk().parent_path();
    std::ofstream(folder / "plan.bin") << "the bytes";
    const auto found = findings();
    ASSERT_THAT(kinds(), ElementsAre(Kind::ClearFile));
    EXPECT_EQ(found.front().description, folder.string());
    EXPECT_EQ(repair(), 1U);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("beside those of protected attachments")));
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_TRUE(fs::exists(fileOnDisk()));
}

TEST_P(ClearTexts, StayBesideAnEncryptedFileThatIsNotHere)
{
    const fs::path folder = fileOnDisk().parent_path();
    std::ofstream(folder / "plan.bin") << "the bytes";
    fs::remove(fileOnDisk());
    theFile().setDownloadedValue(false);
    EXPECT_THAT(kinds(), ElementsAre(Kind::ClearFile));
    EXPECT_EQ(repair(), 0U);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("which stays")));
    EXPECT_TRUE(fs::exists(folder / "plan.bin"));
}

TEST_P(ClearTexts, AreThumbnailsOfProtectedPictures)
{
    const fs::path thumbs = OVThumbFileManager::folderURLForPathComponent(OVNoteThumbFileDirectoryName);
    const std::string name = std::string(40, 'a') + "_20x15.jpg";
    std::ofstream(thumbs / name) << "a thumbnail";
    EXPECT_THAT(kinds(), IsEmpty()) << "no picture is protected";
    auto& picture = insert<OVNoteImage>();
    picture.setEncryptedValue(true);
    picture.setPassword(OVPassword::passwordsInManagedObjectContext(context(), std::nullopt).front());
    EXPECT_THAT(kinds(), IsEmpty()) << "they may be of another store";
    const fs::path own = OVLocalFileManager::databaseURLInGroupFolder(OVLocalFileManager::defaultApplicationGroupURL());
    fs::create_directories(own.parent_path());
    fs::create_symlink(storeFile(), own);
    const auto found = findings();
    ASSERT_THAT(kinds(), ElementsAre(Kind::ClearThumbnail));
    EXPECT_EQ(found.front().description, (thumbs / name).string());
    EXPECT_EQ(repair(), 1U);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("1 thumbnails")));
    EXPECT_THAT(kinds(), IsEmpty());
}

} // namespace
} // namespace tarn
