#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"

#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class PrivateFolder : public testing::Test {
protected:
    PrivateFolder() { fs::create_directories(root_); }
    ~PrivateFolder() override { fs::remove_all(root_); }

    const fs::path root_ = fs::temp_directory_path() / ("tarn földer " + newUUIDString());
};

TEST_F(PrivateFolder, IsMadeWithAllAboveItForItsOwnerAlone)
{
    EXPECT_FALSE(createPrivateFolder(root_ / "a" / "b"));
    for (const fs::path& made : {root_ / "a", root_ / "a" / "b"})
        EXPECT_EQ(fs::status(made).permissions(), fs::perms::owner_all) << made;
}

TEST_F(PrivateFolder, StaysAsItIsWhenItIsThere)
{
    fs::permissions(root_, fs::perms(0755));
    EXPECT_FALSE(createPrivateFolder(root_));
    EXPECT_EQ(fs::status(root_).permissions(), fs::perms(0755));
}

TEST_F(PrivateFolder, IsAnErrorWhereAFileHasItsName)
{
    std::ofstream(root_ / "file") << "x";
    EXPECT_EQ(createPrivateFolder(root_ / "file"), std::errc::not_a_directory);
    EXPECT_EQ(createPrivateFolder(root_ / "file" / "below"), std::errc::not_a_directory);
}

} // namespace
} // namespace tarn
