#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarn {

/// The keys under which dictionaries of applications hold the options below, spelled as applications spell them.
inline constexpr std::string_view OVThumbPreserveRatio = "OVThumbPreserveRatio";
inline constexpr std::string_view OVThumbContain = "OVThumbContain";
inline constexpr std::string_view OVThumbCover = "OVThumbCover";
inline constexpr std::string_view OVThumbAntialias = "OVThumbAntialias";
inline constexpr std::string_view OVThumbXAlign = "OVThumbXAlign";
inline constexpr std::string_view OVThumbYAlign = "OVThumbYAlign";
inline constexpr std::string_view OVThumbTrimTopBottonTransparentPixels = "OVThumbTrimTopBottonTransparentPixels";
inline constexpr std::string_view OVThumbTrimTransparentPixelsHorizontalMargin
    = "OVThumbTrimTransparentPixelsHorizontalMargin";
inline constexpr std::string_view OVThumbBackgroundColor = "OVThumbBackgroundColor";

/// A colour in sRGB.
struct OVThumbColor {
    /// Not multiplied with alpha.
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// 0 is transparent.
    std::uint8_t alpha = 255;

    friend bool operator==(const OVThumbColor&, const OVThumbColor&) = default;
};

/// The size that a thumbnail is asked for, in pixels. Fractions are dropped.
struct OVThumbSize {
    double width = 0;  ///< positive
    double height = 0; ///< positive

    friend bool operator==(const OVThumbSize&, const OVThumbSize&) = default;
};

/// How a thumbnail is made. What is not set has its default, given here; set or not also decides about the name of the
/// thumbnail's file (`OVThumbFileManager::stringFromOptions`).
struct OVThumbOptions {
    std::optional<bool> preserveRatio
        = std::nullopt; ///< true: the picture becomes as large as fits; false: it is stretched
    std::optional<bool> contain
        = std::nullopt;                       ///< false; true: it lies whole on a canvas of the size that was asked for
    std::optional<bool> cover = std::nullopt; ///< false; true: it fills that canvas, which cuts off the rest
    std::optional<bool> antialias = std::nullopt; ///< true: edges between two pixels are drawn in part
    std::optional<double> xAlign = std::nullopt;  ///< 0, the left of the canvas; up to 1, the right
    std::optional<double> yAlign = std::nullopt;  ///< 0, the bottom of the canvas; up to 1, the top
    /// false; true: fully transparent rows at the top and the bottom are cut away first. Not in the name.
    std::optional<bool> trimTopBottomTransparentPixels = std::nullopt;
    /// 0; so many of these rows stay, though the key speaks of a horizontal margin. Not in the name.
    std::optional<double> trimTransparentPixelsHorizontalMargin = std::nullopt;
    /// None; painted under the picture, all over the canvas. Not in the name.
    std::optional<OVThumbColor> backgroundColor = std::nullopt;

    friend bool operator==(const OVThumbOptions&, const OVThumbOptions&) = default;
};

} // namespace tarn
