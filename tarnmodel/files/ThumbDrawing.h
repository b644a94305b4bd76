#pragma once

#include "tarnmodel/files/OVThumbOptions.h"
#include "tarnmodel/files/ScaledDrawing.h"
#include "tarnmodel/platform/imaging/Bitmap.h"

#include <filesystem>
#include <optional>

namespace tarn {

class NSError;

/// What a thumbnail of this picture shows, upright. Options that are not set have their defaults.
///
/// Unless its border is trimmed, the picture is shrunk while it is decoded. None with an error when it cannot be
/// decoded, is over a limit, has nothing left once it is trimmed, or cannot be brought to this size.
std::optional<Bitmap> drawThumb(
    const std::filesystem::path& picture, PixelSize asked, const OVThumbOptions& options, NSError* error = nullptr);

} // namespace tarn
