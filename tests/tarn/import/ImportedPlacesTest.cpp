// Where links lead in folders with symbolic links, other pages of folders, and names that no heading can say.

#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

namespace tarn::test {

namespace fs = std::filesystem;

class ImportedPlaces : public TarnCommandTest {
protected:
    nlohmann::json import() const { return json({"import", (folder() / "in").string()}); }
    std::string text(const std::string& title) const { return json({"show", title}).at("text"); }
};

TEST_F(ImportedPlaces, LinksBeginWhereTheFileLies)
{
    file("in/b/real.md", "[next](next.md) ![](p.bin) [[next]]");
    file("in/b/next.md", "# Next");
    file("in/b/p.bin", "bytes");
    fs::create_directory(folder() / "in/a");
    fs::create_symlink("../b/real.md", folder() / "in/a/linked.md");
    EXPECT_EQ(import().at("links").at("wiki"), 2);
    EXPECT_EQ(text("linked"), "# linked\n\n[[Next|next]] ![](p.bin) [[next]]");
}

TEST_F(ImportedPlaces, NamesOfFilesDoNotLeadOut)
{
    file("secret.png", "bytes");
    file("in/a.md", "# A\n\n![[p.png]] ![[null.png]]");
    fs::create_symlink("../secret.png", folder() / "in/p.png");
    fs::create_symlink("/dev/null", folder() / "in/null.png");
    const auto document = import();
    EXPECT_EQ(document.at("links").at("waiting"), 2);
    EXPECT_EQ(document.at("attachments"), 0);
    EXPECT_EQ(text("A"), "# A\n\n![[p.png]] ![[null.png]]");
}

TEST_F(ImportedPlaces, AFolderMeansItsPageWhateverItsEnding)
{
    file("in/a.md", "# A\n\n[1](b) [2](c/) [3](d) [4](e)");
    file("in/b/ReadMe.markdown", "# B");
    file("in/c/index.txt", "C");
    file("in/d/index.md", "# Not it");
    file("in/d/readme.md", "# D");
    file("in/e/other.md", "# E");
    EXPECT_EQ(import().at("links").at("missing"), 1);
    EXPECT_EQ(text("A"), "# A\n\n[[B|1]] [[C|2]] [[D|3]] [4](e)");
}

TEST_F(ImportedPlaces, LineEndsInNamesAreBlanksInTitles)
{
    file("in/two\nlines.md", "text");
    file("in/sub/two\nlines.md", "text");
    EXPECT_EQ(json({"import", "--titles", "unique", (folder() / "in").string()}).at("imported"), 2);
    EXPECT_EQ(text("two lines (two lines)"), "# two lines (two lines)\n\ntext");
    EXPECT_EQ(text("two lines (sub/two lines)"), "# two lines (sub/two lines)\n\ntext");
}

} // namespace tarn::test
