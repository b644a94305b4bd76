#pragma once

#include <cstdint>

namespace tarn {

/// What a decoder is going to deliver.
struct RowLayout {
    std::int32_t width = 0;
    std::int32_t height = 0;
    /// How many times the stored image's width and height the rows reach over: a decoder that shrinks by a whole number
    /// ends a little beyond the image.
    double coveredWidth = 1;
    double coveredHeight = 1;
    bool hasAlpha = false;
};

/// Takes an image row by row as it is stored, top row first: red, green, blue, alpha, 8 bits each, not premultiplied.
/// Where there is no alpha these bytes are 255.
class RowSink {
public:
    virtual ~RowSink() = default;

    /// Once, before the first row. Raises std::bad_alloc.
    virtual void begin(const RowLayout& layout) = 0;
    /// The next of the rows that were announced, `layout.width * 4` bytes.
    virtual void addRow(const std::uint8_t* pixels) = 0;
};

} // namespace tarn
