#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace tarn;

namespace {

TEST(NSUUID, MakesRandomIdentifiersOfVersionFour)
{
    EnvironmentOverride world;
    world.setRandomBytes([](std::span<std::byte> bytes) { std::fill(bytes.begin(), bytes.end(), std::byte{0xFF}); });
    EXPECT_EQ(newUUIDString(), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
    world.setRandomBytes([](std::span<std::byte> bytes) { std::fill(bytes.begin(), bytes.end(), std::byte{0}); });
    EXPECT_EQ(newUUIDString(), "00000000-0000-4000-8000-000000000000");
}

TEST(NSUUID, MakesAnotherIdentifierEachTime)
{
    std::set<std::string> seen;
    for (int round = 0; round < 1'000; ++round) {
        const std::string identifier = newUUIDString();
        EXPECT_TRUE(isUUIDString(identifier));
        EXPECT_TRUE(seen.insert(identifier).second);
    }
}

TEST(NSUUID, KnowsItsForm)
{
    EXPECT_TRUE(isUUIDString("01234567-89AB-CDEF-0123-456789abcdef"));
    for (const char* text : {"", "0123456789ABCDEF0123456789ABCDEF", "01234567-89AB-CDEF-0123-456789ABCDE",
             "01234567-89AB-CDEF-0123-456789ABCDEFF", "01234567_89AB-CDEF-0123-456789ABCDEF",
             "0123456G-89AB-CDEF-0123-456789ABCDEF", "{1234567-89AB-CDEF-0123-456789ABCDE}",
             "0123456-789AB-CDEF-0123-456789ABCDEF"})
        EXPECT_FALSE(isUUIDString(text)) << text;
}

TEST(NSUUID, TurnsIntoBytesAndBack)
{
    const std::string text = "01234567-89AB-CDEF-0123-456789ABCDEF";
    const auto bytes = bytesOfUUIDString("01234567-89ab-cdef-0123-456789abcdef");
    ASSERT_TRUE(bytes);
    EXPECT_EQ((*bytes)[1], std::byte{0x23});
    EXPECT_EQ(uuidString(*bytes), text);
    EXPECT_EQ(bytesOfUUIDString("no"), std::nullopt);
}

} // namespace
