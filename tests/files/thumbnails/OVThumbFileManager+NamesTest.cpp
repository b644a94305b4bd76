#include "tests/files/thumbnails/ThumbFolder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class AThumbName : public ThumbFolder { };

std::string baseOf(const fs::path& picture)
{
    return OVThumbFileManager::baseThumbNameImageURL(picture);
}

TEST_F(AThumbName, IsMadeOfThePathTheOptionsAndTheSize)
{
    const fs::path picture = home_ / "a.png";
    EXPECT_EQ(baseOf(picture), OVThumbFileManager::sha1ForString("/a.png"));
    EXPECT_EQ(manager_->thumbNameForImageURL(picture, {200, 150}, OVThumbFileManager::defaultThumbOptions()),
        baseOf(picture) + "_pr_1_aa_1_x_0_y_0_200x150.png");
    EXPECT_EQ(OVThumbFileManager::sha1ForString("abc"), "a9993e364706816aba3e25717850c26c9cd0d89d");
}

TEST_F(AThumbName, HasNoOptionPartWithoutOptions)
{
    const fs::path picture = home_ / "a.png";
    EXPECT_EQ(manager_->thumbNameForImageURL(picture, {200, 150}), baseOf(picture) + "_200x150.png");
    EXPECT_EQ(manager_->thumbNameForImageURL(picture, {200, 150}, {}), baseOf(picture) + "_200x150.png");
}

TEST_F(AThumbName, NamesWhatIsSetInAFixedOrder)
{
    using Manager = OVThumbFileManager;
    EXPECT_EQ(Manager::stringFromOptions({}), "");
    EXPECT_EQ(Manager::stringFromOptions({.preserveRatio = false, .contain = false, .cover = false}), "");
    EXPECT_EQ(Manager::stringFromOptions({.preserveRatio = true}), "_pr_1");
    EXPECT_EQ(Manager::stringFromOptions({.contain = true}), "_cn");
    EXPECT_EQ(Manager::stringFromOptions({.cover = true}), "_cv");
    EXPECT_EQ(Manager::stringFromOptions({.antialias = false}), "_aa_0");
    EXPECT_EQ(Manager::stringFromOptions({.antialias = true}), "_aa_1");
    EXPECT_EQ(Manager::stringFromOptions({.preserveRatio = true,
                  .contain = true,
                  .cover = true,
                  .antialias = false,
                  .xAlign = 0.5,
                  .yAlign = 1,
                  .trimTopBottomTransparentPixels = true,
                  .trimTransparentPixelsHorizontalMargin = 7,
                  .backgroundColor = OVThumbColor{1, 2, 3}}),
        "_pr_1_cn_cv_aa_0_x_0.5_y_1")
        << "trimming and background are no part of it";
}

// As printf writes %g in the C locale.
TEST_F(AThumbName, HoldsNumbersInSixDigits)
{
    const auto written = [](double number) { return OVThumbFileManager::stringFromOptions({.xAlign = number}); };
    EXPECT_EQ(written(0.333333333), "_x_0.333333");
    EXPECT_EQ(written(1e-5), "_x_1e-05");
    EXPECT_EQ(written(123456789), "_x_1.23457e+08");
    EXPECT_EQ(written(-0.0), "_x_-0");
    EXPECT_EQ(written(100000), "_x_100000");
    EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "_x_inf");
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> exponent(-20, 20);
    for (int round = 0; round < 10'000; ++round) {
        const double number = std::pow(10, exponent(random)) * (round % 2 == 0 ? 1 : -1);
        char printed[64];
        std::snprintf(printed, sizeof(printed), "_x_%g", number);
        ASSERT_EQ(written(number), printed);
    }
}

TEST_F(AThumbName, HoldsWholePixels)
{
    const fs::path picture = home_ / "a.png";
    const auto sizeIn = [&](double width, double height) {
        return manager_->thumbNameForImageURL(picture, {width, height}).substr(40);
    };
    EXPECT_EQ(sizeIn(200.9, 100.2), "_200x100.png");
    EXPECT_EQ(sizeIn(-0.9, -1.9), "_0x-1.png");
    EXPECT_EQ(sizeIn(1e300, -1e300), "_2147483647x-2147483648.png");
    EXPECT_EQ(sizeIn(std::numeric_limits<double>::quiet_NaN(), 1), "_0x1.png");
}

TEST_F(AThumbName, KeepsJPEGAndMakesPNGOfAllElse)
{
    for (const char* extension : {"jpg", "JPG", "jpeg", "jpe", "jfif"})
        EXPECT_EQ(manager_->thumbExtensionForImageExtension(extension), "jpg") << extension;
    for (const char* extension : {"png", "gif", "heic", "webp", "tiff", "cr2", "", "no-such-type"})
        EXPECT_EQ(manager_->thumbExtensionForImageExtension(extension), "png") << extension;
    EXPECT_THAT(manager_->thumbNameForImageURL("/a.b/c.JPEG", {1, 1}), testing::EndsWith("_1x1.jpg"));
    EXPECT_THAT(manager_->thumbNameForImageURL("/a.jpg/c", {1, 1}), testing::EndsWith("_1x1.png"));
    EXPECT_THAT(manager_->thumbNameForImageURL("/a/.jpg", {1, 1}), testing::EndsWith("_1x1.png")) << "a hidden file";
}

TEST_F(AThumbName, IsTheSameInAnotherHome)
{
    const std::string base = baseOf(home_ / "notes" / "a.png");
    world_.setHomeDirectory("/homes/other");
    EXPECT_EQ(baseOf("/homes/other/notes/a.png"), base);
    EXPECT_NE(baseOf(home_ / "notes" / "a.png"), base) << "which is no home any more";
    world_.setHomeDirectory("/homes/other/");
    EXPECT_EQ(baseOf("/homes/other/notes/a.png"), base);
}

TEST_F(AThumbName, LosesTheHomeAsOftenAsItOccurs)
{
    world_.setHomeDirectory("/h");
    EXPECT_EQ(baseOf("/h/a/h/b/h.png"), OVThumbFileManager::sha1ForString("/a/b.png"));
    EXPECT_EQ(baseOf("/x/h/a.png"), OVThumbFileManager::sha1ForString("/x/h/a.png")) << "only of what is at home";
    EXPECT_EQ(baseOf("/hh/a.png"), OVThumbFileManager::sha1ForString("h/a.png")) << "by letters, not by folders";
    world_.setHomeDirectory("/");
    EXPECT_EQ(baseOf("/h/a.png"), OVThumbFileManager::sha1ForString("/h/a.png")) << "the root folder is part of all";
}

TEST_F(AThumbName, IsThatOfTheWholePath)
{
    EXPECT_EQ(baseOf("a.png"), baseOf(fs::current_path() / "a.png"));
    EXPECT_NE(baseOf("/x/a.png"), baseOf("/y/a.png"));
    EXPECT_EQ(baseOf("/ü/😀.png"), OVThumbFileManager::sha1ForString("/ü/😀.png"));
}

TEST_F(AThumbName, IsOfTypesThatAreKeptAsTheyWereAskedFor)
{
    EXPECT_TRUE(manager_->utiCache().empty());
    EXPECT_EQ(manager_->UTIFromExtension("jpg")->identifier(), "image/jpeg");
    EXPECT_EQ(manager_->UTIFromExtension("JPG")->identifier(), "image/jpeg");
    EXPECT_EQ(manager_->UTIFromExtension("jpg")->identifier(), "image/jpeg");
    EXPECT_FALSE(manager_->UTIFromExtension(""));
    EXPECT_FALSE(manager_->UTIFromExtension("no-such-type"));
    std::vector<std::string> extensions;
    for (const auto& [extension, type] : manager_->utiCache())
        extensions.push_back(extension);
    EXPECT_THAT(extensions, testing::ElementsAre("JPG", "jpg"));
}

TEST_F(AThumbName, HasDefaultsForSixOptions)
{
    const OVThumbOptions options = OVThumbFileManager::defaultThumbOptions();
    EXPECT_EQ(options.preserveRatio, true);
    EXPECT_EQ(options.contain, false);
    EXPECT_EQ(options.cover, false);
    EXPECT_EQ(options.antialias, true);
    EXPECT_EQ(options.xAlign, 0);
    EXPECT_EQ(options.yAlign, 0);
    EXPECT_FALSE(options.trimTopBottomTransparentPixels);
    EXPECT_FALSE(options.trimTransparentPixelsHorizontalMargin);
    EXPECT_FALSE(options.backgroundColor);
}

TEST(ThumbOptionKeys, AreSpelledAsApplicationsSpellThem)
{
    EXPECT_EQ(OVThumbPreserveRatio, "OVThumbPreserveRatio");
    EXPECT_EQ(OVThumbContain, "OVThumbContain");
    EXPECT_EQ(OVThumbCover, "OVThumbCover");
    EXPECT_EQ(OVThumbAntialias, "OVThumbAntialias");
    EXPECT_EQ(OVThumbXAlign, "OVThumbXAlign");
    EXPECT_EQ(OVThumbYAlign, "OVThumbYAlign");
    EXPECT_EQ(OVThumbTrimTopBottonTransparentPixels, "OVThumbTrimTopBottonTransparentPixels");
    EXPECT_EQ(OVThumbTrimTransparentPixelsHorizontalMargin, "OVThumbTrimTransparentPixelsHorizontalMargin");
    EXPECT_EQ(OVThumbBackgroundColor, "OVThumbBackgroundColor");
}

} // namespace
} // namespace tarn
