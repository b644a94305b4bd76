#include "tests/files/FilesFixture.h"
#include "tests/files/PictureFile.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"

namespace tarn {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class NoteImage : public FilesFixture {
protected:
    std::filesystem::path picture(const std::string& name, int width, int height, int orientation = 1) const
    {
        std::filesystem::create_directories(scratch());
        writePicture(scratch() / name, width, height, orientation);
        return scratch() / name;
    }
    OVNoteImage& attached(const std::filesystem::path& file)
    {
        auto* image = dynamic_cast<OVNoteImage*>(note("# T\n").addAttachmentFromFileURL(file));
        EXPECT_TRUE(image);
        return *image;
    }
    static std::shared_ptr<OVThumbFileManager> thumbs()
    {
        return OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName);
    }
    static std::filesystem::path thumbOf(const OVNoteImage& image, double width, double height)
    {
        NSError error;
        const auto thumb = thumbs()->makeThumbForImageURL(*image.fileURL(), {width, height}, {}, &error);
        EXPECT_TRUE(thumb) << error;
        return thumb.value_or("");
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteImage, everyStore(), storeName);

TEST_P(NoteImage, KnowsItsSizeUpright)
{
    const OVNoteImage& image = attached(picture("a.jpg", 40, 30));
    EXPECT_EQ(image.widthValue(), 40);
    EXPECT_EQ(image.heightValue(), 30);
    EXPECT_EQ(image.normalizedFileExtension(), "jpeg");
    EXPECT_EQ(OVNoteImage::imageSizeForImageURL(picture("turned.jpg", 40, 30, 6)).width, 30);
    EXPECT_EQ(OVNoteImage::imageSizeForImageURL(picture("turned.jpg", 40, 30, 6)).height, 40);
    EXPECT_EQ(OVNoteImage::imageSizeForImageURL(aFile("text", "no picture")).width, 0);
    EXPECT_EQ(OVNoteImage::imageSizeForImageURL(scratch() / "missing").height, 0);
}

TEST_P(NoteImage, KeepsOneSizeWhateverItsOrientation)
{
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const int width = orientation < 5 ? 40 : 30;
        const int height = orientation < 5 ? 30 : 40;
        OVNoteImage& image = attached(picture("a.jpg", 40, 30, orientation));
        const auto expectSize = [&](std::string_view when) {
            EXPECT_EQ(image.widthValue(), width) << when;
            EXPECT_EQ(image.heightValue(), height) << when;
        };
        expectSize("imported");
        image.updateFileMetadata();
        expectSize("read again");
        image.renameWithFilename("b.jpg");
        image.updateFileMetadata();
        expectSize("renamed");
        ASSERT_TRUE(
            image.updateAttachmentWithFileWrapper(NSFileWrapper::withURL(picture("same.jpg", 40, 30, orientation))));
        expectSize("updated");
        // As its thumbnail, which is as large as the upright picture.
        const auto drawn = OVNoteImage::imageSizeForImageURL(thumbOf(image, width, height));
        EXPECT_EQ(drawn.width, width);
        EXPECT_EQ(drawn.height, height);
    }
}

TEST_P(NoteImage, IsAGenericFileBeyondWhatIsDecoded)
{
    const ImageLimits before = ImageLimits::current();
    ImageLimits limits = before;
    limits.pixels = 1'000;
    ImageLimits::setCurrent(limits);
    OVNoteFile* const file = note("# T\n").addAttachmentFromFileURL(picture("large.jpg", 40, 30));
    EXPECT_TRUE(dynamic_cast<OVNoteGenericFile*>(file));
    NSError error;
    EXPECT_FALSE(thumbs()->makeThumbForImageURL(*file->fileURL(), {20, 20}, {}, &error));
    EXPECT_THAT(error.localizedDescription(), testing::AllOf(testing::HasSubstr("40"), testing::HasSubstr("1000")));
    ImageLimits::setCurrent(before);
}

TEST_P(NoteImage, LosesItsThumbnailsWithItsNameItsBytesAndItself)
{
    OVNoteImage& image = attached(picture("a.jpg", 40, 30));
    OVNoteImage& other = attached(picture("b.jpg", 40, 30));
    const auto otherThumb = thumbOf(other, 10, 10);
    const auto named = thumbOf(image, 10, 10);
    image.renameWithFilename("c.jpg");
    EXPECT_FALSE(std::filesystem::exists(named));
    const auto renamed = thumbOf(image, 10, 10);
    ASSERT_TRUE(image.updateAttachmentWithFileWrapper(NSFileWrapper::withURL(picture("d.jpg", 20, 20))));
    EXPECT_FALSE(std::filesystem::exists(renamed));
    save();
    const auto last = thumbOf(image, 10, 10);
    image.permanentlyDelete();
    save();
    EXPECT_FALSE(std::filesystem::exists(last));
    EXPECT_TRUE(std::filesystem::exists(otherThumb)) << "of another picture";
}

TEST_P(NoteImage, NeverShowsAThumbnailOfWhatItWasBefore)
{
    OVNoteImage& image = attached(picture("a.jpg", 40, 30));
    save();
    const std::filesystem::path file = *image.fileURL();
    thumbOf(image, 10, 10);
    ASSERT_TRUE(thumbs()->thumbURLForImageURL(file, {10, 10}));
    // Another program, a restored backup: nobody tells the record.
    const auto date = std::filesystem::last_write_time(file);
    writePicture(file, 30, 40, 1);
    std::filesystem::last_write_time(file, date - std::chrono::hours(24));
    EXPECT_FALSE(thumbs()->thumbURLForImageURL(file, {10, 10}));
    thumbOf(image, 10, 10);
    ASSERT_TRUE(thumbs()->thumbURLForImageURL(file, {10, 10}));
    // A deletion that is taken back gives the same picture back.
    image.permanentlyDelete();
    EXPECT_FALSE(thumbs()->thumbURLForImageURL(file, {10, 10})) << "it is gone";
    context().rollback();
    EXPECT_TRUE(thumbs()->thumbURLForImageURL(file, {10, 10}));
}

TEST_P(NoteImage, IsLeftAloneByItsThumbnailsWhenItIsProtected)
{
    OVNoteImage& image = attached(picture("a.jpg", 40, 30));
    const auto thumb = thumbOf(image, 10, 10);
    image.setEncryptedValue(true);
    image.deleteFileThumbnails();
    EXPECT_TRUE(std::filesystem::exists(thumb));
}

} // namespace
} // namespace tarn
