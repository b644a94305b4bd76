#pragma once

#include <cstddef>
#include <cstdint>

namespace tarn {

/// Divides the colours of a premultiplied row by their alpha, as sinks want them; more colour than alpha becomes full.
inline void makeStraight(std::uint8_t* pixels, std::size_t count)
{
    for (std::uint8_t* const end = pixels + 4 * count; pixels != end; pixels += 4) {
        const unsigned alpha = pixels[3];
        for (int channel = 0; channel < 3 && alpha < 255; ++channel) {
            const unsigned value = alpha == 0 ? 0 : (pixels[channel] * 255U + alpha / 2) / alpha;
            pixels[channel] = static_cast<std::uint8_t>(value < 255 ? value : 255);
        }
    }
}

} // namespace tarn
