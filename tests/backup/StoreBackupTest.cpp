#include "tests/backup/BackupFixture.h"

#include "tarnmodel/backup/archive/ArchiveReader.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tests/files/FilesFixture.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <fstream>
#include <thread>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Backup : public BackupFixture {
protected:
    std::map<std::string, std::string> members() const
    {
        std::map<std::string, std::string> members;
        ArchiveReader reader(archive());
        while (const auto member = reader.next()) {
            std::string bytes;
            for (auto piece = reader.read(); !piece.empty(); piece = reader.read())
                bytes.append(reinterpret_cast<const char*>(piece.data()), piece.size());
            members[member->name] = bytes;
        }
        return members;
    }
    std::vector<std::string> leftovers() const { return namesIn(OVLocalFileManager::temporaryDirectoryURL()); }
};

TEST_F(Backup, TellsWhatItHolds)
{
    fillNotebook();
    const BackupManifest manifest = backUp();
    EXPECT_EQ(manifest.noteCount(), 4U);
    EXPECT_EQ(manifest.fileCount, 3U);
    EXPECT_EQ(manifest.fileBytes, 12U + 17U);
    EXPECT_EQ(manifest.modelVersion, "Model 3");
    EXPECT_EQ(manifest.storeUUID, store().identifier());
    EXPECT_EQ(manifest.recordCounts.at("OVPassword"), 1U);
    EXPECT_FALSE(manifest.recordCounts.contains("OVChange"));
    ASSERT_EQ(manifest.missingFiles.size(), 1U);
    EXPECT_EQ(manifest.missingFiles.front().name, "elsewhere.jpg");
    EXPECT_EQ(BackupRestore(archive()).manifest()->fileCount, 3U);
}

TEST_F(Backup, HoldsRecordsALineEachAndFilesUnderTheirIdentifiers)
{
    OVNote& only = note("# One\n\n#tag");
    OVNoteFile& file = attach(only, "a.txt", "bytes");
    save();
    backUp();
    const auto content = members();
    const auto manifest = nlohmann::json::parse(content.at("manifest.json"));
    EXPECT_EQ(manifest["format"], 1);
    EXPECT_EQ(manifest["members"].size() + 1, content.size());
    EXPECT_EQ(content.at("files/" + *file.uniqueIdentifier() + "/a.txt"), "bytes");
    const auto line = nlohmann::json::parse(content.at("records/OVNote.jsonl"));
    EXPECT_EQ(line["attributes"]["title"], "One");
    EXPECT_EQ(line["attributes"]["creationDate"], only.creationDate()->microsecondsSince1970());
    EXPECT_EQ(line["relationships"]["tags"], nlohmann::json({1}));
    EXPECT_FALSE(line["attributes"].contains("subtitle") && line["attributes"]["subtitle"].is_null());
}

TEST_F(Backup, LeavesNothingBesideIt)
{
    fillNotebook();
    backUp();
    EXPECT_THAT(namesIn(place()), ElementsAre("notes, alle.tarnbackup"));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(Backup, TakesNoFilesPlaceUnlessItIsTo)
{
    fillNotebook();
    writeBytes(archive(), "mine");
    NSError error;
    EXPECT_FALSE(StoreBackup(storeFile()).writeToURL(archive(), {}, &error));
    EXPECT_EQ(error.domain(), TarnBackupErrorDomain);
    EXPECT_EQ(error.code(), BackupErrorExists);
    EXPECT_EQ(bytesOf(archive()), "mine");
    EXPECT_THAT(namesIn(place()), ElementsAre("notes, alle.tarnbackup"));
    backUp({.replacesFile = true});
    EXPECT_TRUE(BackupRestore(archive()).examine()->damaged.empty());
}

TEST_F(Backup, EndsWhenItIsCancelledAndLeavesTheFormerOne)
{
    fillNotebook();
    backUp();
    const std::string before = bytesOf(archive());
    int calls = 0;
    const auto run = [&](int last) {
        calls = 0;
        NSError error;
        const BackupOptions options{.replacesFile = true, .progress = [&](std::uint64_t done, std::uint64_t total) {
                                        EXPECT_LE(done, total);
                                        return ++calls < last;
                                    }};
        return StoreBackup(storeFile()).writeToURL(archive(), options, &error) ? NSError() : error;
    };
    EXPECT_EQ(run(1'000'000), NSError());
    writeBytes(archive(), before);
    for (int last = calls; last > 0; --last) {
        EXPECT_EQ(run(last).code(), BackupErrorCancelled);
        EXPECT_EQ(bytesOf(archive()), before);
        EXPECT_THAT(namesIn(place()), ElementsAre("notes, alle.tarnbackup"));
    }
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(Backup, IsNotMadeWhenItDoesNotReadBack)
{
    fillNotebook();
    const auto unfinished = place() / ".unfinished-notes, alle.tarnbackup";
    std::uint64_t before = 0;
    bool isHarmed = false;
    // Once it is written, nothing more is done while it is read back.
    const auto harm = [&](std::uint64_t done, std::uint64_t) {
        if (!isHarmed && done == before && std::filesystem::exists(unfinished)) {
            std::string bytes = bytesOf(unfinished);
            bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 1);
            std::fstream stream(unfinished, std::ios::binary | std::ios::in | std::ios::out);
            stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
            isHarmed = true;
        }
        before = done;
        return true;
    };
    NSError error;
    EXPECT_FALSE(StoreBackup(storeFile()).writeToURL(archive(), {.progress = harm}, &error));
    EXPECT_TRUE(isHarmed);
    EXPECT_EQ(error.code(), BackupErrorDamaged);
    EXPECT_THAT(namesIn(place()), IsEmpty());
}

TEST_F(Backup, TakesTheUnfinishedFileOfADeadProcessAway)
{
    fillNotebook();
    writeBytes(place() / ".unfinished-notes, alle.tarnbackup", "half");
    backUp();
    EXPECT_THAT(namesIn(place()), ElementsAre("notes, alle.tarnbackup"));
    EXPECT_TRUE(BackupRestore(archive()).examine()->damaged.empty());
}

TEST_F(Backup, OfNoStoreSaysWhy)
{
    NSError error;
    EXPECT_FALSE(StoreBackup(place() / "none.sqlite").writeToURL(archive(), {}, &error));
    EXPECT_NE(error, NSError());
    EXPECT_THAT(namesIn(place()), IsEmpty());
}

TEST_F(Backup, ToAFolderThatIsNotThereSaysSo)
{
    fillNotebook();
    NSError error;
    EXPECT_FALSE(StoreBackup(storeFile()).writeToURL(place() / "none" / "a.tarnbackup", {}, &error));
    EXPECT_EQ(error.domain(), NSPOSIXErrorDomain);
    EXPECT_EQ(error.code(), ENOENT);
}

TEST_F(Backup, TakesAFolderAsAnAttachmentWhole)
{
    OVNote& only = note("# One");
    const auto folder = filesRoot() / "scratch" / "drawing.pages";
    writeBytes(folder / "index.xml", "<xml/>");
    writeBytes(folder / "inner" / "deep" / "picture", "bytes");
    std::filesystem::create_directories(folder / "empty");
    OVNoteFile* file = only.addAttachmentFromFileURL(folder);
    ASSERT_NE(file, nullptr);
    save();
    const BackupManifest manifest = backUp();
    EXPECT_EQ(manifest.fileCount, 1U);
    TestStore& other = otherStore();
    EXPECT_EQ(restore(other).files, 1U);
    const auto restored = noteOf(other.context(), "One").filesSet().allObjects().front()->fileURL();
    ASSERT_TRUE(restored);
    EXPECT_EQ(bytesOf(*restored / "inner" / "deep" / "picture"), "bytes");
    EXPECT_EQ(bytesOf(*restored / "index.xml"), "<xml/>");
    EXPECT_TRUE(std::filesystem::is_directory(*restored / "empty"));
}

TEST_F(Backup, KeepsNamesThatAreNoText)
{
    OVNote& only = note("# One");
    OVNoteFile& file = attach(only, "a.txt", "bytes");
    save();
    const auto before = *file.fileURL();
    std::filesystem::rename(before, before.parent_path() / "b\xFF.txt");
    backUp();
    TestStore& other = otherStore();
    EXPECT_EQ(restore(other).files, 1U);
    EXPECT_EQ(bytesOf(*noteOf(other.context(), "One").filesSet().allObjects().front()->fileURL()), "bytes");
}

TEST_F(Backup, HoldsWhatIsSavedNotWhatIsUnderWay)
{
    fillNotebook();
    const auto files = filesBelow(filesRoot());
    const auto records = contentsOfStore(context());
    OVNote& shopping = noteOf(context(), "Shopping");
    shopping.orderedFiles().front()->permanentlyDelete();
    NSFileWrapper wrapper = NSFileWrapper::withContents(NSData::fromText("other bytes"));
    ASSERT_TRUE(shopping.orderedFiles().back()->updateAttachmentWithFileWrapper(wrapper));
    attach(shopping, "new.txt", "new");
    shopping.updateNoteWithText("# Shopping\n\nunsaved");
    EXPECT_EQ(backUp().fileCount, 3U);
    context().rollback();
    TestStore& other = otherStore();
    restore(other);
    EXPECT_EQ(filesBelow(otherRoot()), files);
    EXPECT_EQ(contentsOfStore(other.context()), records);
}

TEST_F(Backup, StopsOtherWritersForMomentsOnlyAndLosesNothingOfTheirs)
{
    fillNotebook();
    for (int index = 0; index < 200; ++index)
        note("# Note " + std::to_string(index) + "\n\n" + std::string(20'000, 'x'));
    save();
    const auto coordinator = openAgain();
    std::atomic<bool> isDone = false;
    std::chrono::milliseconds longest{0};
    int saved = 0;
    std::thread writer([&] {
        NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
        context.setPersistentStoreCoordinator(coordinator);
        while (!isDone || saved < 5) {
            const auto start = std::chrono::steady_clock::now();
            context.performBlockAndWait([&] {
                OVNote::noteWithText("# Written meanwhile " + std::to_string(saved), context);
                NSError error;
                EXPECT_TRUE(context.save(&error)) << error;
            });
            ++saved;
            longest = std::max(longest,
                std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start));
        }
    });
    for (int round = 0; round < 3; ++round)
        backUp({.replacesFile = true});
    isDone = true;
    writer.join();
    EXPECT_LT(longest, std::chrono::seconds(1));
    EXPECT_EQ(OVNote::notesInManagedObjectContext(
                  context(), NSPredicate::predicateWithFormat("title BEGINSWITH 'Written meanwhile'"))
                  .size(),
        static_cast<std::size_t>(saved));
    EXPECT_TRUE(BackupRestore(archive()).examine()->damaged.empty());
}

} // namespace
} // namespace tarn
