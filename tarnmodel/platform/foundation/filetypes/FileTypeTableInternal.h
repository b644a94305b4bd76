#pragma once

#include <span>
#include <string_view>

namespace tarn {

/// What is known of one file name extension.
struct FileType {
    std::string_view extension; ///< in lower case
    std::string_view identifier;
    std::string_view preferredExtension; ///< one of the same type
};

/// All that are known, sorted by extension.
std::span<const FileType> fileTypes() noexcept;

} // namespace tarn
