// Files that want to do harm: each is an image or an error, at a cost that its size explains.

#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/platform/imaging/makers/BMPMaker.h"
#include "tests/platform/imaging/makers/GIFMaker.h"
#include "tests/platform/imaging/makers/JPEGMaker.h"
#include "tests/platform/imaging/makers/PNGMaker.h"
#include "tests/platform/imaging/makers/WebPMaker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <random>

namespace tarn {
namespace {

int roundsOfHarm()
{
    const char* text = std::getenv("TARN_HOSTILE_IMAGES");
    return text ? std::atoi(text) : 100;
}

BMPKind aBMP(std::uint32_t bits)
{
    BMPKind kind{9, 7, bits, 0, 40};
    kind.rows.assign(7, ImageBytes(9 * bits / 8 + 1, 0x53));
    if (bits == 8)
        kind.palette.assign(256, {1, 2, 3});
    return kind;
}

struct Victim {
    const char* name;
    std::function<ImageBytes()> bytes;
};

class AHarmedFile : public testing::TestWithParam<Victim> { };

std::string victimName(const testing::TestParamInfo<Victim>& victim)
{
    return victim.param.name;
}

PNGKind interlaced()
{
    PNGKind kind;
    kind.isInterlaced = true;
    return kind;
}

GIFFrame aFrame(bool isInterlaced)
{
    GIFFrame frame{1, 2, {}, isInterlaced};
    for (int row = 0; row < 30; ++row)
        frame.rows.push_back(std::string("rgbwk.rrgg.kkwb").substr(static_cast<std::size_t>(row % 7), 8));
    return frame;
}

INSTANTIATE_TEST_SUITE_P(Formats, AHarmedFile,
    testing::Values(Victim{"JPEG", [] { return jpegOf(aPhotograph(40, 30), {.orientation = 6}); }},
        Victim{"ProgressiveJPEG", [] { return jpegOf(aPhotograph(40, 30), {.isProgressive = true}); }},
        Victim{"ArithmeticJPEG", [] { return jpegOf(aPhotograph(40, 30), {.isArithmetic = true}); }},
        Victim{"JPEGOfInks", [] { return jpegOf(aPhotograph(40, 30), {.colours = JPEGKind::Colours::YCCK}); }},
        Victim{"PNG", [] { return pngOf(aFadingPicture(40, 30)); }},
        Victim{"InterlacedPNG", [] { return pngOf(aPhotograph(40, 30), interlaced()); }},
        Victim{"PNGWithPalette",
            [] {
                return pngOf(PNGKind{40, 30, 4, 3, false, ImageBytes(48, 7), {1, 2}},
                    [](std::uint32_t y) { return ImageBytes(20, static_cast<std::uint8_t>(y * 5)); });
            }},
        Victim{"GIF",
            [] {
                return gifOf(12, 33, {aFrame(false), aFrame(true)});
            }},
        Victim{"InterlacedGIF", [] { return gifOf(12, 33, {aFrame(true)}); }},
        Victim{"WebP", [] { return webPOf(aFadingPicture(40, 30), 80); }},
        Victim{"WebPWithoutLoss", [] { return webPTurned(aFadingPicture(40, 30), 8); }},
        Victim{"MovingWebP",
            [] {
                return webPAnimation(20, 20, {{2, 4, aPhotograph(8, 8)}, {0, 0, aPhotograph(20, 20)}});
            }},
        Victim{"BMP", [] { return bmpOf(aBMP(24)); }}, Victim{"BMPWithPalette", [] { return bmpOf(aBMP(8)); }},
        Victim{"BMPOf16Bits", [] { return bmpOf(aBMP(16)); }}),
    victimName);

ImageLimits smallLimits()
{
    ImageLimits limits;
    limits.pixels = limits.bufferedPixels = 300'000;
    return limits;
}

void expectAnImageOrAnError(const ImageBytes& bytes)
{
    NSError error;
    const auto header = headerOf(bytes);
    const auto whole = loaded(bytes, &error, smallLimits());
    ASSERT_EQ(whole.has_value(), error.code() == 0) << error;
    ASSERT_TRUE(header || !whole);
    const auto small = drawn(bytes, 7, 5, nullptr, smallLimits());
    ASSERT_EQ(small.has_value(), whole.has_value());
    if (!whole)
        return;
    for (std::int32_t y = 0; y < whole->height(); ++y)
        for (const std::uint8_t* pixel = whole->row(y); pixel != whole->row(y) + whole->bytesPerRow(); pixel += 4) {
            ASSERT_LE(std::max({pixel[0], pixel[1], pixel[2]}), pixel[3]);
            ASSERT_TRUE(whole->hasAlpha() || pixel[3] == 255);
        }
}

TEST_P(AHarmedFile, ThatEndsEarlyIsAnImageOrAnError)
{
    const ImageBytes bytes = GetParam().bytes();
    ASSERT_TRUE(loaded(bytes));
    const auto rounds = static_cast<std::size_t>(roundsOfHarm());
    for (std::size_t round = 0; round < rounds; ++round)
        expectAnImageOrAnError(prefix(bytes, bytes.size() * round / rounds));
}

TEST_P(AHarmedFile, WithFlippedBitsIsAnImageOrAnError)
{
    const ImageBytes bytes = GetParam().bytes();
    for (int round = 0; round < roundsOfHarm(); ++round) {
        SCOPED_TRACE("seed " + std::to_string(round));
        std::mt19937 random(static_cast<std::uint32_t>(round));
        ImageBytes harmed = bytes;
        // Half of them fall into the header.
        const std::size_t range = round % 2 == 0 ? harmed.size() : std::min<std::size_t>(harmed.size(), 64);
        for (std::uint32_t flip = 0; flip <= random() % 6; ++flip)
            harmed[random() % range] ^= static_cast<std::uint8_t>(1U << random() % 8);
        expectAnImageOrAnError(harmed);
    }
}

} // namespace
} // namespace tarn
