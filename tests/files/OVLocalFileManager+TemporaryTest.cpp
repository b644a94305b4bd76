#include "tarnmodel/files/OVLocalFileManager.h"

#include "tarnmodel/platform/foundation/filesystem/HeldFolder.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class TemporaryFiles : public testing::Test {
protected:
    TemporaryFiles()
    {
        fs::create_directories(folder_ / "shared");
        world_.setCacheDirectory(folder_ / "cache");
        world_.setTemporaryDirectory(folder_ / "shared");
        world_.setVariable("XDG_DATA_HOME", (folder_ / "data").string());
    }
    ~TemporaryFiles() override
    {
        OVLocalFileManager::setApplicationGroupURL(std::nullopt);
        fs::permissions(folder_ / "cache", fs::perms::owner_all, ignored_);
        fs::remove_all(folder_);
    }
    std::size_t processFolders() const
    {
        std::size_t count = 0;
        for (const auto& entry : fs::directory_iterator(items_))
            count += entry.path().filename().string().starts_with("Process.");
        return count;
    }

    std::error_code ignored_;
    const fs::path folder_ = fs::temp_directory_path() / ("tarn cäche " + newUUIDString());
    const fs::path items_ = folder_ / "cache" / "TarnModel" / "Temporary Items";
    EnvironmentOverride world_;
};

TEST_F(TemporaryFiles, LieInAFolderOfTheProcessBelowTheCacheFolder)
{
    const fs::path own = OVLocalFileManager::temporaryDirectoryURL();
    EXPECT_EQ(own.parent_path(), items_);
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(items_).permissions(), fs::perms::owner_all);
    EXPECT_TRUE(HeldFolder::isHeld(own));
    EXPECT_EQ(OVLocalFileManager::temporaryDirectoryURL(), own);
    EXPECT_TRUE(fs::is_empty(folder_ / "shared"));
    fs::remove_all(folder_ / "cache");
    EXPECT_TRUE(fs::is_directory(OVLocalFileManager::temporaryDirectoryURL())) << "made anew";
}

TEST_F(TemporaryFiles, HaveANewEmptyFolderEachTime)
{
    const fs::path one = OVLocalFileManager::temporaryUniqueDirectoryURL();
    const fs::path other = OVLocalFileManager::temporaryUniqueDirectoryPath();
    EXPECT_NE(one, other);
    EXPECT_THAT(one.filename().string(), testing::MatchesRegex("TarnTemp\\.......$"));
    EXPECT_TRUE(fs::is_empty(one));
    EXPECT_TRUE(fs::is_empty(other));
    EXPECT_EQ(fs::status(one).permissions(), fs::perms::owner_all);
}

TEST_F(TemporaryFiles, AreCopiedUnderTheirOwnName)
{
    std::ofstream(folder_ / "a.txt") << "text";
    const auto copy = OVLocalFileManager::copyFileURLToTemporaryDirectory(folder_ / "a.txt");
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->filename(), "a.txt");
    EXPECT_EQ(copy->parent_path().parent_path(), OVLocalFileManager::temporaryDirectoryURL());
    EXPECT_EQ(fs::file_size(*copy), 4U);
    EXPECT_EQ(OVLocalFileManager::copyFileURLToTemporaryDirectory(folder_ / "missing"), std::nullopt);
    EXPECT_EQ(OVLocalFileManager::copyFileURLToTemporaryDirectory(std::nullopt), std::nullopt);
}

TEST_F(TemporaryFiles, AreDeletedWithoutTouchingWhatOthersHave)
{
    std::ofstream(folder_ / "shared" / "stranger") << "of another program";
    const fs::path own = OVLocalFileManager::temporaryDirectoryURL();
    std::ofstream(own / ".hidden") << "x";
    OVLocalFileManager::temporaryUniqueDirectoryURL();
    const auto living = HeldFolder::makeIn(items_, "Process.");
    std::ofstream(living->path() / "in use") << "x";
    HeldFolder::makeIn(items_, "Process."); // nobody holds it any more
    ASSERT_EQ(processFolders(), 3U);

    OVLocalFileManager::removeAbandonedTemporaryDirectories();
    EXPECT_EQ(processFolders(), 2U);
    EXPECT_FALSE(fs::is_empty(own));

    OVLocalFileManager::deleteTemporaryDirectoryContent();
    EXPECT_TRUE(fs::is_empty(own));
    EXPECT_EQ(OVLocalFileManager::temporaryDirectoryURL(), own);
    EXPECT_TRUE(fs::exists(living->path() / "in use"));
    EXPECT_TRUE(fs::exists(folder_ / "shared" / "stranger"));
}

TEST_F(TemporaryFiles, LieBesideTheStoreWhereTheCacheIsOnAnotherDisk)
{
    if (!fs::is_directory("/dev/shm"))
        GTEST_SKIP() << "there is one file system only";
    const fs::path group = fs::path("/dev/shm") / ("tarn " + newUUIDString());
    OVLocalFileManager::setApplicationGroupURL(group);
    EXPECT_EQ(OVLocalFileManager::temporaryDirectoryURL().parent_path(), group / "Caches" / "Temporary Items");
    fs::remove_all(group);
}

TEST_F(TemporaryFiles, LieInTheSharedFolderWhereThereCanBeNoCache)
{
    std::ofstream(folder_ / "cache") << "a file, not a folder";
    const fs::path own = OVLocalFileManager::temporaryDirectoryURL();
    EXPECT_EQ(own.parent_path(), folder_ / "shared");
    EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    EXPECT_TRUE(HeldFolder::isHeld(own));
}

} // namespace
} // namespace tarn
