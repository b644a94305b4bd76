#include "tests/tarn/export/ExportFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace tarn::test {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

using ExportCommand = ExportFixture;

TEST_F(ExportCommand, WritesNotesWithTheirAttachmentsBesideThem)
{
    const Trip trip = tripWithFiles();
    note("# Plain");
    const auto document = nlohmann::ordered_json::parse(run({"--json", "export", out()}).output);
    EXPECT_EQ(
        keysOf(document), (std::vector<std::string>{"exported", "unchanged", "files", "removed", "left", "renamed"}));
    EXPECT_EQ(document.at("exported"), 2);
    EXPECT_EQ(document.at("files"), 2);
    EXPECT_TRUE(document.at("left").empty());
    EXPECT_THAT(
        names(), UnorderedElementsAre("Plain.md", "Trip.md", trip.picture + "pic one.png", trip.document + "b.txt"));
    EXPECT_EQ(text("Trip.md"), "# Trip\n\n![](" + trip.picture + "pic%20one.png) [x](<" + trip.document + "b.txt>)");
    EXPECT_EQ(contents(trip.document + "b.txt"), "bytes");
}

TEST_F(ExportCommand, PutsThePlaceBeforeWhatIsWrittenOncePerDefinition)
{
    note("# A\n\n[one][r] [r] ![two](b.txt \"t\") `[c](b.txt)` <b.txt> [x](c.txt)\n\n[r]: b%2Etxt 'title'");
    output({"attach", "A", file("b.txt", "bytes")});
    exported();
    const std::string at = place("b.txt");
    EXPECT_EQ(text("A.md"),
        "# A\n\n[one][r] [r] ![two](" + at + "b.txt \"t\") `[c](b.txt)` <b.txt> [x](c.txt)\n\n[r]: " + at
            + "b%2Etxt 'title'");
}

TEST_F(ExportCommand, TellsIdentifierDatesAndStatesInFrontMatter)
{
    const std::string identifier = note("---\na: b\n---\n# Not the title");
    note("# Plain");
    output({"pin", identifier});
    output({"archive", identifier});
    output({"readonly", identifier});
    exported({"--all"});
    const auto record = json({"show", identifier});
    EXPECT_EQ(contents("Untitled.md"),
        "---\ntarn-id: " + identifier + "\ncreated: " + record.at("creationDate").get<std::string>()
            + "\nmodified: " + record.at("modificationDate").get<std::string>()
            + "\npinned: true\narchived: true\nreadonly: true\n---\n---\na: b\n---\n# Not the title");
    EXPECT_THAT(contents("Plain.md"), testing::Not(HasSubstr(": true")));
}

TEST_F(ExportCommand, GivesFilesTheDatesOfNotes)
{
    output({"import", file("a.md", "---\nupdated: 2020-01-02\n---\n# A")});
    output({"export", out()});
    struct stat status { };
    ASSERT_EQ(::stat((out() / "A.md").c_str(), &status), 0);
    EXPECT_EQ(status.st_mtime, 1'577'923'200);
    EXPECT_THAT(contents("A.md"), HasSubstr("modified: 2020-01-02T00:00:00Z\n"));
}

TEST_F(ExportCommand, NamesFilesSoThatEverySystemTakesThem)
{
    for (const char* text : {"# a/b: c?", "# A/B: C*", "# con", "", "# \xC3\xA9", "# E\xCC\x81"})
        note(text);
    const auto document = exported();
    EXPECT_EQ(document.at("exported"), 6);
    EXPECT_EQ(document.at("renamed").size(), 5U);
    EXPECT_THAT(
        names(), ElementsAre("A_B_ C_ 2.md", "E\xCC\x81 2.md", "Untitled.md", "_con.md", "a_b_ c_.md", "\xC3\xA9.md"));
}

TEST_F(ExportCommand, PutsNotesIntoFoldersOfTheirFirstTags)
{
    note("# One\n\n#work/home #zoo");
    note("# Two\n\n#WORK");
    note("# Three");
    note("# attachments\n\n#attachments");
    note("# Work.md\n\n[a](b.txt) #a: b#");
    output({"attach", "Work.md", file("b.txt", "bytes")});
    exported({"--layout", "tags"});
    const std::vector<std::string> found = names();
    ASSERT_EQ(found.size(), 6U);
    EXPECT_THAT(found, testing::Contains("Three.md"));
    EXPECT_THAT(found, testing::Contains("_attachments/attachments.md"));
    EXPECT_THAT(found, testing::Contains("a_ b/Work.md.md"));
    EXPECT_THAT(found, testing::Contains("a_ b/" + place("b.txt") + "b.txt"));
    EXPECT_TRUE(fs::exists(out() / "work" / "home" / "One.md"));
    EXPECT_TRUE(fs::exists(out() / "work" / "Two.md")) << "one folder for both spellings";
}

TEST_F(ExportCommand, PutsNotesWhereTheyWereImportedFrom)
{
    fs::create_directories(folder() / "in" / "a" / "deep");
    file("in/a/README.md", "text");
    file("in/a/deep/x.txt", "other");
    file("in/b.md", "# Another title");
    output({"import", (folder() / "in").string()});
    note("# New");
    exported({"--layout", "source"});
    EXPECT_THAT(names(), ElementsAre("New.md", "a/README.md", "a/deep/x.md", "b.md"));
    exported();
    EXPECT_THAT(names(), ElementsAre("Another title.md", "New.md", "a.md", "other.md"));
    EXPECT_FALSE(fs::exists(out() / "a"));
}

TEST_F(ExportCommand, MakesLinksLeadToFiles)
{
    note("# A b\n\n[[C]] [[c|see *it*]] ![[C]] [[none]] [[Twin]] `[[C]]`\n\n| a |\n|---|\n| [[C]] |\n\n#t/u");
    const std::string target = note("# C\n\n#t");
    note("# Twin");
    note("# Twin\n\nother");
    output({"append", "A b", "[by](tarn://x-callback-url/open-note?id=" + target + ")"});
    exported({"--links", "files", "--layout", "tags"});
    EXPECT_EQ(text("t/u/A b.md"),
        "# A b\n\n[C](./../C.md) [see *it*](./../C.md) ![C](./../C.md) [[none]] [[Twin]] `[[C]]`\n\n| a |\n|---|\n| "
        "[C](./../C.md) |\n\n[by](./../C.md#)\n\n#t/u");
    EXPECT_THAT(contents("t/C.md"), HasSubstr("\ntarn-links: files\n---\n"));
}

TEST_F(ExportCommand, TakesActiveNotesUnlessItIsToldOtherwise)
{
    const std::string first = note("# A");
    note("# B\n\n[x](b.txt)");
    output({"attach", "B", file("b.txt", "bytes")});
    output({"replace", "B", "no file any more"});
    output({"trash", "B"});
    EXPECT_EQ(exported().at("exported"), 1);
    const auto all = exported({"--all"});
    EXPECT_EQ(all.at("exported"), 1);
    EXPECT_EQ(all.at("files"), 1) << "which no text names";
    EXPECT_THAT(contents("B.md"), HasSubstr("\ntrashed: true\n"));
    EXPECT_EQ(json({"export", folder() / "one", "B", first, "A"}).at("exported"), 2);
    EXPECT_EQ(run({"export", out(), "A", "--all"}).exitCode, 2);
    EXPECT_EQ(run({"export", out(), "--layout", "deep"}).exitCode, 2);
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
    EXPECT_EQ(text("Trip.md"), "# Trip\n\n![](pic%20one.png) [x](<b.txt>)");
}

TEST_F(ExportCommand, RefusesAFolderThatHoldsAnythingElse)
{
    note("# A");
    fs::create_directories(out());
    write("mine.txt", "mine");
    const TarnResult result = run({"export", out()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("holds other files; name an empty folder"));
    EXPECT_THAT(names(), ElementsAre("mine.txt"));
}

TEST_F(ExportCommand, RefusesTheExportOfAnotherStore)
{
    note("# A");
    exported();
    const fs::path other = folder() / "other";
    ASSERT_EQ(runOn(other, {"new", "# B"}).exitCode, 0);
    const TarnResult result = runOn(other, {"export", out()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("holds an export of another store"));
    EXPECT_THAT(names(), ElementsAre("A.md"));
}

TEST_F(ExportCommand, TrustsNoManifestThatLeadsOutOfTheFolder)
{
    note("# A");
    exported();
    file("victim.md", "precious");
    std::string manifest = contents(".tarn-export.json");
    manifest.replace(manifest.find("\"A.md\""), 6, "\"../victim.md\"");
    write(".tarn-export.json", manifest);
    const TarnResult result = run({"export", out()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr(".tarn-export.json is damaged"));
    EXPECT_TRUE(fs::exists(folder() / "victim.md"));
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
