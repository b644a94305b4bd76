#include "tarnmodel/store/MigrationSpaceInternal.h"

#include "tarnmodel/platform/foundation/system/Environment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::HasSubstr;

constexpr std::uintmax_t kMegabyte = 1'000'000;

TEST(MigrationSpace, HasRoomForANewStoreOfEachStep)
{
    const auto one = MigrationSpace::forStore(100 * kMegabyte, 1, false);
    EXPECT_EQ(one.besideStore, 151 * kMegabyte);
    EXPECT_EQ(one.forBackups, 0U) << "a second name takes no room";
    const auto two = MigrationSpace::forStore(100 * kMegabyte, 2, false);
    EXPECT_EQ(two.besideStore, 302 * kMegabyte) << "the store between the steps is kept as well";
}

TEST(MigrationSpace, HasRoomForBackupsOnAnotherDisk)
{
    const auto one = MigrationSpace::forStore(100 * kMegabyte, 1, true);
    EXPECT_EQ(one.besideStore, 151 * kMegabyte);
    EXPECT_EQ(one.forBackups, 100 * kMegabyte);
    const auto two = MigrationSpace::forStore(100 * kMegabyte, 2, true);
    EXPECT_EQ(two.besideStore, 151 * kMegabyte) << "what was backed up is gone from here";
    EXPECT_EQ(two.forBackups, 251 * kMegabyte);
}

TEST(MigrationSpace, IsComparedWithWhatIsThere)
{
    EnvironmentOverride world;
    NSError error;
    world.setAvailableSpace(1'000);
    EXPECT_TRUE(hasSpace(1'000, "/some folder", &error));
    EXPECT_TRUE(hasSpace(0, "/some folder", &error));
    EXPECT_FALSE(hasSpace(1'001, "/some folder", &error));
    EXPECT_EQ(error,
        NSError("Kelpa", 8002,
            "The migration of the store needs 1.0 kB in \"/some folder\", where 1.0 kB are left; nothing was written"));
    world.setAvailableSpace(std::nullopt);
    EXPECT_TRUE(hasSpace(1'001, "/some folder", &error));
}

TEST(MigrationSpace, IsToldInSizesThatPeopleRead)
{
    EnvironmentOverride world;
    world.setAvailableSpace(999);
    for (const auto& [bytes, text] :
        {std::pair(std::uintmax_t{1'049}, "needs 1.0 kB in"), std::pair(std::uintmax_t{1'050}, "needs 1.1 kB in"),
            std::pair(std::uintmax_t{999'949}, "needs 999.9 kB in"),
            std::pair(std::uintmax_t{999'950}, "needs 1.0 MB in"),
            std::pair(std::uintmax_t{12'345'678}, "needs 12.3 MB in"),
            std::pair(std::uintmax_t{7'000'000'000}, "needs 7.0 GB in"),
            std::pair(std::uintmax_t{7'000'000'000'000'000}, "needs 7.0 PB in")}) {
        NSError error;
        EXPECT_FALSE(hasSpace(bytes, "/", &error));
        EXPECT_THAT(error.localizedDescription(), HasSubstr(text));
        EXPECT_THAT(error.localizedDescription(), HasSubstr("where 999 bytes are left"));
    }
}

} // namespace
} // namespace tarn
