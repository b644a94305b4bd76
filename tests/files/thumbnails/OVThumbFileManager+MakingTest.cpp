#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/imaging/ImageDrawing.h"
#include "tests/files/thumbnails/ThumbFolder.h"
#include "tests/platform/imaging/ReferenceResampler.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

class AMadeThumb : public ThumbFolder {
protected:
    /// Serves the main queue until the answer is there.
    static void waitFor(const bool& answered)
    {
        EXPECT_TRUE(MainQueue::main().runUntil([&] { return answered; }, std::chrono::minutes(1)));
    }
};

TEST_F(AMadeThumb, LiesUnderItsName)
{
    const fs::path picture = aPicture("a.png");
    const OVThumbOptions options = {.cover = true, .xAlign = 0.5};
    const auto thumb = manager_->makeThumbForImageURL(picture, {20, 15}, options);
    EXPECT_EQ(thumb, thumbs_ / manager_->thumbNameForImageURL(picture, {20, 15}, options));
    EXPECT_EQ(filesInFolder(), std::set<std::string>{thumb->filename().string()});
    EXPECT_EQ(fs::status(*thumb).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(AMadeThumb, IsDrawnWithTheDefaultsWhereOptionsAreNotSet)
{
    const Bitmap picture = aPhotograph(360, 180);
    const auto thumb = loadImage(*manager_->makeThumbForImageURL(aPicture("a.png", picture), {60, 60}));
    ASSERT_TRUE(thumb);
    EXPECT_EQ(thumb->width(), 60);
    EXPECT_EQ(thumb->height(), 30) << "the ratio is kept";
    EXPECT_LE(differenceOf(*thumb, drawnByReference(picture, 60, 30, 0, 0, 60, 30)).most, 2);
    const auto stretched
        = loadImage(*manager_->makeThumbForImageURL(pictures_ / "a.png", {60, 60}, {.preserveRatio = false}));
    EXPECT_EQ(stretched->height(), 60) << "what is set wins";
}

TEST_F(AMadeThumb, DropsFractionsOfTheSize)
{
    const auto url = manager_->makeThumbForImageURL(aPicture("a.png"), {200.9, 100.2}, {.preserveRatio = false});
    EXPECT_THAT(url->filename().string(), testing::EndsWith("_200x100.png"));
    const auto thumb = loadImage(*url);
    EXPECT_EQ(thumb->width(), 200);
    EXPECT_EQ(thumb->height(), 100);
}

TEST_F(AMadeThumb, StaysJPEGOrBecomesPNG)
{
    const auto ofJPEG = manager_->makeThumbForImageURL(aPicture("a.JPEG"), {20, 15});
    EXPECT_EQ(ofJPEG->extension(), ".jpg");
    EXPECT_EQ(imageFormatOfFile(*ofJPEG), ImageFormat::JPEG);
    const auto ofPNG = manager_->makeThumbForImageURL(aPicture("a.png"), {20, 15});
    EXPECT_EQ(imageFormatOfFile(*ofPNG), ImageFormat::PNG);
    fs::copy_file(pictures_ / "a.png", pictures_ / "a.gif");
    const auto ofOther = manager_->makeThumbForImageURL(pictures_ / "a.gif", {20, 15});
    EXPECT_EQ(ofOther->extension(), ".png");
    EXPECT_EQ(imageFormatOfFile(*ofOther), ImageFormat::PNG);
}

TEST_F(AMadeThumb, IsMadeAnewEachTime)
{
    const fs::path picture = aPicture("a.png", aPlainPicture(40, 40, 255, 0, 0));
    const auto first = manager_->makeThumbForImageURL(picture, {20, 20});
    aPicture("a.png", aPlainPicture(40, 40, 0, 255, 0));
    EXPECT_EQ(manager_->makeThumbForImageURL(picture, {20, 20}), first);
    EXPECT_EQ(differenceOf(*loadImage(*first), aPlainPicture(20, 20, 0, 255, 0)).most, 0);
    EXPECT_EQ(manager_->makeThumbForImageURL(picture, {20, 20}, {.backgroundColor = OVThumbColor{}}), first)
        << "a background is not in the name";
}

TEST_F(AMadeThumb, HoldsTheOptionsThatAreNotInItsName)
{
    Bitmap picture(40, 40, Bitmap::Alpha::Premultiplied);
    drawImage(aPlainPicture(10, 10, 255, 255, 255), picture, 0, 10, 20, 20);
    const auto thumb = loadImage(*manager_->makeThumbForImageURL(aPicture("a.png", picture), {40, 40},
        {.trimTopBottomTransparentPixels = true,
            .trimTransparentPixelsHorizontalMargin = 2,
            .backgroundColor = OVThumbColor{9, 8, 7}}));
    ASSERT_TRUE(thumb);
    EXPECT_EQ(thumb->height(), 24);
    EXPECT_EQ(std::vector<int>(thumb->row(0), thumb->row(0) + 4), (std::vector<int>{9, 8, 7, 255}));
    EXPECT_EQ(std::vector<int>(thumb->row(12), thumb->row(12) + 4), (std::vector<int>{255, 255, 255, 255}));
}

TEST_F(AMadeThumb, IsNoneOfWhatCannotBeReadAndLeavesNothing)
{
    std::ofstream(pictures_ / "a.png") << "no picture";
    fs::create_directories(pictures_ / "folder.png");
    for (const char* name : {"a.png", "missing.png", "folder.png"}) {
        NSError error;
        EXPECT_EQ(manager_->makeThumbForImageURL(pictures_ / name, {20, 15}, {}, &error), std::nullopt);
        EXPECT_NE(error.localizedDescription(), "") << name;
        EXPECT_EQ(manager_->thumbURLForImageURL(pictures_ / name, {20, 15}), std::nullopt);
    }
    EXPECT_EQ(manager_->makeThumbForImageURL(aPicture("b.png"), {0, 15}), std::nullopt);
    EXPECT_EQ(manager_->makeThumbForImageURL(aPicture("b.png"), {1e9, 1e9}, {.cover = true}), std::nullopt);
    EXPECT_EQ(filesInFolder(), std::set<std::string>()) << "a failure is not stored, nor is it logged";
}

TEST_F(AMadeThumb, IsNoneOfAPictureThatIsNoneAnyMoreThoughItOnceWas)
{
    const fs::path picture = aPicture("a.png");
    ASSERT_TRUE(manager_->makeThumbForImageURL(picture, {20, 15}));
    std::ofstream(picture) << "no picture";
    EXPECT_EQ(manager_->makeThumbForImageURL(picture, {20, 15}), std::nullopt);
    EXPECT_EQ(manager_->thumbURLForImageURL(picture, {20, 15}), std::nullopt) << "the old one is not shown";
}

TEST_F(AMadeThumb, SaysWhereItCouldNotBeWritten)
{
    const fs::path picture = aPicture("a.png");
    const fs::path destination = thumbs_ / manager_->thumbNameForImageURL(picture, {20, 15});
    fs::create_directories(destination);
    NSError error;
    EXPECT_EQ(manager_->makeThumbForImageURL(picture, {20, 15}, {}, &error), std::nullopt);
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr(destination.string()));
    EXPECT_THAT(log_.take(), testing::ElementsAre("Failed to write image to " + destination.string()));
    EXPECT_EQ(filesInFolder().size(), 1U);

    fs::remove_all(thumbs_);
    EXPECT_EQ(manager_->makeThumbForImageURL(picture, {20, 15}, {}, &error), std::nullopt);
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr(thumbs_.string()));
    EXPECT_THAT(log_.take(), testing::ElementsAre("Failed to create CGImageDestination for " + destination.string()));
}

TEST_F(AMadeThumb, IsWholeWhoeverMakesItMeanwhile)
{
    const fs::path picture = aPicture("a.png", aPhotograph(200, 150));
    const auto first = manager_->makeThumbForImageURL(picture, {60, 45});
    const auto expected = loadImage(*first);
    ASSERT_TRUE(expected);
    std::atomic<int> makersAtWork = 2;
    std::vector<std::thread> makers;
    for (int maker = 0; maker < 2; ++maker)
        makers.emplace_back([&] {
            for (int round = 0; round < 40; ++round)
                EXPECT_EQ(manager_->makeThumbForImageURL(picture, {60, 45}), first);
            --makersAtWork;
        });
    int looks = 0;
    do {
        ++looks;
        EXPECT_EQ(loadImage(*first), expected);
        EXPECT_EQ(manager_->thumbURLForImageURL(picture, {60, 45}), first);
    } while (makersAtWork > 0);
    for (std::thread& maker : makers)
        maker.join();
    EXPECT_GT(looks, 0);
    EXPECT_EQ(filesInFolder(), std::set<std::string>{first->filename().string()});
}

TEST_F(AMadeThumb, IsHandedOverOnTheMainQueue)
{
    MainQueue::main();
    const fs::path picture = aPicture("a.png");
    bool answered = false;
    manager_->makeThumbForImageURL(picture, {20, 15}, {.cover = true}, [&](std::optional<fs::path> url) {
        EXPECT_TRUE(MainQueue::main().isCurrent());
        EXPECT_EQ(url, manager_->thumbURLForImageURL(picture, {20, 15}, {.cover = true}));
        EXPECT_TRUE(url);
        answered = true;
    });
    EXPECT_FALSE(answered) << "not before the queue is served";
    waitFor(answered);

    answered = false;
    manager_->makeThumbForImageURL(pictures_ / "missing.png", {20, 15}, [&](std::optional<fs::path> url) {
        EXPECT_EQ(url, std::nullopt);
        answered = true;
    });
    waitFor(answered);
}

TEST_F(AMadeThumb, IsMadeOnlyWhereItIsMissing)
{
    const fs::path picture = aPicture("a.png");
    for (const bool isThere : {false, true}) {
        const auto before
            = isThere ? fs::last_write_time(thumbs_ / *filesInFolder().begin()) : fs::file_time_type::min();
        bool answered = false;
        manager_->thumbForImageURL(
            picture, {20, 15}, {}, [&](std::optional<fs::path> url, std::optional<Bitmap> image) {
                EXPECT_TRUE(MainQueue::main().isCurrent());
                ASSERT_TRUE(url && image);
                EXPECT_EQ(*image, loadImage(*url));
                EXPECT_EQ(fs::last_write_time(*url) == before, isThere);
                answered = true;
            });
        waitFor(answered);
    }
}

TEST_F(AMadeThumb, IsNeitherFileNorImageWhenItCannotBeMade)
{
    bool answered = false;
    manager_->thumbForImageURL(
        pictures_ / "missing.png", {20, 15}, {}, [&](std::optional<fs::path> url, std::optional<Bitmap> image) {
            EXPECT_EQ(url, std::nullopt);
            EXPECT_FALSE(image);
            answered = true;
        });
    waitFor(answered);
}

TEST_F(AMadeThumb, IsMadeThoughItsManagerIsLetGo)
{
    const fs::path picture = aPicture("a.png");
    bool answered = false;
    manager_->makeThumbForImageURL(picture, {20, 15}, [&](std::optional<fs::path> url) {
        EXPECT_TRUE(url);
        answered = true;
    });
    manager_ = nullptr;
    waitFor(answered);
}

} // namespace
} // namespace tarn
