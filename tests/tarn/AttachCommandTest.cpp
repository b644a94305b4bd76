#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace tarn::test {

namespace {

std::vector<std::string> filenamesOf(const nlohmann::json& document)
{
    std::vector<std::string> names;
    for (const auto& file : document.at("files"))
        names.push_back(file.at("filename"));
    return names;
}

std::string bytesOf(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "-";
}

} // namespace

class AttachCommand : public TarnCommandTest {
protected:
    std::string text(const std::string& title) const { return json({"show", title}).at("text"); }
    std::filesystem::path attachments() const { return store() / "Application Data" / "Local Files"; }
};

TEST_F(AttachCommand, CopiesFilesIntoTheStoreAndLinksThemAtTheEnd)
{
    const std::string identifier = note("# Trip\n\nTo Rome");
    const auto document = nlohmann::ordered_json::parse(
        run({"--json", "attach", "Trip", file("a.txt", "bytes"), file("b.pdf", "other")}).output);
    ASSERT_EQ(document.at("files").size(), 2U);
    const auto& first = document.at("files").at(0);
    EXPECT_EQ(keysOf(first),
        (std::vector<std::string>{
            "uniqueIdentifier", "filename", "kind", "fileSize", "width", "height", "index", "unused", "path"}));
    EXPECT_EQ(first.at("filename"), "a.txt");
    EXPECT_EQ(first.at("kind"), "file");
    EXPECT_EQ(first.at("fileSize"), 5);
    EXPECT_TRUE(first.at("width").is_null());
    EXPECT_EQ(first.at("unused"), false);
    EXPECT_EQ(bytesOf(std::string(first.at("path"))), "bytes");
    EXPECT_TRUE(std::string(first.at("path")).starts_with(attachments().string()));
    EXPECT_EQ(text("Trip"), "# Trip\n\nTo Rome\n[a.txt](a.txt)\n[b.pdf](b.pdf)");
    EXPECT_EQ(json({"show", identifier}).at("hasFiles"), true);
    EXPECT_FALSE(std::filesystem::exists(folder() / "cache"));
}

TEST_F(AttachCommand, LinksNamesSoThatTheyReadBack)
{
    for (const char* name :
        {"a b.txt", "a (1).txt", "100%.txt", "é ü.txt", "か.txt", "a%20b.pdf", "#tag.txt", "[x].txt", "a]b(.txt",
            "*a*.txt", "[[Note]].txt", "x: y.txt", "`c`.txt", "<b>.txt", "q?&.txt", "back\\slash.txt"}) {
        SCOPED_TRACE(name);
        const std::string identifier = note(std::string("# N"));
        const auto document = json({"attach", identifier, file(name, name)});
        ASSERT_EQ(filenamesOf(document), std::vector<std::string>{name});
        EXPECT_EQ(document.at("files").at(0).at("unused"), false);
        // A second edit reads all links anew.
        output({"append", identifier, "more"});
        EXPECT_EQ(json({"files", identifier}).at("files").at(0).at("unused"), false) << text(identifier);
        EXPECT_EQ(json({"show", identifier}).at("tags"), nlohmann::json::array());
        EXPECT_TRUE(json({"links", identifier}).at("links").empty());
        EXPECT_EQ(json({"parse"}, text(identifier)).at("links").size(), 1U);
    }
}

TEST_F(AttachCommand, WritesNoLinkWhereTheTextHasOne)
{
    note("# N\n\n![see](a%20b.txt)");
    EXPECT_EQ(json({"attach", "N", file("a b.txt", "x")}).at("files").at(0).at("unused"), false);
    EXPECT_EQ(text("N"), "# N\n\n![see](a%20b.txt)");
}

TEST_F(AttachCommand, StandsAboveTheTagsAndBelowTheTitleOfATextThatEndsInCode)
{
    note("# A\n\ntext\n\n#tag");
    output({"attach", "A", file("a.txt", "x")});
    EXPECT_EQ(text("A"), "# A\n\ntext\n\n[a.txt](a.txt)\n\n#tag");
    note("# B\n\n```\ncode");
    output({"attach", "B", file("b.txt", "x")});
    EXPECT_EQ(text("B"), "# B\n[b.txt](b.txt)\n\n```\ncode");
}

TEST_F(AttachCommand, CountsANameThatIsTaken)
{
    note("# N");
    output({"attach", "N", file("a.txt", "one")});
    EXPECT_EQ(filenamesOf(json({"attach", "N", file("x/a.txt", "two"), file("y/a.txt", "three")})),
        (std::vector<std::string>{"a (2).txt", "a (3).txt"}));
    EXPECT_EQ(filenamesOf(json({"files", "N"})), (std::vector<std::string>{"a.txt", "a (2).txt", "a (3).txt"}));
}

TEST_F(AttachCommand, AttachesAllOrNothing)
{
    note("# N");
    ASSERT_EQ(::mkfifo((folder() / "pipe.png").c_str(), 0600), 0);
    for (const std::filesystem::path& wrong : {folder() / "missing.txt", folder(), folder() / "pipe.png"}) {
        SCOPED_TRACE(wrong);
        const TarnResult result = run({"attach", "N", file("a.txt", "x"), wrong});
        EXPECT_EQ(result.exitCode, 6);
        EXPECT_THAT(result.errors, testing::HasSubstr(wrong.string()));
        EXPECT_THAT(result.errors, testing::HasSubstr("nothing was attached"));
        EXPECT_EQ(text("N"), "# N");
        EXPECT_TRUE(json({"files"}).at("files").empty());
        EXPECT_TRUE(std::filesystem::is_empty(attachments() / "Note Files"));
    }
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(AttachCommand, RefusesNotesThatAreNotToBeEdited)
{
    const auto path = file("a.txt", "x");
    note("# N");
    output({"readonly", "N"});
    EXPECT_EQ(run({"attach", "N", path}).exitCode, 1);
    output({"editable", "N"});
    damage("UPDATE OVNote SET encrypted = 1");
    EXPECT_EQ(run({"attach", "N", path}).exitCode, 3);
    EXPECT_TRUE(json({"files"}).at("files").empty());
}

TEST_F(AttachCommand, WantsANoteAndAFile)
{
    EXPECT_EQ(run({"attach"}).exitCode, 2);
    note("# N");
    EXPECT_EQ(run({"attach", "N"}).exitCode, 2);
    EXPECT_EQ(run({"attach", "none", file("a.txt", "x")}).exitCode, 1);
}

TEST_F(AttachCommand, GivesCopiesTheirOwnBytesAndDeletesThemWithTheirNote)
{
    const auto folders = [&] {
        return std::distance(
            std::filesystem::directory_iterator(attachments() / "Note Files"), std::filesystem::directory_iterator());
    };
    note("# N");
    note("# M");
    output({"attach", "N", file("a.txt", "of N")});
    output({"attach", "M", file("b/a.txt", "of M")});
    const std::string copy = json({"duplicate", "N"}).at("uniqueIdentifier");
    output({"delete", "--yes", "--latest", "N"});
    EXPECT_EQ(folders(), 2);
    const std::string merged = json({"merge", "N", "M"}).at("uniqueIdentifier");
    const auto files = json({"files", merged}).at("files");
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(bytesOf(std::string(files.at(0).at("path"))), "of N");
    EXPECT_EQ(bytesOf(std::string(files.at(1).at("path"))), "of M");
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

// files ---------------------------------------------------------------------------------------------------------------

using FilesCommand = AttachCommand;

TEST_F(FilesCommand, ListsThoseOfANoteInTheOrderOfItsText)
{
    note("# N\n\n[](b.txt) [](a.txt)");
    note("# M");
    output({"attach", "N", file("a.txt", "a"), file("b.txt", "bb")});
    output({"attach", "M", file("c.txt", "ccc")});
    EXPECT_EQ(filenamesOf(json({"files", "N"})), (std::vector<std::string>{"b.txt", "a.txt"}));
    EXPECT_EQ(filenamesOf(json({"files"})), (std::vector<std::string>{"c.txt", "b.txt", "a.txt"}));
    EXPECT_THAT(output({"files"}), testing::HasSubstr("3 files, 6 B\n"));
}

TEST_F(FilesCommand, PicksByUseAndByWhereTheBytesAre)
{
    note("# N");
    output({"attach", "N", file("a.txt", "a"), file("b.txt", "b"), file("c.txt", "c")});
    output({"replace", "N", "[](b.txt) [](c.txt)"});
    EXPECT_EQ(filenamesOf(json({"files", "--unused"})), std::vector<std::string>{"a.txt"});
    damage("UPDATE OVNoteFile SET uploaded = 1 WHERE filename <> 'a.txt'");
    EXPECT_EQ(filenamesOf(json({"files", "--to-upload"})), std::vector<std::string>{"a.txt"});
    damage("UPDATE OVNoteFile SET downloaded = 0 WHERE filename = 'c.txt'");
    EXPECT_EQ(filenamesOf(json({"files", "--to-download"})), std::vector<std::string>{"c.txt"});
    EXPECT_EQ(filenamesOf(json({"files", "N", "--to-upload", "--unused"})), std::vector<std::string>{"a.txt"});
    EXPECT_EQ(run({"files", "--to-download", "--unused"}).exitCode, 1);
    EXPECT_TRUE(json({"files", "--to-download", "--unused"}).at("files").empty());
    EXPECT_EQ(run({"files", "--to-download", "--to-upload"}).exitCode, 2);
}

TEST_F(FilesCommand, HasNoPathForWhatIsNotHere)
{
    note("# N");
    output({"attach", "N", file("a.txt", "a")});
    std::filesystem::remove_all(attachments());
    EXPECT_TRUE(json({"files"}).at("files").at(0).at("path").is_null());
    EXPECT_THAT(output({"files"}), testing::HasSubstr(" ^! "));
}

TEST_F(FilesCommand, MakesNothingWhereThereIsNoStore)
{
    EXPECT_EQ(run({"files"}).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(store()));
}

// file rename ---------------------------------------------------------------------------------------------------------

class FileRename : public AttachCommand {
protected:
    FileRename()
    {
        note("# N\n\n![](a.txt) [x](<a.txt>) [r]\n\n[r]: a.txt");
        output({"attach", "N", file("a.txt", "a"), file("b.txt", "b")});
    }
};

TEST_F(FileRename, RenamesTheFileAndTheLinks)
{
    const auto document = json({"file", "rename", "N", "a.txt", "c d.txt"});
    ASSERT_EQ(filenamesOf(document), std::vector<std::string>{"c d.txt"});
    EXPECT_EQ(document.at("files").at(0).at("unused"), false);
    EXPECT_EQ(bytesOf(std::string(document.at("files").at(0).at("path"))), "a");
    EXPECT_EQ(text("N"), "# N\n\n![](c%20d.txt) [x](<c d.txt>) [r]\n\n[r]: c%20d.txt\n[b.txt](b.txt)");
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(FileRename, RefusesNamesThatAreTakenOrThatNoFileHas)
{
    const std::string before = text("N");
    for (const char* name : {"b.txt", "", "x/y", "..", "tab\there"})
        EXPECT_NE(run({"file", "rename", "N", "a.txt", name}).exitCode, 0) << name;
    EXPECT_THAT(run({"file", "rename", "N", "a.txt", "x/y"}).errors, testing::HasSubstr("\"x_y\" could be"));
    EXPECT_EQ(text("N"), before);
    EXPECT_EQ(filenamesOf(json({"files", "N"})), (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST_F(FileRename, NamesTheAttachmentsThereAre)
{
    const TarnResult result = run({"file", "rename", "N", "none.txt", "c.txt"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, testing::HasSubstr("a.txt"));
    EXPECT_THAT(result.errors, testing::HasSubstr("b.txt"));
}

TEST_F(FileRename, KeepsAllAsItIsWhenTheFileCannotBeRenamed)
{
    const std::string before = text("N");
    const auto folderOfFile
        = std::filesystem::path(std::string(json({"files", "N"}).at("files").at(0).at("path"))).parent_path();
    std::ofstream(folderOfFile / "c.txt") << "in the way";
    const TarnResult result = run({"file", "rename", "N", "a.txt", "c.txt"});
    EXPECT_EQ(result.exitCode, 6) << result.errors;
    EXPECT_EQ(text("N"), before);
    EXPECT_EQ(bytesOf(folderOfFile / "a.txt"), "a");
    EXPECT_EQ(filenamesOf(json({"files", "N"})).front(), "a.txt");
}

// file prune ----------------------------------------------------------------------------------------------------------

class FilePrune : public AttachCommand {
protected:
    FilePrune()
    {
        note("# N");
        output({"attach", "N", file("a.txt", "aaa"), file("b.txt", "b")});
        output({"replace", "N", "[](b.txt)"});
    }
    std::size_t foldersOnDisk() const
    {
        return static_cast<std::size_t>(std::distance(
            std::filesystem::directory_iterator(attachments() / "Note Files"), std::filesystem::directory_iterator()));
    }
};

TEST_F(FilePrune, DeletesUnusedFilesWithTheirBytes)
{
    EXPECT_THAT(output({"file", "prune", "--dry-run"}), testing::HasSubstr("would delete 1 file, 3 B\n"));
    EXPECT_EQ(foldersOnDisk(), 2U);
    const auto document = json({"file", "prune"});
    EXPECT_EQ(filenamesOf(document), std::vector<std::string>{"a.txt"});
    EXPECT_TRUE(document.at("files").at(0).at("path").is_null());
    EXPECT_TRUE(document.at("skipped").empty());
    EXPECT_EQ(foldersOnDisk(), 1U);
    EXPECT_EQ(filenamesOf(json({"files"})), std::vector<std::string>{"b.txt"});
    EXPECT_THAT(output({"file", "prune"}), testing::HasSubstr("deleted 0 files"));
}

TEST_F(FilePrune, KeepsWhatNobodyCanTellOf)
{
    for (const std::string sql :
        {"UPDATE OVNote SET encrypted = 1", "UPDATE OVNote SET encrypted = 0; UPDATE OVNote_large SET text = NULL"}) {
        SCOPED_TRACE(sql);
        damage(sql);
        const auto document = json({"file", "prune"});
        EXPECT_TRUE(document.at("files").empty());
        ASSERT_EQ(document.at("skipped").size(), 1U);
        EXPECT_EQ(document.at("skipped").at(0).at("filename"), "a.txt");
        EXPECT_FALSE(std::string(document.at("skipped").at(0).at("reason")).empty());
        EXPECT_EQ(foldersOnDisk(), 2U);
    }
}

TEST_F(FilePrune, KeepsWhatATextNamesWhateverItsMark)
{
    damage("UPDATE OVNoteFile SET unused = 1");
    const auto document = json({"file", "prune"});
    EXPECT_EQ(filenamesOf(document), std::vector<std::string>{"a.txt"});
    ASSERT_EQ(document.at("skipped").size(), 1U);
    EXPECT_EQ(document.at("skipped").at(0).at("filename"), "b.txt");
    EXPECT_EQ(foldersOnDisk(), 1U);
}

} // namespace tarn::test
