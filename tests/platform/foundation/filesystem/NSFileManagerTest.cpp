#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tests/platform/foundation/filesystem/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <vector>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

class Files : public testing::Test, protected ScratchFolder { };

struct stat stateOf(const fs::path& file)
{
    struct stat state { };
    EXPECT_EQ(::lstat(file.c_str(), &state), 0) << file;
    return state;
}

TEST_F(Files, AreCopiedWithTheirDateForTheirOwnerAlone)
{
    const fs::path source = write("a", "bytes");
    fs::last_write_time(source, fs::file_time_type::clock::now() - std::chrono::hours(1000));
    fs::permissions(source, fs::perms::all);
    NSError error;
    ASSERT_TRUE(NSFileManager::copyItemAtURL(source, folder() / "b", &error)) << error;
    EXPECT_EQ(read("b"), "bytes");
    EXPECT_EQ(fs::last_write_time(folder() / "b"), fs::last_write_time(source));
    EXPECT_EQ(stateOf(folder() / "b").st_mode & 0777U, 0600U);
    EXPECT_NE(stateOf(folder() / "b").st_ino, stateOf(source).st_ino) << "not a second name of the same file";
}

TEST_F(Files, AreNeverCovered)
{
    write("a", "one");
    write("b", "two");
    fs::create_symlink("nowhere", folder() / "link");
    NSError error;
    EXPECT_FALSE(NSFileManager::copyItemAtURL(folder() / "a", folder() / "b", &error));
    EXPECT_EQ(error.domain(), NSPOSIXErrorDomain);
    EXPECT_EQ(error.code(), EEXIST);
    EXPECT_THAT(error.localizedDescription(), HasSubstr((folder() / "b").string()));
    EXPECT_FALSE(NSFileManager::moveItemAtURL(folder() / "a", folder() / "b", &error));
    EXPECT_EQ(error.code(), EEXIST);
    EXPECT_FALSE(NSFileManager::createFileAtURL(folder() / "b", NSData::fromText("three"), &error));
    EXPECT_FALSE(NSFileManager::copyItemAtURL(folder() / "a", folder() / "link", &error))
        << "a dangling link is a name";
    EXPECT_EQ(read("a"), "one");
    EXPECT_EQ(read("b"), "two");
    EXPECT_THAT(names(), ElementsAre("a", "b", "link")) << "nothing unfinished is left";
}

TEST_F(Files, AreMadePieceByPiece)
{
    int pieces = 0;
    const auto nextPiece = [&](std::span<std::byte> buffer) -> std::optional<std::size_t> {
        std::ranges::fill(buffer, std::byte('a' + pieces));
        return ++pieces == 3 ? 0 : std::size_t{2};
    };
    EXPECT_TRUE(NSFileManager::createFileAtURL(folder() / "a", nextPiece));
    EXPECT_EQ(read("a"), "aabb");
    NSError error;
    EXPECT_FALSE(NSFileManager::createFileAtURL(folder() / "a", nextPiece, &error));
    EXPECT_EQ(error.code(), EEXIST);
}

TEST_F(Files, AreNotThereWhenTheirPiecesEndEarly)
{
    bool hasBegun = false;
    const auto nextPiece = [&](std::span<std::byte>) -> std::optional<std::size_t> {
        return std::exchange(hasBegun, true) ? std::nullopt : std::optional<std::size_t>(2);
    };
    NSError error("mine", 1, "");
    EXPECT_FALSE(NSFileManager::createFileAtURL(folder() / "a", nextPiece, &error));
    EXPECT_EQ(error.domain(), "mine") << "who gave up knows why";
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(Files, AreSaidToBeMissing)
{
    NSError error;
    EXPECT_FALSE(NSFileManager::copyItemAtURL(folder() / "a", folder() / "b", &error));
    EXPECT_EQ(error.code(), ENOENT);
    EXPECT_THAT(error.localizedDescription(), HasSubstr((folder() / "a").string()));
    EXPECT_FALSE(NSFileManager::moveItemAtURL(folder() / "a", folder() / "b", &error));
    EXPECT_FALSE(NSFileManager::attributesOfItemAtURL(folder() / "a", &error));
    EXPECT_EQ(error.code(), ENOENT);
    EXPECT_TRUE(NSFileManager::removeItemAtURL(folder() / "a")) << "it is not there afterwards";
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(Files, ThatAreNoneAreRefused)
{
    ASSERT_EQ(::mkfifo((folder() / "pipe").c_str(), 0600), 0);
    NSError error;
    EXPECT_FALSE(NSFileManager::copyItemAtURL(folder() / "pipe", folder() / "b", &error)) << "and nobody waits";
    EXPECT_THAT(error.localizedDescription(), HasSubstr("neither a file nor a folder"));
    EXPECT_FALSE(NSFileManager::copyItemAtURL("/dev/zero", folder() / "b", &error));
    EXPECT_THAT(names(), ElementsAre("pipe"));
}

TEST_F(Files, KeepTheirHoles)
{
    const fs::path source = write("sparse", "begin");
    constexpr std::uintmax_t size = std::uintmax_t{1} << 32;
    fs::resize_file(source, size);
    ASSERT_TRUE(NSFileManager::copyItemAtURL(source, folder() / "copy"));
    EXPECT_EQ(fs::file_size(folder() / "copy"), size);
    EXPECT_LT(stateOf(folder() / "copy").st_blocks, 1000) << "of 512 bytes";
    std::ifstream copy(folder() / "copy", std::ios::binary);
    std::string beginning(6, 'x');
    copy.read(beginning.data(), 6);
    EXPECT_EQ(beginning, std::string("begin\0", 6));
}

TEST_F(Files, OfAnySizeAreCopiedToTheLastByte)
{
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 1'000'003U}) {
        std::string bytes(size, '\0');
        for (std::size_t at = 0; at < size; ++at)
            bytes[at] = static_cast<char>(at * 2'654'435'761U >> 13U);
        const fs::path source = write("a", bytes);
        fs::remove(folder() / "b");
        ASSERT_TRUE(NSFileManager::copyItemAtURL(source, folder() / "b"));
        EXPECT_TRUE(read("b") == bytes) << size;
        EXPECT_TRUE(NSFileManager::contentsEqualAtURLs(source, folder() / "b"));
    }
}

TEST_F(Files, OfEqualBytesAreEqual)
{
    write("a", "same");
    write("b", "same");
    write("c", "sane");
    write("d", "same!");
    const auto areEqual = [&](const char* one, const char* other) {
        return NSFileManager::contentsEqualAtURLs(folder() / one, folder() / other);
    };
    EXPECT_TRUE(areEqual("a", "b"));
    EXPECT_FALSE(areEqual("a", "c"));
    EXPECT_FALSE(areEqual("a", "d"));
    EXPECT_FALSE(areEqual("a", "missing"));
    EXPECT_FALSE(areEqual("missing", "missing"));
    EXPECT_FALSE(NSFileManager::contentsEqualAtURLs(folder(), folder())) << "folders are none";
}

TEST_F(Files, InAFolderAreCopiedWithIt)
{
    fs::create_directories(folder() / "tree" / "deep");
    write("tree/a", "one");
    write("tree/deep/b", "two");
    fs::create_symlink("../a", folder() / "tree" / "deep" / "link");
    NSError error;
    ASSERT_TRUE(NSFileManager::copyItemAtURL(folder() / "tree", folder() / "copy", &error)) << error;
    EXPECT_EQ(read("copy/a"), "one");
    EXPECT_EQ(read("copy/deep/b"), "two");
    EXPECT_EQ(fs::read_symlink(folder() / "copy" / "deep" / "link"), "../a");
    EXPECT_EQ(stateOf(folder() / "copy" / "deep").st_mode & 0777U, 0700U);
    ASSERT_EQ(::mkfifo((folder() / "tree" / "deep" / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(NSFileManager::copyItemAtURL(folder() / "tree", folder() / "other", &error));
    EXPECT_THAT(names(), ElementsAre("copy", "tree")) << "whole or not at all";
}

TEST_F(Files, BehindALinkAreCopiedThemselves)
{
    write("a", "one");
    fs::create_symlink("a", folder() / "link");
    ASSERT_TRUE(NSFileManager::copyItemAtURL(folder() / "link", folder() / "copy"));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder() / "copy")));
    EXPECT_EQ(read("copy"), "one");
    EXPECT_TRUE(NSFileManager::removeItemAtURL(folder() / "link"));
    EXPECT_EQ(read("a"), "one") << "what it led to stays";
}

TEST_F(Files, AreReplacedInOneStepAndKept)
{
    write("a", "old");
    write("new", "new");
    NSError error;
    ASSERT_TRUE(NSFileManager::replaceItemAtURL(folder() / "a", folder() / "new", folder() / "aside", &error)) << error;
    EXPECT_EQ(read("a"), "new");
    EXPECT_EQ(read("aside"), "old");
    EXPECT_THAT(names(), ElementsAre("a", "aside"));

    EXPECT_FALSE(NSFileManager::replaceItemAtURL(folder() / "a", folder() / "missing", folder() / "other", &error));
    EXPECT_EQ(read("a"), "new");
    EXPECT_THAT(names(), ElementsAre("a", "aside"));

    fs::create_directory(folder() / "tree");
    write("tree/x", "old");
    fs::create_directory(folder() / "other");
    write("other/x", "new");
    ASSERT_TRUE(
        NSFileManager::replaceItemAtURL(folder() / "tree", folder() / "other", folder() / "tree aside", &error));
    EXPECT_EQ(read("tree/x"), "new");
    EXPECT_EQ(read("tree aside/x"), "old");
}

TEST_F(Files, SayTheirSizeAndDates)
{
    write("a", "12345");
    const auto attributes = NSFileManager::attributesOfItemAtURL(folder() / "a");
    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->size, 5);
    EXPECT_FALSE(attributes->isFolder);
    const auto seconds = stateOf(folder() / "a").st_mtim.tv_sec;
    EXPECT_EQ(attributes->modificationDate.microsecondsSince1970() / 1'000'000, seconds);
    EXPECT_TRUE(NSFileManager::attributesOfItemAtURL(folder())->isFolder);
}

TEST_F(Files, AreMadeDurableOneByOneOrAllAtOnce)
{
    std::vector<fs::path> files{folder()};
    NSError error;
    for (int number = 0; number < 20; ++number) {
        files.push_back(write(std::to_string(number), "x"));
        EXPECT_TRUE(NSFileManager::synchronizeItemsAtURLs(files, &error)) << error;
    }
    files.push_back(folder() / "missing");
    EXPECT_FALSE(NSFileManager::synchronizeItemsAtURLs(files, &error));
    EXPECT_FALSE(NSFileManager::synchronizeItemsAtURLs(std::span(files).last(1), &error));
    EXPECT_EQ(error.code(), ENOENT);
}

TEST_F(Files, LieOnOneFileSystemOrOnTwo)
{
    EXPECT_TRUE(NSFileManager::areOnOneFileSystem(folder() / "not" / "there", folder()));
    EXPECT_FALSE(NSFileManager::areOnOneFileSystem(folder(), "/proc"));
    EXPECT_FALSE(NSFileManager::areOnOneFileSystem(folder(), "/proc/not/there"));
}

} // namespace
} // namespace tarn
