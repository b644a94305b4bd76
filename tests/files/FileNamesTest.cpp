#include "tarnmodel/files/FileNames.h"

#include <gtest/gtest.h>

#include <random>

namespace tarn {
namespace {

TEST(FileNames, StayWithinTheirFolder)
{
    EXPECT_EQ(fileNameWithinFolder("a.png"), "a.png");
    EXPECT_EQ(fileNameWithinFolder(" Brücke, ガ & 😀.jpeg "), " Brücke, ガ & 😀.jpeg ");
    EXPECT_EQ(fileNameWithinFolder(""), "_");
    EXPECT_EQ(fileNameWithinFolder("."), "_");
    EXPECT_EQ(fileNameWithinFolder(".."), "_");
    EXPECT_EQ(fileNameWithinFolder("..."), "...");
    EXPECT_EQ(fileNameWithinFolder("../../etc/passwd"), ".._.._etc_passwd");
    EXPECT_EQ(fileNameWithinFolder("/"), "_");
    EXPECT_EQ(fileNameWithinFolder(std::string_view("a\0b\nc\x7F.txt", 10)), "a_b_c_.txt");
    EXPECT_EQ(fileNameWithinFolder("a\u0085b\u009Fc\u00A0"), "a_b_c\u00A0");
    EXPECT_EQ(fileNameWithinFolder("a\xFF.txt"), "a\uFFFD.txt");
}

TEST(FileNames, AreCutBetweenCharactersAndKeepTheirExtension)
{
    EXPECT_EQ(fileNameWithinFolder(std::string(255, 'a')), std::string(255, 'a'));
    EXPECT_EQ(fileNameWithinFolder(std::string(256, 'a')), std::string(255, 'a'));
    EXPECT_EQ(fileNameWithinFolder(std::string(300, 'a') + ".jpeg"), std::string(250, 'a') + ".jpeg");
    std::string wide;
    for (int count = 0; count < 100; ++count)
        wide += "ガ";
    const std::string cut = fileNameWithinFolder(wide + ".png");
    EXPECT_EQ(cut, wide.substr(0, 249) + ".png") << "83 characters of three bytes";
    EXPECT_EQ(fileNameWithinFolder("a." + std::string(300, 'b')), "a." + std::string(253, 'b')) << "no extension";
}

TEST(FileNames, OnceWithinTheirFolderDoNotChange)
{
    std::mt19937 random(7);
    for (int round = 0; round < 2'000; ++round) {
        std::string name(random() % 400, '\0');
        for (char& byte : name)
            byte = static_cast<char>(random() % 3 == 0 ? random() : "./ab\xC3\xA9"[random() % 6]);
        const std::string safe = fileNameWithinFolder(name);
        ASSERT_EQ(fileNameWithinFolder(safe), safe);
        ASSERT_LE(safe.size(), 255U);
        ASSERT_EQ(safe.find_first_of(std::string_view("/\0\n", 3)), std::string::npos);
    }
}

TEST(FileNames, CountUp)
{
    EXPECT_EQ(filepathWithIncreasedNumberCount("a.png"), "a (2).png");
    EXPECT_EQ(filepathWithIncreasedNumberCount("a (2).png"), "a (3).png");
    EXPECT_EQ(filepathWithIncreasedNumberCount("a (9).tar.gz"), "a (9).tar (2).gz");
    EXPECT_EQ(filepathWithIncreasedNumberCount("README"), "README (2)");
    EXPECT_EQ(filepathWithIncreasedNumberCount(".hidden"), ".hidden (2)");
    EXPECT_EQ(filepathWithIncreasedNumberCount("IMG 2023.png"), "IMG 2023 (2).png") << "a year is no counter";
    EXPECT_EQ(filepathWithIncreasedNumberCount("a (1).png"), "a (1) (2).png") << "none of ours";
    EXPECT_EQ(filepathWithIncreasedNumberCount("a (02).png"), "a (02) (2).png");
    EXPECT_EQ(filepathWithIncreasedNumberCount("a (999999999).png"), "a (999999999) (2).png");
    EXPECT_EQ(filepathWithIncreasedNumberCount(" (2).png"), " (2) (2).png");
}

TEST(FileNames, CountUpAlsoWhenTheyAreLong)
{
    std::string name = fileNameWithinFolder(std::string(300, 'a') + ".png");
    for (int count = 2; count < 120; ++count) {
        const std::string next = fileNameWithinFolder(filepathWithIncreasedNumberCount(name));
        ASSERT_NE(next, name);
        ASSERT_TRUE(next.ends_with(" (" + std::to_string(count) + ").png")) << next;
        name = next;
    }
}

} // namespace
} // namespace tarn
