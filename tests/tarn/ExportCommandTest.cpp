#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace tarn::test {

namespace fs = std::filesystem;

class ExportCommand : public TarnCommandTest {
protected:
    fs::path out() const { return folder() / "out"; }
    std::string contents(const std::string& name) const
    {
        std::ifstream stream(out() / name, std::ios::binary);
        return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
    }
    std::vector<std::string> exportedNames() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(out()))
            if (!entry.is_directory())
                names.push_back(entry.path().lexically_relative(out()).string());
        std::ranges::sort(names);
        return names;
    }
    void tripWithFiles() const
    {
        note("# Trip\n\n![](pic%20one.png) [x](<b.txt>)");
        output({"attach", "Trip", file("pic one.png", "no picture"), file("b.txt", "bytes")});
    }
};

TEST_F(ExportCommand, WritesNotesWithTheirAttachmentsBesideThem)
{
    tripWithFiles();
    note("# Plain");
    const auto document = nlohmann::ordered_json::parse(run({"--json", "export", out()}).output);
    EXPECT_EQ(keysOf(document), (std::vector<std::string>{"exported", "unchanged", "files", "left", "renamed"}));
    EXPECT_EQ(document.at("exported"), 2);
    EXPECT_EQ(document.at("files"), 2);
    EXPECT_TRUE(document.at("left").empty());
    EXPECT_EQ(exportedNames(),
        (std::vector<std::string>{"Plain.md", "Trip.assets/b.txt", "Trip.assets/pic one.png", "Trip.md"}));
    EXPECT_EQ(contents("Trip.md"), "# Trip\n\n![](Trip.assets/pic%20one.png) [x](<Trip.assets/b.txt>)");
    EXPECT_EQ(contents("Trip.assets/b.txt"), "bytes");
}

TEST_F(ExportCommand, WritesNothingTheSecondTime)
{
    tripWithFiles();
    output({"export", out()});
    const auto document = json({"export", out()});
    EXPECT_EQ(document.at("exported"), 0);
    EXPECT_EQ(document.at("files"), 0);
    EXPECT_EQ(document.at("unchanged"), 3);
    EXPECT_EQ(run({"export", out()}).exitCode, 0);
}

TEST_F(ExportCommand, NeverWritesOverAnotherFile)
{
    tripWithFiles();
    fs::create_directories(out() / "Trip.assets");
    std::ofstream(out() / "Trip.md") << "another";
    std::ofstream(out() / "Trip.assets" / "b.txt") << "other";
    const TarnResult result = run({"--json", "export", out()});
    EXPECT_EQ(result.exitCode, 1);
    const auto document = nlohmann::json::parse(result.output);
    EXPECT_EQ(document.at("exported"), 0);
    EXPECT_EQ(document.at("files"), 1);
    ASSERT_EQ(document.at("left").size(), 2U);
    EXPECT_EQ(document.at("left").at(0).at("path"), (out() / "Trip.assets" / "b.txt").string());
    EXPECT_EQ(document.at("left").at(1).at("reason"), "another file is there");
    EXPECT_EQ(contents("Trip.md"), "another");
    EXPECT_EQ(contents("Trip.assets/b.txt"), "other");
}

TEST_F(ExportCommand, DoesNotFollowALinkInTheFoldersPlace)
{
    tripWithFiles();
    fs::create_directories(out());
    fs::create_directories(folder() / "elsewhere");
    fs::create_directory_symlink(folder() / "elsewhere", out() / "Trip.assets");
    const auto document = json({"export", out()});
    EXPECT_EQ(document.at("files"), 0);
    EXPECT_EQ(document.at("left").size(), 2U);
    EXPECT_TRUE(fs::is_empty(folder() / "elsewhere"));
}

TEST_F(ExportCommand, GivesTheSameTextsAndBytesWhenItIsImportedAgain)
{
    note("# Trip\n\n![](a.bin) [x](<b c.txt>) [r]\n\n[r]: %C3%A9.bin\n\n#tag");
    note("# Same");
    note("# same\n\nother");
    note("no heading: at all?\n\n- [ ] a");
    output({"attach", "Trip", file("a.bin", std::string("\0\xFF\r\n", 4)), file("b c.txt", "text"), file("d.md", "# D"),
        file("\xC3\xA9.bin", "")});
    output({"export", out()});
    const std::string other = (folder() / "other").string();
    TarnProcess import({"--store", other, "import", out().string()});
    ASSERT_EQ(import.finish().exitCode, 0);
    TarnProcess exportAgain({"--store", other, "export", (folder() / "again").string()});
    ASSERT_EQ(exportAgain.finish().exitCode, 0);
    std::size_t compared = 0;
    for (const std::string& name : exportedNames()) {
        std::ifstream again(folder() / "again" / name, std::ios::binary);
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(again), {}), contents(name)) << name;
        ++compared;
    }
    EXPECT_EQ(compared, 8U);
}

TEST_F(ExportCommand, GivesFilesTheDatesOfNotes)
{
    output({"import", file("a.md", "---\nupdated: 2020-01-02\n---\n# A")});
    output({"export", out()});
    struct stat status { };
    ASSERT_EQ(::stat((out() / "A.md").c_str(), &status), 0);
    EXPECT_EQ(status.st_mtime, 1'577'923'200);
}

TEST_F(ExportCommand, NamesFilesSoThatEverySystemTakesThem)
{
    for (const char* text : {"# a/b: c?", "# A/B: C*", "# con", "", "# \xC3\xA9", "# E\xCC\x81"})
        note(text);
    const auto document = json({"export", out()});
    EXPECT_EQ(document.at("exported"), 6);
    EXPECT_EQ(document.at("renamed").size(), 5U);
    EXPECT_EQ(exportedNames(),
        (std::vector<std::string>{
            "A_B_ C_ (2).md", "E\xCC\x81 (2).md", "Untitled.md", "_con.md", "a_b_ c_.md", "\xC3\xA9.md"}));
}

TEST_F(ExportCommand, TakesActiveNotesUnlessItIsToldOtherwise)
{
    const std::string first = note("# A");
    note("# B");
    output({"trash", "B"});
    EXPECT_EQ(json({"export", out()}).at("exported"), 1);
    EXPECT_EQ(json({"export", out(), "--all"}).at("exported"), 1);
    EXPECT_EQ(json({"export", folder() / "one", "B", first, "A"}).at("exported"), 2);
    EXPECT_EQ(run({"export", out(), "A", "--all"}).exitCode, 2);
    EXPECT_EQ(run({"export"}).exitCode, 2);
    EXPECT_EQ(run({"export", ""}).exitCode, 2);
    EXPECT_EQ(run({"export", folder() / "none", "missing"}).exitCode, 1);
    EXPECT_FALSE(fs::exists(folder() / "none"));
}

TEST_F(ExportCommand, ListsWhatItCannotExport)
{
    tripWithFiles();
    note("# Locked");
    damage("UPDATE OVNote SET encrypted = 1 WHERE title = 'Locked'");
    fs::remove_all(store() / "Application Data" / "Local Files");
    const TarnResult result = run({"--json", "export", out()});
    EXPECT_EQ(result.exitCode, 3) << "a password is what helps first";
    const auto document = nlohmann::json::parse(result.output);
    EXPECT_EQ(document.at("exported"), 1);
    ASSERT_EQ(document.at("left").size(), 3U);
    EXPECT_EQ(document.at("left").at(0).at("reason"), "its bytes are not here");
    EXPECT_EQ(document.at("left").at(2).at("path"), (out() / "Locked.md").string());
    EXPECT_EQ(contents("Trip.md"), "# Trip\n\n![](pic%20one.png) [x](<b.txt>)");
}

TEST_F(ExportCommand, SaysThatTheFolderCannotBeMade)
{
    note("# A");
    EXPECT_EQ(run({"export", file("taken", "") / "out"}).exitCode, 6);
}

TEST_F(ExportCommand, MakesNothingWhereThereIsNoStore)
{
    EXPECT_EQ(run({"export", out()}).exitCode, 1);
    EXPECT_FALSE(fs::exists(store()));
    EXPECT_FALSE(fs::exists(out()));
}

} // namespace tarn::test
