#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tarn::test {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

class BackupCommand : public TarnCommandTest {
protected:
    fs::path backup() const { return folder() / "all notes.tarnbackup"; }
    fs::path otherStore() const { return folder() / "other store"; }
    TarnResult runOther(std::vector<std::string> command) const
    {
        command.insert(command.begin(), {"--store", otherStore().string()});
        return TarnProcess(command).finish();
    }
    void makeNotes() const
    {
        note("# Pears\n\n#home");
        note("# Plums\n\n[[Pears]]");
        output({"attach", "Pears", file("bild ü.txt", "the bytes").string()});
    }
    void makeBackup() const { output({"backup", backup().string()}); }
    void harm(std::size_t offset) const
    {
        std::fstream stream(backup(), std::ios::binary | std::ios::in | std::ios::out);
        stream.seekg(static_cast<std::streamoff>(offset));
        const char byte = static_cast<char>(stream.get() ^ 1);
        stream.seekp(static_cast<std::streamoff>(offset));
        stream.put(byte);
    }
};

TEST_F(BackupCommand, TellsWhatItWrote)
{
    makeNotes();
    const TarnResult result = run({"--json", "backup", backup().string()});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const auto document = nlohmann::ordered_json::parse(result.output);
    EXPECT_THAT(keysOf(document), ElementsAre("notes", "files", "bytes"));
    EXPECT_EQ(document["notes"], 2);
    EXPECT_EQ(document["files"], 1);
    EXPECT_EQ(document["bytes"], 9);
    fs::remove(backup());
    EXPECT_THAT(
        output({"backup", backup().string()}), StartsWith("backed up 2 notes and 1 file (9 B); the backup has "));
}

TEST_F(BackupCommand, IsReadByTheProgramsOfOthers)
{
    makeNotes();
    makeBackup();
    const std::string command = "cd '" + folder().string() + "' && tar --zstd -xf '" + backup().string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_TRUE(fs::is_regular_file(folder() / "manifest.json"));
    std::vector<std::string> contents;
    for (const auto& entry : fs::recursive_directory_iterator(folder() / "files"))
        if (entry.is_regular_file())
            contents.push_back(contentOf(entry.path()));
    EXPECT_THAT(contents, ElementsAre("the bytes"));
}

TEST_F(BackupCommand, AsksBeforeItReplacesAFile)
{
    makeNotes();
    file("all notes.tarnbackup", "mine");
    const TarnResult result = run({"backup", backup().string()});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("backup asks before it replaces a file"));
    EXPECT_EQ(contentOf(backup()), "mine");
    EXPECT_EQ(run({"backup", "--yes", backup().string()}).exitCode, 0);
    EXPECT_EQ(run({"restore-backup", "--verify", backup().string()}).exitCode, 0);
}

TEST_F(BackupCommand, WarnsOfABackupThatHoldsLessThanTheOneBefore)
{
    makeNotes();
    makeBackup();
    output({"delete", "--yes", "Pears"});
    const TarnResult result = run({"backup", "--yes", backup().string()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors,
        "tarn: warning: the backup holds less than the one that it replaced: 1 note instead of 2, 0 files instead of "
        "1, 0 B of files instead of 9 B\n");
    EXPECT_EQ(run({"backup", "--yes", backup().string()}).errors, "");
}

TEST_F(BackupCommand, WithoutAStoreWritesNothing)
{
    const TarnResult result = run({"--json", "backup", backup().string()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(result.output)["notes"], 0);
    EXPECT_FALSE(fs::exists(backup()));
    EXPECT_FALSE(fs::exists(store()));
}

TEST_F(BackupCommand, SaysWhereItCannotWrite)
{
    makeNotes();
    EXPECT_EQ(run({"backup", (folder() / "none" / "a.tarnbackup").string()}).exitCode, 6);
    EXPECT_EQ(run({"backup", folder().string()}).exitCode, 6);
    EXPECT_EQ(run({"backup"}).exitCode, 2);
}

TEST_F(BackupCommand, LeavesNothingOnAFullDisk)
{
    makeNotes();
    std::string noise;
    for (std::uint32_t number = 1; noise.size() < 400'000; number = number * 1'664'525 + 1'013'904'223)
        noise += static_cast<char>(number >> 24);
    output({"attach", "Pears", file("noise.bin", noise).string()});
    TarnProcess process(arguments({"backup", backup().string()}));
    process.setLargestFile(200'000);
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 6) << result.errors;
    EXPECT_FALSE(fs::exists(backup()));
    EXPECT_FALSE(fs::exists(folder() / ".unfinished-all notes.tarnbackup"));
}

class RestoreBackupCommand : public BackupCommand { };

TEST_F(RestoreBackupCommand, MakesTheStoreAnew)
{
    makeNotes();
    makeBackup();
    const TarnResult result = runOther({"--json", "restore-backup", backup().string()});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const auto document = nlohmann::ordered_json::parse(result.output);
    EXPECT_THAT(keysOf(document), ElementsAre("restored", "kept", "skipped", "files", "bytes"));
    EXPECT_EQ(document["restored"], 2);
    EXPECT_EQ(document["kept"], 0);
    EXPECT_THAT(document["skipped"], IsEmpty());
    EXPECT_EQ(document["files"], 1);
    EXPECT_EQ(document["bytes"], 9);
    EXPECT_EQ(runOther({"show", "Pears"}).output, output({"show", "Pears"}));
    EXPECT_EQ(runOther({"backlinks", "Pears"}).output, output({"backlinks", "Pears"}));
    EXPECT_EQ(runOther({"doctor"}).exitCode, 0) << runOther({"doctor"}).output;
}

TEST_F(RestoreBackupCommand, DoesNothingTheSecondTime)
{
    makeNotes();
    makeBackup();
    runOther({"restore-backup", backup().string()});
    const std::string changes = runOther({"changes"}).output;
    const TarnResult again = runOther({"restore-backup", backup().string()});
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_EQ(again.output, "restored 0 notes and 0 files (0 B), kept 2 notes\n");
    EXPECT_EQ(runOther({"changes"}).output, changes);
}

TEST_F(RestoreBackupCommand, RefusesADamagedBackupAndMakesNoStore)
{
    makeNotes();
    makeBackup();
    harm(fs::file_size(backup()) / 2);
    const TarnResult verified = run({"--json", "restore-backup", "--verify", backup().string()});
    EXPECT_EQ(verified.exitCode, 5);
    const TarnResult result = runOther({"restore-backup", backup().string()});
    EXPECT_EQ(result.exitCode, 5) << result.errors;
    EXPECT_FALSE(fs::exists(otherStore()));
    EXPECT_EQ(run({"restore-backup", backup().string()}).exitCode, 5);
}

TEST_F(RestoreBackupCommand, SalvagesWhatIsWhole)
{
    makeNotes();
    makeBackup();
    // Behind all members lies the end of the archive alone.
    harm(fs::file_size(backup()) - 5);
    EXPECT_EQ(run({"restore-backup", "--verify", backup().string()}).exitCode, 5);
    const TarnResult result = runOther({"--json", "restore-backup", "--salvage", backup().string()});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(nlohmann::json::parse(result.output)["restored"], 2);
}

TEST_F(RestoreBackupCommand, TellsWhatIsNoBackup)
{
    makeNotes();
    EXPECT_EQ(run({"restore-backup", file("a.txt", "text").string()}).exitCode, 5);
    EXPECT_EQ(run({"restore-backup", "--verify", file("a.txt", "text").string()}).exitCode, 5);
    EXPECT_EQ(run({"restore-backup", (folder() / "none").string()}).exitCode, 6);
    EXPECT_EQ(run({"restore-backup", "--verify", "--salvage", backup().string()}).exitCode, 2);
    EXPECT_EQ(run({"restore-backup"}).exitCode, 2);
}

} // namespace tarn::test
