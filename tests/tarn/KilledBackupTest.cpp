// A process may die at any step of a backup or of a restore: under the name of a backup there is a whole one, and a
// restore that was cut off is completed by the next one.

#include "tests/tarn/KilledTarnTest.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tarn::test {

namespace fs = std::filesystem;

class KilledBackup : public KilledTarnTest {
protected:
    KilledBackup()
    {
        note("# Pears\n\n#home\n\n[[Plums]]");
        note("# Plums\n\n[[Pears]] #home/garden");
        output({"attach", "Pears", file("bild ü.txt", "the bytes").string(), file("b.txt", "more").string()});
        for (int index = 0; index < 20; ++index)
            note("# Note " + std::to_string(index) + "\n\n[[Pears]] #some");
        for (const char* name : {"one", "two", "three"})
            file("in/" + std::string(name) + ".md", "# " + std::string(name));
        file("more/four.md", "# four");
        output({"import", (folder() / "in").string()});
    }

    fs::path backup() const { return folder() / "all.tarnbackup"; }
    static fs::path recordOf(const fs::path& store) { return store / "Application Data" / "database.imports.jsonl"; }
    static std::string bytesOf(const fs::path& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    /// How many files of a folder an import finds unchanged.
    int unchangedIn(const fs::path& store, const std::string& name) const
    {
        const TarnResult result = runIn(store, {"--json", "import", (folder() / name).string()});
        return nlohmann::json::parse(result.output, nullptr, false).value("unchanged", -1);
    }
    std::string contentsOf(const fs::path& store) const
    {
        std::string contents;
        for (const std::vector<std::string>& command :
            {std::vector<std::string>{"--json", "list", "--filter", "all"}, {"--json", "files"},
                {"--json", "tags", "--all"}, {"show", "Pears"}, {"backlinks", "Pears"}, {"unresolved"}})
            contents += runIn(store, command).output;
        // Where the store lies is no part of it.
        for (std::size_t at = 0; (at = contents.find(store.string(), at)) != std::string::npos;)
            contents.erase(at, store.string().size());
        return contents;
    }
};

TEST_P(KilledBackup, LeavesAWholeBackupUnderItsName)
{
    if (!canBeTraced())
        GTEST_SKIP() << "this system does not let one process look at another";
    int deaths = 0;
    bool isDone = false;
    for (int time = 1; !isDone && !HasFailure(); time += GetParam().stride) {
        isDone = comesToItsEnd(time, store(), "backup --yes '" + backup().string() + "'");
        deaths += !isDone;
        if (fs::exists(backup())) {
            EXPECT_EQ(run({"restore-backup", "--verify", backup().string()}).exitCode, 0) << time;
        }
        if (time % 2 == 0)
            fs::remove(backup());
    }
    EXPECT_GE(deaths, 1);
    EXPECT_EQ(run({"backup", "--yes", backup().string()}).exitCode, 0);
    EXPECT_FALSE(fs::exists(folder() / ".unfinished-all.tarnbackup"));
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_P(KilledBackup, IsRestoredByTheNextRun)
{
    if (!canBeTraced())
        GTEST_SKIP() << "this system does not let one process look at another";
    ASSERT_EQ(run({"backup", backup().string()}).exitCode, 0);
    const fs::path whole = folder() / "whole";
    ASSERT_EQ(runIn(whole, {"restore-backup", backup().string()}).exitCode, 0);
    const std::string expected = contentsOf(whole);
    int deaths = 0;
    bool isDone = false;
    for (int time = 1; !isDone && !HasFailure(); time += GetParam().stride) {
        const fs::path target = folder() / ("target " + std::to_string(time));
        isDone = comesToItsEnd(time, target, "restore-backup '" + backup().string() + "'");
        deaths += !isDone;
        const TarnResult result = runIn(target, {"restore-backup", backup().string()});
        EXPECT_EQ(result.exitCode, 0) << time << result.errors;
        EXPECT_EQ(contentsOf(target), expected) << time;
        const TarnResult examination = runIn(target, {"doctor"});
        EXPECT_EQ(examination.exitCode, 0) << time << examination.output;
        EXPECT_EQ(bytesOf(recordOf(target)), bytesOf(recordOf(whole))) << time;
        EXPECT_EQ(unchangedIn(target, "in"), 3) << time;
    }
    EXPECT_GE(deaths, GetParam().deaths);
}

TEST_P(KilledBackup, LeavesTheFormerRecordOfImportsOrTheMergedOne)
{
    if (!canBeTraced())
        GTEST_SKIP() << "this system does not let one process look at another";
    ASSERT_EQ(run({"backup", backup().string()}).exitCode, 0);
    const fs::path own = folder() / "own";
    ASSERT_EQ(runIn(own, {"import", (folder() / "more").string()}).exitCode, 0);
    const std::string former = bytesOf(recordOf(own));
    const fs::path whole = folder() / "whole";
    fs::copy(own, whole, fs::copy_options::recursive);
    ASSERT_EQ(runIn(whole, {"restore-backup", backup().string()}).exitCode, 0);
    const std::string merged = bytesOf(recordOf(whole));
    ASSERT_NE(merged, former);
    const int stride = GetParam().call == "fsync" ? 1 : GetParam().stride;
    int deaths = 0;
    bool isDone = false;
    for (int time = 1; !isDone && !HasFailure(); time += stride) {
        const fs::path target = folder() / ("target " + std::to_string(time));
        fs::copy(own, target, fs::copy_options::recursive);
        isDone = comesToItsEnd(time, target, "restore-backup '" + backup().string() + "'");
        deaths += !isDone;
        const std::string record = bytesOf(recordOf(target));
        EXPECT_TRUE(record == merged || (!isDone && record == former)) << time << record;
        EXPECT_EQ(runIn(target, {"restore-backup", backup().string()}).exitCode, 0) << time;
        EXPECT_EQ(bytesOf(recordOf(target)), merged) << time;
        EXPECT_EQ(unchangedIn(target, "in"), 3) << time;
        EXPECT_EQ(unchangedIn(target, "more"), 1) << time;
    }
    EXPECT_GE(deaths, 1);
}

INSTANTIATE_TEST_SUITE_P(Calls, KilledBackup,
    testing::Values(Death{"pwrite64", 47, 3}, Death{"fsync", 2, 2}, Death{"unlink", 5, 1},
        Death{"rename,renameat2", 1, 1}, Death{"write", 3, 1}, Death{"openat", 41, 2}),
    nameOfDeath);

} // namespace tarn::test
