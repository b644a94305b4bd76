#pragma once

#include <filesystem>

namespace tarn {

class NSError;

/// Copies a file or folder under a name that nothing else uses; what was begun is gone after a failure. A link at the
/// top is followed.
bool copyItemAtUnusedURL(const std::filesystem::path& source, const std::filesystem::path& destination, NSError* error);

} // namespace tarn
