#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/files/thumbnails/SHA1.h"
#include "tarnmodel/model/RecordClasses.h"
#include "tarnmodel/model/Resources.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

namespace tarn {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A folder of resources in place of the library's own.
class ManagedObjectModel : public testing::Test {
protected:
    void SetUp() override { fs::create_directories(folder_ / "Model.momd"); }
    void TearDown() override { fs::remove_all(folder_); }

    void write(const fs::path& name, std::string_view text) const
    {
        std::ofstream(folder_ / "Model.momd" / name, std::ios::binary) << text;
    }
    void useFolder() { world_.setVariable("TARN_RESOURCES", folder_.string()); }

    fs::path folder_ = fs::temp_directory_path() / ("tarn resources ü " + newUUIDString());
    EnvironmentOverride world_;
};

TEST_F(ManagedObjectModel, IsTheThirdVersion)
{
    NSError error;
    EXPECT_EQ(OVManagedObjectModel::currentVersion(&error), "Model 3") << error;
    auto model = OVManagedObjectModel::current(&error);
    ASSERT_TRUE(model) << error;
    EXPECT_EQ(model->versionIdentifier(), "Model 3");
}

TEST_F(ManagedObjectModel, IsReadOnce)
{
    EXPECT_EQ(OVManagedObjectModel::current(), OVManagedObjectModel::current());
}

TEST_F(ManagedObjectModel, GivesEveryEntityItsClass)
{
    for (const NSEntityDescription* entity : OVManagedObjectModel::current()->entities())
        EXPECT_NE(entity->recordConstructor(), nullptr) << entity->name();
}

TEST_F(ManagedObjectModel, KeepsItsEarlierVersions)
{
    for (const char* version : {"Model", "Model 2", "Model 3"}) {
        auto file = OVManagedObjectModel::modelURLForVersion(version);
        ASSERT_TRUE(file) << version;
        NSError error;
        auto model = NSManagedObjectModel::modelWithContentsOfFile(*file, &error);
        ASSERT_TRUE(model) << error;
        EXPECT_EQ(model->versionIdentifier(), version);
    }
    EXPECT_FALSE(OVManagedObjectModel::modelURLForVersion("Model 4"));
}

// Stores of these versions are in the hands of people: what their rows look like must never change.
TEST_F(ManagedObjectModel, NeverChangesAVersionThatWasShipped)
{
    struct Row {
        const char* version;
        const char* entity;
        const char* hash;
    };
    const Row rows[] = {
        {"Model", "OVNote", "579c4d2c26f50773"},
        {"Model", "OVNoteTag", "3ac77d0ce5196ec7"},
        {"Model", "OVNoteFile", "dccda2d5710a22fb"},
        {"Model 2", "OVNote", "12d7bbb9a59583ef"},
        {"Model 2", "OVNoteTag", "6c446db6ab7b4af8"},
        {"Model 2", "OVNoteFile", "dcbad0dec34579b1"},
        {"Model 3", "OVNote", "80805dc81628b7b1"},
        {"Model 3", "OVNoteTag", "3e1e5e4ae4689c9c"},
        {"Model 3", "OVNoteFile", "115157207e99bb6f"},
        {"Model 3", "OVNoteImage", "91d3367bfdf87012"},
    };
    for (const Row& row : rows) {
        auto model
            = NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion(row.version));
        ASSERT_TRUE(model);
        EXPECT_EQ(model->entityNamed(row.entity)->versionHash(), row.hash) << row.version << ' ' << row.entity;
    }
}

// Shipped, and never edited again: not what they say, nor how they say it. What has to change is a new version.
TEST_F(ManagedObjectModel, NeverChangesAFileThatWasShipped)
{
    const std::map<std::string, std::string> shipped{
        {"Model 2 to Model 3.mapping.json", "723cb153aba5c290441e441efcf8e89713fd5280"},
        {"Model 2.json", "63240adedfbb1dd254926b729afc63e84ec4c3b1"},
        {"Model 3.json", "4227b2035538db8346139e246074bf1171060655"},
        {"Model to Model 2.mapping.json", "d06fd54f64e107d014971d8429b796c5d627342f"},
        {"Model.json", "ee6e477fe003ffe6694e5cf1ab86e5543889c9e1"},
    };
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(*OVManagedObjectModel::modelURL()))
        files.emplace(entry.path().filename().string(), sha1OfFile(entry.path()).value_or("unreadable"));
    files.erase("VersionInfo.json"); // which names the latest
    EXPECT_EQ(files, shipped);
}

TEST_F(ManagedObjectModel, FitsItsRecordClassesInTheCurrentVersionOnly)
{
    auto file = OVManagedObjectModel::modelURLForVersion("Model 2");
    auto earlier = NSManagedObjectModel::modelWithContentsOfFile(*file);
    ASSERT_TRUE(earlier);
    EXPECT_EQ(entityOfOtherVersion(*earlier), "OVNote");
    EXPECT_EQ(entityOfOtherVersion(*OVManagedObjectModel::current()), std::nullopt);
}

TEST_F(ManagedObjectModel, IsRefusedWhenItIsNotTheOneTheClassesWereMadeFor)
{
    fs::copy_file(*OVManagedObjectModel::modelURLForVersion("Model 2"), folder_ / "Model.momd/Model 2.json");
    write("VersionInfo.json", R"({"current": "Model 2"})");
    useFolder();
    NSError error;
    EXPECT_FALSE(OVManagedObjectModel::current(&error));
    EXPECT_EQ(error.domain(), TarnStoreErrorDomain);
    EXPECT_THAT(
        error.localizedDescription(), HasSubstr("Model 2.json: \"OVNote\" is not what this library was built for"));
}

TEST_F(ManagedObjectModel, IsRefusedWhenItsPropertiesHaveOtherPlaces)
{
    std::ifstream stream(*OVManagedObjectModel::modelURLForVersion("Model 3"), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    const auto place = [&](std::string_view name) {
        const std::size_t begin = text.find("{\"name\": \"" + std::string(name) + "\"");
        return std::pair(begin, text.find('\n', begin) - begin);
    };
    const auto [title, titleLength] = place("title");
    const auto [subtitle, subtitleLength] = place("subtitle");
    ASSERT_LT(title, subtitle);
    const std::string titleLine = text.substr(title, titleLength);
    const std::string subtitleLine = text.substr(subtitle, subtitleLength);
    text.replace(subtitle, subtitleLength, titleLine);
    text.replace(title, titleLength, subtitleLine);
    write("Model 3.json", text);
    write("VersionInfo.json", R"({"current": "Model 3"})");

    NSError error;
    const auto reordered = NSManagedObjectModel::modelWithContentsOfFile(folder_ / "Model.momd/Model 3.json", &error);
    ASSERT_TRUE(reordered) << error;
    EXPECT_EQ(reordered->entityNamed("OVNote")->versionHash(),
        OVManagedObjectModel::current()->entityNamed("OVNote")->versionHash())
        << "its rows are the same";
    useFolder();
    EXPECT_FALSE(OVManagedObjectModel::current(&error)) << "setTitle would write the subtitle";
    EXPECT_THAT(error.localizedDescription(), HasSubstr("\"OVNote\" is not what this library was built for"));
}

TEST_F(ManagedObjectModel, MissesItsFilesWithAWord)
{
    useFolder();
    NSError error;
    EXPECT_FALSE(OVManagedObjectModel::current(&error));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("VersionInfo.json: names no current version"));

    write("VersionInfo.json", R"({"current": "Model 9"})");
    EXPECT_FALSE(OVManagedObjectModel::current(&error));
    EXPECT_EQ(error.localizedDescription(), "the model \"Model 9\" is missing");

    fs::remove_all(folder_ / "Model.momd");
    EXPECT_FALSE(OVManagedObjectModel::current(&error));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("Model.momd is missing"));
}

TEST_F(ManagedObjectModel, IsFoundAgainOnceItIsThere)
{
    const fs::path original = *OVManagedObjectModel::modelURL();
    useFolder();
    ASSERT_FALSE(OVManagedObjectModel::current());
    fs::copy(original, folder_ / "Model.momd", fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    NSError error;
    EXPECT_TRUE(OVManagedObjectModel::current(&error)) << error;
    EXPECT_EQ(OVManagedObjectModel::modelURL(), folder_ / "Model.momd");
}

TEST(Resources, AreLookedForInTheChosenFolderAlone)
{
    EnvironmentOverride world;
    EXPECT_TRUE(resourceNamed("Model.momd"));
    EXPECT_FALSE(resourceNamed("No such resource"));
    world.setVariable("TARN_RESOURCES", "/nowhere");
    EXPECT_FALSE(resourceNamed("Model.momd"));
    world.setVariable("TARN_RESOURCES", "");
    EXPECT_TRUE(resourceNamed("Model.momd"));
}

} // namespace
} // namespace tarn
