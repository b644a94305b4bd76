#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace tarn {

/// Four channels of one pixel, calculated with at once.
struct PixelVector {
    using Channels [[gnu::vector_size(16)]] = float;
    using WideChannels [[gnu::vector_size(32)]] = double;

    Channels channels = {0, 0, 0, 0};

    static_assert(std::endian::native == std::endian::little, "lanes are filled up behind their lowest byte");

    /// From bytes or 16-bit values of one pixel. Widened all at once: compilers convert them one by one otherwise.
    static PixelVector of(const std::uint8_t* pixel)
    {
        std::int32_t bits = 0;
        std::memcpy(&bits, pixel, sizeof bits);
        auto bytes = std::bit_cast<Bytes>(Integers{bits, 0, 0, 0});
        bytes = __builtin_shufflevector(bytes, Bytes{}, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
        return fromShorts(std::bit_cast<Shorts>(bytes));
    }
    static PixelVector of(const std::uint16_t* pixel)
    {
        std::int64_t bits = 0;
        std::memcpy(&bits, pixel, sizeof bits);
        return fromShorts(std::bit_cast<Shorts>(Longs{bits, 0}));
    }

    PixelVector& operator+=(const PixelVector& other)
    {
        channels += other.channels;
        return *this;
    }
    friend PixelVector operator*(const PixelVector& pixel, float factor) { return {pixel.channels * factor}; }

private:
    using Bytes [[gnu::vector_size(16)]] = std::uint8_t;
    using Shorts [[gnu::vector_size(16)]] = std::uint16_t;
    using Integers [[gnu::vector_size(16)]] = std::int32_t;
    using Longs [[gnu::vector_size(16)]] = std::int64_t;

    static PixelVector fromShorts(Shorts shorts)
    {
        shorts = __builtin_shufflevector(shorts, Shorts{}, 0, 8, 1, 9, 2, 10, 3, 11);
        return {__builtin_convertvector(std::bit_cast<Integers>(shorts), Channels)};
    }
};

} // namespace tarn
