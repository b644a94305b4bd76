#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <sys/stat.h>

namespace tarn::test {

class ImportAttachments : public TarnCommandTest {
protected:
    std::string text(const std::string& title) const { return json({"show", title}).at("text"); }
    /// The sizes of a note's attachments by their names.
    std::map<std::string, int> sizesOf(const std::string& title) const
    {
        std::map<std::string, int> sizes;
        const nlohmann::json document = json({"files", title});
        for (const auto& file : document.at("files"))
            sizes[file.at("filename")] = file.at("fileSize");
        return sizes;
    }
    nlohmann::json import() const { return json({"import", folder() / "in"}); }
    /// How many links an import left that lead outside, and how many that lead nowhere.
    static std::pair<int, int> leftBy(const nlohmann::json& document)
    {
        return {document.at("links").at("outside"), document.at("links").at("missing")};
    }

    /// Runs the program in another current folder.
    TarnResult runIn(const std::filesystem::path& place, std::vector<std::string> given) const
    {
        const auto current = std::filesystem::current_path();
        std::filesystem::current_path(place);
        TarnResult result = run(std::move(given));
        std::filesystem::current_path(current);
        return result;
    }

    using Sizes = std::map<std::string, int>;
};

TEST_F(ImportAttachments, AttachesWhatATextLinksByRelativePaths)
{
    file("in/img/a b.pdf", "1");
    file("in/doc (1).pdf", "22");
    file("in/sub/c.pdf", "333");
    file("in/sub/n.md",
        "# N\n\n![](../img/a%20b.pdf \"title (x)\") [d](<../doc (1).pdf>) [e](../doc%20%281%29.pdf) [c][r] "
        "[c](./c.pdf)\n\n"
        "`[x](c.pdf)` <https://x.y/c.pdf>\n\n[r]: c.pdf 'T'\n");
    const auto document = import();
    EXPECT_EQ(document.at("attachments"), 3);
    EXPECT_EQ(leftBy(document), std::pair(0, 0));
    EXPECT_EQ(text("N"),
        "# N\n\n![](a%20b.pdf \"title (x)\") [d](<doc (1).pdf>) [e](doc%20%281%29.pdf) [c][r] [c](c.pdf)\n\n"
        "`[x](c.pdf)` <https://x.y/c.pdf>\n\n[r]: c.pdf 'T'\n");
    EXPECT_EQ(sizesOf("N"), (Sizes{{"a b.pdf", 1}, {"doc (1).pdf", 2}, {"c.pdf", 3}}));
    EXPECT_TRUE(json({"files", "--unused"}).at("files").empty());
}

TEST_F(ImportAttachments, TellsFilesOfOneNameApart)
{
    file("in/x/a.pdf", "1");
    file("in/y/a.pdf", "22");
    file("in/a.pdf", "333");
    file("in/n.md", "# N\n\n[](y/a.pdf) [](x/a.pdf) [](a.pdf) [](y/a.pdf)");
    EXPECT_EQ(import().at("attachments"), 3);
    const Sizes sizes = sizesOf("N");
    const std::string links = text("N");
    // Whatever counter each got: the first link leads to two bytes, the second to one, the third to three.
    std::vector<int> linked;
    const nlohmann::json parsed = json({"parse"}, links);
    for (const std::string link : parsed.at("links"))
        linked.push_back(sizes.at(
            link.find("%20") == std::string::npos ? link : link.substr(0, 1) + " (" + link.substr(7, 1) + ").pdf"));
    EXPECT_EQ(linked, (std::vector<int>{2, 1, 3, 2})) << links;
}

TEST_F(ImportAttachments, KnowsFilesByTheirBytesAndNotByTheirSizes)
{
    file("in/a.pdf", "one");
    file("in/b.pdf", "two");
    file("in/sub/c.pdf", "one");
    file("in/d.bin", "one");
    file("in/n.md", "# N\n\n[a](a.pdf) [b](b.pdf) [c](sub/c.pdf) [d](d.bin)\n");
    EXPECT_EQ(import().at("attachments"), 3);
    EXPECT_EQ(text("N"), "# N\n\n[a](a.pdf) [b](b.pdf) [c](a.pdf) [d](d.bin)\n");
    file("in/e.pdf", "six");
    file("in/n.md", "# N\n\n[a](a.pdf) [b](b.pdf) [c](sub/c.pdf) [e](e.pdf)\n");
    const auto again = import();
    EXPECT_EQ(again.at("updated"), 1);
    EXPECT_EQ(again.at("attachments"), 1);
    EXPECT_EQ(text("N"), "# N\n\n[a](a.pdf) [b](b.pdf) [c](a.pdf) [e](e.pdf)\n");
}

TEST_F(ImportAttachments, LeavesWhatLeadsElsewhereOrNowhere)
{
    const auto outside = file("elsewhere/secret.pdf", "secret");
    file("in/n.md",
        "# N\n\n[](../elsewhere/secret.pdf) [](" + outside.string().substr(0, 1)
            + "etc/hosts) [](link.pdf) [](dir/secret.pdf) [](missing.pdf) [](folder) [](pipe.png) "
              "[](https://x.y/z.png) "
              "[](#a) [](mailto:a@b.c)");
    std::filesystem::create_symlink(outside, folder() / "in" / "link.pdf");
    std::filesystem::create_directory_symlink(folder() / "elsewhere", folder() / "in" / "dir");
    std::filesystem::create_directory(folder() / "in" / "folder");
    ASSERT_EQ(::mkfifo((folder() / "in" / "pipe.png").c_str(), 0600), 0);
    const TarnResult result = run({"--json", "import", folder() / "in", "--verbose"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const auto document = nlohmann::json::parse(result.output);
    EXPECT_EQ(document.at("attachments"), 0);
    EXPECT_EQ(leftBy(document), std::pair(3, 4)) << "a slash begins at the folder that is imported";
    EXPECT_EQ(document.at("leftLinks").size(), 7U);
    EXPECT_THAT(result.errors, testing::HasSubstr("missing.pdf: no such file"));
    EXPECT_THAT(text("N"), testing::HasSubstr("[](../elsewhere/secret.pdf)"));
}

TEST_F(ImportAttachments, TakesNoNoteForAFile)
{
    file("in/n.md", "# N\n\n[](m.md) [](m.md#head) [](hidden/.m.md)");
    file("in/m.md", "# M");
    file("in/hidden/.m.md", "no note");
    const auto document = import();
    EXPECT_EQ(document.at("attachments"), 1);
    EXPECT_EQ(text("N"), "# N\n\n[[M]] [[M]] [](.m.md)");
}

TEST_F(ImportAttachments, FindsNamesThatAreComposedInAnotherWay)
{
    file("in/e\xCC\x81/A\xCC\x8A.pdf", "1");
    file("in/\xE3\x81\x8C.pdf", "22");
    file("in/n.md", "# N\n\n[](\xC3\xA9/\xC3\x85.pdf) [](%E3%81%8B%E3%82%99.pdf)");
    EXPECT_EQ(import().at("attachments"), 2);
    EXPECT_TRUE(json({"files", "--unused"}).at("files").empty());
    EXPECT_EQ(sizesOf("N"), (Sizes{{"A\xCC\x8A.pdf", 1}, {"\xE3\x81\x8C.pdf", 2}}));
}

TEST_F(ImportAttachments, GivesEachNoteItsOwnCopy)
{
    file("in/a.pdf", "1");
    file("in/n.md", "# N\n\n[](a.pdf)");
    file("in/m.md", "# M\n\n[](a.pdf)");
    EXPECT_EQ(import().at("attachments"), 2);
    EXPECT_EQ(json({"files"}).at("files").size(), 2U);
    output({"delete", "--yes", "N"});
    EXPECT_EQ(sizesOf("M"), (Sizes{{"a.pdf", 1}}));
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(ImportAttachments, TakesFilesBesideAFileThatIsNamed)
{
    file("in/a.pdf", "1");
    EXPECT_EQ(json({"import", file("in/n.md", "# N\n\n[](a.pdf)")}).at("attachments"), 1);
}

TEST_F(ImportAttachments, TakesAFileThatIsNamedWithoutItsFolder)
{
    file("in/a.pdf", "1");
    file("in/n.md", "# N\n\n[](a.pdf) [](missing.pdf) [](../x.pdf) [](\xC3\xA9.pdf)");
    const TarnResult result = runIn(folder() / "in", {"--json", "import", "n.md"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const auto document = nlohmann::json::parse(result.output);
    EXPECT_EQ(document.at("attachments"), 1);
    EXPECT_EQ(leftBy(document), std::pair(1, 2));
}

TEST_F(ImportAttachments, CountsPicturesThatNoTextLinks)
{
    file("in/a.png", "no picture");
    file("in/b.png", "no picture");
    file("in/n.md", "# N\n\n![](a.png)");
    const auto document = import();
    EXPECT_EQ(document.at("attachments"), 1);
    EXPECT_EQ(document.at("skipped"), 1);
    EXPECT_THAT(std::string(document.at("skippedFiles").at(0).at("path")), testing::EndsWith("b.png"));
}

TEST_F(ImportAttachments, WritesNothingInADryRun)
{
    file("in/a.pdf", "1");
    file("in/n.md", "# N\n\n[](a.pdf) [](./a.pdf)");
    EXPECT_EQ(json({"import", "--dry-run", folder() / "in"}).at("attachments"), 1);
    EXPECT_FALSE(std::filesystem::exists(store()));
}

TEST_F(ImportAttachments, ReportsAFileThatCannotBeCopied)
{
    file("in/a.pdf", "1");
    file("in/n.md", "# N\n\n[](a.pdf)");
    file("st\u00F6re/Application Data/Local Files/Note Files", "in the way");
    const TarnResult result = run({"--json", "import", folder() / "in"});
    EXPECT_EQ(result.exitCode, 6);
    const auto document = nlohmann::json::parse(result.output);
    EXPECT_EQ(document.at("failed").size(), 1U);
    EXPECT_EQ(document.at("imported"), 1);
    EXPECT_EQ(document.at("attachments"), 0);
    EXPECT_EQ(text("N"), "# N\n\n[](a.pdf)");
}

} // namespace tarn::test
