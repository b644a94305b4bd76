#pragma once

#include <filesystem>

namespace tarn {

class Bitmap;
class NSError;

/// What JPEG is written with where nobody says otherwise, 1 (smallest) to 100 (best).
inline constexpr int DefaultJPEGQuality = 85;

/// Writes a PNG, with alpha where the bitmap has it; equal bitmaps give equal bytes. Colours are divided by their
/// alpha, since files hold them apart: what is opaque stays exact. The file is held in memory and written in place of
/// one of that name. False with an error when there is no pixel, or when it cannot be written: it then may be cut
/// short.
bool writePNG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error = nullptr);
/// Writes a JPEG, which has no alpha: what is transparent becomes black, as premultiplied colours are. Otherwise as
/// above.
bool writeJPEG(const Bitmap& bitmap, const std::filesystem::path& path, NSError* error = nullptr,
    int quality = DefaultJPEGQuality);

} // namespace tarn
