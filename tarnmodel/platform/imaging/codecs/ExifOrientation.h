#pragma once

#include <cstdint>
#include <span>

namespace tarn {

/// The orientation that the first directory of EXIF data holds, 1 to 8; 1 when there is none or the data are not as
/// they should be. The data begin with their byte order, or with "Exif" and two zeros before it. The work is linear in
/// the number of bytes, whatever they say.
int exifOrientation(std::span<const std::uint8_t> data);

} // namespace tarn
