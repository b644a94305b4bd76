#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tarn::test {

namespace fs = std::filesystem;

/// Folders that are imported again, after one side or both have changed.
class ImportAgain : public TarnCommandTest {
protected:
    nlohmann::json import(std::vector<std::string> more = {}) const
    {
        std::vector<std::string> given{"import", (folder() / "in").string()};
        given.insert(given.end(), more.begin(), more.end());
        return json(given);
    }
    std::string text(const std::string& title) const { return json({"show", title}).at("text"); }
    int count(const std::string& filter = "all") const { return json({"list", "--filter", filter}).at("count"); }

    struct Counts {
        int imported = 0;
        int updated = 0;
        int unchanged = 0;
        int conflicted = 0;
        int moved = 0;
        int gone = 0;
        friend bool operator==(const Counts&, const Counts&) = default;
        friend void PrintTo(const Counts& counts, std::ostream* stream)
        {
            *stream << counts.imported << " imported, " << counts.updated << " updated, " << counts.unchanged
                    << " unchanged, " << counts.conflicted << " conflicted, " << counts.moved << " moved, "
                    << counts.gone << " gone";
        }
    };
    static Counts countsOf(const nlohmann::json& document)
    {
        return {document.at("imported"), document.at("updated"), document.at("unchanged"), document.at("conflicted"),
            document.at("moved"), document.at("gone")};
    }
    std::string bytesOfStore() const
    {
        std::string bytes;
        for (const auto& entry : fs::recursive_directory_iterator(store())) {
            if (entry.is_regular_file())
                bytes += entry.path().string() + contentsOf(entry.path());
        }
        return bytes;
    }
    static std::string contentsOf(const fs::path& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

TEST_F(ImportAgain, OfUnchangedFilesChangesNothing)
{
    file("in/a.md", "# A\n\n[b](b.md) [[Nobody]]");
    file("in/b.md", "# B");
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 2}));
    const std::string before = bytesOfStore();
    EXPECT_EQ(countsOf(import()), (Counts{.unchanged = 2}));
    EXPECT_EQ(bytesOfStore(), before);
}

TEST_F(ImportAgain, ChangesANoteThatIsAsItWasImported)
{
    file("in/a.md", "# A\n\none");
    import();
    const std::string identifier = json({"show", "A"}).at("uniqueIdentifier");
    file("in/a.md", "# A2\n\ntwo");
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 1}));
    EXPECT_EQ(text("A2"), "# A2\n\ntwo");
    EXPECT_EQ(json({"show", "A2"}).at("uniqueIdentifier"), identifier);
    EXPECT_EQ(count(), 1);
}

TEST_F(ImportAgain, MakesOneCopyBesideANoteThatWasEditedToo)
{
    file("in/a.md", "# A\n\none");
    import();
    output({"append", "A", "mine"});
    file("in/a.md", "# A\n\ntwo");
    EXPECT_EQ(countsOf(import()), (Counts{.conflicted = 1}));
    EXPECT_EQ(countsOf(import()), (Counts{.unchanged = 1})) << "once";
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(count("conflicted"), 2);
    const nlohmann::json notes = json({"list", "--filter", "all"});
    std::vector<std::string> texts;
    for (const auto& note : notes.at("notes"))
        texts.push_back(json({"show", note.at("uniqueIdentifier")}).at("text"));
    EXPECT_THAT(texts, testing::UnorderedElementsAre("# A\n\ntwo", testing::HasSubstr("mine")));

    file("in/a.md", "# A\n\nthree");
    EXPECT_EQ(countsOf(import()), (Counts{.conflicted = 1}));
    EXPECT_EQ(count(), 2) << "a copy that nobody edited takes the next state of the file";
}

TEST_F(ImportAgain, HasNothingToDoWhereBothSidesSayTheSame)
{
    file("in/a.md", "# A\n\none");
    import();
    output({"replace", "A", "two"});
    file("in/a.md", text("A"));
    EXPECT_EQ(countsOf(import()), (Counts{.unchanged = 1}));
    file("in/a.md", "# A\n\nthree");
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 1})) << "the note counts as imported";
}

TEST_F(ImportAgain, LeavesNotesAloneThatAreInTheTrashOrDeleted)
{
    for (const char* name : {"a", "b", "c", "d"})
        file("in/" + std::string(name) + ".md", "# " + std::string(name) + "\n\none");
    import();
    output({"trash", "a", "b"});
    output({"delete", "--yes", "c", "d"});
    file("in/a.md", "# a\n\ntwo");
    file("in/c.md", "# c\n\ntwo");
    const nlohmann::json document = import();
    EXPECT_EQ(countsOf(document), (Counts{.unchanged = 2}));
    ASSERT_EQ(document.at("skipped"), 2);
    EXPECT_EQ(document.at("skippedFiles").at(0).at("reason"), "its note is in the trash");
    EXPECT_EQ(document.at("skippedFiles").at(1).at("reason"), "its note was deleted");
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(text("a"), "# a\n\none");
}

TEST_F(ImportAgain, LeavesReadOnlyNotesAlone)
{
    file("in/a.md", "# a\n\none [[b]]");
    import();
    output({"readonly", "a"});
    file("in/b.md", "# Bee");
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 1, .unchanged = 1}));
    EXPECT_EQ(text("a"), "# a\n\none [[b]]") << "links are not mended either";
    file("in/a.md", "# a\n\ntwo");
    const nlohmann::json document = import();
    EXPECT_EQ(countsOf(document), (Counts{.unchanged = 1}));
    EXPECT_EQ(document.at("skippedFiles").at(0).at("reason"), "its note is read-only");
    file("in/a.md", "# another\n\ntwo");
    file("in/c.md", "# Sea\n\n[x](a.md)");
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 1, .unchanged = 1}));
    EXPECT_EQ(text("Sea"), "# Sea\n\n[[a|x]]") << "by the title that it keeps";
    file("in/a.md", "# a\n\ntwo");
    output({"editable", "a"});
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 1, .unchanged = 2}));
    EXPECT_EQ(text("a"), "# a\n\ntwo");
}

TEST_F(ImportAgain, KnowsAFileThatHasMoved)
{
    file("in/a.md", "# A\n\none");
    file("in/b.md", "# B");
    import();
    fs::create_directory(folder() / "in/sub");
    fs::rename(folder() / "in/a.md", folder() / "in/sub/c.md");
    EXPECT_EQ(countsOf(import()), (Counts{.unchanged = 2, .moved = 1}));
    file("in/sub/c.md", "# A\n\ntwo");
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 1, .unchanged = 1}));
    EXPECT_EQ(count(), 2);
}

TEST_F(ImportAgain, TakesNoFileForAMovedOneThatCouldBeAnother)
{
    file("in/a.md", "# A");
    file("in/b.md", "# A");
    import();
    fs::remove(folder() / "in/a.md");
    fs::remove(folder() / "in/b.md");
    file("in/c.md", "# A");
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 1, .gone = 2}));
}

TEST_F(ImportAgain, KeepsNotesOfFilesThatAreGone)
{
    file("in/a.md", "# A");
    file("in/b.md", "# B");
    import();
    fs::remove(folder() / "in/a.md");
    const nlohmann::json document = import();
    EXPECT_EQ(countsOf(document), (Counts{.unchanged = 1, .gone = 1}));
    EXPECT_THAT(std::string(document.at("goneFiles").at(0)), testing::EndsWith("in/a.md"));
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(countsOf(json({"import", folder() / "in/b.md"})), (Counts{.unchanged = 1, .gone = 1}));
}

TEST_F(ImportAgain, TellsThatAllFilesOfAFolderAreGone)
{
    file("in/a.md", "# A");
    file("in/b.md", "# B");
    import();
    fs::remove(folder() / "in/a.md");
    fs::remove(folder() / "in/b.md");
    const TarnResult result = run({"--json", "import", (folder() / "in").string()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(countsOf(nlohmann::json::parse(result.output)), (Counts{.gone = 2}));
    EXPECT_EQ(count(), 2);
}

TEST_F(ImportAgain, FollowsAFolderThatHasMoved)
{
    file("in/a.md", "# A\n\none");
    import();
    fs::rename(folder() / "in", folder() / "there");
    file("there/a.md", "# A\n\ntwo");
    EXPECT_EQ(countsOf(json({"import", folder() / "there", "--moved-from", folder() / "in"})), (Counts{.updated = 1}));
    EXPECT_EQ(countsOf(json({"import", folder() / "there"})), (Counts{.unchanged = 1}));
    EXPECT_EQ(count(), 1);
}

TEST_F(ImportAgain, MendsLinksWhoseNoteHasCome)
{
    file("in/a.md", "# A\n\n[[later]] and [path](sub/later.md)");
    import();
    EXPECT_EQ(text("A"), "# A\n\n[[later]] and [path](sub/later.md)");
    const std::string date = json({"show", "A"}).at("modificationDate");
    file("in/sub/later.md", "# Later on");
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 1, .updated = 1}));
    EXPECT_EQ(text("A"), "# A\n\n[[Later on|later]] and [[Later on|path]]");
    EXPECT_EQ(json({"show", "A"}).at("modificationDate"), date);
    EXPECT_EQ(countsOf(import()), (Counts{.unchanged = 2}));
}

TEST_F(ImportAgain, TakesATargetsNewTitleForNoEdit)
{
    file("in/a.md", "# A\n\n[b](b.md)");
    file("in/b.md", "# B");
    import();
    output({"replace", "--whole", "B", "# New"});
    EXPECT_EQ(text("A"), "# A\n\n[[New|b]]");
    file("in/a.md", "# A\n\n[b](b.md) more");
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 1, .unchanged = 1}));
    EXPECT_EQ(text("A"), "# A\n\n[[New|b]] more");
}

TEST_F(ImportAgain, TakesATitleThatIsSharedByNowForNoEdit)
{
    file("in/a.md", "# A\n\n[b](b.md) [c](c.md)");
    file("in/b.md", "# B");
    file("in/c.md", "# C");
    import();
    output({"replace", "--whole", "C", "# New"});
    note("# B\n\nanother");
    file("in/a.md", "# A\n\n[b](b.md) [c](c.md) more");
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 1, .unchanged = 2}));
}

TEST_F(ImportAgain, FollowsTitlesThatNotesTakeFromEachOther)
{
    file("in/1.md", "# One\n\nfirst");
    file("in/2.md", "# Two\n\nsecond");
    file("in/links.md", "# Links\n\n[[1]] [[2]]");
    import();
    const std::string mine = note("# Mine\n\n[[One|first]] [[Two|second]]");
    file("in/1.md", "# Two\n\nfirst");
    file("in/2.md", "# One\n\nsecond [me](2.md)");
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 2, .unchanged = 1}));
    EXPECT_EQ(text(mine), "# Mine\n\n[[Two|first]] [[One|second]]");
    EXPECT_EQ(text("Links"), "# Links\n\n[[Two|1]] [[One|2]]");
    EXPECT_EQ(text("One"), "# One\n\nsecond [[One|me]]");
    EXPECT_EQ(countsOf(import()), (Counts{.unchanged = 3}));
}

TEST_F(ImportAgain, LeavesLinksToAFormerTitleThatTheFileSaysNow)
{
    file("in/a.md", "# Old\n\ntext");
    import();
    const std::string mine = note("# Mine\n\n[[Old]]");
    file("in/a.md", "# New\n\n[[Old|former]]");
    EXPECT_EQ(countsOf(import()), (Counts{.updated = 1}));
    EXPECT_EQ(text("New"), "# New\n\n[[Old|former]]");
    EXPECT_EQ(text(mine), "# Mine\n\n[[New]]");
}

TEST_F(ImportAgain, GivesTheTitleThatANoteLeavesToANewOne)
{
    file("in/a.md", "# Chapter\n\n[[nobody]]");
    file("in/links.md", "# Links\n\n[[Chapter]] [[nobody]]");
    import();
    const std::string mine = note("# Mine\n\n[[Chapter]]");
    file("in/a.md", "# Former chapter");
    file("in/0.md", "# Chapter\n\nanother");
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 1, .updated = 2}));
    EXPECT_EQ(text(mine), "# Mine\n\n[[Former chapter]]");
    EXPECT_EQ(text("Links"), "# Links\n\n[[Chapter]] [[nobody]]") << "what the file says now";
    EXPECT_EQ(countsOf(import()), (Counts{.unchanged = 3}));
}

TEST_F(ImportAgain, LeadsToAnEditedNoteByTheTitleThatItKeeps)
{
    file("in/a.md", "# A\n\none");
    import();
    output({"append", "A", "mine"});
    file("in/a.md", "# A of the file\n\ntwo");
    file("in/links.md", "# Links\n\n[a](a.md) [[A of the file]]");
    const auto document = import();
    EXPECT_EQ(countsOf(document), (Counts{.imported = 1, .conflicted = 1}));
    EXPECT_EQ(text("Links"), "# Links\n\n[[A|a]] [[A of the file]]");
}

TEST_F(ImportAgain, KeepsTheRuleThatNamedANote)
{
    file("in/one.md", "## Improvements\n\nof one");
    import();
    EXPECT_EQ(count(), 1);
    file("in/two.md", "## Improvements\n\nof two");
    file("in/three.md", "## Improvements\n\nof three");
    file("in/one.md", "## Improvements\n\nof one, more");
    import();
    std::vector<std::string> titles;
    const nlohmann::json document = json({"list"});
    for (const auto& note : document.at("notes"))
        titles.push_back(note.at("title"));
    EXPECT_THAT(titles, testing::UnorderedElementsAre("Improvements", "two", "three"));
}

TEST_F(ImportAgain, MakesANoteThatAnEarlierImportAnnouncedAndDidNotSaveAfterOthersWereImported)
{
    file("in/a.md", "# A");
    file("in/b.md", "# B");
    file("other/c.md", "# C");
    json({"import", folder() / "in/b.md"});
    const fs::path record = store() / "Application Data/database.imports.jsonl";
    std::ofstream(record, std::ios::binary | std::ios::app)
        << R"({"announced":{"path":")" << (fs::canonical(folder()) / "in/a.md").string()
        << R"(","note":"DCB78F3C-7CF1-44EE-B40E-7FC537BE4B91","file":"00"}})" << '\n';
    EXPECT_EQ(countsOf(json({"import", folder() / "other"})), (Counts{.imported = 1}));
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 1, .unchanged = 1}));
    EXPECT_EQ(json({"show", "A"}).at("uniqueIdentifier"), "DCB78F3C-7CF1-44EE-B40E-7FC537BE4B91");
}

TEST_F(ImportAgain, TellsInADryRunWhatItWouldDo)
{
    file("in/a.md", "# A\n\none");
    file("in/b.md", "# B\n\none");
    import();
    output({"append", "B", "mine"});
    for (const char* name : {"a", "b", "c"})
        file("in/" + std::string(name) + ".md", "# " + std::string(name) + "\n\ntwo [a](a.md)");
    const std::string before = bytesOfStore();
    EXPECT_EQ(countsOf(import({"--dry-run"})), (Counts{.imported = 1, .updated = 1, .conflicted = 1}));
    EXPECT_EQ(bytesOfStore(), before);
    EXPECT_EQ(countsOf(import()), (Counts{.imported = 1, .updated = 1, .conflicted = 1}));
}

} // namespace tarn::test
