#pragma once

#include <array>
#include <cstdint>
#include <png.h>
#include <string>
#include <vector>

namespace tarn {

/// The library that writes one PNG into memory. As with the reader, its errors jump to the operation that was called.
class PNGWriter {
public:
    PNGWriter();
    ~PNGWriter();
    PNGWriter(const PNGWriter&) = delete;
    PNGWriter& operator=(const PNGWriter&) = delete;

    /// Rows of red, green, blue, 8 bits each, and alpha where there is some.
    bool begin(std::int32_t width, std::int32_t height, bool hasAlpha);
    bool addRow(const std::uint8_t* pixels);
    bool finish();

    const std::vector<std::uint8_t>& bytes() const { return bytes_; }
    /// Why the last operation failed.
    std::string failure() const { return failure_.data(); }

private:
    static void write(png_structp png, png_bytep source, std::size_t count);
    [[noreturn]] static void stop(png_structp png, png_const_charp message);

    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    std::vector<std::uint8_t> bytes_;
    std::array<char, 128> failure_ = {};
};

} // namespace tarn
