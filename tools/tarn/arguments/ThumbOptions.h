#pragma once

#include "tarnmodel/files/thumbnails/OVThumbOptions.h"

#include <optional>
#include <string>

namespace tarn {

/// What people say of a thumbnail on the command line.
struct ThumbArguments {
    std::optional<std::string> size;       ///< "200x150"
    std::optional<std::string> align;      ///< "0.5,1"
    std::optional<std::string> trim;       ///< rows that stay; empty: none
    std::optional<std::string> background; ///< "ffee00"
    bool contain = false;
    bool cover = false;
    bool noRatio = false;
};

/// Raises `CommandFailure` (Usage) for what is no size.
OVThumbSize thumbSizeOf(const ThumbArguments& arguments);
/// Only what was said is set. Raises `CommandFailure` (Usage) for what has no sense.
OVThumbOptions thumbOptionsOf(const ThumbArguments& arguments);

} // namespace tarn
