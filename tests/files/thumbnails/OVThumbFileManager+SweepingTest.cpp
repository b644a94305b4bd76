#include "tests/files/FilesFixture.h"
#include "tests/files/PictureFile.h"
#include "tests/support/ProtectedStore.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/events/Queue.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr OVThumbSize kThumbSize = {20, 15};

class ThumbsOfProtectedPictures : public ProtectedStore {
protected:
    OVNoteImage& picture(const std::string& name)
    {
        std::filesystem::create_directories(filesRoot() / "Pictures");
        writePicture(filesRoot() / "Pictures" / name, 40, 30);
        auto* const image
            = dynamic_cast<OVNoteImage*>(note("# T\n").addAttachmentFromFileURL(filesRoot() / "Pictures" / name));
        EXPECT_TRUE(image);
        return *image;
    }
    static std::shared_ptr<OVThumbFileManager> thumbs()
    {
        return OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName);
    }
    static std::vector<std::string> thumbsOnDisk() { return namesIn(thumbs()->baseURL()); }
    static std::string thumbOf(const std::filesystem::path& file)
    {
        const auto made = thumbs()->makeThumbForImageURL(file, kThumbSize);
        return made ? made->filename().string() : "-";
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ThumbsOfProtectedPictures, everyStore(), storeName);

TEST_P(ThumbsOfProtectedPictures, GoWhenThePictureIsProtected)
{
    OVNoteImage& image = picture("a.jpg");
    thumbOf(*image.fileURL());
    ASSERT_THAT(thumbsOnDisk(), SizeIs(1));
    protect(image);
    EXPECT_THAT(thumbsOnDisk(), IsEmpty());
}

TEST_P(ThumbsOfProtectedPictures, GoAlsoOffTheMainThread)
{
    OVNoteImage& image = picture("a.jpg");
    thumbOf(*image.fileURL());
    save();
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    child.setParentContext(context());
    child.performBlockAndWait([&, identifier = *image.uniqueIdentifier()] {
        auto* const own = OVNoteFile::noteFileWithUniqueIdentifier(identifier, child);
        auto* const key = OVPassword::passwordsInManagedObjectContext(child, std::nullopt).front();
        EXPECT_TRUE(manager().addEncryptionToObject(*own, *key, nullptr));
        EXPECT_THAT(thumbsOnDisk(), IsEmpty());
        EXPECT_TRUE(child.save());
    });
    EXPECT_TRUE(image.encryptedValue());
}

TEST_P(ThumbsOfProtectedPictures, AreMadeInMemoryOnly)
{
    OVNoteImage& image = protect(picture("a.jpg"));
    save();
    const auto copy = image.fileURL();
    ASSERT_TRUE(copy);
    NSError error;
    EXPECT_FALSE(thumbs()->makeThumbForImageURL(*copy, kThumbSize, {}, &error));
    EXPECT_THAT(error.localizedDescription(), HasSubstr("is a protected picture"));
    EXPECT_FALSE(thumbs()->thumbURLForImageURL(*copy, kThumbSize));
    std::optional<std::filesystem::path> url = "not asked";
    std::optional<Bitmap> bitmap;
    bool isAnswered = false;
    thumbs()->thumbForImageURL(*copy, kThumbSize, {}, [&](auto foundURL, auto foundImage) {
        url = foundURL;
        bitmap = std::move(foundImage);
        isAnswered = true;
    });
    ASSERT_TRUE(MainQueue::main().runUntil([&] { return isAnswered; }, std::chrono::minutes(1)));
    EXPECT_FALSE(url);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->width(), 20);
    EXPECT_THAT(thumbsOnDisk(), IsEmpty());
}

TEST_P(ThumbsOfProtectedPictures, AreSweptThatNobodyDeleted)
{
    OVNoteImage& secret = picture("a.jpg");
    const std::filesystem::path former = *secret.fileURL();
    OVNoteImage& clear = picture("b.jpg");
    save();
    protect(secret);
    save();
    const std::string kept = thumbOf(*clear.fileURL());
    // As one that another program of this user made while the picture was protected.
    const std::string base = OVThumbFileManager::baseThumbNameImageURL(former);
    std::ofstream(thumbs()->baseURL() / (base + "_20x15.jpg")) << "a thumbnail";
    std::ofstream(thumbs()->baseURL() / "notes.txt") << "no thumbnail";
    ASSERT_TRUE(OVThumbFileManager::areTherePicturesWithoutThumbs(context()));
    thumbs()->deleteThumbsWithoutPicture(context());
    EXPECT_THAT(thumbsOnDisk(), testing::UnorderedElementsAre(kept, "notes.txt"));
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("1 thumbnails")));
}

TEST_P(ThumbsOfProtectedPictures, AreNotSweptWhereNothingIsProtected)
{
    picture("a.jpg");
    save();
    std::ofstream(thumbs()->baseURL() / (std::string(40, 'a') + "_20x15.jpg")) << "a thumbnail";
    EXPECT_FALSE(OVThumbFileManager::areTherePicturesWithoutThumbs(context()));
    thumbs()->deleteThumbsWithoutPicture(context());
    EXPECT_THAT(thumbsOnDisk(), SizeIs(1));
}

} // namespace
} // namespace tarn
