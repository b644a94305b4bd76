#pragma once

#include <filesystem>

namespace tarn {

class Bitmap;
class NSError;

/// What JPEG is written with where nobody says otherwise, 1 (smallest) to 100 (best).
inline constexpr int DefaultJPEGQuality = 85;

/// Writes a PNG, with alpha where the bitmap has it; equal bitmaps give equal bytes. Colours are divided by their
/// alpha, since files hold them apart: what is opaque stays exact. A file of that name is written over, in place. False
/// with an error when it cannot be written, or when there is no pixel; what lies there then is no image.
bool writePNG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error = nullptr);
/// Writes a JPEG, which has no alpha: what is transparent becomes black, as premultiplied colours are. Otherwise as
/// above.
bool writeJPEG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error = nullptr,
    int quality = DefaultJPEGQuality);

} // namespace tarn
