#include "tarnmodel/files/thumbnails/SHA1.h"

#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tarn {
namespace {

TEST(ASHA1, IsThatOfTheStandard)
{
    EXPECT_EQ(sha1OfBytes(""), "da39a3ee5e6b4b0d3255bfef95601890afd80709");
    EXPECT_EQ(sha1OfBytes("abc"), "a9993e364706816aba3e25717850c26c9cd0d89d");
    EXPECT_EQ(sha1OfBytes("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
        "84983e441c3bd26ebaae4aa1f95129e5e54670f1");
    EXPECT_EQ(sha1OfBytes(std::string(1'000'000, 'a')), "34aa973cd4c4daa4f61eeb2bdbad27316534016f");
}

TEST(ASHA1, OfAFileIsThatOfItsBytes)
{
    const std::filesystem::path file = std::filesystem::temp_directory_path() / ("tarn sum " + newUUIDString());
    for (const std::size_t size : {0, 1, 65'535, 65'536, 65'537, 200'000}) {
        const std::string bytes(size, 'a');
        std::ofstream(file, std::ios::binary) << bytes;
        EXPECT_EQ(sha1OfFile(file), sha1OfBytes(bytes)) << size;
    }
    std::filesystem::remove(file);
    EXPECT_EQ(sha1OfFile(file), std::nullopt);
    EXPECT_EQ(sha1OfFile(file.parent_path()), std::nullopt) << "a folder";
}

} // namespace
} // namespace tarn
