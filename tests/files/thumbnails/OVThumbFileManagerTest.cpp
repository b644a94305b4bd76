#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/ThumbDraft.h"
#include "tarnmodel/files/thumbnails/ThumbStamp.h"
#include "tests/files/thumbnails/ThumbFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr OVThumbSize kSize = {20, 15};

NSDate aMinuteAfter(NSDate date)
{
    return dateWithMicrosecondsSince1970(microsecondsSince1970(date) + 60'000'000);
}

class AThumbFileManager : public ThumbFolder { };

TEST_F(AThumbFileManager, KeepsThumbnailsInTheApplicationsOwnFolder)
{
    const auto shared = OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName);
    const fs::path folder = home_ / ".local" / "share" / "TarnModel" / "Thumbs";
    EXPECT_EQ(shared->baseURL(), folder);
    EXPECT_EQ(OVThumbFileManager::folderURLForPathComponent("Thumbs"), folder);
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
}

TEST_F(AThumbFileManager, IsOneForEachFolder)
{
    const auto shared = OVThumbFileManager::thumbFileManagerForPathComponent("Thumbs");
    EXPECT_EQ(OVThumbFileManager::thumbFileManagerForPathComponent("Thumbs"), shared);
    const auto other = OVThumbFileManager::thumbFileManagerForPathComponent("Previews");
    EXPECT_NE(other, shared);
    EXPECT_EQ(other->baseURL().filename(), "Previews");
    EXPECT_NE(OVThumbFileManager::initWithPathComponent("Thumbs"), shared);

    EnvironmentOverride moved;
    moved.setHomeDirectory(home_ / "moved");
    EXPECT_EQ(OVThumbFileManager::thumbFileManagerForPathComponent("Thumbs")->baseURL(),
        home_ / "moved" / ".local" / "share" / "TarnModel" / "Thumbs");
}

TEST_F(AThumbFileManager, IsNoneWithoutAFolder)
{
    EXPECT_EQ(OVThumbFileManager::initWithBaseURL({}), nullptr);
    EXPECT_EQ(manager_->baseURL(), thumbs_);
}

class AFoundThumb : public ThumbFolder {
protected:
    AFoundThumb() { thumb_ = manager_->makeThumbForImageURL(picture_, kSize); }

    std::optional<fs::path> found() const { return manager_->thumbURLForImageURL(picture_, kSize); }

    const fs::path picture_ = aPicture("a.png");
    std::optional<fs::path> thumb_;
};

TEST_F(AFoundThumb, IsTheOneThatWasMade)
{
    ASSERT_TRUE(thumb_);
    EXPECT_EQ(found(), thumb_);
    EXPECT_EQ(manager_->thumbURLForImageURL(picture_, kSize, {}), thumb_);
    EXPECT_EQ(found(), thumb_) << "as often as it is asked for";
}

TEST_F(AFoundThumb, IsNoneThatWasNotMade)
{
    EXPECT_EQ(manager_->thumbURLForImageURL(picture_, {20, 16}), std::nullopt);
    EXPECT_EQ(manager_->thumbURLForImageURL(picture_, kSize, {.cover = true}), std::nullopt);
    EXPECT_EQ(manager_->thumbURLForImageURL(aPicture("b.png"), kSize), std::nullopt);
}

TEST_F(AFoundThumb, IsTheSameForOptionsThatAreNotInTheName)
{
    EXPECT_EQ(manager_->thumbURLForImageURL(picture_, kSize, {.backgroundColor = OVThumbColor{}}), thumb_);
    EXPECT_EQ(manager_->thumbURLForImageURL(picture_, kSize, {.trimTopBottomTransparentPixels = true}), thumb_);
}

TEST_F(AFoundThumb, TellsHowItWasTrimmedAndPainted)
{
    const OVThumbOptions painted{.backgroundColor = OVThumbColor{1, 2, 3}};
    const OVThumbOptions trimmed{.trimTopBottomTransparentPixels = true};
    const OVThumbOptions trimmedWithMargin{
        .trimTopBottomTransparentPixels = true, .trimTransparentPixelsHorizontalMargin = 4};
    const std::vector<OVThumbOptions> all{{}, painted, trimmed, trimmedWithMargin};
    for (const OVThumbOptions& made : all) {
        ASSERT_EQ(manager_->makeThumbForImageURL(picture_, kSize, made), thumb_);
        EXPECT_EQ(manager_->thumbURLForImageURL(picture_, kSize, made), thumb_);
        for (const OVThumbOptions& wanted : all)
            EXPECT_EQ(OVThumbFileManager::thumbAtURLShowsOptions(*thumb_, wanted), wanted == made);
    }
    fs::remove(*thumb_);
    EXPECT_FALSE(OVThumbFileManager::thumbAtURLShowsOptions(*thumb_, {}));
}

TEST_F(AFoundThumb, IsNoneOnceThePictureHasOtherBytes)
{
    ASSERT_TRUE(writePNG(aPhotograph(64, 48), picture_)) << "the very same bytes: they were written all the same";
    EXPECT_EQ(found(), std::nullopt);
    aPicture("a.png", aFadingPicture(64, 48));
    EXPECT_EQ(found(), std::nullopt);
    EXPECT_TRUE(manager_->makeThumbForImageURL(picture_, kSize));
    EXPECT_EQ(found(), thumb_);
}

/// Sets the time of a picture's last change, as a copy from a backup does.
void setModified(const fs::path& file, const struct timespec& time)
{
    const timespec times[] = {{0, UTIME_OMIT}, time};
    ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

TEST_F(AFoundThumb, IsNoneOncePictureIsRestoredFromAnOlderCopy)
{
    const fs::path backup = pictures_ / "backup.png";
    fs::copy_file(picture_, backup);
    setModified(backup, {1'000'000, 0});
    fs::rename(backup, picture_);
    EXPECT_EQ(found(), std::nullopt) << "older, of the same size, and the same bytes";
}

TEST_F(AFoundThumb, IsNoneOncePictureIsReplacedAndItsTimeSetBack)
{
    world_.setNow(aMinuteAfter(now()));
    ASSERT_TRUE(manager_->makeThumbForImageURL(picture_, kSize)) << "of a picture that did not change just now";
    ASSERT_EQ(found(), thumb_);
    struct stat before { };
    ASSERT_EQ(::stat(picture_.c_str(), &before), 0);
    std::fstream(picture_, std::ios::in | std::ios::out | std::ios::binary).seekp(-1, std::ios::end) << 'x';
    setModified(picture_, before.st_mtim);
    EXPECT_EQ(found(), std::nullopt) << "same size, same time, same file";
}

TEST_F(AFoundThumb, IsNoneOfAnotherPictureThatGotTheName)
{
    const fs::path other = aPicture("b.png", aFadingPicture(64, 48));
    fs::remove(picture_);
    EXPECT_EQ(found(), std::nullopt) << "the picture is gone";
    fs::rename(other, picture_);
    EXPECT_EQ(found(), std::nullopt) << "and another has its name";
}

TEST_F(AFoundThumb, IsNoneThatAnotherProgramWrote)
{
    ASSERT_TRUE(writePNG(aPhotograph(20, 15), *thumb_));
    EXPECT_EQ(found(), std::nullopt);
    fs::remove(*thumb_);
    fs::create_directories(*thumb_);
    EXPECT_EQ(found(), std::nullopt) << "a folder";
}

// The clock of the file system may not have ticked between two changes. So a picture that had just changed when its
// thumbnail was made is read again, until the file system's clock must have ticked.
TEST_F(AFoundThumb, OfAFreshPictureIsComparedByContentOnce)
{
    const NSDate made = publishedStamp(*thumb_)->seen;
    ASSERT_NE(publishedStamp(*thumb_)->stamp.sha1, "");
    EXPECT_EQ(found(), thumb_);
    EXPECT_EQ(publishedStamp(*thumb_)->seen, made) << "too early to be sure";

    const NSDate later = aMinuteAfter(made);
    world_.setNow(later);
    EXPECT_EQ(found(), thumb_);
    EXPECT_EQ(publishedStamp(*thumb_)->seen, later) << "from now on its state tells";
    world_.setNow(aMinuteAfter(later));
    EXPECT_EQ(found(), thumb_);
    EXPECT_EQ(publishedStamp(*thumb_)->seen, later) << "and nothing is read again";
}

TEST_F(AFoundThumb, OfAFreshPictureIsNoneOnceItsContentDiffers)
{
    // As if the clock had stood still: the state is the same, the content is not.
    SeenStamp stamp = *publishedStamp(*thumb_);
    stamp.stamp.sha1.replace(0, 1, stamp.stamp.sha1[0] == '0' ? "1" : "0");
    ThumbDraft draft(thumbs_, "x.png");
    ASSERT_TRUE(writePNG(aPhotograph(20, 15), draft.path()));
    ASSERT_FALSE(draft.publish(stamp, *thumb_));
    EXPECT_EQ(found(), std::nullopt);
}

TEST_F(AFoundThumb, OfAnOldPictureIsFoundByItsStateAlone)
{
    world_.setNow(aMinuteAfter(now()));
    thumb_ = manager_->makeThumbForImageURL(picture_, kSize);
    EXPECT_EQ(publishedStamp(*thumb_)->stamp.sha1, "");
    EXPECT_EQ(found(), thumb_);
}

class DeletedThumbs : public ThumbFolder { };

TEST_F(DeletedThumbs, AreThoseOfOneImageInAllSizes)
{
    const fs::path picture = aPicture("a.png");
    const fs::path other = aPicture("b.png");
    manager_->makeThumbForImageURL(picture, kSize);
    manager_->makeThumbForImageURL(picture, {30, 30}, {.cover = true});
    manager_->makeThumbForImageURL(picture, {7, 7}, OVThumbFileManager::defaultThumbOptions());
    const auto kept = manager_->makeThumbForImageURL(other, kSize);
    ASSERT_EQ(filesInFolder().size(), 4U);

    manager_->deleteAllThumbsForImageURL(picture);

    EXPECT_EQ(filesInFolder(), std::set<std::string>{kept->filename().string()});
    EXPECT_EQ(manager_->thumbURLForImageURL(picture, kSize), std::nullopt);
    manager_->deleteAllThumbsForImageURL(picture);
    manager_->deleteAllThumbsForImageURL({});
    EXPECT_EQ(filesInFolder().size(), 1U);
}

TEST_F(DeletedThumbs, MayBeThoseOfManyImagesAtOnce)
{
    std::vector<fs::path> pictures;
    for (const char* name : {"a.png", "b.png", "c.png"}) {
        pictures.push_back(aPicture(name));
        manager_->makeThumbForImageURL(pictures.back(), kSize);
        manager_->makeThumbForImageURL(pictures.back(), {8, 8});
    }
    manager_->deleteAllThumbsForImageURLs({});
    EXPECT_EQ(filesInFolder().size(), 6U);
    manager_->deleteAllThumbsForImageURLs(std::vector<fs::path>{pictures[0], fs::path(), pictures[2]});
    EXPECT_EQ(filesInFolder().size(), 2U);
    EXPECT_TRUE(manager_->thumbURLForImageURL(pictures[1], kSize));
}

TEST_F(DeletedThumbs, AreNotThoseInFoldersBelow)
{
    const fs::path picture = aPicture("a.png");
    const std::string name = manager_->thumbNameForImageURL(picture, kSize);
    fs::create_directories(thumbs_ / "below");
    std::ofstream(thumbs_ / "below" / name) << "x";
    manager_->deleteAllThumbsForImageURL(picture);
    EXPECT_TRUE(fs::exists(thumbs_ / "below" / name));
}

TEST_F(DeletedThumbs, TakeWhatADeadMakerLeftAlong)
{
    const fs::path picture = aPicture("a.png");
    const std::string left = "." + manager_->thumbNameForImageURL(picture, kSize) + "." + newUUIDString();
    const std::string ofAnother
        = "." + manager_->thumbNameForImageURL(aPicture("b.png"), kSize) + "." + newUUIDString();
    std::ofstream(thumbs_ / left) << "half";
    std::ofstream(thumbs_ / ofAnother) << "half";
    EXPECT_EQ(manager_->thumbURLForImageURL(picture, kSize), std::nullopt);
    manager_->deleteAllThumbsForImageURL(picture);
    EXPECT_EQ(filesInFolder(), std::set<std::string>{ofAnother});
}

// The clock is asked once a maker has begun.
TEST_F(DeletedThumbs, TakeWhatAKilledMakerLeftAlong)
{
    const fs::path picture = aPicture("a.png");
    const pid_t maker = ::fork();
    if (maker == 0) {
        world_.setClock([] {
            ::raise(SIGKILL);
            return NSDate();
        });
        manager_->makeThumbForImageURL(picture, kSize);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(maker, &status, 0), maker);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_EQ(filesInFolder().size(), 1U);
    EXPECT_THAT(*filesInFolder().begin(), testing::StartsWith("."));
    EXPECT_EQ(manager_->thumbURLForImageURL(picture, kSize), std::nullopt);

    EXPECT_TRUE(manager_->makeThumbForImageURL(picture, kSize)) << "it is in nobody's way";
    manager_->deleteAllThumbsForImageURL(picture);
    EXPECT_EQ(filesInFolder(), std::set<std::string>());
}

TEST_F(DeletedThumbs, DoNotComeBackFromAMakerThatHadBegun)
{
    const fs::path picture = aPicture("a.png");
    world_.setClock([&] {
        manager_->deleteAllThumbsForImageURL(picture);
        return NSDate(2'000'000'000'000'000);
    });
    NSError error;
    EXPECT_EQ(manager_->makeThumbForImageURL(picture, kSize, {}, &error), std::nullopt);
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("cannot be written"));
    EXPECT_EQ(filesInFolder(), std::set<std::string>());
    EXPECT_THAT(log_.take(), testing::ElementsAre(testing::StartsWith("Failed to write image to ")));
}

TEST_F(DeletedThumbs, AreNoneWithoutAFolder)
{
    fs::remove_all(thumbs_);
    manager_->deleteAllThumbsForImageURL(aPicture("a.png"));
    EXPECT_FALSE(fs::exists(thumbs_));
}

} // namespace
} // namespace tarn
