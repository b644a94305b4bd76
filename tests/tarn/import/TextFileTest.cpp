#include "tools/tarn/files/TextFile.h"
#include "tarnmodel/model/OVNote.h"
#include "tools/tarn/import/reading/MarkdownFiles.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace tarn {

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class Files : public testing::Test {
protected:
    Files()
    {
        std::string pattern = (fs::temp_directory_path() / "tarn fíles XXXXXX").string();
        folder_ = ::mkdtemp(pattern.data());
    }
    ~Files() override { fs::remove_all(folder_); }

    fs::path file(const std::string& name, std::string_view contents = "x") const
    {
        fs::create_directories((folder_ / name).parent_path());
        std::ofstream(folder_ / name, std::ios::binary) << contents;
        return folder_ / name;
    }
    std::vector<std::string> namesIn(const MarkdownFiles& found) const
    {
        std::vector<std::string> names;
        for (const MarkdownFile& file : found.files)
            names.push_back(std::filesystem::path(file.path).lexically_relative(folder_).string());
        return names;
    }
    std::vector<std::string> skippedIn(const MarkdownFiles& found) const
    {
        std::vector<std::string> skipped;
        for (const SkippedPath& file : found.skipped)
            skipped.push_back(
                file.path.lexically_relative(folder_).string() + ": " + std::string(textOfReason(file.reason)));
        return skipped;
    }

    fs::path folder_;
};

using TextFileOnDisk = Files;
using MarkdownFilesOnDisk = Files;

std::string errorOf(std::string_view bytes)
{
    try {
        textFromFileContents(bytes);
    } catch (const TextFileError& error) {
        return error.what();
    }
    return "none";
}

} // namespace

TEST(TextFile, DropsTheByteOrderMarkAndNothingElse)
{
    EXPECT_EQ(textFromFileContents("\xEF\xBB\xBF\xEF\xBB\xBFx"), "\xEF\xBB\xBFx");
    EXPECT_EQ(textFromFileContents("a\r\n\0b\n"s), "a\r\n\0b\n"s);
    EXPECT_EQ(textFromFileContents(""), "");
}

TEST(TextFile, ReadsUTF16WithAMark)
{
    EXPECT_EQ(textFromFileContents("\xFF\xFE\x41\x00\xE4\x00\x3D\xD8\x00\xDE"s), "Aä😀");
    EXPECT_EQ(textFromFileContents("\xFE\xFF\x00\x41\x00\xE4"s), "Aä");
    EXPECT_EQ(errorOf("\xFF\xFE\x41"s), "ill-formed UTF-16; save it as UTF-8");
    EXPECT_EQ(errorOf("\xFF\xFE\x00\xDC"s), "ill-formed UTF-16; save it as UTF-8");
    EXPECT_EQ(errorOf("\xFF\xFE\x3D\xD8\x41\x00"s), "ill-formed UTF-16; save it as UTF-8");
}

TEST(TextFile, RefusesWhatIsNoText)
{
    EXPECT_EQ(errorOf("ab\xE4z"), "not UTF-8 (byte 3); save it as UTF-8");
    EXPECT_EQ(errorOf("\x89PNG\r\n"), "not UTF-8 (byte 1); save it as UTF-8");
}

TEST_F(TextFileOnDisk, IsNeverBornAfterItsLastChange)
{
    const fs::path path = file("a.md");
    const timespec past{1'000'000'000, 123'456'000};
    const std::array<timespec, 2> times{past, past};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
    const TextFile read = readTextFile(path);
    EXPECT_EQ(iso8601String(read.modificationDate), "2001-09-09T01:46:40.123456Z");
    EXPECT_EQ(read.creationDate, read.modificationDate);
}

TEST_F(TextFileOnDisk, RefusesPipesFoldersAndHugeFilesAtOnce)
{
    const fs::path pipe = folder_ / "pipe.md";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THROW(readTextFile(pipe), TextFileError);
    EXPECT_THROW(readTextFile(folder_), TextFileError);
    EXPECT_THROW(readTextFile(folder_ / "none.md"), TextFileError);
    const fs::path huge = file("huge.md");
    fs::resize_file(huge, OVNote::maximumTextLength + 1);
    EXPECT_THROW(readTextFile(huge), TextFileError);
}

TEST_F(MarkdownFilesOnDisk, StandInTheOrderOfNamesFolderByFolder)
{
    for (const char* name : {"b.md", "a/z.MD", "a/c.markdown", "d.txt", "e.png", "f.md.bak", "ä.md", "a.md"})
        file(name);
    const MarkdownFiles found = markdownFilesAtPaths({folder_});
    EXPECT_EQ(namesIn(found), (std::vector<std::string>{"a/c.markdown", "a/z.MD", "a.md", "b.md", "d.txt", "ä.md"}));
    EXPECT_EQ(skippedIn(found), std::vector<std::string>{"e.png: a picture"});
    EXPECT_TRUE(found.failures.empty());
}

TEST_F(MarkdownFilesOnDisk, PassOverWhatIsHidden)
{
    for (const char* name : {".hidden.md", ".hidden.pdf", ".trash/a.md", "seen.md"})
        file(name);
    const MarkdownFiles found = markdownFilesAtPaths({folder_});
    EXPECT_EQ(namesIn(found), std::vector<std::string>{"seen.md"});
    EXPECT_EQ(skippedIn(found), (std::vector<std::string>{".hidden.md: hidden", ".trash: a hidden folder"}));
    EXPECT_EQ(markdownFilesAtPaths({folder_ / ".hidden.md"}).files.size(), 1U);
}

TEST_F(MarkdownFilesOnDisk, CountWhatIsNamedTwiceOnce)
{
    const fs::path path = file("a.md");
    fs::create_symlink(path, folder_ / "b.md");
    const MarkdownFiles found = markdownFilesAtPaths({path, folder_, folder_ / "." / "a.md"});
    EXPECT_EQ(namesIn(found), std::vector<std::string>{"a.md"});
    EXPECT_EQ(
        skippedIn(found), (std::vector<std::string>{"a.md: seen before", "b.md: seen before", "./a.md: seen before"}));
}

TEST_F(MarkdownFilesOnDisk, FollowLinksToFoldersWithoutGoingInCircles)
{
    file("in/a.md");
    fs::create_directory_symlink(folder_, folder_ / "in" / "circle");
    fs::create_directory_symlink(folder_ / "in", folder_ / "other");
    const MarkdownFiles found = markdownFilesAtPaths({folder_});
    EXPECT_EQ(namesIn(found), std::vector<std::string>{"in/a.md"});
    EXPECT_EQ(skippedIn(found), (std::vector<std::string>{"in/circle: seen before", "other: seen before"}));
}

TEST_F(MarkdownFilesOnDisk, AreNotTheAttachmentsBesideThem)
{
    for (const char* name : {"a.md", "a.assets/b.txt", "a.assets/in/c.md", "b.assets/d.md"})
        file(name);
    const MarkdownFiles found = markdownFilesAtPaths({folder_});
    EXPECT_EQ(namesIn(found), (std::vector<std::string>{"a.md", "b.assets/d.md"}));
    EXPECT_EQ(skippedIn(found),
        (std::vector<std::string>{
            "a.assets/b.txt: in a folder of attachments", "a.assets/in/c.md: in a folder of attachments"}));
}

TEST_F(MarkdownFilesOnDisk, ReportWhatIsNotThere)
{
    fs::create_symlink(folder_ / "nowhere", folder_ / "dangling.md");
    const MarkdownFiles found = markdownFilesAtPaths({folder_, folder_ / "missing"});
    ASSERT_EQ(found.failures.size(), 2U);
    EXPECT_EQ(found.failures[0].path, folder_ / "dangling.md");
    EXPECT_EQ(found.failures[1].path, folder_ / "missing");
}

} // namespace tarn
