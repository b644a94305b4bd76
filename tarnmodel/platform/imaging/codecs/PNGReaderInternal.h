#pragma once

#include "tarnmodel/platform/imaging/ImageLimits.h"

#include <array>
#include <cstdint>
#include <png.h>
#include <string>

namespace tarn {

class ImageInput;

/// The library behind one PNG file. Its errors jump, past all frames of it, to the operation that was called: that is
/// confined to this class, of which no operation keeps anything to destroy.
class PNGReader {
public:
    /// The input must outlive the reader. Raises std::bad_alloc.
    PNGReader(ImageInput& input, const ImageLimits& limits);
    ~PNGReader();
    PNGReader(const PNGReader&) = delete;
    PNGReader& operator=(const PNGReader&) = delete;

    /// Everything ahead of the pixels. False when that is no PNG that the library decodes.
    bool readHeader();
    /// From here on rows are red, green, blue and alpha, 8 bits each, whatever is stored.
    bool start();
    /// The next row. False when it is damaged.
    bool readRow(std::uint8_t* pixels) { return readRow(pixels, nullptr); }
    /// The next row of a pass, into what earlier passes left of it; what later passes will bring is filled up.
    bool readRowOfPass(std::uint8_t* pixels) { return readRow(nullptr, pixels); }

    // After the header.
    std::int64_t width() const { return png_get_image_width(png_, info_); }
    std::int64_t height() const { return png_get_image_height(png_, info_); }
    bool isInterlaced() const { return png_get_interlace_type(png_, info_) != PNG_INTERLACE_NONE; }
    bool hasAlpha() const;
    /// How often all rows are read, once started: 1, or 7 of an interlaced image.
    int passes() const { return passes_; }

    /// Why the last operation failed.
    std::string failure() const { return failure_.data(); }

private:
    static void read(png_structp png, png_bytep target, std::size_t count);
    [[noreturn]] static void stop(png_structp png, png_const_charp message);

    bool readRow(std::uint8_t* row, std::uint8_t* rowOfPass);
    void setLimits(const ImageLimits& limits);

    ImageInput& input_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    int passes_ = 1;
    std::array<char, 128> failure_ = {};
};

} // namespace tarn
