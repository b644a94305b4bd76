// A process may die at any step of a backup or of a restore: under the name of a backup there is a whole one, and a
// restore that was cut off is completed by the next one.

#include "tests/tarn/KilledTarnTest.h"

#include <gmock/gmock.h>

#include <filesystem>
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
    }

    fs::path backup() const { return folder() / "all.tarnbackup"; }
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
    }
    EXPECT_GE(deaths, GetParam().deaths);
}

INSTANTIATE_TEST_SUITE_P(Calls, KilledBackup,
    testing::Values(Death{"pwrite64", 47, 3}, Death{"fsync", 2, 2}, Death{"unlink", 5, 1},
        Death{"rename,renameat2", 1, 1}, Death{"write", 3, 1}, Death{"openat", 41, 2}),
    nameOfDeath);

} // namespace tarn::test
