#include "tarnmodel/files/thumbnails/ThumbDraft.h"

#include "tests/files/thumbnails/ThumbFolder.h"

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr NSDate kSeen(1'600'000'000'123'456);

class AThumbDraft : public ThumbFolder {
protected:
    const SeenStamp source_ = {{"size 5 modified 1.000000000 changed 2.000000000 inode 3", {}}, kSeen};
    const fs::path destination_ = thumbs_ / "name.png";
};

TEST_F(AThumbDraft, IsHiddenAndItsOwnersAlone)
{
    const ThumbDraft draft(thumbs_, "name.png");
    ASSERT_TRUE(draft.isThere());
    EXPECT_EQ(draft.path().parent_path(), thumbs_);
    EXPECT_TRUE(draft.path().filename().string().starts_with(".name.png."));
    EXPECT_EQ(fs::status(draft.path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    const ThumbDraft other(thumbs_, "name.png");
    EXPECT_TRUE(other.isThere());
    EXPECT_NE(other.path(), draft.path());
}

TEST_F(AThumbDraft, GoesWhenItIsNotPublished)
{
    {
        const ThumbDraft draft(thumbs_, "name.png");
        EXPECT_EQ(filesInFolder().size(), 1U);
    }
    EXPECT_EQ(filesInFolder(), std::set<std::string>());
}

TEST_F(AThumbDraft, BecomesTheThumbnailWithItsStamp)
{
    std::ofstream(destination_) << "an earlier one";
    ThumbDraft draft(thumbs_, "name.png");
    const Bitmap picture = aFadingPicture(9, 7);
    ASSERT_TRUE(writePNG(picture, draft.path()));

    EXPECT_FALSE(draft.publish(source_, destination_));

    EXPECT_EQ(filesInFolder(), std::set<std::string>{"name.png"});
    EXPECT_LE(differenceOf(*loadImage(destination_), picture).most, 1);
    const auto published = publishedStamp(destination_);
    ASSERT_TRUE(published);
    EXPECT_EQ(published->stamp.text(), source_.stamp.text());
    EXPECT_EQ(published->seen, kSeen);
}

TEST_F(AThumbDraft, KeepsAJPEGAsItWas)
{
    const Bitmap picture = aPhotograph(60, 40);
    const fs::path plain = aPicture("plain.jpg", picture);
    ThumbDraft draft(thumbs_, "name.jpg");
    ASSERT_TRUE(writeJPEG(picture, draft.path()));

    EXPECT_FALSE(draft.publish(source_, destination_));

    EXPECT_EQ(loadImage(destination_), loadImage(plain));
    EXPECT_EQ(publishedStamp(destination_)->stamp.text(), source_.stamp.text());
}

TEST_F(AThumbDraft, IsNotPublishedOnceItIsDeleted)
{
    ThumbDraft draft(thumbs_, "name.png");
    fs::remove(draft.path());
    EXPECT_EQ(draft.publish(source_, destination_), std::errc::operation_canceled);
    ASSERT_TRUE(writePNG(aPhotograph(5, 5), draft.path())) << "the encoder makes the file anew";
    EXPECT_EQ(draft.publish(source_, destination_), std::errc::operation_canceled);
    EXPECT_FALSE(fs::exists(destination_));
}

TEST_F(AThumbDraft, IsNotPublishedOverAFolderOrWithoutAnImage)
{
    ThumbDraft draft(thumbs_, "name.png");
    EXPECT_EQ(draft.publish(source_, destination_), std::errc::bad_message);
    ASSERT_TRUE(writePNG(aPhotograph(5, 5), draft.path()));
    fs::create_directories(destination_);
    EXPECT_EQ(draft.publish(source_, destination_), std::errc::is_a_directory);
}

TEST_F(AThumbDraft, IsNotThereWithoutItsFolder)
{
    EXPECT_FALSE(ThumbDraft(home_ / "missing", "name.png").isThere());
}

TEST_F(AThumbDraft, LeavesAStampThatIsSeenLater)
{
    const fs::path thumb = aPicture("a.png");
    EXPECT_FALSE(publishedStamp(thumb)) << "another program's picture";
    EXPECT_FALSE(publishedStamp(thumbs_)) << "a folder";
    EXPECT_FALSE(publishedStamp(thumbs_ / "missing"));

    ThumbDraft draft(thumbs_, "name.png");
    ASSERT_TRUE(writePNG(aPhotograph(5, 5), draft.path()));
    ASSERT_FALSE(draft.publish(source_, destination_));
    noteSourceSeen(destination_, NSDate(-1));
    EXPECT_EQ(publishedStamp(destination_)->seen, NSDate(-1));
    EXPECT_EQ(publishedStamp(destination_)->stamp.text(), source_.stamp.text());
}

} // namespace
} // namespace tarn
