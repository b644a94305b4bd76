#pragma once

#include <cstdint>

namespace tarn {

/// How much an image may ask for before it is refused. Checked once its header is known, before any of its pixels are
/// decoded or memory is taken for them; the error names the limit and the image's size.
///
///     ImageLimits limits = ImageLimits::current();
///     limits.pixels = 50'000'000;
///     ImageLimits::setCurrent(limits);
struct ImageLimits {
    /// Pixels of one image: 16383 squared.
    std::int64_t pixels = 268'402'689;
    /// Pixels that have to be in memory at once: of progressive JPEG, of interlaced PNG and GIF, of WebP, TIFF and
    /// HEIF, of an image that is loaded whole, and of what is kept of one that is to be drawn. 4 to 8 bytes each.
    std::int64_t bufferedPixels = 100'000'000;
    /// Pixels of one side.
    std::int32_t side = 1'000'000;
    /// Scans of one progressive JPEG: tiny files may hold many thousands, and each goes over all pixels.
    std::int32_t scansOfAJPEG = 100;
    /// Places of one JPEG that are damaged; what follows them counts as missing.
    std::int32_t warningsOfAJPEG = 10'000;
    /// Ancillary chunks that are kept of one PNG, and the bytes that one may grow to.
    std::int32_t chunksOfAPNG = 1'000;
    std::int32_t bytesOfAPNGChunk = 8'000'000;
    /// Bytes of a file that has to be read whole: WebP, HEIF.
    std::int64_t heldFileBytes = 200'000'000;

    /// Those of this process. Any thread.
    static ImageLimits current();
    /// Replaces them. Any thread; what is being decoded keeps those that it began with.
    static void setCurrent(const ImageLimits& limits);

    friend bool operator==(const ImageLimits&, const ImageLimits&) = default;
};

} // namespace tarn
