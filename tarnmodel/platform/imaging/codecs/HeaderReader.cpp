#include "tarnmodel/platform/imaging/codecs/HeaderReader.h"

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

namespace {

/// Bytes at a place of the file; a dot stands for any byte. All of one row must be there.
struct Signature {
    ImageFormat format;
    std::string_view beginning;
};

using namespace std::string_view_literals;

constexpr std::array kSignatures{
    Signature{ImageFormat::JPEG, "\xFF\xD8\xFF"sv},
    Signature{ImageFormat::PNG, "\x89PNG\r\n\x1A\n"sv},
    Signature{ImageFormat::GIF, "GIF87a"sv},
    Signature{ImageFormat::GIF, "GIF89a"sv},
    Signature{ImageFormat::WebP, "RIFF....WEBPVP8"sv},
    Signature{ImageFormat::BMP, "BM"sv},
    Signature{ImageFormat::TIFF, "II*\0"sv},
    Signature{ImageFormat::TIFF, "MM\0*"sv},
    Signature{ImageFormat::HEIF, "....ftypheic"sv},
    Signature{ImageFormat::HEIF, "....ftypheix"sv},
    Signature{ImageFormat::HEIF, "....ftypheim"sv},
    Signature{ImageFormat::HEIF, "....ftypheis"sv},
    Signature{ImageFormat::HEIF, "....ftyphevc"sv},
    Signature{ImageFormat::HEIF, "....ftypmif1"sv},
    Signature{ImageFormat::HEIF, "....ftypmsf1"sv},
    Signature{ImageFormat::HEIF, "....ftypavif"sv},
};
constexpr std::size_t kLongestSignature = 15;

struct Format {
    const char* name;
    /// Null for a format that is not built in.
    std::optional<ImageHeader> (*readHeader)(ImageInput& input);
};

#ifdef TARN_WITH_TIFF
constexpr auto kTIFFReader = readTIFFHeader;
#else
constexpr std::nullptr_t kTIFFReader = nullptr;
#endif
#ifdef TARN_WITH_HEIF
constexpr auto kHEIFReader = readHEIFHeader;
#else
constexpr std::nullptr_t kHEIFReader = nullptr;
#endif

/// By format.
constexpr std::array<Format, 7> kFormats{{
    {"JPEG", readJPEGHeader},
    {"PNG", readPNGHeader},
    {"GIF", readGIFHeader},
    {"WebP", readWebPHeader},
    {"BMP", readBMPHeader},
    {"TIFF", kTIFFReader},
    {"HEIF", kHEIFReader},
}};

bool matches(std::string_view bytes, std::string_view beginning)
{
    return bytes.size() >= beginning.size()
        && std::equal(beginning.begin(), beginning.end(), bytes.begin(),
            [](char wanted, char byte) { return wanted == '.' || wanted == byte; });
}

void fail(NSError* error, ImagingErrorCode code, std::string_view text)
{
    assignError(error, NSError(TarnImagingErrorDomain, code, text));
}

const Format& rowOf(ImageFormat format)
{
    return kFormats[static_cast<std::size_t>(format)];
}

} // namespace

const char* nameOf(ImageFormat format)
{
    return rowOf(format).name;
}

std::optional<ImageFormat> formatOf(ImageInput& input)
{
    std::array<std::uint8_t, kLongestSignature> bytes{};
    input.seek(0);
    const std::size_t count = input.read(bytes);
    const std::string text(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count));
    for (const Signature& signature : kSignatures)
        if (matches(text, signature.beginning))
            return signature.format;
    return std::nullopt;
}

std::optional<ImageHeader> readHeader(ImageInput& input, NSError* error)
{
    const auto format = formatOf(input);
    if (!format) {
        fail(error, ImagingErrorUnknownFormat, "The file is no image of a format that is known.");
        return std::nullopt;
    }
    if (!rowOf(*format).readHeader) {
        fail(error, ImagingErrorUnknownFormat, fmt::format("The library was built without {}.", nameOf(*format)));
        return std::nullopt;
    }
    const auto header = rowOf(*format).readHeader(input);
    if (!header)
        fail(error, ImagingErrorDamaged,
            fmt::format("The {} file is damaged, or of a kind that is not decoded.", nameOf(*format)));
    return header;
}

} // namespace tarn
