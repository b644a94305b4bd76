#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"
#include "tests/platform/imaging/makers/ImageBytes.h"

#include <optional>

namespace tarn {

// What the operations on files answer for bytes in memory.
std::optional<ImageHeader> headerOf(const ImageBytes& bytes, NSError* error = nullptr);
std::optional<Bitmap> loaded(const ImageBytes& bytes, NSError* error = nullptr, const ImageLimits& limits = {});
/// Loaded for this size, and drawn on an empty canvas of it.
std::optional<Bitmap> drawn(const ImageBytes& bytes, std::int32_t width, std::int32_t height, NSError* error = nullptr,
    const ImageLimits& limits = {});
/// Loaded whole, and drawn by the filter.
Bitmap drawnWhole(const Bitmap& picture, std::int32_t width, std::int32_t height);

/// The first row from left to right, then the next one: "r" and so on for the plain colours, "." for what is
/// transparent,
/// "?" for any other.
std::string lettersOf(const Bitmap& bitmap);

} // namespace tarn
