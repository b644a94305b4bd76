#pragma once

#include "tarnmodel/files/thumbnails/OVThumbOptions.h"
#include "tarnmodel/files/thumbnails/ScaledDrawing.h"
#include "tarnmodel/platform/imaging/Bitmap.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tarn {

class NSError;

/// What a thumbnail of this picture shows, upright. Options that are not set have their defaults.
///
/// Unless its border is trimmed, the picture is shrunk while it is decoded. None with an error when it cannot be
/// decoded, is over a limit, has nothing left once it is trimmed, or cannot be brought to this size.
std::optional<Bitmap> drawThumb(
    const std::filesystem::path& picture, PixelSize asked, const OVThumbOptions& options, NSError* error = nullptr);

/// What of the options shows in a thumbnail and not in its name: "trim:10", "background:3366ccff", both with a comma
/// between them, or nothing.
std::string lookBeyondName(const OVThumbOptions& options);

} // namespace tarn
