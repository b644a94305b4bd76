// Only where the library was built with HEIF.
#ifdef TARN_WITH_HEIF

#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <libheif/heif.h>

#include <algorithm>
#include <random>

namespace tarn {
namespace {

heif_error collect(heif_context*, const void* data, std::size_t size, void* target)
{
    const auto* bytes = static_cast<const std::uint8_t*>(data);
    static_cast<ImageBytes*>(target)->assign(bytes, bytes + size);
    return {heif_error_Ok, heif_suberror_Unspecified, nullptr};
}

/// Empty where there is no such encoder. Colours apart from alpha are those of opaque pixels only.
ImageBytes heifOf(const Bitmap& picture, heif_compression_format format)
{
    heif_context* context = heif_context_alloc();
    heif_encoder* encoder = nullptr;
    ImageBytes bytes;
    if (heif_context_get_encoder_for_format(context, format, &encoder).code == heif_error_Ok) {
        heif_encoder_set_lossy_quality(encoder, 95);
        heif_image* image = nullptr;
        heif_image_create(picture.width(), picture.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB, &image);
        heif_image_add_plane(image, heif_channel_interleaved, picture.width(), picture.height(), 24);
        int stride = 0;
        std::uint8_t* plane = heif_image_get_plane(image, heif_channel_interleaved, &stride);
        for (std::int32_t y = 0; y < picture.height(); ++y)
            for (std::int32_t x = 0; x < picture.width(); ++x)
                std::copy_n(picture.row(y) + std::ptrdiff_t{4} * x, 3,
                    plane + std::ptrdiff_t{stride} * y + std::ptrdiff_t{3} * x);
        heif_image_handle* handle = nullptr;
        heif_context_encode_image(context, image, encoder, nullptr, &handle);
        heif_writer writer{1, collect};
        heif_context_write(context, &writer, &bytes);
        heif_image_handle_release(handle);
        heif_image_release(image);
        heif_encoder_release(encoder);
    }
    heif_context_free(context);
    return bytes;
}

class AHEIF : public testing::TestWithParam<heif_compression_format> {
protected:
    void SetUp() override
    {
        bytes_ = heifOf(aPhotograph(128, 96), GetParam());
        if (bytes_.empty())
            GTEST_SKIP();
    }

    ImageBytes bytes_;
};

INSTANTIATE_TEST_SUITE_P(Codings, AHEIF, testing::Values(heif_compression_HEVC, heif_compression_AV1));

TEST_P(AHEIF, IsDecoded)
{
    EXPECT_EQ(headerOf(bytes_), (ImageHeader{ImageFormat::HEIF, 128, 96, 1, false}));
    const auto read = loaded(bytes_);
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->hasAlpha());
    EXPECT_LT(differenceOf(*read, aPhotograph(128, 96)).mean, 4);
}

TEST_P(AHEIF, IsWithinTheLimits)
{
    ImageLimits limits;
    limits.bufferedPixels = 128 * 95;
    NSError error;
    EXPECT_FALSE(drawn(bytes_, 5, 5, &error, limits));
    EXPECT_EQ(error.code(), ImagingErrorTooLarge);
    limits = {};
    limits.heldFileBytes = 100;
    EXPECT_FALSE(drawn(bytes_, 5, 5, &error, limits));
}

TEST_P(AHEIF, ThatIsHarmedIsAnImageOrAnError)
{
    ImageLimits limits;
    limits.pixels = limits.bufferedPixels = 300'000;
    for (std::uint32_t round = 0; round < 60; ++round) {
        std::mt19937 random(round);
        ImageBytes harmed = prefix(bytes_, round % 2 == 0 ? bytes_.size() : random() % bytes_.size());
        for (int flip = 0; flip < 3 && !harmed.empty(); ++flip)
            harmed[random() % std::min<std::size_t>(harmed.size(), 600)]
                ^= static_cast<std::uint8_t>(1U << random() % 8);
        NSError error;
        const auto read = loaded(harmed, &error, limits);
        EXPECT_EQ(read.has_value(), error.code() == 0);
    }
}

} // namespace
} // namespace tarn

#endif
