#pragma once

#include <array>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <span>
#include <string>

// The library's header uses what <cstdio> declares and does not include it.
#include <jpeglib.h>

namespace tarn {

/// The library that writes one JPEG into memory. As with the reader, its errors jump to the operation that was called.
class JPEGWriter {
public:
    JPEGWriter();
    ~JPEGWriter();
    JPEGWriter(const JPEGWriter&) = delete;
    JPEGWriter& operator=(const JPEGWriter&) = delete;

    /// Rows of red, green, blue and a byte that does not count. Quality from 1 to 100.
    bool begin(std::int32_t width, std::int32_t height, int quality);
    bool addRow(const std::uint8_t* pixels);
    bool finish();

    /// Owned by the writer.
    std::span<const std::uint8_t> bytes() const { return {bytes_, size_}; }
    /// Why the last operation failed.
    std::string failure() const { return failure_.data(); }

private:
    [[noreturn]] static void stop(j_common_ptr info);

    jpeg_compress_struct info_ = {};
    jpeg_error_mgr errors_ = {};
    std::jmp_buf stopped_ = {};
    std::array<char, JMSG_LENGTH_MAX> failure_ = {};
    unsigned char* bytes_ = nullptr;
    unsigned long size_ = 0;
};

} // namespace tarn
