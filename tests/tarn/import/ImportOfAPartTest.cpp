// A file or a folder of a notebook that was imported as a whole: it still knows the rest of it.

#include "tests/tarn/TarnCommandTest.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tarn::test {

class ImportOfAPart : public TarnCommandTest {
protected:
    void importWhole() const
    {
        file("in/note.md", "# Note\n\n[o](sub/One.md) [[One]] [[sub/One|x]] ![[p.png]]\n");
        file("in/sub/One.md", "# One big\n\n[[note]] ![[p.png]] [n](../note.md)\n");
        file("in/p.png", "1");
        EXPECT_EQ(import("in").at("imported"), 2);
    }
    nlohmann::json import(const std::string& part) const { return json({"import", folder() / part}); }
    std::string text(const std::string& title) const { return json({"show", title}).at("text"); }
    void add(const std::string& name, const std::string& more) const { file(name, contents(name) + more); }
    std::string contents(const std::string& name) const
    {
        std::ifstream stream(folder() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

TEST_F(ImportOfAPart, KeepsTheLinksOfAFileThatIsNamedAlone)
{
    importWhole();
    add("in/note.md", "more\n");
    const auto document = import("in/note.md");
    EXPECT_EQ(document.at("updated"), 1);
    EXPECT_EQ(document.at("links").at("wiki"), 3);
    EXPECT_EQ(document.at("links").at("waiting"), 0);
    EXPECT_EQ(text("Note"), "# Note\n\n[[One big|o]] [[One big|One]] [[One big|x]] ![](p.png)\nmore\n");
    EXPECT_EQ(json({"files", "Note"}).at("files").size(), 1U) << "a note is no attachment";
}

TEST_F(ImportOfAPart, KeepsTheLinksThatLeadOutOfAFolderWithinIt)
{
    importWhole();
    add("in/sub/One.md", "more\n");
    EXPECT_EQ(import("in/sub").at("updated"), 1);
    EXPECT_EQ(text("One big"), "# One big\n\n[[note]] ![](p.png) [[Note|n]]\nmore\n");
    EXPECT_EQ(import("in").at("unchanged"), 2);
}

TEST_F(ImportOfAPart, LinksANewFileWithTheOthers)
{
    importWhole();
    file("in/sub/new.md", "# New\n\n[a](One.md) [[note|b]] [c](../note.md#x) [[p.png]]\n");
    EXPECT_EQ(import("in/sub/new.md").at("imported"), 1);
    EXPECT_EQ(text("New"), "# New\n\n[[One big|a]] [[note|b]] [[Note|c]] [p.png](p.png)\n");
}

TEST_F(ImportOfAPart, LeadsNowhereWhereTheNoteIsInTheTrash)
{
    importWhole();
    output({"trash", "One big"});
    add("in/note.md", "more\n");
    EXPECT_EQ(import("in/note.md").at("updated"), 1);
    EXPECT_EQ(text("Note"), "# Note\n\n[o](sub/One.md) [[One]] [[sub/One|x]] ![](p.png)\nmore\n");
}

TEST_F(ImportOfAPart, KnowsNothingOfFilesOutsideOfWhatWasImported)
{
    importWhole();
    file("in/sub/deep/other.md", "# Other\n");
    file("elsewhere/alone.md", "# Alone\n\n[o](../in/note.md) [[note]] [[One]]\n");
    EXPECT_EQ(import("elsewhere/alone.md").at("links").at("outside"), 1);
    EXPECT_EQ(text("Alone"), "# Alone\n\n[o](../in/note.md) [[note]] [[One]]\n");
}

TEST_F(ImportOfAPart, FollowsAFolderThatWasMoved)
{
    importWhole();
    std::filesystem::rename(folder() / "in", folder() / "now");
    EXPECT_EQ(json({"import", "--moved-from", folder() / "in", folder() / "now"}).at("unchanged"), 2);
    add("now/note.md", "more\n");
    EXPECT_EQ(import("now/note.md").at("links").at("wiki"), 3);
}

TEST_F(ImportOfAPart, TakesNoSymbolicLinkForTheFileThatLayThere)
{
    file("in/a.md", "# A\n\n[[b]] [c](b.md)\n");
    file("in/b.md", "# Bee\n");
    file("in/c.md", "# Cee\n");
    import("in");
    std::filesystem::remove(folder() / "in/b.md");
    std::filesystem::create_symlink("c.md", folder() / "in/b.md");
    add("in/a.md", "more\n");
    EXPECT_EQ(import("in").at("updated"), 1);
    EXPECT_EQ(text("A"), "# A\n\n[[b]] [[Cee|c]]\nmore\n");
}

TEST_F(ImportOfAPart, TakesNoLinkFromANoteWhoseFileHasMoved)
{
    file("in/note.md", "# Note\n\n[o](sub/One.md) [[Later]] ![](p.png)\n");
    file("in/sub/One.md", "# One big\n");
    file("in/p.png", "1");
    import("in");
    const std::string imported = text("Note");
    EXPECT_EQ(imported, "# Note\n\n[[One big|o]] [[Later]] ![](p.png)\n");
    std::filesystem::rename(folder() / "in/note.md", folder() / "in/sub/note.md");
    EXPECT_EQ(import("in").at("moved"), 1);
    EXPECT_EQ(text("Note"), imported);
    EXPECT_EQ(import("in").at("unchanged"), 2);
    EXPECT_EQ(text("Note"), imported);
    std::filesystem::remove(folder() / "in/sub/One.md");
    EXPECT_EQ(import("in").at("gone"), 1);
    EXPECT_EQ(text("Note"), imported);
    add("in/sub/note.md", "more\n");
    EXPECT_EQ(import("in").at("updated"), 1);
    EXPECT_EQ(text("Note"), "# Note\n\n[o](sub/One.md) [[Later]] ![](p.png)\nmore\n");
}

} // namespace tarn::test
