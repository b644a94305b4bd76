#pragma once

#include <cstdint>

namespace tarn {

class NSError;
struct ImageLimits;

// False with an error that names the limit and the size.

/// Whether an image of this size may be decoded: pixels and sides.
bool isWithinLimits(std::int64_t width, std::int64_t height, const ImageLimits& limits, NSError* error);
/// Whether so many pixels may be held at once, of an image of this size.
bool mayBeHeld(std::int64_t pixels, std::int64_t width, std::int64_t height, const ImageLimits& limits, NSError* error);
/// Whether a file of so many bytes may be read whole.
bool mayBeReadWhole(std::uint64_t bytes, const ImageLimits& limits, NSError* error);

} // namespace tarn
