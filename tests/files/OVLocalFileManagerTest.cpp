#include "tarnmodel/files/OVLocalFileManager.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class LocalFileManager : public testing::Test {
protected:
    LocalFileManager()
    {
        fs::create_directories(home_);
        world_.setHomeDirectory(home_);
        world_.setVariable("XDG_DATA_HOME", std::nullopt);
    }
    ~LocalFileManager() override
    {
        OVLocalFileManager::setApplicationPersistentDataTestURL(std::nullopt);
        OVLocalFileManager::setApplicationGroupURL(std::nullopt);
        OVLocalFileManager::setApplicationIdentity({});
        fs::remove_all(home_);
    }

    const fs::path home_ = fs::temp_directory_path() / ("tarn höme " + newUUIDString());
    const fs::path data_ = home_ / ".local" / "share";
    EnvironmentOverride world_;
};

TEST_F(LocalFileManager, HasFixedNamesOnDisk)
{
    EXPECT_EQ(OVNoteLocalFileDirectoryName, "Local Files");
    EXPECT_EQ(OVNoteThumbFileDirectoryName, "Thumbs");
}

TEST_F(LocalFileManager, SharesAFolderOfTheUsersData)
{
    EXPECT_EQ(OVLocalFileManager::applicationGroupURL(), data_ / "tarn");
    EXPECT_FALSE(fs::exists(data_)) << "asking makes nothing";

    world_.setVariable("XDG_DATA_HOME", (home_ / "xdg").string());
    EXPECT_EQ(OVLocalFileManager::applicationGroupURL(), home_ / "xdg" / "tarn");
    world_.setVariable("XDG_DATA_HOME", "relative");
    EXPECT_EQ(OVLocalFileManager::applicationGroupURL(), data_ / "tarn") << "a relative folder counts as none";
}

TEST_F(LocalFileManager, TakesAnotherGroupFromItsHost)
{
    OVLocalFileManager::setApplicationIdentity({.groupIdentifier = "group.notes", .bundleIdentifier = "app.notes"});
    EXPECT_EQ(OVLocalFileManager::applicationGroupURL(), data_ / "group.notes");
    EXPECT_EQ(OVLocalFileManager::applicationSupportURL(), data_ / "app.notes");

    OVLocalFileManager::setApplicationGroupURL(home_ / "chosen");
    EXPECT_EQ(OVLocalFileManager::applicationGroupURL(), home_ / "chosen");
    EXPECT_EQ(OVLocalFileManager::applicationPersistentDataURL(), home_ / "chosen" / "Application Data");
    OVLocalFileManager::setApplicationGroupURL(std::nullopt);
    EXPECT_EQ(OVLocalFileManager::applicationGroupURL(), data_ / "group.notes");
}

TEST_F(LocalFileManager, MakesThePersistentDataFolderForItsOwnerAlone)
{
    const fs::path folder = OVLocalFileManager::applicationPersistentDataURL();
    EXPECT_EQ(folder, data_ / "tarn" / "Application Data");
    ASSERT_TRUE(fs::is_directory(folder));
    for (const fs::path& made : {folder, folder.parent_path()})
        EXPECT_EQ(fs::status(made).permissions(), fs::perms::owner_all) << made;
    EXPECT_EQ(OVLocalFileManager::applicationPersistentDataURL(), folder) << "and finds it the next time";
}

TEST_F(LocalFileManager, LeavesFoldersThatAreThereAsTheyAre)
{
    const fs::path folder = data_ / "tarn" / "Application Data";
    fs::create_directories(folder);
    fs::permissions(folder, fs::perms::owner_all | fs::perms::group_read);
    OVLocalFileManager::applicationPersistentDataURL();
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all | fs::perms::group_read);
}

TEST_F(LocalFileManager, NamesAFolderThatCannotBeMade)
{
    std::ofstream(home_ / ".local") << "a file";
    EXPECT_EQ(OVLocalFileManager::applicationPersistentDataURL(), data_ / "tarn" / "Application Data");
    EXPECT_EQ(OVLocalFileManager::applicationSupportURL(), data_ / "TarnModel");
}

TEST_F(LocalFileManager, PutsTheTestFolderInPlaceOfThePersistentData)
{
    const fs::path folder = home_ / "test root";
    OVLocalFileManager::setApplicationPersistentDataTestURL(folder);
    EXPECT_EQ(OVLocalFileManager::applicationPersistentDataURL(), folder);
    EXPECT_FALSE(fs::exists(folder)) << "as it is, never made";
    EXPECT_FALSE(fs::exists(data_));

    OVLocalFileManager::setApplicationPersistentDataTestURL(std::nullopt);
    EXPECT_EQ(OVLocalFileManager::applicationPersistentDataURL(), data_ / "tarn" / "Application Data");
}

TEST_F(LocalFileManager, KeepsWhatIsTheApplicationsOwnOutsideTheGroup)
{
    const fs::path folder = OVLocalFileManager::applicationSupportURL();
    EXPECT_EQ(folder, data_ / "TarnModel");
    EXPECT_TRUE(fs::is_directory(folder));
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
}

} // namespace
} // namespace tarn
