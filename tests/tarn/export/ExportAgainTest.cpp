// Exports into a folder that holds an earlier one, after the store, the folder or both have changed.

#include "tests/tarn/export/ExportFixture.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/wait.h>

namespace tarn::test {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

class ExportAgain : public ExportFixture {
protected:
    /// What was left, and why.
    static std::vector<std::string> leftIn(const nlohmann::json& document)
    {
        std::vector<std::string> left;
        for (const auto& file : document.at("left"))
            left.push_back(fs::path(file.at("path").get<std::string>()).filename().string() + ": "
                + file.at("reason").get<std::string>());
        return left;
    }
    const std::string changedByOthers = "others have changed it since it was exported";
};

TEST_F(ExportAgain, WritesNothingTheSecondTime)
{
    tripWithFiles();
    note("# Plain\n\n[[Trip]] #a/b");
    for (const char* layout : {"flat", "tags", "source"}) {
        exported({"--layout", layout, "--links", "files"});
        const auto before = dates();
        const auto document = exported({"--layout", layout, "--links", "files"});
        EXPECT_EQ(document.at("exported"), 0);
        EXPECT_EQ(document.at("files"), 0);
        EXPECT_EQ(document.at("removed"), 0);
        EXPECT_EQ(document.at("unchanged"), 4);
        EXPECT_EQ(dates(), before) << layout;
    }
}

TEST_F(ExportAgain, FollowsRenamedAndDeletedNotes)
{
    const Trip trip = tripWithFiles();
    const std::string twin = note("# Twin");
    note("# Twin\n\nsecond");
    exported({"--layout", "tags"});
    EXPECT_TRUE(fs::exists(out() / "Twin 2.md"));
    output({"delete", "--yes", twin});
    output({"replace", "Trip", "no files\n\n#moved"});
    const auto document = exported({"--layout", "tags"});
    EXPECT_EQ(document.at("removed"), 4);
    EXPECT_TRUE(document.at("left").empty());
    EXPECT_THAT(names(), UnorderedElementsAre("Twin 2.md", "moved/Trip.md")) << "the second keeps its name";
    EXPECT_FALSE(fs::exists(out() / "attachments"));
    output({"delete", "--yes", trip.identifier});
    exported({"--layout", "tags"});
    EXPECT_FALSE(fs::exists(out() / "moved"));
}

TEST_F(ExportAgain, ExchangesNames)
{
    const std::string one = note("# One\n\nfirst");
    const std::string two = note("# Two\n\nsecond");
    exported();
    for (const auto& [identifier, text] :
        {std::pair(one, "# Three"), std::pair(two, "# One\n\nsecond"), std::pair(one, "# Two\n\nfirst")}) {
        const std::string edited = file("text", text).string();
        TarnProcess editor(arguments({"edit", identifier}));
        editor.setVariable("EDITOR", "cp '" + edited + "'");
        ASSERT_EQ(editor.finish().exitCode, 0);
    }
    EXPECT_TRUE(exported().at("left").empty());
    EXPECT_EQ(text("One.md"), "# One\n\nsecond");
    EXPECT_EQ(text("Two.md"), "# Two\n\nfirst");
    EXPECT_EQ(exported().at("unchanged"), 2);
}

TEST_F(ExportAgain, LeavesWhatOthersHaveChanged)
{
    const Trip trip = tripWithFiles();
    note("# Gone");
    note("# Same");
    exported();
    write("Trip.md", "mine");
    write("Gone.md", "mine too");
    write(trip.document + "b.txt", "mine as well");
    output({"append", "Trip", "more"});
    output({"delete", "--yes", "Gone"});
    for (int time = 0; time < 2; ++time) {
        const TarnResult result = run({"--json", "export", out()});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(leftIn(nlohmann::json::parse(result.output)),
            UnorderedElementsAre("Trip.md: " + changedByOthers, "Gone.md: " + changedByOthers));
        EXPECT_EQ(contents("Trip.md"), "mine");
        EXPECT_EQ(contents("Gone.md"), "mine too");
        EXPECT_EQ(contents(trip.document + "b.txt"), "mine as well");
    }
    fs::remove(out() / "Trip.md");
    fs::remove(out() / "Gone.md");
    EXPECT_THAT(leftIn(exported()), ElementsAre("b.txt: " + changedByOthers));
    EXPECT_THAT(text("Trip.md"), HasSubstr("more"));
    output({"delete", "--yes", "Trip"});
    for (int time = 0; time < 2; ++time)
        EXPECT_THAT(leftIn(exported()), ElementsAre("b.txt: " + changedByOthers));
    fs::remove(out() / (trip.document + "b.txt"));
    EXPECT_TRUE(exported().at("left").empty());
    EXPECT_FALSE(fs::exists(out() / "attachments"));
}

TEST_F(ExportAgain, TakesAnotherNameWhereAFileOfOthersIs)
{
    note("# A");
    exported();
    write("B.md", "mine");
    note("# B");
    const auto document = exported();
    EXPECT_TRUE(document.at("left").empty());
    EXPECT_EQ(contents("B.md"), "mine");
    EXPECT_EQ(text("B 2.md"), "# B");
    fs::remove(out() / "B.md");
    exported();
    EXPECT_THAT(names(), ElementsAre("A.md", "B 2.md")) << "names stay";
}

TEST_F(ExportAgain, FollowsNoSymbolicLinks)
{
    const Trip trip = tripWithFiles();
    note("# Note\n\n#tag");
    exported({"--layout", "tags"});
    fs::create_directories(folder() / "elsewhere");
    fs::rename(out() / "tag", folder() / "elsewhere" / "tag");
    fs::create_directory_symlink(folder() / "elsewhere" / "tag", out() / "tag");
    fs::rename(out() / "Trip.md", folder() / "elsewhere" / "Trip.md");
    fs::create_symlink(folder() / "elsewhere" / "Trip.md", out() / "Trip.md");
    const auto before = bytesIn(folder() / "elsewhere");
    output({"append", "Trip", "more"});
    output({"append", "Note", "more"});
    EXPECT_EQ(exported({"--layout", "tags"}).at("left").size(), 2U);
    output({"delete", "--yes", "Trip"});
    output({"delete", "--yes", "Note"});
    EXPECT_EQ(run({"export", out(), "--layout", "tags"}).exitCode, 1);
    EXPECT_EQ(bytesIn(folder() / "elsewhere"), before);
    EXPECT_TRUE(fs::is_symlink(out() / "Trip.md"));
}

TEST_F(ExportAgain, LeavesOtherFilesAloneWhenNotesAreNamed)
{
    note("# A");
    note("# B");
    exported();
    output({"append", "A", "more"});
    output({"append", "B", "more"});
    const auto document = exported({"A"});
    EXPECT_EQ(document.at("exported"), 1);
    EXPECT_EQ(document.at("removed"), 0);
    EXPECT_EQ(text("A.md"), "# A\nmore");
    EXPECT_EQ(text("B.md"), "# B");
    EXPECT_EQ(exported().at("exported"), 1);
}

/// A process may die at any step: each name has its old bytes or its new ones, and the next export completes it.
class KilledExport : public ExportAgain, public testing::WithParamInterface<const char*> {
protected:
    bool comesToItsEnd(int time) const
    {
        const std::string line = "strace -f -qq -o /dev/null -e inject=" + std::string(GetParam())
            + ":signal=KILL:when=" + std::to_string(time) + " " + TARN_PROGRAM + " --store '" + store().string()
            + "' export '" + out().string() + "' >/dev/null 2>&1";
        const int status = std::system(line.c_str());
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
};

TEST_P(KilledExport, IsCompletedByTheNextOne)
{
    if (std::system((std::string("strace -f -qq -o /dev/null ") + TARN_PROGRAM + " --version >/dev/null 2>&1").c_str())
        != 0)
        GTEST_SKIP() << "this system does not let one process look at another";
    tripWithFiles();
    int deaths = 0;
    for (int time = 1; !HasFailure(); time += 2) {
        const std::string changing = note("# Changing " + std::to_string(time) + "\n\ntext");
        output({"append", "Trip", "line " + std::to_string(time)});
        const bool isDone = comesToItsEnd(time);
        deaths += !isDone;
        for (const auto& [name, bytes] : fs::exists(out()) ? bytesIn(out()) : std::map<std::string, std::string>()) {
            if (name.ends_with(".md")) {
                EXPECT_THAT(bytes, testing::StartsWith("---\ntarn-id: ")) << name;
                EXPECT_THAT(bytes, testing::ContainsRegex("(text|line [0-9]+)$")) << name;
            }
        }
        // What was begun may have changed when the next one comes.
        output({"append", changing, "more text"});
        output({"append", "Trip", "another line " + std::to_string(time)});
        const TarnResult result = run({"export", out()});
        EXPECT_EQ(result.exitCode, 0) << time << result.errors;
        const fs::path fresh = folder() / ("fresh " + std::to_string(time));
        output({"export", fresh});
        EXPECT_EQ(bytesIn(out()), bytesIn(fresh)) << time;
        output({"delete", "--yes", changing});
        if (isDone)
            break;
    }
    EXPECT_GE(deaths, 1);
    EXPECT_FALSE(fs::exists(out() / ".tarn-export.new"));
    EXPECT_FALSE(fs::exists(out() / ".tarn-export.journal"));
}

INSTANTIATE_TEST_SUITE_P(Calls, KilledExport, testing::Values("rename,renameat2", "unlink,unlinkat", "write"),
    [](const auto& call) { return std::string(call.param).substr(0, std::string(call.param).find(',')); });

} // namespace tarn::test
