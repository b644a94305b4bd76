#include "tarnmodel/platform/coredata/memory/SnapshotMap.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <vector>

namespace tarn {
namespace {

TEST(SnapshotMap, IsTheMapThatItWouldBeWithoutSharing)
{
    std::mt19937_64 random(7);
    SnapshotMap<int> map;
    std::map<std::int64_t, int> plain;
    std::vector<std::pair<SnapshotMap<int>, std::map<std::int64_t, int>>> snapshots;
    for (int i = 0; i < 3000; ++i) {
        const auto key = static_cast<std::int64_t>(random() % 400) - 50;
        if (random() % 3 == 0) {
            map.erase(key);
            plain.erase(key);
        } else {
            map[key] = i;
            plain[key] = i;
        }
        if (i % 250 == 0)
            snapshots.emplace_back(map, plain);
    }
    snapshots.emplace_back(map, plain);
    for (const auto& [snapshot, expected] : snapshots) {
        std::vector<std::pair<std::int64_t, int>> found;
        snapshot.forEach([&](std::int64_t key, int value) { found.emplace_back(key, value); });
        EXPECT_EQ(found, (std::vector<std::pair<std::int64_t, int>>(expected.begin(), expected.end())));
        EXPECT_EQ(snapshot.size(), expected.size());
        EXPECT_EQ(snapshot.isEmpty(), expected.empty());
    }
}

TEST(SnapshotMap, FindsNothingWhereNothingIs)
{
    SnapshotMap<int> map;
    EXPECT_EQ(map.find(3), nullptr);
    map[64] = 1;
    EXPECT_EQ(map.find(65), nullptr);
    ASSERT_NE(map.find(64), nullptr);
    map.erase(63);
    map.erase(64);
    EXPECT_TRUE(map.isEmpty());
}

} // namespace
} // namespace tarn
