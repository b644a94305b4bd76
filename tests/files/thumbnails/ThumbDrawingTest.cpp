#include "tarnmodel/files/thumbnails/ThumbDrawing.h"

#include "tarnmodel/files/thumbnails/ImageScaling.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"
#include "tests/files/thumbnails/ThumbFolder.h"
#include "tests/platform/imaging/ReferenceResampler.h"

#include <gmock/gmock.h>

#include <tuple>

namespace tarn {
namespace {

namespace fs = std::filesystem;

/// Options, and where they put a photograph of 360 x 180 on a canvas for 60 x 40, from its top left corner.
struct Drawn {
    const char* name;
    OVThumbOptions options;
    std::int32_t width, height; ///< of the canvas
    double left, top, drawnWidth, drawnHeight;
};

class ADrawnThumb : public ThumbFolder, public testing::WithParamInterface<Drawn> {
protected:
    std::optional<Bitmap> drawn(const fs::path& picture, PixelSize size, const OVThumbOptions& options)
    {
        return drawThumb(picture, size, options, &error_);
    }

    NSError error_;
};

INSTANTIATE_TEST_SUITE_P(Goldens, ADrawnThumb,
    testing::Values( //
        Drawn{"Stretched", {.preserveRatio = false}, 60, 40, 0, 0, 60, 40},
        Drawn{"Fitted", {.preserveRatio = true}, 60, 30, 0, 0, 60, 30},
        Drawn{"ContainedAtTheBottom", {.contain = true}, 60, 40, 0, 10, 60, 30},
        Drawn{"ContainedInTheMiddle", {.contain = true, .xAlign = 0.5, .yAlign = 0.5}, 60, 40, 0, 5, 60, 30},
        Drawn{"ContainedAtTheTop", {.contain = true, .yAlign = 1}, 60, 40, 0, 0, 60, 30},
        Drawn{"CoveredFromTheLeft", {.cover = true}, 60, 40, 0, 0, 80, 40},
        Drawn{"CoveredByItsMiddle", {.cover = true, .xAlign = 0.5, .yAlign = 0.5}, 60, 40, -10, 0, 80, 40},
        Drawn{"CoveredFromTheRight", {.cover = true, .xAlign = 1}, 60, 40, -20, 0, 80, 40}),
    [](const testing::TestParamInfo<Drawn>& drawn) { return drawn.param.name; });

// Pixels are averaged while they are decoded where six of them or more become one: photographs come out up to 2 off the
// filter then, checkers of the size of a pixel drawn up to 6. And the file holds colours apart from their alpha,
// rounded.
TEST_P(ADrawnThumb, IsWhatTheFilterSaysOfTheFile)
{
    const Drawn& expected = GetParam();
    const std::tuple<Bitmap, int, double> pictures[]
        = {{aPhotograph(360, 180), 2, 0.1}, {aFadingPicture(360, 180), 6, 0.5}};
    for (const auto& [picture, mostOff, meanOff] : pictures) {
        const auto thumb = drawn(aPicture("a.png", picture), {60, 40}, expected.options);
        ASSERT_TRUE(thumb) << error_;
        const Difference difference = differenceOf(*thumb,
            drawnByReference(picture, expected.width, expected.height, expected.left, expected.top, expected.drawnWidth,
                expected.drawnHeight));
        EXPECT_LE(difference.most, mostOff);
        EXPECT_LT(difference.mean, meanOff);
    }
}

TEST_F(ADrawnThumb, HasTheDefaultsOfOptionsThatAreNotSet)
{
    const fs::path picture = aPicture("a.png", aPhotograph(333, 160));
    EXPECT_EQ(drawn(picture, {60, 40}, {}), drawn(picture, {60, 40}, OVThumbFileManager::defaultThumbOptions()));
    EXPECT_EQ(drawn(picture, {60, 40}, {.contain = true}),
        drawn(picture, {60, 40}, {.contain = true, .cover = false, .antialias = true, .xAlign = 0, .yAlign = 0}));
    EXPECT_NE(drawn(picture, {60, 40}, {.contain = true, .yAlign = 0.5}),
        drawn(picture, {60, 40}, {.contain = true, .antialias = false, .yAlign = 0.5}))
        << "an edge within pixels";
}

TEST_F(ADrawnThumb, OfTheSizeOfThePictureIsThePicture)
{
    const Bitmap picture = aPhotograph(60, 40);
    EXPECT_EQ(
        differenceOf(*drawn(aPicture("a.png", picture), {60, 40}, {.cover = true, .xAlign = 1}), picture).most, 0);
}

/// Transparent above, at the left and below.
Bitmap aFramedPicture()
{
    Bitmap picture(80, 60, Bitmap::Alpha::Premultiplied);
    drawImage(aPhotograph(60, 30), picture, 20, 10, 60, 30);
    return picture;
}

TEST_F(ADrawnThumb, LosesTransparentRowsFirst)
{
    const fs::path picture = aPicture("a.png", aFramedPicture());
    const auto trimmed = drawn(picture, {40, 40}, {.preserveRatio = true, .trimTopBottomTransparentPixels = true});
    ASSERT_TRUE(trimmed) << error_;
    EXPECT_EQ(trimmed->width(), 40);
    EXPECT_EQ(trimmed->height(), 15);
    EXPECT_LE(
        differenceOf(*trimmed, drawnByReference(aFramedPicture().cropped(0, 10, 80, 30), 40, 15, 0, 0, 40, 15)).most,
        2);
    EXPECT_EQ(drawn(picture, {40, 40}, {.preserveRatio = true})->height(), 30) << "only when asked to";
}

TEST_F(ADrawnThumb, KeepsAMarginOfTransparentRows)
{
    const auto trimmed = drawn(aPicture("a.png", aFramedPicture()), {40, 40},
        {.preserveRatio = true, .trimTopBottomTransparentPixels = true, .trimTransparentPixelsHorizontalMargin = 6});
    ASSERT_TRUE(trimmed) << error_;
    EXPECT_EQ(trimmed->height(), 21);
    EXPECT_LE(
        differenceOf(*trimmed, drawnByReference(aFramedPicture().cropped(0, 4, 80, 42), 40, 21, 0, 0, 40, 21)).most, 2);
}

TEST_F(ADrawnThumb, IsNoneOfAFullyTransparentPictureThatIsTrimmed)
{
    const fs::path picture = aPicture("a.png", Bitmap(50, 40, Bitmap::Alpha::Premultiplied));
    EXPECT_FALSE(drawn(picture, {20, 20}, {.trimTopBottomTransparentPixels = true}));
    EXPECT_EQ(error_.localizedDescription(), "The picture is transparent all over.");
    const auto strip = drawn(picture, {50, 40},
        {.preserveRatio = true, .trimTopBottomTransparentPixels = true, .trimTransparentPixelsHorizontalMargin = 4});
    EXPECT_EQ(strip->height(), 4);
    EXPECT_TRUE(drawn(picture, {20, 20}, {}));
}

TEST_F(ADrawnThumb, HasItsBackgroundUnderEveryPixel)
{
    const Bitmap picture = aFadingPicture(40, 40);
    for (const OVThumbColor colour : {OVThumbColor{250, 128, 3}, {250, 128, 3, 100}, {0, 0, 0, 0}}) {
        const auto thumb = drawn(aPicture("a.png", picture), {40, 30}, {.contain = true, .backgroundColor = colour});
        const auto bare = drawn(aPicture("a.png", picture), {40, 30}, {.contain = true});
        ASSERT_TRUE(thumb && bare);
        const int channels[] = {colour.red, colour.green, colour.blue, 255};
        for (std::int32_t y = 0; y < 30; ++y)
            for (std::int32_t x = 0; x < 40; ++x)
                for (int channel = 0; channel < 4; ++channel) {
                    const std::uint8_t* above = bare->row(y) + std::ptrdiff_t{4} * x;
                    const double under = channels[channel] * colour.alpha / 255.0;
                    ASSERT_NEAR(
                        thumb->row(y)[4 * x + channel], above[channel] + under * (255 - above[3]) / 255.0, 1.01);
                }
    }
}

TEST_F(ADrawnThumb, IsNoneOfWhatIsNoPicture)
{
    std::ofstream(pictures_ / "a.png") << "not a picture";
    EXPECT_FALSE(drawn(pictures_ / "a.png", {20, 20}, {}));
    EXPECT_EQ(error_.domain(), TarnImagingErrorDomain);
    EXPECT_FALSE(drawn(pictures_ / "a.png", {20, 20}, {.trimTopBottomTransparentPixels = true}));
    EXPECT_EQ(error_.domain(), TarnImagingErrorDomain);
}

TEST_F(ADrawnThumb, IsNoneOfASizeWithoutPixelsOrWithTooMany)
{
    const fs::path picture = aPicture("a.png", aPhotograph(60, 40));
    for (const PixelSize size : {PixelSize{0, 0}, {-5, 10}, {100'000, 100'000}, {2'147'483'647, 2'147'483'647}}) {
        for (const bool trims : {false, true})
            EXPECT_FALSE(drawn(picture, size, {.cover = true, .trimTopBottomTransparentPixels = trims}));
        EXPECT_THAT(
            error_.localizedDescription(), testing::StartsWith("A picture of 60 x 40 pixels cannot be brought to "));
    }
}

class LimitedImages {
public:
    explicit LimitedImages(std::int64_t pixels)
    {
        ImageLimits limits = before_;
        limits.pixels = pixels;
        ImageLimits::setCurrent(limits);
    }
    ~LimitedImages() { ImageLimits::setCurrent(before_); }

private:
    const ImageLimits before_ = ImageLimits::current();
};

TEST_F(ADrawnThumb, NamesTheLimitThatThePictureIsOver)
{
    const fs::path picture = aPicture("a.png", aPhotograph(60, 40));
    const LimitedImages limits(2399);
    for (const bool trims : {false, true}) {
        EXPECT_FALSE(drawn(picture, {10, 10}, {.trimTopBottomTransparentPixels = trims}));
        EXPECT_EQ(error_.code(), ImagingErrorTooLarge);
        EXPECT_THAT(
            error_.localizedDescription(), testing::AllOf(testing::HasSubstr("60 x 40"), testing::HasSubstr("2399")));
    }
}

/// A JPEG whose EXIF says how it has to be turned.
void setOrientation(const fs::path& picture, char orientation)
{
    using namespace std::string_literals;
    std::ifstream stream(picture, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(stream)), {});
    stream.close();
    const std::string directory = "II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0"s + orientation + "\0\0\0\0\0\0\0"s;
    const std::string content = "Exif\0\0"s + directory;
    bytes.insert(2, "\xFF\xE1\0"s + static_cast<char>(content.size() + 2) + content);
    std::ofstream(picture, std::ios::binary) << bytes;
}

// Red at the left as it is stored; where that is once the picture is upright.
TEST_F(ADrawnThumb, IsUpright)
{
    Bitmap stored = aPlainPicture(80, 40, 0, 0, 255);
    drawImage(aPlainPicture(10, 10, 255, 0, 0), stored, 0, 0, 40, 40);
    const struct {
        char orientation;
        std::int32_t redX, redY;
    } turned[] = {{1, 0, 0}, {2, 1, 0}, {3, 1, 0}, {4, 0, 0}, {5, 0, 0}, {6, 0, 0}, {7, 0, 1}, {8, 0, 1}};
    for (const auto& [orientation, redX, redY] : turned) {
        const fs::path picture = aPicture("a.jpg", stored);
        setOrientation(picture, orientation);
        for (const bool trims : {false, true}) {
            const auto thumb
                = drawn(picture, {20, 20}, {.preserveRatio = true, .trimTopBottomTransparentPixels = trims});
            ASSERT_TRUE(thumb) << error_;
            const bool stands = orientation >= 5;
            ASSERT_EQ(thumb->width(), stands ? 10 : 20) << int(orientation);
            ASSERT_EQ(thumb->height(), stands ? 20 : 10) << int(orientation);
            const std::int32_t x = stands ? 5 : 4 + 12 * redX;
            const std::int32_t y = stands ? 4 + 12 * redY : 5;
            EXPECT_GT(thumb->row(y)[4 * x], 200) << int(orientation);
            EXPECT_LT(thumb->row(y)[4 * x + 2], 50) << int(orientation);
        }
    }
}

} // namespace
} // namespace tarn
