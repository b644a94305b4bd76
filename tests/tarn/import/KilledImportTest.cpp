// A process may die at any step of an import: the next one makes no note twice, loses no text, and comes to what one
// that nobody disturbed comes to.

#include "tests/tarn/KilledTarnTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace tarn::test {

namespace fs = std::filesystem;

class KilledImport : public KilledTarnTest {
protected:
    /// A store of a first import, notes that were edited in it, and a folder that has gone on.
    KilledImport()
    {
        for (const char* name : {"kept", "changed", "edited", "both", "moved", "waits", "twice", "other"})
            file("in/" + std::string(name) + ".md",
                "# " + std::string(name) + "\n\n[k](kept.md) ![](p.txt) [[late]] #tag\n");
        file("in/p.txt", "a text that is no note");
        output({"import", (folder() / "in").string()});
        output({"append", "edited", "mine"});
        for (const char* name : {"both", "twice", "other"})
            output({"append", name, "mine"});
        // It has a copy already, which takes the next state of the file.
        file("in/twice.md", "# twice\n\nfirst");
        output({"import", (folder() / "in").string()});
        for (const char* name : {"changed", "both", "late", "twice"})
            file("in/" + std::string(name) + ".md",
                "# " + std::string(name) + "\n\n[new](kept.md) [[waits]] [q](q.bin)\n");
        file("in/q.bin", "bytes");
        fs::rename(folder() / "in/moved.md", folder() / "in/there.md");
        fs::rename(folder() / "in/other.md", folder() / "in/elsewhere.md");
    }

    /// What an import comes to that nothing ends before its time.
    std::vector<std::string> contentsOfWhole() const
    {
        const fs::path whole = folder() / "whole";
        fs::copy(store(), whole, fs::copy_options::recursive);
        EXPECT_EQ(runIn(whole, {"import", (folder() / "in").string()}).exitCode, 0);
        return contentsOf(whole);
    }
    std::string importing() const { return "import '" + (folder() / "in").string() + "'"; }
    /// Texts and states, whatever identifiers new notes got.
    std::vector<std::string> contentsOf(const fs::path& place) const
    {
        std::vector<std::string> contents;
        const auto notes
            = nlohmann::json::parse(runIn(place, {"--json", "list", "--filter", "all"}).output).at("notes");
        for (const auto& note : notes) {
            const std::string identifier = note.at("uniqueIdentifier");
            const auto shown = nlohmann::json::parse(runIn(place, {"--json", "show", identifier}).output);
            const auto files = nlohmann::json::parse(runIn(place, {"--json", "files", identifier}).output).at("files");
            const auto backlinks = nlohmann::json::parse(runIn(place, {"--json", "backlinks", identifier}).output);
            std::string linkedBy;
            for (const std::string& title : titlesOf(backlinks))
                linkedBy += title + ", ";
            contents.push_back(std::string(shown.at("text")) + "\nfiles: " + std::to_string(files.size())
                + "\nlinked by: " + linkedBy);
        }
        for (const char* filter : {"conflicted", "trashed", "archived"})
            contents.push_back(std::string(filter) + ": "
                + nlohmann::json::parse(runIn(place, {"--json", "list", "--filter", filter}).output)
                      .at("count")
                      .dump());
        std::ranges::sort(contents);
        return contents;
    }
};

TEST_P(KilledImport, IsCompletedByTheNextRun)
{
    if (!canBeTraced())
        GTEST_SKIP() << "this system does not let one process look at another";
    const std::vector<std::string> expected = contentsOfWhole();
    ASSERT_EQ(expected.size(), 15U);
    int deaths = 0;
    bool isDone = false;
    for (int time = 1; !isDone && !HasFailure(); time += GetParam().stride) {
        const fs::path target = folder() / ("target " + std::to_string(time));
        fs::copy(store(), target, fs::copy_options::recursive);
        isDone = comesToItsEnd(time, target, importing());
        deaths += !isDone;
        const TarnResult result = runIn(target, {"import", (folder() / "in").string()});
        EXPECT_EQ(result.exitCode, 0) << time << result.errors;
        EXPECT_EQ(contentsOf(target), expected) << time;
        const TarnResult examination = runIn(target, {"doctor"});
        EXPECT_EQ(examination.exitCode, 0) << time << examination.output;
        const TarnResult third = runIn(target, {"--json", "import", (folder() / "in").string()});
        EXPECT_EQ(nlohmann::json::parse(third.output).at("unchanged"), 10) << time;
    }
    EXPECT_GE(deaths, GetParam().deaths);
}

TEST_P(KilledImport, IsCompletedInAStoreThatIsRestoredFromItsBackup)
{
    if (!canBeTraced())
        GTEST_SKIP() << "this system does not let one process look at another";
    const std::vector<std::string> expected = contentsOfWhole();
    const fs::path backup = folder() / "all.tarnbackup";
    int deaths = 0;
    bool isDone = false;
    for (int time = 1; !isDone && !HasFailure(); time += GetParam().stride) {
        const fs::path target = folder() / ("target " + std::to_string(time));
        const fs::path restored = folder() / ("restored " + std::to_string(time));
        fs::copy(store(), target, fs::copy_options::recursive);
        isDone = comesToItsEnd(time, target, importing());
        deaths += !isDone;
        // A program that is about to change the store clears away first what a dead one left; a backup does not.
        EXPECT_EQ(runIn(target, {"backup", "--yes", backup.string()}).exitCode, 0) << time;
        EXPECT_EQ(runIn(restored, {"restore-backup", backup.string()}).exitCode, 0) << time;
        EXPECT_EQ(runIn(restored, {"import", (folder() / "in").string()}).exitCode, 0) << time;
        EXPECT_EQ(contentsOf(restored), expected) << time;
        const TarnResult third = runIn(restored, {"--json", "import", (folder() / "in").string()});
        EXPECT_EQ(nlohmann::json::parse(third.output).at("unchanged"), 10) << time;
    }
    EXPECT_GE(deaths, GetParam().deaths);
}

INSTANTIATE_TEST_SUITE_P(Calls, KilledImport,
    testing::Values(Death{"pwrite64", 17, 3}, Death{"fsync", 1, 2}, Death{"unlink", 3, 1},
        Death{"rename,renameat2", 1, 1}, Death{"write", 1, 1}, Death{"openat", 41, 2}),
    nameOfDeath);

} // namespace tarn::test
