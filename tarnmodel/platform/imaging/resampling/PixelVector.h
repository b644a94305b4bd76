#pragma once

#include <cstdint>
#include <cstring>

namespace tarn {

/// Four channels of one pixel, calculated with at once.
struct PixelVector {
    using Channels [[gnu::vector_size(16)]] = float;
    using WideChannels [[gnu::vector_size(32)]] = double;

    Channels channels = {0, 0, 0, 0};

    /// From bytes or 16-bit values of one pixel.
    template <typename Value> static PixelVector of(const Value* pixel)
    {
        return {Channels{static_cast<float>(pixel[0]), static_cast<float>(pixel[1]), static_cast<float>(pixel[2]),
            static_cast<float>(pixel[3])}};
    }

    PixelVector& operator+=(const PixelVector& other)
    {
        channels += other.channels;
        return *this;
    }
    friend PixelVector operator*(const PixelVector& pixel, float factor) { return {pixel.channels * factor}; }
};

} // namespace tarn
