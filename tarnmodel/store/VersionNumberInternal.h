#pragma once

#include <cstdint>
#include <string_view>

namespace tarn {

/// "Model 12" is version 12 of "Model", and "Model" the first.
struct VersionNumber {
    std::string_view name; ///< of all versions: "Model"
    std::uint64_t number = 1;

    friend auto operator<=>(const VersionNumber&, const VersionNumber&) = default;
};
/// Refers to the text.
VersionNumber versionNumberOf(std::string_view version);

} // namespace tarn
