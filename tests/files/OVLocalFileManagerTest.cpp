#include "tarnmodel/files/OVLocalFileManager.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <gtest/gtest.h>

#include <cerrno>
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

// One folder of attachments -------------------------------------------------------------------------------------------

class AttachmentFolders : public LocalFileManager {
protected:
    AttachmentFolders()
    {
        OVLocalFileManager::setApplicationPersistentDataTestURL(home_ / "test");
        manager_ = OVLocalFileManager::localFileManagerForPathComponent("Area/Kind");
    }

    fs::path aFile(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(home_ / name) << bytes;
        return home_ / name;
    }
    std::shared_ptr<OVLocalFileManager> manager_;
};

TEST_F(LocalFileManager, IsOneForEachComponent)
{
    const auto manager = OVLocalFileManager::localFileManagerForPathComponent("Local Files/Note Files");
    EXPECT_EQ(OVLocalFileManager::localFileManagerForPathComponent("Local Files/Note Files"), manager);
    EXPECT_NE(OVLocalFileManager::localFileManagerForPathComponent("Local Files/Note Images"), manager);
    EXPECT_EQ(manager->baseURL(), data_ / "tarn" / "Application Data" / "Local Files" / "Note Files");
    EXPECT_TRUE(fs::is_directory(manager->baseURL()));
    OVLocalFileManager::setApplicationGroupURL(home_ / "other");
    EXPECT_EQ(OVLocalFileManager::localFileManagerForPathComponent("Local Files/Note Files")->baseURL(),
        home_ / "other" / "Application Data" / "Local Files" / "Note Files")
        << "not the one from before";
    EXPECT_EQ(OVLocalFileManager::initWithBaseURL(""), nullptr);
}

TEST_F(AttachmentFolders, HaveANewManagerEachTimeWhileThereIsATestFolder)
{
    EXPECT_EQ(OVLocalFileManager::applicationPersistentDataURL(), home_ / "test");
    EXPECT_EQ(manager_->baseURL(), home_ / "test" / "Area" / "Kind");
    EXPECT_TRUE(fs::is_directory(manager_->baseURL())) << "made with what is around it";
    EXPECT_NE(OVLocalFileManager::localFileManagerForPathComponent("Area/Kind"), manager_);
    OVLocalFileManager::setApplicationPersistentDataTestURL(home_ / "next");
    EXPECT_EQ(OVLocalFileManager::localFileManagerForPathComponent("Area/Kind")->baseURL(), home_ / "next/Area/Kind");
}

TEST_F(AttachmentFolders, AreMadeOneByOneForTheirOwnerAlone)
{
    NSError error;
    const auto folder = manager_->getOrCreateFolderForUniqueID("ID", &error);
    ASSERT_TRUE(folder) << error;
    EXPECT_EQ(*folder, manager_->baseURL() / "ID");
    EXPECT_EQ(fs::status(*folder).permissions(), fs::perms::owner_all);
    EXPECT_EQ(manager_->getOrCreateFolderForUniqueID("ID"), folder);
    std::ofstream(manager_->baseURL() / "plain") << "file";
    EXPECT_TRUE(manager_->getOrCreateFolderForUniqueID("plain")) << "what has the name is taken as the folder";
    fs::remove_all(manager_->baseURL());
    EXPECT_FALSE(manager_->getOrCreateFolderForUniqueID("ID", &error)) << "what is around it is never made";
    EXPECT_EQ(error.domain(), NSPOSIXErrorDomain);
}

TEST_F(AttachmentFolders, KeepNamesAndIdentifiersWithinThem)
{
    EXPECT_EQ(manager_->fileURLForUniqueID("ID", "not there.png"), manager_->baseURL() / "ID" / "not there.png");
    EXPECT_EQ(manager_->fileURLForUniqueID("..", "../../x"), manager_->baseURL() / "_" / ".._.._x");
    EXPECT_EQ(manager_->fileURLForUniqueID("/etc", "/passwd"), manager_->baseURL() / "_etc" / "_passwd");
    EXPECT_EQ(manager_->fileURLForUniqueID("", ""), manager_->baseURL() / "_" / "_");
}

TEST_F(AttachmentFolders, TakeCopiesAndFilesThemselves)
{
    NSError error;
    const auto copy = manager_->copyFileAtURL(aFile("a", "one"), "ID", "copy", &error);
    EXPECT_EQ(copy, manager_->baseURL() / "ID" / "copy") << error;
    EXPECT_TRUE(fs::exists(home_ / "a"));
    EXPECT_EQ(manager_->moveFileAtURL(home_ / "a", "ID", "moved", &error), manager_->baseURL() / "ID" / "moved");
    EXPECT_FALSE(fs::exists(home_ / "a"));

    EXPECT_FALSE(manager_->copyFileAtURL(aFile("b", "two"), "ID", "copy", &error)) << "nothing is covered";
    EXPECT_EQ(error.code(), EEXIST);
    EXPECT_FALSE(manager_->moveFileAtURL(home_ / "b", "ID", "copy", &error));
    EXPECT_TRUE(fs::exists(home_ / "b"));
    EXPECT_FALSE(manager_->copyFileAtURL(home_ / "missing", "NEW", "x", &error));
    EXPECT_FALSE(fs::exists(manager_->baseURL() / "NEW")) << "a folder that was made in vain goes";
    EXPECT_FALSE(manager_->copyFileAtURL(home_ / "missing", "ID", "x", &error));
    EXPECT_TRUE(fs::exists(manager_->baseURL() / "ID" / "copy"));
}

TEST_F(AttachmentFolders, AreDeletedWithAllThatIsInThem)
{
    ASSERT_TRUE(manager_->copyFileAtURL(aFile("a", "one"), "ID", "a"));
    manager_->deleteFileForUniqueID(std::nullopt);
    manager_->deleteFileForUniqueID("unknown");
    EXPECT_TRUE(fs::exists(manager_->baseURL() / "ID" / "a"));
    manager_->deleteFileForUniqueID("ID");
    EXPECT_FALSE(fs::exists(manager_->baseURL() / "ID"));
    EXPECT_TRUE(fs::exists(manager_->baseURL()));
}

} // namespace
} // namespace tarn
