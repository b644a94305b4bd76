#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageSamples.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tarn {

class NSError;
struct ImageLimits;

/// Errors of images.
inline constexpr std::string_view TarnImagingErrorDomain = "TarnImaging";
enum ImagingErrorCode : long {
    ImagingErrorCannotRead = 1,    ///< the file is not there, or cannot be read
    ImagingErrorUnknownFormat = 2, ///< it is no image, or of a format that is not known or not built in
    ImagingErrorDamaged = 3,       ///< it is an image, but not one row of it can be decoded
    ImagingErrorTooLarge = 4,      ///< it asks for more than a limit; the text names both
    ImagingErrorOutOfMemory = 5,
    ImagingErrorCannotWrite = 6,
};

/// The formats that are told apart. TIFF and HEIF (with AVIF) are decoded only where the library was built with them.
enum class ImageFormat { JPEG, PNG, GIF, WebP, BMP, TIFF, HEIF };

/// What a file says of its image before a pixel of it is decoded. A plain value.
struct ImageHeader {
    /// By the first bytes of the file.
    ImageFormat format = ImageFormat::PNG;
    /// In pixels, as the rows are stored.
    std::int64_t width = 0;
    std::int64_t height = 0;
    /// How the stored image has to be turned, 1 (not at all) to 8, in the numbers of EXIF.
    int orientation = 1;
    /// Whether the file says that pixels may be transparent.
    bool hasAlpha = false;

    /// The size once it is turned.
    std::int64_t uprightWidth() const noexcept { return orientation >= 5 ? height : width; }
    std::int64_t uprightHeight() const noexcept { return orientation >= 5 ? width : height; }

    friend bool operator==(const ImageHeader&, const ImageHeader&) = default;
};

// Each of these tells the format from the first bytes and never from the file's name, and may be called on any thread.

/// The format of a file; none with an error when it cannot be read or is no image.
std::optional<ImageFormat> imageFormatOfFile(const std::filesystem::path& path, NSError* error = nullptr);

/// What the file says of its image; none with an error. Some tens of bytes to some kilobytes are read, no limit is
/// asked.
std::optional<ImageHeader> readImageHeader(const std::filesystem::path& path, NSError* error = nullptr);

/// Whether the limits on pixels and sides let the image be decoded. Limits of one format are asked while it is decoded.
bool imageIsWithinLimits(const ImageHeader& header, const ImageLimits& limits, NSError* error = nullptr);

/// The image in full size, upright. None with an error, also when it is not within `ImageLimits::current()`.
///
/// Of an animation it is the first frame. Colour profiles and gamma are ignored; 16 bits become 8; CMYK becomes RGB.
/// A file that ends early, or is damaged on the way, counts as an image as soon as one row can be decoded:
///     JPEG, PNG, GIF    the rest is transparent where the image has alpha, grey where not
///     interlaced, progressive    the rest is as coarse as it is; one pass or scan must have begun
///     WebP, BMP, TIFF, HEIF    whole or not at all
std::optional<Bitmap> loadImage(const std::filesystem::path& path, NSError* error = nullptr);

/// The image for being drawn at this size in pixels, upright: shrunk while it is decoded, never below that size, or
/// whole when it is smaller. Otherwise as `loadImage()`. Memory follows the width of the image and the size drawn
/// for JPEG, PNG, GIF and BMP that are stored row by row.
std::optional<ImageSamples> loadImageForDrawing(
    const std::filesystem::path& path, double drawnWidth, double drawnHeight, NSError* error = nullptr);

} // namespace tarn
