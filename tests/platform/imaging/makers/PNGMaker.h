#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tests/platform/imaging/makers/ImageBytes.h"

#include <cstdint>
#include <functional>

namespace tarn {

/// What rows a PNG holds, and in which form.
struct PNGKind {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int bits = 8;
    int colourType = 6; ///< 0 grey, 2 RGB, 3 palette, 4 grey and alpha, 6 RGB and alpha
    bool isInterlaced = false;
    /// Palette and transparency as their chunks hold them; empty for none.
    ImageBytes palette = {};
    ImageBytes transparency = {};
    /// EXIF's number; 0 for a file without. Ahead of the pixels or behind them.
    int orientation = 0;
    bool isExifBehind = false;
    int compression = 6;
};

/// `row` gives the packed bytes of a row, and is asked for each pass once more.
ImageBytes pngOf(const PNGKind& kind, const std::function<ImageBytes(std::uint32_t y)>& row);
/// 8 bits a channel, colours apart from alpha where there is some.
ImageBytes pngOf(const Bitmap& picture, const PNGKind& form = {});
/// One chunk with its checksum.
ImageBytes pngChunk(std::string_view name, const ImageBytes& data);
/// A file with one more chunk behind its header.
ImageBytes pngWithChunk(const ImageBytes& png, std::string_view name, const ImageBytes& data);
/// The profile or text data of so many zeros, compressed.
ImageBytes compressedZeros(std::size_t count);

} // namespace tarn
