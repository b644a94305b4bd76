#pragma once

#include <concepts>
#include <filesystem>
#include <utility>

namespace tarn {

/// The place of a file, for headers that do not bring `<filesystem>` along: whatever a path is made from makes one.
struct FileURL {
    /// The place that a path, or a text that makes one, names.
    template <typename Path>
    requires(std::constructible_from<std::filesystem::path, Path> && !std::same_as<std::remove_cvref_t<Path>, FileURL>)
        FileURL(Path&& place)
        : path(std::forward<Path>(place)) // a path stands for one
    { }
    std::filesystem::path path; ///< as it was given
};

} // namespace tarn
