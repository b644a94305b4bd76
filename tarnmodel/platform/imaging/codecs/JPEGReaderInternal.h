#pragma once

#include "tarnmodel/platform/imaging/ImageLimits.h"

#include <array>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <string>

// The library's header uses what <cstdio> declares and does not include it.
#include <jpeglib.h>

namespace tarn {

class ImageInput;

/// The library behind one JPEG file. Its errors jump, past all frames of it, to the operation that was called: that is
/// confined to this class, of which no operation keeps anything to destroy.
class JPEGReader {
public:
    /// Both must outlive the reader. Raises std::bad_alloc.
    JPEGReader(ImageInput& input, const ImageLimits& limits);
    ~JPEGReader();
    JPEGReader(const JPEGReader&) = delete;
    JPEGReader& operator=(const JPEGReader&) = delete;

    /// Everything ahead of the first scan. False when that is no JPEG that the library decodes.
    bool readHeader();
    /// Begins to decode at so many eighths of the size: 1, 2, 4 or 8. Progressive files are read to their end here.
    bool start(unsigned eighths);
    /// The next row: red, green, blue, 255, or the four inks where `isInk()`. False when there are none or it is
    /// damaged.
    bool readRow(std::uint8_t* pixels);

    // After the header.
    std::int32_t width() const { return static_cast<std::int32_t>(info_.image_width); }
    std::int32_t height() const { return static_cast<std::int32_t>(info_.image_height); }
    /// Whether all coefficients are held while it is decoded.
    bool isProgressive() const { return isProgressive_; }
    /// Cyan, magenta, yellow and black, as programs of one maker store them: 255 where there is no ink.
    bool isInk() const { return info_.out_color_space == JCS_CMYK; }
    bool isInkInverted() const { return info_.saw_Adobe_marker != 0; }
    // Once started.
    std::int32_t outputWidth() const { return static_cast<std::int32_t>(info_.output_width); }
    std::int32_t outputHeight() const { return static_cast<std::int32_t>(info_.output_height); }

    /// Whether a row, or some of a progressive image's first scan, came before the file's end. Ask after the first row.
    bool hasDecodedARow() const;
    /// Whether more of it is damaged than the limit lets pass.
    bool isTooDamaged() const { return errors_.num_warnings > limits_.warningsOfAJPEG; }
    /// Whether a limit stopped it.
    bool isBeyondLimits() const { return isBeyondLimits_; }
    /// Why the last operation failed.
    std::string failure() const { return failure_.data(); }

private:
    static JPEGReader& readerOf(j_common_ptr info) { return *static_cast<JPEGReader*>(info->client_data); }
    [[noreturn]] static void stop(j_common_ptr info);
    static void countProgress(j_common_ptr info);
    static boolean fill(j_decompress_ptr info);
    static void skip(j_decompress_ptr info, long count);

    void setUpSource();

    ImageInput& input_;
    const ImageLimits& limits_;
    jpeg_decompress_struct info_ = {};
    jpeg_error_mgr errors_ = {};
    jpeg_source_mgr source_ = {};
    jpeg_progress_mgr progress_ = {};
    std::jmp_buf stopped_ = {};
    std::array<char, JMSG_LENGTH_MAX> failure_ = {};
    std::array<std::uint8_t, 16'384> buffer_;
    bool isProgressive_ = false;
    bool isAtEnd_ = false;
    int rowsScanned_ = 0;
    bool hasScannedARow_ = false;
    bool isBeyondLimits_ = false;
};

} // namespace tarn
